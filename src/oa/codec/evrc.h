/**
 * @file
 * The EVRC family (RFC 3558, RFC 4788, RFC 5188): EVRC, EVRC-B and EVRC-WB, each in its bundled, header-free
 * ("0") and compact bundle ("1") form.
 *
 * An encoder writes the parameters of a block that are present, a decoder fills a block. Which of them a
 * codec has, its block tells.
 */
#ifndef DAKSDP_OA_CODEC_EVRC_H
#define DAKSDP_OA_CODEC_EVRC_H

#include "oa/codec/codec_params.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Encoder of EVRC; the block is an #sdp_evrc_params.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param block the codec's parameter block; nothing is written unless its `fmtp_present` is set
 * @return 0; 3, with a log line, for null; or the code of the parameter that was refused: 1, 4 or, of the DTX
 *         parameters, 7
 */
uint32_t dak_app_sdp_encode_evrc(media_description *md, uint16_t codec_index, void *block);
/**
 * Decoder of EVRC; the block is an #sdp_evrc_params.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param[out] block the codec's parameter block. Unreadable numbers are left out, fields of absent parameters
 *         left alone; the DTX parameters are cleared first.
 * @return 0; 3, with a log line, for null; 4, with a log line, for an invalid mode, mode list, fixed rate or
 *         DTX value; 1, with a log line, for too long a mode list
 */
uint32_t dak_app_sdp_decode_evrc(media_description *md, uint16_t codec_index, void *block);
/** Encoder of EVRC0; the block is an #sdp_evrc0_params. @copydetails dak_app_sdp_encode_evrc */
uint32_t dak_app_sdp_encode_evrc0(media_description *md, uint16_t codec_index, void *block);
/** Decoder of EVRC0; the block is an #sdp_evrc0_params. @copydetails dak_app_sdp_decode_evrc */
uint32_t dak_app_sdp_decode_evrc0(media_description *md, uint16_t codec_index, void *block);
/** Encoder of EVRC1; the block is an #sdp_evrc1_params. @copydetails dak_app_sdp_encode_evrc */
uint32_t dak_app_sdp_encode_evrc1(media_description *md, uint16_t codec_index, void *block);
/** Decoder of EVRC1; the block is an #sdp_evrc1_params. @copydetails dak_app_sdp_decode_evrc */
uint32_t dak_app_sdp_decode_evrc1(media_description *md, uint16_t codec_index, void *block);
/**
 * Encoder of EVRCB; the block is an #sdp_evrcb_params. A mode that is refused is passed over.
 * @copydetails dak_app_sdp_encode_evrc
 */
uint32_t dak_app_sdp_encode_evrcb(media_description *md, uint16_t codec_index, void *block);
/**
 * Decoder of EVRCB; the block is an #sdp_evrcb_params. Further recvmodes add to the map.
 * @copydetails dak_app_sdp_decode_evrc
 */
uint32_t dak_app_sdp_decode_evrcb(media_description *md, uint16_t codec_index, void *block);
/** Encoder of EVRCB0; the block is an #sdp_evrcb0_params. @copydetails dak_app_sdp_encode_evrc */
uint32_t dak_app_sdp_encode_evrcb0(media_description *md, uint16_t codec_index, void *block);
/**
 * Decoder of EVRCB0; the block is an #sdp_evrcb0_params. Further recvmodes add to the map.
 * @copydetails dak_app_sdp_decode_evrc
 */
uint32_t dak_app_sdp_decode_evrcb0(media_description *md, uint16_t codec_index, void *block);
/** Encoder of EVRCB1; the block is an #sdp_evrc1_params. @copydetails dak_app_sdp_encode_evrc */
uint32_t dak_app_sdp_encode_evrcb1(media_description *md, uint16_t codec_index, void *block);
/** Decoder of EVRCB1; the block is an #sdp_evrc1_params. @copydetails dak_app_sdp_decode_evrc */
uint32_t dak_app_sdp_decode_evrcb1(media_description *md, uint16_t codec_index, void *block);
/** Encoder of EVRCWB; the block is an #sdp_evrcb_params. @copydetails dak_app_sdp_encode_evrc */
uint32_t dak_app_sdp_encode_evrcwb(media_description *md, uint16_t codec_index, void *block);
/** Decoder of EVRCWB; the block is an #sdp_evrcb_params. @copydetails dak_app_sdp_decode_evrc */
uint32_t dak_app_sdp_decode_evrcwb(media_description *md, uint16_t codec_index, void *block);
/** Encoder of EVRCWB0; the block is an #sdp_evrcb0_params. @copydetails dak_app_sdp_encode_evrc */
uint32_t dak_app_sdp_encode_evrcwb0(media_description *md, uint16_t codec_index, void *block);
/** Decoder of EVRCWB0; the block is an #sdp_evrcb0_params. @copydetails dak_app_sdp_decode_evrc */
uint32_t dak_app_sdp_decode_evrcwb0(media_description *md, uint16_t codec_index, void *block);
/** Encoder of EVRCWB1; the block is an #sdp_evrcwb1_params. @copydetails dak_app_sdp_encode_evrc */
uint32_t dak_app_sdp_encode_evrcwb1(media_description *md, uint16_t codec_index, void *block);
/** Decoder of EVRCWB1; the block is an #sdp_evrcwb1_params. @copydetails dak_app_sdp_decode_evrc */
uint32_t dak_app_sdp_decode_evrcwb1(media_description *md, uint16_t codec_index, void *block);

/**
 * Writes a mode list such as "0,7".
 * @param[out] out 256 characters
 * @param mode_map bit map of modes 0 to 7
 * @return 1; 0, with a log line, for null
 */
int dak_app_sdp_encode_evrc_mode(char *out, uint8_t mode_map);

/**
 * Reads a mode list, one digit a mode, at most eight modes.
 * @param text terminated list separated by "," or ";"
 * @param[out] present 1, or 0 for an empty list or a mode that is no digit
 * @param[out] mode_map bit map of the modes read
 * @return 0; 1, with a log line, for more than 256 characters; 4, with a log line, for a mode above 7; 7,
 *         with a log line, for null
 */
uint32_t dak_app_sdp_decode_evrc_mode(const char *text, uint8_t *present, uint8_t *mode_map);

/**
 * Writes "fixedrate" when present.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param part the block's fixed-rate fields
 * @return 0; 4, with a log line for an invalid rate, when it is refused
 */
uint32_t dak_app_sdp_encode_evrc1_fixed_rate(media_description *md, uint16_t codec_index,
                                             sdp_fixedrate_part part);

/**
 * Reads "fixedrate".
 * @param md the media section
 * @param codec_index position of the payload format
 * @param[in,out] part the block's fixed-rate fields
 * @return 0; 3 for null; 4, with a log line, for a text other than "0.5" and "1"
 */
uint32_t dak_app_sdp_decode_evrc1_fixed_rate(media_description *md, uint16_t codec_index,
                                             sdp_fixedrate_part *part);

/**
 * Text of a fixed rate.
 * @param rate 1 or 2
 * @param[out] out 21 characters: "0.5", "1", or "0" for another rate
 * @return 0; 3 for null; 4, with a log line, for another rate
 */
uint32_t dak_app_sdp_encode_conv_evrc1_rate(uint32_t rate, char *out);

/**
 * Fixed rate of a text.
 * @param text terminated text
 * @param[out] rate 1 for "0.5", 2 for "1", 4 for anything else
 * @return 0; 3 for null; 4, with a log line, for anything else
 */
uint32_t dak_app_sdp_decode_conv_evrc1_rate(const char *text, uint32_t *rate);

#ifdef __cplusplus
}
#endif

#endif
