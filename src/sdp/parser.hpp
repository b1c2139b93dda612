// Parsing for a caller that does not look at every attribute.
#ifndef DAKSDP_SDP_PARSER_HPP
#define DAKSDP_SDP_PARSER_HPP

#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

namespace dak {

// Whether a section's generic attributes include those that are read into records as well.
enum class read_attributes { kept, dropped };

// sdp_parse()
int parse(sdp_lib_context *context, const char *text, uint32_t length, read_attributes handling);

// process_media_attribute()
int read_section(const char **position, const char *end, media_description *description,
                 read_attributes handling);

} // namespace dak

#endif
