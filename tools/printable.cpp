#include "printable.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace inspector {
namespace {

struct code_point {
    std::uint32_t value = 0;
    std::size_t length = 0; // bytes; 0 for what is no UTF-8
};

struct code_range {
    std::uint32_t first;
    std::uint32_t last;
};

// Characters that change how a terminal shows the text around them.
constexpr code_range steering[] = {
    {0x0000, 0x001f}, {0x007f, 0x009f}, {0x061c, 0x061c}, {0x200b, 0x200f}, {0x2028, 0x202e},
    {0x2060, 0x206f}, {0xd800, 0xdfff}, {0xfeff, 0xfeff}, {0xfff9, 0xfffb}, {0xe0000, 0xe007f},
};

constexpr std::uint8_t byte_at(std::string_view text, std::size_t place)
{
    return static_cast<std::uint8_t>(text[place]);
}

// Bytes of the sequence that a byte leads, 0 when it leads none.
constexpr std::size_t sequence_length(std::uint8_t lead)
{
    if (lead < 0x80)
        return 1;
    if (lead >= 0xc2 && lead < 0xe0)
        return 2;
    if (lead >= 0xe0 && lead < 0xf0)
        return 3;
    return lead >= 0xf0 && lead < 0xf5 ? 4 : 0;
}

constexpr std::uint32_t smallest_value(std::size_t length)
{
    constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    return smallest[length];
}

code_point first_code_point(std::string_view text)
{
    const std::size_t length = sequence_length(byte_at(text, 0));
    if (length == 0 || length > text.size())
        return {};
    std::uint32_t value = length == 1 ? byte_at(text, 0) : byte_at(text, 0) & (0x7fU >> length);
    for (std::size_t place = 1; place < length; place++) {
        if ((byte_at(text, place) & 0xc0U) != 0x80U)
            return {};
        value = value << 6U | (byte_at(text, place) & 0x3fU);
    }
    if (value < smallest_value(length) || value > 0x10ffff)
        return {};
    return {value, length};
}

bool steers(std::uint32_t value)
{
    return std::any_of(std::begin(steering), std::end(steering), [value](const code_range &range) {
        return value >= range.first && value <= range.last;
    });
}

std::string escaped(std::string_view bytes)
{
    constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<std::uint8_t>(c);
        text += {'\\', 'x', digits[byte >> 4U], digits[byte & 0xfU]};
    }
    return text;
}

std::string shown(std::string_view character, const code_point &point)
{
    if (point.length == 0 || steers(point.value))
        return escaped(character);
    return point.value == '\\' ? "\\\\" : std::string(character);
}

} // namespace

std::string printable(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        const code_point point = first_code_point(text);
        const std::size_t taken = std::max<std::size_t>(point.length, 1);
        result += shown(text.substr(0, taken), point);
        text.remove_prefix(taken);
    }
    return result;
}

} // namespace inspector
