// The lower layer, called in any order with any arguments: the bytes are a programme. Each step names a
// function and makes its arguments by their types; pointers are valid or null, all else is hostile.
#include "daksdp.h"
#include "input.h"
#include "platform.h"

#include <span>
#include <tuple>
#include <type_traits>
#include <vector>

namespace {

// Two contexts, and sections that no document owns yet.
class machine {
public:
    explicit machine(input &in) : in_(in) {}
    ~machine()
    {
        for (media_description *section : loose_)
            clean_media_description(section);
        for (sdp_lib_context *context : contexts_)
            clean_sdp_lib(context);
    }
    machine(const machine &) = delete;

    void run();

    sdp_lib_context *&context() { return contexts_[in_.byte() & 1]; }
    sdp_info_container *document()
    {
        const sdp_lib_context *chosen = context();
        if (chosen == nullptr)
            return nullptr;
        return in_.flag() ? chosen->encoder_document : chosen->parser_document;
    }
    // A loose section, one of a document, or null.
    media_description *section()
    {
        const uint32_t choice = in_.byte();
        if (choice < 160 && !loose_.empty())
            return loose_[choice % loose_.size()];
        return get_media_description_by_index(contexts_[choice & 1], choice >> 1 & 1, choice >> 2 & 3);
    }
    // A terminated text in a block of its own, or null.
    const char *text()
    {
        const bool is_null = in_.byte() % 32 == 31;
        texts_.push_back(std::make_unique<exact_line>(is_null ? "" : in_.c_text()));
        return is_null ? nullptr : texts_.back()->c_str();
    }
    void change(void *record, std::size_t size)
    {
        for (uint32_t left = in_.below(5); left > 0; --left) {
            const uint32_t at = in_.below(static_cast<uint32_t>(size));
            const uint32_t number = in_.number();
            const std::string text = in_.flag() ? in_.text() : std::string(1, static_cast<char>(number));
            std::memcpy(static_cast<char *>(record) + at, text.data(), std::min(text.size(), size - at));
        }
    }
    void *record(std::size_t size)
    {
        records_.push_back(std::make_unique<char[]>(size));
        change(records_.back().get(), size);
        return records_.back().get();
    }

    template <class T> T make()
    {
        using pointed = std::remove_cv_t<std::remove_pointer_t<T>>;
        constexpr std::size_t size =
            sizeof(std::conditional_t<std::is_void_v<pointed>, sdp_codec_params, pointed>);
        if constexpr (std::is_integral_v<T>)
            return static_cast<T>(in_.number());
        else if constexpr (std::is_same_v<T, const char *>)
            return text();
        else if constexpr (std::is_same_v<T, char *>)
            return static_cast<char *>(record(256));
        else if constexpr (std::is_same_v<pointed, sdp_lib_context>)
            return context();
        else if constexpr (std::is_same_v<pointed, sdp_info_container>)
            return document();
        else if constexpr (std::is_same_v<pointed, media_description>)
            return section();
        else if constexpr (std::is_pointer_v<T>)
            return static_cast<T>(in_.byte() % 32 != 31 ? record(size) : nullptr);
        else {
            T value = {};
            change(&value, sizeof value);
            return value;
        }
    }
    template <class Result, class... Arguments> void call_with(Result (*function)(Arguments...))
    {
        std::apply(function, std::tuple<Arguments...>{make<Arguments>()...});
    }
    template <auto function> void call() { call_with(function); }
    // Functions that read a line, whose terminator they may look at.
    template <auto function> void read()
    {
        media_description *into = section();
        const exact_line line(in_.c_text() + '\r');
        function(into, line.begin(), line.line_end() - 1);
    }
    // Functions that take a counted text.
    template <auto function> void count()
    {
        media_description *into = section();
        const exact_text words(in_.text());
        function(into, words.begin(), static_cast<uint32_t>(words.view().size()));
    }

