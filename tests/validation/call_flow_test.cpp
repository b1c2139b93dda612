#include "validation_test.h"

#include "oa/validate_answer.h"
#include "oa/validate_offer.h"

using namespace validation;

namespace {

using CallFlow = PlatformTest;

// A body of one version, whose media lines follow.
session body(int version, const std::string &media)
{
    return session("v=0\no=- 5 " + std::to_string(version) +
                   " IN IP4 192.0.2.1\ns=-\nc=IN IP4 192.0.2.1\nt=0 0\n" + media);
}

uint32_t offered(const session &offer)
{
    return judge({&offer}, [&] { return dak_app_oa_validate_initial_offer(offer.get()); }).code;
}

uint32_t modified(const session &later, const session &earlier)
{
    return judge({&later, &earlier},
                 [&] { return dak_app_oa_validate_modified_sdp(later.get(), earlier.get()); })
        .code;
}

uint32_t answered(const session &answer, const session &offer)
{
    return judge({&answer, &offer}, [&] { return dak_app_oa_validate_answer(answer.get(), offer.get()); })
        .code;
}

const std::string amr = "a=rtpmap:97 AMR/8000\na=fmtp:97 octet-align=1;mode-set=0,2,4,7\n";
const std::string keys = "a=rtpmap:101 telephone-event/8000\na=fmtp:101 0-15\n";
const std::string voice = "m=audio 4000 RTP/AVP 97 101\n" + amr + keys;
const std::string picture = "m=video 4002 RTP/AVPF 113\na=rtpmap:113 H264/90000\na=rtcp-fb:* nack pli\n";

TEST_F(CallFlow, BasicCall)
{
    const std::string wide = "a=rtpmap:96 AMR-WB/16000\n";
    const session offer =
        body(1, "m=audio 4000 RTP/AVP 96 97 101\n" + wide + amr + keys + "a=ptime:20\na=sendrecv\n");
    EXPECT_EQ(offered(offer), 0U);
    // The answerer takes one codec, under a number of its own.
    const std::string narrow =
        "m=audio 5000 RTP/AVP 120 101\na=rtpmap:120 AMR/8000\na=rtpmap:101 telephone-event/8000\n";
    EXPECT_EQ(answered(body(9, narrow + "a=fmtp:101 0-11\na=sendrecv\n"), offer), 0U);
    EXPECT_EQ(answered(body(9, narrow + "a=fmtp:101 0-16\na=sendrecv\n"), offer), 11U);
    EXPECT_EQ(answered(body(9, narrow + "a=sendrecv\n"), offer), 11U);
    EXPECT_EQ(answered(body(9, "m=audio 5000 RTP/AVP 8\na=sendrecv\n"), offer), 11U);
    EXPECT_EQ(answered(body(9, "m=audio 0 RTP/AVP 97\n"), offer), 5U);
}

TEST_F(CallFlow, HoldAndResume)
{
    const session call = body(1, voice), hold = body(2, voice + "a=sendonly\n"),
                  resume = body(3, voice + "a=sendrecv\n");
    EXPECT_EQ(offered(call), 0U);
    EXPECT_EQ(answered(body(1, voice + "a=inactive\n"), call), 0U); // an offer without direction allows any
    EXPECT_EQ(modified(hold, call), 0U);
    EXPECT_EQ(answered(body(2, voice + "a=recvonly\n"), hold), 0U);
    EXPECT_EQ(answered(body(2, "a=inactive\n" + voice), hold), 0U);
    for (const char *direction : {"a=sendonly\n", "a=sendrecv\n", ""})
        EXPECT_EQ(answered(body(2, voice + direction), hold), 10U) << direction;
    EXPECT_EQ(modified(resume, call), 4U); // a version was skipped
    EXPECT_EQ(modified(resume, hold), 0U);
    EXPECT_EQ(answered(body(3, voice + "a=sendrecv\n"), resume), 0U);
    EXPECT_EQ(modified(call, resume), 4U);
}

TEST_F(CallFlow, AddingVideo)
{
    const std::string both = voice + "a=mid:1\n" + picture + "a=mid:2\n", group = "a=group:LS 1 2\n";
    const session unnamed = body(1, voice), call = body(1, voice + "a=mid:1\n"), more = body(2, group + both);
    EXPECT_EQ(offered(call), 0U);
    EXPECT_EQ(modified(more, call), 0U);
    EXPECT_EQ(modified(more, unnamed), 8U); // the audio line had no name
    EXPECT_EQ(answered(body(2, group + both), more), 0U);
    EXPECT_EQ(answered(body(2, both), more), 0U);
    EXPECT_EQ(answered(body(2, voice + "a=mid:1\n"), more), 5U);
    EXPECT_EQ(answered(body(2, group + voice + "a=mid:2\n" + picture + "a=mid:1\n"), more), 8U);
    EXPECT_EQ(answered(body(2, "a=group:FID 1 2\n" + both), more), 7U);
    // Without the picture the group is gone too.
    const std::string rejected = voice + "a=mid:1\nm=video 0 RTP/AVPF 113\na=mid:2\n";
    EXPECT_EQ(answered(body(2, rejected), more), 0U);
    EXPECT_EQ(answered(body(2, group + rejected), more), 7U);
    EXPECT_EQ(modified(body(3, voice + "a=mid:1\n"), more), 5U);
}

TEST_F(CallFlow, Preconditions)
{
    const auto with = [](int version, const char *here, const char *there, const char *strength) {
        return body(version, voice + "a=curr:qos local " + here + "\na=curr:qos remote " + there +
                                 "\na=des:qos mandatory local sendrecv\na=des:qos " + strength +
                                 " remote sendrecv\na=sendrecv\n");
    };
    const session first = with(1, "none", "none", "none"), second = with(2, "sendrecv", "none", "mandatory");
    EXPECT_EQ(offered(first), 0U);
    const session answer = with(1, "none", "none", "mandatory");
    EXPECT_EQ(answered(answer, first), 0U);
    EXPECT_EQ(answered(with(1, "none", "none", "optional"), first), 14U);
    // The offerer has its resources; the other side has to repeat it, and soon has its own.
    EXPECT_EQ(modified(second, first), 0U);
    EXPECT_EQ(answered(with(2, "none", "sendrecv", "mandatory"), second), 0U);
    EXPECT_EQ(answered(with(2, "sendrecv", "sendrecv", "mandatory"), second), 0U);
    EXPECT_EQ(answered(answer, second), 14U);
    EXPECT_EQ(answered(with(2, "sendrecv", "send", "mandatory"), second), 14U);
    EXPECT_EQ(offered(body(1, voice + "a=curr:qos local none\na=des:qos mandatory local sendrecv\n")), 14U);
    EXPECT_EQ(offered(body(1, voice + "a=curr:qos e2e none\na=des:qos mandatory e2e sendrecv\n")), 0U);
    EXPECT_EQ(offered(body(1, voice + "a=des:foo mandatory local send\na=conf:qos remote recv\n")), 0U);
}

TEST_F(CallFlow, FileTransfer)
{
    const std::string file =
        "m=message 7654 TCP/MSRP *\na=sendonly\na=path:msrp://a.example.com:7654/jshA7we;tcp\n"
        "a=accept-types:message/cpim\n"
        "a=file-selector:name:\"lake.jpg\" type:image/jpeg size:4092\na=file-transfer-id:vBnG916bdbe\n";
    const session offer = body(1, file), rejected = body(1, voice + "m=message 0 TCP/MSRP *\n");
    EXPECT_EQ(offered(offer), 5U); // a message line lists no payload formats
    EXPECT_EQ(offered(body(1, voice + file)), 5U);
    EXPECT_EQ(answered(offer, offer), 11U);
    EXPECT_EQ(offered(rejected), 0U);
    EXPECT_EQ(answered(rejected, body(1, voice + file)), 0U);
}

TEST_F(CallFlow, CodecChange)
{
    const session call = body(1, voice);
    EXPECT_EQ(modified(body(2, "m=audio 4000 RTP/AVP 97 101\na=rtpmap:97 EVRC/8000\n" + keys), call), 11U);
    EXPECT_EQ(modified(body(2, "m=audio 4000 RTP/AVP 98 101\na=rtpmap:98 EVRC/8000\n" + keys), call), 0U);
    EXPECT_EQ(modified(body(2, "m=audio 4000 RTP/AVP 97\n"), call), 11U); // a number without its codec
}

// Bodies that parse, and what becomes of them as offers.
TEST_F(CallFlow, OddBodies)
{
    const struct {
        std::string media;
        uint32_t code;
    } rows[] = {
        {"m=audio 4000 RTP/AVP 0 8\n", 0},
        {"m=audio 4000 RTP/AVP 95\n", 11},
        {"m=audio 4000 RTP/AVP 101\n" + keys, 11},
        {"m=audio 4000 RTP/AVP 97 101\n" + amr + "a=rtpmap:101 telephone-event/8000\n", 11},
        {"m=audio 4000 RTP/AVP 96 97\na=rtpmap:96 EVRCWB1/16000\na=fmtp:96 fixedrate=0.5;sendmode=4\n" + amr,
         11},
        {"m=audio 4000 RTP/AVP 96 97\na=rtpmap:96 EVRCWB1/16000\na=fmtp:96 fixedrate=0.5;sendmode=0\n" + amr,
         0},
        {"a=group:BUNDLE 1 2\n" + voice, 0},
        {"a=group:FID\n" + voice + "a=mid:1\n", 7},
        {"a=group:LS 1 2\n" + voice + "a=mid:1\n" + voice + "a=mid:2\n", 7},
        {"b=XX:64\n" + voice, 3},
        {"b=AS:0\n" + voice, 3},
        {voice + "a=ptime\n", 12},
        {voice + "a=ptime:0\n", 12},
        {voice + "a=mid:1\n" + picture + "a=mid:1\n", 8},
        {voice + "a=rtcp-fb:* nack\n", 0},
    };
    for (const auto &row : rows)
        EXPECT_EQ(offered(body(1, row.media)), row.code) << row.media;
    const session offer =
        body(1, "m=audio 4000 RTP/AVP 18 97\na=rtpmap:18 G729/8000\na=fmtp:18 annexb=no\n" + amr);
    EXPECT_EQ(offered(offer), 0U);
    EXPECT_EQ(answered(body(1, "m=audio 4000 RTP/AVP 97\n" + amr), offer),
              11U); // the offer's first codec is unknown
}

} // namespace
