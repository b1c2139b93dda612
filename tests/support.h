#ifndef DAKSDP_TESTS_SUPPORT_H
#define DAKSDP_TESTS_SUPPORT_H

#include <fstream>
#include <iterator>
#include <map>
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

inline std::string read_file(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

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

// Makes a call; `show` tells afterwards what it left behind.
template <class Show, class Function, class... Arguments>
outcome call_then(Show show, Function function, Arguments &&...arguments)
{
    outcome seen = call(function, arguments...);
    seen.text = show();
    return seen;
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

// The fields of a record as "  name one|two|three", or nothing when all are zero or empty.
template <class... Fields> std::string shown(const char *name, const Fields &...fields)
{
    std::ostringstream out;
    ((out << fields << '|'), ...);
    std::string text = out.str();
    text.pop_back();
    return text.find_first_not_of("0|") == text.npos ? "" : std::string("  ") + name + " " + text + "\n";
}

// The feedback of one payload format, or of all for an index of -1. The readers are to leave the subtype of the
// other type, here 9, alone.
inline std::string feedback(const media_description *section, int codec)
{
    static const std::map<uint32_t, const char *> words = {
        {190, "nack"}, {191, "nack pli"}, {209, "ccm fir"}, {219, "ccm tmmbr"}, {499, "unsupported"}};
    const int count = codec < 0 ? dak_sdp_get_number_of_m_rtcp_fb_attrs(section)
                                : dak_sdp_get_number_of_rtcp_fb_attrs(section, codec);
    std::string text;
    for (int i = 0; i < count; ++i) {
        rtcp_fb_kind kind{9, 9, 9};
        const char *parameter = section->rtcp_fb.fb_entries[i].fb_param;
        if (codec >= 0)
            parameter = dak_sdp_get_media_rtcp_fb_type(section, &kind, i, codec);
        else
            EXPECT_NE(dak_sdp_get_media_m_rtcp_fb_type(section, &kind, i), nullptr);
        const uint32_t all = kind.fb_type * 100 + kind.ccm_subtype * 10 + kind.nack_subtype;
        text += (i > 0 ? ", " : "") + (words.count(all) ? words.at(all) : std::to_string(all));
        text += *parameter != '\0' ? std::string("<") + parameter + ">" : "";
    }
    return text;
}

// The preconditions, and one entry behind them that a reader of lines may have begun.
inline std::string preconditions(const media_description *section)
{
    std::string text;
    for (int i = 0; i < SDP_MAX_PRECONDITIONS && section->pcd_present == 1; ++i) {
        uint32_t kind = 0;
        const char *value = i <= section->pcd_count ? get_media_precond_attr(section, &kind, i) : "";
        text += shown("precondition", kind, value);
    }
    return text;
}

inline std::string message_session(const media_description *section)
{
    sdp_accept_attr plain, wrapped;
    sdp_path_attr path;
    sdp_max_size_attr size;
    dak_sdp_get_message_accept_attrs(&plain, section);
    dak_sdp_get_message_accept_wrapped_attrs(&wrapped, section);
    dak_sdp_get_message_path_attrs(&path, section);
    dak_sdp_get_message_max_size_attrs(&size, section);
    const auto types = [](const char *name, const sdp_accept_attr &of) {
        return shown(name, of.present, of.kind, of.count, of.types[0], of.types[1], of.types[2], of.types[3],
                     of.types[4]);
    };
    return types("types", plain) + types("wrapped", wrapped) +
           shown("path", path.present, path.scheme, path.user, path.host, path.host_is_ipv6, path.port,
                 path.session_id, path.transport) +
           shown("size", size.present, size.max_size);
}

inline std::string file_transfer(const media_description *section)
{
    sdp_file_disposition disposition;
    sdp_file_date date;
    sdp_file_range range;
    dak_sdp_get_message_file_disposition_attrs(&disposition, section);
    dak_sdp_get_message_file_date_attrs(&date, section);
    dak_sdp_get_message_file_range_attrs(&range, section);
    std::string text = shown("id", dak_sdp_get_message_file_transfer_id_attrs(section)) +
                       shown("disposition", disposition.present, disposition.disposition) +
                       shown("date", date.creation, date.modification, date.read) +
                       shown("icon", dak_sdp_get_message_file_icon_attrs(section)) +
                       shown("range", range.start, range.stop) +
                       shown("files", dak_sdp_get_message_num_of_file_selectors_attrs(section));
    for (int i = 0; i < SDP_MAX_FILE_SELECTORS; ++i) {
        sdp_file_selector file;
        dak_sdp_get_message_file_selector_attrs(&file, section, i);
        text += shown("file", file.name, file.type, file.size, file.hash_alg, file.hash_len, file.hash,
                      int(file.empty));
    }
    return text;
}

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
        const char *glue = " ";
        for (const char *name : section->codecs[i].info.param_name)
            if (const char *value = get_media_value(section, i, name))
                out << std::exchange(glue, ";") << name << '=' << value;
        out << (dak_sdp_get_media_rtcp_fb_valid_flag_by_index(section, i) == 1 ? " feedback " : "")
            << feedback(section, i) << '\n';
    }
    out << shown("feedback", feedback(section, -1)) << preconditions(section) << message_session(section)
        << file_transfer(section);
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
