/**
 * @file
 * The container: one SDP body as plain fields.
 *
 * A presence flag is 0 for absent and any other value for present unless a field says otherwise. Texts are
 * terminated. The container belongs to the caller; the only heap memory in it is `mlines`.
 */
#ifndef DAKSDP_OA_SDP_CONTAINER_H
#define DAKSDP_OA_SDP_CONTAINER_H

#include "attr/file_transfer_record.h"
#include "attr/message_session_record.h"
#include "oa/codec/codec_params.h"
#include "sdp/media_description_record.h"

#include <stdint.h>

/** Bandwidth lines of a session or a media line. */
#define SDP_MAX_BANDWIDTHS 5
/** Groups of a session. */
#define SDP_MAX_GROUPS 5
/** Media lines of one group. */
#define SDP_MAX_GROUP_MIDS 20
/** Media lines that parsing accepts. */
#define SDP_MAX_MLINES 20
/** Payload formats of one media line. */
#define SDP_MAX_FORMATS 20
/** Precondition entries that parsing accepts; generation takes one fewer. */
#define SDP_MAX_PRECONDS 10
/** Feedback entries of a media line or a payload format. */
#define SDP_MAX_RTCP_FB 5
/** Codec key of a payload format whose name the codec table lacks. */
#define SDP_UNKNOWN_CODEC 114

/** Values of `addr_type`. */
enum {
    SDP_ADDR_IPV4 = 0,   /**< "IN IP4" */
    SDP_ADDR_IPV6 = 1,   /**< "IN IP6" */
    SDP_ADDR_NOT_SET = 2 /**< no address was read; cannot be written */
};

/** An address of an o= or c= line. */
typedef struct sdp_address {
    uint32_t addr_type; /**< 0 "IN IP4", 1 "IN IP6", 2 not set */
    char net_type[256]; /**< network type as parsed, "IN" */
    char address[256];  /**< address text, host name or literal */
} sdp_address;

/** A bandwidth modifier, #SDP_BW_AS and its fellows. */
typedef uint32_t sdp_bw_modifier;
/** Bandwidth modifiers. */
enum {
    SDP_BW_AS = 0,     /**< "AS", kilobits per second */
    SDP_BW_CT = 1,     /**< "CT", kilobits per second */
    SDP_BW_TIAS = 2,   /**< "TIAS", bits per second (RFC 3890) */
    SDP_BW_RR = 3,     /**< "RR", bits per second (RFC 3556) */
    SDP_BW_RS = 4,     /**< "RS", bits per second (RFC 3556) */
    SDP_BW_UNKNOWN = 5 /**< what parsing stores for any other modifier */
};

/** One bandwidth line. */
typedef struct sdp_bandwidth_entry {
    uint8_t present;          /**< the first absent entry ends the list */
    sdp_bw_modifier modifier; /**< 0 AS, 1 CT, 2 TIAS, 3 RR, 4 RS */
    uint32_t value;           /**< in the modifier's unit */
} sdp_bandwidth_entry;

/** The bandwidth lines of a session or a media line. */
typedef struct sdp_bandwidth {
    uint8_t present;                                 /**< 0 when there are none */
    sdp_bandwidth_entry entries[SDP_MAX_BANDWIDTHS]; /**< the lines */
} sdp_bandwidth;

/** A direction, #SDP_RECVONLY and its fellows. */
typedef uint32_t sdp_direction;
/** Media directions. */
enum {
    SDP_RECVONLY = 1, /**< a=recvonly */
    SDP_SENDONLY = 2, /**< a=sendonly */
    SDP_SENDRECV = 3, /**< a=sendrecv, and what no direction means */
    SDP_INACTIVE = 4  /**< a=inactive */
};

/** Semantics of a group, #SDP_GROUP_LS and its fellows. */
typedef uint32_t sdp_group_semantics;
/** Group semantics (RFC 5888). */
enum {
    SDP_GROUP_LS = 0,     /**< lip synchronisation */
    SDP_GROUP_FID = 1,    /**< flow identification */
    SDP_GROUP_UNKNOWN = 2 /**< what parsing stores for any other word; cannot be written */
};

