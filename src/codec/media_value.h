/**
 * @file
 * Reading and writing fmtp parameters by name.
 */
#ifndef DAKSDP_CODEC_MEDIA_VALUE_H
#define DAKSDP_CODEC_MEDIA_VALUE_H

#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Stores a parameter of a payload format through the setter of its MIME type.
 * @param description the media section
 * @param index position of the payload format
 * @param name terminated name of at most 199 characters; "" for a value without a name, which telephone-event
 *         files under "events" and every other kind drops
 * @param value terminated value of at most 199 characters
 * @return 1 when stored or when the kind has no such parameter (logged); 0 when the MIME type is unknown or
 *         carries no parameters, and, with an assertion report, for null, a bad index or text that does not
 *         fit
 */
int set_media_value(media_description *description, int index, const char *name, const char *value);

/**
 * Reads a parameter of a payload format through the getter of its MIME type.
 * @param description the media section
 * @param index position of the payload format
 * @param name terminated name of at most 199 characters
 * @return the value, owned by the description; null when it was never set, when the MIME type is unknown or
 *         carries no parameters, and, with an assertion report, for null, a bad index or too long a name
 */
const char *get_media_value(media_description *description, int index, const char *name);

/**
 * Stores a value in the slot of that name; a second value replaces the first. Names match ignoring case, an
 * empty name matches no slot.
 * @param name terminated name; null counts as empty
 * @param value terminated value
 * @param names the record's slot names
 * @param values the record's values
 * @param present the record's flags
 * @param count slots in use, at most 25
 * @return 1 when stored without its trailing white characters, or when no slot has that name (logged); 0,
 *         with a log line and an assertion report, for a value of 200 characters or more
 */
int set_attr_value_by_mime(const char *name, const char *value, char (*names)[200], char (*values)[200],
                           uint32_t *present, uint8_t count);

/**
 * Reads the value of the slot of that name.
 * @param name terminated name
 * @param names the record's slot names
 * @param values the record's values
 * @param present the record's flags
 * @param count slots in use, at most 25
 * @return the value, owned by the record; null when no slot has that name or its value was never set, and, with
 *         an assertion report, for null
 */
const char *get_attr_value_by_mime(const char *name, char (*names)[200], char (*values)[200],
                                   const uint32_t *present, uint8_t count);

#ifdef __cplusplus
}
#endif

#endif
