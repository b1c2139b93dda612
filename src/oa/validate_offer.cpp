#include "oa/validate_offer.h"

#include "oa/first_failure.hpp"
#include "oa/mline_access.hpp"
#include "oa/payload_matching.hpp"
#include "oa/validate_address.h"
#include "oa/validate_fmtp.h"
#include "oa/validate_groups.h"
#include "oa/validate_preconditions.h"
#include "oa/validation_code.h"
#include "util/bounded_text.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

// A media line of an offer, as its checks see it.
struct offered_line {
    const sdp_container &offer;
    const sdp_media_line &mline;
    int index;
    bool groups_in_use;
    uint32_t direction;
};

uint32_t check_format_count(const offered_line &line)
{
    if (line.mline.num_formats != 0)
        return SDP_VALID;
    DAK_LOG("dak_app_oa_validate_initial_offer:Invalid                 mline-%d no formats listed  \n",
            line.index);
    return SDP_INVALID_MLINES;
}

uint32_t check_connection(const offered_line &line)
{
    if (line.mline.connection_present != 0) {
        const uint32_t result = dak_app_oa_validate_ipaddress(&line.mline.connection);
        if (result != SDP_VALID)
            DAK_LOG("dak_app_oa_validate_offer_params: Invalid IP -                for mline %d \n",
                    line.index);
        return result;
    }
    if (line.offer.connection_present != 0)
        return SDP_VALID;
    DAK_LOG("dak_app_oa_validate_offer_params:Invalid                    mline-%d no c= line  \n",
            line.index);
    return SDP_NO_CONNECTION;
}

uint32_t check_feedback(uint8_t is_present, uint32_t transport)
{
    if (is_present != 1 || transport == SDP_RTP_AVPF)
        return SDP_VALID;
    DAK_LOG("validate_offer_params:Invalid profile for rtcp-fb");
    return SDP_INVALID_FEEDBACK;
}

uint32_t check_line_feedback(const offered_line &line)
{
    return check_feedback(line.mline.rtcp_fb_present, line.mline.transport);
}

uint32_t check_events_alone(const offered_line &line)
{
    if (!is_events_alone(line.mline))
        return SDP_VALID;
    DAK_LOG("dak_app_oa_validate_offer_params: Invalid                              media formant \n");
    return SDP_INVALID_FORMAT;
}

uint32_t check_format(const offered_line &line, int index)
{
    uint32_t codec = SDP_UNKNOWN_CODEC;
    if (index >= SDP_MAX_FORMATS || !find_codec(line.mline, index, codec)) {
        DAK_LOG(
            "dak_app_oa_validate_offer_params: Invalid                                  media formant %d \n",
            index);
        return SDP_INVALID_FORMAT;
    }
    const sdp_payload_format &format = line.mline.formats[index];
    if (format.present == 1 && format.params.frame.fmtp_present == 1) {
        const uint32_t result =
            dak_app_oa_validate_fmtp(codec, line.direction, static_cast<uint32_t>(index), &line.mline);
        if (result != SDP_VALID) {
            DAK_LOG("validate_offer_params:Invalid fmtp params");
            return result;
        }
    }
    return check_feedback(format.rtcp_fb_present, line.mline.transport);
}

uint32_t check_formats(const offered_line &line)
{
    for (int i = 0; i < line.mline.num_formats; i++) {
        const uint32_t result = check_format(line, i);
        if (result != SDP_VALID)
            return result;
    }
    return SDP_VALID;
}

uint32_t check_ptime(const offered_line &line)
{
    if (line.mline.ptime_present == 0 || line.mline.ptime != 0)
        return SDP_VALID;
    DAK_LOG("dak_app_oa_validate_offer_params: Invalid                                  ptime \n");
    return SDP_ZERO_PTIME;
}

uint32_t check_preconditions(const offered_line &line)
{
    if (line.mline.precond_present == 0)
        return SDP_VALID;
    return dak_app_oa_validate_preconditions(&line.mline, line.direction);
}

