/**
 * @file
 * Validation of preconditions (RFC 3312).
 */
#ifndef DAKSDP_OA_VALIDATE_PRECONDITIONS_H
#define DAKSDP_OA_VALIDATE_PRECONDITIONS_H

#include "oa/sdp_container.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells whether the preconditions of an offered media line are complete: for each status type in use one
 * current and one or two desired entries.
 * @param mline the media line
 * @param direction its effective direction
 * @return 0, also without preconditions; 14, mostly with a log line, for an invalid or incomplete set; 15,
 *         with a log line, for null
 */
uint32_t dak_app_oa_validate_preconditions(const sdp_media_line *mline, uint32_t direction);

/**
 * Tells whether an answer's preconditions keep what the offer asked for, with local and remote exchanged.
 * @param ans_num entries of the answer
 * @param ans the answer's entries
 * @param offer_num entries of the offer
 * @param offer the offer's entries
 * @param offer_direction the offer's direction
 * @return 0; 14 for a strength or a current status that is not met; 15 for null or a list that cannot be
 *         tabulated
 */
uint32_t dak_app_oa_validate_ans_pcd(uint32_t ans_num, const sdp_precondition *ans, uint32_t offer_num,
                                     const sdp_precondition *offer, uint32_t offer_direction);

#ifdef __cplusplus
}
#endif

#endif
