#include "attr/message_session.h"
#include "support.h"
#include "table.h"

// Attribute lines of a media section, each read by the reader of its attribute.
namespace {

class Lines : public PlatformTest {};

int read_rtpmap(media_description *section, const char *line_start, const char *line_end)
{
    uint32_t number = 0, rate = 0, parameter = 0;
    char name[200] = "";
    if (!parse_a_euqal_rtpmap(line_start, line_end, &number, name, &rate, &parameter))
        return 0;
    return add_media_codec_to_media_description(section, int32_t(number), name, rate, parameter) >= 0;
}

int read_rtcp(media_description *section, const char *line_start, const char *line_end)
{
    uint32_t port = 0;
    rtcp_address_info address = {7, 7, "?", "?"};
    if (!parse_a_euqal_rtcp(line_start, line_end, &port, &address))
        return 0;
    return add_media_rtcp_port_to_media_description(section, port, address);
}

line_reader reader_of(const std::string &line)
{
    static const std::pair<const char *, line_reader> readers[] = {
        {"a=rtpmap", read_rtpmap},
        {"a=fmtp", parse_a_equal_fmtp_line},
        {"a=rtcp-fb", dak_sdp_parse_a_equal_rtcp_fb_line},
        {"a=rtcp", read_rtcp},
        {"a=accept-types", dak_sdp_parse_a_equal_accept_type_line},
        {"a=accept-wrapped-types", dak_sdp_parse_a_equal_accept_wrapped_type_line},
        {"a=path", dak_sdp_parse_a_equal_path_line},
        {"a=max-size", dak_sdp_parse_a_equal_max_size_line},
        {"a=file-transfer-id", dak_sdp_parse_a_equal_file_transfer_id_line},
        {"a=file-disposition", dak_sdp_parse_a_equal_file_disposition_line},
        {"a=file-date", dak_sdp_parse_a_equal_file_date_line},
        {"a=file-icon", dak_sdp_parse_a_equal_file_icon_line},
        {"a=file-range", dak_sdp_parse_a_equal_file_range_line},
        {"a=file-selector", dak_sdp_parse_a_equal_file_selector_line},
    };
    for (const auto &[beginning, reader] : readers)
        if (line.starts_with(beginning))
            return reader;
    return parse_a_equal_pcd_line;
}

std::vector<std::string> split(const std::string &text)
{
    std::istringstream in(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

// What reading has changed in a section, its lines joined by ";".
std::string changes(media_description *section, const std::vector<std::string> &before)
{
    std::string text;
    for (const std::string &line : split(dump(section)))
        if (std::find(before.begin(), before.end(), line) == before.end())
            text += (text.empty() ? "" : "; ") + line.substr(2);
    return text;
}

// Reads lines into a section; a 0 for one is a 0 for all.
int read(const std::string &lines, media_description *section, std::string_view line_end = "\n")
{
    int result = 1;
    for (const std::string &line : split(lines))
        result &= read_line(reader_of(line), section, line, line_end);
    return result;
}

TEST_F(Lines, fill_the_records_of_their_section)
{
    for (const char *file : {"fmtp.txt", "feedback.txt", "preconditions.txt", "message_session.txt",
                             "file_transfer.txt", "rtpmap.txt"})
        table::for_each_row(file, [](const table::row &row) {
            for (const std::string_view line_end : line_ends) {
                const section_ptr section = new_section(row.at("section"));
                const std::vector<std::string> before = split(dump(section));
                EXPECT_EQ(outcome_of([&] { return read(row.at("lines"), section, line_end); },
                                     [&] { return changes(section, before); }),
                          table::expected(row))
                    << testing::PrintToString(line_end);
            }
        });
}

TEST_F(Lines, are_written_from_the_records)
{
    table::for_each_row("written.txt", [](const table::row &row) {
        section_ptr section = new_section(row.at("section"));
        EXPECT_EQ(read(row.at("lines"), section), 1);
        outcome seen = written([&](sdp_lib_context *context) {
            add_media_description_to_sdp_encoder(context, section.release());
            return dak_sdp_encode_media_description_by_index(context, 0);
        });
        seen.text.erase(0, seen.text.find('\n') + 1);
        EXPECT_EQ(seen, table::expected(row));
    });
}

// Every block ends behind the line's terminator, so that the address sanitizer sees a reader that goes one
// character too far.
TEST_F(Lines, may_have_any_length_and_any_character)
{
    constexpr std::string_view fills("x9 \t:=;\"/@[]*-%\x80\xFF\0\x01", 19);
    constexpr std::size_t lengths[] = {0, 1, 196, 197, 198, 199, 200, 255, 256, 65000, 65536};
    table::for_each_row("hostile_lines.txt", [&](const table::row &row) {
        const std::string &beginning = row.at("beginning");
        for (const char fill : fills)
            for (const std::size_t length : lengths) {
                const section_ptr section = new_section(row.at("section"));
                const int result =
                    read_line(reader_of(beginning), section, beginning + std::string(length, fill),
                              length % 2 != 0 ? "\r" : "\n");
                EXPECT_TRUE(result == 0 || (result == 1 && (fill != 'x' || length < 200))) << fill << length;
            }
    });
}

} // namespace
