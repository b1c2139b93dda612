#include <ctime>

#include "support.h"

namespace {

class Hostile : public PlatformTest {};

std::string repeated(const std::string &line, std::size_t size)
{
    std::string text;
    while (text.size() + line.size() <= size)
        text += line;
    return text;
}

// The least processor time of several runs.
double seconds(const std::string &body)
{
    double least = 1e9;
    for (int run = 0; run < 5; ++run) {
        const std::clock_t start = std::clock();
        const context_ptr context(init_sdp_lib());
        sdp_parse(context.get(), body.data(), uint32_t(body.size()));
        least = std::min(least, double(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return least;
}

// A body of 65,535 bytes of one kind of line takes about eight times as long as one of 8,192 bytes, not 64
// times.
TEST_F(Hostile, time_grows_with_the_body)
{
    const std::string amr = "m=a 1 b 0\na=rtpmap:0 AMR/8000\n", fb = "m=a 1 RTP/AVPF 0\n",
                      msrp = "m=a 1 TCP/MSRP *\n";
    const std::pair<std::string, std::string> rows[] = {{"", "t=0 0\n"},
                                                        {"", "a=x\n"},
                                                        {"v=0", "\r"},
                                                        {"s=", "x"},
                                                        {"m=a 1 b", " 0"},
                                                        {"m=a 1 b", " x"},
                                                        {amr, "a=rtpmap:0 AMR/1\n"},
                                                        {amr, "a=fmtp:0 crc=1\n"},
                                                        {amr + "a=fmtp:0 ", ";"},
                                                        {amr, "a=curr:x\n"},
                                                        {fb, "a=rtcp-fb:0 nack\n"},
                                                        {fb, "a=rtcp-fb:* ccm fir\n"},
                                                        {amr, "a=rtcp:1 IN IP4 x\n"},
                                                        {amr, "b=x\n"},
                                                        {amr + "a=", "x:"},
                                                        {msrp, "a=accept-types:* x\n"},
                                                        {msrp, "a=path:msrp://a:1/s;tcp\n"},
                                                        {msrp, "a=file-selector:size:1\n"}};
    for (const auto &[head, line] : rows) {
        const double small = seconds(head + repeated(line, 8192));
        EXPECT_LT(seconds((head + repeated(line, 65535)).substr(0, 65535)), 24 * std::max(small, 0.0002))
            << head << line;
    }
}

TEST_F(Hostile, more_than_a_document_holds_is_refused)
{
    const std::string media = "m=audio 9 RTP/AVP 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19\n";
    const std::tuple<const char *, std::string, uint32_t, int, int> rows[] = {
        {"thirty sections of twenty payloads", repeated(media, 30 * media.size()), 0, 1, 30},
        {"thirty-one sections", repeated(media, 31 * media.size()), 0, 0, 30},
        {"a twenty-first payload", media + media.substr(0, media.size() - 1) + " 20\n", 0, 0, 1},
        {"a NUL in a media line", std::string("m=a 1 b\nm=a\0 1 b\n", 17), 0, 0, 1},
        {"a NUL behind a line", std::string("m=a 1 b\n\0m=a 1 b\n", 17), 0, 1, 1},
        {"a length behind the end of the text", "m=a 1 b\n", UINT32_MAX, 1, 1},
        {"8-bit characters", "s=\xFF\x80\nm=\xFE 1 \xFD \xFC\na=\xC3\xA9:\x80\n", 0, 1, 1},
    };
    for (const auto &[label, body, length, result, sections] : rows) {
        const context_ptr context(init_sdp_lib());
        const heap_c_text text(body);
        EXPECT_EQ(sdp_parse(context.get(), text.c_str(), length != 0 ? length : uint32_t(text.size())),
                  result)
            << label;
        EXPECT_EQ(get_number_of_media_description(context.get(), 1), sections) << label;
    }
}

} // namespace
