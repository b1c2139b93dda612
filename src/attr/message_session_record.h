/**
 * @file
 * Records of the message-session attributes (RFC 4975).
 */
#ifndef DAKSDP_ATTR_MESSAGE_SESSION_RECORD_H
#define DAKSDP_ATTR_MESSAGE_SESSION_RECORD_H

#include <stdint.h>

/** Content types of one accept record. */
#define SDP_ACCEPT_MAX_TYPES 5

/** Content types. */
typedef enum sdp_accept_type {
    SDP_ACCEPT_TEXT_PLAIN = 0,  /**< text/plain */
    SDP_ACCEPT_CPIM = 1,        /**< message/cpim */
    SDP_ACCEPT_ISCOMPOSING = 2, /**< application/im-iscomposing+xml */
    SDP_ACCEPT_IMDN = 3,        /**< message/imdn+xml; accept-types writes application/imdn+xml */
    SDP_ACCEPT_TEXT_HTML = 4,   /**< text/html */
    SDP_ACCEPT_JPEG = 5,        /**< image/jpeg */
    SDP_ACCEPT_PNG = 6,         /**< image/png */
    SDP_ACCEPT_BMP = 7,         /**< image/bmp */
    SDP_ACCEPT_GIF = 8,         /**< image/gif */
    SDP_ACCEPT_ANY = 9,         /**< any type, "*" */
    SDP_ACCEPT_NONE = 10        /**< a place that no type of the line filled */
} sdp_accept_type;

/** An accept-types or accept-wrapped-types attribute. */
typedef struct sdp_accept_attr {
    uint32_t present;                     /**< 1 when the attribute is there; only the low byte counts */
    uint32_t kind;                        /**< 0 when read; for the caller's use */
    uint32_t count;                       /**< types in use; only the low 16 bits count */
    uint32_t types[SDP_ACCEPT_MAX_TYPES]; /**< #sdp_accept_type values */
} sdp_accept_attr;

/** Values of `scheme`. */
enum {
    SDP_PATH_MSRP = 0, /**< "msrp", over TCP */
    SDP_PATH_MSRPS = 1 /**< "msrps", over TLS */
};

/** A path attribute of one MSRP URI. */
typedef struct sdp_path_attr {
    uint32_t present;      /**< 1 when the attribute is there */
    uint32_t scheme;       /**< 0 "msrp", 1 "msrps" */
    char user[256];        /**< user part in front of "@", or empty */
    char host[256];        /**< host without brackets */
    uint32_t host_is_ipv6; /**< 1 when the host stands in brackets */
    uint32_t port;         /**< port, 0 when absent */
    char session_id[256];  /**< path segment behind the authority */
    char transport[256];   /**< text behind ";" */
} sdp_path_attr;

/** A max-size attribute. */
typedef struct sdp_max_size_attr {
    uint32_t present;  /**< 1 when the attribute is there; only the low byte counts */
    uint32_t max_size; /**< largest message, in octets */
} sdp_max_size_attr;

#endif
