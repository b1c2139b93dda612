// A parsed document, written for a person.
#ifndef DAKSDP_TOOLS_PRINT_DOCUMENT_HPP
#define DAKSDP_TOOLS_PRINT_DOCUMENT_HPP

#include "body.hpp"
#include "daksdp.h"
#include "outline.hpp"

#include <span>

namespace inspector {

// Prints the parser document of a context: the session, then each media section. `lines` are those of the
// body that was parsed; what no record holds of them is printed as it was received.
void print_document(outline &out, sdp_lib_context *context, std::span<const body_line> lines);

} // namespace inspector

#endif
