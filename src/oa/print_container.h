/**
 * @file
 * Writing a container to the platform log. Nothing is logged for null.
 */
#ifndef DAKSDP_OA_PRINT_CONTAINER_H
#define DAKSDP_OA_PRINT_CONTAINER_H

#include "oa/sdp_container.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Logs a whole container: session fields, then each media line with its attributes, payload formats and codec
 * parameters.
 * @param container the container
 */
void dak_app_oa_print_sdp_container(const sdp_container *container);

/**
 * Logs a precondition word by word, such as "a=des:", "qos ", "mandatory ", "local ", "sendrecv".
 * @param entry the precondition; a word that its value does not have is left out
 */
void dak_app_oa_print_precondition_attr(const sdp_precondition *entry);

/**
 * Logs the DTX parameters that are present.
 * @param dtx the parameters
 */
void dak_app_oa_print_dtx_attr(const dtx_params *dtx);

/**
 * Logs the modes 0 to 7 of a bit map.
 * @param mode_map bit map of modes
 */
void dak_app_oa_print_mode(uint32_t mode_map);

/**
 * Logs the parameters of H263-1998 and H263-2000 that are present.
 * @param params the parameters
 */
void dak_app_oa_print_h263_2429_params(const h263_params *params);

#ifdef __cplusplus
}
#endif

#endif
