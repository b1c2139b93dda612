// One payload format, written for a person.
#ifndef DAKSDP_TOOLS_PRINT_FORMAT_HPP
#define DAKSDP_TOOLS_PRINT_FORMAT_HPP

#include "daksdp.h"
#include "outline.hpp"

namespace inspector {

// Prints the payload format at a position with its parameters and its feedback.
void print_format(outline &out, media_description &description, int index);

} // namespace inspector

#endif
