// Text from the network, made safe to show on a terminal.
#ifndef DAKSDP_TOOLS_PRINTABLE_HPP
#define DAKSDP_TOOLS_PRINTABLE_HPP

#include <string>
#include <string_view>

namespace inspector {

// Writes control characters, characters that steer the direction of writing, and bytes that are no UTF-8 as
// \xNN for each byte. A backslash is doubled, so that no text can pass for an escaped one.
std::string printable(std::string_view text);

} // namespace inspector

#endif
