#include "sdp/parser.h"

#include "sdp/document.h"
#include "sdp/document.hpp"
#include "sdp/line_match.h"
#include "sdp/media_description.h"
#include "sdp/parser.hpp"
#include "sdp/session_values.h"
#include "util/report.hpp"
#include "util/scan.hpp"

#include <string.h>

using namespace dak;

namespace {

// Reads one section into the document; what it allocated is released on failure.
int parse_section(sdp_info_container *document, const char *line_start, const char **position,
                  const char *end, read_attributes handling)
{
    media_description *description = init_empty_media_description();
    if (description == nullptr)
        return fail();
    if (process_media_description(line_start, *position, description) &&
        read_section(position, end, description, handling) &&
        add_media_description_to_sdp_container(document, description))
        return 1;
    clean_media_description(description);
    return fail();
}

int parse_sections(sdp_lib_context *context, const char *position, const char *end, read_attributes handling)
{
    sdp_info_container *document = selected_document(context, SDP_PARSER_DOCUMENT);
    if (document == nullptr || position == nullptr || end == nullptr)
        return fail();
    for (text_range line = next_line(position, end); !line.empty(); line = next_line(position, end)) {
        position = line.last;
        if (find_media_description(line.first, line.last) &&
            !parse_section(document, line.first, &position, end, handling))
            return 0;
    }
    return 1;
}

int parse_text(sdp_lib_context *context, const char *text, size_t length, read_attributes handling)
{
    const char *position = text;
    const char *end = text + length;
    if (!parse_session_info(context, &position, end))
        return fail();
    return position < end ? parse_sections(context, position, end, handling) : 1;
}

} // namespace

int dak::parse(sdp_lib_context *context, const char *text, uint32_t length, read_attributes handling)
{
    if (context == nullptr || text == nullptr)
        return fail();
    const size_t text_length = strnlen(text, length);
    auto *copy = static_cast<char *>(dak_malloc(text_length + 1));
    if (copy == nullptr)
        return fail();
    memcpy(copy, text, text_length);
    copy[text_length] = '\0';
    const int result = parse_text(context, copy, text_length, handling);
    dak_free(copy);
    return result;
}

int sdp_parse(sdp_lib_context *context, const char *text, uint32_t length)
{
    return parse(context, text, length, read_attributes::kept);
}

int parse_session_info(sdp_lib_context *context, const char **position, const char *end)
{
    sdp_info_container *document = selected_document(context, SDP_PARSER_DOCUMENT);
    if (document == nullptr || position == nullptr || *position == nullptr || *position >= end)
        return fail();
    for (text_range line = next_line(*position, end); !line.empty(); line = next_line(line.last, end)) {
        if (find_media_description(line.first, line.last))
            return 1;
        if (!parse_session_value(document, line.first, line.last))
            return fail();
        *position = line.last;
    }
    return 1;
}

int parse_media_description(sdp_lib_context *context, const char *position, const char *end)
{
    return parse_sections(context, position, end, read_attributes::kept);
}
