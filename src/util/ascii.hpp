// Character classes and case folding of ASCII, independent of locale and of the sign of char.
#ifndef DAKSDP_UTIL_ASCII_HPP
#define DAKSDP_UTIL_ASCII_HPP

namespace dak {

constexpr bool is_blank(char c) { return c == ' ' || c == '\t'; }
constexpr bool is_line_term(char c) { return c == '\r' || c == '\n'; }
constexpr bool is_white(char c) { return is_blank(c) || is_line_term(c); }
constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

constexpr unsigned char to_upper(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 'a' && byte <= 'z' ? static_cast<unsigned char>(byte - 'a' + 'A') : byte;
}

// Sign of the byte comparison of two terminated texts, letters folded.
constexpr int compare_ignoring_case(const char *a, const char *b)
{
    while (*a != '\0' && to_upper(*a) == to_upper(*b)) {
        a++;
        b++;
    }
    return to_upper(*a) - to_upper(*b);
}

constexpr bool equal_ignoring_case(const char *a, const char *b) { return compare_ignoring_case(a, b) == 0; }

} // namespace dak

#endif
