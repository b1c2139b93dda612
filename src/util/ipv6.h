/**
 * @file
 * IPv6 address text to binary form.
 */
#ifndef DAKSDP_UTIL_IPV6_H
#define DAKSDP_UTIL_IPV6_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Converts the text of an IPv6 address (RFC 4291) through the platform.
 * @param text terminated address text
 * @param[out] destination 16 bytes in network order; unwritten on failure
 * @return 1, or 0 when the text is no IPv6 address or, with a log line, for null
 */
int dak_sdp_convert_str_to_ipv6(const char *text, uint8_t *destination);

#ifdef __cplusplus
}
#endif

#endif
