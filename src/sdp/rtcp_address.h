/**
 * @file
 * The RTCP port and address of a media section (RFC 3605).
 */
#ifndef DAKSDP_SDP_RTCP_ADDRESS_H
#define DAKSDP_SDP_RTCP_ADDRESS_H

#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Stores the RTCP port.
 * @param description the media section
 * @param port the port; its range is not checked
 * @return 1; 0, with an assertion report, for null
 */
int set_rtcp_port(media_description *description, uint32_t port);
/**
 * Gives the RTCP port.
 * @param description the media section
 * @return the port, 0 without an a=rtcp line; 0, with an assertion report, for null
 */
uint32_t get_rtcp_port(const media_description *description);

/**
 * Stores the RTCP port and address.
 * @param description the media section
 * @param port the port
 * @param address the address to copy
 * @return 1; -1, with an assertion report, for null
 */
int add_media_rtcp_port_to_media_description(media_description *description, uint32_t port,
                                             rtcp_address_info address);

/**
 * Copies the RTCP address out.
 * @param[out] destination the address; all zero, with an assertion report, for a null description
 * @param description the media section
 */
void get_rtcp_ipaddress(rtcp_address_info *destination, const media_description *description);

/**
 * Reads an a=rtcp line. The port is read even when the address behind it is incomplete.
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @param[out] port the port
 * @param[out] address the address as far as it could be read
 * @return 1; 0, with an assertion report, for null, no port or nothing behind it
 */
int parse_a_euqal_rtcp(const char *line_start, const char *line_end, uint32_t *port,
                       rtcp_address_info *address);

/** Results of get_media_rtcp_ip_address(). */
enum {
    RTCP_ADDRESS_READ = 1,       /**< an address was read, whole or cut, or there were no words */
    RTCP_ADDRESS_WRONG_TYPE = 4, /**< another network or address type */
    RTCP_ADDRESS_MISSING = 5     /**< a word is missing */
};

/**
 * Reads network type, address type and address, separated by spaces.
 * @param[in,out] position where to read; afterwards behind the address if all was read
 * @param end one past the last character
 * @param[out] address zeroed, then filled as far as could be read; `valid` is 1 only for a whole address
 * @return 1 for a whole address, for one cut to 255 characters (logged) or for no words (logged); 4 for
 *         another network type than "IN" (logged) or another address type than "IP4" and "IP6"; 5 for a
 *         missing word (logged); 0 for nothing but blanks and, with an assertion report, for null
 */
int get_media_rtcp_ip_address(const char **position, const char *end, rtcp_address_info *address);

#ifdef __cplusplus
}
#endif

#endif
