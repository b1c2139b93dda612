// Text written into fixed space: nothing is ever cut without the caller being told.
#ifndef DAKSDP_UTIL_BOUNDED_TEXT_HPP
#define DAKSDP_UTIL_BOUNDED_TEXT_HPP

#include "util/text_range.hpp"

#include <stdint.h>

namespace dak {

// Copies as much as fits into `size` characters, terminates it, and tells whether all of it did.
inline bool copy_text(char *destination, size_t size, text_range source)
{
    const size_t kept = source.length() < size ? source.length() : size - 1;
    memmove(destination, source.first, kept); // a caller may hand a field's own text back
    destination[kept] = '\0';
    return kept == source.length();
}

template <size_t N> bool copy_text(char (&field)[N], text_range source)
{
    return copy_text(field, N, source);
}

// The decimal digits of a number, for appending.
class decimal {
public:
    explicit decimal(uint64_t number) : decimal(number, false) {}
    static decimal of_signed(int64_t number)
    {
        return number < 0 ? decimal(0 - static_cast<uint64_t>(number), true)
                          : decimal(static_cast<uint64_t>(number));
    }
    text_range text() const { return {digits_ + start_, sizeof digits_ - start_}; }

private:
    decimal(uint64_t magnitude, bool negative);

    size_t start_ = sizeof digits_;
    char digits_[20]; // "-9223372036854775808"
};

// Builds a terminated text of fewer than `Size` characters. A piece that does not fit is left out with all
// that follow it.
template <size_t Size> class built_text {
public:
    built_text() { text_[0] = '\0'; }

    built_text &add(text_range piece)
    {
        fits_ = fits_ && piece.length() < Size - length_;
        if (fits_) {
            memcpy(text_ + length_, piece.first, piece.length());
            length_ += piece.length();
            text_[length_] = '\0';
        }
        return *this;
    }
    built_text &add(char c)
    {
        fits_ = fits_ && Size - length_ > 1;
        if (fits_)
            append(text_ + length_++, c);
        return *this;
    }
    built_text &add_number(uint64_t number) { return add(decimal(number).text()); }
    built_text &add_signed(int64_t number) { return add(decimal::of_signed(number).text()); }

    // Takes the last character off, if there is one.
    void drop_last()
    {
        length_ -= length_ > 0;
        text_[length_] = '\0';
    }

    bool fits() const { return fits_; }
    size_t length() const { return length_; }
    const char *c_str() const { return text_; }
    text_range text() const { return {text_, length_}; }

private:
    static void append(char *end, char c)
    {
        end[0] = c;
        end[1] = '\0';
    }

    size_t length_ = 0;
    bool fits_ = true;
    char text_[Size];
};

// A field as a terminated text, whether the field is terminated or not.
template <size_t N> built_text<N + 1> terminated(const char (&field)[N])
{
    return built_text<N + 1>().add(field_text(field));
}

// One line, or one piece of it, on its way to the text buffer.
using line_builder = built_text<200>;

} // namespace dak

#endif
