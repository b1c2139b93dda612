/**
 * @file
 * The life of a context.
 */
#ifndef DAKSDP_SDP_CONTEXT_H
#define DAKSDP_SDP_CONTEXT_H

#include "sdp/document_record.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Creates a context with two empty documents and an empty text buffer. Contexts are independent of each
 * other; one context is used by one thread at a time.
 * @return the context, to be released with clean_sdp_lib(); null, with an assertion report and nothing left
 *         allocated, when memory runs out
 */
sdp_lib_context *init_sdp_lib(void);

/**
 * Releases a context with all that its documents own.
 * @param context the context, or null
 * @return 1
 */
int clean_sdp_lib(sdp_lib_context *context);

/**
 * Empties both documents of a new context, without releasing what they hold.
 * @param context the context
 * @return 1; 0, with an assertion report, for null
 */
int init_encoder_parser_sdp_info_container(sdp_lib_context *context);

#ifdef __cplusplus
}
#endif

#endif
