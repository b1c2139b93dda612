// Splitting a line without copying its parts.
#ifndef DAKSDP_UTIL_TOKEN_HPP
#define DAKSDP_UTIL_TOKEN_HPP

#include "util/scan.hpp"
#include "util/text_range.hpp"

#include <stddef.h>

namespace dak {

// Characters of a type or a value with its terminator.
inline constexpr size_t part_size = 200;

// It begins empty at a place of the text: for records that begin as a constant with pointers, some compilers
// keep a template that can be written to.
struct type_and_value {
    explicit type_and_value(const char *place) : type(place, place), value(place, place), next(place) {}

    int parts = 0; // 2 for a type and a value, 1 for a bare type, 0 for a failure
    bool has_type = false;
    text_range type;
    text_range value;
    const char *next; // where the last part ended
};

// What get_type_and_value() gives, as ranges of the line; both are trimmed and end in front of a NUL.
type_and_value split_type_and_value(const char *position, const char *end, const char *first_delimiter,
                                    const char *second_delimiter);

// Where a token ends: at its delimiter, at white space without one. A token whose delimiter is absent runs
// through `end`.
inline const char *end_of_token(const char *start, const char *end, const char *delimiter)
{
    if (delimiter == nullptr)
        return find_white(start, end);
    const void *found = memchr(start, *delimiter, static_cast<size_t>(end - start) + 1);
    return found != nullptr ? static_cast<const char *>(found) : end + 1;
}

// Takes the token that begins behind `position`; false at the end of the text and for an empty one.
inline bool take_token(const char *position, const char *end, const char *delimiter, text_range &token)
{
    const char *start = skip_blanks(position, end);
    if (start >= end)
        return false;
    token = {start, end_of_token(start, end, delimiter)};
    return !token.empty();
}

// get_token() for a piece of a line; nothing is left behind `end`.
inline bool take_token(const char *base, ptrdiff_t offset, const char *end, const char *delimiter,
                       text_range &token)
{
    return base != nullptr && end != nullptr && offset < end - base &&
           take_token(base + offset, end, delimiter, token);
}

// What find_type_return_value() does with a line of the type asked for.
int copy_value(const char *line, const char *separator, char *destination);

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
