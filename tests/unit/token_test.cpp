#include "util/token.h"

#include "support.h"

namespace {

class Token : public PlatformTest {};

TEST_F(Token, a_token_runs_to_its_delimiter_or_to_white_space)
{
    const std::tuple<const char *, int, const char *, std::string> rows[] = {
        {"a=rtpmap:97\tAMR", 9, nullptr, "97"},
        {" \tAMR/8000", 0, "/", "AMR"},
        {"80 ", 0, "/", {"80 \0", 4}},
        {"/8000", 0, "/", ""},
        {" \t", 0, nullptr, ""},
        {"97", 7, nullptr, ""}};
    for (const auto &[given, offset, delimiter, token] : rows) {
        const heap_c_text text(given);
        const char *first = text.begin(), *last = first;
        EXPECT_EQ(get_token(text.begin(), offset, text.end(), &first, &last, delimiter), !token.empty())
            << given;
        EXPECT_EQ(token.empty() ? "" : std::string(first, last), token) << given;
    }
}

TEST_F(Token, a_piece_splits_into_type_and_value)
{
    const struct {
        const char *label;
        std::string text; // its last character stands at the end of the range
        const char *first, *second;
        outcome seen; // type|value
        int next;
    } rows[] = {
        {"up to the second delimiter", "mode-set=0,2 ;crc=1\r", "=", ";", {2, "mode-set|0,2"}, 13},
        {"up to the line end", " crc = 1=2\t\r", "=", ";", {2, "crc|1=2"}, 12},
        {"up to white space", "ptime: 20 ms\r", ":", nullptr, {2, "ptime|20"}, 9},
        {"two words", "qos local\r", nullptr, nullptr, {2, "qos|local"}, 9},
        {"a bare type", "octet-align\r", "=", ";", {1, "octet-align|-"}, 12},
        {"a colon asks for no value", "x: \r", ":", "\r", {1, "x|-"}, 1},
        {"an equals sign asks for one", "mode-set= ;crc=1\r", "=", ";", {0, "mode-set|-"}, -1},
        {"no type", ":20\r", ":", nullptr, {0, "|-"}, -1},
        {"a word of 199", xs(199) + "\r", nullptr, nullptr, {1, xs(199) + "|-"}, 199},
        {"a word of 200", xs(200) + "\r", nullptr, nullptr, logged(0, "", "|-"), -1},
        {"a type of 198 that takes the end in", xs(198) + "\r", ":", nullptr, {1, xs(198) + "|-"}, 199},
        {"a type of 199 that takes the end in", xs(199) + "\r", ":", nullptr, logged(0, "", "|-"), -1},
        {"a value of 199", "a:" + xs(199) + "\r", ":", "\r", {2, "a|" + xs(199)}, 201},
        {"a value of 200", "a:" + xs(200) + "\r", ":", "\r", logged(0, "", "a|-"), -1},
    };
    for (const auto &row : rows) {
        const heap_text text(row.text);
        char type[200] = "", value[200] = "-";
        const char *next = text.begin() - 1;
        const auto split = [&](const char **where) {
            return get_type_and_value(text.begin(), text.end() - 1, type, value, where, row.first,
                                      row.second);
        };
        const auto parts = [&] { return type + std::string("|") + value; };
        EXPECT_EQ(outcome_of([&] { return split(&next); }, parts), row.seen) << row.label;
        EXPECT_EQ(next - text.begin(), row.next) << row.label;
        EXPECT_EQ(split(nullptr), row.seen.result) << row.label << ", nobody asks where it ended";
    }
    const char *text = "foo=bar";
    char type[200], value[200];
    EXPECT_EQ(get_type_and_value(text, text + 3, type, value, nullptr, "=", ";"), 0)
        << "nothing behind the equals sign";
    text = "foo\r=bar";
    EXPECT_EQ(get_type_and_value(text, text + 3, type, value, nullptr, "=", ";"), 1)
        << "the equals sign is the next line's";
}

TEST_F(Token, a_value_is_found_behind_its_name)
{
    const std::tuple<std::string, const char *, const char *, outcome> rows[] = {
        {"path:msrp://a:1/b", "path", ":", {1, "msrp://a:1/b"}},
        {"ptime:", "ptime", ":", {1, ""}},
        {"inactive", "inact", ":", {1, "-"}},
        {"a::b", "a", "::", {1, ":b"}},
        {"Ptime:20", "ptime", ":", {0, "-"}},
        {"maxptime:40", "ptime", ":", {0, "-"}},
        {"a:" + xs(255), "a", ":", {1, xs(255)}},
        {"a:" + xs(256), "a", ":", logged(0, "src str len exceeds dest str len 256\n", xs(255))},
    };
    for (const auto &[line, name, separator, seen] : rows) {
        char value[256] = "-";
        outcome found = call(find_type_return_value, line.c_str(), name, separator, +value);
        found.text = value;
        EXPECT_EQ(found, seen) << line;
    }
}

} // namespace
