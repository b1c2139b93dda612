/**
 * @file
 * The functions of each codec kind: initialiser, setter, getter and a=fmtp line writer.
 *
 * They are the entries of the registry's tables. All kinds behave alike; what differs are the parameters, in
 * the order of the a=fmtp line, and the separator on that line: ";", or a blank where the writer's text says
 * so.
 */
#ifndef DAKSDP_CODEC_CODEC_KIND_H
#define DAKSDP_CODEC_CODEC_KIND_H

#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Initialiser of AMR, AMR-WB and G722_2 (RFC 4867), with 10 parameters: octet-align, mode-set,
 * mode-change-period, mode-change-capability, mode-change-neighbor, crc, robust-sorting, interleaving,
 * max-red, channels.
 * @param[out] codec the codec whose record is prepared: names are written, values emptied, flags cleared
 * @return 1; 0, with an assertion report, for null
 */
int init_amr_media_info(media_codec *codec);
/**
 * Setter of AMR, AMR-WB and G722_2 (RFC 4867).
 * @param description the media section
 * @param index position of the payload format
 * @param name terminated parameter name; case is ignored
 * @param value terminated value of at most 199 characters
 * @return as set_attr_value_by_mime(); 0, with an assertion report, for a null description or a position
 *         without a codec
 */
int set_amr_media_value(media_description *description, int index, const char *name, const char *value);
/**
 * Getter of AMR, AMR-WB and G722_2 (RFC 4867).
 * @param description the media section
 * @param index position of the payload format
 * @param name terminated parameter name; case is ignored
 * @return as get_attr_value_by_mime(), owned by the description; null, with an assertion report, for a null
 *         description or a position without a codec
 */
const char *get_amr_media_value(media_description *description, int index, const char *name);
/**
 * a=fmtp line writer of AMR, AMR-WB and G722_2 (RFC 4867).
 * @param context its text buffer receives the line
 * @param description the media section
 * @param index position of the payload format
 * @return as dak_sdp_encode_a_equal_fmtp_line(); 0, with an assertion report, for null or a position without
 *         a codec
 */
int dak_sdp_amr_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Initialiser of EVRC (RFC 3558), with 5 parameters: maxinterleave, silencesupp, dtxmax, dtxmin, hangover.
 * @copydetails init_amr_media_info
 */
int init_evrc_media_info(media_codec *codec);
/** Setter of EVRC (RFC 3558). @copydetails set_amr_media_value */
int set_evrc_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRC (RFC 3558). @copydetails get_amr_media_value */
const char *get_evrc_media_value(media_description *description, int index, const char *name);
/**
 * a=fmtp line writer of EVRC (RFC 3558). A blank separates parameters.
 * @copydetails dak_sdp_amr_media_info_encode
 */
int dak_sdp_evrc_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Initialiser of EVRC0, header-free (RFC 3558), with 4 parameters: silencesupp, dtxmax, dtxmin, hangover.
 * @copydetails init_amr_media_info
 */
int init_evrc0_media_info(media_codec *codec);
/** Setter of EVRC0, header-free (RFC 3558). @copydetails set_amr_media_value */
int set_evrc0_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRC0, header-free (RFC 3558). @copydetails get_amr_media_value */
const char *get_evrc0_media_value(media_description *description, int index, const char *name);
/**
 * a=fmtp line writer of EVRC0, header-free (RFC 3558). A blank separates parameters.
 * @copydetails dak_sdp_amr_media_info_encode
 */
int dak_sdp_evrc0_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Initialiser of EVRC1, compact bundle (RFC 4788), with 5 parameters: fixedrate, silencesupp, dtxmax, dtxmin,
 * hangover.
 * @copydetails init_amr_media_info
 */
