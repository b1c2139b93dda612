/**
 * @file
 * Preconditions of a media line as tables, and whether they are met (RFC 3312).
 */
#ifndef DAKSDP_OA_PRECONDITION_TABLE_H
#define DAKSDP_OA_PRECONDITION_TABLE_H

#include "oa/sdp_container.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tabulates preconditions by status type (row) and direction (column). Confirmed entries, entries of another
 * type than qos and entries of direction 4 are left out; sendrecv fills the columns of recv and send.
 * @param num_preconds entries, at most 10
 * @param preconds the entries
 * @param[out] current 1 where a current status is given; zeroed first
 * @param[out] desired desired strength; zeroed first
 * @return 0; 14, with a log line, for an entry of another kind, status type or direction, or more than 10
 *         entries; 15 for null
 */
uint32_t dak_app_oa_fill_pcd_list(uint32_t num_preconds, const sdp_precondition *preconds,
                                  uint8_t current[4][6], uint32_t desired[4][6]);

/**
 * Tells whether every mandatory precondition of every media line has its current status.
 * @param container the container
 * @return 1, also without media lines; 0, with a log line, when a line's are not met, and for null
 */
int dak_app_oa_check_preconds(const sdp_container *container);

/**
 * Tells whether every mandatory precondition of a media line has its current status.
 * @param mline the media line
 * @return 1, also without preconditions; 0 when they are not met and, with a log line, for null or an invalid
 *         entry
 */
int dak_app_oa_check_mline_preconds(const sdp_media_line *mline);

#ifdef __cplusplus
}
#endif

#endif
