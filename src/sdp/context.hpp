// Contexts for the length of one call.
#ifndef DAKSDP_SDP_CONTEXT_HPP
#define DAKSDP_SDP_CONTEXT_HPP

#include "sdp/document_record.h"

namespace dak {

// A context, in one block, with nothing but the document that sdp_parse() fills; null, reported, when memory
// runs out.
sdp_lib_context *open_parsing_context();

// The same with the document and the text of dak_sdp_encode().
sdp_lib_context *open_encoding_context();

void close_context(sdp_lib_context *context);

} // namespace dak

#endif
