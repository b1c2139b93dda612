/**
 * @file
 * Preconditions as text (RFC 3312), such as "qos mandatory local sendrecv".
 */
#ifndef DAKSDP_OA_PRECONDITION_TEXT_H
#define DAKSDP_OA_PRECONDITION_TEXT_H

#include "oa/sdp_container.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Writes the value of a precondition.
 * @param[out] text 256 characters
 * @param entry the precondition
 * @return 0; 3, with a log line, for null; 4, with a log line, for a bad kind, type, strength, status type or
 *         direction
 */
uint32_t dak_app_oa_encode_pre_cond_str(char *text, const sdp_precondition *entry);

/**
 * Reads the value of a precondition.
 * @param value terminated text
 * @param[in,out] entry its `kind` is set already; a type other than "qos" is read as 0
 * @return 0; 1, with a log line, for 256 characters or more; 3, with a log line, for null; 4, with a log
 *         line, for an unknown word or kind; 5, with a log line, for a missing status type or direction
 */
uint32_t dak_app_oa_parse_pre_cond_str(const char *value, sdp_precondition *entry);

#ifdef __cplusplus
}
#endif

#endif
