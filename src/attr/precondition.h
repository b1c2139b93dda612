/**
 * @file
 * QoS preconditions of a media section (RFC 3312): up to ten a=curr, a=des and a=conf lines as whole texts.
 */
#ifndef DAKSDP_ATTR_PRECONDITION_H
#define DAKSDP_ATTR_PRECONDITION_H

#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Kinds of precondition line. */
typedef enum pcd_attr_type {
    PCD_CURR = 1, /**< a=curr, current status */
    PCD_DES = 2,  /**< a=des, desired status */
    PCD_CONF = 3  /**< a=conf, confirmation */
} pcd_attr_type;

/**
 * Appends a precondition.
 * @param description the media section
 * @param kind a #pcd_attr_type
 * @param value terminated text behind the attribute's colon, at most 199 characters. A longer one is refused
 *         with an assertion report, its cut text stays counted.
 * @return 1; 0, with a log line, for null, an unknown kind, an eleventh entry or too long a value
 */
int set_media_precond_attr(media_description *description, uint32_t kind, const char *value);

/**
 * Counts the preconditions.
 * @param description the media section
 * @return the count; -1, with a log line, for null or when there are none
 */
int get_number_of_precond_attrs(const media_description *description);

/**
 * Reads a precondition. The entry behind the last is readable too; callers stop at the count.
 * @param description the media section
 * @param[out] kind the entry's #pcd_attr_type
 * @param index position, 0 to the count
 * @return the value, owned by the description; null, with a log line, for anything else
 */
const char *get_media_precond_attr(const media_description *description, uint32_t *kind, int index);

/**
 * Writes all preconditions as lines.
 * @param context its text buffer receives the lines
 * @param description the media section
 * @return 1; 0, with a log line, for null, no preconditions, an unknown kind, a line of 200 characters or
 *         more, or a full text buffer
 */
int encode_precondition_attr(sdp_lib_context *context, media_description *description);

/**
 * Reads an a=curr, a=des or a=conf line. With ten entries stored a further line is dropped.
 * @param description the media section
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @return 1 when stored or dropped; 0, with a log line, for null, another attribute or a missing value
 */
int parse_a_equal_pcd_line(media_description *description, const char *line_start, const char *line_end);

#ifdef __cplusplus
}
#endif

#endif
