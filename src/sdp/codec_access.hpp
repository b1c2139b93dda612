// Finding payload formats in a media section, whatever counts and indexes a caller gives.
#ifndef DAKSDP_SDP_CODEC_ACCESS_HPP
#define DAKSDP_SDP_CODEC_ACCESS_HPP

#include "sdp/media_description_record.h"
#include "util/report.hpp"

namespace dak {

inline int payload_count(const media_description &description)
{
    const int count = description.number_of_payload;
    return count < 0 ? 0 : count > SDP_MAX_PAYLOADS ? SDP_MAX_PAYLOADS : count;
}

inline bool has_codec(const media_description &description, int index)
{
    return index >= 0 && index < SDP_MAX_PAYLOADS && index < description.number_of_payload &&
           index < description.codec_capacity && description.codecs != nullptr;
}

// The codec at a position; null, reported, for a null description or a position without one.
inline media_codec *codec_at(const media_description *description, int index)
{
    if (description == nullptr || !has_codec(*description, index))
        return fail_null();
    return &description->codecs[index];
}

// Position of a payload number, or -1.
inline int find_payload(const media_description &description, int64_t payload_number)
{
    for (int i = 0; i < payload_count(description); i++) {
        if (description.payload_numbers[i] == payload_number)
            return i;
    }
    return -1;
}

} // namespace dak

#endif
