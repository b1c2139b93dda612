#include "sdp/parser.h"

#include "sdp/line_match.h"
#include "support.h"

namespace {

class Parser : public PlatformTest {};

TEST_F(Parser, line_ends_blank_lines_and_indentation_make_no_difference)
{
    const std::string lines =
        "~v=0~s=-~m=audio 9 RTP/AVP 97 0~b=AS:41~a=rtpmap:97 AMR/8000~a=fmtp:97 crc=1~a=ptime:20~"
        "m=video 0 RTP/AVP 99~a=rtpmap:99 H264/90000";
    const std::string held =
        "v=0\ns=-\nm=audio 9/1 RTP/AVP\n  b=AS:41\n  97 AMR/8000/1 crc=1\n  0\n  a=fmtp:97 crc=1\n"
        "  a=ptime:20\nm=video 0/1 RTP/AVP\n  99 H264/90000/1\n";
    for (const std::string line_end : {"\r\n", "\n", "\r", "\r\n\r\n", "\n \t"})
        for (const std::string &last : {line_end, std::string(), std::string("\0\rx=1", 5)}) {
            std::string body;
            for (const char c : lines)
                body += c == '~' ? line_end : std::string(1, c);
            EXPECT_EQ(parse(body + last), (outcome{1, held})) << testing::PrintToString(body + last);
        }
}

TEST_F(Parser, a_session_part_is_read_strictly)
{
    const std::pair<outcome, std::vector<std::string>> rows[] = {
        {{1, "v=0\nt=0 0\nt=1 1\n"},
         {"t=0 0\nv=0\nt=1 1\n", "v= 0\n \tt=\t0 0 \t\nt=1 1"}}, // any order, any number
        {{1, "m=audio 9/1 RTP/AVP\n  i=x\n"}, {"m=audio 9 RTP/AVP\ni=x\n"}},
        {{1, ""}, {" \r\n\t\n"}},
        {{1, "s=\n"}, {"s=", "s= \n"}},
        {{1, "i=" + xs(198) + "\n"}, {"i=" + xs(198) + "\n"}},
        {refused, {"", "i=" + xs(199) + "\n", "i=" + xs(190) + "         \n", "s\n", "s =-\n"}},
        {logged(0, "", "v=0\n"), {"v=0\nx=1\ns=-\n", "v=0\nS=-\n"}},
    };
    for (const auto &[seen, bodies] : rows)
        for (const std::string &body : bodies)
            EXPECT_EQ(parse(body), seen) << body;
}

TEST_F(Parser, a_media_line_is_read_strictly)
{
    std::string twenty, listed;
    for (int number = 90; number < 110; ++number) {
        twenty += " " + std::to_string(number);
        listed += "\n  " + std::to_string(number);
    }
    const std::pair<std::string, std::string> rows[] = {
        {"audio 49170/2 RTP/AVP 96  97 96", "audio 49170/2 RTP/AVP\n  96\n  97"},
        {"message 7394 TCP/MSRP *", "message 7394/1 TCP/MSRP format *"},
        {"audio 9 RTP/AVP 96. . 96a 4294967296", "audio 9/1 RTP/AVP format 4294967296\n  96\n  0"},
        {"audio 9 RTP/AVP" + twenty + " 97", "audio 9/1 RTP/AVP" + listed},
        {xs(199) + " 9 " + xs(199) + " " + xs(199), xs(199) + " 9/1 " + xs(199) + " format " + xs(199)},
    };
    for (const auto &[line, held] : rows)
        EXPECT_EQ(parse("m=" + line + "\r\n").text, "m=" + held + "\n") << line;
    std::vector<std::string> bad = {
        "audio 9x x", "audio /2 x", "audio 9/ x", "audio 9/x x", "audio 9", "audio", ""};
    bad.insert(bad.end(), {xs(200) + " 9 x", "audio 9 " + xs(200), "audio 9 x " + xs(200),
                           "audio 9 x" + twenty + " 110"});
    for (const std::string &line : bad) {
        const outcome seen = parse("m=" + line + "\r\n");
        EXPECT_TRUE(seen.result == 0 && seen.reported && seen.text.empty()) << line;
    }
}

// A bad attribute is logged and kept as text as far as it can be; the next line is read all the same.
TEST_F(Parser, attributes_are_read_leniently)
{
    const std::string no_name = "parse sdp a=, no values parsed ";
    const std::string parse_error = "process_media_attribute :                              parse ";
    const std::tuple<const char *, const char *, std::string, std::string, std::string> rows[] = {
        // of several rtpmap lines those in front of the first of use are logged and kept
        {"RTP/AVP", " 97", "a=rtpmap:99 X/1\na=rtpmap 97 X/1\na=rtpmap:97 X/1\na=rtpmap:99 Y/1\na=rtpmap:x\n",
         "  97 X/1/1\n  a=rtpmap:99 X/1\n  a=rtpmap 97 X/1\n", "parse rtpmap err |parse rtpmap err "},
        {"RTP/AVP", " 97", "a=fmtp:97 crc=1\na=rtpmap:97 AMR/8000\n",
         "  97 AMR/8000/1 crc=1\n  a=fmtp:97 crc=1\n", ""},
        {"RTP/AVP", " 97", "a=fmtp:99 crc=1\n", "  97\n  a=fmtp:99 crc=1\n", "parse fmtp err "},
        {"RTP/AVP", "", "a=rtcp:9 IN IP4 a\n", "  rtcp 9 1 IN 0 a\n  a=rtcp:9 IN IP4 a\n", ""},
        {"RTP/AVP", "", "a=rtcp:9\n", "  a=rtcp:9\n", ""},
        {"RTP/AVPF", " 97", "a=rtcp-fb:97 nack\na=rtcp-fb\n",
         "  97 feedback\n  a=rtcp-fb:97 nack\n  a=rtcp-fb\n", parse_error + "rtcp-fb error \n"},
        {"RTP/AVP", "", "a=description:x\n", "  a=description:x\n", // begins like a precondition
         "parse_a_equal_pcd_line :                          unknown pcd attribute type \n|" + parse_error +
             "pcd error \n"},
        {"TCP/MSRP", "", "a=accept-types\na=accept-wrapped-types\na=path\na=max-size\n",
         "  a=accept-types\n  a=accept-wrapped-types\n  a=path\n  a=max-size\n",
         "parse accept-type err |parse accept-type err |parse accept-type err |parse file selector err "},
        {"TCP/MSRP", "", "a=file-transfer-id\na=file-disposition\na=file-date\na=file-icon\na=file-range\n",
         "  a=file-transfer-id\n  a=file-disposition\n  a=file-date\n  a=file-icon\n  a=file-range\n",
         "parse file transfer id err |parse file disposition err |parse file date err |parse file icon err "
         "|parse file range err "},
        {"RTP/AVP", "",
         "x=1\n\tc= IN \t\nb=" + xs(199) + "\ni=" + xs(198) + "\nC=IN\nb=1\nb=2\nb=3\nb=4\nb=5\na\n",
         "  i=" + xs(198) + "\n  c=IN\n  b=1\n  b=2\n  b=3\n  b=4\n", "parse media attribute val "},
        {"RTP/AVP", "",
         "a=\na=:y\na= x : y\tz:1=2 \na=x: \na=" + xs(199) + "\na=x:" + xs(198) + "\na=x:" + xs(197) + "\n",
         "  a=x:y\tz:1=2\n  a=x\n  a=x:" + xs(197) + "\n  a=x:" + xs(197) + "\n",
         no_name + "|" + no_name + "|" + no_name +
             "|len of src str to be printed exceeded dst str len200 \n|parse sdp a= "},
    };
    for (const auto &[profile, payload, lines, held, log] : rows) {
        outcome seen = parse(std::string("m=x 1 ") + profile + payload + "\n" + lines + "m=y 1 z\n");
        seen.reported = false;
        EXPECT_EQ(seen, (outcome{1, std::string("m=x 1/1 ") + profile + "\n" + held + "m=y 1/1 z\n", log}))
            << lines;
    }
}

TEST_F(Parser, lines_are_known_by_how_they_begin)
{
    EXPECT_EQ(find_tag("a=fmtp", "a=fmtp:97"), 1);
    EXPECT_EQ(find_tag("a=fmtp", "A=fmtp:97") + find_tag("a=fmtp", "a=f"), 0);
    EXPECT_EQ(find_string("IP6", "c=IN IP6 ::1") + find_string("y", (xs(254) + "y").c_str()), 2);
    EXPECT_EQ(find_string("y", (xs(255) + "y").c_str()), 0) << "only 255 characters are searched";
    for (const auto &[line, found] :
         {std::pair("m=audio", 1), std::pair("m=", 1), std::pair("m", 0), std::pair("M=", 0)}) {
        const heap_text text(line);
        EXPECT_EQ(find_media_description(text.begin(), text.end()), found) << line;
    }
}

} // namespace
