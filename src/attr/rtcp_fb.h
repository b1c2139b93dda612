/**
 * @file
 * RTCP feedback capabilities (RFC 4585, RFC 5104): one list per media section for the wildcard "*", one per
 * payload format.
 */
#ifndef DAKSDP_ATTR_RTCP_FB_H
#define DAKSDP_ATTR_RTCP_FB_H

#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Writes the wildcard list as a=rtcp-fb:* lines. Codec control lines are written with the word "cmm".
 * @param context its text buffer receives the lines
 * @param description the media section
 * @return 1; 0, with a log line, for null, an absent list or more than five entries, an entry of another type
 *         or with parameter text, or a full text buffer
 */
int dak_sdp_encode_rtcp_fb_attr(sdp_lib_context *context, media_description *description);

/**
 * Writes the list of one payload format as a=rtcp-fb lines with its payload number.
 * @param context its text buffer receives the lines
 * @param description the media section
 * @param index position of the payload format
 * @return as dak_sdp_encode_rtcp_fb_attr(); 0, with an assertion report, for a position without a codec
 */
int dak_sdp_encode_rtcp_fb_attr_at_pt(sdp_lib_context *context, media_description *description, int index);

/**
 * Reads an a=rtcp-fb line of a section with the profile "RTP/AVPF". The wildcard takes "nack", "nack pli",
 * "ccm fir" and "ccm tmmbr"; up to five payload numbers take "nack" and "nack pli".
 * @param description the media section
 * @param line_start first character of the line
 * @param line_end its terminator; must be readable
 * @return 1 when stored, or when skipped (logged) for its profile, its type or a full list; 0 for null or a
 *         malformed line
 */
int dak_sdp_parse_a_equal_rtcp_fb_line(media_description *description, const char *line_start,
                                       const char *line_end);

/**
 * Appends to the wildcard list. An unknown type or subtype is logged and stored as #RTCP_FB_UNSUPPORTED,
 * which the writer refuses.
 * @param description the media section
 * @param type an #rtcp_fb_type
 * @param subtype 0 or 1, the `nack_subtype` or `ccm_subtype`
 * @return 1; 0, with a log line, for null or a full list
 */
int dak_sdp_set_media_rtcp_fb_attr(media_description *description, uint32_t type, uint32_t subtype);

/**
 * Replaces the feedback list of one payload format.
 * @param description the media section
 * @param payload_number the payload type number
 * @param feedback the list to copy, at most five entries; entry types are not checked
 * @return position of the payload format; -1, with an assertion report, for null, an absent payload number or
 *         too long a list
 */
int dak_sdp_add_media_rtcp_fb_to_media_description(media_description *description, int32_t payload_number,
                                                   const rtcp_fb_list *feedback);

/**
 * Counts the wildcard list.
 * @param description the media section
 * @return the count, 0 without a list; -1, with a log line, for null
 */
int dak_sdp_get_number_of_m_rtcp_fb_attrs(const media_description *description);

/**
 * Counts the list of one payload format.
 * @param description the media section
 * @param index position of the payload format
 * @return the count, 0 without a list or a codec at that position; -1, with a log line, for null
 */
int dak_sdp_get_number_of_rtcp_fb_attrs(const media_description *description, int index);

/**
 * Reads type and subtype of a wildcard entry. The entry behind the last is readable too; callers stop at the
 * count.
 * @param description the media section
 * @param[out] out the type, and the subtype of that type; its other subtype is left as it is
 * @param index position, 0 to 4 and at most the count
 * @return a mark of success that is not to be read; null, with a log line, for anything else
 */
const void *dak_sdp_get_media_m_rtcp_fb_type(const media_description *description, rtcp_fb_kind *out,
                                             int index);

/**
 * Reads type, subtype and parameter text of a payload format's entry.
 * @param description the media section
 * @param[out] out as for dak_sdp_get_media_m_rtcp_fb_type()
 * @param index position, 0 to 4 and at most the count
 * @param codec_index position of the payload format
 * @return the parameter text, owned by the description; null, with a log line or, for a position without a
 *         codec, an assertion report, for anything else
 */
const char *dak_sdp_get_media_rtcp_fb_type(const media_description *description, rtcp_fb_kind *out, int index,
                                           int codec_index);

#ifdef __cplusplus
}
#endif

#endif
