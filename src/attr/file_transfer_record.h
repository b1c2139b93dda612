/**
 * @file
 * Records of the file-transfer attributes (RFC 5547).
 */
#ifndef DAKSDP_ATTR_FILE_TRANSFER_RECORD_H
#define DAKSDP_ATTR_FILE_TRANSFER_RECORD_H

#include <stdint.h>

/** File selectors of one media section. */
#define SDP_MAX_FILE_SELECTORS 5

/** Values of `disposition`. */
enum {
    SDP_FILE_INLINE = 0,           /**< inline */
    SDP_FILE_ATTACHMENT = 1,       /**< attachment */
    SDP_FILE_RENDER = 2,           /**< render */
    SDP_FILE_OTHER_DISPOSITION = 3 /**< any other word of a received line */
};

/** A file-disposition attribute. */
typedef struct sdp_file_disposition {
    uint32_t present;     /**< 1 when the attribute is there; only the low byte counts */
    uint32_t disposition; /**< 0 inline, 1 attachment, 2 render, 3 another word */
} sdp_file_disposition;

/** The file-date attributes; an empty text means absent. */
typedef struct sdp_file_date {
    char creation[256];     /**< creation date */
    char modification[256]; /**< modification date */
    char read[256];         /**< date of the last read */
} sdp_file_date;

/** A file-range attribute. */
typedef struct sdp_file_range {
    int32_t start; /**< first octet, counted from 1 */
    int32_t stop;  /**< last octet; written when it is 1 or more */
} sdp_file_range;

/** Value of `hash_alg`. */
enum {
    SDP_FILE_HASH_SHA1 = 0 /**< SHA-1, the only algorithm that is read */
};

/** A file-selector attribute. */
typedef struct sdp_file_selector {
    char name[256];    /**< file name, or empty */
    uint32_t type;     /**< #SDP_ACCEPT_JPEG to #SDP_ACCEPT_GIF; any other value means no type */
    uint32_t size;     /**< size in octets, 0 when absent */
    uint32_t hash_alg; /**< 0 sha-1 */
    uint32_t hash_len; /**< characters of `hash`, 0 when absent */
    char hash[256];    /**< hash text behind the algorithm */
    uint8_t empty;     /**< 1 for a file-selector attribute without a value */
} sdp_file_selector;

#endif
