/**
 * @file
 * RTCP feedback records (RFC 4585, RFC 5104).
 */
#ifndef DAKSDP_ATTR_RTCP_FB_RECORD_H
#define DAKSDP_ATTR_RTCP_FB_RECORD_H

#include <stdint.h>

/** Entries of one feedback list. */
#define RTCP_FB_MAX_ENTRIES 5

/** Values of `fb_type`. */
typedef enum rtcp_fb_type {
    RTCP_FB_NACK = 1,       /**< negative acknowledgement */
    RTCP_FB_CCM = 2,        /**< codec control message */
    RTCP_FB_UNSUPPORTED = 4 /**< placeholder for a rejected line or call */
} rtcp_fb_type;

/** Values of `nack_subtype`. */
enum {
    RTCP_FB_NACK_PLAIN = 0, /**< "nack", lost packets */
    RTCP_FB_NACK_PLI = 1    /**< "nack pli", picture loss indication */
};
/** Values of `ccm_subtype`. */
enum {
    RTCP_FB_CCM_FIR = 0,  /**< "ccm fir", full intra request */
    RTCP_FB_CCM_TMMBR = 1 /**< "ccm tmmbr", temporary maximum bit rate request */
};

/** Type and subtype of an entry, as the type getters fill it: its first three words. */
typedef struct rtcp_fb_kind {
    uint32_t fb_type;     /**< an #rtcp_fb_type */
    uint32_t ccm_subtype; /**< 0 full intra request, 1 temporary maximum bit rate request; for #RTCP_FB_CCM */
    uint32_t nack_subtype; /**< 0 plain, 1 picture loss indication; for #RTCP_FB_NACK */
} rtcp_fb_kind;

/** One feedback capability. */
typedef struct rtcp_fb_entry {
    uint32_t fb_type;      /**< an #rtcp_fb_type */
    uint32_t ccm_subtype;  /**< as in #rtcp_fb_kind */
    uint32_t nack_subtype; /**< as in #rtcp_fb_kind */
    char fb_param[256];    /**< text behind the recognised words of a received line */
} rtcp_fb_entry;

/** The feedback capabilities of a media section, or of one payload format. */
typedef struct rtcp_fb_list {
    uint32_t fb_present;                           /**< 1 once an entry was stored */
    uint32_t fb_count;                             /**< entries in use, 0 to 5 */
    rtcp_fb_entry fb_entries[RTCP_FB_MAX_ENTRIES]; /**< the entries, in line order */
} rtcp_fb_list;

#endif
