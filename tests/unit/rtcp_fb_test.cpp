#include "attr/rtcp_fb.h"

#include "support.h"

namespace {

class RtcpFb : public PlatformTest {};

const std::string not_written = " Unsupported fb attributes \n";

section_ptr video(const char *profile = "RTP/AVPF")
{
    return new_section(
        profile, {{96, "H264"}, {97, "H263"}, {98, "H264"}, {99, nullptr}, {100, nullptr}, {0, "PCMU"}});
}

std::string words(const rtcp_fb_kind &kind, const std::string &parameter)
{
    static const std::pair<uint32_t, const char *> known[] = {
        {190, "nack"}, {191, "nack pli"}, {209, "ccm fir"}, {219, "ccm tmmbr"}, {499, "unsupported"}};
    const uint32_t all = kind.fb_type * 100 + kind.ccm_subtype * 10 + kind.nack_subtype;
    std::string text = std::to_string(all);
    for (const auto &[number, name] : known)
        text = number == all ? name : text;
    return text + (parameter.empty() ? "" : "<" + parameter + ">");
}

// All lists that are not empty, such as "* nack, ccm fir; 96 nack pli<x>". The getters are to leave the
// subtype of the other type, here 9, alone.
std::string lists(const media_description *section)
{
    std::string text;
    for (int codec = -1; codec < get_number_of_media_payload(section); ++codec) {
        const int count = codec < 0 ? dak_sdp_get_number_of_m_rtcp_fb_attrs(section)
                                    : dak_sdp_get_number_of_rtcp_fb_attrs(section, codec);
        for (int i = 0; i < count; ++i) {
            rtcp_fb_kind kind{9, 9, 9};
            const char *parameter = section->rtcp_fb.fb_entries[i].fb_param;
            if (codec >= 0)
                parameter = dak_sdp_get_media_rtcp_fb_type(section, &kind, i, codec);
            else if (dak_sdp_get_media_m_rtcp_fb_type(section, &kind, i) == nullptr)
                parameter = nullptr;
            const std::string head = codec < 0 ? "*" : std::to_string(section->payload_numbers[codec]);
            text +=
                (i > 0 ? ", " : (text.empty() ? "" : "; ") + head + " ") + words(kind, text_of(parameter));
        }
    }
    return text;
}

constexpr auto read_feedback = dak_sdp_parse_a_equal_rtcp_fb_line;

TEST_F(RtcpFb, lines_become_entries)
{
    const std::string full = "fb attr size exceeded\n";
    const std::string unsplit = "parse_a_equal_rtcp_fb_line :\t\t\t\t\t\t\tcould not get type and value \n";
    const std::string unread =
        "DAK_SDP_parse_a_equal_rtcp_fb_line :\t\t\t\t\t\t\tunsupported rtcp fb attribute type \n";
    const std::string unsplit_at =
        "parse_a_equal_rtcp_fb_line :                          could not get type and value \n";
    const std::string unread_at =
        "DAK_SDP_parse_a_equal_rtcp_fb_line :                          unsupported rtcp fb attribute type \n";
    std::vector<line_row> rows = {
        {{"* nack"}, {1, "* nack"}},
        {{"*  nack   pli  "}, {1, "* nack pli"}},
        {{"* nack plix"}, {1, "* nack<plix>"}},
        {{"* nack pli x  y "}, {1, "* nack pli<x  y>"}},
        {{"* nack rpsi pli"}, {1, "* nack<rpsi pli>"}},
        {{"* ccm fir"}, {1, "* ccm fir"}},
        {{"* ccm tmmbr smaxpr=120"}, {1, "* ccm tmmbr<smaxpr=120>"}},
        {{"* ccm tstr"}, {1, ""}}, // counted, but nothing is present yet
        {{"* ccm tstr", "* ccm", "* nack"}, {1, "* ccm fir, ccm fir, nack"}},
        {{"* cmm fir"}, {1, "", unread}}, // the writer's own word
        {{"* NACK"}, {1, "", unread}},
        {{"*"}, {1, "", unread}},
        {{"* trr-int 100", "* nack pli"}, {1, "* nack pli", unread}}, // the rejected one is overwritten
        {{"* nack " + xs(199)}, {1, "* nack<" + xs(199) + ">"}},
        {{"* nack pli " + xs(200), "* nack"}, logged(0, unsplit, "* nack")}, // nothing of the first is left
        {{"* nack", "* nack", "* nack", "* nack", "* nack", "* ccm fir"},
         {1, "* nack, nack, nack, nack, nack", full}},
        {{"97 nack pli", "* nack", "96 nack  pli x"}, {1, "* nack; 96 nack pli<x>; 97 nack pli"}},
        {{"96 97 nack pli"}, {1, "96 nack pli; 97 nack pli"}},
        {{"96 97 98 99 0 nack"}, {1, "96 nack; 97 nack; 98 nack; 99 nack; 0 nack"}},
        {{"96 97 98 99 100 0 nack"}, {1, "", unread_at}}, // a sixth number is no type
        {{"96 ccm fir"}, {1, "", unread_at}},             // codec control is for all formats alike
        {{"96"}, {1, "", unread_at}},
        {{"96 trr-int", "96 nack"}, {1, "96 nack", unread_at}},
        {{"96 nack " + xs(199)}, {1, "96 nack<" + xs(199) + ">"}},
        {{"96 nack " + xs(200)}, logged(0, unsplit_at)},
        {{"96 nack", "96 nack", "96 nack", "96 nack", "96 nack", "96 97 nack"},
         {1, "96 nack, nack, nack, nack, nack", full}},
        {{"96 111 97 nack"}, {0, "96 nack", "", true}}, // what stands in front of an absent number is kept
        {{"*nack"}, {0}},
        {{"all nack"}, {0}},
        {{""}, refused},
        {{" "}, refused},
    };
    for (line_row &row : rows)
        for (std::string &line : row.lines)
            line.insert(0, "a=rtcp-fb:");
    expect_rows(
        read_feedback, rows, [] { return video(); }, lists);
}

TEST_F(RtcpFb, only_a_feedback_section_of_its_formats_reads_lines)
{
    for (const std::string profile : {"RTP/AVP", "RTP/SAVPF", "rtp/avpf", "RTP/AVPF2"})
        EXPECT_EQ(lines_read(read_feedback, video(profile.c_str()), {"a=rtcp-fb:* nack"}, "\n", lists),
                  log_only(1, "RTCP fb not supported for this profile " + profile + " \n"));
    expect_rows(
        read_feedback,
        {{{"a=rtcp-fb:96 nack"}, refused}, {{"a=rtcp-fb"}, refused}, {{"a=rtcp-fb:* nack"}, {1, "* nack"}}},
        [] { return new_section("RTP/AVPF"); }, lists);
    const char *line = "a=rtcp-fb:* nack";
    const outcome null = log_only(0, "NULL Pararms sent \n");
    EXPECT_EQ(call(read_feedback, nullptr, line, line), null);
    EXPECT_EQ(call(read_feedback, video(), nullptr, line), null);
    EXPECT_EQ(call(read_feedback, video(), line, nullptr), refused);
}

// Both writers write the same lines, one with "*", the other with the payload number.
TEST_F(RtcpFb, entries_become_lines)
{
    const std::string invalid = " Invalid fb params \n";
    const rtcp_fb_entry nack{1, 0, 0, ""}, pli{1, 0, 1, ""}, odd_nack{1, 0, 7, ""}, with_text{1, 0, 0, "sli"};
    const rtcp_fb_entry fir{2, 0, 0, ""}, tmmbr{2, 1, 0, ""}, odd_ccm{2, 2, 0, ""}, unsupported{4, 0, 0, ""};
    const struct {
        const char *label;
        rtcp_fb_list list;
        outcome seen;
    } rows[] = {
        {"nack", {1, 2, {nack, pli}}, {1, "a=rtcp-fb:* nack\r\na=rtcp-fb:* nack pli\r\n"}},
        {"ccm", {1, 2, {fir, tmmbr}}, {1, "a=rtcp-fb:* cmm fir\r\na=rtcp-fb:* cmm tmmbr\r\n"}},
        {"the count counts", {1, 1, {nack, pli}}, {1, "a=rtcp-fb:* nack\r\n"}},
        {"none", {1, 0, {nack}}, {1}},
        {"absent", {0, 1, {nack}}, {0, "", invalid}},
        {"present, but not 1", {2, 1, {nack}}, {0, "", invalid}},
        {"more than five", {1, 6, {nack, nack, nack, nack, nack}}, {0, "", invalid}},
        {"a type that is not written", {1, 2, {nack, unsupported}}, {0, "a=rtcp-fb:* nack\r\n", not_written}},
        {"parameter text", {1, 2, {fir, with_text}}, {0, "a=rtcp-fb:* cmm fir\r\n", not_written}},
        {"an odd subtype has no line", {1, 2, {odd_nack, odd_ccm}}, {1, "\r\n\r\n"}},
        {"or the one before",
         {1, 2, {pli, odd_ccm}},
         {1, "a=rtcp-fb:* nack pli\r\na=rtcp-fb:* nack pli\r\n"}},
    };
    const section_ptr section = video();
    for (const auto &row : rows) {
        section->rtcp_fb = section->codecs[1].rtcp_fb = row.list;
        EXPECT_EQ(written_by(dak_sdp_encode_rtcp_fb_attr, section), row.seen) << row.label;
        outcome per_payload = row.seen;
        for (std::size_t star; (star = per_payload.text.find('*')) != std::string::npos;)
            per_payload.text.replace(star, 1, "97");
        EXPECT_EQ(written_by(dak_sdp_encode_rtcp_fb_attr_at_pt, section, 1), per_payload) << row.label;
    }
    const std::string no_room = " Unable to fill SDP buffer \n";
    section->rtcp_fb = section->codecs[1].rtcp_fb = {1, 2, {nack, fir}};
    expect_pieces([&](auto *context) { return dak_sdp_encode_rtcp_fb_attr(context, section); },
                  {"a=rtcp-fb:* nack", "\r\n", "a=rtcp-fb:* cmm fir", "\r\n"}, no_room);
    expect_pieces([&](auto *context) { return dak_sdp_encode_rtcp_fb_attr_at_pt(context, section, 1); },
                  {"a=rtcp-fb:97 nack", "\r\n", "a=rtcp-fb:97 cmm fir", "\r\n"}, no_room);
    const outcome null = log_only(0, " Invalid params \n");
    EXPECT_EQ(written_by(dak_sdp_encode_rtcp_fb_attr, nullptr), null);
    EXPECT_EQ(written_by(dak_sdp_encode_rtcp_fb_attr_at_pt, nullptr, 0), null);
    EXPECT_EQ(call(dak_sdp_encode_rtcp_fb_attr, nullptr, section), null);
    EXPECT_EQ(call(dak_sdp_encode_rtcp_fb_attr_at_pt, nullptr, section, 1), null);
    for (const int index : {-1, 6, 20})
        EXPECT_EQ(written_by(dak_sdp_encode_rtcp_fb_attr_at_pt, section, index), refused) << index;
}

TEST_F(RtcpFb, lists_are_filled_by_the_caller)
{
    const std::string odd = " Unknown rtcp fb attribute type \n";
    const section_ptr section = video();
    const auto set = [&](uint32_t type, uint32_t subtype) {
        outcome seen = call(dak_sdp_set_media_rtcp_fb_attr, section, type, subtype);
        seen.text = lists(section);
        return seen;
    };
    EXPECT_EQ(set(RTCP_FB_NACK, RTCP_FB_NACK_PLI), (outcome{1, "* nack pli"}));
    EXPECT_EQ(set(RTCP_FB_CCM, RTCP_FB_CCM_TMMBR), (outcome{1, "* nack pli, ccm tmmbr"}));
    EXPECT_EQ(set(RTCP_FB_CCM, 2), (outcome{1, "* nack pli, ccm tmmbr, unsupported", odd}));
    EXPECT_EQ(set(3, 0), (outcome{1, "* nack pli, ccm tmmbr, unsupported, unsupported", odd}));
    EXPECT_EQ(set(RTCP_FB_NACK, 0), (outcome{1, "* nack pli, ccm tmmbr, unsupported, unsupported, nack"}));
    EXPECT_EQ(set(RTCP_FB_NACK, 0), log_only(0, "RTCP fb list size overflow \n",
                                             "* nack pli, ccm tmmbr, unsupported, unsupported, nack"));
    EXPECT_EQ(written_by(dak_sdp_encode_rtcp_fb_attr, section).log, not_written);
    EXPECT_EQ(call(dak_sdp_set_media_rtcp_fb_attr, nullptr, RTCP_FB_NACK, 0), log_only(0, "null params \n"));

    const section_ptr other = video(), no_formats = new_section("RTP/AVPF");
    const rtcp_fb_entry pli{1, 9, 1, "x"}, unchecked{8, 9, 9, ""};
    const rtcp_fb_list two{1, 2, {pli, pli}}, one{1, 1, {unchecked}}, six{1, 6, {pli}};
    rtcp_fb_list five{1, 5, {pli, pli, pli, pli, pli}};
    std::memset(five.fb_entries[4].fb_param, 'x', sizeof pli.fb_param); // unterminated
    const auto add = [&](int32_t number, const rtcp_fb_list *list) {
        outcome seen = call(dak_sdp_add_media_rtcp_fb_to_media_description, other, number, list);
        seen.text = lists(other);
        return seen;
    };
    EXPECT_EQ(add(97, &two), (outcome{1, "97 nack pli<x>, nack pli<x>"}));
    EXPECT_EQ(add(97, &one), (outcome{1, "97 899"})) << "replaced, its type unchecked";
    for (const auto &[number, list] :
         std::vector<std::pair<int32_t, const rtcp_fb_list *>>{{111, &two}, {96, &six}, {96, nullptr}})
        EXPECT_EQ(add(number, list), (outcome{-1, "97 899", "", true}));
    for (media_description *to : {no_formats.get(), (media_description *)nullptr})
        EXPECT_EQ(call(dak_sdp_add_media_rtcp_fb_to_media_description, to, 96, &two), logged(-1, ""));
    rtcp_fb_kind kind{};
    EXPECT_EQ(call(dak_sdp_add_media_rtcp_fb_to_media_description, other, 96, &five), outcome{0});
    EXPECT_EQ(text_of(dak_sdp_get_media_rtcp_fb_type(other, &kind, 4, 0)), xs(255));
}

// Entries 0 to 4 up to and including the count are readable; callers stop at the count.
TEST_F(RtcpFb, readers_check_their_bounds)
{
    const section_ptr section = video();
    for (const char *line : {"a=rtcp-fb:* nack", "a=rtcp-fb:96 nack", "a=rtcp-fb:97 ccm fir"})
        read_line(dak_sdp_parse_a_equal_rtcp_fb_line, section, line);
    const outcome invalid{0, "999", "Invalid params \n"}, no_codec{0, "999", "", true}, nack{1, "nack"},
        behind{1, "99"};
    const struct {
        media_description *section;
        int index, codec;
        outcome wildcard, per_payload;
    } rows[] = {
        {section, 0, 0, nack, nack},       {section, 1, 0, behind, behind},
        {section, 2, 0, invalid, invalid}, {section, 0, 1, nack, invalid},
        {section, 0, 6, nack, no_codec},   {section, -1, 0, invalid, invalid},
        {section, 0, -1, nack, no_codec},  {nullptr, 0, 0, invalid, invalid},
    };
    for (const auto &row : rows) {
        rtcp_fb_kind kind{9, 9, 9};
        outcome seen = call(dak_sdp_get_media_m_rtcp_fb_type, row.section, &kind, row.index);
        seen.text = words(std::exchange(kind, {9, 9, 9}), "");
        EXPECT_EQ(seen, row.wildcard) << row.index;
        seen = call(dak_sdp_get_media_rtcp_fb_type, row.section, &kind, row.index, row.codec);
        seen.text = words(kind, "");
        EXPECT_EQ(seen, row.per_payload) << row.index << " of codec " << row.codec;
    }
    section->rtcp_fb.fb_count = 5;
    rtcp_fb_kind sixth;
    EXPECT_EQ(call(dak_sdp_get_media_m_rtcp_fb_type, section, &sixth, 5), log_only(0, "Invalid params \n"));
    EXPECT_EQ(call(dak_sdp_get_number_of_m_rtcp_fb_attrs, nullptr),
              log_only(-1, " invalid input argumet \n"));
    EXPECT_EQ(call(dak_sdp_get_number_of_rtcp_fb_attrs, nullptr, 0),
              log_only(-1, "Invalid input arguments\n"));
    for (const int codec : {1, 6, 7, 100})
        EXPECT_EQ(call(dak_sdp_get_number_of_rtcp_fb_attrs, section, codec), outcome{0}) << codec;
}

} // namespace
