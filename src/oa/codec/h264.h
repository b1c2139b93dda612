/**
 * @file
 * H264 (RFC 6184).
 */
#ifndef DAKSDP_OA_CODEC_H264_H
#define DAKSDP_OA_CODEC_H264_H

#include "oa/codec/codec_params.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Writes the present parameters of a block of H264, up to the first that is refused.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param block an #sdp_h264_params
 * @return 0; 3, with a log line, for null; 4, with a log line, when a parameter is refused
 */
uint32_t dak_app_sdp_encode_h264(media_description *md, uint16_t codec_index, void *block);

/**
 * Fills a block of H264 from the parameters of a payload format. Texts are cut to 119 characters, their
 * lengths kept; unreadable numbers are left out.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param[out] block an #sdp_h264_params; fields of absent parameters are left alone
 * @return 0; 3, with a log line, for null
 */
uint32_t dak_app_sdp_decode_h264(media_description *md, uint16_t codec_index, void *block);

#ifdef __cplusplus
}
#endif

#endif
