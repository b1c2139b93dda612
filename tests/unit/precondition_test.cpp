#include "attr/precondition.h"

#include "support.h"

namespace {

class Precondition : public ContextTest {};

const std::string unset = "get_media_precond_attr :                           Invalid params params \n";

// An entry as kind:value.
outcome entry(const media_description *section, int index)
{
    uint32_t kind = 99;
    outcome seen = call(get_media_precond_attr, section, &kind, index);
    seen.text = std::to_string(kind) + ":" + seen.text;
    return seen;
}

std::string listed(const media_description *section)
{
    std::string text;
    for (int i = 0, count = get_number_of_precond_attrs(section); i < count; ++i)
        text += (i == 0 ? "" : "|") + entry(section, i).text;
    return text;
}

TEST_F(Precondition, up_to_ten_are_kept_in_order)
{
    const std::string cut = "Src str length exceeded dst str 200 \n";
    const std::string null = "set_media_precond_attr : null params \n";
    const std::string odd =
        "set_media_precond_attr :                           Unknown pcd attribute type \n";
    const std::string full =
        "set_media_precond_attr :                           Precond list size overflow \n";
    const std::string none =
        "get_number_of_precond_attrs :                          no pcd attributes found \n";
    const auto set = [&](uint32_t kind, const char *value) {
        return call(set_media_precond_attr, section, kind, value);
    };
    EXPECT_EQ(call(get_number_of_precond_attrs, section), log_only(-1, none));
    EXPECT_EQ(call(get_number_of_precond_attrs, nullptr), log_only(-1, none));
    EXPECT_EQ(call(set_media_precond_attr, nullptr, PCD_DES, "x"), log_only(0, null));
    EXPECT_EQ(set(PCD_DES, nullptr), log_only(0, null));
    EXPECT_EQ(set(0, "x"), log_only(0, odd));
    EXPECT_EQ(set(4, "x"), log_only(0, odd));
    EXPECT_EQ(set(PCD_CONF, xs(200).c_str()), logged(0, cut));
    EXPECT_EQ(entry(section, 0), log_only(0, unset, "99:")) << "it is counted, but none is present yet";
    EXPECT_EQ(set(PCD_DES, xs(199).c_str()), done);
    EXPECT_EQ(listed(section), "3:" + xs(199) + "|2:" + xs(199)) << "now it shows, cut";
    EXPECT_EQ(entry(section, 2), (outcome{1, "0:"})) << "the entry behind the last is readable";
    for (const int index : {-1, 3, 10, 11})
        EXPECT_EQ(entry(section, index), log_only(0, unset, "99:")) << index;
    EXPECT_EQ(entry(nullptr, 0), log_only(0, unset, "99:"));
    for (int i = 2; i < 10; ++i)
        EXPECT_EQ(set(PCD_CURR, "qos local none"), done);
    EXPECT_EQ(set(PCD_CURR, "x"), log_only(0, full));
    EXPECT_EQ(entry(section, 9), (outcome{1, "1:qos local none"}));
    EXPECT_EQ(entry(section, 10), log_only(0, "pcd array index exceeded 10\n", "99:"));
    EXPECT_EQ(entry(section, 11), log_only(0, unset, "99:"));
}

// The kind is noted before the value is looked for: a line that fails there leaves it in the entry behind the
// last, which is shown after the list.
TEST_F(Precondition, lines_are_read_as_whole_texts)
{
    const std::string first = "a=curr:first";
    const outcome unsplit = logged(
        0, "parse_a_equal_pcd_line :                          could not get type and value \n", "1:first 0:");
    const outcome unknown = logged(
        0, "parse_a_equal_pcd_line :                          unknown pcd attribute type \n", "1:first 0:");
    const auto left = [&](const char *kind) { return logged(0, unsplit.log, kind); };
    const std::vector<line_row> rows = {
        {{first, "a=curr:qos local sendrecv"}, {1, "1:first|1:qos local sendrecv 0:"}},
        {{first, "a=des:qos mandatory local sendrecv"}, {1, "1:first|2:qos mandatory local sendrecv 0:"}},
        {{first, "a=conf: \t qos remote:recv; a=b \t"}, {1, "1:first|3:qos remote:recv; a=b 0:"}},
        {{first, "a=curr:" + xs(198)}, {1, "1:first|1:" + xs(198) + " 0:"}},
        {{first, "a=curr:" + xs(200)}, left("1:first 1:")},
        {{first, "a=conf"}, left("1:first 3:")},
        {{first, "a=conf: \t"}, left("1:first 3:")},
        {{first, "a=Curr:qos local sendrecv"}, unknown},
        {{first, "a=current:qos local sendrecv"}, unknown},
        {{first, "a=:qos local sendrecv"}, unsplit},
        {{first, "curr:qos local sendrecv"}, unsplit},
    };
    expect_rows(
        parse_a_equal_pcd_line, rows, [] { return new_section("RTP/AVP"); },
        [](auto *from) { return listed(from) + " " + entry(from, get_number_of_precond_attrs(from)).text; });
    const outcome null =
        log_only(0, "parse_a_equal_pcd_line :                          NULL Pararms sent \n");
    EXPECT_EQ(call(parse_a_equal_pcd_line, nullptr, first.data(), first.data()), null);
    EXPECT_EQ(call(parse_a_equal_pcd_line, section, nullptr, first.data()), null);
    EXPECT_EQ(call(parse_a_equal_pcd_line, section, first.data(), nullptr), refused);
    // The value ends at a CR; at another end the terminator counts as its last character.
    for (const std::string_view line_end : line_ends)
        EXPECT_EQ(read_line(parse_a_equal_pcd_line, section, "a=curr:" + xs(199), line_end),
                  line_end[0] == '\r');
}

TEST_F(Precondition, what_is_read_is_written_back_byte_for_byte)
{
    std::vector<std::string> pieces;
    for (const char *line :
         {"a=curr:qos local sendrecv", "a=des:qos mandatory local sendrecv", "a=conf:qos remote sendrecv"}) {
        EXPECT_EQ(read_line(parse_a_equal_pcd_line, section, line), 1);
        pieces.insert(pieces.end(), {line, "\r\n"});
    }
    expect_pieces([&](auto *out) { return encode_precondition_attr(out, section); }, pieces,
                  "encode_precondition_attr :                            Unable fill SDP buffer \n");
    for (int i = 3; i < 10; ++i)
        EXPECT_EQ(read_line(parse_a_equal_pcd_line, section, "a=curr:x"), 1);
    const std::string ten = listed(section);
    EXPECT_EQ(lines_read(parse_a_equal_pcd_line, section, {"a=des:x"}, "\n", listed),
              log_only(1, "parse_a_equal_pcd_line: pcd attr size exceeded\n", ten));
}

TEST_F(Precondition, a_line_holds_199_characters)
{
    const outcome invalid =
        log_only(0, "encode_precondition_attr :                          Invalid params \n");
    EXPECT_EQ(written_by(encode_precondition_attr, section), invalid);
    EXPECT_EQ(written_by(encode_precondition_attr, nullptr), invalid);
    EXPECT_EQ(call(encode_precondition_attr, nullptr, section), invalid);
    const outcome over = logged(0, "src str len exceeds dest str len 200\n", "a=curr:first\r\n");
    const struct {
        uint32_t kind;
        std::string value;
        outcome seen;
    } rows[] = {
        {PCD_CURR, xs(192), {1, "a=curr:first\r\na=curr:" + xs(192) + "\r\n"}},
        {PCD_CURR, xs(193), over},
        {PCD_CONF, xs(192), {1, "a=curr:first\r\na=conf:" + xs(192) + "\r\n"}},
        {PCD_CONF, xs(193), over},
        {PCD_DES, xs(193), {1, "a=curr:first\r\na=des:" + xs(193) + "\r\n"}},
        {PCD_DES, xs(194), over},
        {7,
         "x",
         {0, over.text, "encode_precondition_attr :                            Invalid pcd attr type \n"}},
    };
    for (const auto &row : rows) {
        const section_ptr two = new_section("RTP/AVP");
        set_media_precond_attr(two, PCD_CURR, "first");
        set_media_precond_attr(two, PCD_DES, row.value.c_str());
        two->pcd_type[1] = row.kind;
        EXPECT_EQ(written_by(encode_precondition_attr, two), row.seen) << row.kind << " " << row.value;
    }
}

} // namespace
