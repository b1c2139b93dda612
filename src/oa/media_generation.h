/**
 * @file
 * The builders of media sections.
 *
 * A builder that takes a media section and a part of the container gives 0; 3, with a log line, for null; 4,
 * with a log line, for invalid content or a refusal of the lower layer.
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
 * @param document the context that holds the document
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

/** Stores up to four b= lines; a fifth is refused. */
uint32_t dak_app_oa_encode_media_bandwidth(media_description *md, const sdp_bandwidth *bandwidth);

/**
 * Binds the payload formats: a=rtpmap, codec parameters and, for the transport RTP/AVPF, feedback. 3, with a
 * log line, also for an unknown codec; 7, with a log line, for a payload number above 95 without a=rtpmap
 * line; else the code of the codec's encode function.
 */
uint32_t dak_app_oa_encode_media_formats(media_description *md, sdp_media_line *mline);

/**
 * Stores direction, setup or connection, framerate, maxprate, maxptime, ptime, mid, preconditions and, for
 * the transport RTP/AVPF, feedback for all formats. 1, with a log line, for ten preconditions or more; 3,
 * with a log line, also when framerate, maxprate, maxptime, ptime or mid is refused.
 */
uint32_t dak_app_oa_encode_media_gen_attr(media_description *md, const sdp_media_line *mline);

/** Stores the message-session and file-transfer records of a media line over MSRP. */
uint32_t dak_app_oa_encode_media_message_attr(media_description *md, const sdp_media_line *mline);

#ifdef __cplusplus
}
#endif

#endif
