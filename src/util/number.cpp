#include "util/number.h"

#include "util/bounded_text.hpp"
#include "util/number.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr uint32_t int32_max = 0x7FFFFFFF;

// The value of a decimal or hexadecimal digit, or the base or more for any other character.
template <uint32_t Base> uint32_t digit_value(char c)
{
    const auto digit = static_cast<uint32_t>(static_cast<unsigned char>(c) - '0');
    if (digit < 10 || Base == 10)
        return digit;
    const unsigned char letter = to_upper(c);
    return letter >= 'A' && letter <= 'F' ? letter - 'A' + 10U : Base;
}

// What a character that is no digit means to each mode: the end of the number, or a failure.
int end_of_number(char c, int mode)
{
    if (mode == DAK_ATOI_LENIENT)
        return c == '\n' || c == ' ' || c == '\r' || c == '.';
    return mode == DAK_ATOI_HEX ? fail() : 0;
}

// Reads so many characters; `number` keeps what stood in front of a failure. They are counted, since a length
// may be beyond all memory while the number ends in front of it.
template <uint32_t Base> int read_digits(const char *text, uint32_t length, int mode, uint32_t &number)
{
    uint64_t value = 0;
    int result = 1;
    for (uint32_t i = 0; i < length; i++) {
        const uint32_t digit = digit_value<Base>(text[i]);
        if (digit >= Base) {
            result = end_of_number(text[i], mode);
            break;
        }
        if (value * Base + digit > int32_max) {
            result = fail();
            break;
        }
        value = value * Base + digit;
    }
    number = static_cast<uint32_t>(value);
    return result;
}

// Scans the digits behind a sign. Overflow stops at `limit`; true tells of it.
template <uint32_t Base> bool scan_digits(text_range text, uint64_t limit, scanned_number &number)
{
    bool overflows = false;
    for (; !text.empty(); text.first++) {
        const uint32_t digit = digit_value<Base>(*text.first);
        if (digit >= Base)
            break;
        number.is_read = true;
        // A further digit of either base can pass a limit only from here on.
        if (number.bits > UINT64_MAX / 32)
            overflows = overflows || number.bits > (limit - digit) / Base;
        number.bits = number.bits * Base + digit;
    }
    if (overflows)
        number.bits = limit;
    return overflows;
}

} // namespace

int dak_atoi(const char *text, int mode, uint32_t length, uint32_t *out)
{
    if (out == nullptr)
        return fail();
    *out = 0;
    if (length == 0)
        return 1;
    if (text == nullptr)
        return fail();
    return mode == DAK_ATOI_HEX ? read_digits<16>(text, length, mode, *out)
                                : read_digits<10>(text, length, mode, *out);
}

int dak_atoi64(const char *text, uint32_t length, int64_t *out)
{
    if (out == nullptr)
        return fail();
    *out = 0;
    if (length == 0)
        return 1;
    if (text == nullptr)
        return fail();
    const bool negative = *text == '-';
    const uint64_t limit = static_cast<uint64_t>(INT64_MAX) + (negative ? 1 : 0);
    uint64_t magnitude = 0;
    for (uint32_t i = negative ? 1 : 0; i < length && !is_white(text[i]); i++) {
        const uint32_t digit = digit_value<10>(text[i]);
        if (digit >= 10 || magnitude > UINT64_MAX / 10)
            return 0;
        magnitude = magnitude * 10 + digit;
        if (magnitude > limit || magnitude < digit)
            return 0;
    }
    *out = static_cast<int64_t>(negative ? 0 - magnitude : magnitude);
    return 1;
}

int dak_i64toa(int64_t value, char *destination, uint32_t size)
{
    if (destination == nullptr || size == 0)
        return 0;
    text_writer text(destination, size);
    const size_t kept = text.add_signed(value).text().length();
    memset(destination + kept, 0, size - kept);
    return text.fits();
}

int32_t dak::read_saturating(text_range text)
{
    const auto value = static_cast<int64_t>(scan_number(text, any_width, 10, true).bits);
    if (value > INT32_MAX)
        return INT32_MAX;
    return value < INT32_MIN ? INT32_MIN : static_cast<int32_t>(value);
}

scanned_number dak::scan_number(text_range text, size_t width, uint32_t base, bool is_signed)
{
    uint32_t value = 0;
    if (base == 10 && width >= text.length() && read_short(text, value))
        return {true, value};
    while (!text.empty() && (is_white(*text.first) || *text.first == '\v' || *text.first == '\f'))
        text.first++;
    if (width < text.length())
        text.last = text.first + width;
    const bool negative = !text.empty() && *text.first == '-';
    if (negative || (!text.empty() && *text.first == '+'))
        text.first++;
    const uint64_t limit = !is_signed ? UINT64_MAX : static_cast<uint64_t>(INT64_MAX) + (negative ? 1 : 0);
    scanned_number number;
    const bool overflows =
        base == 16 ? scan_digits<16>(text, limit, number) : scan_digits<10>(text, limit, number);
    if (negative && (is_signed || !overflows))
        number.bits = 0 - number.bits;
    return number;
}
