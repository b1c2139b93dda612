// Character classes and case folding of ASCII, independent of locale and of the sign of char.
#ifndef DAKSDP_UTIL_ASCII_HPP
#define DAKSDP_UTIL_ASCII_HPP

namespace dak {

// Most characters are letters and digits: one comparison tells them from all white space.
constexpr bool is_above_blank(char c) { return static_cast<unsigned char>(c) > ' '; }
constexpr bool is_line_term(char c) { return c == '\r' || c == '\n'; }
constexpr bool is_blank(char c) { return !is_above_blank(c) && (c == ' ' || c == '\t'); }
constexpr bool is_white(char c) { return !is_above_blank(c) && (c == ' ' || c == '\t' || is_line_term(c)); }
constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

constexpr unsigned char to_upper(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 'a' && byte <= 'z' ? static_cast<unsigned char>(byte - 'a' + 'A') : byte;
}

// A bit of its own for each small letter; other characters share one of them or have none.
constexpr unsigned letter_bit(char c) { return static_cast<unsigned char>(c) >= 'a' ? 1U << (c & 31) : 0; }

// Compares two texts of one length, letters folded.
constexpr bool equal_ignoring_case(const char *a, const char *b, decltype(sizeof 0) length)
{
    constexpr int case_bit = 'a' ^ 'A';
    if (length > 0 && ((a[0] ^ b[0]) & ~case_bit) != 0)
        return false;
    if (__builtin_memcmp(a, b, length) == 0)
        return true;
    for (decltype(length) i = 0; i < length; i++) {
        if (a[i] != b[i] && to_upper(a[i]) != to_upper(b[i]))
            return false;
    }
    return true;
}

} // namespace dak

#endif
