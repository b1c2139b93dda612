/**
 * @file
 * The builders of session-level lines. Each stores at most one kind of line into the encoder document.
 *
 * A builder gives 0 also when there is nothing to store. Whatever it refuses it logs. The lower layer refuses
 * values of 200 characters or more.
 */
#ifndef DAKSDP_OA_SESSION_GENERATION_H
#define DAKSDP_OA_SESSION_GENERATION_H

#include "oa/sdp_container.h"
#include "sdp/document_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Stores the v= line.
 * @param document the context that holds the encoder document
 * @param container the container
 * @return 0; 3 for null; 4 for another version than 0
 */
uint32_t dak_app_oa_encode_version(sdp_lib_context *document, const sdp_container *container);

/**
 * Stores the o= line. Session id and version are written as signed 64-bit numbers.
 * @param document the context that holds the encoder document
 * @param container the container
 * @return 0; 1 for a number of 20 characters or more; 2 when memory runs out; 3 for null; 4 for an address
 *         type other than IPv4 and IPv6 or a line of 200 characters or more
 */
uint32_t dak_app_oa_encode_origin(sdp_lib_context *document, const sdp_container *container);

/**
 * Stores the s= line, "-" without a name.
 * @param document the context that holds the encoder document
 * @param container the container
 * @return 0; 2 when memory runs out; 3 for null; 4 for a name of 200 characters or more
 */
uint32_t dak_app_oa_encode_session(sdp_lib_context *document, const sdp_container *container);

/**
 * Stores the i= line, if there is one.
 * @param document the context that holds the encoder document
 * @param container the container
 * @return 0; 2 when memory runs out; 3 for null; 4 for a text of 200 characters or more
 */
uint32_t dak_app_oa_encode_info(sdp_lib_context *document, const sdp_container *container);

/**
 * Stores the b= lines, up to five.
 * @param document the context that holds the encoder document
 * @param container the container
 * @return 0; 3 for null; 4 for an unknown modifier, or when the fifth line is refused
 */
uint32_t dak_app_oa_encode_bw(sdp_lib_context *document, const sdp_container *container);

/**
 * Stores the c= line, if there is one.
 * @param document the context that holds the encoder document
 * @param container the container
 * @return 0; 2 when memory runs out; 3 for null; 4 for an address type other than IPv4 and IPv6 or a line of
 *         200 characters or more
 */
uint32_t dak_app_oa_encode_connection(sdp_lib_context *document, const sdp_container *container);

/**
 * Stores the t= line, if there is one.
 * @param document the context that holds the encoder document
 * @param container the container
 * @return 0; 3 for null; 4 when it is refused
 */
uint32_t dak_app_oa_encode_time(sdp_lib_context *document, const sdp_container *container);

/**
 * Stores the direction and the groups as a= lines.
 * @param document the context that holds the encoder document
 * @param container the container
 * @return 0; 1 for a group line of 256 characters or more; 3 for null; 4 for an unknown direction or
 *         semantics, for more than five groups, for a group that names a media line which is not there, and
 *         for a refused line, unless a group is stored behind it
 */
uint32_t dak_app_oa_encode_gen_attr(sdp_lib_context *document, const sdp_container *container);

/**
 * Stores the accept-types of the first message line as a session attribute. Not part of generation.
 * @param document the context that holds the encoder document
 * @param container the container
 * @return 0; 1 when that line has message attributes without accept-types; 3 for null; 4 for a kind other
 *         than 0 and 1, for a first type above #SDP_ACCEPT_IMDN, and for a refused line
 */
uint32_t dak_app_oa_encode_message_attr(sdp_lib_context *document, const sdp_container *container);

#ifdef __cplusplus
}
#endif

#endif
