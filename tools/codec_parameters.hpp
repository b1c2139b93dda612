// The parameter blocks of the codecs as lists, for whatever is made of them.
#ifndef DAKSDP_TOOLS_CODEC_PARAMETERS_HPP
#define DAKSDP_TOOLS_CODEC_PARAMETERS_HPP

#include "daksdp.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace inspector {

using modes = std::vector<std::uint32_t>;
using events = std::vector<sdp_tel_event_entry>;

// One field of a block that is present.
struct parameter {
    std::string_view record; // the record inside the block that holds the field, or empty
    std::string_view field;
    std::string name;  // on the a=fmtp line; empty for a field that another one's text covers
    std::string words; // the value for a person
    std::variant<std::int64_t, std::string, modes, events> value;
};

// The name that the codec table gives for a format's codec id; "" for a codec that it lacks.
std::string_view codec_name(const sdp_payload_format &format);

// What the block of a format holds, in the block's order: nothing without a block.
std::vector<parameter> codec_parameters(const sdp_payload_format &format);

} // namespace inspector

#endif
