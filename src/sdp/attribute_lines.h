/**
 * @file
 * Generic attributes, kept as "name:value" or "name" texts: those of a media section, and reading either
 * level by name and position. Names match as case-sensitive prefixes: "send" also finds "sendrecv".
 */
#ifndef DAKSDP_SDP_ATTRIBUTE_LINES_H
#define DAKSDP_SDP_ATTRIBUTE_LINES_H

#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Appends a generic attribute.
 * @param description the media section
 * @param name terminated name
 * @param value terminated value, or null for a property attribute
 * @return 1; 0, with an assertion report, for null, no memory or, with a log line too, a text of 200
 *         characters or more, which is kept cut to 199
 */
int set_media_description_attribute(media_description *description, const char *name, const char *value);

/**
 * Reads the first attribute of a name.
 * @param description the media section
 * @param name terminated name
 * @param[out] destination 256 characters for the text behind the first colon; unwritten when there is none
 * @return 1 if found; 0 if not and, with an assertion report, for null
 */
int get_media_description_attribute(const media_description *description, const char *name,
                                    char *destination);

/**
 * Writes the generic attributes as a= lines, in order.
 * @param context its text buffer receives the lines
 * @param description the media section
 * @return 1; 0, with an assertion report, for null, a full text buffer or, with a log line too, a line of 200
 *         characters or more
 */
int dak_encode_media_attribute(sdp_lib_context *context, media_description *description);

/**
 * Reads an a= line as a generic attribute.
 * @param description the media section
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @return 1; 0, with a log line, when it has no name or cannot be stored; 0, with an assertion report, for
 *         null
 */
int parse_sdp_attribute(media_description *description, const char *line_start, const char *line_end);

/**
 * Counts the attributes of a list.
 * @param head first node of the list
 * @param name terminated name
 * @return the count, modulo 256; 0, with an assertion report, for null
 */
int dak_sdp_get_number_of_attribute_values(const session_value *head, const char *name);

/**
 * Reads the first word behind the colon of an attribute.
 * @param head first node of the list
 * @param name terminated name
 * @param index position among the attributes of that name, 0 to 255
 * @param[out] value 200 characters; unwritten when there is no such attribute or it has no value. Null is
 *         reported as an assertion, as for the other pointers.
 */
void dak_sdp_get_attribute_value_by_index(const session_value *head, const char *name, int index,
                                          char *value);

/**
 * Counts the session attributes of a name.
 * @param context the context
 * @param selector 0 encoder document, 1 parser document
 * @param name terminated name
 * @return the count, modulo 256; 0, with an assertion report, for null or another selector
 */
int dak_sdp_get_number_of_session_attribute_values(sdp_lib_context *context, int selector, const char *name);

/**
 * Reads the first word behind the colon of a session attribute.
 * @param context the context
 * @param selector 0 encoder document, 1 parser document
 * @param name terminated name
 * @param index position among the attributes of that name, 0 to 255
 * @param[out] value as for dak_sdp_get_attribute_value_by_index()
 */
void dak_sdp_get_session_attribute_value_by_index(sdp_lib_context *context, int selector, const char *name,
                                                  int index, char *value);

/**
 * Counts the generic attributes of a name in a media section.
 * @param description the media section
 * @param name terminated name
 * @return the count, modulo 256; 0, with an assertion report, for null
 */
int dak_sdp_get_number_of_media_attribute_values(const media_description *description, const char *name);

/**
 * Reads the first word behind the colon of a media section's generic attribute.
 * @param description the media section
 * @param name terminated name
 * @param index position among the attributes of that name, 0 to 255
 * @param[out] value as for dak_sdp_get_attribute_value_by_index()
 */
void dak_sdp_get_media_attribute_value_by_index(const media_description *description, const char *name,
                                                int index, char *value);

#ifdef __cplusplus
}
#endif

#endif
