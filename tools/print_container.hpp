// A container, written for a person.
#ifndef DAKSDP_TOOLS_PRINT_CONTAINER_HPP
#define DAKSDP_TOOLS_PRINT_CONTAINER_HPP

#include "body.hpp"
#include "daksdp.h"
#include "outline.hpp"

#include <span>
#include <string>
#include <vector>

namespace inspector {

// Prints what a container holds: the session, then each media line. `lines` are those of the body that was
// parsed: the library is asked again what it cannot read of them, part by part.
void print_container(outline &out, const sdp_container &container, std::span<const body_line> lines);

// Prints log lines of the library; nothing for none.
void print_reasons(outline &out, const std::vector<std::string> &reasons);

} // namespace inspector

#endif
