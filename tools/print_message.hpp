// The message-session and file-transfer records of a media section, written for a person.
#ifndef DAKSDP_TOOLS_PRINT_MESSAGE_HPP
#define DAKSDP_TOOLS_PRINT_MESSAGE_HPP

#include "daksdp.h"
#include "outline.hpp"

namespace inspector {

// Prints what a media section holds of RFC 4975; nothing for a section that holds none of it.
void print_message_session(outline &out, const media_description &description);

// Prints what a media section holds of RFC 5547; nothing for a section that holds none of it.
void print_file_transfer(outline &out, const media_description &description);

} // namespace inspector

#endif
