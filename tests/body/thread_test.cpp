// Contexts are independent: threads that each work on their own need no lock.

#include "platform_test.h"

#include "daksdp.h"

#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

constexpr const char *body = "v=0\r\no=- 1 1 IN IP4 192.0.2.1\r\ns=-\r\nt=0 0\r\n"
                             "m=audio 49170 RTP/AVP 97 101\r\n"
                             "a=rtpmap:97 AMR/8000\r\na=fmtp:97 mode-set=0,2,4,7\r\n"
                             "a=rtpmap:101 telephone-event/8000\r\na=fmtp:101 0-15\r\n";

// Parses the body and writes the parsed document out again.
std::string rewrite()
{
    sdp_lib_context *context = init_sdp_lib();
    std::string text;
    if (sdp_parse(context, body, static_cast<uint32_t>(std::string(body).size())) == 1) {
        std::swap(context->encoder_document, context->parser_document);
        if (dak_sdp_encode(context) == 1)
            text = get_sdp_text(context);
    }
    clean_sdp_lib(context);
    return text;
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
