#include "sdp/attribute_lines.h"

#include "support.h"

namespace {

using AttributeLines = ContextTest;

TEST_F(AttributeLines, media_and_session_are_searched_alike)
{
    const std::pair<const char *, const char *> attributes[] = {{"ptime ", " 20 ms"}, {"sendrecv", nullptr},
                                                                {"send", "1"},        {"path", ""},
                                                                {"tool", "a:b"},      {"ptime", "30"}};
    char value[256] = "-";
    EXPECT_EQ(call(get_session_attribute_value, context, 0, "ptime", +value), outcome{0})
        << "no attributes at all";
    for (const auto &[name, text] : attributes) {
        EXPECT_EQ(set_media_description_attribute(section, name, text), 1);
        set_session_value(context, 0,
                          "a=", text != nullptr ? (std::string(name) + ":" + text).c_str() : name);
    }
    EXPECT_EQ(dump(section),
              "m=audio 49170/1 RTP/AVP\n  a=ptime : 20 ms\n  a=sendrecv\n  a=send:1\n  a=path:\n"
              "  a=tool:a:b\n  a=ptime:30\n");
    const struct {
        const char *name;
        int count;
        std::string whole;    // behind the first colon of the first match
        std::string words[3]; // behind the colon of each match
    } rows[] = {
        {"ptime", 2, " 20 ms", {"20", "30", "-"}}, {"send", 2, "-", {"-", "1", "-"}},
        {"path", 1, "", {"-", "-", "-"}},          {"tool", 1, "a:b", {"a:b", "-", "-"}},
        {"Ptime", 0, "-", {"-", "-", "-"}},
    };
    for (const auto &row : rows) {
        char of_media[256] = "-", of_session[256] = "-";
        EXPECT_EQ(get_media_description_attribute(section, row.name, of_media), row.count != 0) << row.name;
        EXPECT_EQ(get_session_attribute_value(context, 0, row.name, of_session), row.count != 0) << row.name;
        EXPECT_EQ(std::pair(std::string(of_media), std::string(of_session)), std::pair(row.whole, row.whole));
        EXPECT_EQ(dak_sdp_get_number_of_media_attribute_values(section, row.name), row.count) << row.name;
        EXPECT_EQ(dak_sdp_get_number_of_session_attribute_values(context, 0, row.name), row.count)
            << row.name;
        for (int i = 0; i < 3; ++i) {
            char in_media[200] = "-", in_session[200] = "-";
            dak_sdp_get_media_attribute_value_by_index(section, row.name, i, in_media);
            dak_sdp_get_session_attribute_value_by_index(context, 0, row.name, i, in_session);
            EXPECT_EQ(in_media, row.words[i]) << row.name << i;
            EXPECT_EQ(in_session, row.words[i]) << row.name << i;
        }
    }
    set_session_value(context, 1, "a=", "send");
    EXPECT_EQ(call(dak_sdp_get_number_of_session_attribute_values, context, 1, "send"), logged(1, ""))
        << "one line is found, and the lack of further ones reported";
    for (int i = 0; i < 256; ++i)
        set_media_description_attribute(section, "candidate", nullptr);
    EXPECT_EQ(dak_sdp_get_number_of_media_attribute_values(section, "candidate"), 0)
        << "the counter has 8 bits";
}

// A line is written with up to 199 characters, its end included; one that cannot be kept whole is kept cut.
TEST_F(AttributeLines, are_kept_and_written_as_far_as_they_fit)
{
    const outcome too_long = logged(0, "len of str printed exceeded dst str len200 \n");
    const std::tuple<std::string, int, outcome> rows[] = {{"a=x:y", 1, {1, "a=x:y\r\n"}},
                                                          {"a=", 0, {1}},
                                                          {"a=" + xs(195), 1, {1, "a=" + xs(195) + "\r\n"}},
                                                          {"a=" + xs(196), 1, too_long},
                                                          {"a=x:" + xs(198), 0, too_long}};
    for (const auto &[line, result, seen] : rows) {
        const section_ptr made = new_section("RTP/AVP");
        EXPECT_EQ(read_line(parse_sdp_attribute, made, line), result) << line;
        EXPECT_EQ(written_by(dak_encode_media_attribute, made), seen) << line;
    }
}

} // namespace
