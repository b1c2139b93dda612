/**
 * @file
 * The functions of each codec kind: initialiser, setter, getter and a=fmtp line writer.
 *
 * They are the entries of the registry's tables. All kinds behave alike; only slot names, their number and
 * the separator on the a=fmtp line differ.
 *
 * An initialiser takes the codec whose record it prepares: it writes the kind's slot names, empties every
 * value and clears every flag. It gives 1, or 0 with an assertion report for null.
 *
 * A setter and a getter take the media section, the position of the payload format, and a terminated
 * parameter name (a setter a terminated value too). They give what set_attr_value_by_mime() and
 * get_attr_value_by_mime() give on that record; 0 or null, with an assertion report, for a null description
 * or a position without a codec.
 *
 * A writer takes the context whose text buffer receives the line, the media section and the position of the
 * payload format. It gives what dak_sdp_encode_a_equal_fmtp_line() gives; 0, with an assertion report, for
 * null or a position without a codec.
 */
#ifndef DAKSDP_CODEC_CODEC_KIND_H
#define DAKSDP_CODEC_CODEC_KIND_H

#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Initialiser of AMR, AMR-WB and G722_2 (RFC 4867). */
int init_amr_media_info(media_codec *codec);
/** Setter of AMR, AMR-WB and G722_2 (RFC 4867). */
int set_amr_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of AMR, AMR-WB and G722_2 (RFC 4867). */
const char *get_amr_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of AMR, AMR-WB and G722_2 (RFC 4867). */
int dak_sdp_amr_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of EVRC (RFC 3558). */
int init_evrc_media_info(media_codec *codec);
/** Setter of EVRC (RFC 3558). */
int set_evrc_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRC (RFC 3558). */
const char *get_evrc_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of EVRC (RFC 3558). */
int dak_sdp_evrc_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of EVRC0, header-free (RFC 3558). */
int init_evrc0_media_info(media_codec *codec);
/** Setter of EVRC0, header-free (RFC 3558). */
int set_evrc0_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRC0, header-free (RFC 3558). */
const char *get_evrc0_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of EVRC0, header-free (RFC 3558). */
int dak_sdp_evrc0_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of EVRC1, compact bundle (RFC 4788). */
int init_evrc1_media_info(media_codec *codec);
/** Setter of EVRC1, compact bundle (RFC 4788). */
int set_evrc1_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRC1, compact bundle (RFC 4788). */
const char *get_evrc1_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of EVRC1, compact bundle (RFC 4788). */
int dak_sdp_evrc1_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of EVRCB0, header-free (RFC 4788). */
int init_evrcb0_media_info(media_codec *codec);
/** Setter of EVRCB0, header-free (RFC 4788). */
int set_evrcb0_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRCB0, header-free (RFC 4788). */
const char *get_evrcb0_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of EVRCB0, header-free (RFC 4788). */
int dak_sdp_evrcb0_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of EVRCB (RFC 4788). */
int init_evrcb_media_info(media_codec *codec);
/** Setter of EVRCB (RFC 4788). */
int set_evrcb_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRCB (RFC 4788). */
const char *get_evrcb_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of EVRCB (RFC 4788). */
int dak_sdp_evrcb_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of EVRCB1, compact bundle (RFC 4788). */
int init_evrcb1_media_info(media_codec *codec);
/** Setter of EVRCB1, compact bundle (RFC 4788). */
int set_evrcb1_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRCB1, compact bundle (RFC 4788). */
const char *get_evrcb1_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of EVRCB1, compact bundle (RFC 4788). */
int dak_sdp_evrcb1_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of EVRCWB0, header-free (RFC 5188). */
int init_evrcwb0_media_info(media_codec *codec);
/** Setter of EVRCWB0, header-free (RFC 5188). */
int set_evrcwb0_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRCWB0, header-free (RFC 5188). */
const char *get_evrcwb0_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of EVRCWB0, header-free (RFC 5188). */
int dak_sdp_evrcwb0_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of EVRCWB (RFC 5188). */
int init_evrcwb_media_info(media_codec *codec);
/** Setter of EVRCWB (RFC 5188). */
int set_evrcwb_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRCWB (RFC 5188). */
const char *get_evrcwb_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of EVRCWB (RFC 5188). */
int dak_sdp_evrcwb_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of EVRCWB1, compact bundle (RFC 5188). */
int init_evrcwb1_media_info(media_codec *codec);
/** Setter of EVRCWB1, compact bundle (RFC 5188). */
int set_evrcwb1_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRCWB1, compact bundle (RFC 5188). */
const char *get_evrcwb1_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of EVRCWB1, compact bundle (RFC 5188). */
int dak_sdp_evrcwb1_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of telephone-event (RFC 4733). */
int init_tel_evnt_media_info(media_codec *codec);
/**
 * Setter of telephone-event (RFC 4733). A null or empty name means "events": the value of the line bears no
 * name.
 */
