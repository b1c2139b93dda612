// Content types of message sessions and of files, as text.
#ifndef DAKSDP_ATTR_CONTENT_TYPE_HPP
#define DAKSDP_ATTR_CONTENT_TYPE_HPP

#include "attr/message_session_record.h"
#include "util/text_range.hpp"

#include <stdint.h>

namespace dak {

// What accept-types, accept-wrapped-types and both readers call each value; null where a writer has no text.
struct content_type {
    const char *accept;
    const char *accept_wrapped;
    const char *read;
};

inline constexpr uint32_t content_type_count = 10;

inline constexpr content_type content_types[content_type_count] = {
    {"text/plain", "text/plain", "text/plain"},
    {"message/cpim", "message/cpim", "message/cpim"},
    {"application/im-iscomposing+xml", "application/im-iscomposing+xml", "application/im-iscomposing+xml"},
    // Peers expect the application form in accept-types; what we read is the message form alone.
    {"application/imdn+xml", "message/imdn+xml", "message/imdn+xml"},
    {"text/html", "text/html", "text/html"},
    {"image/jpeg", nullptr, "image/jpeg"},
    {"image/png", nullptr, "image/png"},
    {"image/bmp", nullptr, "image/bmp"},
    {"image/gif", nullptr, "image/gif"},
    {"*", "*", "*"},
};

// The value of a received type between `first` and `last`, or SDP_ACCEPT_NONE.
inline uint32_t read_content_type(text_range word, uint32_t first, uint32_t last)
{
    for (uint32_t type = first; type <= last; type++) {
        if (word.equals(content_types[type].read))
            return type;
    }
    return SDP_ACCEPT_NONE;
}

constexpr bool is_file_type(uint32_t type) { return type >= SDP_ACCEPT_JPEG && type <= SDP_ACCEPT_GIF; }

} // namespace dak

#endif
