#include "util/bounded_text.hpp"

namespace dak {

namespace {

// "00" to "99".
struct digit_pairs {
    char text[200];

    constexpr digit_pairs() : text()
    {
        for (size_t i = 0; i < 100; i++) {
            text[2 * i] = static_cast<char>('0' + i / 10);
            text[2 * i + 1] = static_cast<char>('0' + i % 10);
        }
    }
};
constexpr digit_pairs pairs;

constexpr uint32_t powers[] = {0,       10,        100,        1'000,       10'000,
                               100'000, 1'000'000, 10'000'000, 100'000'000, 1'000'000'000};

size_t count_digits(uint32_t number)
{
    // The bits, times the logarithm of 2: the count, or one less.
    const auto bits = static_cast<uint32_t>(32 - __builtin_clz(number | 1));
    const uint32_t least = bits * 1233 >> 12;
    return least + (number >= powers[least]);
}

char digit_of(uint32_t value) { return static_cast<char>('0' + value); }

void write_pair(char *place, uint32_t value) { memcpy(place, pairs.text + size_t{2} * value, 2); }

void write_digits(char *end, uint32_t number)
{
    for (; number >= 100; number /= 100)
        write_pair(end -= 2, number % 100);
    if (number >= 10)
        write_pair(end - 2, number);
    else
        end[-1] = digit_of(number);
}

// Few numbers need more than 32 bits, and not every target divides those at once.
[[gnu::noinline]] size_t append_long_decimal(char *room, size_t size, size_t length, uint64_t number)
{
    constexpr size_t count = 8;
    constexpr uint32_t power = 100'000'000;
    length = append_decimal(room, size, length, number / power) + count;
    if (length >= size)
        return length;
    auto rest = static_cast<uint32_t>(number % power);
    for (size_t i = 2; i <= count; i += 2, rest /= 100)
        write_pair(room + length - i, rest % 100);
    return length;
}

} // namespace

size_t append_decimal(char *room, size_t size, size_t length, uint64_t number)
{
    if (number > UINT32_MAX)
        return append_long_decimal(room, size, length, number);
    const auto value = static_cast<uint32_t>(number);
    length += count_digits(value);
    if (length < size)
        write_digits(room + length, value);
    return length;
}

} // namespace dak
