/**
 * @file
 * Validation of offers (RFC 3264). It works on containers alone, writes nothing and allocates nothing.
 */
#ifndef DAKSDP_OA_VALIDATE_OFFER_H
#define DAKSDP_OA_VALIDATE_OFFER_H

#include "oa/sdp_container.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Validates an initial offer.
 * @param offer the offer
 * @return 0; 4, with a log line, for a session version of 2^62 or more, read as a signed number; 15, with a
 *         log line, for null; else the result of dak_app_oa_validate_offer_params()
 */
uint32_t dak_app_oa_validate_initial_offer(const sdp_container *offer);

/**
 * Validates a modified offer against the previous offer of its session.
 * @param modified the modified offer
 * @param previous the previous offer
 * @return 0; 4, with a log line, without an origin or for a session version that is neither the previous one
 *         nor the next; 5, with a log line, for fewer media lines; 8, with a log line, for a changed mid; 11
 *         for a payload number whose codec changed; 15, with a log line, for null; else the result of
 *         dak_app_oa_validate_offer_params()
 */
uint32_t dak_app_oa_validate_modified_sdp(const sdp_container *modified, const sdp_container *previous);

/**
 * The checks that both kinds of offer share: connection, bandwidth, groups, then each media line, then each
 * group. The first failure decides; all but some of the preconditions are logged. A session time other than 0
 * 0 is logged and goes on.
 * @param offer the offer
 * @return 0; 1 for a media line without connection; 2 for an address; 3 for a zero bandwidth; 5 without a
 *         usable media line or for one without formats; 7 for a group; 8 for a mid; 11 for a format; 12 for a
 *         ptime of 0; 13 for feedback on another transport than RTP/AVPF; 14 for preconditions; 15 for null
 */
uint32_t dak_app_oa_validate_offer_params(const sdp_container *offer);

/**
 * Effective direction of a media line: its own, else the session's, else sendrecv.
 * @param mline the media line
 * @param session the container
 * @return 1 recvonly, 2 sendonly, 3 sendrecv, 4 inactive, or what the container holds; 0, with a log line,
 *         for null
 */
uint32_t dak_app_oa_get_chl_direction(const sdp_media_line *mline, const sdp_container *session);

#ifdef __cplusplus
}
#endif

#endif
