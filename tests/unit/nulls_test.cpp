#include <map>

#include "attr/file_transfer.h"
#include "attr/message_session.h"
#include "codec/codec_kind.h"
#include "codec/fmtp_encode.h"
#include "codec/media_value.h"
#include "support.h"
#include "table.h"
#include "util/ipv6.h"
#include "util/trim.h"

// Functions of the lower layer that are given null for each of their pointers in turn, and else something of use.
namespace {

class Nulls : public ContextTest {
protected:
    void SetUp() override
    {
        ContextTest::SetUp();
        section_ptr{std::exchange(section, new_section("RTP/AVPF 96=AMR 97=AMR").release())};
        read_line(dak_sdp_parse_a_equal_rtcp_fb_line, section, "a=rtcp-fb:* nack");
        read_line(dak_sdp_parse_a_equal_rtcp_fb_line, section, "a=rtcp-fb:97 nack");
        read_line(parse_a_equal_pcd_line, section, "a=curr:qos local none");
    }

    // A value for the next parameter: text and its end, room to write in, the number 1, an empty record.
    template <class T> T value(int &texts, int &rooms)
    {
        static const char line[] = "a=ptime:20";
        static const char *places[4];
        alignas(16) static char room[4][8192];
        if constexpr (std::is_convertible_v<sdp_lib_context *, T>)
            return context;
        else if constexpr (std::is_convertible_v<sdp_info_container *, T>)
            return context->parser_document;
        else if constexpr (std::is_convertible_v<media_description *, T>)
            return section;
        else if constexpr (std::is_same_v<T, const char *>)
            return texts++ == 0 ? line : line + std::strlen(line);
        else if constexpr (std::is_same_v<T, const char **>)
            return &(places[rooms++] = line);
        else if constexpr (std::is_pointer_v<T>)
            return reinterpret_cast<T>(std::memset(room[rooms++], 0, sizeof *room));
        else if constexpr (std::is_arithmetic_v<T>)
            return 1;
        else
            return {};
    }

    template <std::size_t Index, class Result, class... Parameters>
    void call_with_null(outcome &all, Result (*function)(Parameters...))
    {
        int texts = 0, rooms = 0;
        std::tuple<Parameters...> values{value<Parameters>(texts, rooms)...};
        if constexpr (std::is_pointer_v<std::tuple_element_t<Index, decltype(values)>>) {
            std::get<Index>(values) = nullptr;
            const outcome seen = std::apply([&](auto &...each) { return call(function, each...); }, values);
            all.text +=
                (all.text.empty() ? "" : " ") + std::to_string(seen.result) + (seen.reported ? "!" : "");
            all.log += (all.log.empty() || seen.log.empty() ? "" : "|") + seen.log;
        }
    }

    template <class Result, class... Parameters> outcome results(Result (*function)(Parameters...))
    {
        outcome all;
        [&]<std::size_t... Indices>(std::index_sequence<Indices...>)
        {
            (call_with_null<Indices>(all, function), ...);
        }
        (std::index_sequence_for<Parameters...>());
        return all;
    }

