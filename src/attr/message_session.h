/**
 * @file
 * Message-session attributes of a media section (RFC 4975): accept-types, accept-wrapped-types, path and
 * max-size. They are read in sections of the profile "TCP/MSRP" alone.
 */
#ifndef DAKSDP_ATTR_MESSAGE_SESSION_H
#define DAKSDP_ATTR_MESSAGE_SESSION_H

#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Writes the a=accept-types line; types without a text leave only their separator. `count` is read up to 5.
 * @param context its text buffer receives the line
 * @param description the media section
 * @return 1; 0, with a log line, for null, an absent record, a line of 200 characters or more, or a full text
 *         buffer
 */
int dak_sdp_encode_accept_attr(sdp_lib_context *context, media_description *description);

/**
 * Writes the accept-wrapped-types record under the name "acceptwrapped-types", the spelling that deployed
 * receivers rely on. Image types have no text here.
 * @param context its text buffer receives the line
 * @param description the media section
 * @return 1; 0, with a log line, for null, an absent record, a line of 200 characters or more, or a full text
 *         buffer
 */
int dak_sdp_encode_accept_wrapped_attr(sdp_lib_context *context, media_description *description);

/**
 * Writes the a=path line.
 * @param context its text buffer receives the line
 * @param description the media section
 * @return 1; 0, with a log line, for null, an absent record, a line of 200 characters or more, or a full text
 *         buffer
 */
int dak_sdp_encode_path_attr(sdp_lib_context *context, media_description *description);

/**
 * Writes the a=max-size line.
 * @param context its text buffer receives the line
 * @param description the media section
 * @return 1; 0, with a log line, for null, an absent record, a line of 200 characters or more, or a full text
 *         buffer
 */
int dak_sdp_encode_max_size_attr(sdp_lib_context *context, media_description *description);

/**
 * Reads the first five types of an a=accept-types line. An unknown type is logged and ends the reading; the
 * record's `present` then stays as it was.
 * @param description the media section
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @return 1 when read, or when ignored (logged) for its profile; 0, with a log line or an assertion report,
 *         for null or a missing value
 */
int dak_sdp_parse_a_equal_accept_type_line(media_description *description, const char *line_start,
                                           const char *line_end);

/**
 * Reads an a=accept-wrapped-types line, as dak_sdp_parse_a_equal_accept_type_line() does.
 * @param description the media section
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @return 1 when read, or when ignored (logged) for its profile; 0, with a log line or an assertion report,
 *         for null or a missing value
 */
int dak_sdp_parse_a_equal_accept_wrapped_type_line(media_description *description, const char *line_start,
                                                   const char *line_end);

/**
 * Reads an a=path line of one MSRP URI; one that is no msrp or msrps URI leaves no path. The transport is cut
 * to the length of the session id.
 * @param description the media section
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @return 1 when read, or when ignored (logged) for its profile; 0, with a log line or an assertion report,
 *         for null or a missing value
 */
int dak_sdp_parse_a_equal_path_line(media_description *description, const char *line_start,
                                    const char *line_end);

/**
 * Reads an a=max-size line; a value that is no number counts as 0.
 * @param description the media section
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @return 1 when read, or when ignored (logged) for its profile; 0, with a log line or an assertion report,
 *         for null or a missing value
 */
int dak_sdp_parse_a_equal_max_size_line(media_description *description, const char *line_start,
                                        const char *line_end);

/**
 * Stores the accept-types record, its `present` included.
 * @param description the media section
 * @param record the record to copy; nothing in it is checked
 * @return 1; 0, with a log line, for null
 */
int dak_sdp_set_media_accept_attr(media_description *description, sdp_accept_attr record);

/**
 * Stores the accept-wrapped-types record, its `present` included.
 * @param description the media section
 * @param record the record to copy; nothing in it is checked
 * @return 1; 0, with a log line, for null
 */
int dak_sdp_set_media_accept_wrapped_attr(media_description *description, sdp_accept_attr record);

/**
 * Stores the path record, its `present` included.
 * @param description the media section
 * @param record the record to copy; nothing in it is checked
 * @return 1; 0, with a log line, for null
 */
int dak_sdp_set_media_path_attr(media_description *description, sdp_path_attr record);

/**
 * Stores the max-size record, its `present` included.
 * @param description the media section
 * @param record the record to copy; nothing in it is checked
 * @return 1; 0, with a log line, for null
 */
int dak_sdp_set_media_max_size_attr(media_description *description, sdp_max_size_attr record);

/**
 * Copies the accept-types record out.
 * @param[out] out the record; all zero when the attribute is absent and, with a log line, for null
 * @param description the media section
 */
void dak_sdp_get_message_accept_attrs(sdp_accept_attr *out, const media_description *description);

/**
 * Copies the accept-wrapped-types record out.
 * @param[out] out the record; all zero when the attribute is absent and, with a log line, for null
 * @param description the media section
 */
void dak_sdp_get_message_accept_wrapped_attrs(sdp_accept_attr *out, const media_description *description);

/**
 * Copies the path record out.
 * @param[out] out the record; all zero when the attribute is absent and, with a log line, for null
 * @param description the media section
 */
void dak_sdp_get_message_path_attrs(sdp_path_attr *out, const media_description *description);

/**
 * Copies the max-size record out.
 * @param[out] out the record; all zero when the attribute is absent and, with a log line, for null
 * @param description the media section
 */
void dak_sdp_get_message_max_size_attrs(sdp_max_size_attr *out, const media_description *description);

#ifdef __cplusplus
}
#endif

#endif
