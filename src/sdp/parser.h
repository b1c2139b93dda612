/**
 * @file
 * Reading SDP text (RFC 4566) into the parser document.
 *
 * The parser is strict about session line types and m= lines and lenient about attributes: a bad attribute is
 * logged and skipped. CR LF, LF and CR all end lines; blank lines and leading blanks are skipped.
 */
#ifndef DAKSDP_SDP_PARSER_H
#define DAKSDP_SDP_PARSER_H

#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Reads SDP text into the parser document.
 * @param context the context; it stays releasable whatever the result
 * @param text SDP text; it ends at `length` characters or at the first NUL, whichever comes first, and is
 *         never written to
 * @param length characters of `text`, at most
 * @return 1; 0, with an assertion report, for null, empty text, an unknown or malformed session line, a
 *         session value of more than 198 characters, a malformed m= line, a 21st payload number, a 31st media
 *         section or no memory for a session line or a media section. An attribute line for which there is no
 *         memory is logged and skipped. What was read before a failure stays in the document.
 */
int sdp_parse(sdp_lib_context *context, const char *text, uint32_t length);

/**
 * Reads session lines up to the first m= line.
 * @param context the context
 * @param[in,out] position where to read; afterwards the end of the last session line
 * @param end one past the last character
 * @return 1; 0, with an assertion report, for null, an empty range or a line that is no session line
 */
int parse_session_info(sdp_lib_context *context, const char **position, const char *end);

/**
 * Reads media sections.
 * @param context the context
 * @param position where to read
 * @param end one past the last character; must be readable
 * @return 1; 0, with an assertion report, for null, a malformed m= line, a full document or no memory
 */
int parse_media_description(sdp_lib_context *context, const char *position, const char *end);

/**
 * Reads an m= line into an empty media section.
 * @param line_start first character of the line
 * @param line_end one past its last character
 * @param description the media section
 * @return 1; 0, with an assertion report, for null or a malformed line
 */
int process_media_description(const char *line_start, const char *line_end, media_description *description);

/**
 * Reads the lines behind an m= line: first the a=rtcp and a=rtpmap lines, then all others.
 * @param[in,out] position where to read; afterwards the end of the section's last line
 * @param end one past the last character; must be readable
 * @param description the media section
 * @return 1, whatever the lines hold; 0, with an assertion report, for null
 */
int process_media_attribute(const char **position, const char *end, media_description *description);

#ifdef __cplusplus
}
#endif

#endif
