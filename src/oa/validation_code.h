/**
 * @file
 * Result codes of validation. The numbers overlap with those of #SDP_OA_SUCCESS and its fellows; the meanings
 * differ.
 */
#ifndef DAKSDP_OA_VALIDATION_CODE_H
#define DAKSDP_OA_VALIDATION_CODE_H

/** What validation found. */
enum {
    SDP_VALID = 0,              /**< valid */
    SDP_NO_CONNECTION = 1,      /**< a media line without c= line in a body without a session c= line */
    SDP_INVALID_ADDRESS = 2,    /**< network type, address type or IPv4 text of a connection */
    SDP_ZERO_BANDWIDTH = 3,     /**< session bandwidth with a zero value in its first entry */
    SDP_INVALID_ORIGIN = 4,     /**< origin missing, or its version not allowed */
    SDP_INVALID_MLINES = 5,     /**< no usable media line, one without formats, or a wrong count of them */
    SDP_NO_TIME = 6,            /**< the offer has a time line, the answer none */
    SDP_INVALID_GROUP = 7,      /**< count, semantics, mids, ports or addresses of a group */
    SDP_INVALID_MID = 8,        /**< mid missing where groups are used, repeated, or changed */
    SDP_INVALID_MEDIA_TYPE = 9, /**< media type differs from the offer's */
    SDP_INVALID_DIRECTION = 10, /**< direction not allowed by the offer's */
    SDP_INVALID_FORMAT = 11,    /**< media format or its parameters */
    SDP_ZERO_PTIME = 12,        /**< ptime of 0 */
    SDP_INVALID_FEEDBACK = 13,  /**< RTCP feedback on another transport than RTP/AVPF */
    SDP_INVALID_PRECONDITIONS = 14, /**< precondition negotiation */
    SDP_NULL_ARGUMENT = 15          /**< null, or an index or a list that cannot be read */
};

#endif
