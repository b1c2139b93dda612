/**
 * @file
 * Reading SDP text into a container.
 */
#ifndef DAKSDP_OA_PARSE_H
#define DAKSDP_OA_PARSE_H

#include "oa/sdp_container.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Reads SDP text (RFC 4566) into a container. A failure inside one media line is logged and fails nothing
 * else, and so does an attribute for which there is no memory.
 *
 * Clean a container up before it is parsed into again: what it points to is overwritten, not released. Clean
 * it up after every call, whatever the result: a failure in the groups leaves the media lines allocated.
 * @param[out] container the caller's container; untouched for null or a capacity of 0, else cleared first
 * @param buffer the text; it ends at its capacity or at the first NUL, whichever comes first, and is never
 *         written to
 * @return 0; 1, with a log line, for too long a value; 2, with a log line, when memory runs out; 3, with a
 *         log line, for null, a missing o= line or no memory for a context; 4, with a log line, for a
 *         capacity of 0, an address that is not IN IP4 or IN IP6, 21 media lines or six groups; 5, with a log
 *         line, for an incomplete o= or c= line; 6, with a log line, for text that is no SDP, no memory for its
 *         lines or a v= line that is no number; 7 for a session id or version that is no 64-bit number
 */
uint32_t dak_app_oa_parse_sdp(sdp_container *container, const sdp_payload_buffer *buffer);

#ifdef __cplusplus
}
#endif

#endif
