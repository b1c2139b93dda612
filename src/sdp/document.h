/**
 * @file
 * A document: its session-line slots and its list of media sections.
 */
#ifndef DAKSDP_SDP_DOCUMENT_H
#define DAKSDP_SDP_DOCUMENT_H

#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Number of session-line types. @return 14 */
int get_total_session_number_tag(void);

/**
 * Sets the session-line slots of a new document to their types, without values.
 * @param document the document; what it held is not released
 * @return 1; 0, with an assertion report, for null
 */
int init_sdp_session_info(sdp_info_container *document);

/**
 * Releases the session values and media sections of a document.
 * @param document the document
 * @return 1 if the thirtieth place held a media section, 0 if it was empty; 0, with an assertion report, for
 *         null
 */
int clean_sdp_info_container(sdp_info_container *document);

/**
 * Hangs a media section into the first free place of a document, which owns it from then on.
 * @param document the document
 * @param description the media section
 * @return 1; 0, with an assertion report, for null, a document that has 30, or a section that is already
 *         there
 */
int add_media_description(sdp_info_container *document, media_description *description);

/** Another name of add_media_description(). @copydetails add_media_description */
int add_media_description_to_sdp_container(sdp_info_container *document, media_description *description);

/**
 * Hangs a media section into the encoder document, which owns it from then on.
 * @param context the context
 * @param description the media section
 * @return as add_media_description()
 */
int add_media_description_to_sdp_encoder(sdp_lib_context *context, media_description *description);

/**
 * Counts the media sections of a document, gaps left out.
 * @param document the document
 * @return the count; 0, with an assertion report, for null
 */
int get_number_of_media_description_by_sdp_info_type(const sdp_info_container *document);

/**
 * Counts the media sections of a context's document.
 * @param context the context
 * @param selector 0 encoder document, 1 parser document
 * @return the count; 0, with an assertion report, for null or another selector
 */
int get_number_of_media_description(sdp_lib_context *context, int selector);

/**
 * Finds a media section.
 * @param document the document
 * @param index place of the section, 0 to 29
 * @return the section, or null for an empty place; null, with an assertion report, for null or a higher index
 */
media_description *get_media_description_by_index_and_sdp_type(sdp_info_container *document, uint32_t index);

/**
 * Finds a media section of a context's document.
 * @param context the context
 * @param selector 0 encoder document, 1 parser document
 * @param index place of the section, 0 to 29
 * @return the section, or null for an empty place; null, with an assertion report, for null, another selector
 *         or a higher index
 */
media_description *get_media_description_by_index(sdp_lib_context *context, int selector, uint32_t index);

#ifdef __cplusplus
}
#endif

#endif
