#include "oa/body.h"

using namespace oa_tests;

namespace {

class NullArguments : public PlatformTest {
protected:
    // Calls functions with null in the place of each pointer in turn.
    template <class Result, class... Parameters>
    void call(std::initializer_list<std::pair<std::string, Result (*)(Parameters...)>> functions,
              std::type_identity_t<Parameters>... given)
    {
        const auto all = std::tuple<Parameters...>(given...);
        for (const auto &[name, function] : functions)
            call_without_each(name, function, all, std::index_sequence_for<Parameters...>());
    }
    // Calls a function with arguments that are as good as null.
    template <class Call> void also(const std::string &name, Call make) { seen_[name].push_back(seen(make)); }
    // Expects that all gave what the cases of this kind say.
    void expect_refused(const std::string &kind)
    {
        for_each_case("oa/data/null_arguments.txt", kind, [&](const test_case &each) {
            for (const outcome &one : seen_[each.label])
                each.expect(one);
            EXPECT_EQ(seen_.erase(each.label), 1U);
        });
        EXPECT_TRUE(seen_.empty()) << seen_.begin()->first;
    }

    body offer_{"lines=1 m0.ports=1"};
    sdp_container *container = &offer_.session;
    sdp_media_line *line = offer_.lines.data();
    sdp_precondition *pcd = line->preconds;
    sdp_codec_params *block = &line->formats[0].params;
    char text[300] = "";
    uint8_t byte = 0, current[4][6];
    uint16_t list[255];
    uint32_t word = 0, desired[4][6];

private:
    template <class Function, class All, std::size_t... places>
    void call_without_each(const std::string &name, Function function, const All &all,
                           std::index_sequence<places...>)
    {
        (call_without<places>(name, function, all), ...);
    }
    template <std::size_t place, class Function, class All>
    void call_without(const std::string &name, Function function, All arguments)
    {
        if constexpr (std::is_pointer_v<std::tuple_element_t<place, All>>) {
            std::get<place>(arguments) = nullptr;
            also(name, [&] {
                if constexpr (std::is_void_v<decltype(std::apply(function, arguments))>)
                    return std::apply(function, arguments), 0;
                else if constexpr (std::is_pointer_v<decltype(std::apply(function, arguments))>)
                    return std::apply(function, arguments) != nullptr;
                else
                    return std::apply(function, arguments);
            });
        }
    }