/** One a=group line. */
typedef struct sdp_group {
    uint8_t present;                         /**< exactly 1 when the group is there */
    uint8_t num_mids;                        /**< media lines in the group, at most 20 */
    sdp_group_semantics semantics;           /**< 0 LS, 1 FID */
    uint8_t mline_index[SDP_MAX_GROUP_MIDS]; /**< indexes into `mlines` */
} sdp_group;

/** Values of `precond_type`. */
enum {
    SDP_PRECOND_UNKNOWN = 0, /**< another word of a received line; cannot be written */
    SDP_PRECOND_QOS = 1      /**< "qos" */
};
/** Values of `strength`. */
enum {
    SDP_STRENGTH_UNKNOWN = 0,  /**< "unknown", in a refusal: a type that is not understood */
    SDP_STRENGTH_NONE = 1,     /**< "none", no resources are needed */
    SDP_STRENGTH_FAILURE = 2,  /**< "failure", in a refusal: cannot be met */
    SDP_STRENGTH_OPTIONAL = 3, /**< "optional", resources are wanted */
    SDP_STRENGTH_MANDATORY = 4 /**< "mandatory", no alerting before resources are there */
};
/** Values of `status_type`. */
enum {
    SDP_STATUS_E2E = 1,   /**< "e2e", from end to end */
    SDP_STATUS_LOCAL = 2, /**< "local", the access network of whoever wrote the line */
    SDP_STATUS_REMOTE = 3 /**< "remote", the access network of the other side */
};
/** Values of a precondition's `direction`. */
enum {
    SDP_PRECOND_RECV = 1,     /**< "recv" */
    SDP_PRECOND_SEND = 2,     /**< "send" */
    SDP_PRECOND_SENDRECV = 3, /**< "sendrecv" */
    SDP_PRECOND_NONE = 5      /**< "none" */
};

/** Status type and direction of a current or confirmed precondition. */
typedef struct sdp_precond_status {
    uint32_t status_type; /**< 1 e2e, 2 local, 3 remote */
    uint32_t direction;   /**< 1 recv, 2 send, 3 sendrecv, 5 none */
} sdp_precond_status;

/** Strength, status type and direction of a desired precondition. */
typedef struct sdp_precond_desired {
    uint32_t strength;    /**< 0 unknown, 1 none, 2 failure, 3 optional, 4 mandatory */
    uint32_t status_type; /**< 1 e2e, 2 local, 3 remote */
    uint32_t direction;   /**< 1 recv, 2 send, 3 sendrecv, 5 none */
} sdp_precond_desired;

/** A precondition (RFC 3312). */
typedef struct sdp_precondition {
    uint32_t kind;         /**< 1 current, 2 desired, 3 confirmed; a #pcd_attr_type */
    uint32_t precond_type; /**< 1 qos, 0 another word of a received line */
    union {
        sdp_precond_status status;   /**< kinds 1 and 3 */
        sdp_precond_desired desired; /**< kind 2 */
        uint32_t words[3];           /**< the same words by position */
    };
} sdp_precondition;

/** A feedback capability (RFC 4585, RFC 5104). */
typedef struct sdp_rtcp_fb {
    uint32_t fb_type;      /**< an #rtcp_fb_type */
    uint32_t ccm_subtype;  /**< as in #rtcp_fb_kind */
    uint32_t nack_subtype; /**< as in #rtcp_fb_kind */
    char fb_param[252];    /**< further text of the line */
} sdp_rtcp_fb;

/** One payload format. */
typedef struct sdp_payload_format {
    uint8_t present;         /**< 0: generation passes over it; set by parsing for a known codec */
    uint8_t payload_byte;    /**< the payload number again, set by parsing */
    uint8_t has_rtpmap;      /**< the format has an a=rtpmap line and codec parameters */
    uint32_t codec_id;       /**< key of the codec table's row; 114 unknown */
    uint16_t clock_rate_khz; /**< clock rate in kHz */
    uint8_t multi_channel;   /**< set by parsing for more than one channel */
    uint8_t num_channels;    /**< channel count as parsed; not written */
    sdp_codec_params params; /**< the codec's parameter block */
    uint8_t rtcp_fb_present; /**< exactly 1 when the format has feedback */
    uint8_t num_rtcp_fb;     /**< feedback entries, at most 5 */
    sdp_rtcp_fb rtcp_fb[SDP_MAX_RTCP_FB]; /**< the format's feedback */
} sdp_payload_format;

