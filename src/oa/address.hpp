// Writing addresses behind other text.
#ifndef DAKSDP_OA_ADDRESS_HPP
#define DAKSDP_OA_ADDRESS_HPP

#include "oa/sdp_container.h"
#include "util/bounded_text.hpp"

namespace dak {

// Appends an address such as "IN IP4 192.0.2.1"; 4, with a log line, for another address type than 0 and 1.
uint32_t add_address(text_writer &text, const sdp_address &address);

} // namespace dak

#endif
