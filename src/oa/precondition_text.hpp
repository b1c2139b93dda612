// Writing preconditions.
#ifndef DAKSDP_OA_PRECONDITION_TEXT_HPP
#define DAKSDP_OA_PRECONDITION_TEXT_HPP

#include "oa/sdp_container.h"
#include "util/bounded_text.hpp"
#include "util/report.hpp"

namespace dak {

// What the longest words take.
inline constexpr size_t precondition_size = sizeof "qos mandatory remote sendrecv";

// dak_app_oa_encode_pre_cond_str() for a text with that room.
DAK_OUT_OF_LINE uint32_t add_precondition(text_writer &text, const sdp_precondition &entry);

} // namespace dak

#endif
