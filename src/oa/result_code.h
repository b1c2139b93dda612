/**
 * @file
 * Result codes of the offer/answer layer.
 */
#ifndef DAKSDP_OA_RESULT_CODE_H
#define DAKSDP_OA_RESULT_CODE_H

/**
 * Results of generation, parsing, codec translation and the container utilities. Each function's text says
 * which of them it gives and when; some give a code in a sense of their own.
 */
enum {
    SDP_OA_SUCCESS = 0,         /**< success */
    SDP_OA_TOO_LONG = 1,        /**< text does not fit a fixed buffer */
    SDP_OA_NO_MEMORY = 2,       /**< memory ran out */
    SDP_OA_BAD_PARAMETERS = 3,  /**< null pointer, or an object of the lower layer is missing */
    SDP_OA_INVALID_CONTENT = 4, /**< bad value, count over its limit, or a refusal of the lower layer */
    SDP_OA_MISSING_TOKEN = 5,   /**< a line lacks a required token */
    SDP_OA_UNUSABLE = 6,        /**< the text, a media description or a codec parameter is unusable */
    SDP_OA_NO_RTPMAP = 7        /**< a dynamic payload number without a=rtpmap line; a parameter not taken */
};

#endif
