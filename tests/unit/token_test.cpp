#include "util/token.h"

#include "support.h"
#include "table.h"

namespace {

class Token : public PlatformTest {};

// An empty cell is no delimiter.
const char *delimiter(const std::string &cell) { return cell.empty() ? nullptr : cell.c_str(); }

TEST_F(Token, a_token_runs_to_its_delimiter_or_to_white_space)
{
    table::for_each_row("tokens.txt", [](const table::row &row) {
        const heap_c_text text(row.at("text"));
        const char *first = nullptr, *last = nullptr;
        outcome seen = call(get_token, text.begin(), std::stoi(row.at("from")), text.end(), &first, &last,
                            delimiter(row.at("delimiter")));
        if (seen.result == 1)
            seen.text.assign(first, last);
        EXPECT_EQ(seen, table::expected(row));
    });
}

TEST_F(Token, a_piece_splits_into_type_and_value)
{
    table::for_each_row("types_and_values.txt", [](const table::row &row) {
        const heap_text text(row.at("text"));
        char type[200] = "", value[200] = "-";
        const char *next = text.begin() - 1;
        const auto split = [&](const char **where) {
            return get_type_and_value(text.begin(), text.end() - 1, type, value, where,
                                      delimiter(row.at("first")), delimiter(row.at("second")));
        };
        EXPECT_EQ(outcome_of([&] { return split(&next); }, [&] { return type + std::string("|") + value; }),
                  table::expected(row));
        EXPECT_EQ(next - text.begin(), std::stoi(row.at("next")));
        EXPECT_EQ(split(nullptr), table::expected(row).result) << "nobody asks where it ended";
    });
}

TEST_F(Token, a_value_is_found_behind_its_name)
{
    table::for_each_row("values.txt", [](const table::row &row) {
        char value[256] = "-";
        outcome found = call(find_type_return_value, row.at("line").c_str(), row.at("name").c_str(),
                             row.at("separator").c_str(), +value);
        found.text = value;
        EXPECT_EQ(found, table::expected(row));
    });
    char value[256] = "-";
    EXPECT_EQ(find_type_return_value("\0x", "", "", value), 1);
    EXPECT_STREQ(value, "") << "nothing is read behind the line";
}

} // namespace
