// Numbers inside attribute values.
#ifndef DAKSDP_UTIL_NUMBER_HPP
#define DAKSDP_UTIL_NUMBER_HPP

#include "util/text_range.hpp"

#include <stdint.h>

namespace dak {

// Reads white space, a sign and digits; what follows is ignored and no digits are 0. Values outside 32 bits
// stop at the nearest bound, on every host alike.
int32_t read_saturating(text_range text);

} // namespace dak

#endif
