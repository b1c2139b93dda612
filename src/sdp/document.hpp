// Finding a document and a slot in it.
#ifndef DAKSDP_SDP_DOCUMENT_HPP
#define DAKSDP_SDP_DOCUMENT_HPP

#include "sdp/document_record.h"
#include "util/text_range.hpp"

namespace dak {

inline constexpr int no_slot = -1;

// The session-line slots, in the order of their lines.
enum session_slot : int {
    version_slot,
    origin_slot,
    name_slot,
    information_slot,
    uri_slot,
    email_slot,
    phone_slot,
    connection_slot,
    bandwidth_slot,
    time_slot,
    repeat_slot,
    zone_slot,
    key_slot,
    attribute_slot
};
static_assert(attribute_slot + 1 == SDP_SESSION_SLOTS);

// The document that a selector means; null, reported, for a null context or any other selector.
sdp_info_container *selected_document(const sdp_lib_context *context, int selector);

// The session-line slot whose tag stands in the first two characters of a text, case-sensitively, or no_slot.
int find_slot(const sdp_info_container &document, text_range line);

} // namespace dak

#endif
