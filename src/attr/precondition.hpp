// Storing preconditions of known length.
#ifndef DAKSDP_ATTR_PRECONDITION_HPP
#define DAKSDP_ATTR_PRECONDITION_HPP

#include "sdp/media_description_record.h"
#include "util/text_range.hpp"

namespace dak {

// set_media_precond_attr() for a value that is not terminated.
int set_precondition(media_description &description, uint32_t kind, text_range value);

} // namespace dak

#endif
