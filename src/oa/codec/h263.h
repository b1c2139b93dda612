/**
 * @file
 * H263-1998 and H263-2000 (RFC 4629).
 */
#ifndef DAKSDP_OA_CODEC_H263_H
#define DAKSDP_OA_CODEC_H263_H

#include "oa/codec/codec_params.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Writes the parameters of H263-1998.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param[in,out] block an #sdp_h263_1998_params; its marker is set to 1 once all was written
 * @return 0; 1, with a log line, for more than 128 submodes; 3 for null; 4, with a log line, when a parameter
 *         is refused
 */
uint32_t dak_app_sdp_encode_h263_1998(media_description *md, uint16_t codec_index, void *block);

/**
 * Fills the block of H263-1998. Unreadable values are left out.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param[out] block an #sdp_h263_1998_params; fields of absent parameters are left alone
 * @return 0; 6 for a CPCF of 64 characters or more, with `fmtp_present` and the marker 0; 7 for null
 */
uint32_t dak_app_sdp_decode_h263_1998(media_description *md, uint16_t codec_index, void *block);

/**
 * Writes the parameters of H263-2000.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param block an #sdp_h263_2000_params
 * @return as dak_app_sdp_encode_h263_1998(), but 7 for null
 */
uint32_t dak_app_sdp_encode_h263_2000(media_description *md, uint16_t codec_index, void *block);

/**
 * Fills the block of H263-2000. Unreadable values are left out.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param[out] block an #sdp_h263_2000_params; profile, level and interlace are cleared when absent, other
 *         fields of absent parameters are left alone
 * @return as dak_app_sdp_decode_h263_1998()
 */
uint32_t dak_app_sdp_decode_h263_2000(media_description *md, uint16_t codec_index, void *block);

/**
 * Writes the parameters that both share.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param params the parameters
 * @return as dak_app_sdp_encode_h263_1998(), but 7 for null
 */
uint32_t dak_app_sdp_encode_h263plus_params(media_description *md, uint16_t codec_index,
                                            const h263_params *params);

/**
 * Reads the parameters that both share.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param[out] params the parameters; fields of absent parameters are left alone
 * @return 0; 6 for a CPCF of 64 characters or more, behind which nothing is read; 7 for null
 */
uint32_t dak_app_sdp_decode_h263plus_params(media_description *md, uint16_t codec_index, h263_params *params);

/**
 * Reads the three numbers of "CUSTOM".
 * @param text terminated numbers separated by "," or ";"
 * @param[out] params `custom_x`, `custom_y` and `custom_mpi`, as far as they could be read
 * @return 0; 1, with a log line, for 256 characters or more; 3, with a log line, for null; 6 for fewer
 *         numbers
 */
uint32_t dak_app_sdp_parse_h263_custom_param(const char *text, h263_params *params);

/**
 * Reads the submodes of "P".
 * @param text terminated numbers separated by "," or ";"
 * @param[out] params `p_modes` and, on success, `p_count`
 * @return 0; 1, with a log line, for 256 characters or more; 3, with a log line, for null; 6 for no number, a
 *         number outside 0 to 4 or a fifth one
 */
uint32_t dak_app_sdp_parse_h263_ref_pic_param(const char *text, h263_params *params);

#ifdef __cplusplus
}
#endif

#endif
