#include "validation_test.h"

#include "oa/validate_answer.h"

using namespace validation;

namespace {

using AnswerValidation = PlatformTest;

const char rejected[] = "dak_app_oa_validate_answer: All mlines                                rejected \n";
const char null_line[] = "dak_app_oa_validate_ans_mline: Null params \n";
const char no_formats[] = "dak_app_oa_validate_ans_mline: Invalid                           formats  \n"
                          "dak_app_oa_validate_answer: Invalid mline 0\n";
const char unknown_codec[] =
    "dak_app_oa_find_matching_plds: Unknown mime                           in offer msg  \n"
    "dak_app_oa_validate_ans_mline: Invalid                           formats  \n"
    "dak_app_oa_validate_answer: Invalid mline 0\n";

const char unknown_later[] =
    "dak_app_oa_find_matching_plds: Unknown mime                           in offer msg  \n"
    "dak_app_oa_validate_ans_mline:No ans fmt matched dak_app_oa_validate_answer: Invalid mline 0\n";

exchange accepted() { return {grouped(), grouped()}; }

verdict answered(exchange &e)
{
    return judge({&e.earlier, &e.later},
                 [&] { return dak_app_oa_validate_answer(e.later.get(), e.earlier.get()); });
}

void leave_events(exchange &e)
{
    e.later.format(0) = e.later.format(1);
    e.later[0].num_formats = 1;
    e.later.format(0).codec_id = 105;
}

void require(session &s, uint32_t count, sdp_precondition entry)
{
    s[0].precond_present = 2, s[0].num_preconds = count, s[0].preconds[0] = entry;
}

void require_e2e(exchange &e, uint32_t count)
{
    require(e.earlier, 1, desired(4, 1, 1)), require(e.later, count, desired(4, 1, 1));
}

void reject_both(exchange &e) { e.later[0].port = e.later[1].port = 0; }

void give_feedback(exchange &e, uint8_t mark)
{
    e.later[0].rtcp_fb_present = e.later.format(0).rtcp_fb_present = mark;
}

void resize(exchange &e, std::size_t count) { e.earlier.resize(count), e.later.resize(count); }

TEST_F(AnswerValidation, FirstFailedCheckDecides)
{
#define LINE "dak_app_oa_validate_ans_mline: Invalid "
#define LINE_0 "dak_app_oa_validate_answer: Invalid mline 0\n"
    expect_in_order<exchange>(
        {
            {"no origin", [](auto &e) { e.later->origin_present = 0; }, 4,
             "dak_app_oa_validate_answer: Invalid origin \n"},
            {"address", [](auto &e) { e.later->connection_present = 1, e.later->connection.addr_type = 2; },
             2,
             "dak_app_oa_validate_ipaddress: Unknown                             address type  \n"
             "dak_app_oa_validate_answer: No c= line \n"},
            {"bandwidth of 0", [](auto &e) { e.later->bandwidth.entries[0].value = 0; }, 3,
             "dak_app_oa_validate_answer: Invalid Bw -                zero bandwidth \n"},
            {"line gone", [](auto &e) { e.later->num_mlines = 1; }, 5,
             "dak_app_oa_validate_answer: Invalid mlines 1 \n"},
            {"no time", [](auto &e) { e.later->time_present = 0; }, 6,
             "dak_app_oa_validate_answer: Invalid time \n"},
            {"six groups", [](auto &e) { e.later->num_groups = 6; }, 7,
             "validate_answer_params:Invalid no. of groups 6\n"},
            {"no formats", [](auto &e) { e.later[0].num_formats = 0; }, 11,
             LINE "                            formants - No media formants \n" LINE_0},
            {"media type", [](auto &e) { e.later[0].media_type = 5; }, 9,
             LINE "                          mediatype \n" LINE_0},
            {"own address", [](auto &e) { e.later[0].connection_present = 1; }, 2,
             "dak_app_oa_validate_ipaddress: Unknown                             address type  \n" LINE
             "IP for                           for mline 0 \n" LINE_0},
            {"no address", [](auto &e) { e.later->connection_present = 0; }, 1,
             "dak_app_oa_validate_initial_offer:Invalid mline-0                   no c= line  \n" LINE_0},
            {"direction", [](auto &e) { e.earlier->direction = 4; }, 10,
             LINE "                            direction  \n" LINE_0},
            {"events alone", leave_events, 11, "validate_ans_mline: only DTMF not supported \n" LINE_0},
            {"other codecs", [](auto &e) { e.later.format(0).codec_id = e.later.format(1).codec_id = 99; },
             11, no_formats},
            {"parameters", [](auto &e) { e.later.format(1).params.tel_event.events_present = 0; }, 11,
             "supported DTMF events not mentionedvalidate_ans_mline:Invalid fmtp params fmt 101" LINE_0},
            {"events not offered",
             [](auto &e) {
                 e.earlier.format(1).params.tel_event = events({{2, 0, 11}});
             },
             11, "Invalid DTMF eventsvalidate_ans_mline:Invalid fmtp params fmt 101" LINE_0},
            {"feedback for a format", [](auto &e) { e.later.format(0).rtcp_fb_present = 1; }, 13,
             "validate_ans_mline: Invalid profile for rtcp-fb\n" LINE_0},
            {"ptime of 0", [](auto &e) { e.later[0].ptime = 0; }, 12,
             LINE "                            ptime  \n" LINE_0},
            {"preconditions", [](auto &e) { require_e2e(e, 1); }, 14, LINE_0},
            {"feedback", [](auto &e) { e.later[0].rtcp_fb_present = 1; }, 13,
             "validate_answer: Invalid profile for rtcp-fb 0\n"},
            {"mid", [](auto &e) { strcpy(e.later[0].mid, "speech"); }, 8},
            {"no mid", [](auto &e) { e.later[1].mid_present = 2; }, 8},
            {"fewer groups offered", [](auto &e) { e.earlier->num_groups = 0; }, 7,
             "no.of grps dont match offer_grps 0 ans_grps 1\n"},
            {"group not offered", [](auto &e) { e.earlier->groups[0].present = 2; }, 7,
             "validate_answer:group 0not found in offer \n"},
        },
        accepted, answered);
}

TEST_F(AnswerValidation, Boundaries)
{
    expect_each<exchange>(
        {
            {"as parsed", [](auto &) {}, 0},
            {"no origin offered", [](auto &e) { e.earlier->origin_present = 0; }, 4, "~ origin \n"},
            {"another version", [](auto &e) { e.later->origin_session_version = UINT64_C(1) << 62; }, 0},
            {"another time", [](auto &e) { e.later->stop_time = 1; }, 0, "~: Invalid time \n"},
            {"no time offered", [](auto &e) { e.earlier->time_present = e.later->time_present = 0; }, 0},
            {"endless address", [](auto &e) { fill(e.later->connection.address, '1'); }, 2,
             "~ No c= line \n"},
            {"all rejected", [](auto &e) { reject_both(e), e.later->num_groups = 0; }, 5, rejected},
            {"all rejected, grouped", reject_both, 7, "~group 0not found in offer \n"},
            {"no lines", [](auto &e) { resize(e, 0), e.later->num_groups = 0; }, 5, rejected},
            {"rejected line",
             [](auto &e) { e.later[0].port = e.later[0].num_formats = e.later->num_groups = 0; }, 0},
            {"mids without groups", [](auto &e) { e.later->num_groups = e.later[0].mid_present = 0; }, 0},
            {"mid not offered", [](auto &e) { e.earlier[0].mid_present = e.later[0].mid_present = 0; }, 0},
            {"endless mid", [](auto &e) { fill(e.earlier[0].mid, 'm'), fill(e.later[0].mid, 'm'); }, 0},
            {"40 formats", [](auto &e) { e.later[0].num_formats = 40; }, 11, "~Invalid mline 0\n"},
            {"40 formats offered", [](auto &e) { e.earlier[0].num_formats = 40; }, 0},
            {"unknown codec offered", [](auto &e) { e.earlier.format(0).codec_id = 114; }, 11, unknown_codec},
            {"unknown codec later", [](auto &e) { e.earlier.format(1).codec_id = 114; }, 11, unknown_later},
            {"unknown codec answered", [](auto &e) { e.later.format(1).codec_id = 114; }, 0},
            {"other mark", [](auto &e) { leave_events(e), e.later.format(0).has_rtpmap = 2; }, 0},
            {"feedback for the second match", [](auto &e) { e.later.format(1).rtcp_fb_present = 1; }, 0},
            {"feedback of 2", [](auto &e) { give_feedback(e, 2); }, 0},
            {"RTP/AVPF", [](auto &e) { give_feedback(e, 1), e.later[0].transport = 1; }, 0},
            {"preconditions",
             [](auto &e) { require(e.earlier, 1, desired(4, 2, 1)), require(e.later, 1, desired(4, 3, 2)); },
             0},
            {"preconditions unanswered", [](auto &e) { require(e.earlier, 1, desired(4, 1, 1)); }, 0},
            {"no preconditions", [](auto &e) { require_e2e(e, 0); }, 0},
            {"11 preconditions", [](auto &e) { require_e2e(e, 11); }, 15, "~Invalid mline 0\n"},
            {"no array", [](auto &e) { e.later->mlines = nullptr; }, 15, "~ Null params \n"},
            {"no array offered", [](auto &e) { e.earlier->mlines = nullptr; }, 15, "~"},
            {"no array, no need",
             [](auto &e) { reject_both(e), e.earlier->mlines = nullptr, e.later->num_groups = 0; }, 5,
             rejected},
            {"21 lines", [](auto &e) { resize(e, 21); }, 0},
            {"22 lines", [](auto &e) { resize(e, 22); }, 15,
             "~ Null params \ndak_app_oa_validate_answer: Invalid mline 21\n"},
            {"22nd rejected", [](auto &e) { resize(e, 22), e.later[21].port = 0; }, 0},
        },
        accepted, answered);
    session s = grouped();
    const char null[] = "dak_app_oa_validate_answer: Null params \n";
    expect_verdict("null", call(dak_app_oa_validate_answer, s.get(), nullptr), 15, null);
    expect_verdict("null", call(dak_app_oa_validate_answer, nullptr, s.get()), 15, null);
}

TEST_F(AnswerValidation, LineByItself)
{
    exchange e = accepted();
    resize(e, 22), e.later->connection_present = 0;
    e.later[20].port = e.later[21].port = 0, e.later[20].media_type = 1;
    const auto line = [&](uint32_t index) {
        return call(dak_app_oa_validate_ans_mline, e.later.get(), e.earlier.get(), index);
    };
    expect_verdict("last", line(20), 0, ""); // nothing is asked of a rejected line
    for (const uint32_t index : {21U, 22U, 256U + 20U, ~0U})
        expect_verdict("beyond the last", line(index), 15, null_line);
    expect_verdict("no address", line(19), 1, "~:Invalid mline-19                   no c= line  \n");
    e.later[20].num_formats = 0;
    expect_verdict("no formats", line(20), 11, "~No media formants \n");
    e.earlier.resize(20);
    expect_verdict("not offered", line(20), 15, null_line);
    expect_verdict("null", call(dak_app_oa_validate_ans_mline, nullptr, e.earlier.get(), 0), 15, null_line);
    expect_verdict("null", call(dak_app_oa_validate_ans_mline, e.later.get(), nullptr, 0), 15, null_line);
}

TEST_F(AnswerValidation, Direction)
{
    const std::string allowed[] = {"01234", "24", "14", "01234", "4", "01234"}; // by the offer's direction
    for (uint32_t at = 0; at < 6 * 5 * 2; ++at) {
        const uint32_t offered = at / 10, answer = at / 2 % 5;
        const bool in_line = at % 2 != 0,
                   is_allowed = allowed[offered].find(std::to_string(answer)) != std::string::npos;
        exchange e = accepted();
        const auto set = [&](session &s, uint32_t direction) {
            (in_line ? s[0].direction : s->direction) = direction;
            s[0].direction_present = in_line && direction != 0;
            s->direction_present = !in_line && direction != 0;
        };
        set(e.earlier, offered), set(e.later, answer), e.later->num_groups = e.later[1].port = 0;
        EXPECT_EQ(answered(e).code, is_allowed ? 0U : 10U) << offered << " answered by " << answer;
    }
    exchange e = accepted(); // the line's own direction goes before the session's
    e.earlier->direction = 4, e.earlier[0].direction_present = 1, e.earlier[0].direction = 3;
    e.later->num_groups = e.later[1].port = 0;
    EXPECT_EQ(answered(e).code, 0U);
}

TEST_F(AnswerValidation, Groups)
{
    const char not_found[] = "validate_answer:group 0not found in offer \n";
    const struct {
        const char *label;
        std::vector<sdp_group> groups; // presence, number of mids, semantics, lines
        uint32_t code;
        const char *reasons = "";
    } rows[] = {
        {"part, turned", {{1, 2, 1, {1, 0}}}, 0},
        {"one", {{1, 1, 1, {0}}}, 0},
        {"only in the third", {{1, 2, 1, {0, 3}}}, 0},
        {"lines of two groups", {{1, 2, 1, {1, 3}}}, 7, not_found},
        {"in an absent group", {{1, 2, 1, {1, 5}}}, 7, not_found},
        {"behind the lines of a group", {{1, 1, 1, {4}}}, 7, not_found},
        {"rejected line", {{1, 2, 1, {0, 2}}}, 7, not_found},
        {"other semantics", {{1, 2, 0, {0, 1}}}, 7, not_found},
        {"twice", {{1, 2, 1, {0, 0}}}, 7, "repeated mids 0 in group 0 \n"},
        {"twice, other semantics", {{1, 2, 0, {0, 0}}}, 7, not_found},
        {"empty", {{1, 0, 1, {}}}, 7, not_found},
        {"empty after one that is found", {{1, 1, 1, {0}}, {1, 0, 0, {}}}, 0},
        {"not found after one that is",
         {{1, 1, 1, {0}}, {1, 1, 1, {5}}},
         7,
         "~:group 1not found in offer \n"},
        {"not present", {{0, 1, 1, {5}}, {2, 1, 7, {5}}}, 0},
        {"beyond the lines", {{1, 2, 1, {0, 9}}}, 7, not_found},
        {"255 lines",
         {{1, 255, 1, {0, 1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20}}},
         7,
         not_found},
    };
    for (const auto &row : rows) {
        exchange e = accepted();
        resize(e, 6), e.later[2].port = 0;
        const sdp_group offered[] = {
            {1, 3, 1, {0, 1, 2}}, {2, 2, 1, {1, 5}}, {1, 255, 1, {0, 3, 9}}, {0, 4, 4, {4}}};
        std::copy(std::begin(offered), std::end(offered), e.earlier->groups);
        std::copy(row.groups.begin(), row.groups.end(), e.later->groups);
        e.earlier->num_groups = 200, e.later->num_groups = static_cast<uint8_t>(row.groups.size());
        expect_verdict(row.label, answered(e), row.code, row.reasons);
    }
}

TEST_F(AnswerValidation, Events)
{
    const sdp_tel_event_params digits = events({{2, 0, 11}}), all = events({{2, 0, 15}}), none = events({});
    sdp_tel_event_params unmarked = all, unlisted = all;
    unmarked.tel_event_valid = 2, unlisted.events_present = 2;
    const struct {
        const char *label;
        const sdp_tel_event_params &answer, &offer;
        uint32_t answer_direction, offer_direction, code;
        const char *reasons = "";
    } rows[] = {
        {"fewer", digits, all, 3, 3, 0},
        {"more", all, digits, 3, 3, 11, "Invalid DTMF events"},
        {"more, sent", all, digits, 2, 1, 11, "Invalid DTMF events"},
        {"more, received", all, digits, 1, 2, 0},
        {"more, sent by half", all, digits, 2, 3, 0},
        {"more, held", all, digits, 4, 3, 0},
        {"more, no direction", all, digits, 0, 0, 0},
        {"none", none, digits, 3, 3, 0, "No events supported in answer"},
        {"none offered", digits, none, 3, 3, 11, "Invalid DTMF events"},
        {"unmarked", unmarked, digits, 3, 3, 0, "No DTMF recvd in ans"},
        {"unmarked offer", all, unmarked, 3, 3, 0},
        {"no list", unlisted, digits, 3, 3, 0},
        {"no list offered", all, unlisted, 3, 3, 0},
        {"the 256th of a long list", events({{1, 255, 0}}), events({{2, 0, 255}}), 3, 3, 11,
         "Invalid DTMF events"},
    };
    exchange e = accepted();
    const auto check = [&](auto function, auto... codec) {
        return judge({&e.later, &e.earlier}, [&] { return function(&e.later[0], &e.earlier[0], codec...); });
    };
    for (const auto &row : rows) {
        e.later.format(19).params.tel_event = row.answer, e.earlier.format(1).params.tel_event = row.offer;
        const uint32_t a = row.answer_direction, o = row.offer_direction;
        expect_verdict(row.label, check(dak_app_oa_validate_dtmf_ans_fmtp, a, o, 19U, 1U), row.code,
                       row.reasons);
        for (const uint32_t codec : {105U, 112U})
            expect_verdict(row.label, check(dak_app_oa_validate_ans_fmtp, codec, a, o, 19U, 1U), row.code,
                           row.reasons);
        expect_verdict("another codec", check(dak_app_oa_validate_ans_fmtp, 97U, a, o, 19U, 1U), 0, "");
    }
    const char null[] = "dak_app_oa_validate_dtmf_fmtp: Null params",
               other_null[] = "dak_app_oa_validate_fmtp: Null params";
    for (const auto &[answer, offer] : {std::pair(20U, 0U), {0U, 20U}, {~0U, 0U}}) {
        expect_verdict("no such format", check(dak_app_oa_validate_dtmf_ans_fmtp, 3U, 3U, answer, offer), 15,
                       null);
        expect_verdict("no such format", check(dak_app_oa_validate_ans_fmtp, 105U, 3U, 3U, answer, offer), 15,
                       other_null);
    }
    for (const auto &[a, o] : {std::pair(&e.later[0], (sdp_media_line *)nullptr), {nullptr, &e.later[0]}}) {
        expect_verdict("null", call(dak_app_oa_validate_dtmf_ans_fmtp, a, o, 3, 3, 0, 0), 15, null);
        expect_verdict("null", call(dak_app_oa_validate_ans_fmtp, a, o, 97, 3, 3, 0, 0), 15, other_null);
    }
}

} // namespace
