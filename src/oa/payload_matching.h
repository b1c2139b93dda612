/**
 * @file
 * Which payload formats of one media line correspond to those of another.
 *
 * Line B's formats are taken in order, and for each of them line A's. By payload number, formats with the
 * same number match; by codec, formats with the same codec, which is that of the a=rtpmap line or else that
 * of the static payload number.
 */
#ifndef DAKSDP_OA_PAYLOAD_MATCHING_H
#define DAKSDP_OA_PAYLOAD_MATCHING_H

#include "oa/sdp_container.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Pairs that dak_app_oa_find_all_matching_plds() writes at most. */
#define SDP_MAX_MATCHES 255

/**
 * Codec of a static payload number (RFC 3551).
 * @param payload_number the payload type number
 * @return its key in the codec table, or 114
 */
uint32_t dak_app_oa_find_mime_by_pyld_num(uint32_t payload_number);

/**
 * Finds the first pair of matching formats.
 * @param a line A
 * @param b line B
 * @param[out] a_index position in line A
 * @param[out] b_index position in line B
 * @param by_codec 0 by payload number, else by codec
 * @return 1 if found; 0 if not, and, with a log line, for null or for a format of line B whose codec is
 *         unknown
 */
int dak_app_oa_find_matching_plds(const sdp_media_line *a, const sdp_media_line *b, uint16_t *a_index,
                                  uint16_t *b_index, uint8_t by_codec);

/**
 * Finds all pairs of matching formats. Their number is logged.
 * @param a line A
 * @param b line B
 * @param[out] a_indexes room for 255 positions in line A
 * @param[out] b_indexes room for 255 positions in line B
 * @param by_codec 0 by payload number, else by codec
 * @return the number of pairs, at most 255; 0, with a log line, for null or for a format of line B whose
 *         codec is unknown
 */
uint8_t dak_app_oa_find_all_matching_plds(const sdp_media_line *a, const sdp_media_line *b,
                                          uint16_t *a_indexes, uint16_t *b_indexes, uint8_t by_codec);

#ifdef __cplusplus
}
#endif

#endif
