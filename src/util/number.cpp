#include "util/number.h"

#include "util/number.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr uint32_t int32_max = 0x7FFFFFFF;

// The value of a decimal or hexadecimal digit, or `base` for any other character.
uint32_t digit_value(char c, uint32_t base)
{
    if (is_digit(c))
        return static_cast<uint32_t>(c - '0');
    const unsigned char letter = to_upper(c);
    return base == 16 && letter >= 'A' && letter <= 'F' ? letter - 'A' + 10U : base;
}

// What a character that is no digit means to each mode: the end of the number, or a failure.
int end_of_number(char c, int mode)
{
    if (mode == DAK_ATOI_LENIENT)
        return c == '\n' || c == ' ' || c == '\r' || c == '.';
    return mode == DAK_ATOI_HEX ? fail() : 0;
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
    const uint32_t base = mode == DAK_ATOI_HEX ? 16 : 10;
    for (uint32_t i = 0; i < length; i++) {
        const uint32_t digit = digit_value(text[i], base);
        if (digit == base)
            return end_of_number(text[i], mode);
        if (*out > (int32_max - digit) / base)
            return fail();
        *out = *out * base + digit;
    }
    return 1;
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
        const uint32_t digit = digit_value(text[i], 10);
        if (digit == 10 || magnitude > (limit - digit) / 10)
            return 0;
        magnitude = magnitude * 10 + digit;
    }
    *out = static_cast<int64_t>(negative ? 0 - magnitude : magnitude);
    return 1;
}

int dak_i64toa(int64_t value, char *destination, uint32_t size)
{
    if (destination == nullptr || size == 0)
        return 0;
    memset(destination, 0, size);
    char digits[20]; // "-9223372036854775808"
    size_t start = sizeof digits;
    uint64_t magnitude = value < 0 ? 0 - static_cast<uint64_t>(value) : static_cast<uint64_t>(value);
    do {
        digits[--start] = static_cast<char>('0' + magnitude % 10);
        magnitude /= 10;
    } while (magnitude != 0);
    if (value < 0)
        digits[--start] = '-';
    const size_t length = sizeof digits - start;
    if (length >= size)
        return 0;
    memcpy(destination, digits + start, length);
    return 1;
}

int32_t dak::read_saturating(text_range text)
{
    while (!text.empty() && (is_white(*text.first) || *text.first == '\v' || *text.first == '\f'))
        text.first++;
    const bool negative = !text.empty() && *text.first == '-';
    if (negative || (!text.empty() && *text.first == '+'))
        text.first++;
    const int64_t limit = negative ? -static_cast<int64_t>(INT32_MIN) : INT32_MAX;
    int64_t magnitude = 0;
    for (; !text.empty() && is_digit(*text.first); text.first++)
        magnitude = magnitude < limit ? magnitude * 10 + (*text.first - '0') : magnitude;
    magnitude = magnitude < limit ? magnitude : limit;
    return static_cast<int32_t>(negative ? -magnitude : magnitude);
}
