/**
 * @file
 * The builders of media sections.
 *
 * They store what the encoder writes later. A builder that gives a code logs whatever it refuses; what it
 * stored until then stays in the section.
 */
#ifndef DAKSDP_OA_MEDIA_GENERATION_H
#define DAKSDP_OA_MEDIA_GENERATION_H

#include "oa/sdp_container.h"
#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Adds a media section for each media line to the encoder document. The connection and the RTCP address of a
 * media line are not written.
 * @param document the context that holds the encoder document
 * @param container the container
 * @return 0; 3, with a log line, for null; else, with a log line, the code of the builder that failed, or 4
 */
uint32_t dak_app_oa_encode_mlines(sdp_lib_context *document, sdp_container *container);

/**
 * Creates the media section of a media line.
 * @param mline the media line
 * @return the section, to be handed to a document or released with clean_media_description(); null for null,
 *         another transport than RTP/AVP, RTP/AVPF and TCP/MSRP (logged), another media type than audio,
 *         video and message, more than 20 formats or no memory
 */
media_description *dak_app_oa_encode_common_media_line(const sdp_media_line *mline);

/**
 * Stores the b= lines, up to four.
 * @param md the media section
 * @param bandwidth the lines
 * @return 0; 3 for null; 4 for an unknown modifier or a fifth line
 */
uint32_t dak_app_oa_encode_media_bandwidth(media_description *md, const sdp_bandwidth *bandwidth);

/**
 * Binds the payload formats: a=rtpmap, codec parameters and, for the transport RTP/AVPF, feedback.
 * @param md the media section, which has the payload numbers already
 * @param mline the media line; only the marker of an H263-1998 block is ever written to
 * @return 0; 3 for null or an unknown codec; 4 for a payload number that the section lacks or more than five
 *         feedback entries; 7 for a payload number above 95 without a=rtpmap line; else the code of the
 *         codec's encode function
 */
uint32_t dak_app_oa_encode_media_formats(media_description *md, sdp_media_line *mline);

/**
 * Stores direction, setup or connection, framerate, maxprate, maxptime, ptime, mid, preconditions and, for
 * the transport RTP/AVPF, feedback for all formats.
 * @param md the media section
 * @param mline the media line
 * @return 0; 1 for ten preconditions or more; 3 for null, or when framerate, maxprate, maxptime, ptime or mid
 *         is refused; 4 for an unknown direction, setup or connection, for a bad precondition, and for more
 *         than five feedback entries
 */
uint32_t dak_app_oa_encode_media_gen_attr(media_description *md, const sdp_media_line *mline);

/**
 * Stores the message-session and file-transfer records of a media line over MSRP.
 * @param md the media section
 * @param mline the media line; nothing is stored unless its `msg_attr_present` is set
 * @return 0; 3 for null; 4 for more than five file selectors
 */
uint32_t dak_app_oa_encode_media_message_attr(media_description *md, const sdp_media_line *mline);

#ifdef __cplusplus
}
#endif

#endif
