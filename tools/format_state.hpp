// How much of a payload format a container holds.
#ifndef DAKSDP_TOOLS_FORMAT_STATE_HPP
#define DAKSDP_TOOLS_FORMAT_STATE_HPP

#include "daksdp.h"

namespace inspector {

enum class format_state {
    described,     // with the codec's parameters, if it has any
    unmapped,      // no a=rtpmap line
    unknown_codec, // a name that the codec table lacks
    undecodable,   // parameters that its codec refuses
    not_reached    // behind a format that ended the reading of its line
};

// The state of the format at a position below num_formats.
format_state state_of(const sdp_media_line &mline, int index);

} // namespace inspector

#endif
