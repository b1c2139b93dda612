#include "util/bounded_text.hpp"

namespace dak {

decimal::decimal(uint64_t magnitude, bool negative)
{
    do {
        digits_[--start_] = static_cast<char>('0' + magnitude % 10);
        magnitude /= 10;
    } while (magnitude != 0);
    if (negative)
        digits_[--start_] = '-';
}

} // namespace dak
