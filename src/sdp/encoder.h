/**
 * @file
 * Writing the encoder document as SDP text (RFC 4566). Every line ends in CR LF.
 *
 * All functions give 1, or 0 with an assertion report; what was written before a failure stays in the text
 * buffer.
 */
#ifndef DAKSDP_SDP_ENCODER_H
#define DAKSDP_SDP_ENCODER_H

#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Writes the whole encoder document: session lines, then media sections. Read it with get_sdp_text().
 * @param context the context
 * @return 1 or 0
 */
int dak_sdp_encode(sdp_lib_context *context);

/**
 * Writes the session lines, all lines of one type together, in the order v, o, s, i, u, e, p, c, b, t, r, z,
 * k, a.
 * @param context the context
 * @return 1 or 0
 */
int dak_sdp_encode_session(sdp_lib_context *context);

/**
 * Writes the media sections in order.
 * @param context the context
 * @return 1 or 0
 */
int dak_sdp_encode_media_descriptions(sdp_lib_context *context);

/**
 * Writes one media section: its m= line, typed lines, payload formats, attribute families and generic
 * attributes.
 * @param context the context
 * @param index place of the section, 0 to 29
 * @return 1 or 0; for a null context or an empty place 0 without an assertion report
 */
int dak_sdp_encode_media_description_by_index(sdp_lib_context *context, int index);

/**
 * Writes the m= line. The profile "TCP/MSRP" gets the format "*".
 * @param context the context
 * @param description the media section
 * @return 1; 0 also for a port count of 0 and, with a log line, for a line of 200 characters or more
 */
int dak_sdp_encode_m_equal(sdp_lib_context *context, media_description *description);

/**
 * Writes the a=rtpmap, a=fmtp and a=rtcp-fb lines of one payload format. The encoding parameter is not
 * written. A payload whose encoding name is empty or "NULL" writes nothing; a payload number of 96 or above
 * without a=rtpmap line writes no feedback.
 * @param context the context
 * @param description the media section
 * @param index position of the payload format
 * @return 1, also, with an assertion report, for a position without a codec; 0
 */
int dak_sdp_encode_media_codec(sdp_lib_context *context, media_description *description, int index);

#ifdef __cplusplus
}
#endif

#endif
