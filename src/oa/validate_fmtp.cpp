#include "oa/validate_fmtp.h"

#include "oa/validation_code.h"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr uint32_t evrcwb_modes = 145;             // modes 0, 4 and 7
constexpr uint32_t modes_without_fixed_rate = 144; // modes 4 and 7
constexpr int enough_events = 16;

// The log texts of one codec's check.
struct check_texts {
    const char *null_params;
    const char *no_config;
    const char *invalid_sendmode; // with one %d; null where every mode is good
    const char *invalid_mode_set;
};

constexpr check_texts evrcb_texts = {"dak_app_oa_validate_evrcb_fmtp: Null params", " No EVRCB config ",
                                     nullptr, nullptr};
constexpr check_texts evrcb0_texts = {"dak_app_oa_validate_evrcb0_fmtp: Null params", " No EVRCB0 config ",
                                      nullptr, nullptr};
constexpr check_texts evrcwb_texts = {"dak_app_oa_validate_evrcwb_fmtp: Null params", " No EVRCWB config ",
                                      " Invalid sendmode for EVRCWB %d ",
                                      " Invalid modes for mode-set-recv for EVRCWB"};
constexpr check_texts evrcwb0_texts = {"dak_app_oa_validate_evrcwb0_fmtp: Null params", " No EVRCWB0 config ",
                                       " Invalid sendmode for EVRCWB0 %d ",
                                       " Invalid modes for mode-set-recv for EVRCWB0"};
constexpr check_texts evrcwb1_texts = {"dak_app_oa_validate_evrcwb1_fmtp: Null params", " No EVRCWB1 config ",
                                       " Invalid sendmode for EVRCWB1 %d ",
                                       " Invalid modes for mode-set-recv for EVRCWB1"};

constexpr check_texts dtmf_texts = {"dak_app_oa_validate_dtmf_fmtp: Null params", " No DTMF config ", nullptr,
                                    nullptr};

// The block of a format, or null, logged, where there is no such format.
const sdp_codec_params *find_block(const sdp_media_line *mline, uint32_t format_index,
                                   const char *null_params)
{
    if (mline != nullptr && format_index < SDP_MAX_FORMATS)
        return &mline->formats[format_index].params;
    log_text(null_params);
    return nullptr;
}

bool is_marked(const sdp_codec_params &params, const char *no_config)
{
    if (params.frame.params_valid == 1)
        return true;
    log_text(no_config);
    return false;
}

// Runs `check` on the marked block of a format.
template <typename Block, typename Check>
uint32_t check_format(const sdp_media_line *mline, uint32_t format_index, const check_texts &texts,
                      Block sdp_codec_params::*block, Check check)
{
    const sdp_codec_params *params = find_block(mline, format_index, texts.null_params);
    if (params == nullptr)
        return SDP_NULL_ARGUMENT;
    if (!is_marked(*params, texts.no_config))
        return SDP_VALID;
    return check(params->*block);
}

void warn_of_sendmode(bool is_present, uint32_t direction)
{
    if (is_present && direction == SDP_RECVONLY)
        DAK_LOG(" sendmode used for recvonly stream ");
}

template <typename Block> uint32_t check_evrcb(const Block &evrc, uint32_t direction)
{
    warn_of_sendmode(evrc.sendmode_present, direction);
    if (evrc.recvmode_present != 0 && direction == SDP_SENDONLY)
        DAK_LOG(" recvmode used for sendonly stream ");
    return SDP_VALID;
}

template <typename Block>
uint32_t check_evrcwb(const Block &evrc, uint32_t direction, const check_texts &texts)
{
    if (evrc.sendmode_present != 0 && (evrc.sendmode & evrcwb_modes) == 0)
        DAK_LOG(texts.invalid_sendmode, static_cast<int>(evrc.sendmode));
    warn_of_sendmode(evrc.sendmode_present, direction);
    if (evrc.mode_set_recv_present == 0)
        return SDP_VALID;
    if ((evrc.mode_set_recv & evrcwb_modes) == 0)
        log_text(texts.invalid_mode_set);
    if (direction == SDP_SENDONLY)
        DAK_LOG(" mode-set-recv used for sendonly stream ");
    return SDP_VALID;
}

uint32_t check_fixed_rate(const sdp_evrcwb1_params &evrc)
{
    if (evrc.sendmode_present == 0 || evrc.fixedrate_present != 1 ||
        (evrc.sendmode & modes_without_fixed_rate) == 0)
        return SDP_VALID;
    DAK_LOG(" fixedrate not applicable for sendmode %d ", static_cast<int>(evrc.sendmode));
    return SDP_INVALID_FORMAT;
}

uint32_t check_events(const sdp_tel_event_params &tel_event, uint32_t direction)
{
    const bool receives = direction == SDP_SENDRECV || direction == SDP_RECVONLY;
    if (receives && tel_event.events_present != 1) {
        DAK_LOG("supported DTMF events not mentioned");
        return SDP_INVALID_FORMAT;
    }
    for (const sdp_tel_event_entry &entry : tel_event.events) {
        if (entry.kind == SDP_TEL_EVENT_RANGE && entry.first >= entry.last) {
            DAK_LOG("invalid DTMF event range");
            return SDP_INVALID_FORMAT;
        }
    }
    return SDP_VALID;
}

