/**
 * @file
 * Writing one fmtp parameter of a payload format.
 */
#ifndef DAKSDP_OA_CODEC_FMTP_SETTER_H
#define DAKSDP_OA_CODEC_FMTP_SETTER_H

#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Writes a signed decimal number.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param value the number
 * @param name terminated parameter name
 * @return 0, or 4, with a log line, when the parameter is refused
 */
uint32_t dak_app_sdp_set_int_inmline(media_description *md, uint16_t codec_index, int32_t value,
                                     const char *name);

/**
 * Writes a text as it is.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param value terminated text of at most 199 characters
 * @param name terminated parameter name
 * @return 0, or 4, with a log line, when the parameter is refused
 */
uint32_t dak_app_sdp_set_string_inmline(media_description *md, uint16_t codec_index, const char *value,
                                        const char *name);

/**
 * Writes "1" for any value but 0, which is "0".
 * @param md the media section
 * @param codec_index position of the payload format
 * @param value the value
 * @param name terminated parameter name
 * @return 0, or 4, with a log line, when the parameter is refused
 */
uint32_t dak_app_sdp_set_bool_inmline(media_description *md, uint16_t codec_index, int32_t value,
                                      const char *name);

#ifdef __cplusplus
}
#endif

#endif
