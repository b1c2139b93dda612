#ifndef DAKSDP_TESTS_VALIDATION_H
#define DAKSDP_TESTS_VALIDATION_H

#include "oa/body.h"

namespace oa_tests {

// Calls a validation, which may neither allocate nor touch the containers. The lines that only tell how many
// formats or events were found are left out of its log.
template <class Validate> outcome judged(std::initializer_list<const body *> bodies, Validate validate)
{
    const auto bytes = [&] {
        std::string all;
        for (const body *each : bodies)
            all += each->bytes();
        return all;
    };
    const std::string before = bytes();
    const std::size_t first = standin::logs().size(), allocations = standin::allocations();
    outcome verdict = seen(validate);
    EXPECT_TRUE(bytes() == before) << "a container has changed";
    EXPECT_EQ(standin::allocations(), allocations);
    verdict.log.clear();
    for (std::size_t i = first; i < standin::logs().size(); ++i) {
        const std::string &line = standin::logs()[i].text;
        if (!line.starts_with("Number of pylds") && line.find("num evts") == line.npos)
            verdict.log += (verdict.log.empty() ? "" : "|") + line;
    }
    return verdict;
}

// Compares two bodies of the same text that were changed.
template <class Compare> void expect_compared(const test_case &each, Compare compare)
{
    body later(each["later"], each.lines("sdp")), earlier(each["earlier"], each.lines("sdp"));
    each.expect(judged({&later, &earlier}, [&] { return compare(&later.session, &earlier.session); }));
}

} // namespace oa_tests

#endif
