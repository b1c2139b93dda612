// Several checks of one thing.
#ifndef DAKSDP_OA_FIRST_FAILURE_HPP
#define DAKSDP_OA_FIRST_FAILURE_HPP

#include "oa/validation_code.h"

#include <stdint.h>

namespace dak {

// The result of the first check that fails, in their order.
template <auto... Checks, typename... Subject> uint32_t first_failure(const Subject &...subject)
{
    uint32_t result = SDP_VALID;
    static_cast<void>(((result = Checks(subject...), result == SDP_VALID) && ...));
    return result;
}

} // namespace dak

#endif
