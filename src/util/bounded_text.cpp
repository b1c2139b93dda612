#include "util/bounded_text.hpp"

#include "util/report.hpp"

namespace dak {

int copy_constant(char (&field)[200], text_range text)
{
    if (copy_text(field, text))
        return 1;
    DAK_LOG("Src str length %d exceeded dst str %lu \n", static_cast<int>(text.length() + 1),
            static_cast<unsigned long>(sizeof field));
    return fail();
}

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
