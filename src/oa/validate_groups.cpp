#include "oa/validate_groups.h"

#include "oa/mline_access.hpp"
#include "oa/truncation.hpp"
#include "oa/validation_code.h"
#include "util/bounded_text.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr size_t address_size = sizeof sdp_address::address;

uint32_t media_type_at(const sdp_container &container, uint8_t index)
{
    const sdp_media_line *mline = find_mline(container, index);
    return mline != nullptr ? mline->media_type : uint32_t{SDP_MEDIA_UNKNOWN};
}

bool is_audio_or_video(uint32_t media_type)
{
    return media_type == SDP_MEDIA_AUDIO || media_type == SDP_MEDIA_VIDEO;
}

uint32_t fail_as_null()
{
    DAK_LOG("dak_app_oa_validate_group_semantics: null                            params\n");
    return SDP_NULL_ARGUMENT;
}

// Lip synchronisation joins one audio and one video line.
uint32_t check_ls(const sdp_container &container, const sdp_group &group)
{
    const int mids = group.num_mids;
    if (mids != 2) {
        DAK_LOG("validate_group_semantics:Invalid params for LS          group semantic number of mids %d \n",
                mids);
        return SDP_INVALID_GROUP;
    }
    if (lacks_mlines(container))
        return fail_as_null();
    const uint32_t first = media_type_at(container, group.mline_index[0]);
    const uint32_t second = media_type_at(container, group.mline_index[1]);
    if (!is_audio_or_video(first) || !is_audio_or_video(second)) {
        DAK_LOG(
            "validate_group_semantics:Invalid params for LS          group semantic media1 %d, media2 %d no. of mids %d \n",
            static_cast<int>(first), static_cast<int>(second), mids);
        return SDP_INVALID_GROUP;
    }
    if (first != second)
        return SDP_VALID;
    DAK_LOG(
        "validate_group_semantics:Invalid params                for LS group semantic media %d, no. of mids %d\n",
        static_cast<int>(first), mids);
    return SDP_INVALID_GROUP;
}

uint32_t fail_as_fid()
{
    DAK_LOG("validate_group_semantics:Invalid param          for FID group semantic \n");
    return SDP_INVALID_GROUP;
}

// Copies an address as a terminated text; one that is not terminated is reported.
bool copy_address(char (&text)[address_size], const sdp_address &address)
{
    if (copy_text(text, field_text(address.address)))
        return true;
    fail_as_truncated(address_size);
    return false;
}

// Two lines that share a port need different addresses; a line without one of its own has the session's.
uint32_t check_same_port(const sdp_container &container, int first, int second)
{
    const sdp_media_line &a = container.mlines[first];
    const sdp_media_line &b = container.mlines[second];
    const bool a_has_own = a.connection_present != 0;
    const bool b_has_own = b.connection_present != 0;
    if ((!a_has_own || !b_has_own) && container.connection_present == 0)
        return fail_as_fid();
    char a_text[address_size];
    char b_text[address_size];
    if (!copy_address(a_text, a_has_own ? a.connection : container.connection) ||
        !copy_address(b_text, b_has_own ? b.connection : container.connection))
        return SDP_INVALID_GROUP;
    if (!a_has_own && !b_has_own) {
        DAK_LOG(
            "validate_group_semantics:Invalid param            for FID group semantic: streams have same IP %s\n",
            a_text);
        return SDP_INVALID_GROUP;
    }
    if (strcmp(a_text, b_text) != 0)
        return SDP_VALID;
    DAK_LOG(
        "validate_group_semantics:Invalid param          for FID group semantic same ip for mlines %d n %d ip %s \n",
        first, second, a_text);
    return SDP_INVALID_GROUP;
}

uint32_t check_against_earlier(const sdp_container &container, const sdp_group &group, int position)
{
    const uint8_t index = group.mline_index[position];
    for (int i = 0; i < position; i++) {
        const uint8_t earlier = group.mline_index[i];
        if (container.mlines[earlier].port != container.mlines[index].port)
            continue;
        const uint32_t result = check_same_port(container, earlier, index);
        if (result != SDP_VALID)
            return result;
    }
    return SDP_VALID;
}

// Flow identification joins lines that are told apart by port or address.
uint32_t check_fid(const sdp_container &container, const sdp_group &group)
{
    if (group.num_mids < 2)
        return SDP_VALID;
    if (lacks_mlines(container))
        return fail_as_null();
    if (group.num_mids > SDP_MAX_GROUP_MIDS)
        return fail_as_fid();
    for (int i = 0; i < group.num_mids; i++) {
        if (find_mline(container, group.mline_index[i]) == nullptr)
            return fail_as_fid();
        const uint32_t result = check_against_earlier(container, group, i);
        if (result != SDP_VALID)
            return result;
    }
    return SDP_VALID;
}

// Whether an earlier group of the same semantics has the media line too, present or not.
bool is_in_earlier_group(const sdp_container &container, const sdp_group &group, uint32_t group_index,
                         uint8_t index)
{
    for (uint32_t i = 0; i < group_index && i < SDP_MAX_GROUPS; i++) {
        const sdp_group &earlier = container.groups[i];
        if (earlier.semantics == group.semantics && lists_mline(earlier, mid_count(earlier), index))
            return true;
    }
    return false;
}

uint32_t check_mid(const sdp_container &container, const sdp_group &group, uint32_t group_index, int position)
{
    const uint8_t index = group.mline_index[position];
    const sdp_media_line *mline = find_mline(container, index);
    if (mline == nullptr || mline->port == 0) {
        DAK_LOG("validate_offer_params:mline with          port = 0 in group mline %d \n",
                static_cast<int>(index));
        return SDP_INVALID_GROUP;
    }
    if (is_in_earlier_group(container, group, group_index, index)) {
        DAK_LOG(
            "validate_offer_params:mline used in              2 groups with same semantics mline %d semantics %d\n",
            static_cast<int>(index), static_cast<int>(group.semantics));
        return SDP_INVALID_GROUP;
    }
    if (lists_mline(group, position, index)) {
        DAK_LOG("repeated mids %d in group \n", static_cast<int>(index));
        return SDP_INVALID_GROUP;
    }
    return SDP_VALID;
}

} // namespace

uint32_t dak_app_oa_validate_group_semantics(const sdp_container *container, const sdp_group *group)
{
    if (container == nullptr || group == nullptr)
        return fail_as_null();
    if (group->semantics == SDP_GROUP_LS)
        return check_ls(*container, *group);
    if (group->semantics == SDP_GROUP_FID)
        return check_fid(*container, *group);
    DAK_LOG("validate_group_semantics:Invalid grp semantics\n");
    return SDP_INVALID_GROUP;
}

uint32_t dak_app_oa_validate_group_mids(const sdp_container *container, const sdp_group *group,
                                        uint32_t group_index)
{
    const bool is_given = container != nullptr && group != nullptr;
    if (!is_given || (group->num_mids != 0 && lacks_mlines(*container))) {
        DAK_LOG("dak_app_oa_validate_group_mids: null                            params\n");
        return SDP_NULL_ARGUMENT;
    }
    for (int i = 0; i < mid_count(*group); i++) {
        const uint32_t result = check_mid(*container, *group, group_index, i);
        if (result != SDP_VALID)
            return result;
    }
    return group->num_mids > SDP_MAX_GROUP_MIDS ? SDP_INVALID_GROUP : SDP_VALID;
}
