// A short text of a constant table, held in its row: a pointer would have to be relocated in each process.
#ifndef DAKSDP_UTIL_FIXED_TEXT_HPP
#define DAKSDP_UTIL_FIXED_TEXT_HPP

#include "util/text_range.hpp"

#include <stdint.h>

namespace dak {

template <size_t Capacity> class fixed_text {
public:
    constexpr fixed_text() = default;
    template <size_t Size> constexpr fixed_text(const char (&chars)[Size]) : length_(Size - 1)
    {
        static_assert(Size <= Capacity);
        for (size_t i = 0; i < Size; i++)
            chars_[i] = chars[i];
    }

    constexpr size_t length() const { return length_; }
    constexpr const char *c_str() const { return chars_; }
    operator text_range() const { return {chars_, length()}; }

    constexpr bool equals(const fixed_text &other) const
    {
        size_t i = 0;
        while (i < Capacity && chars_[i] == other.chars_[i])
            i++;
        return i == Capacity;
    }

    // Copies all of the room, which takes two instructions where a copy of the length is a call.
    void copy_to(char *destination) const { memcpy(destination, chars_, Capacity); }

private:
    char chars_[Capacity] = {};
    uint8_t length_ = 0;
};

} // namespace dak

#endif
