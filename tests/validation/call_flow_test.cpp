#include "validation.h"

using namespace oa_tests;

namespace {

class CallFlow : public PlatformTest {};

TEST_F(CallFlow, offers_and_answers)
{
    const std::string file = "validation/data/call_flow.txt";
    std::map<std::string, body> bodies;
    for_each_case(file, "body",
                  [&](const test_case &each) { bodies.try_emplace(each.label, "", each.lines("sdp")); });
    for_each_case(file, "asked", [&](const test_case &each) {
        const body &later = bodies.at(each["later"]);
        const auto ask = [&](auto function) {
            const body &earlier = bodies.at(each["earlier"]);
            each.expect(
                judged({&later, &earlier}, [&] { return function(&later.session, &earlier.session); }));
        };
        if (each["question"] == "offer")
            each.expect(judged({&later}, [&] { return dak_app_oa_validate_initial_offer(&later.session); }));
        else
            ask(each["question"] == "answer" ? dak_app_oa_validate_answer : dak_app_oa_validate_modified_sdp);
    });
}

} // namespace
