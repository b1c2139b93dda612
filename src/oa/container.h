/**
 * @file
 * Releasing and duplicating containers.
 */
#ifndef DAKSDP_OA_CONTAINER_H
#define DAKSDP_OA_CONTAINER_H

#include "oa/sdp_container.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Releases the media lines of a container; the container itself stays the caller's. To be called after every
 * parse, whatever its result.
 * @param container the container, or null
 * @return 0
 */
uint32_t dak_app_oa_cleanup_sdp_container(sdp_container *container);

/**
 * Makes a copy with media lines of its own.
 * @param source the container to copy
 * @param[out] copy the copy, on the heap: release it with dak_app_oa_cleanup_sdp_container() and dak_free()
 * @return 0; 7 for null, or for a container that counts media lines without having any; 2 when memory runs
 *         out: `copy` is then null, or a container without media lines that still counts them
 */
uint32_t dak_app_oa_duplicate_sdp_container(const sdp_container *source, sdp_container **copy);

#ifdef __cplusplus
}
#endif

#endif
