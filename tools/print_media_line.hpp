// One media line of a container, written for a person.
#ifndef DAKSDP_TOOLS_PRINT_MEDIA_LINE_HPP
#define DAKSDP_TOOLS_PRINT_MEDIA_LINE_HPP

#include "daksdp.h"
#include "outline.hpp"

namespace inspector {

// Prints all that a media line holds, and what of it was not read.
void print_media_line(outline &out, int number, const sdp_media_line &mline);

} // namespace inspector

#endif
