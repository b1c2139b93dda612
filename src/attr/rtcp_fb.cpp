#include "attr/rtcp_fb.h"

#include "sdp/codec_access.hpp"
#include "util/report.hpp"

#include <string.h>

using namespace dak;

namespace {

// The entry behind the last may be asked for; callers that walk up to the count rely on it.
const rtcp_fb_entry *readable_entry(const rtcp_fb_list &list, int index)
{
    const bool is_readable = list.fb_present != 0 && index >= 0 && index < RTCP_FB_MAX_ENTRIES &&
                             static_cast<uint32_t>(index) <= list.fb_count;
    return is_readable ? &list.fb_entries[index] : nullptr;
}

// Fills the type and the subtype of that type.
void copy_kind(rtcp_fb_kind &out, const rtcp_fb_entry &entry)
{
    out.fb_type = entry.fb_type;
    if (entry.fb_type == RTCP_FB_NACK)
        out.nack_subtype = entry.nack_subtype;
    if (entry.fb_type == RTCP_FB_CCM)
        out.ccm_subtype = entry.ccm_subtype;
}

const rtcp_fb_entry *read_kind(const rtcp_fb_list *list, rtcp_fb_kind *out, int index)
{
    const rtcp_fb_entry *entry = list != nullptr ? readable_entry(*list, index) : nullptr;
    if (entry == nullptr) {
        DAK_LOG("Invalid params \n");
        return nullptr;
    }
    if (out == nullptr)
        return fail_null();
    copy_kind(*out, *entry);
    return entry;
}

} // namespace

int dak_sdp_set_media_rtcp_fb_attr(media_description *description, uint32_t type, uint32_t subtype)
{
    if (description == nullptr) {
        DAK_LOG("null params \n");
        return 0;
    }
    rtcp_fb_list &list = description->rtcp_fb;
    if (list.fb_count >= RTCP_FB_MAX_ENTRIES) {
        DAK_LOG("RTCP fb list size overflow \n");
        return 0;
    }
    rtcp_fb_entry &entry = list.fb_entries[list.fb_count++];
    entry = {};
    entry.fb_type = type;
    if (type == RTCP_FB_NACK && subtype <= RTCP_FB_NACK_PLI) {
        entry.nack_subtype = subtype;
    } else if (type == RTCP_FB_CCM && subtype <= RTCP_FB_CCM_TMMBR) {
        entry.ccm_subtype = subtype;
    } else {
        entry.fb_type = RTCP_FB_UNSUPPORTED;
        DAK_LOG(" Unknown rtcp fb attribute type \n");
    }
    list.fb_present = 1;
    return 1;
}

int dak_sdp_add_media_rtcp_fb_to_media_description(media_description *description, int32_t payload_number,
                                                   const rtcp_fb_list *feedback)
{
    const int index = description != nullptr ? find_payload(*description, payload_number) : -1;
    if (index < 0 || !has_codec(*description, index) || feedback == nullptr ||
        feedback->fb_count > RTCP_FB_MAX_ENTRIES) {
        dak_assert_failed();
        return -1;
    }
    rtcp_fb_list &list = description->codecs[index].rtcp_fb;
    list = *feedback;
    for (rtcp_fb_entry &entry : list.fb_entries)
        entry.fb_param[sizeof entry.fb_param - 1] = '\0';
    return index;
}

int dak_sdp_get_number_of_m_rtcp_fb_attrs(const media_description *description)
{
    if (description == nullptr) {
        DAK_LOG(" invalid input argumet \n");
        return -1;
    }
    return description->rtcp_fb.fb_present == 1 ? static_cast<int>(description->rtcp_fb.fb_count) : 0;
}

int dak_sdp_get_number_of_rtcp_fb_attrs(const media_description *description, int index)
{
    if (description == nullptr) {
        DAK_LOG("Invalid input arguments\n");
        return -1;
    }
    if (!has_codec(*description, index) || description->codecs[index].rtcp_fb.fb_present != 1)
        return 0;
    return static_cast<int>(description->codecs[index].rtcp_fb.fb_count);
}

const void *dak_sdp_get_media_m_rtcp_fb_type(const media_description *description, rtcp_fb_kind *out,
                                             int index)
{
    const rtcp_fb_list *list = description != nullptr ? &description->rtcp_fb : nullptr;
    return read_kind(list, out, index) != nullptr ? list : nullptr;
}

const char *dak_sdp_get_media_rtcp_fb_type(const media_description *description, rtcp_fb_kind *out, int index,
                                           int codec_index)
{
    const rtcp_fb_list *list = nullptr;
    if (description != nullptr) {
        const media_codec *codec = codec_at(description, codec_index);
        if (codec == nullptr)
            return nullptr;
        list = &codec->rtcp_fb;
    }
    const rtcp_fb_entry *entry = read_kind(list, out, index);
    return entry != nullptr ? entry->fb_param : nullptr;
}
