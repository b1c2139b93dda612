/**
 * @file
 * File-transfer attributes of a media section (RFC 5547). They are read in sections of the profile "TCP/MSRP"
 * alone.
 */
#ifndef DAKSDP_ATTR_FILE_TRANSFER_H
#define DAKSDP_ATTR_FILE_TRANSFER_H

#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Writes the a=file-transfer-id line, whatever the id holds.
 * @param context its text buffer receives the line
 * @param description the media section
 * @return 1; 0, with a log line, for null, a line of 200 characters or more, or a full text buffer
 */
int dak_sdp_encode_file_transfer_id_attr(sdp_lib_context *context, media_description *description);

/**
 * Writes the a=file-disposition line; nothing for an absent record, the bare prefix for another word.
 * @param context its text buffer receives the line
 * @param description the media section
 * @return 1; 0, with a log line, for null, a line of 200 characters or more, or a full text buffer
 */
int dak_sdp_encode_file_disposition_attr(sdp_lib_context *context, media_description *description);

/**
 * Writes an a=file-date line for each date that is not empty: creation, modification, read.
 * @param context its text buffer receives the line
 * @param description the media section
 * @return 1; 0, with a log line, for null, a line of 200 characters or more, or a full text buffer
 */
int dak_sdp_encode_file_date_attr(sdp_lib_context *context, media_description *description);

/**
 * Writes the a=file-icon line, whatever the content id holds.
 * @param context its text buffer receives the line
 * @param description the media section
 * @return 1; 0, with a log line, for null, a line of 200 characters or more, or a full text buffer
 */
int dak_sdp_encode_file_icon_attr(sdp_lib_context *context, media_description *description);

/**
 * Writes the a=file-range line.
 * @param context its text buffer receives the line
 * @param description the media section
 * @return 1; 0, with a log line, for null, a line of 200 characters or more, or a full text buffer
 */
int dak_sdp_encode_file_range_attr(sdp_lib_context *context, media_description *description);

/**
 * Writes one a=file-selector line: the items that are set, in the order name, type, size, hash.
 * @param context its text buffer receives the line
 * @param description the media section
 * @param index position of the selector, 0 to 4
 * @return 1; 0, with a log line, for null, a position outside 0 to 4, a line of 200 characters or more, or a
 *         full text buffer
 */
int dak_sdp_encode_file_selector_attr(sdp_lib_context *context, media_description *description, int index);

/**
 * Reads an a=file-transfer-id line.
 * @param description the media section
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @return 1 when read or ignored, also, with a log line, for its profile; 0, with a log line or an assertion
 *         report, for null or a missing value
 */
int dak_sdp_parse_a_equal_file_transfer_id_line(media_description *description, const char *line_start,
                                                const char *line_end);

/**
 * Reads an a=file-disposition line.
 * @param description the media section
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @return 1 when read or ignored, also, with a log line, for its profile; 0, with a log line or an assertion
 *         report, for null or a missing value
 */
int dak_sdp_parse_a_equal_file_disposition_line(media_description *description, const char *line_start,
                                                const char *line_end);

/**
 * Reads an a=file-date line; one of another kind or without quotes is ignored.
 * @param description the media section
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @return 1 when read or ignored, also, with a log line, for its profile; 0, with a log line or an assertion
 *         report, for null or a missing value
 */
int dak_sdp_parse_a_equal_file_date_line(media_description *description, const char *line_start,
                                         const char *line_end);

/**
 * Reads an a=file-icon line; a value other than "cid:" with a content id is ignored.
 * @param description the media section
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @return 1 when read or ignored, also, with a log line, for its profile; 0, with a log line or an assertion
 *         report, for null or a missing value
 */
int dak_sdp_parse_a_equal_file_icon_line(media_description *description, const char *line_start,
                                         const char *line_end);

/**
 * Reads an a=file-range line; a part that is no number counts as 0.
 * @param description the media section
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @return 1 when read or ignored, also, with a log line, for its profile; 0, with a log line or an assertion
 *         report, for null or a missing value
 */
int dak_sdp_parse_a_equal_file_range_line(media_description *description, const char *line_start,
                                          const char *line_end);

