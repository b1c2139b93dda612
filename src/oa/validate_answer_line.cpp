// Validation of one media line of an answer.

#include "oa/validate_answer.h"

#include "oa/first_failure.hpp"
#include "oa/mline_access.hpp"
#include "oa/payload_matching.hpp"
#include "oa/validate_address.h"
#include "oa/validate_fmtp.h"
#include "oa/validate_preconditions.h"
#include "oa/validation_code.h"
#include "util/report.hpp"

using namespace dak;

namespace {

// One past the highest index: 20 is let through although parsing gives no such line; callers rely on it.
constexpr uint32_t index_limit = 21;

// An answered line beside the offered one.
struct answered_line {
    const sdp_container &answer;
    const sdp_media_line &answered;
    const sdp_media_line &offered;
    int index;
    uint32_t answer_direction;
    uint32_t offer_direction;
};

// The direction given for a line, 0 where none is: an answer has no default.
uint32_t given_direction(const sdp_media_line &mline, const sdp_container &session)
{
    if (mline.direction_present != 0)
        return mline.direction;
    return session.direction_present != 0 ? session.direction : 0;
}

uint32_t check_media_type(const answered_line &line)
{
    if (line.answered.media_type == line.offered.media_type)
        return SDP_VALID;
    DAK_LOG("dak_app_oa_validate_ans_mline: Invalid                           mediatype \n");
    return SDP_INVALID_MEDIA_TYPE;
}

uint32_t check_connection(const answered_line &line)
{
    if (line.answered.connection_present != 0) {
        const uint32_t result = dak_app_oa_validate_ipaddress(&line.answered.connection);
        if (result != SDP_VALID)
            DAK_LOG("dak_app_oa_validate_ans_mline: Invalid IP for                           for mline %d \n",
                    line.index);
        return result;
    }
    if (line.answer.connection_present != 0)
        return SDP_VALID;
    DAK_LOG("dak_app_oa_validate_initial_offer:Invalid mline-%d                   no c= line  \n",
            line.index);
    return SDP_NO_CONNECTION;
}

bool is_allowed(uint32_t offer_direction, uint32_t answer_direction)
{
    switch (offer_direction) {
    case SDP_RECVONLY:
        return answer_direction == SDP_INACTIVE || answer_direction == SDP_SENDONLY;
    case SDP_SENDONLY:
        return answer_direction == SDP_INACTIVE || answer_direction == SDP_RECVONLY;
    case SDP_INACTIVE:
        return answer_direction == SDP_INACTIVE;
    default:
        return true;
    }
}

uint32_t check_direction(const answered_line &line)
{
    if (is_allowed(line.offer_direction, line.answer_direction))
        return SDP_VALID;
    DAK_LOG("dak_app_oa_validate_ans_mline: Invalid                             direction  \n");
    return SDP_INVALID_DIRECTION;
}

uint32_t check_events_alone(const answered_line &line)
{
    if (!is_events_alone(line.answered))
        return SDP_VALID;
    DAK_LOG("validate_ans_mline: only DTMF not supported \n");
    return SDP_INVALID_FORMAT;
}

uint32_t check_pair(const answered_line &line, uint16_t answer_format, uint16_t offer_format)
{
    uint32_t codec = SDP_UNKNOWN_CODEC;
    if (!find_codec(line.answered, answer_format, codec)) {
        DAK_LOG("dak_app_oa_validate_ans_mline: Invalid                                media formant %d \n",
                static_cast<int>(answer_format));
        return SDP_INVALID_FORMAT;
    }
    uint32_t result = dak_app_oa_validate_fmtp(codec, line.answer_direction, answer_format, &line.answered);
    if (result == SDP_VALID)
        result = dak_app_oa_validate_ans_fmtp(&line.answered, &line.offered, codec, line.answer_direction,
                                              line.offer_direction, answer_format, offer_format);
    if (result != SDP_VALID)
        DAK_LOG("validate_ans_mline:Invalid fmtp params fmt %ld",
                static_cast<long>(static_cast<int32_t>(line.answered.payload_numbers[answer_format])));
    return result;
}

// Matches the formats by codec and checks every pair; then the feedback of the first matched one.
uint32_t check_formats(const answered_line &line)
{
    uint16_t first = 0;
    uint16_t first_offered = 0;
    if (!dak_app_oa_find_matching_plds(&line.answered, &line.offered, &first, &first_offered, 1)) {
        DAK_LOG("dak_app_oa_validate_ans_mline: Invalid                           formats  \n");
        return SDP_INVALID_FORMAT;
    }
    uint16_t answer_formats[SDP_MAX_MATCHES];
    uint16_t offer_formats[SDP_MAX_MATCHES];
    const uint8_t count =
        dak_app_oa_find_all_matching_plds(&line.answered, &line.offered, answer_formats, offer_formats, 1);
    if (count == 0) {
        DAK_LOG("dak_app_oa_validate_ans_mline:No ans fmt matched ");
        return SDP_INVALID_FORMAT;
    }
    for (uint8_t i = 0; i < count; i++) {
        const uint32_t result = check_pair(line, answer_formats[i], offer_formats[i]);
        if (result != SDP_VALID)
            return result;
    }
    if (line.answered.formats[first].rtcp_fb_present != 1 || line.answered.transport == SDP_RTP_AVPF)
        return SDP_VALID;
    DAK_LOG("validate_ans_mline: Invalid profile for rtcp-fb\n");
    return SDP_INVALID_FEEDBACK;
}

uint32_t check_ptime(const answered_line &line)
{
    if (line.answered.ptime_present == 0 || line.answered.ptime != 0)
        return SDP_VALID;
    DAK_LOG("dak_app_oa_validate_ans_mline: Invalid                             ptime  \n");
    return SDP_ZERO_PTIME;
}

bool has_preconditions(const sdp_media_line &mline)
{
    return mline.precond_present != 0 && mline.num_preconds != 0;
}

uint32_t check_preconditions(const answered_line &line)
{
    if (!has_preconditions(line.answered) || !has_preconditions(line.offered))
        return SDP_VALID;
    return dak_app_oa_validate_ans_pcd(line.answered.num_preconds, line.answered.preconds,
                                       line.offered.num_preconds, line.offered.preconds,
                                       line.offer_direction);
}

bool can_be_compared(const sdp_media_line *answer, const sdp_media_line *offer, uint32_t answer_format,
                     uint32_t offer_format, const char *null_params)
{
    if (answer != nullptr && offer != nullptr && answer_format < SDP_MAX_FORMATS &&
        offer_format < SDP_MAX_FORMATS)
        return true;
    log_text(null_params);
    return false;
}

// Whether every answered event was offered.
uint32_t compare_events(const sdp_tel_event_params &answered, const sdp_tel_event_params &offered)
{
    uint16_t answer_events[SDP_MAX_EVENTS];
    uint16_t offer_events[SDP_MAX_EVENTS];
    uint8_t answer_count = 0;
    uint8_t offer_count = 0;
    if (!dak_app_oa_form_dtmf_evt_list(&offered, offer_events, &offer_count) ||
        !dak_app_oa_form_dtmf_evt_list(&answered, answer_events, &answer_count)) {
        DAK_LOG("DTMF events error");
        return SDP_INVALID_FORMAT;
    }
    if (answer_count == 0) {
        DAK_LOG("No events supported in answer");
        return SDP_VALID;
    }
    for (uint8_t i = 0; i < answer_count; i++) {
        bool is_offered = false;
        for (uint8_t k = 0; k < offer_count; k++)
            is_offered = is_offered || offer_events[k] == answer_events[i];
        if (!is_offered) {
            DAK_LOG("Invalid DTMF events");
            return SDP_INVALID_FORMAT;
        }
    }
    return SDP_VALID;
}

} // namespace

