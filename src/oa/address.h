/**
 * @file
 * Addresses of o= and c= lines.
 */
#ifndef DAKSDP_OA_ADDRESS_H
#define DAKSDP_OA_ADDRESS_H

#include "oa/sdp_container.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Appends an address such as "IN IP4 192.0.2.1" to a text.
 * @param[in,out] text terminated text in `capacity` characters
 * @param capacity characters of `text`, terminator included
 * @param address the address
 * @return 0; 1, with a log line, when it does not fit; 3, with a log line, for null; 4, with a log line, for
 *         another address type than 0 and 1
 */
uint32_t dak_app_oa_add_address_value(char *text, uint16_t capacity, const sdp_address *address);

/**
 * Reads an address: network type, address type and address, separated by blanks.
 * @param text terminated text; it may be split in place
 * @param[out] address filled as far as could be read; its type is 2 until one was read
 * @return 0; 1, with a log line, for too long an address; 3, with a log line, for null; 4 for another network
 *         type than "IN" (logged) or another address type than "IP4" and "IP6"; 5, with a log line, for a
 *         missing word
 */
uint32_t dak_app_oa_parse_address(char *text, sdp_address *address);

#ifdef __cplusplus
}
#endif

#endif
