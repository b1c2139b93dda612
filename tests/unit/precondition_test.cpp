#include "attr/precondition.h"

#include "support.h"

// Preconditions as callers set and read them; the lines have tables of their own.
namespace {

using Precondition = ContextTest;

const std::string unset = "get_media_precond_attr :                           Invalid params params \n";

// An entry as kind:value.
outcome entry(const media_description *section, int index)
{
    uint32_t kind = 99;
    outcome seen = call(get_media_precond_attr, section, &kind, index);
    seen.text = std::to_string(kind) + ":" + seen.text;
    return seen;
}

TEST_F(Precondition, up_to_ten_are_kept_in_order)
{
    const std::string odd =
        "set_media_precond_attr :                           Unknown pcd attribute type \n";
    const auto set = [&](uint32_t kind, const char *value) {
        return call(set_media_precond_attr, section, kind, value);
    };
    EXPECT_EQ(
        call(get_number_of_precond_attrs, section),
        log_only(-1, "get_number_of_precond_attrs :                          no pcd attributes found \n"));
    EXPECT_EQ(set(0, "x"), log_only(0, odd));
    EXPECT_EQ(set(4, "x"), log_only(0, odd));
    EXPECT_EQ(set(PCD_CONF, xs(200).c_str()), logged(0, "Src str length exceeded dst str 200 \n"));
    EXPECT_EQ(entry(section, 0), log_only(0, unset, "99:")) << "it is counted, but none is present yet";
    EXPECT_EQ(set(PCD_DES, xs(199).c_str()), done);
    EXPECT_EQ(entry(section, 0), (outcome{1, "3:" + xs(199)})) << "now it shows, cut";
    EXPECT_EQ(entry(section, 1), (outcome{1, "2:" + xs(199)}));
    EXPECT_EQ(entry(section, 2), (outcome{1, "0:"})) << "the entry behind the last is readable";
    for (const int index : {-1, 3, 10, 11})
        EXPECT_EQ(entry(section, index), log_only(0, unset, "99:")) << index;
    for (int i = 2; i < 10; ++i)
        EXPECT_EQ(set(PCD_CURR, "qos local none"), done);
    EXPECT_EQ(
        set(PCD_CURR, "x"),
        log_only(0, "set_media_precond_attr :                           Precond list size overflow \n"));
    EXPECT_EQ(get_number_of_precond_attrs(section), 10);
    EXPECT_EQ(entry(section, 9), (outcome{1, "1:qos local none"}));
    EXPECT_EQ(entry(section, 10), log_only(0, "pcd array index exceeded 10\n", "99:"));
    EXPECT_EQ(entry(section, 11), log_only(0, unset, "99:"));
}

TEST_F(Precondition, only_known_kinds_are_written)
{
    EXPECT_EQ(written_by(encode_precondition_attr, section),
              log_only(0, "encode_precondition_attr :                          Invalid params \n"));
    set_media_precond_attr(section, PCD_CURR, "first");
    set_media_precond_attr(section, PCD_DES, "second");
    section->pcd_type[1] = 7;
    EXPECT_EQ(written_by(encode_precondition_attr, section),
              log_only(0, "encode_precondition_attr :                            Invalid pcd attr type \n",
                       "a=curr:first\r\n"));
}

// The value ends at a CR; at another end the terminator counts as its last character.
TEST_F(Precondition, a_received_line_of_199_characters_fits_in_front_of_a_carriage_return)
{
    for (const std::string_view line_end : line_ends)
        EXPECT_EQ(read_line(parse_a_equal_pcd_line, section, "a=curr:" + xs(199), line_end),
                  line_end[0] == '\r');
}

} // namespace
