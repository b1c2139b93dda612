/**
 * @file
 * AMR, AMR-WB and G722_2 (RFC 4867).
 */
#ifndef DAKSDP_OA_CODEC_AMR_H
#define DAKSDP_OA_CODEC_AMR_H

#include "oa/codec/codec_params.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Writes the present parameters of a block of AMR, AMR-WB or G722_2, up to the first that is refused.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param block an #sdp_amr_params
 * @return 0; 3, with a log line, for null; 4, with a log line, when a parameter is refused
 */
uint32_t dak_app_sdp_encode_amr(media_description *md, uint16_t codec_index, void *block);

/**
 * Fills a block of AMR, AMR-WB or G722_2 from the parameters of a payload format. Unreadable values are
 * logged and left out.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param[out] block an #sdp_amr_params; fields of absent parameters are left alone
 * @return 0; 3, with a log line, for null; 4, with a log line, for an invalid mode-set
 */
uint32_t dak_app_sdp_decode_amr(media_description *md, uint16_t codec_index, void *block);

/**
 * Writes a mode list such as "0,2,7". Mode 8 is not written.
 * @param[out] out 256 characters
 * @param mode_map bit map of modes
 * @return 1; 0, with a log line, for null
 */
int dak_app_sdp_encode_amr_mode_map(char *out, uint32_t mode_map);

/**
 * Reads a mode list, one digit a mode, at most nine modes.
 * @param text terminated list separated by "," or ";"
 * @param[out] mode_set_present 1, or 0 for an empty list or a mode that is no digit
 * @param[out] mode_set bit map of the modes read
 * @return 0; 1, with a log line, for more than 256 characters; 4 for null and, with a log line, for mode 9
 */
uint32_t dak_app_oa_get_amr_mode(const char *text, uint8_t *mode_set_present, uint32_t *mode_set);

#ifdef __cplusplus
}
#endif

#endif
