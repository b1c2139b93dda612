// The message-session and file-transfer records of a media section or a media line, written for a person.
#ifndef DAKSDP_TOOLS_PRINT_MESSAGE_HPP
#define DAKSDP_TOOLS_PRINT_MESSAGE_HPP

#include "daksdp.h"
#include "outline.hpp"

namespace inspector {

// Prints what it holds of RFC 4975; nothing for one that holds none of it.
void print_message_session(outline &out, const media_description &description);
void print_message_session(outline &out, const sdp_media_line &mline);

// Prints what it holds of RFC 5547; nothing for one that holds none of it.
void print_file_transfer(outline &out, const media_description &description);
void print_file_transfer(outline &out, const sdp_media_line &mline);

} // namespace inspector

#endif
