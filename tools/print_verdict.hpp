// A verdict, written for a person and as JSON.
#ifndef DAKSDP_TOOLS_PRINT_VERDICT_HPP
#define DAKSDP_TOOLS_PRINT_VERDICT_HPP

#include "outline.hpp"
#include "validation.hpp"

#include <string>

namespace inspector {

// Prints a verdict on a container.
void print_verdict(outline &out, const verdict &found, const sdp_container &container);

// One object; without a media line it has no such key. All is ASCII, whatever the body held.
std::string verdict_json(const verdict &found);

} // namespace inspector

#endif
