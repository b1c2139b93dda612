/**
 * @file
 * The payload formats of a media section.
 */
#ifndef DAKSDP_SDP_MEDIA_CODECS_H
#define DAKSDP_SDP_MEDIA_CODECS_H

#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Appends a payload number unless the section has it.
 * @param description the media section
 * @param payload_number the payload type number
 * @return 1; 0, with an assertion report, for null, a 21st number or no memory
 */
int set_payload_number(media_description *description, int32_t payload_number);

/**
 * Counts the payload formats.
 * @param description the media section
 * @return the count, 0 to 20; 0, with an assertion report, for null
 */
int get_number_of_media_payload(const media_description *description);

/**
 * Binds an encoding name to a payload number and prepares the parameter record of its MIME type. A name
 * outside the registry is kept, without parameters.
 * @param description the media section
 * @param payload_number the payload type number
 * @param encoding_name terminated name of at most 199 characters, or null for none
 * @param clock_rate clock rate in Hz
 * @param encoding_param encoding parameter (channels)
 * @return position of the payload format; -1, with an assertion report, for null, an absent payload number or
 *         too long a name
 */
int add_media_codec_to_media_description(media_description *description, int32_t payload_number,
                                         const char *encoding_name, uint32_t clock_rate,
                                         uint32_t encoding_param);

/**
 * Marks whether a payload number has an a=rtpmap line.
 * @param description the media section
 * @param payload_number the payload type number
 * @param flag 1 or 0
 * @return position of the payload format; -1, with an assertion report, for null or an absent payload number
 */
int add_media_rtpmap_valid_to_media_description(media_description *description, int32_t payload_number,
                                                int32_t flag);

/**
 * Payload type number at a position.
 * @param description the media section
 * @param index position of the payload format
 * @return the number; 0, with an assertion report, for null or a position without a payload
 */
int32_t get_media_codec_payload_number_by_index(const media_description *description, int index);

/**
 * Encoding name at a position.
 * @param description the media section
 * @param index position of the payload format
 * @return the name, owned by the section; null without an a=rtpmap line and, with an assertion report, for
 *         null or a position without a codec
 */
const char *get_media_codec_mime_type_by_index(const media_description *description, int index);

/**
 * Clock rate at a position.
 * @param description the media section
 * @param index position of the payload format
 * @return the rate in Hz; 0 without an a=rtpmap line and, with an assertion report, for null or a position
 *         without a codec
 */
uint32_t get_media_codec_sample_rate_by_index(const media_description *description, int index);

/**
 * Encoding parameter at a position.
 * @param description the media section
 * @param index position of the payload format
 * @return the parameter; 0 without an a=rtpmap line and, with an assertion report, for null or a position
 *         without a codec
 */
uint32_t get_media_code_encoding_param_by_index(const media_description *description, int index);

/**
 * Whether the payload format at a position has an a=rtpmap line.
 * @param description the media section
 * @param index position of the payload format
 * @return the flag; 0, with an assertion report, for null or a position without a codec
 */
int32_t get_media_rtpmap_valid_flag_by_index(const media_description *description, int index);

/**
 * Whether the payload format at a position has a=rtcp-fb lines.
 * @param description the media section
 * @param index position of the payload format
 * @return the flag; 0, with an assertion report, for null or a position without a codec
 */
uint32_t dak_sdp_get_media_rtcp_fb_valid_flag_by_index(const media_description *description, int index);

#ifdef __cplusplus
}
#endif

#endif
