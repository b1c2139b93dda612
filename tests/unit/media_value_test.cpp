#include "codec/media_value.h"

#include "support.h"

namespace {

class MediaValue : public PlatformTest {};

const std::string unsupported = "Unsupported parameter ";
const std::string too_long = "Src str length exceeded dst str 200 \n";

// Each row sets one more parameter of an AMR format; what is read back is "mode-set".
TEST_F(MediaValue, a_parameter_is_set_by_name)
{
    const section_ptr section = new_section("RTP/AVP", {{97, "AMR"}});
    const struct {
        const char *label;
        std::string name, value;
        outcome seen;
    } rows[] = {
        {"a name that AMR lacks", "mode-sett", "7", {1, "(null)", unsupported}},
        {"one of 199 characters", xs(199), "7", {1, "(null)", unsupported}},
        {"one of 200", xs(200), "7", {0, "(null)", too_long, true}},
        {"no name", "", "7", {1, "(null)", unsupported}},
        {"a first value that does not fit stays unseen", "mode-set", xs(200), {0, "(null)", too_long, true}},
        {"upper case", "MODE-SET", "0,2", {1, "0,2"}},
        {"white space around the name", " mode-set\t", "1", {1, "1"}},
        {"behind the value it goes, elsewhere it stays", "mode-set", " 2; 3=4 \t\r\n", {1, " 2; 3=4"}},
        {"a value of 199 characters", "mode-set", xs(199), {1, xs(199)}},
        {"one that does not fit is kept cut", "mode-set", "y" + xs(200), {0, "y" + xs(198), too_long, true}},
        {"an empty value is a value", "mode-set", "", {1, ""}},
    };
    for (const auto &[label, name, value, seen] : rows)
        EXPECT_EQ(outcome_of([&, &n = name,
                              &v = value] { return set_media_value(section, 0, n.c_str(), v.c_str()); },
                             [&] { return text_of(get_media_value(section, 0, "\tMode-Set ")); }),
                  seen)
            << label;
    EXPECT_EQ(get_media_value(section, 0, "crc"), nullptr) << "known, but never set";
    EXPECT_EQ(call(set_media_value, section, 0, "mode-set", nullptr), refused);
}

TEST_F(MediaValue, a_format_without_parameters_or_a_wrong_place_has_no_values)
{
    const section_ptr section =
        new_section("RTP/AVP", {{97, "AMR"}, {18, "G729"}, {0, "pcmu"}, {98, "opus"}, {8, nullptr}});
    const section_ptr no_formats = new_section("RTP/AVP");
    const std::string x200 = xs(200);
    const struct {
        const char *label;
        media_description *section;
        int index;
        const char *name;
        outcome seen;
    } rows[] = {
        {"G729 is known by name only", section, 1, "annexb", {0}},
        {"so is PCMU", section, 2, "", {0}},
        {"an encoding name of no registry entry", section, 3, "mode-set", {0}},
        {"no encoding name", section, 4, "mode-set", {0}},
        {"in front of the first", section, -1, "mode-set", refused},
        {"behind the last", section, 5, "mode-set", refused},
        {"no formats", no_formats, 0, "mode-set", refused},
        {"no section", nullptr, 0, "mode-set", refused},
        {"no name", section, 0, nullptr, refused},
        {"too long a name", section, 0, x200.c_str(), {0, "", too_long, true}},
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
    const outcome dropped{1, "", unsupported};
    EXPECT_EQ(get_attr_value_by_mime("mode", names, values, present, 4), nullptr);
    EXPECT_EQ(get_attr_value_by_mime("rate", names, values, present, 4), nullptr);
    EXPECT_EQ(call(set_attr_value_by_mime, "Mode", "first", names, values, present, 4), done);
    EXPECT_STREQ(get_attr_value_by_mime("MODE", names, values, present, 4), "first");
    for (const char *name : {"", "rate", (const char *)nullptr}) {
        EXPECT_EQ(get_attr_value_by_mime(name, names, values, present, 3), nullptr);
        EXPECT_EQ(call(set_attr_value_by_mime, name, "x", names, values, present, 3), dropped);
    }
    EXPECT_EQ(get_attr_value_by_mime("mode", names, values, present, 0), nullptr);
    EXPECT_EQ(call(set_attr_value_by_mime, "mode", "x", names, values, present, 0), dropped);
    EXPECT_EQ(call(set_attr_value_by_mime, "mode", nullptr, names, values, present, 4), refused);
    EXPECT_EQ(call(get_attr_value_by_mime, "mode", nullptr, values, present, 4), refused);
    EXPECT_EQ(values[0] + std::string(" ") + values[2] + " " + values[3], "unnamed second 8000");
}

} // namespace
