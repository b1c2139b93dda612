// Storing session values of known length.
#ifndef DAKSDP_SDP_SESSION_VALUES_HPP
#define DAKSDP_SDP_SESSION_VALUES_HPP

#include "sdp/document.hpp"
#include "util/text_range.hpp"

namespace dak {

// set_session_value() for a line of the encoder document.
int set_session_value(sdp_lib_context *context, session_slot slot, text_range value);

} // namespace dak

#endif
