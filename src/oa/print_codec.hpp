// Logging the codec parameters of a payload format.
#ifndef DAKSDP_OA_PRINT_CODEC_HPP
#define DAKSDP_OA_PRINT_CODEC_HPP

#include "oa/sdp_container.h"

namespace dak {

void print_codec_name(uint32_t codec_id);
void print_codec_params(const sdp_payload_format &format);

} // namespace dak

#endif
