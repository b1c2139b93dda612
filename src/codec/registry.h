/**
 * @file
 * The registry of payload format names and the functions of each.
 *
 * Names and functions are constant data indexed by the MIME index, 0 to 29; an empty function slot is null.
 */
#ifndef DAKSDP_CODEC_REGISTRY_H
#define DAKSDP_CODEC_REGISTRY_H

#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Names in the registry. */
#define MEDIA_MIME_COUNT 30

/** Prepares the parameter record of a codec; 1 or 0. */
typedef int (*dak_init_media_codec_fn)(media_codec *codec);
/** Stores one parameter of the codec at `index`; 1 or 0. */
typedef int (*dak_set_media_value_fn)(media_description *description, int index, const char *name,
                                      const char *value);
/** Reads one parameter of the codec at `index`; its value or null. */
typedef const char *(*dak_get_media_value_fn)(media_description *description, int index, const char *name);
/** Writes the a=fmtp line of the codec at `index`; 1 or 0. */
typedef int (*dak_encoder_fn)(sdp_lib_context *context, media_description *description, int index);

/** Payload format names by MIME index. */
extern const char g_media_mime[MEDIA_MIME_COUNT][50];
/** Record initialisers by MIME index. */
extern const dak_init_media_codec_fn dak_g_init_media_codec[MEDIA_MIME_COUNT];
/** Parameter setters by MIME index. */
extern const dak_set_media_value_fn dak_g_set_media_value_by_mime_func_ptr[MEDIA_MIME_COUNT];
/** Parameter getters by MIME index. */
extern const dak_get_media_value_fn dak_g_get_media_value_by_mime_func_ptr[MEDIA_MIME_COUNT];
/** a=fmtp line writers by MIME index. */
extern const dak_encoder_fn dak_g_encoder_func_ptr[MEDIA_MIME_COUNT];

/**
 * Makes the registry ready. The tables are constant data, so there is nothing to fill and contexts may be
 * created on any number of threads.
 * @return 1
 */
int init_media_functions(void);

/**
 * Looks a payload format name up, ignoring case.
 * @param name terminated name
 * @param[out] index the MIME index; unwritten when not found
 * @return 1 if found; 0 if not or for a null name
 */
int dak_sdp_get_mime_val(const char *name, uint32_t *index);

#ifdef __cplusplus
}
#endif

#endif
