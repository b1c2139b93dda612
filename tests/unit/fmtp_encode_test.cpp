#include "codec/fmtp_encode.h"

#include "codec/codec_kind.h"
#include "codec/media_value.h"
#include "support.h"

namespace {

class FmtpEncode : public PlatformTest {};

struct slot {
    uint32_t present;
    std::string name, value;
};

TEST_F(FmtpEncode, the_line_holds_the_slots_that_are_set)
{
    const std::string over = "len of str printed exceeded dst str len200 \n";
    const struct {
        const char *label;
        std::vector<slot> slots;
        int count;
        outcome seen;
    } rows[] = {
        {"none set: no line", {{0, "crc", "1"}, {0, "channels", "2"}}, 2, {1}},
        {"no slots", {{1, "crc", "1"}}, 0, {1}},
        {"the last alone", {{0, "crc", "1"}, {1, "channels", "2"}}, 2, {1, "a=fmtp:97 channels=2\r\n"}},
        {"a flag other than 1", {{2, "crc", "1"}, {1, "channels", "2"}}, 2, {1, "a=fmtp:97 channels=2\r\n"}},
        {"slots behind the count", {{1, "crc", "1"}, {1, "mode", "2"}}, 1, {1, "a=fmtp:97 crc=1\r\n"}},
        {"bare values", {{1, "", "0-15"}, {1, "", "32"}}, 2, {1, "a=fmtp:97 0-15;32\r\n"}},
        {"199 characters", {{1, "crc", xs(195)}}, 1, {1, "a=fmtp:97 crc=" + xs(195) + "\r\n"}},
        {"bare 199", {{1, "", xs(199)}}, 1, {1, "a=fmtp:97 " + xs(199) + "\r\n"}},
        {"200", {{1, "crc", xs(196)}}, 1, {0, "a=fmtp:97 ", over, true}},
        {"200 behind others",
         {{1, "crc", "1"}, {1, "mode", xs(195)}},
         2,
         {0, "a=fmtp:97 crc=1;", over, true}},
        {"more slots than a record has", {{1, "crc", "1"}}, MEDIA_INFO_MAX_SLOTS + 1, refused},
    };
    for (const auto &row : rows) {
        media_info info{};
        for (std::size_t i = 0; i < row.slots.size(); ++i) {
            row.slots[i].name.copy(info.param_name[i], 199);
            row.slots[i].value.copy(info.param_value[i], 199);
            info.param_present[i] = row.slots[i].present;
        }
        char scratch[200];
        EXPECT_EQ(written([&](sdp_lib_context *context) {
                      return dak_sdp_encode_a_equal_fmtp_line(row.count, info.param_present, 97, scratch,
                                                              context, info.param_name, info.param_value,
                                                              ";");
                  }),
                  row.seen)
            << row.label;
    }
}

TEST_F(FmtpEncode, a_full_buffer_leaves_a_partial_line)
{
    const section_ptr section = new_section("RTP/AVP", {{96, "EVRCB"}});
    set_media_value(section, 0, "sendmode", "0");
    set_media_value(section, 0, "silencesupp", "1");
    expect_pieces([&](auto *context) { return dak_sdp_evrcb_media_info_encode(context, section, 0); },
                  {"a=fmtp:96 ", "silencesupp=1", " ", "sendmode=0", "\r\n"}, "");
}

// A payload number has 16 bits here, as it has on the a=rtpmap line.
TEST_F(FmtpEncode, the_payload_number_has_16_bits)
{
    for (const uint32_t number : {65535U, 65536U + 65535U}) {
        const section_ptr section = new_section("RTP/AVP", {{number, "AMR"}});
        set_media_value(section, 0, "crc", "1");
        EXPECT_EQ(written_by(dak_sdp_amr_media_info_encode, section, 0),
                  (outcome{1, "a=fmtp:65535 crc=1\r\n"}));
    }
}

} // namespace
