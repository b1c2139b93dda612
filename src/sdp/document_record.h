/**
 * @file
 * The records of a context and of its documents.
 */
#ifndef DAKSDP_SDP_DOCUMENT_RECORD_H
#define DAKSDP_SDP_DOCUMENT_RECORD_H

#include <stdint.h>

typedef struct media_description media_description;

/** Session-line types: v, o, s, i, u, e, p, c, b, t, r, z, k, a, in the order in which they are written. */
#define SDP_SESSION_SLOTS 14
/** Media descriptions of one document. */
#define SDP_MAX_MEDIA_DESCRIPTIONS 30
/** Characters of SDP text that one context can write, without the terminator. */
#define SDP_TEXT_CAPACITY 3584

/** Document selectors. */
enum {
    SDP_ENCODER_DOCUMENT = 0, /**< the document that dak_sdp_encode() writes */
    SDP_PARSER_DOCUMENT = 1   /**< the document that sdp_parse() fills */
};

/** A further line of a session-line type, or a generic attribute of a media section. */
typedef struct session_value {
    char text[200];             /**< the value, terminated */
    struct session_value *next; /**< the next of its kind, or null */
} session_value;

/** One document. */
typedef struct sdp_info_container {
    char type_tags[SDP_SESSION_SLOTS][200];         /**< line types with "=", in slot order */
    char values[SDP_SESSION_SLOTS][200];            /**< first value of each type */
    uint32_t value_present[SDP_SESSION_SLOTS];      /**< 1 once the first value was stored */
    session_value *extra_values[SDP_SESSION_SLOTS]; /**< second and later values, in order */
    media_description *media_descriptions[SDP_MAX_MEDIA_DESCRIPTIONS]; /**< media sections; owned */
    session_value *extra_tail[SDP_SESSION_SLOTS];                      /**< private: last of `extra_values` */
} sdp_info_container;

/** The text that encoding writes. */
typedef struct sdp_text_buffer {
    char text[SDP_TEXT_CAPACITY + 1]; /**< SDP text, terminated */
    uint32_t length;                  /**< characters in `text` */
} sdp_text_buffer;

/** A context: one document to encode, one that was parsed, and the encoder's text. */
typedef struct sdp_lib_context {
    sdp_info_container *encoder_document; /**< written by the setters, read by dak_sdp_encode() */
    sdp_info_container *parser_document;  /**< filled by sdp_parse() */
    sdp_text_buffer *text_buffer;         /**< only grows: one context serves one encoding */
} sdp_lib_context;

#endif