/** A media type, #SDP_MEDIA_AUDIO and its fellows. */
typedef uint32_t sdp_media_type;
/** Media types. */
enum {
    SDP_MEDIA_AUDIO = 0,   /**< "audio" */
    SDP_MEDIA_VIDEO = 1,   /**< "video" */
    SDP_MEDIA_DATA = 2,    /**< "data"; neither read nor written */
    SDP_MEDIA_CONTROL = 3, /**< "control"; neither read nor written */
    SDP_MEDIA_MESSAGE = 4, /**< "message" */
    SDP_MEDIA_IMAGE = 5,   /**< "image"; read and not written */
    SDP_MEDIA_UNKNOWN = 6  /**< what parsing stores for any other word */
};

/** A transport profile, #SDP_RTP_AVP and its fellows. */
typedef uint32_t sdp_transport;
/** Transport profiles. */
enum {
    SDP_RTP_AVP = 0,          /**< "RTP/AVP" (RFC 3551) */
    SDP_RTP_AVPF = 1,         /**< "RTP/AVPF" (RFC 4585) */
    SDP_TCP_MSRP = 2,         /**< "TCP/MSRP" (RFC 4975) */
    SDP_TCP_TLS_MSRP = 3,     /**< "TCP/TLS/MSRP" (RFC 4975); read and not written */
    SDP_TRANSPORT_UNKNOWN = 5 /**< what parsing stores for any other profile */
};

/** A setup role, #SDP_SETUP_ACTIVE and its fellows. */
typedef uint32_t sdp_setup;
/** Setup roles (RFC 4145). */
enum {
    SDP_SETUP_ACTIVE = 0,  /**< "active", opens the connection */
    SDP_SETUP_PASSIVE = 1, /**< "passive", accepts the connection */
    SDP_SETUP_ACTPASS = 2, /**< "actpass", either */
    SDP_SETUP_HOLDCONN = 3 /**< "holdconn", no connection for the time being */
};

/** Values of `conn_status` (RFC 4145). */
enum {
    SDP_CONNECTION_NEW = 0,     /**< "new" */
    SDP_CONNECTION_EXISTING = 1 /**< "existing" */
};

