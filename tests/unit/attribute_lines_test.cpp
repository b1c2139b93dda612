#include "sdp/attribute_lines.h"

#include "support.h"

namespace {

using AttributeLines = ContextTest;

TEST_F(AttributeLines, media_and_session_are_searched_alike)
{
    for (const auto &[name, value] :
         {std::pair("ptime ", " 20 ms "), std::pair("sendrecv", (const char *)nullptr),
          std::pair("send", "1"), std::pair("path", ""), std::pair("ptime", "30")}) {
        EXPECT_EQ(set_media_description_attribute(section, name, value), 1);
        set_session_value(context, 0,
                          "a=", value != nullptr ? (std::string(name) + ":" + value).c_str() : name);
    }
    EXPECT_EQ(
        dump(section),
        "m=audio 49170/1 RTP/AVP\n  a=ptime : 20 ms\n  a=sendrecv\n  a=send:1\n  a=path:\n  a=ptime:30\n");
    const struct {
        const char *name;
        int count;
        outcome whole;        // behind the first colon of the first match
        std::string words[3]; // behind the colon of each match
    } rows[] = {
        {"ptime", 2, {1, " 20 ms"}, {"20", "30", "-"}},
        {"send", 2, {1, "-"}, {"-", "1", "-"}},
        {"path", 1, {1, ""}, {"-", "-", "-"}},
        {"Ptime", 0, {0, "-"}, {"-", "-", "-"}},
    };
    for (const auto &row : rows) {
        char value[256] = "-";
        const auto get = [&] { return get_media_description_attribute(section, row.name, value); };
        EXPECT_EQ(outcome_of(get, [&] { return value; }), row.whole) << row.name;
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

TEST_F(AttributeLines, are_written_in_order_and_whole)
{
    const auto write = [&](sdp_lib_context *in) { return dak_encode_media_attribute(in, section); };
    set_media_description_attribute(section, "ptime", "20");
    set_media_description_attribute(section, xs(195).c_str(), nullptr);
    const std::string both = "a=ptime:20\r\na=" + xs(195) + "\r\n";
    EXPECT_EQ(written(write), (outcome{1, both}));
    EXPECT_EQ(written(write, both.size() - 1), logged(0, "", "a=ptime:20\r\n"));
    set_media_description_attribute(section, xs(196).c_str(), nullptr);
    EXPECT_EQ(written(write), logged(0, "len of str printed exceeded dst str len200 \n", both));
}

TEST_F(AttributeLines, a_line_that_cannot_be_kept_is_refused)
{
    const std::pair<std::string, int> rows[] = {{"a=x:y", 1}, {"a=x", 1}, {"a=", 0}, {"a=x:" + xs(198), 0}};
    for (const auto &[line, result] : rows)
        EXPECT_EQ(read_line(parse_sdp_attribute, section, line), result) << line;
}

} // namespace