uint32_t check_mid(const offered_line &line)
{
    if (line.mline.mid_present != 1) {
        if (!line.groups_in_use)
            return SDP_VALID;
        DAK_LOG("oa_validate_offer_params: Invalid mid/groups \n");
        return SDP_INVALID_MID;
    }
    for (int i = 0; i < line.index; i++) {
        if (have_same_mid(line.mline, line.offer.mlines[i])) {
            DAK_LOG("oa_validate_offer_params: Invalid mid \n");
            return SDP_INVALID_MID;
        }
    }
    return SDP_VALID;
}

uint32_t check_line(const offered_line &line)
{
    return first_failure<check_format_count, check_connection, check_line_feedback, check_events_alone,
                         check_formats, check_ptime, check_preconditions, check_mid>(line);
}

uint32_t check_lines(const sdp_container &offer, bool groups_in_use)
{
    bool is_usable = false;
    for (int i = 0; i < offer.num_mlines; i++) {
        const sdp_media_line &mline = offer.mlines[i];
        if (mline.valid != 1)
            continue;
        is_usable = true;
        if (mline.port == 0)
            continue;
        const uint32_t result =
            check_line({offer, mline, i, groups_in_use, dak_app_oa_get_chl_direction(&mline, &offer)});
        if (result != SDP_VALID)
            return result;
    }
    if (is_usable)
        return SDP_VALID;
    DAK_LOG("oa_validate_offer_params: No mlines \n");
    return SDP_INVALID_MLINES;
}

uint32_t check_group(const sdp_container &offer, int index)
{
    const sdp_group &group = offer.groups[index];
    const uint32_t result = dak_app_oa_validate_group_semantics(&offer, &group);
    if (result != SDP_VALID)
        return result;
    if (group.num_mids == 0) {
        DAK_LOG("validate_offer_params:0 mids in offer \n");
        return SDP_INVALID_GROUP;
    }
    return dak_app_oa_validate_group_mids(&offer, &group, static_cast<uint32_t>(index));
}

uint32_t check_groups(const sdp_container &offer)
{
    for (int i = 0; i < group_count(offer); i++) {
        const uint32_t result = offer.groups[i].present == 1 ? check_group(offer, i) : uint32_t{SDP_VALID};
        if (result != SDP_VALID)
            return result;
    }
    return SDP_VALID;
}

void warn_of_time(const sdp_container &offer)
{
    if (offer.time_present != 0 && (offer.start_time != 0 || offer.stop_time != 0))
        DAK_LOG("dak_app_oa_validate_offer_params: Invalid  -           time  %ld-%ld \n",
                static_cast<long>(static_cast<int32_t>(offer.start_time)),
                static_cast<long>(static_cast<int32_t>(offer.stop_time)));
}

uint32_t check_session(const sdp_container &offer)
{
    if (offer.connection_present != 0) {
        const uint32_t result = dak_app_oa_validate_ipaddress(&offer.connection);
        if (result != SDP_VALID)
            return result;
    }
    if (has_zero_bandwidth(offer)) {
        DAK_LOG("dak_app_oa_validate_offer_params: Invalid -               Bw zero bandwidth \n");
        return SDP_ZERO_BANDWIDTH;
    }
    warn_of_time(offer);
    if (offer.num_groups <= SDP_MAX_GROUPS)
        return SDP_VALID;
    DAK_LOG("validate_offer_params:Invalid no. of groups %d \n", static_cast<int>(offer.num_groups));
    return SDP_INVALID_GROUP;
}

