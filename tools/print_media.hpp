// One media section, written for a person.
#ifndef DAKSDP_TOOLS_PRINT_MEDIA_HPP
#define DAKSDP_TOOLS_PRINT_MEDIA_HPP

#include "body.hpp"
#include "daksdp.h"
#include "outline.hpp"

#include <span>

namespace inspector {

// Prints a media section. `lines` are its own, from the m= line on.
void print_media(outline &out, int number, media_description &description, std::span<const body_line> lines);

} // namespace inspector

#endif
