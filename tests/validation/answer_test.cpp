#include "validation_test.h"

#include "oa/validate_answer.h"

using namespace validation;

namespace {

using AnswerValidation = PlatformTest;

#define LINE "dak_app_oa_validate_ans_mline: Invalid "
#define LINE_0 "dak_app_oa_validate_answer: Invalid mline 0\n"
const char rejected[] = "dak_app_oa_validate_answer: All mlines                                rejected \n";
const char null_line[] = "dak_app_oa_validate_ans_mline: Null params \n";
const char unknown[] =
    "dak_app_oa_find_matching_plds: Unknown mime                           in offer msg  \n"
    "dak_app_oa_validate_ans_mline:No ans fmt matched " LINE_0;
const char not_found[] = "validate_answer:group 0not found in offer \n";

verdict answered(exchange &e)
{
    return judge({&e.earlier, &e.later},
                 [&] { return dak_app_oa_validate_answer(e.later.get(), e.earlier.get()); });
}

void leave_events(exchange &e)
{
    e.later.format(0) = e.later.format(1), e.later[0].num_formats = 1, e.later.format(0).codec_id = 105;
}

void require(exchange &e, uint32_t count, const char *offered)
{
    e.earlier[0].precond_present = e.later[0].precond_present = 2;
    e.earlier[0].num_preconds = 1, e.earlier[0].preconds[0] = preconditions(offered)[0];
    e.later[0].num_preconds = count, e.later[0].preconds[0] = preconditions("d432")[0];
}

void reject_both(exchange &e) { e.later[0].port = e.later[1].port = e.later->num_groups = 0; }

void give_feedback(exchange &e, uint8_t mark)
{
    e.later[0].rtcp_fb_present = e.later.format(0).rtcp_fb_present = mark;
}

void resize(exchange &e, std::size_t count) { e.earlier.resize(count), e.later.resize(count); }

TEST_F(AnswerValidation, FirstFailedCheckDecides)
{
    const std::vector<row<exchange>> rows = {
        {"no origin", EDIT(s.later->origin_present = 0), 4, "dak_app_oa_validate_answer: Invalid origin \n"},
        {"address", EDIT(s.later->connection_present = 1, s.later->connection.addr_type = 2), 2,
         "~dak_app_oa_validate_answer: No c= line \n"},
        {"bandwidth of 0", EDIT(s.later->bandwidth.entries[0].value = 0), 3,
         "dak_app_oa_validate_answer: Invalid Bw -                zero bandwidth \n"},
        {"line gone", EDIT(s.later->num_mlines = 1), 5, "dak_app_oa_validate_answer: Invalid mlines 1 \n"},
        {"no time", EDIT(s.later->time_present = 0), 6, "dak_app_oa_validate_answer: Invalid time \n"},
        {"six groups", EDIT(s.later->num_groups = 6), 7, "validate_answer_params:Invalid no. of groups 6\n"},
        {"no formats", EDIT(s.later[0].num_formats = 0), 11,
         LINE "                            formants - No media formants \n" LINE_0},
        {"media type", EDIT(s.later[0].media_type = 5), 9,
         LINE "                          mediatype \n" LINE_0},
        {"own address", EDIT(s.later[0].connection_present = 1), 2,
         "~" LINE "IP for                           for mline 0 \n" LINE_0},
        {"no address", EDIT(s.later->connection_present = 0), 1,
         "dak_app_oa_validate_initial_offer:Invalid mline-0                   no c= line  \n" LINE_0},
        {"direction", EDIT(s.earlier->direction = 4), 10,
         LINE "                            direction  \n" LINE_0},
        {"events alone", leave_events, 11, "validate_ans_mline: only DTMF not supported \n" LINE_0},
        {"other codecs", EDIT(s.later.format(0).codec_id = s.later.format(1).codec_id = 99), 11,
         LINE "                          formats  \n" LINE_0},
        {"parameters", EDIT(s.later.format(1).params.tel_event.events_present = 0), 11,
         "supported DTMF events not mentionedvalidate_ans_mline:Invalid fmtp params fmt 101" LINE_0},
        {"events not offered", EDIT(s.earlier.format(1).params.tel_event.events[0].last = 11), 11,
         "Invalid DTMF eventsvalidate_ans_mline:Invalid fmtp params fmt 101" LINE_0},
        {"feedback for a format", EDIT(s.later.format(0).rtcp_fb_present = 1), 13,
         "validate_ans_mline: Invalid profile for rtcp-fb\n" LINE_0},
        {"ptime of 0", EDIT(s.later[0].ptime = 0), 12, LINE "                            ptime  \n" LINE_0},
        {"preconditions", EDIT(require(s, 1, "d413")), 14, LINE_0},
        {"feedback", EDIT(s.later[0].rtcp_fb_present = 1), 13,
         "validate_answer: Invalid profile for rtcp-fb 0\n"},
        {"mid", EDIT(s.later[0].mid[0] = 'V'), 8},
        {"no mid", EDIT(s.later[1].mid_present = 2), 8},
        {"fewer groups offered", EDIT(s.earlier->num_groups = 0), 7,
         "no.of grps dont match offer_grps 0 ans_grps 1\n"},
        {"group not offered", EDIT(s.earlier->groups[0].present = 2), 7, not_found},
    };
    expect_rows(rows, unchanged, answered, true);
}

TEST_F(AnswerValidation, Boundaries)
{
    const std::vector<row<exchange>> rows = {
        {"another time", EDIT(s.later->stop_time = 1), 0, "~: Invalid time \n"},
        {"endless address", EDIT(fill(s.later->connection.address, '1')), 2, "~ No c= line \n"},
        {"all rejected, no array offered", EDIT(reject_both(s), s.earlier->mlines = nullptr), 5, rejected},
        {"all rejected, grouped", EDIT(reject_both(s), s.later->num_groups = 1), 7, not_found},
        {"rejected line", EDIT(s.later[0].port = s.later[0].num_formats = s.later->num_groups = 0), 0},
        {"40 formats", EDIT(s.later[0].num_formats = 40), 11, "~Invalid mline 0\n"},
        {"no array offered", EDIT(s.earlier->mlines = nullptr), 15, "~ Null params \n"},
        {"unknown codec offered", EDIT(s.earlier.format(1).codec_id = 114), 11, unknown},
        {"feedback of 2", EDIT(give_feedback(s, 2)), 0},
        {"RTP/AVPF", EDIT(give_feedback(s, 1), s.later[0].transport = 1), 0},
        {"preconditions", EDIT(require(s, 1, "d421")), 0},
        {"11 preconditions", EDIT(require(s, 11, "d421")), 15, "~Invalid mline 0\n"},
        {"no array", EDIT(s.later->mlines = nullptr), 15, "~ Null params \n"},
        {"22 lines", EDIT(resize(s, 22)), 15,
         "~ Null params \ndak_app_oa_validate_answer: Invalid mline 21\n"},
    };
    expect_rows(rows, unchanged, answered);
    session s = grouped();
    const char null[] = "dak_app_oa_validate_answer: Null params \n";
    expect_verdict("null", call(dak_app_oa_validate_answer, s.get(), nullptr), 15, null);
    expect_verdict("null", call(dak_app_oa_validate_answer, nullptr, s.get()), 15, null);
}

TEST_F(AnswerValidation, LineByItself)
{
    exchange e = unchanged();
    resize(e, 22), e.later->connection_present = 0;
    e.later[20].port = e.later[21].port = 0, e.later[20].media_type = 1;
    const auto line = [&](uint32_t index) {
        return call(dak_app_oa_validate_ans_mline, e.later.get(), e.earlier.get(), index);
    };
    expect_verdict("last", line(20), 0); // nothing is asked of a rejected line
    for (const uint32_t index : {21U, 22U, 256U + 20U, ~0U})
        expect_verdict("beyond the last", line(index), 15, null_line);
    expect_verdict("null", call(dak_app_oa_validate_ans_mline, nullptr, e.earlier.get(), 0), 15, null_line);
    expect_verdict("null", call(dak_app_oa_validate_ans_mline, e.later.get(), nullptr, 0), 15, null_line);
}

TEST_F(AnswerValidation, Direction)
{
    const std::string allowed[] = {"01234", "24", "14", "01234", "4", "01234"}; // by the offer's direction
    for (uint32_t at = 0; at < 6 * 5 * 2; ++at) {
        const uint32_t offered = at / 10, answer = at / 2 % 5;
        const bool in_line = at % 2 != 0;
        exchange e = unchanged();
        const auto set = [&](session &s, uint32_t direction) {
            s[0].direction = in_line ? direction : 4,
            s->direction = in_line ? 3 : direction; // the line's goes first
            s[0].direction_present = in_line && direction != 0,
            s->direction_present = in_line != (direction != 0);
        };
        set(e.earlier, offered), set(e.later, answer), e.later->num_groups = e.later[1].port = 0;
        const bool is_allowed = allowed[offered].find(std::to_string(answer)) != std::string::npos;
        EXPECT_EQ(answered(e).code, is_allowed ? 0U : 10U) << offered << " answered by " << answer;
    }
}

TEST_F(AnswerValidation, Groups)
{
    const struct {
        const char *label;
        std::vector<sdp_group> groups; // presence, number of mids, semantics, lines
        uint32_t code;
        const char *reasons = "";
    } rows[] = {
        {"only in the third", {{1, 2, 1, {0, 3}}}, 0},
        {"lines of two groups", {{1, 2, 1, {1, 3}}}, 7, not_found},
        {"rejected line", {{1, 2, 1, {0, 2}}}, 7, not_found},
        {"other semantics, twice", {{1, 2, 0, {0, 0}}}, 7, not_found},
        {"twice", {{1, 2, 1, {0, 0}}}, 7, "repeated mids 0 in group 0 \n"},
        {"after a found one", {{1, 1, 1, {0}}, {1, 1, 1, {5}}}, 7, "~:group 1not found in offer \n"},
        {"not present", {{0, 1, 1, {5}}, {2, 1, 7, {5}}}, 0},
        {"255 lines",
         {{1, 255, 1, {0, 1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20}}},
         7,
         not_found},
    };
    for (const auto &row : rows) {
        exchange e = unchanged();
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
    const char invalid[] = "Invalid DTMF events";
    const struct {
        const sdp_tel_event_params &answer, &offer;
        uint32_t answer_direction, offer_direction, code;
        const char *reasons = "";
    } rows[] = {
        {digits, all, 3, 3, 0},
        {all, digits, 3, 3, 11, invalid},
        {all, digits, 2, 1, 11, invalid},
        {all, digits, 1, 2, 0},
        {all, digits, 2, 3, 0},
        {none, digits, 3, 3, 0, "No events supported in answer"},
        {unmarked, digits, 3, 3, 0, "No DTMF recvd in ans"},
        {unlisted, digits, 3, 3, 0},
        {all, unlisted, 3, 3, 0},
        {events({{1, 255, 0}}), events({{2, 0, 255}}), 3, 3, 11, invalid},
    };
    exchange e = unchanged();
    const auto *a = &e.later[0], *o = &e.earlier[0];
    for (const auto &row : rows) {
        e.later.format(19).params.tel_event = row.answer, e.earlier.format(1).params.tel_event = row.offer;
        const uint32_t to = row.answer_direction, from = row.offer_direction;
        for (const uint32_t codec : {105U, 112U})
            expect_verdict(std::to_string(&row - rows),
                           call(dak_app_oa_validate_ans_fmtp, a, o, codec, to, from, 19, 1), row.code,
                           row.reasons);
        expect_verdict("another codec", call(dak_app_oa_validate_ans_fmtp, a, o, 97, to, from, 19, 1), 0);
    }
    const struct {
        const sdp_media_line *answer, *offer;
        uint32_t answer_format, offer_format;
    } nulls[] = {{a, o, 20, 0}, {a, o, 0, 20}, {nullptr, o, 0, 0}, {a, nullptr, 0, 0}};
    for (const auto &[x, y, i, k] : nulls) {
        expect_verdict("null", call(dak_app_oa_validate_dtmf_ans_fmtp, x, y, 3, 3, i, k), 15,
                       "dak_app_oa_validate_dtmf_fmtp: Null params");
        expect_verdict("null", call(dak_app_oa_validate_ans_fmtp, x, y, 97, 3, 3, i, k), 15,
                       "dak_app_oa_validate_fmtp: Null params");
    }
}

} // namespace
