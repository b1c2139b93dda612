/**
 * @file
 * Generating SDP text from a container.
 */
#ifndef DAKSDP_OA_GENERATE_H
#define DAKSDP_OA_GENERATE_H

#include "oa/sdp_container.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Writes a container as SDP text (RFC 4566). Of the b= lines for which there is no memory only the fifth fails
 * the call; the others are logged and left out.
 * @param container the container; only the marker of an H263-1998 block is ever written to
 * @param[out] buffer the caller's buffer; written on success alone, and then terminated
 * @return 0; 1, with a log line, when the text or a part of it does not fit; 2, with a log line, when memory
 *         runs out; 3, with a log line, for null, an unknown codec, or no memory for a context or an attribute
 *         with a value; 4, with a log line, for invalid content, no memory for any other line, or a capacity of
 *         0; 7, with a log line, for a payload number above 95 without a=rtpmap line
 */
uint32_t dak_app_oa_generate_sdp(sdp_container *container, sdp_payload_buffer *buffer);

#ifdef __cplusplus
}
#endif

#endif
