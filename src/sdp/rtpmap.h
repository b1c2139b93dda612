/**
 * @file
 * Reading a=rtpmap lines (RFC 4566, section 6).
 */
#ifndef DAKSDP_SDP_RTPMAP_H
#define DAKSDP_SDP_RTPMAP_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Reads an a=rtpmap line.
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @param[out] payload_number the payload type number
 * @param[out] encoding_name 200 characters for the encoding name
 * @param[out] clock_rate clock rate in Hz
 * @param[out] encoding_param encoding parameter, 1 when absent
 * @return 1; 0, with an assertion report, for null or a malformed line
 */
int parse_a_euqal_rtpmap(const char *line_start, const char *line_end, uint32_t *payload_number,
                         char *encoding_name, uint32_t *clock_rate, uint32_t *encoding_param);

/**
 * Reads the number at a position, up to white space.
 * @param[in,out] position where to read; afterwards one character behind the number
 * @param end one past the last character
 * @param[out] number the number
 * @return 1; 0, with an assertion report, for null or no number
 */
int get_media_payload_number(const char **position, const char *end, uint32_t *number);

/**
 * Reads an encoding name, a clock rate and an optional encoding parameter, separated by "/".
 * @param position where to read
 * @param end the line's terminator; must be readable
 * @param[out] encoding_name 200 characters for the encoding name
 * @param[out] clock_rate clock rate in Hz
 * @param[out] encoding_param encoding parameter, 1 when absent
 * @return 1; 0, with an assertion report, for null or malformed text
 */
int get_media_encoding_name_clock_rate_encoding_parameter(const char *position, const char *end,
                                                          char *encoding_name, uint32_t *clock_rate,
                                                          uint32_t *encoding_param);

#ifdef __cplusplus
}
#endif

#endif
