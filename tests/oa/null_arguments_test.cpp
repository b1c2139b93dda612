#include "oa/body.h"

using namespace oa_tests;

namespace {

class NullArguments : public PlatformTest {
protected:
    // Calls a function with null in the place of each pointer in turn.
    template <class Result, class... Parameters>
    void call(const std::string &name, Result (*function)(Parameters...),
              std::type_identity_t<Parameters>... given)
    {
        const std::tuple<Parameters...> all = {given...};
        const auto call_without = [&]<std::size_t place>(std::integral_constant<std::size_t, place>) {
            if constexpr (std::is_pointer_v<std::tuple_element_t<place, std::tuple<Parameters...>>>) {
                std::tuple<Parameters...> arguments = all;
                std::get<place>(arguments) = nullptr;
                seen_[name].push_back(seen([&] {
                    if constexpr (std::is_void_v<Result>)
                        return std::apply(function, arguments), 0;
                    else if constexpr (std::is_pointer_v<Result>)
                        return std::apply(function, arguments) != nullptr;
                    else
                        return std::apply(function, arguments);
                }));
            }
        };
        [&]<std::size_t... places>(std::index_sequence<places...>)
        {
            (call_without(std::integral_constant<std::size_t, places>()), ...);
        }
        (std::index_sequence_for<Parameters...>());
    }