/** One media line. */
typedef struct sdp_media_line {
    uint8_t valid;                               /**< 1 when the m= line was understood */
    sdp_media_type media_type;                   /**< 0 audio, 1 video, 4 message, 5 image, 6 unknown */
    uint16_t port;                               /**< media port */
    uint8_t num_ports;                           /**< count of ports; 0 cannot be written */
    uint16_t rtcp_port;                          /**< port of the a=rtcp line, 0 when absent; not written */
    rtcp_address_info rtcp_address;              /**< address of the a=rtcp line; not written */
    sdp_transport transport;                     /**< transport profile */
    uint8_t connection_present;                  /**< a c= line of the media line; not written */
    sdp_address connection;                      /**< its address */
    sdp_bandwidth bandwidth;                     /**< b= lines; four of them can be written */
    uint16_t num_formats;                        /**< payload formats, at most 20 */
    uint32_t payload_numbers[SDP_MAX_FORMATS];   /**< payload type numbers, in line order */
    sdp_payload_format formats[SDP_MAX_FORMATS]; /**< formats[i] describes payload_numbers[i] */
    uint8_t ptime_present;                       /**< a=ptime given */
    uint16_t ptime;                              /**< milliseconds */
    uint8_t maxptime_present;                    /**< a=maxptime given */
    uint16_t maxptime;                           /**< milliseconds */
    uint8_t direction_present;                   /**< a direction given */
    sdp_direction direction;                     /**< 1 recvonly, 2 sendonly, 3 sendrecv, 4 inactive */
    uint8_t framerate_present;                   /**< a=framerate given */
    uint16_t framerate;                          /**< frames per second; decimals are not read */
    uint8_t maxprate_present;                    /**< a=maxprate given */
    uint16_t maxprate;                           /**< packets per second; decimals are not read */
    uint8_t precond_present;                     /**< preconditions given */
    uint32_t num_preconds;                       /**< entries; generation takes at most 9 */
    sdp_precondition preconds[SDP_MAX_PRECONDS]; /**< the preconditions */
    uint8_t rtcp_fb_present;                     /**< exactly 1 when the line has feedback for all formats */
    uint8_t num_rtcp_fb;                         /**< feedback entries, at most 5 */
    sdp_rtcp_fb rtcp_fb[SDP_MAX_RTCP_FB];        /**< feedback for all formats; its texts are not written */
    uint8_t mid_present;                         /**< a=mid given */
    char mid[21];                                /**< media identification (RFC 5888) */
    uint8_t setup_present;                       /**< a=setup given */
    sdp_setup setup;                             /**< 0 active, 1 passive, 2 actpass, 3 holdconn */
    uint8_t conn_status_present;                 /**< a=connection is written in place of a=setup */
    uint32_t conn_status;                        /**< 0 new, 1 existing; not parsed */
    uint8_t msg_attr_present;     /**< message attributes given; set for every line parsed to its end */
    sdp_accept_attr accept_types; /**< a=accept-types */
    sdp_accept_attr accept_wrapped_types; /**< a=accept-wrapped-types */
    sdp_path_attr path;                   /**< a=path */
    uint8_t file_attr_present;            /**< set by parsing when there is a file selector */
    int32_t num_file_selectors;           /**< file selectors, at most 5 */
    sdp_file_selector file_selectors[SDP_MAX_FILE_SELECTORS]; /**< a=file-selector */
    char file_transfer_id[256];                               /**< a=file-transfer-id */
    sdp_file_disposition file_disposition;                    /**< a=file-disposition */
    sdp_file_date file_date;                                  /**< a=file-date */
    char file_icon[256];                                      /**< content id of a=file-icon */
    sdp_file_range file_range;                                /**< a=file-range */
    sdp_max_size_attr max_size;                               /**< a=max-size */
} sdp_media_line;

/** One SDP body. */
typedef struct sdp_container {
    uint8_t version;                  /**< generation takes 0 alone */
    uint8_t origin_present;           /**< an o= line was read; generation writes one always */
    char origin_username[256];        /**< user name of the o= line */
    uint64_t origin_session_id;       /**< session id */
    uint64_t origin_session_version;  /**< session version */
    sdp_address origin_address;       /**< address of the o= line */
    uint8_t session_name_present;     /**< 0: generation writes "-" */
    char session_name[256];           /**< s= line */
    uint8_t connection_present;       /**< a c= line of the session */
    sdp_address connection;           /**< its address */
    sdp_bandwidth bandwidth;          /**< b= lines of the session */
    uint8_t info_present;             /**< an i= line */
    char info[256];                   /**< its text */
    uint8_t time_present;             /**< a t= line */
    uint32_t start_time;              /**< start of the session, NTP seconds */
    uint32_t stop_time;               /**< end of the session, NTP seconds */
    uint8_t direction_present;        /**< a direction of the session */
    sdp_direction direction;          /**< 1 recvonly, 2 sendonly, 3 sendrecv, 4 inactive */
    uint8_t num_groups;               /**< groups, at most 5; parsing may count more than it stores */
    sdp_group groups[SDP_MAX_GROUPS]; /**< a=group lines */
    uint16_t num_mlines;              /**< media lines */
    sdp_media_line *mlines;           /**< heap array of `num_mlines` media lines, or null */
} sdp_container;

/** A caller's buffer of SDP text. */
typedef struct sdp_payload_buffer {
    char *text;        /**< the caller's characters */
    uint16_t capacity; /**< their number, terminator included */
} sdp_payload_buffer;

#endif
