// Filling payload formats that were found already.
#ifndef DAKSDP_SDP_MEDIA_CODECS_HPP
#define DAKSDP_SDP_MEDIA_CODECS_HPP

#include "sdp/media_description_record.h"
#include "util/text_range.hpp"

namespace dak {

// Stores what an a=rtpmap line says and prepares the parameter record; 0, reported, for too long a name.
int set_rtpmap(media_codec &codec, text_range encoding_name, uint32_t clock_rate, uint32_t encoding_param);

} // namespace dak

#endif
