// Looking at the formats of a media line, whatever its count says.
#ifndef DAKSDP_OA_PAYLOAD_MATCHING_HPP
#define DAKSDP_OA_PAYLOAD_MATCHING_HPP

#include "oa/payload_matching.h"

namespace dak {

// From this number on, validation asks for an a=rtpmap line; generation does so one number later.
inline constexpr uint32_t first_mapped_payload = 95;

inline int format_count(const sdp_media_line &mline)
{
    return mline.num_formats < SDP_MAX_FORMATS ? mline.num_formats : SDP_MAX_FORMATS;
}

// The codec whose rules a format is held to; false for a number that lacks the a=rtpmap line it needs.
inline bool find_codec(const sdp_media_line &mline, int format, uint32_t &codec)
{
    const bool is_mapped = mline.payload_numbers[format] >= first_mapped_payload;
    codec = is_mapped ? mline.formats[format].codec_id
                      : dak_app_oa_find_mime_by_pyld_num(mline.payload_numbers[format]);
    return !is_mapped || mline.formats[format].has_rtpmap != 0;
}

// Whether an audio line offers nothing but telephone-event.
inline bool is_events_alone(const sdp_media_line &mline)
{
    constexpr uint32_t telephone_event = 105;
    return mline.num_formats == 1 && mline.media_type == SDP_MEDIA_AUDIO &&
           mline.formats[0].has_rtpmap == 1 && mline.formats[0].codec_id == telephone_event;
}

} // namespace dak

#endif
