// Generic attributes by names and values of known length.
#ifndef DAKSDP_SDP_ATTRIBUTE_LINES_HPP
#define DAKSDP_SDP_ATTRIBUTE_LINES_HPP

#include "sdp/media_description_record.h"
#include "util/text_range.hpp"

namespace dak {

// set_media_description_attribute() for texts that are not terminated.
int set_attribute(media_description &description, text_range name, const text_range *value = nullptr);

// get_media_description_attribute()
bool find_attribute(const media_description &description, text_range name, char *destination);

} // namespace dak

#endif
