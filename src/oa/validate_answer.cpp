#include "oa/validate_answer.h"

#include "oa/first_failure.hpp"
#include "oa/mline_access.hpp"
#include "oa/validate_address.h"
#include "oa/validation_code.h"
#include "util/report.hpp"

using namespace dak;

namespace {

uint32_t fail_as_null()
{
    DAK_LOG("dak_app_oa_validate_answer: Null params \n");
    return SDP_NULL_ARGUMENT;
}

uint32_t check_time(const sdp_container &answer, const sdp_container &offer)
{
    if (offer.time_present == 0)
        return SDP_VALID;
    const bool is_missing = answer.time_present == 0;
    if (is_missing || answer.start_time != offer.start_time || answer.stop_time != offer.stop_time)
        DAK_LOG("dak_app_oa_validate_answer: Invalid time \n");
    return is_missing ? SDP_NO_TIME : SDP_VALID; // other times are a warning
}

uint32_t check_origin_and_connection(const sdp_container &answer, const sdp_container &offer)
{
    if (answer.origin_present == 0 || offer.origin_present == 0) {
        DAK_LOG("dak_app_oa_validate_answer: Invalid origin \n");
        return SDP_INVALID_ORIGIN;
    }
    if (answer.connection_present == 0)
        return SDP_VALID;
    const uint32_t result = dak_app_oa_validate_ipaddress(&answer.connection);
    if (result != SDP_VALID)
        DAK_LOG("dak_app_oa_validate_answer: No c= line \n");
    return result;
}

uint32_t check_bandwidth_and_count(const sdp_container &answer, const sdp_container &offer)
{
    if (has_zero_bandwidth(answer)) {
        DAK_LOG("dak_app_oa_validate_answer: Invalid Bw -                zero bandwidth \n");
        return SDP_ZERO_BANDWIDTH;
    }
    if (answer.num_mlines == offer.num_mlines)
        return SDP_VALID;
    DAK_LOG("dak_app_oa_validate_answer: Invalid mlines %d \n", static_cast<int>(answer.num_mlines));
    return SDP_INVALID_MLINES;
}

uint32_t check_group_limit(const sdp_container &answer, const sdp_container &)
{
    if (answer.num_groups <= SDP_MAX_GROUPS)
        return SDP_VALID;
    DAK_LOG("validate_answer_params:Invalid no. of groups %d\n", static_cast<int>(answer.num_groups));
    return SDP_INVALID_GROUP;
}

uint32_t check_line(const sdp_container &answer, const sdp_container &offer, int index, bool groups_in_use)
{
    const sdp_media_line &answered = answer.mlines[index];
    const sdp_media_line &offered = offer.mlines[index];
    const uint32_t result = dak_app_oa_validate_ans_mline(&answer, &offer, static_cast<uint32_t>(index));
    if (result != SDP_VALID) {
        DAK_LOG("dak_app_oa_validate_answer: Invalid mline %d\n", index);
        return result;
    }
    if (answered.rtcp_fb_present == 1 && answered.transport != SDP_RTP_AVPF) {
        DAK_LOG("validate_answer: Invalid profile for rtcp-fb %d\n", static_cast<int>(answered.transport));
        return SDP_INVALID_FEEDBACK;
    }
    if (groups_in_use && offered.mid_present == 1 &&
        (answered.mid_present != 1 || !have_same_mid(answered, offered)))
        return SDP_INVALID_MID;
    return SDP_VALID;
}

// Checks the lines that are not rejected, and tells whether there is one.
uint32_t check_lines(const sdp_container &answer, const sdp_container &offer, bool groups_in_use,
                     bool &is_accepted)
{
    is_accepted = false;
    for (int i = 0; i < answer.num_mlines; i++) {
        if (answer.mlines[i].port == 0)
            continue;
        if (lacks_mlines(offer))
            return fail_as_null();
        const uint32_t result = check_line(answer, offer, i, groups_in_use);
        if (result != SDP_VALID)
            return result;
        is_accepted = true;
    }
    return SDP_VALID;
}

// Counts the media lines of an answered group that are accepted and stand in the offered group. Fails for one
// that the answered group lists twice.
uint32_t count_offered(const sdp_container &answer, int group_index, const sdp_group &offered, int &count)
{
    const sdp_group &answered = answer.groups[group_index];
    count = 0;
    for (int i = 0; i < mid_count(answered); i++) {
        const uint8_t index = answered.mline_index[i];
        if (lists_mline(answered, i, index)) {
            DAK_LOG("repeated mids %d in group %d \n", static_cast<int>(index), group_index);
            return SDP_INVALID_GROUP;
        }
        const sdp_media_line *mline = find_mline(answer, index);
        count += mline != nullptr && mline->port != 0 && lists_mline(offered, mid_count(offered), index);
    }
    return SDP_VALID;
}

// Looks for an offered group that has all of an answered group's media lines. A group without any is found
// when the group before it was.
uint32_t find_group(const sdp_container &answer, const sdp_container &offer, int group_index, bool &is_found)
{
    const sdp_group &answered = answer.groups[group_index];
    if (answered.num_mids != 0)
        is_found = false;
    for (int i = 0; i < group_count(offer); i++) {
        const sdp_group &offered = offer.groups[i];
        if (offered.present != 1 || offered.semantics != answered.semantics)
            continue;
        int count = 0;
        const uint32_t result = count_offered(answer, group_index, offered, count);
        if (result != SDP_VALID)
            return result;
        if (answered.num_mids != 0 && count == answered.num_mids) {
            is_found = true;
            break;
        }
    }
    if (is_found)
        return SDP_VALID;
    DAK_LOG("validate_answer:group %dnot found in offer \n", group_index);
    return SDP_INVALID_GROUP;
}

uint32_t check_groups(const sdp_container &answer, const sdp_container &offer)
{
    bool is_found = false;
    if (offer.num_groups < answer.num_groups) {
        DAK_LOG("no.of grps dont match offer_grps %d ans_grps %d\n", static_cast<int>(offer.num_groups),
                static_cast<int>(answer.num_groups));
        return SDP_INVALID_GROUP;
    }
    for (int i = 0; i < group_count(answer); i++) {
        if (answer.groups[i].present != 1)
            continue;
        const uint32_t result = find_group(answer, offer, i, is_found);
        if (result != SDP_VALID)
            return result;
    }
    return SDP_VALID;
}

} // namespace

uint32_t dak_app_oa_validate_answer(const sdp_container *answer, const sdp_container *offer)
{
    if (answer == nullptr || offer == nullptr)
        return fail_as_null();
    uint32_t result =
        first_failure<check_origin_and_connection, check_bandwidth_and_count, check_time, check_group_limit>(
            *answer, *offer);
    if (result != SDP_VALID)
        return result;
    if (lacks_mlines(*answer))
        return fail_as_null();
    bool is_accepted = false;
    result = check_lines(*answer, *offer, uses_groups(*answer), is_accepted);
    if (result == SDP_VALID)
        result = check_groups(*answer, *offer);
    if (result != SDP_VALID || is_accepted)
        return result;
    DAK_LOG("dak_app_oa_validate_answer: All mlines                                rejected \n");
    return SDP_INVALID_MLINES;
}
