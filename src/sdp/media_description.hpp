// The codec array of a media section.
#ifndef DAKSDP_SDP_MEDIA_DESCRIPTION_HPP
#define DAKSDP_SDP_MEDIA_DESCRIPTION_HPP

#include "sdp/media_description_record.h"

namespace dak {

// Gives a section an array of exactly `count` codecs, no fewer than it has; those it has are kept and the
// others empty. 0 when memory runs out, with the section as it was.
int allocate_codecs(media_description &description, int count);

} // namespace dak

#endif