int init_evrc1_media_info(media_codec *codec);
/** Setter of EVRC1, compact bundle (RFC 4788). @copydetails set_amr_media_value */
int set_evrc1_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRC1, compact bundle (RFC 4788). @copydetails get_amr_media_value */
const char *get_evrc1_media_value(media_description *description, int index, const char *name);
/**
 * a=fmtp line writer of EVRC1, compact bundle (RFC 4788). A blank separates parameters.
 * @copydetails dak_sdp_amr_media_info_encode
 */
int dak_sdp_evrc1_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Initialiser of EVRCB0, header-free (RFC 4788), with 6 parameters: silencesupp, dtxmax, dtxmin, hangover,
 * sendmode, recvmode.
 * @copydetails init_amr_media_info
 */
int init_evrcb0_media_info(media_codec *codec);
/** Setter of EVRCB0, header-free (RFC 4788). @copydetails set_amr_media_value */
int set_evrcb0_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRCB0, header-free (RFC 4788). @copydetails get_amr_media_value */
const char *get_evrcb0_media_value(media_description *description, int index, const char *name);
/**
 * a=fmtp line writer of EVRCB0, header-free (RFC 4788). A blank separates parameters.
 * @copydetails dak_sdp_amr_media_info_encode
 */
int dak_sdp_evrcb0_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Initialiser of EVRCB (RFC 4788), with 7 parameters: maxinterleave, silencesupp, dtxmax, dtxmin, hangover,
 * sendmode, recvmode.
 * @copydetails init_amr_media_info
 */
int init_evrcb_media_info(media_codec *codec);
/** Setter of EVRCB (RFC 4788). @copydetails set_amr_media_value */
int set_evrcb_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRCB (RFC 4788). @copydetails get_amr_media_value */
const char *get_evrcb_media_value(media_description *description, int index, const char *name);
/**
 * a=fmtp line writer of EVRCB (RFC 4788). A blank separates parameters.
 * @copydetails dak_sdp_amr_media_info_encode
 */
int dak_sdp_evrcb_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Initialiser of EVRCB1, compact bundle (RFC 4788), with 5 parameters: fixedrate, silencesupp, dtxmax,
 * dtxmin, hangover.
 * @copydetails init_amr_media_info
 */
int init_evrcb1_media_info(media_codec *codec);
/** Setter of EVRCB1, compact bundle (RFC 4788). @copydetails set_amr_media_value */
int set_evrcb1_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRCB1, compact bundle (RFC 4788). @copydetails get_amr_media_value */
const char *get_evrcb1_media_value(media_description *description, int index, const char *name);
/**
 * a=fmtp line writer of EVRCB1, compact bundle (RFC 4788). A blank separates parameters.
 * @copydetails dak_sdp_amr_media_info_encode
 */
int dak_sdp_evrcb1_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Initialiser of EVRCWB0, header-free (RFC 5188), with 6 parameters: silencesupp, dtxmax, dtxmin, hangover,
 * mode-set-recv, sendmode.
 * @copydetails init_amr_media_info
 */
int init_evrcwb0_media_info(media_codec *codec);
/** Setter of EVRCWB0, header-free (RFC 5188). @copydetails set_amr_media_value */
int set_evrcwb0_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRCWB0, header-free (RFC 5188). @copydetails get_amr_media_value */
const char *get_evrcwb0_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of EVRCWB0, header-free (RFC 5188). @copydetails dak_sdp_amr_media_info_encode */
int dak_sdp_evrcwb0_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Initialiser of EVRCWB (RFC 5188), with 7 parameters: maxinterleave, silencesupp, dtxmax, dtxmin, hangover,
 * mode-set-recv, sendmode.
 * @copydetails init_amr_media_info
 */
int init_evrcwb_media_info(media_codec *codec);
/** Setter of EVRCWB (RFC 5188). @copydetails set_amr_media_value */
int set_evrcwb_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRCWB (RFC 5188). @copydetails get_amr_media_value */
const char *get_evrcwb_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of EVRCWB (RFC 5188). @copydetails dak_sdp_amr_media_info_encode */
int dak_sdp_evrcwb_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Initialiser of EVRCWB1, compact bundle (RFC 5188), with 7 parameters: fixedrate, silencesupp, dtxmax,
 * dtxmin, hangover, mode-set-recv, sendmode.
 * @copydetails init_amr_media_info
 */
