/**
 * @file
 * The readers of session-level lines.
 *
 * Each takes its lines from the parser document into its fields of the container, and leaves the other fields
 * alone.
 */
#ifndef DAKSDP_OA_SESSION_PARSING_H
#define DAKSDP_OA_SESSION_PARSING_H

#include "oa/sdp_container.h"
#include "sdp/document_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Reads the v= line, of which it keeps the low 8 bits.
 * @param document the context that holds the parser document
 * @param[in,out] container the container
 * @return 0; 3, with a log line, for null; 6, with a log line, without one or for no number
 */
uint32_t dak_app_oa_parse_version(sdp_lib_context *document, sdp_container *container);

/**
 * Reads the o= line.
 * @param document the context that holds the parser document
 * @param[in,out] container the container
 * @return 0; 2, with a log line, when memory runs out; 3, with a log line, for null or without the line; 5,
 *         with a log line, for a missing word; 7 for a session id or version that is no signed 64-bit number;
 *         else the result of dak_app_oa_parse_address()
 */
uint32_t dak_app_oa_parse_origin(sdp_lib_context *document, sdp_container *container);

/**
 * Reads the s= line, if there is one.
 * @param document the context that holds the parser document
 * @param[in,out] container the container
 * @return 0; 1, with a log line, for 256 characters or more; 3, with a log line, for null
 */
uint32_t dak_app_oa_parse_session(sdp_lib_context *document, sdp_container *container);

/**
 * Reads the i= line, if there is one.
 * @param document the context that holds the parser document
 * @param[in,out] container the container
 * @return 0; 1, with a log line, for 256 characters or more; 3, with a log line, for null
 */
uint32_t dak_app_oa_parse_sess_info(sdp_lib_context *document, sdp_container *container);

/**
 * Reads the c= line, if there is one.
 * @param document the context that holds the parser document
 * @param[in,out] container the container
 * @return 0; 2, with a log line, when memory runs out; 3, with a log line, for null; else the result of
 *         dak_app_oa_parse_address()
 */
uint32_t dak_app_oa_parse_connection(sdp_lib_context *document, sdp_container *container);

/**
 * Reads up to five b= lines; an unknown modifier ends the reading.
 * @param document the context that holds the parser document
 * @param[in,out] container the container
 * @return 0; 3, with a log line, for null; 4, with a log line, for a value that is no number; 5, with a log
 *         line, for a missing modifier or value
 */
uint32_t dak_app_oa_parse_bandwidth(sdp_lib_context *document, sdp_container *container);

/**
 * Reads the first t= line.
 * @param document the context that holds the parser document
 * @param[in,out] container the container
 * @return 0; 3, with a log line, for null or without the line; 4, with a log line, for a time that is no
 *         number; 5, with a log line, for a missing time
 */
uint32_t dak_app_oa_parse_time(sdp_lib_context *document, sdp_container *container);

/**
 * Reads the direction, then the groups.
 * @param document the context that holds the parser document
 * @param[in,out] container the container
 * @return 3, with a log line, for null; else the result of dak_app_oa_parse_group_attr()
 */
uint32_t dak_app_oa_parse_gen_attr(sdp_lib_context *document, sdp_container *container);

/**
 * Reads the a=group lines; the media lines are there already. A group of other semantics than LS and FID is
 * counted without its media lines. From the first group on that names no media line, no group is marked
 * present.
 * @param document the context that holds the parser document
 * @param[in,out] container the container
 * @return 0; 3, with a log line, for null; 4, with a log line, for a sixth LS or FID group
 */
uint32_t dak_app_oa_parse_group_attr(sdp_lib_context *document, sdp_container *container);

#ifdef __cplusplus
}
#endif

#endif
