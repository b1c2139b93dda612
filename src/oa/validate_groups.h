/**
 * @file
 * Validation of groups (RFC 5888).
 */
#ifndef DAKSDP_OA_VALIDATE_GROUPS_H
#define DAKSDP_OA_VALIDATE_GROUPS_H

#include "oa/sdp_container.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Validates the semantics of a group: LS joins one audio and one video line, FID joins lines of which no two
 * share port and address.
 * @param container the container
 * @param group one of its groups
 * @return 0; 7, with a log line, for anything else; 15, with a log line, for null or missing media lines
 */
uint32_t dak_app_oa_validate_group_semantics(const sdp_container *container, const sdp_group *group);

/**
 * Validates the media lines of a group: each has a port, stands in the group once and in no earlier group of
 * the same semantics.
 * @param container the container
 * @param group one of its groups
 * @param group_index its position among the container's groups
 * @return 0; 7, with a log line, for anything else, and 7 for a group of more than 20; 15, with a log line,
 *         for null or missing media lines
 */
uint32_t dak_app_oa_validate_group_mids(const sdp_container *container, const sdp_group *group,
                                        uint32_t group_index);

#ifdef __cplusplus
}
#endif

#endif
