// A piece of text that is not terminated: [first, last).
#ifndef DAKSDP_UTIL_TEXT_RANGE_HPP
#define DAKSDP_UTIL_TEXT_RANGE_HPP

#include "util/ascii.hpp"

#include <stddef.h>
#include <string.h>

namespace dak {

// One to three characters that end a token.
class delimiter_set {
public:
    template <size_t Size>
    constexpr delimiter_set(const char (&characters)[Size])
        : first_(characters[0]), second_(characters[Size > 2 ? 1 : 0]), third_(characters[Size > 3 ? 2 : 0])
    {
        static_assert(Size >= 2 && Size <= 4);
        for (const char c : characters)
            highest_ = c > highest_ ? c : highest_;
    }

    bool has(char c) const { return c == first_ || c == second_ || c == third_; }

    // Whether a character is a delimiter or NUL; most characters of a token are above all of them.
    bool ends(char c) const
    {
        return static_cast<unsigned char>(c) <= static_cast<unsigned char>(highest_) && (c == '\0' || has(c));
    }

private:
    char first_;
    char second_;
    char third_;
    char highest_ = '\0'; // all are ASCII
};

struct text_range {
    const char *first = "";
    const char *last = first;

    text_range() = default;
    text_range(const char *begin, const char *end) : first(begin), last(end < begin ? begin : end) {}
    text_range(const char *begin, size_t length) : first(begin), last(begin + length) {}
    text_range(const char *terminated) : first(terminated), last(terminated + strlen(terminated)) {}

    size_t length() const { return static_cast<size_t>(last - first); }
    bool empty() const { return first == last; }
    bool begins_with(text_range prefix) const
    {
        return prefix.length() <= length() && memcmp(first, prefix.first, prefix.length()) == 0;
    }
    bool equals(text_range other) const
    {
        return other.length() == length() && (empty() || *first == *other.first) && begins_with(other);
    }

    // The same with terminated texts. A literal is compared as a few words; other texts mostly differ within
    // their first characters.
    bool begins_with(const char *prefix) const
    {
        if (__builtin_constant_p(strlen(prefix)))
            return strlen(prefix) <= length() && memcmp(first, prefix, strlen(prefix)) == 0;
        const char *place = first;
        for (; *prefix != '\0'; prefix++, place++) {
            if (place == last || *place != *prefix)
                return false;
        }
        return true;
    }
    bool equals(const char *other) const
    {
        if (__builtin_constant_p(strlen(other)))
            return strlen(other) == length() && memcmp(first, other, strlen(other)) == 0;
        const char *place = first;
        for (; place != last && *other != '\0' && *place == *other; other++)
            place++;
        return place == last && *other == '\0';
    }

    // The first place of a character, or null.
    const char *find(char c) const
    {
        return empty() ? nullptr : static_cast<const char *>(memchr(first, c, length()));
    }

    // The text in front of the first `c`, which is taken off together with the `c`. Without a `c` all of it.
    text_range take_until(char c)
    {
        const char *found = find(c);
        const text_range taken(first, found != nullptr ? found : last);
        first = found != nullptr ? found + 1 : last;
        return taken;
    }

    void skip_blanks()
    {
        while (first != last && is_blank(*first))
            first++;
    }

    // The text in front of the first NUL.
    text_range terminated() const
    {
        const char *nul = find('\0');
        return {first, nul != nullptr ? nul : last};
    }

    text_range trimmed_end() const
    {
        text_range inner = *this;
        while (!inner.empty() && is_white(inner.last[-1]))
            inner.last--;
        return inner;
    }

    text_range trimmed() const
    {
        text_range inner = trimmed_end();
        while (!inner.empty() && is_white(*inner.first))
            inner.first++;
        return inner;
    }

    // The next token between delimiters, taken off together with the one behind it; runs of delimiters count
    // as one. A NUL ends the text. Empty at its end.
    text_range take_token(delimiter_set delimiters)
    {
        const char *start = first;
        while (start != last && delimiters.has(*start))
            start++;
        const char *stop = start;
        while (stop != last && !delimiters.ends(*stop))
            stop++;
        first = stop != last && *stop != '\0' ? stop + 1 : stop;
        return {start, stop};
    }

    // The next word between spaces and line terminators.
    text_range take_word() { return take_token(" \r\n"); }
};

// The text of a fixed field, terminated or not.
template <size_t N> text_range field_text(const char (&field)[N]) { return {field, strnlen(field, N)}; }

// The same for a field that holds a few characters, which are sooner counted than a library function is
// called.
template <size_t N> text_range short_field_text(const char (&field)[N])
{
    size_t length = 0;
    while (length < N && field[length] != '\0')
        length++;
    return {field, length};
}

// Whether a fixed field, terminated or not, holds a text that has no NUL, letters folded.
template <size_t N> bool equal_ignoring_case(const char (&field)[N], text_range text)
{
    const size_t length = text.length();
    return length <= N && equal_ignoring_case(field, text.first, length) &&
           (length == N || field[length] == '\0');
}

} // namespace dak

#endif
