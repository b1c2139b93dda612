/**
 * @file
 * The text buffer of a context, which every line writer appends to.
 */
#ifndef DAKSDP_SDP_TEXT_BUFFER_H
#define DAKSDP_SDP_TEXT_BUFFER_H

#include "sdp/document_record.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Empties the text buffer. Only init_sdp_lib() calls it: a second encoding appends to the first.
 * @param context the context; null is reported as an assertion
 */
void init_sdp_encoder(sdp_lib_context *context);

/**
 * Appends text.
 * @param context the context
 * @param text terminated text
 * @return 1; 0, with an assertion report and nothing appended, for null or when the text would pass 3584
 *         characters
 */
int fill_sdp_buffer(sdp_lib_context *context, const char *text);

/**
 * Gives the text written so far.
 * @param context the context
 * @return terminated text, owned by the context; null, with an assertion report, for null
 */
const char *get_sdp_text(sdp_lib_context *context);

#ifdef __cplusplus
}
#endif

#endif
