/**
 * @file
 * The readers of media sections.
 *
 * Each takes its lines of a media section into the fields of a media line, which was zeroed, and leaves the
 * other fields alone.
 */
#ifndef DAKSDP_OA_MEDIA_PARSING_H
#define DAKSDP_OA_MEDIA_PARSING_H

#include "oa/sdp_container.h"
#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Allocates the container's media lines and fills them. A failure inside a media line is logged and ends the
 * reading of that line alone.
 * @param document the context that holds the parser document
 * @param container the container; `mlines` is overwritten, and left alone for a body without media
 * @return 0; 2, with a log line, when memory runs out; 3, with a log line, for null; 4, with a log line, for
 *         more than 20 media sections; 6, with a log line, for a missing one
 */
uint32_t dak_app_oa_parse_mlines(sdp_lib_context *document, sdp_container *container);

/**
 * Reads media type, transport, ports and RTCP address.
 * @param md the media section
 * @param[in,out] mline the media line
 * @return 0, also, with a log line, for an unknown transport; 3, with a log line, for null; 4 for another
 *         type than audio, video, message and image
 */
uint32_t dak_app_oa_parse_media_line(media_description *md, sdp_media_line *mline);

/**
 * Reads the c= line, if there is one.
 * @param md the media section
 * @param[in,out] mline the media line
 * @return 0 without one; 3, with a log line, for null; else the result of dak_app_oa_parse_address()
 */
uint32_t dak_app_oa_parse_media_connection(media_description *md, sdp_media_line *mline);

/**
 * Reads up to four b= lines; an unknown modifier, or a value that is no number (logged), ends the reading.
 * @param md the media section
 * @param[in,out] mline the media line
 * @return 0; 3, with a log line, for null; 5, with a log line, for a missing modifier or value
 */
uint32_t dak_app_oa_parse_media_bandwidth(media_description *md, sdp_media_line *mline);

/**
 * Reads direction, setup, ptime, maxptime, framerate, maxprate, mid, feedback for all formats and
 * preconditions.
 * @param md the media section
 * @param[in,out] mline the media line
 * @return 0; 1, with a log line, for a mid of 21 characters or more; 3, with a log line, for null; else the
 *         result of dak_app_oa_parse_pre_cond_str()
 */
uint32_t dak_app_oa_parse_media_gen_attr(media_description *md, sdp_media_line *mline);

/**
 * Reads the payload formats with their codec parameters and feedback.
 * @param md the media section
 * @param[in,out] mline the media line
 * @return 0; 3, with a log line, for null; 7, with a log line, for a payload number of 96 or above whose
 *         parameters cannot be decoded: the formats behind it are not read
 */
uint32_t dak_app_oa_parse_formats(media_description *md, sdp_media_line *mline);

/**
 * Copies the message-session and file-transfer records; the latter only when there is a file selector.
 * @param md the media section
 * @param[in,out] mline the media line
 * @return 0, also for null
 */
uint32_t dak_app_oa_parse_message_attr(media_description *md, sdp_media_line *mline);

/**
 * Classifies the subtype text of a feedback entry.
 * @param subtype terminated text
 * @param[in,out] entry its `nack_subtype` becomes 0 for an empty text and 5 for any other
 * @return 0; 0, with a log line, for an entry of another type than NACK; 3, with a log line, for null
 */
uint32_t dak_app_oa_parse_rtcp_fb_subtype(const char *subtype, sdp_rtcp_fb *entry);

#ifdef __cplusplus
}
#endif

#endif
