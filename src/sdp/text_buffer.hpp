// Appending text of known length to a context's text buffer.
#ifndef DAKSDP_SDP_TEXT_BUFFER_HPP
#define DAKSDP_SDP_TEXT_BUFFER_HPP

#include "sdp/document_record.h"
#include "util/text_range.hpp"

namespace dak {

// fill_sdp_buffer() for a text that is not terminated.
int append_sdp_text(sdp_lib_context *context, text_range text);

} // namespace dak

#endif
