// The nodes that hold the generic attributes of a media section.
#ifndef DAKSDP_SDP_ATTRIBUTE_NODES_HPP
#define DAKSDP_SDP_ATTRIBUTE_NODES_HPP

#include "sdp/media_description_record.h"

namespace dak {

// Allocates the nodes of the next `count` attributes together. A section has one such block; attributes
// beyond it, or all when memory is short, which is reported, have nodes of their own.
void reserve_attributes(media_description &description, uint32_t count);

// Links an empty node behind the last attribute; null, reported, when memory runs out.
session_value *append_attribute_node(media_description &description);

void free_attributes(media_description &description);

} // namespace dak

#endif
