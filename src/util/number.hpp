// Numbers inside attribute values.
#ifndef DAKSDP_UTIL_NUMBER_HPP
#define DAKSDP_UTIL_NUMBER_HPP

#include "util/number.h"
#include "util/text_range.hpp"

#include <stdint.h>

namespace dak {

// Reads one to nine digits with nothing around them, as nearly all numbers of a body are; false for all else.
inline bool read_short(text_range text, uint32_t &number)
{
    constexpr size_t safe_digits = 9;
    uint32_t value = 0;
    const char *place = text.first;
    for (; place != text.last && is_digit(*place); place++)
        value = value * 10 + static_cast<uint32_t>(*place - '0');
    if (place != text.last || text.empty() || text.length() > safe_digits)
        return false;
    number = value;
    return true;
}

// dak_atoi() of a range in its lenient mode.
inline int read_lenient(text_range text, uint32_t &number)
{
    return read_short(text, number) ||
           dak_atoi(text.first, DAK_ATOI_LENIENT, static_cast<uint32_t>(text.length()), &number);
}

// Reads white space, a sign and digits; what follows is ignored and no digits are 0. Values outside 32 bits
// stop at the nearest bound, on every host alike.
int32_t read_saturating(text_range text);

// A number as scanned: whether there was one, and its low 64 bits.
struct scanned_number {
    bool is_read = false;
    uint64_t bits = 0;
};

constexpr size_t any_width = SIZE_MAX;

// Reads white space, an optional sign and digits of base 10 or 16 within `width` characters behind the white
// space; what follows is ignored. Overflow stops at the bounds of 64 bits, so that the low bits kept from it
// are the same where `long` has 32 bits and where it has 64.
scanned_number scan_number(text_range text, size_t width, uint32_t base, bool is_signed);

// Scans a decimal number into a field, which keeps its low bits; a field is left alone when there is none.
template <typename Field> bool scan_signed(text_range text, Field &field)
{
    const scanned_number number = scan_number(text, any_width, 10, true);
    if (number.is_read)
        field = static_cast<Field>(number.bits);
    return number.is_read;
}

template <typename Field> bool scan_unsigned(text_range text, Field &field)
{
    const scanned_number number = scan_number(text, any_width, 10, false);
    if (number.is_read)
        field = static_cast<Field>(number.bits);
    return number.is_read;
}

} // namespace dak

#endif
