#include "util/number.h"

#include "support.h"
#include "table.h"

namespace {

class Number : public PlatformTest {};

TEST_F(Number, unsigned_numbers_are_read_from_counted_text)
{
    const std::map<std::string, int> modes = {
        {"lenient", DAK_ATOI_LENIENT}, {"hex", DAK_ATOI_HEX}, {"strict", 10}};
    table::for_each_row("numbers.txt", [&](const table::row &row) {
        const heap_text text(row.at("text"));
        uint32_t number = 77;
        EXPECT_EQ(call_then([&] { return std::to_string(number); }, dak_atoi, text.data(),
                            modes.at(row.at("mode")), uint32_t(text.size()), &number),
                  table::expected(row));
    });
}

TEST_F(Number, signed_64_bit_numbers_are_read_to_their_limits)
{
    table::for_each_row("numbers_64.txt", [](const table::row &row) {
        const heap_text text(row.at("text"));
        int64_t number = 77;
        EXPECT_EQ(call_then([&] { return std::to_string(number); }, dak_atoi64, text.data(),
                            uint32_t(text.size()), &number),
                  table::expected(row));
    });
}

TEST_F(Number, signed_64_bit_numbers_are_written_with_room_for_the_terminator)
{
    std::vector<int64_t> numbers = {-120, INT64_MAX, INT64_MIN};
    for (int64_t power = 1; power < INT64_MAX / 10; power *= 10)
        numbers.insert(numbers.end(), {power - 1, power});
    for (const int64_t number : numbers) {
        const std::string text = std::to_string(number);
        for (const std::size_t size : {std::size_t(25), text.size() + 1, text.size()}) {
            const heap_text out(std::string(size, '?'));
            const bool fits = size > text.size();
            EXPECT_EQ(dak_i64toa(number, out.data(), uint32_t(size)), fits) << number;
            EXPECT_EQ(out.view(), (fits ? text : "") + std::string(size - (fits ? text.size() : 0), '\0'));
        }
    }
    EXPECT_EQ(dak_i64toa(1, nullptr, 21) + dak_i64toa(1, heap_text("").data(), 0), 0);
}

} // namespace
