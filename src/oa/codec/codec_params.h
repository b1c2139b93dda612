/**
 * @file
 * The parameter blocks of the codecs: fmtp parameters as plain fields with presence flags.
 *
 * Every block begins with `fmtp_present`, 1 when the block holds fmtp parameters, and a marker that decoding
 * sets to 1 and validation asks for. A presence flag is 0 for absent and any other value for present unless a
 * field says otherwise. Mode lists are bit maps: bit n stands for mode n.
 */
#ifndef DAKSDP_OA_CODEC_CODEC_PARAMS_H
#define DAKSDP_OA_CODEC_CODEC_PARAMS_H

#include <stdint.h>

/** The DTX parameters that the EVRC family shares (RFC 4788). */
typedef struct dtx_params {
    uint8_t silencesupp_present; /**< "silencesupp" given */
    uint8_t silencesupp;         /**< 1 when DTX is used, else 0 */
    uint8_t dtxmax_present;      /**< "dtxmax" given */
    uint8_t dtxmax;              /**< longest interval between updates of background noise, in frames */
    uint8_t dtxmin_present;      /**< "dtxmin" given */
    uint8_t dtxmin;              /**< shortest such interval, in frames */
    uint8_t hangover_present;    /**< "hangover" given */
    uint8_t hangover;            /**< silence frames sent behind speech before DTX begins */
} dtx_params;

/** AMR, AMR-WB and G722_2 (RFC 4867). */
typedef struct sdp_amr_params {
    uint8_t fmtp_present;                   /**< 1 when the block holds parameters */
    uint8_t amr_params_valid;               /**< set to 1 by decoding */
    uint8_t octet_align_present;            /**< "octet-align" given */
    uint8_t octet_align;                    /**< 0 bandwidth-efficient, 1 octet-aligned */
    uint8_t mode_set_present;               /**< "mode-set" given */
    uint32_t mode_set;                      /**< bit map of modes 0 to 8; mode 8 is read and not written */
    uint8_t mode_change_period_present;     /**< "mode-change-period" given */
    uint32_t mode_change_period;            /**< frames between mode changes: 1 or 2, unchecked */
    uint8_t mode_change_capability_present; /**< "mode-change-capability" given */
    uint32_t mode_change_capability;        /**< 2 when able to keep to a period of 2, else 1; unchecked */
    uint8_t mode_change_neighbor_present;   /**< "mode-change-neighbor" given */
    uint8_t mode_change_neighbor;           /**< 1 for changes to neighbouring modes alone */
    uint8_t crc_present;                    /**< "crc" given */
    uint8_t crc;                            /**< 1 for frame CRCs */
    uint8_t robust_sorting_present;         /**< "robust-sorting" given */
    uint8_t robust_sorting;                 /**< 1 for robust payload sorting */
    uint8_t interleaving_present;           /**< "interleaving" given */
    uint16_t interleaving;    /**< frames in a group at most; decoding keeps 1 for any number but 0 */
    uint8_t channels_present; /**< "channels" given */
    int16_t channels;         /**< number of channels */
    uint8_t max_red_present;  /**< "max-red" given */
    int16_t max_red;          /**< longest redundancy in milliseconds, 0 for none */
} sdp_amr_params;

/** EVRC (RFC 3558). */
typedef struct sdp_evrc_params {
    uint8_t fmtp_present;          /**< 1 when the block holds parameters */
    uint8_t evrc_params_valid;     /**< set to 1 by decoding */
    uint8_t maxinterleave_present; /**< "maxinterleave" given */
    uint16_t maxinterleave;        /**< longest interleaving length, 0 to 7; unchecked */
    dtx_params dtx;                /**< DTX parameters */
} sdp_evrc_params;

/** EVRC0, the header-free form. */
typedef struct sdp_evrc0_params {
    uint8_t fmtp_present;      /**< 1 when the block holds parameters */
    uint8_t evrc_params_valid; /**< set to 1 by decoding */
    dtx_params dtx;            /**< DTX parameters */
} sdp_evrc0_params;

/** Values of `fixedrate`. */
enum {
    SDP_EVRC_HALF_RATE = 1,   /**< "0.5" */
    SDP_EVRC_FULL_RATE = 2,   /**< "1" */
    SDP_EVRC_INVALID_RATE = 4 /**< what decoding stores for any other text */
};

