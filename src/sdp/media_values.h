/**
 * @file
 * The typed lines of a media section: one i=, one c=, four b= and one k=.
 */
#ifndef DAKSDP_SDP_MEDIA_VALUES_H
#define DAKSDP_SDP_MEDIA_VALUES_H

#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Stores a typed line in the first free slot of its type.
 * @param description the media section
 * @param type "i=", "c=", "b=" or "k="; case is ignored
 * @param value terminated value of at most 199 characters
 * @return 1; 0, with an assertion report, for null and, with a log line too, when no slot of the type is free
 *         or the value is too long
 */
int dak_sdp_set_media_value(media_description *description, const char *type, const char *value);

/**
 * Reads a typed line. A line for which no slot is free is dropped.
 * @param description the media section
 * @param line_start first character of the line; blanks are skipped
 * @param line_end one past its last character
 * @return 1 when stored or dropped; 0, with an assertion report, for null or a value of more than 198
 *         characters
 */
int parse_media_description_value(media_description *description, const char *line_start,
                                  const char *line_end);

/**
 * Reads the value of a typed line.
 * @param description the media section
 * @param index 0 for the first set line of the type
 * @param type "i=", "c=", "b=" or "k="; case counts
 * @return the value, owned by the section; null when there is none and, with an assertion report, for null
 */
const char *get_media_description_value_by_index(const media_description *description, int index,
                                                 const char *type);

/**
 * Reads the value of the second set line of a type; get_media_description_value_by_index() with 0 reads the
 * first.
 * @param description the media section
 * @param type as for get_media_description_value_by_index()
 * @return as get_media_description_value_by_index()
 */
const char *get_media_description_value(const media_description *description, const char *type);

/**
 * Writes the typed lines that are set, in the order i=, c=, b=, k=.
 * @param context its text buffer receives the lines
 * @param description the media section
 * @return 1; 0, with an assertion report, for null or a full text buffer
 */
int dak_sdp_encode_media_fields(sdp_lib_context *context, media_description *description);

#ifdef __cplusplus
}
#endif

#endif