    void start()
    {
        sdp_lib_context *&place = context();
        clean_sdp_lib(place);
        place = in_.byte() % 8 != 7 ? init_sdp_lib() : nullptr;
    }
    void parse()
    {
        sdp_lib_context *chosen = context();
        const exact_text block(in_.text());
        sdp_parse(chosen, block.begin(), static_cast<uint32_t>(block.view().size()));
    }
    void swap()
    {
        if (sdp_lib_context *chosen = context(); chosen != nullptr)
            std::swap(chosen->encoder_document, chosen->parser_document);
    }
    void create()
    {
        uint32_t numbers[SDP_MAX_PAYLOADS];
        for (uint32_t &number : numbers)
            number = in_.byte();
        const int count = static_cast<int>(in_.below(SDP_MAX_PAYLOADS + 3)) - 1;
        const char *type = text(), *profile = text();
        const uint32_t port = in_.byte();
        media_description *made = in_.flag()
                                      ? init_empty_media_description()
                                      : init_media_description(type, port, port % 4, profile, numbers, count);
        if (made != nullptr)
            loose_.push_back(made);
    }
    void hang()
    {
        if (!loose_.empty() && add_media_description_to_sdp_container(document(), loose_.back()))
            loose_.pop_back();
    }

private:
    input &in_;
    sdp_lib_context *contexts_[2] = {};
    std::vector<media_description *> loose_;
    std::vector<std::unique_ptr<exact_line>> texts_;
    std::vector<std::unique_ptr<char[]>> records_;
};

using step = void (machine::*)();
template <auto... functions> constexpr step calls[] = {&machine::call<functions>...};
template <auto... functions> constexpr step readers[] = {&machine::read<functions>...};

constexpr std::span<const step> all_calls = calls<
    clean_sdp_info_container, init_sdp_encoder, fill_sdp_buffer, get_sdp_text, dak_sdp_encode,
    dak_sdp_encode_session, dak_sdp_encode_media_descriptions, dak_sdp_encode_media_description_by_index,
    dak_sdp_encode_m_equal, dak_sdp_encode_media_codec, dak_sdp_encode_media_fields,
    dak_encode_media_attribute, encode_precondition_attr, dak_sdp_encode_rtcp_fb_attr,
    dak_sdp_encode_rtcp_fb_attr_at_pt, dak_sdp_encode_accept_attr, dak_sdp_encode_accept_wrapped_attr,
    dak_sdp_encode_path_attr, dak_sdp_encode_max_size_attr, dak_sdp_encode_file_transfer_id_attr,
    dak_sdp_encode_file_disposition_attr, dak_sdp_encode_file_date_attr, dak_sdp_encode_file_icon_attr,
    dak_sdp_encode_file_range_attr, dak_sdp_encode_file_selector_attr, set_session_value,
    set_session_value_by_sdp_container, get_session_value, get_particular_index_of_session_value,
    get_session_attribute_value, get_seesion_value_by_sdp_container,
    dak_sdp_get_number_of_session_attribute_values, dak_sdp_get_session_attribute_value_by_index,
    get_number_of_media_description, get_number_of_media_description_by_sdp_info_type,
    get_media_description_by_index, get_media_description_by_index_and_sdp_type, set_media_port,
    set_number_of_media_port, set_rtcp_port, get_media_port, get_number_of_media_port, get_rtcp_port,
    get_media_type, get_transport_profile, dak_sdp_get_media_format, add_media_rtcp_port_to_media_description,
    get_rtcp_ipaddress, set_payload_number, get_number_of_media_payload, add_media_codec_to_media_description,
    add_media_rtpmap_valid_to_media_description, get_media_codec_payload_number_by_index,
    get_media_codec_mime_type_by_index, get_media_codec_sample_rate_by_index,
    get_media_code_encoding_param_by_index, get_media_rtpmap_valid_flag_by_index,
    dak_sdp_get_media_rtcp_fb_valid_flag_by_index, set_media_value, get_media_value,
    dak_app_sdp_set_int_inmline, dak_app_sdp_set_string_inmline, dak_app_sdp_set_bool_inmline,
    set_media_description_attribute, get_media_description_attribute,
    dak_sdp_get_number_of_media_attribute_values, dak_sdp_get_media_attribute_value_by_index,
    dak_sdp_set_media_value, get_media_description_value_by_index, get_media_description_value,
    set_media_precond_attr, get_number_of_precond_attrs, get_media_precond_attr,
    dak_sdp_set_media_rtcp_fb_attr, dak_sdp_add_media_rtcp_fb_to_media_description,
    dak_sdp_get_number_of_m_rtcp_fb_attrs, dak_sdp_get_number_of_rtcp_fb_attrs,
    dak_sdp_get_media_m_rtcp_fb_type, dak_sdp_get_media_rtcp_fb_type, dak_sdp_set_media_accept_attr,
    dak_sdp_set_media_accept_wrapped_attr, dak_sdp_set_media_path_attr, dak_sdp_set_media_max_size_attr,
    dak_sdp_set_media_file_transfer_id_attr, dak_sdp_set_media_file_disposition_attr,
    dak_sdp_set_media_file_date_attr, dak_sdp_set_media_file_icon_attr, dak_sdp_set_media_file_range_attr,
    dak_sdp_set_media_num_of_file_selectors_attr, dak_sdp_set_media_file_selector_attr,
    dak_sdp_get_message_accept_attrs, dak_sdp_get_message_accept_wrapped_attrs,
    dak_sdp_get_message_path_attrs, dak_sdp_get_message_max_size_attrs,
    dak_sdp_get_message_file_disposition_attrs, dak_sdp_get_message_file_date_attrs,
    dak_sdp_get_message_file_range_attrs, dak_sdp_get_message_file_transfer_id_attrs,
    dak_sdp_get_message_file_icon_attrs, dak_sdp_get_message_num_of_file_selectors_attrs,
    dak_sdp_get_message_file_selector_attrs, dak_app_oa_parse_media_line, dak_app_oa_parse_media_connection,
    dak_app_oa_parse_media_bandwidth, dak_app_oa_parse_media_gen_attr, dak_app_oa_parse_formats,
    dak_app_oa_parse_message_attr, dak_app_oa_encode_media_bandwidth, dak_app_oa_encode_media_formats,
    dak_app_oa_encode_media_gen_attr, dak_app_oa_encode_media_message_attr, dak_app_oa_parse_pre_cond_str,
    dak_app_oa_encode_pre_cond_str, dak_app_oa_parse_rtcp_fb_subtype, dak_app_oa_get_amr_mode,
    dak_app_sdp_encode_amr_mode_map, dak_app_sdp_decode_evrc_mode, dak_app_sdp_encode_evrc_mode,
    dak_app_sdp_decode_conv_evrc1_rate, dak_app_sdp_encode_conv_evrc1_rate,
    dak_app_sdp_parse_h263_custom_param, dak_app_sdp_parse_h263_ref_pic_param,
    dak_app_sdp_encode_dtmf_tel_event_tag, find_string, find_tag, dak_stricmp, dak_app_oa_validate_ipv4_addr,
    dak_app_oa_validate_ipv6_addr, get_m4v_media_value, get_enc_m4v_media_value, get_h263_media_value,
    dak_app_sdp_encode_evrc1_fixed_rate, dak_app_sdp_decode_evrc1_fixed_rate>;

constexpr std::span<const step> all_readers =
    readers<parse_a_equal_fmtp_line, parse_a_equal_pcd_line, parse_sdp_attribute,
            parse_media_description_value, dak_sdp_parse_a_equal_accept_type_line,
            dak_sdp_parse_a_equal_accept_wrapped_type_line, dak_sdp_parse_a_equal_file_date_line,
            dak_sdp_parse_a_equal_file_disposition_line, dak_sdp_parse_a_equal_file_icon_line,
            dak_sdp_parse_a_equal_file_range_line, dak_sdp_parse_a_equal_file_selector_line,
            dak_sdp_parse_a_equal_file_transfer_id_line, dak_sdp_parse_a_equal_max_size_line,
            dak_sdp_parse_a_equal_path_line, dak_sdp_parse_a_equal_rtcp_fb_line>;

constexpr step others[] = {&machine::start,
                           &machine::parse,
                           &machine::swap,
                           &machine::create,
                           &machine::hang,
                           &machine::count<set_media_type>,
                           &machine::count<set_transport_profile>,
                           &machine::count<set_media_format>};

void machine::run()
{
    while (in_.left() > 0) {
        const std::span<const step> steps[] = {all_calls, all_readers, others};
        const std::span<const step> &kind = steps[in_.below(3)];
        (this->*kind[in_.below(static_cast<uint32_t>(kind.size()))])();
        texts_.clear();
        records_.clear();
        for (const sdp_lib_context *context : contexts_)
            FUZZ_EXPECT(context == nullptr ||
                        std::strlen(context->text_buffer->text) == context->text_buffer->length);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const platform::run run;
    input in(data, size);
    const uint32_t failing = in.byte();
    if (failing != 0)
        platform::fail_allocation(failing, in.flag());
    machine(in).run();
    return 0;
}