/** EVRC1 and EVRCB1, the compact bundle forms (RFC 4788). */
typedef struct sdp_evrc1_params {
    uint8_t fmtp_present;      /**< 1 when the block holds parameters */
    uint8_t evrc_params_valid; /**< set to 1 by decoding */
    uint8_t fixedrate_present; /**< "fixedrate" given */
    uint32_t fixedrate;        /**< 1 half rate "0.5", 2 full rate "1" */
    dtx_params dtx;            /**< DTX parameters */
} sdp_evrc1_params;

/** EVRCB (RFC 4788) and EVRCWB (RFC 5188). */
typedef struct sdp_evrcb_params {
    uint8_t fmtp_present;          /**< 1 when the block holds parameters */
    uint8_t evrc_params_valid;     /**< set to 1 by decoding */
    uint8_t maxinterleave_present; /**< "maxinterleave" given */
    uint16_t maxinterleave;        /**< longest interleaving length, 0 to 7; unchecked */
    dtx_params dtx;                /**< DTX parameters */
    uint8_t mode_set_recv_present; /**< "mode-set-recv" given: 1; EVRCWB alone */
    uint8_t mode_set_recv;         /**< bit map of modes 0 to 7 */
    uint8_t sendmode_present;      /**< "sendmode" given: 1 */
    uint8_t sendmode;              /**< bit map of modes 0 to 7; decoding reads one mode */
    uint8_t recvmode_present;      /**< "recvmode" given: 1; EVRCB alone */
    uint8_t recvmode;              /**< bit map of modes 0 to 7; decoding reads one mode */
} sdp_evrcb_params;

/** EVRCB0 and EVRCWB0, the header-free forms. */
typedef struct sdp_evrcb0_params {
    uint8_t fmtp_present;          /**< 1 when the block holds parameters */
    uint8_t evrc_params_valid;     /**< set to 1 by decoding */
    dtx_params dtx;                /**< DTX parameters */
    uint8_t mode_set_recv_present; /**< "mode-set-recv" given: 1; EVRCWB0 alone */
    uint8_t mode_set_recv;         /**< bit map of modes 0 to 7 */
    uint8_t sendmode_present;      /**< "sendmode" given: 1 */
    uint8_t sendmode;              /**< bit map of modes 0 to 7; decoding reads one mode */
    uint8_t recvmode_present;      /**< "recvmode" given: 1; EVRCB0 alone */
    uint8_t recvmode;              /**< bit map of modes 0 to 7; decoding reads one mode */
} sdp_evrcb0_params;

/** EVRCWB1, the compact bundle form (RFC 5188). */
typedef struct sdp_evrcwb1_params {
    uint8_t fmtp_present;          /**< 1 when the block holds parameters */
    uint8_t evrc_params_valid;     /**< set to 1 by decoding */
    uint8_t fixedrate_present;     /**< "fixedrate" given */
    uint32_t fixedrate;            /**< 1 half rate "0.5", 2 full rate "1" */
    dtx_params dtx;                /**< DTX parameters */
    uint8_t mode_set_recv_present; /**< "mode-set-recv" given: 1 */
    uint8_t mode_set_recv;         /**< bit map of modes 0 to 7 */
    uint8_t sendmode_present;      /**< "sendmode" given: 1 */
    uint8_t sendmode;              /**< bit map of modes 0 to 7; decoding reads one mode */
} sdp_evrcwb1_params;

/** The fixed-rate fields of a block, as the fixed-rate pair of functions takes them. */
typedef struct sdp_fixedrate_part {
    uint8_t evrc_params_valid; /**< the block's marker */
    uint8_t fixedrate_present; /**< "fixedrate" given */
    uint32_t fixedrate;        /**< 1 half rate "0.5", 2 full rate "1" */
} sdp_fixedrate_part;