// A payload number keeps its codec, and a media line its mid.
uint32_t check_change(const sdp_media_line &modified, const sdp_media_line &previous)
{
    uint16_t modified_format = 0;
    uint16_t previous_format = 0;
    if (dak_app_oa_find_matching_plds(&modified, &previous, &modified_format, &previous_format, 0)) {
        const sdp_payload_format &now = modified.formats[modified_format];
        const sdp_payload_format &before = previous.formats[previous_format];
        if (now.has_rtpmap != 0 && before.has_rtpmap != 0 && now.codec_id != before.codec_id)
            return SDP_INVALID_FORMAT;
    }
    if (modified.mid_present != 1 || have_same_mid(modified, previous))
        return SDP_VALID;
    DAK_LOG(
        "validate_modified_sdp:Mids in mod-offer dont         match with the prev-offer prev_tag %s mod_tag %s\n",
        terminated(previous.mid).c_str(), terminated(modified.mid).c_str());
    return SDP_INVALID_MID;
}

bool follows(uint64_t version, uint64_t previous) { return version == previous || version == previous + 1; }

} // namespace

uint32_t dak_app_oa_validate_initial_offer(const sdp_container *offer)
{
    constexpr int64_t lowest_invalid_version = INT64_C(1) << 62;
    if (offer == nullptr) {
        DAK_LOG("dak_app_oa_validate_initial_offer: null                            params\n");
        return SDP_NULL_ARGUMENT;
    }
    if (static_cast<int64_t>(offer->origin_session_version) >= lowest_invalid_version) {
        DAK_LOG(
            "dak_app_oa_validate_initial_offer: Invalid                                                    origin \n");
        return SDP_INVALID_ORIGIN;
    }
    return dak_app_oa_validate_offer_params(offer);
}

uint32_t dak_app_oa_validate_modified_sdp(const sdp_container *modified, const sdp_container *previous)
{
    if (modified == nullptr || previous == nullptr) {
        DAK_LOG("dak_app_oa_validate_modified_sdp: Null                             params  \n");
        return SDP_NULL_ARGUMENT;
    }
    const bool has_origin = modified->origin_present != 0 && previous->origin_present != 0 &&
                            follows(modified->origin_session_version, previous->origin_session_version);
    if (!has_origin || modified->num_mlines < previous->num_mlines) {
        DAK_LOG("dak_app_oa_validate_modified_sdp: Invalid                             origin  \n");
        return has_origin ? SDP_INVALID_MLINES : SDP_INVALID_ORIGIN;
    }
    const uint32_t result = dak_app_oa_validate_offer_params(modified);
    if (result != SDP_VALID)
        return result;
    if (lacks_mlines(*previous)) {
        DAK_LOG("dak_app_oa_validate_modified_sdp: Null                             params  \n");
        return SDP_NULL_ARGUMENT;
    }
    for (int i = 0; i < previous->num_mlines; i++) {
        const uint32_t change = check_change(modified->mlines[i], previous->mlines[i]);
        if (change != SDP_VALID)
            return change;
    }
    return SDP_VALID;
}

uint32_t dak_app_oa_validate_offer_params(const sdp_container *offer)
{
    if (offer == nullptr) {
        DAK_LOG("dak_app_oa_validate_offer_params: null                            params\n");
        return SDP_NULL_ARGUMENT;
    }
    uint32_t result = check_session(*offer);
    if (result != SDP_VALID)
        return result;
    if (lacks_mlines(*offer)) {
        DAK_LOG("dak_app_oa_validate_offer_params: null                            params\n");
        return SDP_NULL_ARGUMENT;
    }
    result = check_lines(*offer, uses_groups(*offer));
    return result == SDP_VALID ? check_groups(*offer) : result;
}

uint32_t dak_app_oa_get_chl_direction(const sdp_media_line *mline, const sdp_container *session)
{
    if (mline == nullptr || session == nullptr) {
        DAK_LOG("dak_app_oa_get_chl_direction: Null params");
        return 0;
    }
    uint32_t direction = SDP_SENDRECV;
    if (mline->direction_present != 0)
        direction = mline->direction;
    else if (session->direction_present != 0)
        direction = session->direction;
    return direction != 0 ? direction : uint32_t{SDP_SENDRECV};
}
