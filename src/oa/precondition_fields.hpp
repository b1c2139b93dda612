// The fields of a precondition entry, wherever its kind has them.
#ifndef DAKSDP_OA_PRECONDITION_FIELDS_HPP
#define DAKSDP_OA_PRECONDITION_FIELDS_HPP

#include "attr/precondition.h"
#include "oa/sdp_container.h"

namespace dak {

inline uint32_t status_of(const sdp_precondition &entry)
{
    return entry.kind == PCD_DES ? entry.desired.status_type : entry.status.status_type;
}

inline uint32_t direction_of(const sdp_precondition &entry)
{
    return entry.kind == PCD_DES ? entry.desired.direction : entry.status.direction;
}

} // namespace dak

#endif
