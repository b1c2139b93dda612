#ifndef DAKSDP_TESTS_PORT_STANDIN_H
#define DAKSDP_TESTS_PORT_STANDIN_H

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

// The tests' own platform: it keeps what the library logged and reported, counts its memory and
// lets allocations fail on demand.
//
// Every thread has a platform of its own, with its own records, counts and failures. No lock is
// shared, so that the thread sanitizer sees the library's own ordering only. A block belongs to
// the count of the thread that took it and is to be freed there.
namespace standin {

struct log_line {
    std::string format;
    std::string text;
    int priority;
    bool tagged;

    bool operator==(const log_line &) const = default;
};

std::ostream &operator<<(std::ostream &out, const log_line &line);

// Forgets all records and pending failures, and counts live blocks from zero.
void reset();

const std::vector<log_line> &logs();
std::vector<std::string> texts();
std::size_t assert_count();

// Blocks taken and not yet freed; below zero when more was freed than taken.
long live_blocks();
// Allocations asked for, failed ones included.
std::size_t allocations();
// Allocations that were made to fail.
std::size_t failed_allocations();

// Numbers count from the next allocation, which is 1. A new call replaces the one before.
void fail_allocation(std::size_t number);
void fail_allocations_from(std::size_t number);
void allow_allocations();

// Whether dak_strtok leaves a null place or one at the text's NUL when it ran out. Both are right
// for a platform; reset() goes back to the NUL.
enum class exhausted_place { at_end, null };
void set_exhausted_place(exhausted_place place);

} // namespace standin

#endif
