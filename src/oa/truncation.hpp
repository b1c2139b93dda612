// The offer/answer layer's reports of text that does not fit.
#ifndef DAKSDP_OA_TRUNCATION_HPP
#define DAKSDP_OA_TRUNCATION_HPP

#include "oa/result_code.h"
#include "util/report.hpp"

namespace dak {

// For text that is written.
inline uint32_t fail_as_truncated(size_t size)
{
    DAK_LOG("len of str printed exceeded dst str len%d \n", static_cast<int>(size));
    dak_assert_failed();
    return SDP_OA_TOO_LONG;
}

// For text that is read.
inline uint32_t fail_as_too_long(size_t size)
{
    DAK_LOG("src str len exceeded dst str len%d \n", static_cast<int>(size));
    dak_assert_failed();
    return SDP_OA_TOO_LONG;
}

} // namespace dak

#endif
