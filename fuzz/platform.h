#ifndef DAKSDP_FUZZ_PLATFORM_H
#define DAKSDP_FUZZ_PLATFORM_H

#include <cstddef>
#include <cstdint>
#include <string>

// The platform under a fuzz target: it counts blocks, lets allocations fail and formats every log line, so
// that the address sanitizer sees each argument.
namespace platform {

// What the library logged since the last call.
std::string take_log();

// Allocations asked for so far.
std::size_t allocations();
// Numbers count from the next allocation, which is 1; with `and_on` all that follow fail as well.
void fail_allocation(std::size_t number, bool and_on);
void allow_allocations();

// One input: counts start at zero, and no block may be left at its end.
class run {
public:
    run();
    ~run();
    run(const run &) = delete;
};

// Ends the process; the fuzzer keeps the input.
[[noreturn]] void finding(const char *what, const char *file, int line);
// A finding that shows where the two part.
void expect_same(const std::string &first, const std::string &second, const char *file, int line);

// Makes a call, which takes `made` allocations if all goes well, with one of them failing.
template <class Call> void with_a_failure(uint32_t seed, std::size_t made, Call call)
{
    if (made == 0)
        return;
    fail_allocation(1 + seed % made, (seed >> 16) % 4 == 0);
    call();
    allow_allocations();
}

} // namespace platform

#define FUZZ_EXPECT(condition) \
    ((condition) ? static_cast<void>(0) : platform::finding(#condition, __FILE__, __LINE__))
#define FUZZ_EXPECT_SAME(first, second) platform::expect_same(first, second, __FILE__, __LINE__)

#endif
