#include "sdp/parser.h"

#include "sdp/line_match.h"
#include "support.h"
#include "table.h"

namespace {

class Parser : public PlatformTest {};

// The lines of a dump without their indentation, joined by ";".
std::string one_line(const std::string &dump)
{
    std::istringstream in(dump);
    std::string text;
    for (std::string line; std::getline(in, line);)
        text += (text.empty() ? "" : "; ") + line.substr(line.starts_with("  ") ? 2 : 0);
    return text;
}

TEST_F(Parser, bodies_become_documents)
{
    table::for_each_row("bodies.txt", [](const table::row &row) {
        outcome seen = parse(row.at("body"));
        seen.text = one_line(seen.text);
        EXPECT_EQ(seen, table::expected(row));
    });
}

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

// Each reader gives 1 and leaves the position where the next one begins.
TEST_F(Parser, session_lines_end_where_the_first_section_begins)
{
    const context_ptr context(init_sdp_lib());
    const heap_text text("v=0\ns=-\nm=audio 9 RTP/AVP 0\n");
    const char *position = text.begin();
    EXPECT_EQ(parse_session_info(context.get(), &position, text.end()), 1);
    EXPECT_EQ(position - text.begin(), 7);
    EXPECT_EQ(parse_media_description(context.get(), position, text.end()), 1);
    EXPECT_EQ(one_line(dump(context.get(), SDP_PARSER_DOCUMENT)), "v=0; s=-; m=audio 9/1 RTP/AVP; 0");
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
