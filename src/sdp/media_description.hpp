// Creating media sections and their codec arrays.
#ifndef DAKSDP_SDP_MEDIA_DESCRIPTION_HPP
#define DAKSDP_SDP_MEDIA_DESCRIPTION_HPP

#include "sdp/media_description_record.h"
#include "util/text_range.hpp"

namespace dak {

// Who looks at a section. A caller finds every record as it is documented. The container layer takes a section
// down before its call ends: lists are not emptied behind what is in them, nor the parameters of a format whose
// name is not known, and attributes that are read into records are not kept as text too.
enum class audience { caller, container_layer };

// init_media_description()
media_description *new_media_description(text_range media_type, uint32_t port, uint32_t number_of_ports,
                                         text_range transport_profile, const uint32_t *payload_numbers,
                                         int payload_count, audience seen_by);

// Gives a section an array of exactly `count` codecs, no fewer than it has; those it has are kept and the
// others empty. 0 when memory runs out, with the section as it was.
int allocate_codecs(media_description &description, int count, audience seen_by);

} // namespace dak

#endif