    std::map<std::string, std::vector<outcome>> seen_;
};

#define NAMED(function) std::pair(std::string(#function), &dak_app_##function)

TEST_F(NullArguments, of_parsing_and_generation)
{
    const context_ptr owner(init_sdp_lib());
    sdp_lib_context *context = owner.get();
    const section_ptr section = new_section("RTP/AVP 97=AMR");
    sdp_payload_buffer buffer = {text, sizeof text};
    call({NAMED(oa_parse_version), NAMED(oa_parse_origin), NAMED(oa_parse_session), NAMED(oa_parse_sess_info),
          NAMED(oa_parse_connection), NAMED(oa_parse_bandwidth), NAMED(oa_parse_time),
          NAMED(oa_parse_gen_attr), NAMED(oa_parse_group_attr), NAMED(oa_parse_mlines),
          NAMED(oa_encode_mlines)},
         context, container);
    call({NAMED(oa_encode_version), NAMED(oa_encode_origin), NAMED(oa_encode_session), NAMED(oa_encode_info),
          NAMED(oa_encode_bw), NAMED(oa_encode_connection), NAMED(oa_encode_time), NAMED(oa_encode_gen_attr),
          NAMED(oa_encode_message_attr)},
         context, container);
    call({NAMED(oa_parse_media_line), NAMED(oa_parse_media_connection), NAMED(oa_parse_media_bandwidth),
          NAMED(oa_parse_media_gen_attr), NAMED(oa_parse_formats), NAMED(oa_parse_message_attr),
          NAMED(oa_encode_media_formats)},
         section, line);
    call({NAMED(oa_encode_media_gen_attr), NAMED(oa_encode_media_message_attr)}, section, line);
    call({NAMED(oa_encode_media_bandwidth)}, section, &line->bandwidth);
    call({NAMED(oa_encode_common_media_line)}, line);
    call({NAMED(oa_parse_sdp)}, container, &buffer);
    call({NAMED(oa_generate_sdp)}, container, &buffer);
    call({NAMED(oa_parse_address)}, text, &line->connection);
    call({NAMED(oa_add_address_value)}, text, 16, &line->connection);
    call({NAMED(oa_parse_pre_cond_str)}, text, pcd);
    call({NAMED(oa_encode_pre_cond_str)}, text, pcd);
    call({NAMED(oa_parse_rtcp_fb_subtype)}, text, line->rtcp_fb);
    expect_refused("parsing");
}

TEST_F(NullArguments, of_a_container)
{
    sdp_container *copy = nullptr;
    call({NAMED(oa_cleanup_sdp_container)}, container);
    call({NAMED(oa_duplicate_sdp_container)}, container, &copy);
    call({NAMED(oa_print_sdp_container)}, container);
    call({NAMED(oa_print_precondition_attr)}, pcd);
    call({NAMED(oa_print_dtx_attr)}, &block->evrc0.dtx);
    call({NAMED(oa_print_h263_2429_params)}, &block->h263_1998.params);
    call({NAMED(oa_check_preconds)}, container);
    call({NAMED(oa_check_mline_preconds)}, line);
    call({NAMED(oa_fill_pcd_list)}, 0, pcd, current, desired);
    expect_refused("container");
}

TEST_F(NullArguments, of_codecs)
{
    const section_ptr section = new_section("RTP/AVP 97=AMR");
    sdp_fixedrate_part rate = {};
    for (const sdp_mime_entry &entry : mime_table) {
        const std::string name = entry.mime_name;
        if (entry.encode != nullptr)
            call({std::pair(name + " encode", entry.encode), std::pair(name + " decode", entry.decode)},
                 section, 0, block);
    }
    call({NAMED(sdp_find_medentry_by_mime)}, text);
    call({NAMED(sdp_encode_amr_mode_map)}, text, 1);
    call({NAMED(oa_get_amr_mode)}, text, &byte, &word);
    call({NAMED(sdp_encode_evrc_mode)}, text, 1);
    call({NAMED(sdp_decode_evrc_mode)}, text, &byte, &byte);
    call({NAMED(sdp_encode_conv_evrc1_rate)}, 1, text);
    call({NAMED(sdp_decode_conv_evrc1_rate)}, text, &word);
    call({NAMED(sdp_decode_evrc1_fixed_rate)}, section, 0, &rate);
    call({NAMED(sdp_decode_dtx)}, section, 0, &block->evrc0.dtx);
    call({NAMED(oa_get_dtmf_tel_event)}, text, block->tel_event.events);
    call({NAMED(sdp_encode_h263plus_params)}, section, 0, &block->h263_1998.params);
    call({NAMED(sdp_decode_h263plus_params)}, section, 0, &block->h263_1998.params);
    call({NAMED(sdp_parse_h263_custom_param), NAMED(sdp_parse_h263_ref_pic_param)}, text,
         &block->h263_1998.params);
    // Nothing but the count may be null.
    const auto write_events = [](const sdp_tel_event_params *events, char *out) {
        return dak_app_sdp_encode_dtmf_tel_event_tag(events, out, nullptr);
    };
    call({std::pair(std::string("sdp_encode_dtmf_tel_event_tag"), +write_events)}, &block->tel_event, text);
    expect_refused("codecs");
}

TEST_F(NullArguments, of_validation)
{
    const auto checks = {NAMED(oa_validate_evrcb_fmtp),   NAMED(oa_validate_evrcb0_fmtp),
                         NAMED(oa_validate_evrcwb_fmtp),  NAMED(oa_validate_evrcwb0_fmtp),
                         NAMED(oa_validate_evrcwb1_fmtp), NAMED(oa_validate_dtmf_fmtp)};
    call({NAMED(oa_validate_initial_offer), NAMED(oa_validate_offer_params)}, container);
    call({NAMED(oa_validate_modified_sdp), NAMED(oa_validate_answer)}, container, container);
    call({NAMED(oa_validate_ipaddress)}, &line->connection);
    call({NAMED(oa_validate_ipv4_addr), NAMED(oa_validate_ipv6_addr)}, text);
    call({NAMED(oa_get_chl_direction)}, line, container);
    call({NAMED(oa_validate_group_semantics)}, container, container->groups);
    call({NAMED(oa_validate_group_mids)}, container, container->groups, 0);
    call({NAMED(oa_validate_preconditions)}, line, 3);
    call({NAMED(oa_validate_ans_pcd)}, 0, pcd, 0, pcd, 3);
    call({NAMED(oa_validate_ans_mline)}, container, container, 0);
    call({NAMED(oa_find_matching_plds)}, line, line, list, list, 0);
    call({NAMED(oa_find_all_matching_plds)}, line, line, list, list, 0);
    call({NAMED(oa_form_dtmf_evt_list)}, &block->tel_event, list, &byte);
    call({NAMED(oa_validate_ans_fmtp)}, line, line, 97, 3, 3, 0, 0);
    call({NAMED(oa_validate_dtmf_ans_fmtp)}, line, line, 3, 3, 0, 0);
    call({NAMED(oa_validate_fmtp)}, 97, 3, 0, line);
    call(checks, 3, 0, line);
    // A format that no line has is as good as none.
    also("oa_validate_ans_fmtp", [&] { return dak_app_oa_validate_ans_fmtp(line, line, 97, 3, 3, 20, 0); });
    also("oa_validate_ans_fmtp", [&] { return dak_app_oa_validate_ans_fmtp(line, line, 97, 3, 3, 0, 20); });
    also("oa_validate_dtmf_ans_fmtp",
         [&] { return dak_app_oa_validate_dtmf_ans_fmtp(line, line, 3, 3, 20, 0); });
    also("oa_validate_dtmf_ans_fmtp",
         [&] { return dak_app_oa_validate_dtmf_ans_fmtp(line, line, 3, 3, 0, 20); });
    also("oa_validate_fmtp", [&] { return dak_app_oa_validate_fmtp(97, 3, 20, line); });
    for (const auto &[name, check] : checks)
        also(name, [&, check = check] { return check(3, 20, line); });
    expect_refused("validation");
}

// A buffer without text, or without room, leaves the container alone.
TEST_F(NullArguments, buffers)
{
    body given("ver=7");
    const std::string before = given.bytes();
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