uint32_t dak_app_oa_validate_ans_mline(const sdp_container *answer, const sdp_container *offer,
                                       uint32_t mline_index)
{
    const sdp_media_line *answered = answer != nullptr ? find_mline(*answer, mline_index) : nullptr;
    const sdp_media_line *offered = offer != nullptr ? find_mline(*offer, mline_index) : nullptr;
    if (mline_index >= index_limit || answered == nullptr || offered == nullptr) {
        DAK_LOG("dak_app_oa_validate_ans_mline: Null params \n");
        return SDP_NULL_ARGUMENT;
    }
    const bool is_rejected = answered->port == 0;
    if (answered->num_formats == 0 || (!is_rejected && answered->num_formats > SDP_MAX_FORMATS)) {
        DAK_LOG(
            "dak_app_oa_validate_ans_mline: Invalid                             formants - No media formants \n");
        return SDP_INVALID_FORMAT;
    }
    if (is_rejected)
        return SDP_VALID;
    const answered_line line = {*answer,
                                *answered,
                                *offered,
                                static_cast<int>(mline_index),
                                given_direction(*answered, *answer),
                                given_direction(*offered, *offer)};
    return first_failure<check_media_type, check_connection, check_direction, check_events_alone,
                         check_formats, check_ptime, check_preconditions>(line);
}

uint32_t dak_app_oa_validate_ans_fmtp(const sdp_media_line *answer, const sdp_media_line *offer,
                                      uint32_t codec, uint32_t answer_direction, uint32_t offer_direction,
                                      uint32_t answer_format, uint32_t offer_format)
{
    constexpr uint32_t telephone_event = 105;
    constexpr uint32_t other_telephone_event = 112;
    if (!can_be_compared(answer, offer, answer_format, offer_format, "dak_app_oa_validate_fmtp: Null params"))
        return SDP_NULL_ARGUMENT;
    if (codec != telephone_event && codec != other_telephone_event)
        return SDP_VALID;
    return dak_app_oa_validate_dtmf_ans_fmtp(answer, offer, answer_direction, offer_direction, answer_format,
                                             offer_format);
}

uint32_t dak_app_oa_validate_dtmf_ans_fmtp(const sdp_media_line *answer, const sdp_media_line *offer,
                                           uint32_t answer_direction, uint32_t offer_direction,
                                           uint32_t answer_format, uint32_t offer_format)
{
    if (!can_be_compared(answer, offer, answer_format, offer_format,
                         "dak_app_oa_validate_dtmf_fmtp: Null params"))
        return SDP_NULL_ARGUMENT;
    const sdp_tel_event_params &answered = answer->formats[answer_format].params.tel_event;
    const sdp_tel_event_params &offered = offer->formats[offer_format].params.tel_event;
    if (answered.tel_event_valid != 1) {
        DAK_LOG("No DTMF recvd in ans");
        return SDP_VALID;
    }
    const bool is_sent = offer_direction == SDP_RECVONLY && answer_direction == SDP_SENDONLY;
    const bool is_exchanged = offer_direction == SDP_SENDRECV && answer_direction == SDP_SENDRECV;
    if ((!is_sent && !is_exchanged) || answered.events_present != 1 || offered.events_present != 1)
        return SDP_VALID;
    return compare_events(answered, offered);
}
