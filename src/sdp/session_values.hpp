// Session values by slot and length.
#ifndef DAKSDP_SDP_SESSION_VALUES_HPP
#define DAKSDP_SDP_SESSION_VALUES_HPP

#include "sdp/document.hpp"
#include "util/text_range.hpp"

namespace dak {

// set_session_value() for a line of the encoder document.
int set_session_value(sdp_lib_context *context, session_slot slot, text_range value);

// get_particular_index_of_session_value() for a line of the parser document.
const char *get_session_value(const sdp_lib_context *context, session_slot slot, int position = 0);

} // namespace dak

#endif
