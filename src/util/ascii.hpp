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

// Compares a fixed field, terminated or not, with a terminated text, letters folded.
template <decltype(sizeof 0) N> constexpr bool equal_ignoring_case(const char (&field)[N], const char *text)
{
    for (decltype(N) i = 0; i < N; i++) {
        if (to_upper(field[i]) != to_upper(text[i]))
            return false;
        if (field[i] == '\0')
            return true;
    }
    return text[N] == '\0';
}

} // namespace dak

#endif
