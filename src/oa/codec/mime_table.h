/**
 * @file
 * The codec table: payload number, name and translation functions of each codec.
 */
#ifndef DAKSDP_OA_CODEC_MIME_TABLE_H
#define DAKSDP_OA_CODEC_MIME_TABLE_H

#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Rows of the codec table. */
#define MIME_TABLE_ROWS 25

/**
 * Translates between a payload format's parameter block and its fmtp parameters. Encoding writes the block
 * into the codec at `codec_index`, decoding fills the block from it.
 * @param md the media section
 * @param codec_index position of the payload format
 * @param block that codec's parameter block
 * @return 0; 1 a value does not fit, 3 null, 4 an invalid value or one that is refused, 7 a parameter not
 *         taken
 */
typedef uint32_t (*dak_app_sdp_codec_fn)(media_description *md, uint16_t codec_index, void *block);

/** One codec. */
typedef struct sdp_mime_entry {
    uint32_t payload_number;     /**< default payload number, and key of the codec */
    char mime_name[256];         /**< encoding name */
    dak_app_sdp_codec_fn encode; /**< block to parameters; may be null */
    dak_app_sdp_codec_fn decode; /**< parameters to block; may be null */
} sdp_mime_entry;

/** The codecs. Look-ups take the first row that matches: "telephone-event" is 105 by name, 112 by key alone.
 */
extern const sdp_mime_entry mime_table[MIME_TABLE_ROWS];

/**
 * Finds a codec by its key.
 * @param codec_key a row's `payload_number`
 * @return the row; null, with a log line, when there is none
 */
const sdp_mime_entry *dak_app_sdp_find_medentry_by_pt(uint32_t codec_key);

/**
 * Finds a codec by name, ignoring case.
 * @param mime_name terminated encoding name
 * @return the row; null, with a log line, when there is none or for null
 */
const sdp_mime_entry *dak_app_sdp_find_medentry_by_mime(const char *mime_name);

#ifdef __cplusplus
}
#endif

#endif
