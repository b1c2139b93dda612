// The scanners of line_scan.h for positions that are known to lie in their range.
#ifndef DAKSDP_UTIL_SCAN_HPP
#define DAKSDP_UTIL_SCAN_HPP

#include "util/text_range.hpp"

#include <stdint.h>
#include <string.h>

namespace dak {

inline const char *skip_blanks(const char *position, const char *end)
{
    while (position < end && is_blank(*position))
        position++;
    return position;
}

inline const char *skip_white(const char *position, const char *end)
{
    while (position < end && is_white(*position))
        position++;
    return position;
}

inline const char *find_white(const char *position, const char *end)
{
    while (position < end && !is_white(*position))
        position++;
    return position;
}

// Which of the eight characters at a position are control characters below 16, among them those that end a
// line, by the highest bit of each. The lowest bit that is set is exact, those above it need not be.
inline uint64_t control_characters(const char *position)
{
    constexpr uint64_t each = 0x0101010101010101;
    uint64_t word = 0;
    memcpy(&word, position, sizeof word);
#if __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
    word = __builtin_bswap64(word);
#endif
    return (word - each * 16) & ~word & each << 7;
}

// Whether a text has a control character below 16: NUL, a tab, the end of a line.
inline bool has_control_characters(text_range text)
{
    for (; text.length() >= 8; text.first += 8) {
        if (control_characters(text.first) != 0)
            return true;
    }
    while (!text.empty() && static_cast<unsigned char>(*text.first) >= 16)
        text.first++;
    return !text.empty();
}

// Eight characters at a time: all of a body goes through here more than once.
inline const char *find_line_term(const char *position, const char *end)
{
    while (end - position >= 8) {
        const uint64_t controls = control_characters(position);
        position += controls != 0 ? __builtin_ctzll(controls) / 8 : 8;
        if (controls != 0 && is_line_term(*position))
            return position;
        position += controls != 0;
    }
    while (position < end && !is_line_term(*position))
        position++;
    return position;
}

// The next line that is not blank, without its terminator; empty at the end.
inline text_range next_line(const char *position, const char *end)
{
    const char *start = skip_white(position, end);
    return {start, find_line_term(start, end)};
}

} // namespace dak

#endif