/** H264 (RFC 6184). */
typedef struct sdp_h264_params {
    uint8_t fmtp_present;               /**< 1 when the block holds parameters */
    uint8_t h264_params_valid;          /**< set to 1 by decoding */
    uint8_t profile_level_id_present;   /**< "profile-level-id" given */
    uint16_t profile_level_id_len;      /**< length of the text as received */
    char profile_level_id[120];         /**< six hexadecimal digits by RFC 6184; cut to 119 characters */
    uint8_t packetization_mode_present; /**< "packetization-mode" given */
    int16_t packetization_mode;         /**< 0 single NAL unit, 1 non-interleaved, 2 interleaved; unchecked */
    uint8_t sprop_deint_buf_req_present;        /**< "sprop-deint-buf-req" given */
    int16_t sprop_deint_buf_req;                /**< octets, of which the low 16 bits are kept */
    uint8_t max_rcmd_nalu_size_present;         /**< "max-rcmd-nalu-size" given */
    uint32_t max_rcmd_nalu_size;                /**< largest NAL unit, in octets */
    uint8_t sar_understood_present;             /**< "sar-understood" given */
    uint8_t sar_understood;                     /**< as decoded: the code of the value's first character */
    uint8_t sar_supported_present;              /**< "sar-supported" given */
    uint8_t sar_supported;                      /**< as decoded: the code of the value's first character */
    uint8_t in_band_parameter_sets_present;     /**< "in-band-parameter-sets" given */
    uint8_t in_band_parameter_sets;             /**< as decoded: the code of the value's first character */
    uint8_t parameter_add_present;              /**< "parameter-add" given */
    uint8_t parameter_add;                      /**< as decoded: the code of the value's first character */
    uint8_t sprop_parameter_sets_present;       /**< "sprop-parameter-sets" given */
    uint16_t sprop_parameter_sets_len;          /**< length of the text as received */
    char sprop_parameter_sets[120];             /**< parameter sets in base64, cut to 119 characters */
    uint8_t sprop_level_parameter_sets_present; /**< "sprop-level-parameter-sets" given */
    uint16_t sprop_level_parameter_sets_len;    /**< length of the text as received */
    char sprop_level_parameter_sets[120];       /**< text, cut to 119 characters */
    uint8_t
        use_level_src_parameter_sets_present; /**< "use-level-src-parameter-sets" given; written as value */
    uint8_t use_level_src_parameter_sets;     /**< code of the value's first character; not written */
} sdp_h264_params;

/** MP4V-ES (RFC 6416). */
typedef struct sdp_mp4_es_params {
    uint8_t fmtp_present;             /**< 1 when the block holds parameters */
    uint8_t mp4_params_valid;         /**< set to 1 by decoding */
    uint8_t profile_level_id_present; /**< "profile-level-id" given */
    int16_t profile_level_id;         /**< profile and level, 1 to 255 by RFC 6416; unchecked */
    uint8_t config_present;           /**< "config" given */
    uint16_t config_len;              /**< octets in `config`; at most 96 can be written */
    uint8_t config[120];              /**< configuration octets */
} sdp_mp4_es_params;

/** What H263-1998 and H263-2000 share (RFC 4629). */
typedef struct h263_params {
    uint8_t sqcif_present;  /**< "SQCIF" given */
    int16_t sqcif;          /**< minimum picture interval, in 1001/30000 s */
    uint8_t qcif_present;   /**< "QCIF" given */
    int16_t qcif;           /**< minimum picture interval, in 1001/30000 s */
    uint8_t cif_present;    /**< "CIF" given */
    int16_t cif;            /**< minimum picture interval, in 1001/30000 s */
    uint8_t cif4_present;   /**< "CIF4" given */
    int16_t cif4;           /**< minimum picture interval, in 1001/30000 s */
    uint8_t cif16_present;  /**< "CIF16" given */
    int16_t cif16;          /**< minimum picture interval, in 1001/30000 s */
    int16_t custom_x;       /**< width of "CUSTOM" in pixels */
    int16_t custom_y;       /**< height of "CUSTOM" in pixels */
    int16_t custom_mpi;     /**< minimum picture interval of "CUSTOM" */
    uint8_t custom_present; /**< "CUSTOM" given */
    uint8_t f;              /**< annex F, advanced prediction: 0 or 1 */
    uint8_t i;              /**< annex I, advanced intra coding: 0 or 1 */
    uint8_t j;              /**< annex J, deblocking filter: 0 or 1 */
    uint8_t t;              /**< annex T, modified quantisation: 0 or 1 */
    uint8_t k_present;      /**< "K" given */
    uint32_t k;             /**< submode of annex K, slice structure: 0 to 4 */
    uint8_t n_present;      /**< "N" given */
    uint32_t n;             /**< submode of annex N, reference picture selection: 0 to 4 */
    uint32_t p_count;       /**< entries of `p_modes` in use, 0 for no "P" */
    uint32_t p_modes[4];    /**< submodes of annex P, resampling: each 0 to 4 */
    uint8_t par_present;    /**< "PAR" given */
    int16_t par;            /**< pixel aspect ratio; the first of its numbers alone */
    uint8_t cpcf_present;   /**< "CPCF" given */
    char cpcf[64];          /**< picture clock frequency as text, at most 62 characters when decoded */
    uint8_t bpp_present;    /**< "BPP" given */
    int16_t bpp;            /**< most bits of a picture, in units of 1024 */
    uint8_t hrd;            /**< hypothetical reference decoder: 0 or 1 */
} h263_params;

