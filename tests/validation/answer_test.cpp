#include "validation.h"

using namespace oa_tests;

namespace {

class AnswerValidation : public PlatformTest {};

const std::string file = "validation/data/answer.txt";

TEST_F(AnswerValidation, answers)
{
    for_each_case(file, "answer",
                  [](const test_case &each) { expect_compared(each, dak_app_oa_validate_answer); });
}

TEST_F(AnswerValidation, single_lines)
{
    for_each_case(file, "line", [](const test_case &each) {
        expect_compared(each, [&](auto *answer, auto *offer) {
            return dak_app_oa_validate_ans_mline(answer, offer, each.number("index"));
        });
    });
}

TEST_F(AnswerValidation, directions)
{
    for_each_case(file, "directions", [](const test_case &each) {
        for (int at = 0; at < 5 * 2; ++at) {
            const std::string answered = std::to_string(at / 2);
            // The line's direction goes in front of the session's.
            const auto direction = [&](const std::string &given) {
                const std::string flag = given == "0" ? "[0]=" : "=", own = "m0.dir" + flag + given;
                return at % 2 == 0 ? own + (given == "0" ? " dir[0]=3" : " dir=3")
                                   : "m0.dir[0]=4 dir" + flag + given;
            };
            body answer(each["later"] + " " + direction(answered), each.lines("sdp"));
            body offer(direction(each["offered"]), each.lines("sdp"));
            const bool is_allowed = each["allowed"].find(answered) != std::string::npos;
            EXPECT_EQ(dak_app_oa_validate_answer(&answer.session, &offer.session), is_allowed ? 0U : 10U)
                << answered;
        }
    });
}

TEST_F(AnswerValidation, events)
{
    for_each_case(file, "events", [](const test_case &each) {
        const body answer(each["later"], each.lines("sdp")), offer(each["earlier"], each.lines("sdp"));
        const auto compared = [&](uint32_t codec) {
            return judged({&answer, &offer}, [&] {
                return dak_app_oa_validate_ans_fmtp(&answer.lines[0], &offer.lines[0], codec,
                                                    each.number("to"), each.number("from"), 19, 1);
            });
        };
        each.expect(compared(105));
        each.expect(compared(112));
        EXPECT_EQ(compared(97), (outcome{0})) << "another codec";
    });
}

} // namespace
