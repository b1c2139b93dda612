// Looking at groups and media lines of a container, whatever its counts and indexes say.
#ifndef DAKSDP_OA_MLINE_ACCESS_HPP
#define DAKSDP_OA_MLINE_ACCESS_HPP

#include "oa/sdp_container.h"
#include "util/text_range.hpp"

namespace dak {

// The media line at an index, or null.
inline const sdp_media_line *find_mline(const sdp_container &container, uint32_t index)
{
    return container.mlines != nullptr && index < container.num_mlines ? &container.mlines[index] : nullptr;
}

inline bool lacks_mlines(const sdp_container &container)
{
    return container.num_mlines != 0 && container.mlines == nullptr;
}

inline int group_count(const sdp_container &container)
{
    return container.num_groups < SDP_MAX_GROUPS ? container.num_groups : SDP_MAX_GROUPS;
}

inline int mid_count(const sdp_group &group)
{
    return group.num_mids < SDP_MAX_GROUP_MIDS ? group.num_mids : SDP_MAX_GROUP_MIDS;
}

// Whether one of the first `count` media lines of a group is `index`.
inline bool lists_mline(const sdp_group &group, int count, uint8_t index)
{
    for (int i = 0; i < count; i++) {
        if (group.mline_index[i] == index)
            return true;
    }
    return false;
}

inline bool uses_groups(const sdp_container &container)
{
    for (int i = 0; i < group_count(container); i++) {
        if (container.groups[i].present == 1)
            return true;
    }
    return false;
}

inline bool has_zero_bandwidth(const sdp_container &container)
{
    return container.bandwidth.present != 0 && container.bandwidth.entries[0].value == 0;
}

inline bool have_same_mid(const sdp_media_line &a, const sdp_media_line &b)
{
    return field_text(a.mid).equals(field_text(b.mid));
}

} // namespace dak

#endif