int set_telephone_event_value(media_description *description, int index, const char *name, const char *value);
/** Getter of telephone-event (RFC 4733). */
const char *get_telephone_event_value(media_description *description, int index, const char *name);
/**
 * a=fmtp line writer of telephone-event (RFC 4733). Writes the bare value and clears the slot's name for
 * good: from then on "events" finds nothing.
 */
int dak_sdp_tel_evnt_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of H263 (RFC 4629). */
int init_h263_media_info(media_codec *codec);
/** Setter of H263 (RFC 4629). */
int set_h263_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of H263 (RFC 4629). */
const char *get_h263_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of H263 (RFC 4629). */
int dak_sdp_263_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of H263-1998 (RFC 4629). */
int init_h263_1998_media_info(media_codec *codec);
/** Setter of H263-1998 (RFC 4629). */
int set_h263_1998_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of H263-1998 (RFC 4629). */
const char *get_h263_1998_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of H263-1998 (RFC 4629). */
int dak_sdp_h263_1998_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of H263-2000 (RFC 4629). */
int init_h263_2000_media_info(media_codec *codec);
/** Setter of H263-2000 (RFC 4629). */
int set_h263_2000_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of H263-2000 (RFC 4629). */
const char *get_h263_2000_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of H263-2000 (RFC 4629). */
int dak_sdp_h263_2000_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of H264 (RFC 6184). */
int init_h264_media_info(media_codec *codec);
/** Setter of H264 (RFC 6184). */
int set_h264_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of H264 (RFC 6184). */
const char *get_h264_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of H264 (RFC 6184). */
int dak_sdp_h264_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of MP4V-ES (RFC 6416). */
int init_mp4ves_media_info(media_codec *codec);
/** Setter of MP4V-ES (RFC 6416). */
int set_m4v_es_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of MP4V-ES (RFC 6416). */
const char *get_m4v_es_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of MP4V-ES (RFC 6416). */
int dak_sdp_mp4ves_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of mpeg4-generic, isoff-generic and generic-mp4 (RFC 3640). */
int init_mpeg4_generic_media_info(media_codec *codec);
/** Setter of mpeg4-generic, isoff-generic and generic-mp4 (RFC 3640). */
int set_m4v_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of mpeg4-generic, isoff-generic and generic-mp4 (RFC 3640). */
const char *get_m4v_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of mpeg4-generic, isoff-generic and generic-mp4 (RFC 3640). */
int dak_sdp_mpeg4_gen_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of enc-generic-mp4, enc-mpeg4-generic and enc-isoff-generic. */
int init_enc_mp4v_media_info(media_codec *codec);
/** Setter of enc-generic-mp4, enc-mpeg4-generic and enc-isoff-generic. */
int set_enc_m4v_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of enc-generic-mp4, enc-mpeg4-generic and enc-isoff-generic. */
const char *get_enc_m4v_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of enc-generic-mp4, enc-mpeg4-generic and enc-isoff-generic. */
int dak_sdp_enc_mp4v_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Writes the 17 slot names that H263-1998 and H263-2000 share (RFC 4629).
 * @param[out] param_name at least 17 slots
 * @return 1, or 0 with an assertion report for null
 */
int init_h263_common_params(char (*param_name)[200]);

#ifdef __cplusplus
}
#endif

#endif
