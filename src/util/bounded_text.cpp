#include "util/bounded_text.hpp"

namespace dak {

decimal::decimal(uint64_t magnitude, bool negative)
{
    for (; magnitude > UINT32_MAX; magnitude /= 10)
        digits_[--start_] = static_cast<char>('0' + magnitude % 10);
    // Most numbers fit into 32 bits, where division is an instruction on every target.
    auto rest = static_cast<uint32_t>(magnitude);
    do {
        digits_[--start_] = static_cast<char>('0' + rest % 10);
        rest /= 10;
    } while (rest != 0);
    if (negative)
        digits_[--start_] = '-';
}

} // namespace dak
