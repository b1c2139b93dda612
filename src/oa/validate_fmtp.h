/**
 * @file
 * Validation of codec parameters against the direction of their stream.
 *
 * A check whose findings are warnings logs them and calls the parameters valid. A block that decoding has not
 * marked is not looked at: it is valid, with a log line.
 */
#ifndef DAKSDP_OA_VALIDATE_FMTP_H
#define DAKSDP_OA_VALIDATE_FMTP_H

#include "oa/sdp_container.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Runs the check of a codec; codecs without one are valid.
 * @param codec key of the codec in the codec table
 * @param direction effective direction of the stream, 1 to 4
 * @param format_index position of the format, 0 to 19
 * @param mline the media line
 * @return 0; 15, with a log line, for null or another position; else the result of the check
 */
uint32_t dak_app_oa_validate_fmtp(uint32_t codec, uint32_t direction, uint32_t format_index,
                                  const sdp_media_line *mline);

/**
 * Check of EVRCB; its findings are warnings.
 * @param direction effective direction of the stream, 1 to 4
 * @param format_index position of the format, 0 to 19
 * @param mline the media line
 * @return 0; 15, with a log line, for null or another position
 */
uint32_t dak_app_oa_validate_evrcb_fmtp(uint32_t direction, uint32_t format_index,
                                        const sdp_media_line *mline);
/** Check of EVRCB0; its findings are warnings. @copydetails dak_app_oa_validate_evrcb_fmtp */
uint32_t dak_app_oa_validate_evrcb0_fmtp(uint32_t direction, uint32_t format_index,
                                         const sdp_media_line *mline);
/** Check of EVRCWB; its findings are warnings. @copydetails dak_app_oa_validate_evrcb_fmtp */
uint32_t dak_app_oa_validate_evrcwb_fmtp(uint32_t direction, uint32_t format_index,
                                         const sdp_media_line *mline);
/** Check of EVRCWB0; its findings are warnings. @copydetails dak_app_oa_validate_evrcb_fmtp */
uint32_t dak_app_oa_validate_evrcwb0_fmtp(uint32_t direction, uint32_t format_index,
                                          const sdp_media_line *mline);
/**
 * Check of EVRCWB1: a fixed rate excludes the sendmodes 4 and 7. Other findings are warnings.
 * @param direction effective direction of the stream, 1 to 4
 * @param format_index position of the format, 0 to 19
 * @param mline the media line
 * @return 0; 11, with a log line, for both together; 15, with a log line, for null or another position
 */
uint32_t dak_app_oa_validate_evrcwb1_fmtp(uint32_t direction, uint32_t format_index,
                                          const sdp_media_line *mline);
/**
 * Check of telephone-event: a stream that receives needs an events list, and ranges must ascend.
 * @param direction effective direction of the stream, 1 to 4
 * @param format_index position of the format, 0 to 19
 * @param mline the media line
 * @return 0; 11, with a log line, for anything else; 15, with a log line, for null or another position
 */
uint32_t dak_app_oa_validate_dtmf_fmtp(uint32_t direction, uint32_t format_index,
                                       const sdp_media_line *mline);

/** Event numbers that dak_app_oa_form_dtmf_evt_list() writes at most. */
#define SDP_MAX_EVENTS 255

/**
 * Expands an events list into single events. It stops behind the entry that brings it to 16 events.
 * @param block the block
 * @param[out] events room for 255 event numbers
 * @param[out] num_events events written, at most 255
 * @return 1; 0, with a log line, for null
 */
int dak_app_oa_form_dtmf_evt_list(const sdp_tel_event_params *block, uint16_t *events, uint8_t *num_events);

#ifdef __cplusplus
}
#endif

#endif
