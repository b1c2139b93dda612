/**
 * @file
 * A media section: its life and the fields of its m= line.
 */
#ifndef DAKSDP_SDP_MEDIA_DESCRIPTION_H
#define DAKSDP_SDP_MEDIA_DESCRIPTION_H

#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Creates a media section.
 * @param media_type terminated media type of at most 199 characters
 * @param port port of the m= line
 * @param number_of_ports port count; the encoder refuses 0
 * @param transport_profile terminated profile of at most 199 characters
 * @param payload_numbers `payload_count` payload type numbers, or null for none
 * @param payload_count 0 to 20
 * @return the section, to be handed to a document or released with clean_media_description(); null, with an
 *         assertion report, for null, a bad count, too long a text or no memory
 */
media_description *init_media_description(const char *media_type, uint32_t port, uint32_t number_of_ports,
                                          const char *transport_profile, const uint32_t *payload_numbers,
                                          int payload_count);

/**
 * Creates a media section with empty texts, no ports and no payloads.
 * @return as init_media_description()
 */
media_description *init_empty_media_description(void);

/**
 * Releases a media section that no document owns.
 * @param description the media section
 * @return 1; 0, with an assertion report, for null
 */
int clean_media_description(media_description *description);

/**
 * Stores the port.
 * @param description the media section
 * @param port the port; its range is not checked
 * @return 1; 0, with an assertion report, for null
 */
int set_media_port(media_description *description, uint32_t port);
/**
 * Stores the count of ports.
 * @param description the media section
 * @param number the count, written behind the port and "/" when it is not 1; the encoder refuses 0
 * @return 1; 0, with an assertion report, for null
 */
int set_number_of_media_port(media_description *description, uint32_t number);
/**
 * Gives the port.
 * @param description the media section
 * @return the port; 0, with an assertion report, for null
 */
uint32_t get_media_port(const media_description *description);
/**
 * Gives the count of ports.
 * @param description the media section
 * @return the count, 1 when a received line has none; 0, with an assertion report, for null
 */
uint32_t get_number_of_media_port(const media_description *description);

/**
 * Stores the media type, without trailing white characters.
 * @param description the media section
 * @param text counted text
 * @param length its characters, 1 to 199
 * @return 1; 0, with an assertion report, for null or another length
 */
int set_media_type(media_description *description, const char *text, uint32_t length);

/**
 * Stores the transport profile, without trailing white characters.
 * @param description the media section
 * @param text counted text
 * @param length its characters, 1 to 199
 * @return 1; 0, with an assertion report, for null or another length
 */
int set_transport_profile(media_description *description, const char *text, uint32_t length);

/**
 * Gives the media type.
 * @param description the media section
 * @return the text, owned by the section; null, with an assertion report, for null
 */
const char *get_media_type(const media_description *description);
/**
 * Gives the transport profile.
 * @param description the media section
 * @return the text, owned by the section; null, with an assertion report, for null
 */
const char *get_transport_profile(const media_description *description);

/**
 * Stores the format text of a section whose formats are no numbers.
 * @param description the media section
 * @param text counted text
 * @param length its characters, at most 199
 * @return 1; 0, with an assertion report, for null or, with a log line too, for a greater length
 */
int set_media_format(media_description *description, const char *text, uint32_t length);

/**
 * Copies the format text out.
 * @param description the media section
 * @param[out] destination 200 characters
 * @return 1; 0, with an assertion report, for null
 */
int dak_sdp_get_media_format(const media_description *description, char *destination);

#ifdef __cplusplus
}
#endif

#endif
