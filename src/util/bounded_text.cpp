#include "util/bounded_text.hpp"

#include "util/report.hpp"

namespace dak {

int copy_constant(char (&field)[200], const char *source)
{
    const text_range text(source);
    if (copy_text(field, text))
        return 1;
    DAK_LOG("Src str length %d exceeded dst str %lu \n", static_cast<int>(text.length() + 1),
            static_cast<unsigned long>(sizeof field));
    return fail();
}

line_builder &line_builder::add(text_range piece)
{
    fits_ = fits_ && piece.length() < sizeof text_ - length_;
    if (fits_) {
        memcpy(text_ + length_, piece.first, piece.length());
        length_ += piece.length();
    }
    return *this;
}

line_builder &line_builder::add(char c) { return add(text_range(&c, size_t{1})); }

line_builder &line_builder::add_number(uint32_t number)
{
    char digits[10];
    size_t start = sizeof digits;
    do {
        digits[--start] = static_cast<char>('0' + number % 10);
        number /= 10;
    } while (number != 0);
    return add(text_range(digits + start, sizeof digits - start));
}

line_builder &line_builder::add_signed(int32_t number)
{
    if (number >= 0)
        return add_number(static_cast<uint32_t>(number));
    return add('-').add_number(0U - static_cast<uint32_t>(number));
}

} // namespace dak