int init_evrcwb1_media_info(media_codec *codec);
/** Setter of EVRCWB1, compact bundle (RFC 5188). @copydetails set_amr_media_value */
int set_evrcwb1_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of EVRCWB1, compact bundle (RFC 5188). @copydetails get_amr_media_value */
const char *get_evrcwb1_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of EVRCWB1, compact bundle (RFC 5188). @copydetails dak_sdp_amr_media_info_encode */
int dak_sdp_evrcwb1_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of telephone-event (RFC 4733), with 1 parameter: events. @copydetails init_amr_media_info */
int init_tel_evnt_media_info(media_codec *codec);
/**
 * Setter of telephone-event (RFC 4733). A null or empty name means "events": the value of the line bears no
 * name.
 * @copydetails set_amr_media_value
 */
int set_telephone_event_value(media_description *description, int index, const char *name, const char *value);
/** Getter of telephone-event (RFC 4733). @copydetails get_amr_media_value */
const char *get_telephone_event_value(media_description *description, int index, const char *name);
/**
 * a=fmtp line writer of telephone-event (RFC 4733). Writes the bare value and clears the slot's name for
 * good: from then on "events" finds nothing.
 * @copydetails dak_sdp_amr_media_info_encode
 */
int dak_sdp_tel_evnt_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/** Initialiser of H263 (RFC 4629), with 2 parameters: profile, level. @copydetails init_amr_media_info */
int init_h263_media_info(media_codec *codec);
/** Setter of H263 (RFC 4629). @copydetails set_amr_media_value */
int set_h263_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of H263 (RFC 4629). @copydetails get_amr_media_value */
const char *get_h263_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of H263 (RFC 4629). @copydetails dak_sdp_amr_media_info_encode */
int dak_sdp_263_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Initialiser of H263-1998 (RFC 4629), with 17 parameters: SQCIF, QCIF, CIF, CIF4, CIF16, CUSTOM, F, I, J, T,
 * K, N, P, PAR, CPCF, BPP, HRD.
 * @copydetails init_amr_media_info
 */
int init_h263_1998_media_info(media_codec *codec);
/** Setter of H263-1998 (RFC 4629). @copydetails set_amr_media_value */
int set_h263_1998_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of H263-1998 (RFC 4629). @copydetails get_amr_media_value */
const char *get_h263_1998_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of H263-1998 (RFC 4629). @copydetails dak_sdp_amr_media_info_encode */
int dak_sdp_h263_1998_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Initialiser of H263-2000 (RFC 4629), with 20 parameters: SQCIF, QCIF, CIF, CIF4, CIF16, CUSTOM, F, I, J, T,
 * K, N, P, PAR, CPCF, BPP, HRD, profile, level, interlace.
 * @copydetails init_amr_media_info
 */
int init_h263_2000_media_info(media_codec *codec);
/** Setter of H263-2000 (RFC 4629). @copydetails set_amr_media_value */
int set_h263_2000_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of H263-2000 (RFC 4629). @copydetails get_amr_media_value */
const char *get_h263_2000_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of H263-2000 (RFC 4629). @copydetails dak_sdp_amr_media_info_encode */
int dak_sdp_h263_2000_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Initialiser of H264 (RFC 6184), with 11 parameters: profile-level-id, packetization-mode,
 * sprop-deint-buf-req, max-rcmd-nalu-size, sar-understood, sar-supported, in-band-parameter-sets,
 * parameter-add, sprop-parameter-sets, sprop-level-parameter-sets, use-level-src-parameter-sets.
 * @copydetails init_amr_media_info
 */
