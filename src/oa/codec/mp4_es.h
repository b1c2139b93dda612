/**
 * @file
 * MP4V-ES (RFC 6416).
 */
#ifndef DAKSDP_OA_CODEC_MP4_ES_H
#define DAKSDP_OA_CODEC_MP4_ES_H

#include "oa/codec/codec_params.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Writes "profile-level-id" and "config", the latter as two lower-case hexadecimal digits an octet.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param block an #sdp_mp4_es_params
 * @return 0; 2, with a log line, when memory runs out; 3, with a log line, for null; 4, with a log line, when
 *         a parameter is refused, as a config of more than 99 octets is
 */
uint32_t dak_app_sdp_encode_mp4_es(media_description *md, uint16_t codec_index, void *block);

/**
 * Fills a block of MP4V-ES from the parameters of a payload format. A config that is not hexadecimal is left
 * out.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param[out] block an #sdp_mp4_es_params; fields of absent parameters are left alone
 * @return 0; 1, with a log line, for a config of more than 240 digits; 3, with a log line, for null
 */
uint32_t dak_app_sdp_decode_mp4_es(media_description *md, uint16_t codec_index, void *block);

#ifdef __cplusplus
}
#endif

#endif
