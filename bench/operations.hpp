// The calls that are measured, in one table for time, instructions, memory and stack.
#ifndef DAKSDP_BENCH_OPERATIONS_HPP
#define DAKSDP_BENCH_OPERATIONS_HPP

#include <functional>
#include <memory>
#include <string>

#include "bodies.hpp"
#include "daksdp.h"

// One measured call, whose input was prepared before; it gives the library's code, 0 for success.
using call = std::function<uint32_t()>;

struct operation {
    const char *name;
    // Gives an empty call for a body on which the call cannot be made.
    call (*prepare)(const body &body);
};

extern const operation operations[6];

// Parses a text; the last owner releases what was read. Throws when the text does not parse.
std::shared_ptr<sdp_container> parsed(const std::string &text);

// The operation's call, or an empty one where the body does not let it be made.
call prepared(const operation &operation, const body &body);

// Parses an answer and its offer, as a client does before it validates the one against the other.
call parse_both(const body &body);

#endif
