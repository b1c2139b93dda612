#include "util/line_scan.h"

#include "support.h"

namespace {

class LineScan : public PlatformTest {};

TEST_F(LineScan, each_skip_stops_at_its_own_characters_or_at_the_end)
{
    const auto skips = {skip_whitespace, skip_to_whitespace, skip_whitespace_and_line_term,
                        skip_to_line_term};
    const std::pair<std::string_view, std::vector<long>> rows[] = {
        // where what is not blank, is white, is not white and ends a line comes first
        {" \t\r\nab", {2, 0, 4, 2}},
        {"ab c\r", {0, 2, 0, 4}},
        {" \t ", {3, 0, 3, 3}},
        {"", {0, 0, 0, 0}},
        {{"\0\v\f\x85\xA0", 5}, {0, 5, 0, 5}}};
    for (const auto &[given, stops] : rows) {
        const heap_text text(given);
        std::vector<long> found;
        for (const auto skip : skips)
            found.push_back(skip(text.begin(), text.end()) - text.begin());
        EXPECT_EQ(found, stops) << testing::PrintToString(given);
    }
    const char *text = " x \n";
    for (const auto skip : skips) {
        for (const char *alike : {"    ", "xxxx"})
            EXPECT_LE(skip(alike, alike + 2), alike + 2) << "no further than asked, whatever follows";
        EXPECT_EQ(skip(nullptr, text), nullptr);
        EXPECT_EQ(skip(text + 3, text), text + 3) << "a range that ends before it starts";
    }
}

TEST_F(LineScan, lines_end_at_any_terminator_and_blank_ones_are_skipped)
{
    const heap_text text("\n \tv=0\t \r\r \n  s=-\r\n\r\nt=");
    std::vector<std::string> found;
    const char *start = nullptr;
    for (const char *at = text.begin(); get_next_line(at, text.end(), &start, &at) == 1;)
        found.emplace_back(start, at);
    EXPECT_EQ(found, (std::vector<std::string>{"v=0\t ", "s=-", "t="}));
    const char *stop = start = "v=0";
    EXPECT_EQ(get_next_line(nullptr, start + 3, &start, &stop), 0);
    EXPECT_TRUE(start == nullptr && stop == nullptr);
}

// A caller's end is its line's terminator, and that one character takes part in the search.
TEST_F(LineScan, a_character_is_sought_up_to_and_at_the_end)
{
    const heap_text text("a:b;");
    for (const auto &[position, character, found] :
         {std::tuple(0, 'a', 0), {0, ';', 3}, {3, ';', 3}, {0, 'x', 4}, {3, 'x', 4}})
        EXPECT_EQ(skip_to_char(text.begin() + position, text.begin() + 3, character), text.begin() + found);
    EXPECT_EQ(call(skip_to_char, text.begin() + 3, text.begin() + 2, ';'), refused) << "behind the end";
}

} // namespace
