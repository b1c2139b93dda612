// Storing generic attributes of known length.
#ifndef DAKSDP_SDP_ATTRIBUTE_LINES_HPP
#define DAKSDP_SDP_ATTRIBUTE_LINES_HPP

#include "sdp/media_description_record.h"
#include "util/text_range.hpp"

namespace dak {

// set_media_description_attribute() for an attribute "name", and for one "name:value".
int set_attribute(media_description &description, text_range name);
int set_attribute(media_description &description, text_range name, text_range value);

} // namespace dak

#endif