// Events on their way into a caller's array.
struct event_list {
    uint16_t *events;
    int count = 0;

    void add(uint16_t event)
    {
        if (count < SDP_MAX_EVENTS)
            events[count++] = event;
    }
    // Both ends count modulo 256, as the events of RFC 4733 do.
    void add_range(const sdp_tel_event_entry &entry)
    {
        for (int event = entry.first & 255; event <= (entry.last & 255); event++)
            add(static_cast<uint16_t>(event));
    }
};

} // namespace

uint32_t dak_app_oa_validate_fmtp(uint32_t codec, uint32_t direction, uint32_t format_index,
                                  const sdp_media_line *mline)
{
    if (find_block(mline, format_index, "dak_app_oa_validate_fmtp: Null params") == nullptr)
        return SDP_NULL_ARGUMENT;
    switch (codec) {
    case 102:
        return dak_app_oa_validate_evrcb0_fmtp(direction, format_index, mline);
    case 103:
        return dak_app_oa_validate_evrcb_fmtp(direction, format_index, mline);
    case 105:
    case 112:
        return dak_app_oa_validate_dtmf_fmtp(direction, format_index, mline);
    case 108:
        return dak_app_oa_validate_evrcwb0_fmtp(direction, format_index, mline);
    case 109:
        return dak_app_oa_validate_evrcwb_fmtp(direction, format_index, mline);
    case 110:
        return dak_app_oa_validate_evrcwb1_fmtp(direction, format_index, mline);
    default:
        return SDP_VALID;
    }
}

uint32_t dak_app_oa_validate_evrcb_fmtp(uint32_t direction, uint32_t format_index,
                                        const sdp_media_line *mline)
{
    return check_format(mline, format_index, evrcb_texts, &sdp_codec_params::evrcb,
                        [=](const sdp_evrcb_params &evrc) { return check_evrcb(evrc, direction); });
}

uint32_t dak_app_oa_validate_evrcb0_fmtp(uint32_t direction, uint32_t format_index,
                                         const sdp_media_line *mline)
{
    return check_format(mline, format_index, evrcb0_texts, &sdp_codec_params::evrcb0,
                        [=](const sdp_evrcb0_params &evrc) { return check_evrcb(evrc, direction); });
}

uint32_t dak_app_oa_validate_evrcwb_fmtp(uint32_t direction, uint32_t format_index,
                                         const sdp_media_line *mline)
{
    return check_format(
        mline, format_index, evrcwb_texts, &sdp_codec_params::evrcb,
        [=](const sdp_evrcb_params &evrc) { return check_evrcwb(evrc, direction, evrcwb_texts); });
}

uint32_t dak_app_oa_validate_evrcwb0_fmtp(uint32_t direction, uint32_t format_index,
                                          const sdp_media_line *mline)
{
    return check_format(
        mline, format_index, evrcwb0_texts, &sdp_codec_params::evrcb0,
        [=](const sdp_evrcb0_params &evrc) { return check_evrcwb(evrc, direction, evrcwb0_texts); });
}

uint32_t dak_app_oa_validate_evrcwb1_fmtp(uint32_t direction, uint32_t format_index,
                                          const sdp_media_line *mline)
{
    return check_format(mline, format_index, evrcwb1_texts, &sdp_codec_params::evrcwb1,
                        [=](const sdp_evrcwb1_params &evrc) {
                            check_evrcwb(evrc, direction, evrcwb1_texts);
                            return check_fixed_rate(evrc);
                        });
}

uint32_t dak_app_oa_validate_dtmf_fmtp(uint32_t direction, uint32_t format_index, const sdp_media_line *mline)
{
    return check_format(
        mline, format_index, dtmf_texts, &sdp_codec_params::tel_event,
        [=](const sdp_tel_event_params &tel_event) { return check_events(tel_event, direction); });
}

DAK_OUT_OF_LINE int dak_app_oa_form_dtmf_evt_list(const sdp_tel_event_params *block, uint16_t *events,
                                                  uint8_t *num_events)
{
    if (block == nullptr || events == nullptr || num_events == nullptr) {
        DAK_LOG("dak_app_oa_get_chl_direction: Null params");
        return 0;
    }
    event_list list = {events};
    for (const sdp_tel_event_entry &entry : block->events) {
        if (entry.kind == SDP_TEL_EVENT_SINGLE)
            list.add(entry.first);
        if (entry.kind == SDP_TEL_EVENT_RANGE)
            list.add_range(entry);
        if (list.count >= enough_events)
            break;
    }
    DAK_LOG("dak_app_oa_form_dtmf_evt_list: num evts %d", list.count);
    *num_events = static_cast<uint8_t>(list.count);
    return 1;
}
