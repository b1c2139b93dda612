// Why a body does not parse.
#ifndef DAKSDP_TOOLS_REFUSAL_HPP
#define DAKSDP_TOOLS_REFUSAL_HPP

#include "body.hpp"

#include <span>
#include <string>
#include <string_view>

namespace inspector {

// One line that tells where the reading of a refused body stopped, and why.
std::string refusal_reason(std::string_view text, std::span<const body_line> lines);

} // namespace inspector

#endif