    template <class... Functions>
    std::map<std::string, outcome> results_by_name(const char *names, Functions... functions)
    {
        std::istringstream in(names);
        std::map<std::string, outcome> all;
        const auto add = [&](auto function) {
            std::string name;
            std::getline(in >> std::ws, name, ',');
            all[name] = results(function);
        };
        (add(functions), ...);
        return all;
    }
};

#define RESULTS_BY_NAME(...) results_by_name(#__VA_ARGS__, __VA_ARGS__)

TEST_F(Nulls, are_told_and_do_no_harm)
{
    std::map<std::string, outcome> seen = RESULTS_BY_NAME(
        dak_sdp_convert_str_to_ipv6, skip_whitespace, skip_to_whitespace, skip_whitespace_and_line_term,
        skip_to_line_term, get_next_line, skip_to_char, dak_atoi, dak_atoi64, dak_i64toa, create_string,
        dak_strlcpy, dak_strlcat, dak_stricmp, get_token, get_type_and_value, find_type_return_value,
        dak_remove_leading_space, dak_remove_trailing_space, dak_remove_both_space, set_media_value,
        get_media_value, set_attr_value_by_mime, get_attr_value_by_mime, dak_sdp_get_mime_val,
        parse_a_equal_fmtp_line, dak_sdp_encode_a_equal_fmtp_line, set_media_precond_attr,
        get_number_of_precond_attrs, get_media_precond_attr, encode_precondition_attr, parse_a_equal_pcd_line,
        dak_sdp_encode_rtcp_fb_attr, dak_sdp_encode_rtcp_fb_attr_at_pt, dak_sdp_parse_a_equal_rtcp_fb_line,
        dak_sdp_set_media_rtcp_fb_attr, dak_sdp_add_media_rtcp_fb_to_media_description,
        dak_sdp_get_number_of_m_rtcp_fb_attrs, dak_sdp_get_number_of_rtcp_fb_attrs,
        dak_sdp_get_media_m_rtcp_fb_type, dak_sdp_get_media_rtcp_fb_type, dak_sdp_encode_accept_attr,
        dak_sdp_encode_accept_wrapped_attr, dak_sdp_encode_path_attr, dak_sdp_encode_max_size_attr,
        dak_sdp_parse_a_equal_accept_type_line, dak_sdp_parse_a_equal_accept_wrapped_type_line,
        dak_sdp_parse_a_equal_path_line, dak_sdp_parse_a_equal_max_size_line, dak_sdp_set_media_accept_attr,
        dak_sdp_set_media_accept_wrapped_attr, dak_sdp_set_media_path_attr, dak_sdp_set_media_max_size_attr,
        dak_sdp_get_message_accept_attrs, dak_sdp_get_message_accept_wrapped_attrs,
        dak_sdp_get_message_path_attrs, dak_sdp_get_message_max_size_attrs,
        dak_sdp_encode_file_transfer_id_attr, dak_sdp_encode_file_disposition_attr,
        dak_sdp_encode_file_date_attr, dak_sdp_encode_file_icon_attr, dak_sdp_encode_file_range_attr,
        dak_sdp_encode_file_selector_attr, dak_sdp_parse_a_equal_file_transfer_id_line,
        dak_sdp_parse_a_equal_file_disposition_line, dak_sdp_parse_a_equal_file_date_line,
        dak_sdp_parse_a_equal_file_icon_line, dak_sdp_parse_a_equal_file_range_line,
        dak_sdp_parse_a_equal_file_selector_line, dak_sdp_set_media_file_transfer_id_attr,
        dak_sdp_set_media_file_disposition_attr, dak_sdp_set_media_file_date_attr,
        dak_sdp_set_media_file_icon_attr, dak_sdp_set_media_file_range_attr,
        dak_sdp_set_media_num_of_file_selectors_attr, dak_sdp_set_media_file_selector_attr,
        dak_sdp_get_message_file_disposition_attrs, dak_sdp_get_message_file_date_attrs,
        dak_sdp_get_message_file_range_attrs, dak_sdp_get_message_file_transfer_id_attrs,
        dak_sdp_get_message_file_icon_attrs, dak_sdp_get_message_num_of_file_selectors_attrs,
        dak_sdp_get_message_file_selector_attrs, set_media_description_attribute,
        get_media_description_attribute, dak_encode_media_attribute, parse_sdp_attribute,
        dak_sdp_get_number_of_attribute_values, dak_sdp_get_attribute_value_by_index,
        dak_sdp_get_number_of_session_attribute_values, dak_sdp_get_session_attribute_value_by_index,
        dak_sdp_get_number_of_media_attribute_values, dak_sdp_get_media_attribute_value_by_index,
        clean_sdp_lib, init_encoder_parser_sdp_info_container, init_sdp_session_info,
        clean_sdp_info_container, add_media_description, add_media_description_to_sdp_container,
        add_media_description_to_sdp_encoder, get_number_of_media_description_by_sdp_info_type,
        get_number_of_media_description, get_media_description_by_index_and_sdp_type,
        get_media_description_by_index, dak_sdp_encode, dak_sdp_encode_session,
        dak_sdp_encode_media_descriptions, dak_sdp_encode_media_description_by_index, dak_sdp_encode_m_equal,
        dak_sdp_encode_media_codec, find_tag, find_string, find_media_description, set_payload_number,
        get_number_of_media_payload, add_media_codec_to_media_description,
        add_media_rtpmap_valid_to_media_description, get_media_codec_payload_number_by_index,
        get_media_codec_mime_type_by_index, get_media_codec_sample_rate_by_index,
        get_media_code_encoding_param_by_index, get_media_rtpmap_valid_flag_by_index,
        dak_sdp_get_media_rtcp_fb_valid_flag_by_index, init_media_description, clean_media_description,
        set_media_port, set_number_of_media_port, get_media_port, get_number_of_media_port, set_media_type,
        set_transport_profile, get_media_type, get_transport_profile, set_media_format,
        dak_sdp_get_media_format, dak_sdp_set_media_value, parse_media_description_value,
        get_media_description_value_by_index, get_media_description_value, dak_sdp_encode_media_fields,
        sdp_parse, parse_session_info, parse_media_description, process_media_description,
        process_media_attribute, set_rtcp_port, get_rtcp_port, add_media_rtcp_port_to_media_description,
        get_rtcp_ipaddress, parse_a_euqal_rtcp, get_media_rtcp_ip_address, parse_a_euqal_rtpmap,
        get_media_payload_number, get_media_encoding_name_clock_rate_encoding_parameter, set_session_value,
        set_session_value_by_sdp_container, parse_session_value, get_session_value,
        get_particular_index_of_session_value, get_seesion_value_by_sdp_container, dak_sdp_traverse_list,
        get_session_attribute_value, init_sdp_encoder, fill_sdp_buffer, get_sdp_text, get_amr_media_value,
        set_amr_media_value, init_amr_media_info, dak_sdp_amr_media_info_encode, init_h263_common_params,
        set_telephone_event_value, dak_sdp_tel_evnt_media_info_encode);
    table::for_each_row("nulls.txt", [&](const table::row &row) {
        const outcome expected{1, row.at("results"), row.at("log")};
        EXPECT_EQ(seen[row.at("function")], expected) << row.at("function");
        seen.erase(row.at("function"));
    });
    for (const auto &[name, results] : seen)
        ADD_FAILURE() << name << " has no row: " << results;
}

TEST_F(Nulls, stand_at_a_place_that_is_given)
{
    const char *none = nullptr;
    rtcp_address_info address;
    EXPECT_EQ(call(parse_session_info, context, &none, ""), refused);
    EXPECT_EQ(call(process_media_attribute, &none, "", section), refused);
    EXPECT_EQ(call(get_media_rtcp_ip_address, &none, "", &address), refused);
}

} // namespace
