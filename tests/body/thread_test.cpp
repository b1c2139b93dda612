// Calls are independent: threads that each work on containers of their own need no lock.

#include "platform_test.h"

#include "daksdp.h"

#include <string>
#include <thread>
#include <vector>

namespace {

constexpr const char *body = "v=0\r\no=- 1 1 IN IP4 192.0.2.1\r\ns=-\r\nc=IN IP4 192.0.2.1\r\nt=0 0\r\n"
                             "m=audio 49170 RTP/AVP 97 101\r\n"
                             "a=rtpmap:97 AMR/8000\r\na=fmtp:97 mode-set=0,2,4,7\r\n"
                             "a=rtpmap:101 telephone-event/8000\r\na=fmtp:101 0-15\r\n";

// Parses the body, validates it and writes it out again.
std::string rewrite()
{
    std::string text = body;
    sdp_payload_buffer received = {text.data(), static_cast<uint16_t>(text.size())};
    std::string rewritten(1024, '\0');
    sdp_payload_buffer buffer = {rewritten.data(), static_cast<uint16_t>(rewritten.size())};
    sdp_container container = {};
    const bool is_good = dak_app_oa_parse_sdp(&container, &received) == SDP_OA_SUCCESS &&
                         dak_app_oa_validate_initial_offer(&container) == SDP_VALID &&
                         dak_app_oa_generate_sdp(&container, &buffer) == SDP_OA_SUCCESS;
    dak_app_oa_cleanup_sdp_container(&container);
    return is_good ? rewritten : "";
}

} // namespace

TEST(Threads, give_the_same_text_as_one_alone)
{
    constexpr int rounds = 50;
    const std::string alone = rewrite();
    ASSERT_NE(alone, "");
    std::vector<std::string> texts(8);
    std::vector<std::thread> threads;
    for (std::string &text : texts) {
        threads.emplace_back([&text, &alone] {
            text = alone;
            for (int i = 0; i < rounds && text == alone; ++i)
                text = rewrite();
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(texts, std::vector<std::string>(texts.size(), alone));
}
