/**
 * @file
 * The DTX parameters of the EVRC family (RFC 4788).
 */
#ifndef DAKSDP_OA_CODEC_DTX_H
#define DAKSDP_OA_CODEC_DTX_H

#include "oa/codec/codec_params.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Writes "silencesupp", "dtxmax", "dtxmin" and "hangover", each when present, up to the first that is
 * refused.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param dtx the values
 * @return 0, or 7 when one was refused
 */
uint32_t dak_app_sdp_encode_dtx(media_description *md, uint16_t codec_index, dtx_params dtx);

/**
 * Reads the DTX parameters. Unreadable values, and a silencesupp other than 0 and 1, are logged and left out.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param[out] dtx the values, cleared first
 * @return 0; 3 for null; 4, with a log line, for a number outside 0 to 255, behind which nothing is read
 */
uint32_t dak_app_sdp_decode_dtx(media_description *md, uint16_t codec_index, dtx_params *dtx);

#ifdef __cplusplus
}
#endif

#endif
