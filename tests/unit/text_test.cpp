#include "util/text.h"

#include "support.h"
#include "util/ipv6.h"
#include "util/trim.h"

namespace {

class Text : public PlatformTest {};

TEST_F(Text, white_characters_are_trimmed_from_either_end)
{
    const std::tuple<std::string, std::string, std::string, std::string> rows[] = {
        {" \t\r\nqos local \r\n", "qos local \r\n", " \t\r\nqos local", "qos local"},
        {"  \t", "", "", ""},
        {"\v\xA0x\x85\f", "\v\xA0x\x85\f", "\v\xA0x\x85\f", "\v\xA0x\x85\f"},
        {" " + xs(199), xs(199), " " + xs(199), xs(199)},
    };
    for (const auto &[text, led, trailed, both] : rows) {
        const heap_c_text first(text), last(text), ends(text);
        EXPECT_EQ(dak_remove_leading_space(first.c_str()), int(led.size()));
        dak_remove_trailing_space(last.c_str());
        dak_remove_both_space(ends.c_str());
        EXPECT_TRUE(first.c_str() == led && last.c_str() == trailed && ends.c_str() == both) << text;
    }
    const heap_c_text over(" " + xs(200));
    EXPECT_EQ(call(dak_remove_leading_space, over.c_str()),
              logged(200, "src str len exceeds dest str len 200\n"));
    EXPECT_EQ(over.c_str(), xs(199));
}

TEST_F(Text, bounded_copies_tell_the_length_they_wanted)
{
    const struct {
        size_t (*copy)(char *, const char *, size_t);
        std::string_view before; // all the room there is
        size_t size, wanted;
        std::string_view after;
    } rows[] = {{dak_strlcpy, "????", 4, 3, {"abc\0", 4}},
                {dak_strlcpy, "???", 3, 3, {"ab\0", 3}},
                {dak_strlcpy, "?", 0, 3, "?"},
                {dak_strlcat, {"x\0???", 5}, 5, 4, {"xabc\0", 5}},
                {dak_strlcat, {"x\0??", 4}, 4, 4, {"xab\0", 4}},
                {dak_strlcat, "xyz", 2, 5, "xyz"}};
    for (const auto &[copy, before, size, wanted, after] : rows) {
        const heap_text room(before);
        EXPECT_EQ(copy(room.data(), "abc", size), wanted) << before;
        EXPECT_EQ(room.view(), after) << before;
    }
}

TEST_F(Text, comparison_ignores_the_case_of_ascii_letters_only)
{
    const std::tuple<const char *, const char *, int> rows[] = {
        {"a=", "A=", 0}, {"amr-wb", "AMR-WB", 0}, {"AMR", "AMR-WB", -1}, {"b", "A", 1},   {"[", "{", -1},
        {"@", "`", -1},  {"a", "_", -1},          {"\xC4", "\xE4", -1},  {"\xFF", "z", 1}};
    for (const auto &[a, b, sign] : rows) {
        const int order = dak_stricmp(a, b);
        EXPECT_EQ((order > 0) - (order < 0), sign) << a << " and " << b;
    }
    sweep_allocations([&] {
        const outcome seen = call(dak_stricmp, "a=", "A=");
        EXPECT_EQ(seen, standin::failed_allocations() > 0 ? logged(1, "") : outcome{0});
    });
}

TEST_F(Text, ipv6_addresses_become_16_bytes)
{
    uint8_t address[16];
    EXPECT_EQ(call(dak_sdp_convert_str_to_ipv6, "2001:db8::1", address), done);
    EXPECT_EQ(std::string(address, address + 16), std::string("\x20\1\x0D\xB8\0\0\0\0\0\0\0\0\0\0\0\1", 16));
    EXPECT_EQ(dak_sdp_convert_str_to_ipv6("192.0.2.1", address) + standin::logs().size(), 0U);
}

} // namespace