/**
 * Reads an a=file-selector line. One without a value marks the next selector `empty` and sets the count to 1;
 * selectors beyond the fifth are ignored.
 * @param description the media section
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @return 1 when read or ignored, also, with a log line, for its profile; 0, with a log line or an assertion
 *         report, for null or a missing value
 */
int dak_sdp_parse_a_equal_file_selector_line(media_description *description, const char *line_start,
                                             const char *line_end);

/**
 * Stores the file-transfer-id; @p text is terminated, its first 255 characters are kept, 180 can be written.
 * @param description the media section
 * @param text what to store; nothing in it is checked
 * @return 1; 0, with a log line, for a null description
 */
int dak_sdp_set_media_file_transfer_id_attr(media_description *description, const char *text);

/**
 * Stores the file-disposition record.
 * @param description the media section
 * @param record what to store; nothing in it is checked
 * @return 1; 0, with a log line, for a null description
 */
int dak_sdp_set_media_file_disposition_attr(media_description *description, sdp_file_disposition record);

/**
 * Stores the file-date record.
 * @param description the media section
 * @param record what to store; nothing in it is checked
 * @return 1; 0, with a log line, for a null description
 */
int dak_sdp_set_media_file_date_attr(media_description *description, sdp_file_date record);

/**
 * Stores the content id of the file icon; @p text is terminated, its first 255 characters are kept.
 * @param description the media section
 * @param text what to store; nothing in it is checked
 * @return 1; 0, with a log line, for a null description
 */
int dak_sdp_set_media_file_icon_attr(media_description *description, const char *text);

/**
 * Stores the file-range record.
 * @param description the media section
 * @param record what to store; nothing in it is checked
 * @return 1; 0, with a log line, for a null description
 */
int dak_sdp_set_media_file_range_attr(media_description *description, sdp_file_range record);

/**
 * Stores the count of file selectors, as given; the writer stops at five.
 * @param description the media section
 * @param count what to store; nothing in it is checked
 * @return 1; 0, with a log line, for a null description
 */
int dak_sdp_set_media_num_of_file_selectors_attr(media_description *description, int32_t count);

/**
 * Stores one file-selector record; the count is not touched.
 * @param description the media section
 * @param record what to store; nothing in it is checked
 * @param index position, 0 to 4; anything else is refused with an assertion report
 * @return 1; 0, with a log line, for a null description
 */
int dak_sdp_set_media_file_selector_attr(media_description *description, sdp_file_selector record, int index);

/**
 * Copies the file-disposition record out.
 * @param[out] out the record; all zero, with a log line, for null
 * @param description the media section
 */
void dak_sdp_get_message_file_disposition_attrs(sdp_file_disposition *out,
                                                const media_description *description);

/**
 * Copies the file-date record out.
 * @param[out] out the record; all zero, with a log line, for null
 * @param description the media section
 */
void dak_sdp_get_message_file_date_attrs(sdp_file_date *out, const media_description *description);

/**
 * Copies the file-range record out.
 * @param[out] out the record; all zero, with a log line, for null
 * @param description the media section
 */
void dak_sdp_get_message_file_range_attrs(sdp_file_range *out, const media_description *description);

/**
 * Reads the file-transfer-id.
 * @param description the media section
 * @return the text, empty when absent, owned by the description; null, with a log line, for null
 */
const char *dak_sdp_get_message_file_transfer_id_attrs(const media_description *description);

/**
 * Reads the content id of the file icon.
 * @param description the media section
 * @return the text, empty when absent, owned by the description; null, with a log line, for null
 */
const char *dak_sdp_get_message_file_icon_attrs(const media_description *description);

/**
 * Counts the file selectors.
 * @param description the media section
 * @return the count as stored; 0, with a log line, for null
 */
int32_t dak_sdp_get_message_num_of_file_selectors_attrs(const media_description *description);

/**
 * Copies one file-selector record out.
 * @param[out] out the record; all zero, with a log line, for null, and, with an assertion report, for a
 *         position outside 0 to 4
 * @param description the media section
 * @param index position of the selector
 */
void dak_sdp_get_message_file_selector_attrs(sdp_file_selector *out, const media_description *description,
                                             int index);

#ifdef __cplusplus
}
#endif

#endif
