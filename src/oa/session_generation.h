/**
 * @file
 * The builders of session-level lines. Each stores at most one kind of line into the encoder document.
 *
 * A builder takes the context that holds the document and the container. It gives 0, also when there is
 * nothing to store; 3, with a log line, for null; 4, with a log line, for invalid content or a refusal of the
 * lower layer, which takes values of at most 199 characters.
 */
#ifndef DAKSDP_OA_SESSION_GENERATION_H
#define DAKSDP_OA_SESSION_GENERATION_H

#include "oa/sdp_container.h"
#include "sdp/document_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Stores the v= line; 4 for another version than 0. */
uint32_t dak_app_oa_encode_version(sdp_lib_context *document, const sdp_container *container);

/**
 * Stores the o= line. Session id and version are written as signed 64-bit numbers: 1, with a log line, for
 * one of 20 characters. 2, with a log line, when memory runs out.
 */
uint32_t dak_app_oa_encode_origin(sdp_lib_context *document, const sdp_container *container);

/** Stores the s= line, "-" without a name; 2, with a log line, when memory runs out. */
uint32_t dak_app_oa_encode_session(sdp_lib_context *document, const sdp_container *container);

/** Stores the i= line, if there is one; 2, with a log line, when memory runs out. */
uint32_t dak_app_oa_encode_info(sdp_lib_context *document, const sdp_container *container);

/** Stores up to five b= lines. */
uint32_t dak_app_oa_encode_bw(sdp_lib_context *document, const sdp_container *container);

/** Stores the c= line, if there is one; 2, with a log line, when memory runs out. */
uint32_t dak_app_oa_encode_connection(sdp_lib_context *document, const sdp_container *container);

/** Stores the t= line, if there is one. */
uint32_t dak_app_oa_encode_time(sdp_lib_context *document, const sdp_container *container);

/**
 * Stores the direction and the groups as a= lines; 1, with a log line, for a group of 256 characters or more.
 * A refused line gives 4 only when no group is stored behind it.
 */
uint32_t dak_app_oa_encode_gen_attr(sdp_lib_context *document, const sdp_container *container);

/**
 * Stores the accept-types of the first message line as a session attribute. Not part of generation; 1, with a
 * log line, when that line has message attributes without accept-types.
 */
uint32_t dak_app_oa_encode_message_attr(sdp_lib_context *document, const sdp_container *container);

#ifdef __cplusplus
}
#endif

#endif
