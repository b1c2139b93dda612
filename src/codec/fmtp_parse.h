/**
 * @file
 * Reading a=fmtp lines.
 */
#ifndef DAKSDP_CODEC_FMTP_PARSE_H
#define DAKSDP_CODEC_FMTP_PARSE_H

#include "sdp/media_description_record.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Reads one a=fmtp line (RFC 4566, section 6) into the record of the payload format that it names. Parameters
 * are separated by ";", for the formats EVRC, EVRC0, EVRC1, EVRCB, EVRCB0 and EVRCB1 by blanks too. Unknown
 * parameters are logged and skipped.
 * @param description the media section
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @return 1; 0 for null, a malformed line, a payload number that the section lacks or whose MIME type is
 *         unknown. A MIME type without parameters gives 0 as well and loses its name, which marks the payload
 *         format as unusable. Parameters stored before a failure stay.
 */
int parse_a_equal_fmtp_line(media_description *description, const char *line_start, const char *line_end);

#ifdef __cplusplus
}
#endif

#endif
