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

uint32_t offered(const session &s) { return call(dak_app_oa_validate_initial_offer, s.get()).code; }

template <auto Validate> uint32_t compared(const session &later, const session &earlier)
{
    return call(Validate, later.get(), earlier.get()).code;
}

const auto modified = compared<dak_app_oa_validate_modified_sdp>;
const auto answered = compared<dak_app_oa_validate_answer>;

const std::string amr = "a=rtpmap:97 AMR/8000\na=fmtp:97 octet-align=1;mode-set=0,2,4,7\n";
const std::string keys = "a=rtpmap:101 telephone-event/8000\na=fmtp:101 0-15\n";
const std::string voice = "m=audio 4000 RTP/AVP 97 101\n" + amr + keys, named_voice = voice + "a=mid:1\n";
const std::string picture = "m=video 4002 RTP/AVPF 113\na=rtpmap:113 H264/90000\na=rtcp-fb:* nack pli\n";

TEST_F(CallFlow, BasicCall)
{
    const session offer = body(1, "m=audio 4000 RTP/AVP 96 97 101\na=rtpmap:96 AMR-WB/16000\n" + amr + keys);
    EXPECT_EQ(offered(offer), 0U);
    // The answerer takes one codec, under a number of its own.
    const std::string narrow =
        "m=audio 5000 RTP/AVP 120 101\na=rtpmap:120 AMR/8000\na=rtpmap:101 telephone-event/8000\n";
    EXPECT_EQ(answered(body(9, narrow + "a=fmtp:101 0-11\na=sendrecv\n"), offer), 0U);
    EXPECT_EQ(answered(body(9, narrow + "a=sendrecv\n"), offer), 11U);
    EXPECT_EQ(answered(body(9, "m=audio 5000 RTP/AVP 8\n"), offer), 11U);
    EXPECT_EQ(answered(body(9, "m=audio 0 RTP/AVP 97\n"), offer), 5U);
}

TEST_F(CallFlow, HoldAndResume)
{
    const session first = body(1, voice), hold = body(2, voice + "a=sendonly\n"),
                  resume = body(3, voice + "a=sendrecv\n");
    EXPECT_EQ(modified(hold, first), 0U);
    EXPECT_EQ(answered(body(2, voice + "a=recvonly\n"), hold), 0U);
    EXPECT_EQ(answered(body(2, voice + "a=sendonly\n"), hold), 10U);
    EXPECT_EQ(modified(resume, first), 4U); // a version was skipped
    EXPECT_EQ(modified(body(2, "m=audio 4000 RTP/AVP 97 101\na=rtpmap:97 EVRC/8000\n" + keys), first), 11U);
    EXPECT_EQ(modified(resume, hold), 0U);
    EXPECT_EQ(answered(body(3, voice + "a=sendrecv\n"), resume), 0U);
}

TEST_F(CallFlow, AddingVideo)
{
    const std::string both = named_voice + picture + "a=mid:2\n", group = "a=group:LS 1 2\n",
                      rejected = named_voice + "m=video 0 RTP/AVPF 113\na=mid:2\n";
    const session more = body(2, group + both);
    EXPECT_EQ(modified(more, body(1, named_voice)), 0U);
    EXPECT_EQ(modified(more, body(1, voice)), 8U); // the audio line had no name
    EXPECT_EQ(answered(more, more), 0U);
    EXPECT_EQ(answered(body(2, group + voice + "a=mid:2\n" + picture + "a=mid:1\n"), more), 8U);
    EXPECT_EQ(answered(body(2, rejected), more), 0U); // without the picture the group is gone too
    EXPECT_EQ(answered(body(2, group + rejected), more), 7U);
}

TEST_F(CallFlow, Preconditions)
{
    const auto with = [](int version, const char *here, const char *there, const char *strength) {
        return body(version, voice + "a=curr:qos local " + here + "\na=curr:qos remote " + there +
                                 "\na=des:qos mandatory local sendrecv\na=des:qos " + strength +
                                 " remote sendrecv\na=sendrecv\n");
    };
    const session first = with(1, "none", "none", "none"), second = with(2, "sendrecv", "none", "mandatory"),
                  answer = with(1, "none", "none", "mandatory");
    EXPECT_EQ(offered(first), 0U);
    EXPECT_EQ(answered(answer, first), 0U);
    EXPECT_EQ(answered(with(1, "none", "none", "optional"), first), 14U);
    // The offerer has its resources; the other side has to repeat it, and soon has its own.
    EXPECT_EQ(modified(second, first), 0U);
    EXPECT_EQ(answered(with(2, "sendrecv", "sendrecv", "mandatory"), second), 0U);
    EXPECT_EQ(answered(answer, second), 14U);
    EXPECT_EQ(offered(body(1, voice + "a=curr:qos e2e none\na=des:qos mandatory e2e sendrecv\n")), 0U);
}

TEST_F(CallFlow, FileTransfer)
{
    const std::string file =
        "m=message 7654 TCP/MSRP *\na=sendonly\na=path:msrp://a.example.com:7654/x;tcp\n";
    const session offer = body(1, file), rejected = body(1, voice + "m=message 0 TCP/MSRP *\n");
    EXPECT_EQ(offered(offer), 5U); // a message line lists no payload formats
    EXPECT_EQ(answered(offer, offer), 11U);
    EXPECT_EQ(offered(rejected), 0U);
    EXPECT_EQ(answered(rejected, body(1, voice + file)), 0U);
}

} // namespace
