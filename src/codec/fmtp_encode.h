/**
 * @file
 * Writing a=fmtp lines.
 */
#ifndef DAKSDP_CODEC_FMTP_ENCODE_H
#define DAKSDP_CODEC_FMTP_ENCODE_H

#include "sdp/document_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Writes the set parameters of a record as one a=fmtp line (RFC 4566, section 6), in slot order. A record
 * without set parameters writes nothing.
 * @param count slots in use, at most 25
 * @param present the record's flags
 * @param payload_number the line's payload type number
 * @param scratch 200 characters of work area
 * @param context its text buffer receives the line
 * @param names the record's slot names; a slot without a name writes its bare value
 * @param values the record's values
 * @param separator terminated text between two parameters
 * @return 1; 0, with an assertion report, for null, too high a count, a full text buffer, or, with a log line
 *         too, a parameter of 200 characters or more. What was written before a failure stays in the buffer.
 */
int dak_sdp_encode_a_equal_fmtp_line(int count, const uint32_t *present, uint32_t payload_number,
                                     char *scratch, sdp_lib_context *context, char (*names)[200],
                                     char (*values)[200], const char *separator);

#ifdef __cplusplus
}
#endif

#endif
