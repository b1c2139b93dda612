// Reading the lines of a media section behind its m= line.

#include "sdp/parser.h"

#include "attr/file_transfer.h"
#include "attr/message_session.h"
#include "attr/precondition.h"
#include "attr/rtcp_fb.h"
#include "codec/fmtp_parse.h"
#include "sdp/attribute_lines.h"
#include "sdp/line_match.h"
#include "sdp/media_codecs.h"
#include "sdp/media_values.h"
#include "sdp/rtcp_address.h"
#include "sdp/rtpmap.h"
#include "util/line_scan.h"
#include "util/report.hpp"
#include "util/text_range.hpp"

using namespace dak;

namespace {

struct attribute_reader {
    const char *tag;
    int (*read)(media_description *description, const char *line_start, const char *line_end);
    const char *failure;
};

// The first tag that begins a line decides. Some failures are logged under another attribute's name; log
// filters match on these texts.
constexpr attribute_reader attribute_readers[] = {
    {"a=accept-types", dak_sdp_parse_a_equal_accept_type_line, "parse accept-type err "},
    {"a=accept-wrapped-types", dak_sdp_parse_a_equal_accept_wrapped_type_line, "parse accept-type err "},
    {"a=path", dak_sdp_parse_a_equal_path_line, "parse accept-type err "},
    {"a=file-transfer-id", dak_sdp_parse_a_equal_file_transfer_id_line, "parse file transfer id err "},
    {"a=file-disposition", dak_sdp_parse_a_equal_file_disposition_line, "parse file disposition err "},
    {"a=file-date", dak_sdp_parse_a_equal_file_date_line, "parse file date err "},
    {"a=file-icon", dak_sdp_parse_a_equal_file_icon_line, "parse file icon err "},
    {"a=file-range", dak_sdp_parse_a_equal_file_range_line, "parse file range err "},
    {"a=file-selector", dak_sdp_parse_a_equal_file_selector_line, "parse file selector err "},
    {"a=max-size", dak_sdp_parse_a_equal_max_size_line, "parse file selector err "},
    {"a=fmtp", parse_a_equal_fmtp_line, "parse fmtp err "},
    {"a=curr", parse_a_equal_pcd_line,
     "process_media_attribute :                              parse pcd error \n"},
    {"a=des", parse_a_equal_pcd_line,
     "process_media_attribute :                              parse pcd error \n"},
    {"a=conf", parse_a_equal_pcd_line,
     "process_media_attribute :                              parse pcd error \n"},
    {"a=rtcp-fb", dak_sdp_parse_a_equal_rtcp_fb_line,
     "process_media_attribute :                              parse rtcp-fb error \n"},
};

// Finds the next line of the section; false at the next m= line and at the end of the text.
bool next_line_of_section(const char *position, const char *end, const char *&line_start,
                          const char *&line_end)
{
    return get_next_line(position, end, &line_start, &line_end) &&
           !find_media_description(line_start, line_end);
}

void bind_rtcp(media_description *description, const char *line_start, const char *line_end)
{
    uint32_t port = 0;
    rtcp_address_info address;
    if (parse_a_euqal_rtcp(line_start, line_end, &port, &address))
        add_media_rtcp_port_to_media_description(description, port, address);
}

// Binds an a=rtpmap line; its codec index, or -1.
int bind_rtpmap(media_description *description, const char *line_start, const char *line_end)
{
    uint32_t payload_number = 0;
    char encoding_name[200];
    uint32_t clock_rate = 0;
    uint32_t encoding_param = 0;
    if (!parse_a_euqal_rtpmap(line_start, line_end, &payload_number, encoding_name, &clock_rate,
                              &encoding_param))
        return -1;
    return add_media_codec_to_media_description(description, static_cast<int32_t>(payload_number),
                                                encoding_name, clock_rate, encoding_param);
}

// First pass: formats get their names before any fmtp line is read, wherever it stands.
void read_bindings(media_description *description, const char *position, const char *end)
{
    const char *line_start = nullptr;
    const char *line_end = nullptr;
    int bound = -1; // only failures in front of the section's first success are logged and kept
    for (; next_line_of_section(position, end, line_start, line_end); position = line_end) {
        const text_range line(line_start, line_end);
        if (line.begins_with("a=rtcp:"))
            bind_rtcp(description, line_start, line_end);
        if (!line.begins_with("a=rtpmap"))
            continue;
        const int index = bind_rtpmap(description, line_start, line_end);
        bound = index >= 0 ? index : bound;
        if (bound < 0) {
            DAK_LOG("parse rtpmap err ");
            parse_sdp_attribute(description, line_start, line_end);
        }
    }
}

void read_structured(media_description *description, const char *line_start, const char *line_end)
{
    const text_range line(line_start, line_end);
    for (const attribute_reader &reader : attribute_readers) {
        if (!line.begins_with(reader.tag))
            continue;
        if (!reader.read(description, line_start, line_end))
            log_text(reader.failure);
        return;
    }
}

// Every line but a=rtpmap is kept as text too, whether it was read into a record or not.
void read_line(media_description *description, const char *line_start, const char *line_end)
{
    const text_range line(line_start, line_end);
    read_structured(description, line_start, line_end);
    if (line.begins_with("a=rtpmap"))
        return;
    if (line.begins_with("a="))
        parse_sdp_attribute(description, line_start, line_end);
    else if (!parse_media_description_value(description, line_start, line_end))
        DAK_LOG("parse media attribute val ");
}

} // namespace

int process_media_attribute(const char **position, const char *end, media_description *description)
{
    if (position == nullptr || *position == nullptr || end == nullptr || description == nullptr)
        return fail();
    read_bindings(description, *position, end);
    const char *line_start = nullptr;
    const char *line_end = nullptr;
    for (; next_line_of_section(*position, end, line_start, line_end); *position = line_end)
        read_line(description, line_start, line_end);
    return 1;
}
