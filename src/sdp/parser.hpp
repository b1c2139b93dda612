// Parsing for callers and for the container layer.
#ifndef DAKSDP_SDP_PARSER_HPP
#define DAKSDP_SDP_PARSER_HPP

#include "sdp/document_record.h"
#include "sdp/media_description.hpp"

namespace dak {

// sdp_parse()
int parse(sdp_lib_context *context, const char *text, uint32_t length, audience seen_by);

// process_media_description()
int read_media_line(const char *line_start, const char *line_end, media_description *description,
                    audience seen_by);

// process_media_attribute()
int read_section(const char **position, const char *end, media_description *description, audience seen_by);

} // namespace dak

#endif
