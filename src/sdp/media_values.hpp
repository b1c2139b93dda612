// Storing typed lines of known length.
#ifndef DAKSDP_SDP_MEDIA_VALUES_HPP
#define DAKSDP_SDP_MEDIA_VALUES_HPP

#include "sdp/media_description_record.h"
#include "util/text_range.hpp"

namespace dak {

// dak_sdp_set_media_value() for a value that is not terminated.
int set_media_line(media_description &description, const char *type, text_range value);

} // namespace dak

#endif