    std::map<std::string, std::vector<outcome>> seen_;
};

#define NAMED(function) std::pair(std::string(#function), &dak_app_##function)

TEST_F(NullArguments, are_refused)
{
    body offer("lines=1 m0.ports=1");
    sdp_container *container = &offer.session;
    sdp_media_line *line = offer.lines.data();
    sdp_group *group = container->groups;
    sdp_precondition *pcd = line->preconds;
    sdp_codec_params *block = &line->formats[0].params;
    const context_ptr owner(init_sdp_lib());
    sdp_lib_context *context = owner.get();
    const section_ptr section = new_section("RTP/AVP 97=AMR");
    char text[300] = "";
    sdp_payload_buffer buffer = {text, sizeof text};
    uint8_t byte = 0, current[4][6];
    uint16_t list[255];
    uint32_t word = 0, desired[4][6];

    for (const auto &[name, function] :
         {NAMED(oa_parse_version), NAMED(oa_parse_origin), NAMED(oa_parse_session), NAMED(oa_parse_sess_info),
          NAMED(oa_parse_connection), NAMED(oa_parse_bandwidth), NAMED(oa_parse_time),
          NAMED(oa_parse_gen_attr), NAMED(oa_parse_group_attr), NAMED(oa_parse_mlines),
          NAMED(oa_encode_mlines)})
        call(name, function, context, container);
    for (const auto &[name, function] :
         {NAMED(oa_encode_version), NAMED(oa_encode_origin), NAMED(oa_encode_session), NAMED(oa_encode_info),
          NAMED(oa_encode_bw), NAMED(oa_encode_connection), NAMED(oa_encode_time), NAMED(oa_encode_gen_attr),
          NAMED(oa_encode_message_attr)})
        call(name, function, context, container);
    for (const auto &[name, function] :
         {NAMED(oa_parse_media_line), NAMED(oa_parse_media_connection), NAMED(oa_parse_media_bandwidth),
          NAMED(oa_parse_media_gen_attr), NAMED(oa_parse_formats), NAMED(oa_parse_message_attr),
          NAMED(oa_encode_media_formats)})
        call(name, function, section, line);
    for (const auto &[name, function] :
         {NAMED(oa_encode_media_gen_attr), NAMED(oa_encode_media_message_attr)})
        call(name, function, section, line);
    for (const auto &[name, function] : {NAMED(oa_validate_modified_sdp), NAMED(oa_validate_answer)})
        call(name, function, container, container);
    for (const auto &[name, function] :
         {NAMED(oa_validate_evrcb_fmtp), NAMED(oa_validate_evrcb0_fmtp), NAMED(oa_validate_evrcwb_fmtp),
          NAMED(oa_validate_evrcwb0_fmtp), NAMED(oa_validate_evrcwb1_fmtp), NAMED(oa_validate_dtmf_fmtp)}) {
        call(name, function, 3, 0, line);
        seen_[name].push_back(seen([&, f = function] { return f(3, 20, line); }));
    }
    for (const sdp_mime_entry &entry : mime_table) {
        if (entry.encode == nullptr)
            continue;
        call(entry.mime_name + std::string(" encode"), entry.encode, section, 0, block);
        call(entry.mime_name + std::string(" decode"), entry.decode, section, 0, block);
    }
#define CALL(function, ...) call(#function, dak_app_##function, __VA_ARGS__)
    CALL(oa_parse_sdp, container, &buffer);
    CALL(oa_parse_address, text, &line->connection);
    CALL(oa_parse_pre_cond_str, text, pcd);
    CALL(oa_parse_rtcp_fb_subtype, text, line->rtcp_fb);
    CALL(oa_generate_sdp, container, &buffer);
    CALL(oa_encode_media_bandwidth, section, &line->bandwidth);
    CALL(oa_encode_common_media_line, line);
    CALL(oa_encode_pre_cond_str, text, pcd);
    CALL(oa_add_address_value, text, 16, &line->connection);
    CALL(oa_cleanup_sdp_container, container);
    sdp_container *copy = nullptr;
    CALL(oa_duplicate_sdp_container, container, &copy);
    CALL(oa_print_sdp_container, container);
    CALL(oa_print_precondition_attr, pcd);
    CALL(oa_print_dtx_attr, &block->evrc0.dtx);
    CALL(oa_print_h263_2429_params, &block->h263_1998.params);
    CALL(oa_check_preconds, container);
    CALL(oa_check_mline_preconds, line);
    CALL(oa_fill_pcd_list, 0, pcd, current, desired);
    CALL(sdp_find_medentry_by_mime, text);
    CALL(sdp_encode_amr_mode_map, text, 1);
    CALL(sdp_encode_evrc_mode, text, 1);
    CALL(sdp_decode_evrc_mode, text, &byte, &byte);
    CALL(sdp_encode_conv_evrc1_rate, 1, text);
    CALL(sdp_decode_conv_evrc1_rate, text, &word);
    sdp_fixedrate_part rate = {};
    CALL(sdp_decode_evrc1_fixed_rate, section, 0, &rate);
    CALL(sdp_decode_dtx, section, 0, &block->evrc0.dtx);
    CALL(oa_get_amr_mode, text, &byte, &word);
    CALL(oa_get_dtmf_tel_event, text, block->tel_event.events);
    CALL(sdp_encode_h263plus_params, section, 0, &block->h263_1998.params);
    CALL(sdp_decode_h263plus_params, section, 0, &block->h263_1998.params);
    CALL(sdp_parse_h263_custom_param, text, &block->h263_1998.params);
    CALL(sdp_parse_h263_ref_pic_param, text, &block->h263_1998.params);
    call(
        "sdp_encode_dtmf_tel_event_tag",
        +[](const sdp_tel_event_params *events, char *out) {
            return dak_app_sdp_encode_dtmf_tel_event_tag(events, out, nullptr);
        },
        &block->tel_event, text);
    CALL(oa_validate_initial_offer, container);
    CALL(oa_validate_offer_params, container);
    CALL(oa_validate_ipaddress, &line->connection);
    CALL(oa_validate_ipv4_addr, text);
    CALL(oa_validate_ipv6_addr, text);
    CALL(oa_get_chl_direction, line, container);
    CALL(oa_validate_group_semantics, container, group);
    CALL(oa_validate_group_mids, container, group, 0);
    CALL(oa_validate_preconditions, line, 3);
    CALL(oa_validate_ans_pcd, 0, pcd, 0, pcd, 3);
    CALL(oa_validate_ans_mline, container, container, 0);
    CALL(oa_validate_ans_fmtp, line, line, 97, 3, 3, 0, 0);
    CALL(oa_validate_dtmf_ans_fmtp, line, line, 3, 3, 0, 0);
    CALL(oa_validate_fmtp, 97, 3, 0, line);
    CALL(oa_find_matching_plds, line, line, list, list, 0);
    CALL(oa_find_all_matching_plds, line, line, list, list, 0);
    CALL(oa_form_dtmf_evt_list, &block->tel_event, list, &byte);

    // A format that no line has is as good as none.
    for (const auto &[x, y] : {std::pair(20U, 0U), std::pair(0U, 20U)}) {
        seen_["oa_validate_ans_fmtp"].push_back(
            seen([&, x = x, y = y] { return dak_app_oa_validate_ans_fmtp(line, line, 97, 3, 3, x, y); }));
        seen_["oa_validate_dtmf_ans_fmtp"].push_back(
            seen([&, x = x, y = y] { return dak_app_oa_validate_dtmf_ans_fmtp(line, line, 3, 3, x, y); }));
    }
    seen_["oa_validate_fmtp"].push_back(seen([&] { return dak_app_oa_validate_fmtp(97, 3, 20, line); }));

    for_each_case("oa/data/null_arguments.txt", "null", [&](const test_case &each) {
        for (const outcome &one : seen_[each.label])
            each.expect(one);
        EXPECT_EQ(seen_.erase(each.label), 1U) << each.label;
    });
    EXPECT_TRUE(seen_.empty()) << seen_.begin()->first;
}

// A buffer without text, or without room, leaves the container alone.
TEST_F(NullArguments, buffers)
{
    body given("ver=7");
    const std::string before = given.bytes();
    char text[] = "v=0";
    for_each_case("oa/data/null_arguments.txt", "buffer", [&](const test_case &each) {
        sdp_payload_buffer buffer = {each.has("text") ? text : nullptr,
                                     static_cast<uint16_t>(each.number("capacity"))};
        each.expect(seen([&] {
            return each.argument == "to parse" ? dak_app_oa_parse_sdp(&given.session, &buffer)
                                               : dak_app_oa_generate_sdp(&given.session, &buffer);
        }));
        EXPECT_EQ(given.bytes(), before);
    });
}

} // namespace
