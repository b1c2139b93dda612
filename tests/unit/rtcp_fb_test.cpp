#include "attr/rtcp_fb.h"

#include "support.h"

// Feedback lists as callers fill and read them; the lines have tables of their own.
namespace {

class RtcpFb : public PlatformTest {
protected:
    const section_ptr section = new_section("RTP/AVPF 96=H264 97=H263");
};

// Both writers write the same lines, one with "*", the other with the payload number.
TEST_F(RtcpFb, lists_are_written)
{
    const outcome invalid{0, "", " Invalid fb params \n"};
    const rtcp_fb_entry nack{1, 0, 0, ""}, odd_nack{1, 0, 7, ""}, pli{1, 0, 1, ""}, odd_ccm{2, 2, 0, ""},
        unsupported{4, 0, 0, ""};
    const struct {
        const char *label;
        rtcp_fb_list list;
        outcome seen;
    } rows[] = {
        {"the count counts", {1, 1, {pli, nack}}, {1, "a=rtcp-fb:* nack pli\r\n"}},
        {"none", {1, 0, {nack}}, {1}},
        {"absent", {0, 1, {nack}}, invalid},
        {"present, but not 1", {2, 1, {nack}}, invalid},
        {"more than five", {1, 6, {nack, nack, nack, nack, nack}}, invalid},
        {"a type that is not written",
         {1, 2, {nack, unsupported}},
         {0, "a=rtcp-fb:* nack\r\n", " Unsupported fb attributes \n"}},
        {"an odd subtype has no line", {1, 2, {odd_nack, odd_ccm}}, {1, "\r\n\r\n"}},
        {"or the one before",
         {1, 2, {pli, odd_ccm}},
         {1, "a=rtcp-fb:* nack pli\r\na=rtcp-fb:* nack pli\r\n"}},
    };
    for (const auto &row : rows) {
        section->rtcp_fb = section->codecs[1].rtcp_fb = row.list;
        EXPECT_EQ(written_by(dak_sdp_encode_rtcp_fb_attr, section), row.seen) << row.label;
        outcome per_payload = row.seen;
        for (std::size_t star; (star = per_payload.text.find('*')) != std::string::npos;)
            per_payload.text.replace(star, 1, "97");
        EXPECT_EQ(written_by(dak_sdp_encode_rtcp_fb_attr_at_pt, section, 1), per_payload) << row.label;
    }
    for (const int index : {-1, 2, 20})
        EXPECT_EQ(written_by(dak_sdp_encode_rtcp_fb_attr_at_pt, section, index), refused) << index;
}

TEST_F(RtcpFb, a_list_is_filled_entry_by_entry)
{
    const std::string odd = " Unknown rtcp fb attribute type \n",
                      four = "nack pli, ccm tmmbr, unsupported, unsupported";
    const struct {
        uint32_t type, subtype;
        outcome seen;
    } rows[] = {
        {RTCP_FB_NACK, RTCP_FB_NACK_PLI, {1, "nack pli"}},
        {RTCP_FB_CCM, RTCP_FB_CCM_TMMBR, {1, "nack pli, ccm tmmbr"}},
        {RTCP_FB_CCM, 2, {1, "nack pli, ccm tmmbr, unsupported", odd}},
        {3, 0, {1, four, odd}},
        {RTCP_FB_NACK, 0, {1, four + ", nack"}},
        {RTCP_FB_NACK, 0, {0, four + ", nack", "RTCP fb list size overflow \n"}},
    };
    for (const auto &[type, subtype, seen] : rows)
        EXPECT_EQ(call_then([&] { return feedback(section, -1); }, dak_sdp_set_media_rtcp_fb_attr, section,
                            type, subtype),
                  seen);
}

TEST_F(RtcpFb, a_payload_format_takes_a_whole_list)
{
    const rtcp_fb_entry pli{1, 9, 1, "x"}, unchecked{8, 9, 9, ""};
    const rtcp_fb_list two{1, 2, {pli, pli}}, one{1, 1, {unchecked}}, six{1, 6, {pli}};
    rtcp_fb_list five{1, 5, {pli, pli, pli, pli, pli}};
    std::memset(five.fb_entries[4].fb_param, 'x', sizeof pli.fb_param); // unterminated
    const struct {
        int32_t number;
        const rtcp_fb_list *list;
        outcome seen;
    } rows[] = {
        {97, &two, {1, "nack pli<x>, nack pli<x>"}},
        {97, &one, {1, "899"}}, // replaced, its type unchecked
        {111, &two, {-1, "899", "", true}},
        {97, &six, {-1, "899", "", true}},
        {97, nullptr, {-1, "899", "", true}},
        {97, &five, {1, "nack pli<x>, nack pli<x>, nack pli<x>, nack pli<x>, nack pli<" + xs(255) + ">"}},
    };
    for (const auto &[number, list, seen] : rows)
        EXPECT_EQ(call_then([&] { return feedback(section, 1); },
                            dak_sdp_add_media_rtcp_fb_to_media_description, section, number, list),
                  seen);
    for (media_description *to : {new_section("RTP/AVPF").release(), (media_description *)nullptr}) {
        EXPECT_EQ(call(dak_sdp_add_media_rtcp_fb_to_media_description, to, 96, &two), logged(-1, ""));
        section_ptr{to};
    }
}

// Entries 0 to 4 up to and including the count are readable; callers stop at the count.
TEST_F(RtcpFb, readers_check_their_bounds)
{
    for (const char *line : {"a=rtcp-fb:* nack", "a=rtcp-fb:96 nack", "a=rtcp-fb:97 ccm fir"})
        read_line(dak_sdp_parse_a_equal_rtcp_fb_line, section, line);
    const outcome invalid{0, "999", "Invalid params \n"}, no_codec{0, "999", "", true}, nack{1, "190"},
        behind{1, "099"};
    const struct {
        int index, codec;
        outcome wildcard, per_payload;
    } rows[] = {{0, 0, nack, nack},     {1, 0, behind, behind}, {2, 0, invalid, invalid},
                {0, 1, nack, invalid},  {0, 2, nack, no_codec}, {-1, 0, invalid, invalid},
                {0, -1, nack, no_codec}};
    for (const auto &row : rows) {
        rtcp_fb_kind kind{9, 9, 9};
        const auto show = [&] {
            const rtcp_fb_kind is = std::exchange(kind, {9, 9, 9});
            return std::to_string(is.fb_type) + std::to_string(is.ccm_subtype) +
                   std::to_string(is.nack_subtype);
        };
        EXPECT_EQ(call_then(show, dak_sdp_get_media_m_rtcp_fb_type, section, &kind, row.index), row.wildcard);
        EXPECT_EQ(call_then(show, dak_sdp_get_media_rtcp_fb_type, section, &kind, row.index, row.codec),
                  row.per_payload)
            << row.index << " of codec " << row.codec;
    }
    section->rtcp_fb.fb_count = 5;
    rtcp_fb_kind sixth;
    EXPECT_EQ(call(dak_sdp_get_media_m_rtcp_fb_type, section, &sixth, 5), log_only(0, "Invalid params \n"));
    for (const int codec : {1, 2, 20})
        EXPECT_EQ(call(dak_sdp_get_number_of_rtcp_fb_attrs, section, codec), outcome{0}) << codec;
}

} // namespace
