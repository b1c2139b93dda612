/**
 * @file
 * Validation of connection addresses. The syntax of an address is not checked.
 */
#ifndef DAKSDP_OA_VALIDATE_ADDRESS_H
#define DAKSDP_OA_VALIDATE_ADDRESS_H

#include "oa/sdp_container.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Validates an address.
 * @param address the address
 * @return 0; 2, with a log line, for a network type that does not begin "IN", an address type other than IPv4
 *         and IPv6 or an unterminated IPv4 text; 15, with a log line, for null
 */
uint32_t dak_app_oa_validate_ipaddress(const sdp_address *address);

/**
 * Validates the text of an IPv4 address.
 * @param address the text; at most 256 characters are read
 * @return 0; 2, with a log line, for more than 255 characters; 15, with a log line, for null
 */
uint32_t dak_app_oa_validate_ipv4_addr(const char *address);

/**
 * Validates the text of an IPv6 address; every text is valid.
 * @param address the text
 * @return 0; 15 for null
 */
uint32_t dak_app_oa_validate_ipv6_addr(const char *address);

#ifdef __cplusplus
}
#endif

#endif
