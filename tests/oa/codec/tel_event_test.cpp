#include "fmtp_case.h"

namespace {

using namespace fmtp_case;

class TelEvent : public PlatformTest {};

TEST_F(TelEvent, events_are_read_and_written)
{
    expect_decoded("telephone-event", R"(
no events clear those before | events=2:0-15 > | |
one range | 0-15 | events=2:0-15
three entries | 0-11,13,15 | events=2:0-11,1:13-0,1:15-0
with a name | events=1,2 | events=1:1-0,1:2-0 | 1,2
a shorter list | events=2:0-11,1:13-0,1:15-0 > 3 | events=1:3-0
blanks and empty tokens | ,1,, 2- 3, | events=1:1-0,2:2-3 | 1,2-3
16 are kept | {7,:15}8,9,10,11,12 | events={1:7-0,:15}1:8-0 | {7,:15}8
what follows is not looked at | {7,:15}1-2,7-3 | events={1:7-0,:15}2:1-2 | {7,:15}1-2
a range of one | 5-5 | events=2:5-5
a range backwards | 1,7-3,2 | events=1:1-0,0:7-3 | | backwards, no-events | 4
no number ends it | 5,x,6 | events=1:5-0 | 5
and may leave nothing | x | events= |
a range without end leaves no entry | 1,5-,6 | events=1:1-0 | 1
without beginning | 1,-5,6 | events=1:1-0 | 1
with neither | 1,-,6 | events=1:1-0 | 1
with a bad end | 1,2-x,6 | events=1:1-0 | 1
of three | 1-2-3 | events=2:1-2 | 1-2
with two hyphens | 1--2 | events=2:1-2 | 1-2
16 bits | 70000,65536,65535 | events=1:4464-0,1:0-0,1:65535-0 | 4464,0,65535
2^31, 2^32, 2^63, 30 digits | 2147483648,4294967297,9223372036854775808,{9:30}
|events=1:0-0,1:1-0,1:0-0,1:65535-0 | 0,1,0,65535
a range that is backwards in its 16 bits | 1-65536 | events=0:1-0 | | backwards, no-events | 4
)");
    expect_encoded("telephone-event", R"(
the flag of the frame is exactly 1 | frame[2]=1 events=1:5-0 |
no flag | events[0]=1:5-0 |
no entry | events=0:5-0,1:6-0 |
entries behind the end | events[2]=1:5-0,0:0-0,3:6-0 | 5
a single event is a word of 32 bits | events=1:1-1,1:65535-65535 | 65537,4294967295
a range is not checked | events=2:7-3 | 7-3
16 entries | events={2:65535-65535,:15}2:1-2 | {65535-65535,:15}1-2
another kind | events=1:5-0,3:6-7 | | kind:3 | 4
is shown signed | events=2147483648:5-0 | | kind:-2147483648 | 4
events on G729 | events=1:5-0 | | string | 4
)");
}

TEST_F(TelEvent, lists_by_themselves)
{
    char out[256] = "left";
    uint16_t count = 99;
    const auto list = [&](const std::string &events) {
        const block b("telephone-event", "events=" + events);
        return see(
            [&] { return dak_app_sdp_encode_dtmf_tel_event_tag(&b.as<sdp_tel_event_params>(), out, &count); },
            [&] { return std::to_string(count); });
    };
    EXPECT_EQ(list("2:0-15,1:16-0"), outcome(0, "2"));
    EXPECT_STREQ(out, "0-15,16");
    EXPECT_EQ(list("0:0-0"), outcome(0, "0"));
    EXPECT_STREQ(out, "");
    EXPECT_EQ(list(table("{1:1-0,:15}1:2-0")[0][0]), outcome(0, "16"));
    EXPECT_EQ(list("1:1-0,2:3-4,4:0-0"), outcome(4, "2", "kind:4"));
    const sdp_tel_event_params params = {};
    EXPECT_EQ(see([&] { return dak_app_sdp_encode_dtmf_tel_event_tag(nullptr, out, &count); }),
              outcome(3, "", "null-tag"));
    EXPECT_EQ(see([&] { return dak_app_sdp_encode_dtmf_tel_event_tag(&params, nullptr, &count); }),
              outcome(3, "", "null-tag"));
    const auto read = [](const std::string &text) {
        const heap_c_text copy(text);
        const block b("telephone-event", "events=");
        return see(
            [&] { return dak_app_oa_get_dtmf_tel_event(copy.c_str(), b.as<sdp_tel_event_params>().events); },
            [&] { return b.shown(); });
    };
    EXPECT_EQ(read("1;2-3"), outcome(0, "events=1:1-0,2:2-3"));
    EXPECT_EQ(read("1" + std::string(255, ';')), outcome(0, "events=1:1-0"));
    EXPECT_EQ(without_report(read("1" + std::string(256, ';'))), outcome(1, "events=", "over:257"));
    EXPECT_EQ(read(""), outcome(0, "events="));
}

} // namespace
