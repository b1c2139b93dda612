#ifndef DAKSDP_TESTS_SUPPORT_H
#define DAKSDP_TESTS_SUPPORT_H

#include <sstream>
#include <string>
#include <type_traits>
#include <utility>

#include "outcome.h"

inline const outcome done{1};
inline const outcome refused{0, "", "", true};

inline outcome logged(int result, std::string log, std::string text = "")
{
    return {result, std::move(text), std::move(log), true};
}

inline std::string xs(std::size_t count) { return std::string(count, 'x'); }

inline std::string text_of(const char *text) { return text != nullptr ? text : "(null)"; }

// Makes a call; a text that it gives is the outcome's text, a pointer its result.
template <class Function, class... Arguments> outcome call(Function function, Arguments &&...arguments)
{
    using result = std::invoke_result_t<Function, Arguments...>;
    std::string text;
    const auto make = [&] {
        if constexpr (std::is_void_v<result>)
            return function(arguments...), 0;
        else if constexpr (std::is_same_v<result, const char *>) {
            const char *given = function(arguments...);
            text = given != nullptr ? given : "";
            return int(given != nullptr);
        } else if constexpr (std::is_pointer_v<result>)
            return int(function(arguments...) != nullptr);
        else
            return static_cast<int>(function(arguments...));
    };
    return outcome_of(make, [&] { return text; });
}

// A test on a fresh context and a media section that is in no document.
class ContextTest : public PlatformTest {
protected:
    void SetUp() override
    {
        PlatformTest::SetUp();
        context = init_sdp_lib();
        section = new_section("RTP/AVP").release();
    }
    void TearDown() override
    {
        clean_sdp_lib(context);
        section_ptr{section};
        PlatformTest::TearDown();
    }
    sdp_lib_context *context;
    media_description *section; // null once a document has it
};

// What the readers of a media section give, a line for each thing that it holds.
inline std::string dump(media_description *section)
{
    std::ostringstream out;
    char format[200] = "";
    dak_sdp_get_media_format(section, format);
    out << "m=" << get_media_type(section) << ' ' << get_media_port(section) << '/'
        << get_number_of_media_port(section) << ' ' << get_transport_profile(section)
        << (format[0] != '\0' ? " format " : "") << format << '\n';
    rtcp_address_info address;
    get_rtcp_ipaddress(&address, section);
    if (get_rtcp_port(section) != 0)
        out << "  rtcp " << get_rtcp_port(section) << ' ' << address.valid << ' ' << address.network_type
            << ' ' << address.address_type << ' ' << address.address << '\n';
    for (const char *type : {"i=", "c=", "b=", "k="})
        for (int i = 0; const char *value = get_media_description_value_by_index(section, i, type); ++i)
            out << "  " << type << value << '\n';
    for (int i = 0; i < get_number_of_media_payload(section); ++i) {
        out << "  " << get_media_codec_payload_number_by_index(section, i);
        if (get_media_rtpmap_valid_flag_by_index(section, i) == 1)
            out << ' ' << get_media_codec_mime_type_by_index(section, i) << '/'
                << get_media_codec_sample_rate_by_index(section, i) << '/'
                << get_media_code_encoding_param_by_index(section, i);
        for (const char *name : section->codecs[i].info.param_name)
            if (const char *value = get_media_value(section, i, name))
                out << ' ' << name << '=' << value;
        out << (dak_sdp_get_media_rtcp_fb_valid_flag_by_index(section, i) == 1 ? " feedback\n" : "\n");
    }
    for (const session_value *attribute = section->attributes; attribute != nullptr;
         attribute = attribute->next)
        out << "  a=" << attribute->text << '\n';
    return out.str();
}

// The same for a whole document.
inline std::string dump(sdp_lib_context *context, int selector)
{
    std::string out;
    for (const char *tag :
         {"v=", "o=", "s=", "i=", "u=", "e=", "p=", "c=", "b=", "t=", "r=", "z=", "k=", "a="})
        for (int i = 0; const char *value = get_particular_index_of_session_value(context, selector, tag, i);
             ++i)
            out.append(tag).append(value).append("\n");
    for (int i = 0; i < get_number_of_media_description(context, selector); ++i)
        out += dump(get_media_description_by_index(context, selector, static_cast<uint32_t>(i)));
    return out;
}

// Reads a body out of a block that ends with it.
inline outcome parse(std::string_view body)
{
    const heap_text text(body);
    const context_ptr context(init_sdp_lib());
    return outcome_of(
        [&] { return sdp_parse(context.get(), text.data(), static_cast<uint32_t>(text.size())); },
        [&] { return dump(context.get(), SDP_PARSER_DOCUMENT); });
}

#endif
