/**
 * @file
 * telephone-event (RFC 4733).
 */
#ifndef DAKSDP_OA_CODEC_TEL_EVENT_H
#define DAKSDP_OA_CODEC_TEL_EVENT_H

#include "oa/codec/codec_params.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Writes the events list of a block of telephone-event, if it has one.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param block an #sdp_tel_event_params
 * @return 0; 3, with a log line, for null; 4, with a log line, for an entry of another kind or a refused list
 */
uint32_t dak_app_sdp_encode_tel_event(media_description *md, uint16_t codec_index, void *block);

/**
 * Fills a block of telephone-event from the parameters of a payload format; what it held is cleared.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param[out] block an #sdp_tel_event_params
 * @return 0; 3, with a log line, for null; 1 or 4, with a log line, for an invalid list
 */
uint32_t dak_app_sdp_decode_tel_event(media_description *md, uint16_t codec_index, void *block);

/**
 * Writes an events list such as "0-11,16".
 * @param block the block; its list ends at the first entry of kind 0
 * @param[out] out 256 characters
 * @param[out] count entries written; may be null
 * @return 0; 1, with a log line and an assertion report, for too long a list; 3, with a log line, for null;
 *         4, with a log line, for an entry of another kind than single event and range
 */
uint32_t dak_app_sdp_encode_dtmf_tel_event_tag(const sdp_tel_event_params *block, char *out, uint16_t *count);

/**
 * Reads an events list. The first token that is no event or range ends it, as does a 17th.
 * @param text terminated list separated by "," or ";"
 * @param[out] events 16 entries; those that are not read are left alone
 * @return 0; 1, with a log line, for more than 256 characters; 4 for null and, with a log line, for a range
 *         whose first event is above its last
 */
uint32_t dak_app_oa_get_dtmf_tel_event(const char *text, sdp_tel_event_entry *events);

#ifdef __cplusplus
}
#endif

#endif