/** H263-1998 (RFC 4629). */
typedef struct sdp_h263_1998_params {
    uint8_t fmtp_present;           /**< 1 when the block holds parameters */
    uint8_t h263_1998_params_valid; /**< set to 1 by decoding, and by encoding once all was written */
    h263_params params;             /**< the common parameters */
} sdp_h263_1998_params;

/** H263-2000 (RFC 4629). */
typedef struct sdp_h263_2000_params {
    uint8_t fmtp_present;           /**< 1 when the block holds parameters */
    uint8_t h263_2000_params_valid; /**< set to 1 by decoding */
    uint8_t profile_present;        /**< "profile" given */
    int16_t profile;                /**< profile of H.263 annex X; unchecked */
    uint8_t level_present;          /**< "level" given */
    int16_t level;                  /**< level of H.263 annex X; unchecked */
    uint8_t interlace;              /**< 1 for interlaced pictures */
    h263_params params;             /**< the common parameters */
} sdp_h263_2000_params;

/** Entries of an events list. */
#define SDP_TEL_EVENT_ENTRIES 16

/** Values of `kind`. */
enum {
    SDP_TEL_EVENT_END = 0,    /**< end of the list */
    SDP_TEL_EVENT_SINGLE = 1, /**< one event, in `first` */
    SDP_TEL_EVENT_RANGE = 2   /**< the events from `first` to `last` */
};

/** One event, or a range of them. */
typedef struct sdp_tel_event_entry {
    uint32_t kind;  /**< 0 end of the list, 1 single event, 2 range */
    uint16_t first; /**< the event, or the first of the range */
    uint16_t last;  /**< last of the range; to be 0 for a single event */
} sdp_tel_event_entry;

/** telephone-event (RFC 4733). */
typedef struct sdp_tel_event_params {
    uint8_t fmtp_present;    /**< exactly 1 when the block holds parameters */
    uint8_t tel_event_valid; /**< set to 1 by decoding */
    uint8_t events_present;  /**< an events list given */
    sdp_tel_event_entry
        events[SDP_TEL_EVENT_ENTRIES]; /**< the list; entries behind a kind of 0 are not written */
} sdp_tel_event_params;

/** What every block begins with. */
typedef struct sdp_params_frame {
    uint8_t fmtp_present; /**< 1 when the block holds parameters */
    uint8_t params_valid; /**< the block's marker */
} sdp_params_frame;

/** The block of any codec. */
typedef union sdp_codec_params {
    sdp_params_frame frame;         /**< the common beginning */
    sdp_amr_params amr;             /**< AMR, AMR-WB, G722_2 */
    sdp_evrc_params evrc;           /**< EVRC */
    sdp_evrc0_params evrc0;         /**< EVRC0 */
    sdp_evrc1_params evrc1;         /**< EVRC1, EVRCB1 */
    sdp_evrcb_params evrcb;         /**< EVRCB, EVRCWB */
    sdp_evrcb0_params evrcb0;       /**< EVRCB0, EVRCWB0 */
    sdp_evrcwb1_params evrcwb1;     /**< EVRCWB1 */
    sdp_h264_params h264;           /**< H264 */
    sdp_mp4_es_params mp4_es;       /**< MP4V-ES */
    sdp_h263_1998_params h263_1998; /**< H263-1998 */
    sdp_h263_2000_params h263_2000; /**< H263-2000 */
    sdp_tel_event_params tel_event; /**< telephone-event */
} sdp_codec_params;

#endif
