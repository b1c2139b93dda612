#include "oa/codec/tel_event.h"

#include "oa/codec/fmtp_reader.hpp"
#include "oa/codec/fmtp_setter.hpp"
#include "oa/result_code.h"
#include "oa/truncation.hpp"
#include "util/bounded_text.hpp"
#include "util/number.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr size_t list_size = 256;
constexpr delimiter_set delimiters = ",;";

// A single event is written as the 32-bit word that both of its halves make.
void add_single(text_writer &list, const sdp_tel_event_entry &entry)
{
    list.add_number(entry.first | static_cast<uint32_t>(entry.last) << 16).add(',');
}

void add_range(text_writer &list, const sdp_tel_event_entry &entry)
{
    list.add_number(entry.first).add('-').add_number(entry.last).add(',');
}

uint32_t add_entry(text_writer &list, const sdp_tel_event_entry &entry)
{
    if (entry.kind == SDP_TEL_EVENT_SINGLE) {
        add_single(list, entry);
    } else if (entry.kind == SDP_TEL_EVENT_RANGE) {
        add_range(list, entry);
    } else {
        DAK_LOG(
            "dak_app_sdp_encode_dtmf_tel_event_tag :                               Invalid event range: %d ",
            static_cast<int>(entry.kind));
        return SDP_OA_INVALID_CONTENT;
    }
    if (list.fits())
        return SDP_OA_SUCCESS;
    return fail_as_truncated(list_size);
}

// Reads "first-last"; false, with the entry cleared, for a part that is missing or no number.
bool read_range(text_range token, sdp_tel_event_entry &entry)
{
    constexpr delimiter_set hyphen = "-";
    sdp_tel_event_entry range = {SDP_TEL_EVENT_RANGE, 0, 0};
    entry = {};
    if (!scan_unsigned(token.take_token(hyphen), range.first) ||
        !scan_unsigned(token.take_token(hyphen), range.last))
        return false;
    entry = range;
    return true;
}

// Reads a token; false for one that is no event or range.
bool read_entry(text_range token, sdp_tel_event_entry &entry)
{
    if (token.find('-') != nullptr)
        return read_range(token, entry);
    uint16_t event = 0;
    if (!scan_unsigned(token, event))
        return false;
    entry = {SDP_TEL_EVENT_SINGLE, event, 0};
    return true;
}

// Writes the events, and counts them.
uint32_t write_events(text_writer &list, const sdp_tel_event_params &tel_event, uint16_t &count)
{
    for (const sdp_tel_event_entry &entry : tel_event.events) {
        if (entry.kind == SDP_TEL_EVENT_END)
            break;
        const uint32_t result = add_entry(list, entry);
        if (result != SDP_OA_SUCCESS)
            return result;
        count++;
    }
    list.drop_last();
    return SDP_OA_SUCCESS;
}

} // namespace

uint32_t dak_app_sdp_encode_tel_event(media_description *md, uint16_t codec_index, void *block)
{
    if (md == nullptr || block == nullptr) {
        DAK_LOG("dak_app_sdp_encode_tel_event :                                Incorrect params ");
        return SDP_OA_BAD_PARAMETERS;
    }
    const auto &tel_event = *static_cast<const sdp_tel_event_params *>(block);
    if (tel_event.fmtp_present != 1 || tel_event.events_present == 0)
        return SDP_OA_SUCCESS;
    char room[list_size];
    text_writer list(room);
    uint16_t count = 0;
    const uint32_t result = write_events(list, tel_event, count);
    if (result != SDP_OA_SUCCESS || count == 0)
        return result;
    return parameter_writer(md, codec_index).text(true, list.text(), "events").result();
}

uint32_t dak_app_sdp_decode_tel_event(media_description *md, uint16_t codec_index, void *block)
{
    if (md == nullptr || block == nullptr) {
        DAK_LOG("dak_app_sdp_decode_tel_event:                                No fmtp/parsed_media\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    auto &tel_event = *static_cast<sdp_tel_event_params *>(block);
    tel_event = {};
    tel_event.fmtp_present = 1;
    tel_event.tel_event_valid = 1;
    const char *text = parameter_reader(md, codec_index).text("events");
    if (text == nullptr)
        return SDP_OA_SUCCESS;
    tel_event.events_present = 1;
    const uint32_t result = dak_app_oa_get_dtmf_tel_event(text, tel_event.events);
    if (result != SDP_OA_SUCCESS)
        DAK_LOG("dak_app_sdp_decode_tel_event:                                Failed in DTMF event\n");
    return result;
}

uint32_t dak_app_sdp_encode_dtmf_tel_event_tag(const sdp_tel_event_params *block, char *out, uint16_t *count)
{
    if (block == nullptr || out == nullptr) {
        DAK_LOG("dak_app_sdp_encode_dtmf_tel_event_tag :                                Bad Arguments( ");
        return SDP_OA_BAD_PARAMETERS;
    }
    text_writer list(out, list_size);
    uint16_t written = 0;
    const uint32_t result = write_events(list, *block, written);
    list.terminate();
    if (count != nullptr)
        *count = written;
    return result;
}

uint32_t dak_app_oa_get_dtmf_tel_event(const char *text, sdp_tel_event_entry *events)
{
    if (text == nullptr || events == nullptr)
        return SDP_OA_INVALID_CONTENT;
    text_range rest(text);
    if (rest.length() > list_size) {
        return fail_as_too_long(list_size + 1);
    }
    for (int i = 0; i < SDP_TEL_EVENT_ENTRIES; i++) {
        const text_range token = rest.take_token(delimiters);
        if (token.length() >= list_size && token.find('-') != nullptr)
            return fail_as_too_long(list_size);
        if (token.empty() || !read_entry(token, events[i]))
            return SDP_OA_SUCCESS;
        if (events[i].kind == SDP_TEL_EVENT_RANGE && events[i].first > events[i].last) {
            events[i].kind = SDP_TEL_EVENT_END;
            DAK_LOG(
                "dak_app_oa_get_dtmf_tel_event:Invalid DTMF..                                               events\n");
            return SDP_OA_INVALID_CONTENT;
        }
    }
    return SDP_OA_SUCCESS;
}
