#include "format_state.hpp"

#include <cstdint>

namespace inspector {
namespace {

constexpr std::uint32_t first_dynamic_payload = 96;

// Whether an a=rtpmap line was read; a refusal of the parameters takes only the flag back.
bool was_mapped(const sdp_payload_format &format)
{
    return format.has_rtpmap != 0 || format.codec_id != 0 || format.clock_rate_khz != 0;
}

bool is_undecodable(const sdp_payload_format &format) { return format.has_rtpmap == 0 && was_mapped(format); }

bool is_reached(const sdp_media_line &mline, int index)
{
    for (int before = 0; before < index; before++) {
        if (mline.payload_numbers[before] >= first_dynamic_payload && is_undecodable(mline.formats[before]))
            return false;
    }
    return true;
}

} // namespace

format_state state_of(const sdp_media_line &mline, int index)
{
    const sdp_payload_format &format = mline.formats[index];
    if (!is_reached(mline, index))
        return format_state::not_reached;
    if (!was_mapped(format))
        return format_state::unmapped;
    if (is_undecodable(format))
        return format_state::undecodable;
    return format.codec_id == SDP_UNKNOWN_CODEC ? format_state::unknown_codec : format_state::described;
}

} // namespace inspector