int init_h264_media_info(media_codec *codec);
/** Setter of H264 (RFC 6184). @copydetails set_amr_media_value */
int set_h264_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of H264 (RFC 6184). @copydetails get_amr_media_value */
const char *get_h264_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of H264 (RFC 6184). @copydetails dak_sdp_amr_media_info_encode */
int dak_sdp_h264_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Initialiser of MP4V-ES (RFC 6416), with 2 parameters: profile-level-id, config.
 * @copydetails init_amr_media_info
 */
int init_mp4ves_media_info(media_codec *codec);
/** Setter of MP4V-ES (RFC 6416). @copydetails set_amr_media_value */
int set_m4v_es_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of MP4V-ES (RFC 6416). @copydetails get_amr_media_value */
const char *get_m4v_es_media_value(media_description *description, int index, const char *name);
/** a=fmtp line writer of MP4V-ES (RFC 6416). @copydetails dak_sdp_amr_media_info_encode */
int dak_sdp_mp4ves_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Initialiser of mpeg4-generic, isoff-generic and generic-mp4 (RFC 3640), with 18 parameters: streamType,
 * profile-level-id, config, mode, objectType, constantSize, constantDuration, maxDisplacement,
 * de_interleaveBufferSize, sizeLength, indexLength, indexDeltaLength, CTSDeltaLength, DTSDeltaLength,
 * randomAccessIndication, streamStateIndication, rate and one without a name.
 * @copydetails init_amr_media_info
 */
int init_mpeg4_generic_media_info(media_codec *codec);
/** Setter of mpeg4-generic, isoff-generic and generic-mp4 (RFC 3640). @copydetails set_amr_media_value */
int set_m4v_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of mpeg4-generic, isoff-generic and generic-mp4 (RFC 3640). @copydetails get_amr_media_value */
const char *get_m4v_media_value(media_description *description, int index, const char *name);
/**
 * a=fmtp line writer of mpeg4-generic, isoff-generic and generic-mp4 (RFC 3640).
 * @copydetails dak_sdp_amr_media_info_encode
 */
int dak_sdp_mpeg4_gen_media_info_encode(sdp_lib_context *context, media_description *description, int index);

/**
 * Initialiser of enc-generic-mp4, enc-mpeg4-generic and enc-isoff-generic, with 25 parameters: codec, mode,
 * profile-level-id, sprop-parameter-sets, ISMACrypCryptoSuite, ISMACrypIVLength, ISMACrypDeltaIVLength,
 * ISMACrypSelectiveEncryption, ISMACrypKeyIndicatorLength, ISMACrypKeyIndicatorPerAU, ISMACrypSalt,
 * ISMACrypKey, ISMACrypKMSID, ISMACrypKMSVersion, ISMACrypKMSSpecificData, ISMACRYP_CRYPTO_SUITE,
 * ISMACRYP_IV_LENGTH, ISMACRYP_DELTA_IV_LENGTH, ISMACRYP_SELECTIVE_ENCRYPTION, ISMACRYP_KEY_INDICATOR_LENGTH,
 * ISMACRYP_KEY_INDICATOR_PER_AU, ISMACRYP_SALT, ISMACRYP_KEY, ISMACRYP_KMS_ID, ISMACRYP_KMS_SPECIFIC_DATA.
 * @copydetails init_amr_media_info
 */
int init_enc_mp4v_media_info(media_codec *codec);
/** Setter of enc-generic-mp4, enc-mpeg4-generic and enc-isoff-generic. @copydetails set_amr_media_value */
int set_enc_m4v_media_value(media_description *description, int index, const char *name, const char *value);
/** Getter of enc-generic-mp4, enc-mpeg4-generic and enc-isoff-generic. @copydetails get_amr_media_value */
const char *get_enc_m4v_media_value(media_description *description, int index, const char *name);
/**
 * a=fmtp line writer of enc-generic-mp4, enc-mpeg4-generic and enc-isoff-generic.
 * @copydetails dak_sdp_amr_media_info_encode
 */
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
