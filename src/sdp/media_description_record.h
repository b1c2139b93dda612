/**
 * @file
 * The records of a media section and of its payload formats.
 */
#ifndef DAKSDP_SDP_MEDIA_DESCRIPTION_RECORD_H
#define DAKSDP_SDP_MEDIA_DESCRIPTION_RECORD_H

#include "attr/file_transfer_record.h"
#include "attr/message_session_record.h"
#include "attr/rtcp_fb_record.h"
#include "codec/media_info.h"

#include <stdint.h>

struct session_value;

/** Payload formats of one media section. */
#define SDP_MAX_PAYLOADS 20
/** Typed lines of one media section: one i=, one c=, four b=, one k=. */
#define SDP_MEDIA_VALUE_SLOTS 7
/** Precondition lines of one media section. */
#define SDP_MAX_PRECONDITIONS 10

/** Values of `address_type`. */
enum {
    SDP_ADDRESS_IP4 = 0,  /**< "IP4" */
    SDP_ADDRESS_IP6 = 1,  /**< "IP6" */
    SDP_ADDRESS_OTHER = 2 /**< another word */
};

/** The address of an a=rtcp line (RFC 3605). */
typedef struct rtcp_address_info {
    uint32_t valid;         /**< 1 when a whole address was read */
    uint32_t address_type;  /**< 0 "IP4", 1 "IP6", 2 another word */
    char network_type[256]; /**< "IN" */
    char address[256];      /**< address text */
} rtcp_address_info;

/** One payload format. */
typedef struct media_codec {
    int32_t rtpmap_valid;    /**< 1 when the payload has an a=rtpmap line */
    char mime_type[200];     /**< encoding name, or empty */
    uint32_t sample_rate;    /**< clock rate in Hz */
    uint32_t encoding_param; /**< encoding parameter (channels), 0 when absent */
    union {
        uint32_t rtcp_fb_valid; /**< 1 when the payload has a=rtcp-fb lines; the list's `fb_present` */
        rtcp_fb_list rtcp_fb;   /**< feedback of this payload */
    };
    media_info info; /**< fmtp parameters */
} media_codec;

/** One media section. */
typedef struct media_description {
    char media_type[200];                      /**< "audio", "video", "message", ... */
    char transport_profile[200];               /**< "RTP/AVP", "TCP/MSRP", ... */
    uint32_t media_port;                       /**< port of the m= line */
    uint32_t rtcp_port;                        /**< port of the a=rtcp line, 0 when absent */
    uint32_t number_of_media_port;             /**< count behind "/", 1 when a received line has none */
    rtcp_address_info rtcp_address;            /**< address of the a=rtcp line */
    int32_t payload_numbers[SDP_MAX_PAYLOADS]; /**< payload type numbers, in line order */
    int32_t number_of_payload;                 /**< payload numbers in use */
    char media_format[200];                    /**< last format that is no number, such as "*" */
    media_codec *codecs;                       /**< one per payload number; owned; null for none */
    char media_value_tags[SDP_MEDIA_VALUE_SLOTS][200];        /**< "i=", "c=", four times "b=", "k=" */
    char media_values[SDP_MEDIA_VALUE_SLOTS][200];            /**< value of each of these lines */
    uint32_t media_value_present[SDP_MEDIA_VALUE_SLOTS];      /**< 1 once the value was stored */
    struct session_value *attributes;                         /**< generic attributes, in order; owned */
    uint32_t pcd_present;                                     /**< 1 once a precondition was stored */
    int32_t pcd_count;                                        /**< preconditions stored */
    uint32_t pcd_type[SDP_MAX_PRECONDITIONS];                 /**< #pcd_attr_type values */
    char pcd_value[SDP_MAX_PRECONDITIONS][200];               /**< text behind the attribute's colon */
    rtcp_fb_list rtcp_fb;                                     /**< feedback for all payload formats */
    sdp_accept_attr accept_types;                             /**< a=accept-types */
    sdp_accept_attr accept_wrapped_types;                     /**< a=accept-wrapped-types */
    sdp_path_attr path;                                       /**< a=path */
    sdp_max_size_attr max_size;                               /**< a=max-size */
    char file_transfer_id[256];                               /**< a=file-transfer-id, or empty */
    sdp_file_disposition file_disposition;                    /**< a=file-disposition */
    sdp_file_date file_date;                                  /**< a=file-date */
    char file_icon[256];                                      /**< content id of a=file-icon, or empty */
    sdp_file_range file_range;                                /**< a=file-range */
    int32_t num_file_selectors;                               /**< file selectors stored */
    sdp_file_selector file_selectors[SDP_MAX_FILE_SELECTORS]; /**< a=file-selector */
    int32_t codec_capacity;                                   /**< private: elements of `codecs` */
    struct session_value *attributes_tail;                    /**< private: last of `attributes` */
    struct session_value *attribute_block;                    /**< private: those allocated together; owned */
    uint32_t attribute_block_size;                            /**< private: elements of `attribute_block` */
    uint32_t attribute_block_used;                            /**< private: those that are linked */
} media_description;

#endif
