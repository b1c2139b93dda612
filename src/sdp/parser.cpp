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
                  const char *end, audience seen_by)
{
    media_description *description = new_media_description("", 0, 0, "", nullptr, 0, seen_by);
    if (description == nullptr)
        return fail();
    if (read_media_line(line_start, *position, description, seen_by) &&
        read_section(position, end, description, seen_by) &&
        add_media_description_to_sdp_container(document, description))
        return 1;
    clean_media_description(description);
    return fail();
}

int parse_sections(sdp_lib_context *context, const char *position, const char *end, audience seen_by)
{
    sdp_info_container *document = selected_document(context, SDP_PARSER_DOCUMENT);
    if (document == nullptr || position == nullptr || end == nullptr)
        return fail();
    for (text_range line = next_line(position, end); !line.empty(); line = next_line(position, end)) {
        position = line.last;
        if (find_media_description(line.first, line.last) &&
            !parse_section(document, line.first, &position, end, seen_by))
            return 0;
    }
    return 1;
}

int parse_text(sdp_lib_context *context, const char *text, size_t length, audience seen_by)
{
    const char *position = text;
    const char *end = text + length;
    if (!parse_session_info(context, &position, end))
        return fail();
    return position < end ? parse_sections(context, position, end, seen_by) : 1;
}

} // namespace

int dak::parse(sdp_lib_context *context, const char *text, uint32_t length, audience seen_by)
{
    if (context == nullptr || text == nullptr)
        return fail();
    const size_t text_length = strnlen(text, length);
    auto *copy = static_cast<char *>(dak_malloc(text_length + 1));
    if (copy == nullptr)
        return fail();
    memcpy(copy, text, text_length);
    copy[text_length] = '\0';
    const int result = parse_text(context, copy, text_length, seen_by);
    dak_free(copy);
    return result;
}

int sdp_parse(sdp_lib_context *context, const char *text, uint32_t length)
{
    return parse(context, text, length, audience::caller);
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
    return parse_sections(context, position, end, audience::caller);
}
