// Reading the lines of a media section behind its m= line.

#include "sdp/parser.h"

#include "attr/file_transfer.h"
#include "attr/message_session.h"
#include "attr/precondition.h"
#include "attr/rtcp_fb.h"
#include "codec/fmtp_parse.h"
#include "sdp/attribute_lines.h"
#include "sdp/attribute_nodes.hpp"
#include "sdp/media_codecs.h"
#include "sdp/media_values.h"
#include "sdp/parser.hpp"
#include "sdp/rtcp_address.h"
#include "sdp/rtpmap.h"
#include "sdp/section_lines.hpp"
#include "util/fixed_text.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

struct attribute_reader {
    fixed_text<23> name;
    int (*read)(media_description *description, const char *line_start, const char *line_end);
    const char *failure;
};

// The first name that begins an attribute decides; those of most lines come first. Some failures are logged
// under another attribute's name; log filters match on these texts.
constexpr attribute_reader attribute_readers[] = {
    {"fmtp", parse_a_equal_fmtp_line, "parse fmtp err "},
    {"curr", parse_a_equal_pcd_line,
     "process_media_attribute :                              parse pcd error \n"},
    {"des", parse_a_equal_pcd_line,
     "process_media_attribute :                              parse pcd error \n"},
    {"conf", parse_a_equal_pcd_line,
     "process_media_attribute :                              parse pcd error \n"},
    {"rtcp-fb", dak_sdp_parse_a_equal_rtcp_fb_line,
     "process_media_attribute :                              parse rtcp-fb error \n"},
    {"accept-types", dak_sdp_parse_a_equal_accept_type_line, "parse accept-type err "},
    {"accept-wrapped-types", dak_sdp_parse_a_equal_accept_wrapped_type_line, "parse accept-type err "},
    {"path", dak_sdp_parse_a_equal_path_line, "parse accept-type err "},
    {"file-transfer-id", dak_sdp_parse_a_equal_file_transfer_id_line, "parse file transfer id err "},
    {"file-disposition", dak_sdp_parse_a_equal_file_disposition_line, "parse file disposition err "},
    {"file-date", dak_sdp_parse_a_equal_file_date_line, "parse file date err "},
    {"file-icon", dak_sdp_parse_a_equal_file_icon_line, "parse file icon err "},
    {"file-range", dak_sdp_parse_a_equal_file_range_line, "parse file range err "},
    {"file-selector", dak_sdp_parse_a_equal_file_selector_line, "parse file selector err "},
    {"max-size", dak_sdp_parse_a_equal_max_size_line, "parse file selector err "},
};

// A bit for each letter that begins a reader's name.
constexpr uint32_t initials = [] {
    uint32_t letters = 0;
    for (const attribute_reader &reader : attribute_readers)
        letters |= letter_bit(*reader.name.c_str());
    return letters;
}();

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

// First pass: formats get their names before any fmtp line is read, wherever it stands. Gives the number of
// lines that the second pass keeps as attributes.
uint32_t read_bindings(media_description *description, section_lines &lines)
{
    uint32_t kept = 0;
    int bound = -1; // only failures in front of the section's first success are logged and kept
    for (text_range line = lines.next(); !line.empty(); line = lines.next()) {
        if (line.begins_with("a=rtcp:"))
            bind_rtcp(description, line.first, line.last);
        if (!line.begins_with("a=rtpmap")) {
            kept += line.begins_with("a=");
            continue;
        }
        const int index = bind_rtpmap(description, line.first, line.last);
        bound = index >= 0 ? index : bound;
        if (bound < 0) {
            DAK_LOG("parse rtpmap err ");
            parse_sdp_attribute(description, line.first, line.last);
        }
    }
    return kept;
}

// Names that begin alike mostly end in other letters.
bool is_read_by(const attribute_reader &reader, text_range attribute)
{
    const char *name = reader.name.c_str();
    const size_t last = reader.name.length() - 1;
    return *name == *attribute.first && last < attribute.length() && name[last] == attribute.first[last] &&
           attribute.begins_with(text_range(reader.name));
}

const attribute_reader *find_reader(text_range attribute)
{
    if (attribute.empty() || (initials & letter_bit(*attribute.first)) == 0)
        return nullptr;
    for (const attribute_reader &reader : attribute_readers) {
        if (is_read_by(reader, attribute))
            return &reader;
    }
    return nullptr;
}

// Whether nothing would be reported if an attribute were kept: that it is too long, or that memory ran out.
bool is_kept_silently(const media_description &description, text_range attribute)
{
    return attribute.length() < sizeof session_value::text - 1 && description.attribute_block != nullptr;
}

// Every attribute but rtpmap is a generic one too, whether it was read into a record or not; the container
// layer looks for no text of those that a reader takes.
void read_attribute(media_description *description, text_range line, audience seen_by)
{
    const text_range attribute(line.first + 2, line.last);
    if (attribute.begins_with("rtpmap"))
        return;
    const attribute_reader *reader = find_reader(attribute);
    if (reader != nullptr && !reader->read(description, line.first, line.last))
        log_text(reader->failure);
    const bool is_wanted = reader == nullptr || seen_by == audience::caller;
    if (is_wanted || !is_kept_silently(*description, attribute))
        parse_sdp_attribute(description, line.first, line.last);
}

void read_line(media_description *description, text_range line, audience seen_by)
{
    if (line.begins_with("a="))
        read_attribute(description, line, seen_by);
    else if (!parse_media_description_value(description, line.first, line.last))
        DAK_LOG("parse media attribute val ");
}

} // namespace

int dak::read_section(const char **position, const char *end, media_description *description,
                      audience seen_by)
{
    if (position == nullptr || *position == nullptr || end == nullptr || description == nullptr)
        return fail();
    section_lines lines(*position, end);
    reserve_attributes(*description, read_bindings(description, lines));
    lines.rewind();
    for (text_range line = lines.next(); !line.empty(); line = lines.next()) {
        read_line(description, line, seen_by);
        *position = line.last;
    }
    return 1;
}

int process_media_attribute(const char **position, const char *end, media_description *description)
{
    return read_section(position, end, description, audience::caller);
}
