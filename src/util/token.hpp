// Splitting a line without copying its parts.
#ifndef DAKSDP_UTIL_TOKEN_HPP
#define DAKSDP_UTIL_TOKEN_HPP

#include "util/text_range.hpp"

namespace dak {

// Characters of a type or a value with its terminator.
inline constexpr size_t part_size = 200;

struct type_and_value {
    int parts = 0; // 2 for a type and a value, 1 for a bare type, 0 for a failure
    bool has_type = false;
    text_range type;
    text_range value;
    const char *next = nullptr; // where the last part ended
};

// What get_type_and_value() gives, as ranges of the line; both are trimmed and end in front of a NUL.
type_and_value split_type_and_value(const char *position, const char *end, const char *first_delimiter,
                                    const char *second_delimiter);

// Whether a terminated text begins with a name that has no NUL.
inline bool begins_with(const char *text, text_range name)
{
    while (!name.empty() && *text == *name.first) {
        text++;
        name.first++;
    }
    return name.empty();
}

} // namespace dak

#endif
