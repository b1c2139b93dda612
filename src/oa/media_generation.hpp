// Generating the media sections of a document that callers may see, or not.
#ifndef DAKSDP_OA_MEDIA_GENERATION_HPP
#define DAKSDP_OA_MEDIA_GENERATION_HPP

#include "oa/media_generation.h"
#include "sdp/media_description.hpp"

namespace dak {

// dak_app_oa_encode_mlines()
uint32_t encode_mlines(sdp_lib_context *document, sdp_container *container, audience seen_by);

} // namespace dak

#endif
