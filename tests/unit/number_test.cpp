#include "util/number.h"

#include "support.h"

namespace {

class Number : public PlatformTest {};

TEST_F(Number, unsigned_numbers_are_read_from_counted_text)
{
    const auto overflow = [](const char *in_front) { return logged(0, "", in_front); };
    const struct {
        int mode;
        outcome seen;
        std::vector<std::string_view> texts;
    } rows[] = {
        {DAK_ATOI_LENIENT, {1, "8000"}, {"8000", "8000\r", "8000\nx", "8000 x", "8000.5", "0000000008000"}},
        {DAK_ATOI_LENIENT, {0, "80"}, {"80\t", "80a0", "80-", {"80\0", 3}}},
        {DAK_ATOI_LENIENT, {1, "0"}, {"", "."}},
        {DAK_ATOI_LENIENT, {0, "0"}, {"-1", "x"}},
        {DAK_ATOI_LENIENT, {1, "2147483647"}, {"2147483647"}},
        {DAK_ATOI_LENIENT, overflow("214748364"), {"2147483648"}},
        {DAK_ATOI_LENIENT, overflow("999999999"), {"9999999999"}},
        {DAK_ATOI_HEX, {1, "175"}, {"AF", "0af"}},
        {DAK_ATOI_HEX, {1, "2147483647"}, {"7fFFffFF"}},
        {DAK_ATOI_HEX, overflow("134217728"), {"80000000"}},
        {DAK_ATOI_HEX, logged(0, "", "1"), {"1g", "1 "}},
        {10, {1, "42"}, {"42"}},
        {10, {0, "42"}, {"42 ", "42."}},
        {10, overflow("214748364"), {"2147483648"}},
    };
    for (const auto &row : rows)
        for (const std::string_view given : row.texts) {
            const heap_text text(given);
            uint32_t number = 77;
            const auto read = [&] { return dak_atoi(text.data(), row.mode, uint32_t(text.size()), &number); };
            EXPECT_EQ(outcome_of(read, [&] { return std::to_string(number); }), row.seen)
                << row.mode << given;
        }
}

TEST_F(Number, signed_64_bit_numbers_are_read_to_their_limits)
{
    const struct {
        int result;
        int64_t number;
        std::vector<std::string_view> texts;
    } rows[] = {
        {1, -12, {"-12", "-12 34", "-12\r"}},
        {1, INT64_MAX, {"9223372036854775807"}},
        {1, INT64_MIN, {"-9223372036854775808"}},
        {0, 0, {"9223372036854775808", "-9223372036854775809", "40000000000000000000", "--1", "12d"}},
        {1, 0, {"", "-"}},
    };
    for (const auto &row : rows)
        for (const std::string_view given : row.texts) {
            const heap_text text(given);
            int64_t number = 77;
            EXPECT_EQ(dak_atoi64(text.data(), uint32_t(text.size()), &number), row.result) << given;
            EXPECT_EQ(number, row.number) << given;
        }
}

TEST_F(Number, signed_64_bit_numbers_are_written_with_room_for_the_terminator)
{
    const std::pair<int64_t, std::string> rows[] = {
        {-120, "-120"}, {0, "0"}, {INT64_MAX, "9223372036854775807"}, {INT64_MIN, "-9223372036854775808"}};
    for (const auto &[number, text] : rows)
        for (const std::size_t size : {std::size_t(25), text.size() + 1, text.size()}) {
            const heap_text out(std::string(size, '?'));
            const bool fits = size > text.size();
            EXPECT_EQ(dak_i64toa(number, out.data(), uint32_t(size)), fits) << number;
            EXPECT_EQ(out.view(),
                      fits ? text + std::string(size - text.size(), '\0') : std::string(size, '\0'));
        }
    EXPECT_EQ(dak_i64toa(1, nullptr, 21) + dak_i64toa(1, heap_text("").data(), 0), 0);
}

} // namespace
