#include "codec/media_value.h"

#include "support.h"
#include "table.h"

namespace {

class MediaValue : public PlatformTest {};

// Each row sets one more parameter of an AMR format.
TEST_F(MediaValue, a_parameter_is_set_by_name)
{
    const section_ptr section = new_section("RTP/AVP 97=AMR");
    table::for_each_row("media_values.txt", [&](const table::row &row) {
        EXPECT_EQ(call_then([&] { return text_of(get_media_value(section, 0, "\tMode-Set ")); },
                            set_media_value, section, 0, row.at("name").c_str(), row.at("value").c_str()),
                  table::expected(row));
    });
    EXPECT_EQ(get_media_value(section, 0, "crc"), nullptr) << "known, but never set";
}

TEST_F(MediaValue, a_format_without_parameters_or_a_wrong_place_has_no_values)
{
    const section_ptr section = new_section("RTP/AVP 97=AMR 18=G729 98=opus 8"),
                      no_formats = new_section("RTP/AVP");
    const std::string x200 = xs(200);
    const struct {
        const char *label;
        media_description *section;
        int index;
        const char *name;
        outcome seen;
    } rows[] = {
        {"G729 is known by name only", section, 1, "annexb", {0}},
        {"an encoding name of no registry entry", section, 2, "mode-set", {0}},
        {"no encoding name", section, 3, "mode-set", {0}},
        {"in front of the first", section, -1, "mode-set", refused},
        {"behind the last", section, 4, "mode-set", refused},
        {"no formats", no_formats, 0, "mode-set", refused},
        {"too long a name",
         section,
         0,
         x200.c_str(),
         {0, "", "Src str length exceeded dst str 200 \n", true}},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(call(set_media_value, row.section, row.index, row.name, "1"), row.seen) << row.label;
        EXPECT_EQ(call(get_media_value, row.section, row.index, row.name), row.seen) << row.label;
    }
}

// The arrays are walked from the first slot: the first equal name takes the value, a flag other than 1 means
// that there is none, and an empty name finds nothing.
TEST_F(MediaValue, the_first_slot_of_a_name_is_used)
{
    char names[4][200] = {"", "mode", "MODE", "rate"}, values[4][200] = {"unnamed", "", "second", "8000"};
    uint32_t present[4] = {1, 0, 1, 2};
    const auto get = [&](const char *name, uint8_t count) {
        return text_of(get_attr_value_by_mime(name, names, values, present, count));
    };
    EXPECT_EQ(get("mode", 4) + get("rate", 4), "(null)(null)");
    EXPECT_EQ(call(set_attr_value_by_mime, "Mode", "first", names, values, present, 4), done);
    EXPECT_EQ(get("MODE", 4), "first");
    for (const char *name : {"", "rate", (const char *)nullptr}) {
        EXPECT_EQ(get(name, 3), "(null)");
        EXPECT_EQ(call(set_attr_value_by_mime, name, "x", names, values, present, 3),
                  log_only(1, "Unsupported parameter "));
    }
    EXPECT_EQ(values[0] + std::string(" ") + values[2] + " " + values[3], "unnamed second 8000");
    std::fill_n(names[0], 200, 'n');
    EXPECT_EQ(get(std::string(200, 'N').c_str(), 1), "unnamed") << "a name without its terminator";
    EXPECT_EQ(get(std::string(201, 'N').c_str(), 1), "(null)");
}

} // namespace
