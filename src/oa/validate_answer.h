/**
 * @file
 * Validation of an answer against its offer (RFC 3264). It works on containers alone, writes nothing and
 * allocates nothing.
 */
#ifndef DAKSDP_OA_VALIDATE_ANSWER_H
#define DAKSDP_OA_VALIDATE_ANSWER_H

#include "oa/sdp_container.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Validates an answer. The first failure decides and is logged, except for a mid.
 * @param answer the answer
 * @param offer the offer
 * @return 0; 2 for an address; 3 for a zero bandwidth; 4 without an origin in both; 5 for a wrong count of
 *         media lines or when all are rejected; 6 without the time line that the offer has; 7 for a group; 8,
 *         not logged, for a mid; 13 for feedback on another transport than RTP/AVPF; 15 for null; else the
 *         result of dak_app_oa_validate_ans_mline()
 */
uint32_t dak_app_oa_validate_answer(const sdp_container *answer, const sdp_container *offer);

/**
 * Validates one media line of an answer. The first failure decides; all but those of preconditions are
 * logged.
 * @param answer the answer
 * @param offer the offer
 * @param mline_index position of the line in both, 0 to 20
 * @return 0, also for a rejected line; 1 without a connection; 2 for an address; 9 for another media type; 10
 *         for a direction that the offer's does not allow; 11 for formats; 12 for a ptime of 0; 13 for
 *         feedback on another transport than RTP/AVPF; 14 or 15 for preconditions; 15 for null or a position
 *         that one of them lacks
 */
uint32_t dak_app_oa_validate_ans_mline(const sdp_container *answer, const sdp_container *offer,
                                       uint32_t mline_index);

/**
 * Validates the parameters of an answered format against those of the offered one; codecs other than
 * telephone-event are valid.
 * @param answer the answer's media line
 * @param offer the offer's media line
 * @param codec key of the codec in the codec table
 * @param answer_direction direction of the answer
 * @param offer_direction direction of the offer
 * @param answer_format position of the format in the answer
 * @param offer_format position of the format in the offer
 * @return 0; 15, with a log line, for null or a position of 20 or more; else the result of
 *         dak_app_oa_validate_dtmf_ans_fmtp()
 */
uint32_t dak_app_oa_validate_ans_fmtp(const sdp_media_line *answer, const sdp_media_line *offer,
                                      uint32_t codec, uint32_t answer_direction, uint32_t offer_direction,
                                      uint32_t answer_format, uint32_t offer_format);

/**
 * Validates an answered events list: every event was offered. It applies when the answer sends to a recvonly
 * offer, and when both are sendrecv.
 * @param answer the answer's media line
 * @param offer the offer's media line
 * @param answer_direction direction of the answer
 * @param offer_direction direction of the offer
 * @param answer_format position of the format in the answer
 * @param offer_format position of the format in the offer
 * @return 0; 11, with a log line, for an event that was not offered; 15, with a log line, for null or a
 *         position of 20 or more
 */
uint32_t dak_app_oa_validate_dtmf_ans_fmtp(const sdp_media_line *answer, const sdp_media_line *offer,
                                           uint32_t answer_direction, uint32_t offer_direction,
                                           uint32_t answer_format, uint32_t offer_format);

#ifdef __cplusplus
}
#endif

#endif
