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
    memcpy(destination, source.first, kept);
    destination[kept] = '\0';
    return kept == source.length();
}

template <size_t N> bool copy_text(char (&field)[N], text_range source)
{
    return copy_text(field, N, source);
}

// Copies a name or tag of the library itself, with the report that stands for one that would not fit.
int copy_constant(char (&field)[200], const char *source);

// Builds one line of at most 199 characters.
class line_builder {
public:
    line_builder &add(text_range piece);
    line_builder &add(char c);
    line_builder &add_number(uint32_t number);
    line_builder &add_signed(int32_t number);

    bool fits() const { return fits_; }
    text_range text() const { return {text_, length_}; }

private:
    size_t length_ = 0;
    bool fits_ = true;
    char text_[200];
};

} // namespace dak

#endif
