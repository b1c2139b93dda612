#include "oa/media_generation.hpp"

#include "attr/precondition.hpp"
#include "attr/rtcp_fb.h"
#include "oa/bandwidth.hpp"
#include "oa/codec/mime_table.h"
#include "oa/precondition_text.hpp"
#include "oa/result_code.h"
#include "oa/truncation.hpp"
#include "oa/words.hpp"
#include "sdp/attribute_lines.hpp"
#include "sdp/document.h"
#include "sdp/media_codecs.h"
#include "sdp/media_codecs.hpp"
#include "sdp/media_description.h"
#include "sdp/media_values.hpp"

using namespace dak;

namespace {

constexpr uint32_t highest_static_payload = 95;
constexpr uint32_t most_preconditions = 9;
constexpr size_t value_size = 256;
constexpr size_t number_size = sizeof "65535";

bool can_be_written(uint32_t media_type)
{
    return media_type == SDP_MEDIA_AUDIO || media_type == SDP_MEDIA_VIDEO || media_type == SDP_MEDIA_MESSAGE;
}

// A builder of one media section, and what is logged when it fails; `result` replaces its code if it is not
// 0.
struct section_builder {
    uint32_t (*encode)(media_description *md, sdp_media_line *mline);
    const char *failure;
    uint32_t result;
};

uint32_t encode_line_bandwidth(media_description *md, sdp_media_line *mline)
{
    return dak_app_oa_encode_media_bandwidth(md, &mline->bandwidth);
}

uint32_t encode_line_attributes(media_description *md, sdp_media_line *mline)
{
    return dak_app_oa_encode_media_gen_attr(md, mline);
}

uint32_t encode_line_message(media_description *md, sdp_media_line *mline)
{
    return dak_app_oa_encode_media_message_attr(md, mline);
}

constexpr const char *invalid_line =
    "dak_app_oa_encode_mlines: Invalid                                                  media line\n";
constexpr const char *invalid_attribute = "dak_app_oa_encode_mlines: Invalid attr\n";

// The text of the general attributes names the message attributes; log filters match on it.
constexpr section_builder section_builders[] = {
    {encode_line_bandwidth, invalid_line, 0},
    {dak_app_oa_encode_media_formats,
     "dak_app_oa_encode_mlines: Invalid                                          media formats\n", 0},
    {encode_line_attributes,
     "dak_app_oa_encode_media_message_attr: Invalid                                          message attr\n",
     0},
    {encode_line_message, invalid_attribute, SDP_OA_INVALID_CONTENT},
};

uint32_t build_section(media_description *md, sdp_media_line *mline)
{
    for (const section_builder &builder : section_builders) {
        const uint32_t result = builder.encode(md, mline);
        if (result == SDP_OA_SUCCESS)
            continue;
        log_text(builder.failure);
        return builder.result != 0 ? builder.result : result;
    }
    return SDP_OA_SUCCESS;
}

// Creates the section of a media line; null for one that cannot be written.
media_description *create_section(const sdp_media_line *mline, audience seen_by)
{
    if (mline == nullptr)
        return nullptr;
    const word *transport = find_word(transport_words, mline->transport);
    if (transport == nullptr || mline->transport == SDP_TCP_TLS_MSRP) {
        DAK_LOG("encode_common_media_line: Invalid Profile");
        return nullptr;
    }
    const word *media = find_word(media_words, mline->media_type);
    if (media == nullptr || !can_be_written(mline->media_type))
        return nullptr;
    return new_media_description(media->text, mline->port, mline->num_ports, transport->text,
                                 mline->payload_numbers, mline->num_formats, seen_by);
}

uint32_t encode_mline(sdp_lib_context *document, sdp_media_line *mline, audience seen_by)
{
    media_description *md = create_section(mline, seen_by);
    if (md == nullptr) {
        log_text(invalid_line);
        return SDP_OA_INVALID_CONTENT;
    }
    uint32_t result = build_section(md, mline);
    if (result == SDP_OA_SUCCESS && !add_media_description_to_sdp_encoder(document, md)) {
        log_text(invalid_attribute);
        result = SDP_OA_INVALID_CONTENT;
    }
    if (result != SDP_OA_SUCCESS)
        clean_media_description(md);
    return result;
}

uint32_t encode_codec(media_description *md, int index, sdp_payload_format &format)
{
    const sdp_mime_entry *entry = dak_app_sdp_find_medentry_by_pt(format.codec_id);
    if (entry == nullptr) {
        DAK_LOG(
            "dak_app_oa_encode_media_formats:No media                                                type\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    constexpr uint32_t hz_per_khz = 1000;
    if (!set_rtpmap(md->codecs[index], entry->mime_name, format.clock_rate_khz * hz_per_khz, 1)) {
        DAK_LOG(
            "dak_app_oa_encode_media_formats: Invalid                                      payload index\n");
        return SDP_OA_INVALID_CONTENT;
    }
    if (entry->encode == nullptr)
        return SDP_OA_SUCCESS;
    const uint32_t result = entry->encode(md, static_cast<uint16_t>(index), &format.params);
    if (result != SDP_OA_SUCCESS)
        DAK_LOG("dak_app_oa_encode_media_formats:                                         fmtp failed\n");
    return result;
}

// Hands the format's feedback over; too long a list is refused by the lower layer.
uint32_t encode_format_feedback(media_description *md, const sdp_payload_format &format,
                                uint32_t payload_number)
{
    rtcp_fb_list list = {};
    list.fb_present = 1;
    list.fb_count = format.num_rtcp_fb;
    for (int i = 0; i < format.num_rtcp_fb && i < SDP_MAX_RTCP_FB; i++) {
        const sdp_rtcp_fb &source = format.rtcp_fb[i];
        rtcp_fb_entry &entry = list.fb_entries[i];
        entry.fb_type = source.fb_type;
        entry.ccm_subtype = source.ccm_subtype;
        entry.nack_subtype = source.nack_subtype;
        copy_text(entry.fb_param, field_text(source.fb_param));
    }
    if (dak_sdp_add_media_rtcp_fb_to_media_description(md, static_cast<int32_t>(payload_number), &list) >= 0)
        return SDP_OA_SUCCESS;
    DAK_LOG("Invalid RTCP fb type\n");
    return SDP_OA_INVALID_CONTENT;
}

uint32_t encode_format(media_description *md, sdp_payload_format &format, uint32_t payload_number,
                       uint32_t transport)
{
    const int index = add_media_rtpmap_valid_to_media_description(md, static_cast<int32_t>(payload_number),
                                                                  format.has_rtpmap);
    if (index < 0) {
        DAK_LOG("dak_app_oa_encode_media_formats: Invalid                                      Media type\n");
        return SDP_OA_INVALID_CONTENT;
    }
    if (format.has_rtpmap != 0) {
        const uint32_t result = encode_codec(md, index, format);
        if (result != SDP_OA_SUCCESS)
            return result;
    } else if (payload_number > highest_static_payload) {
        DAK_LOG("dak_app_oa_encode_media_formats:                                       fmtp failed\n");
        return SDP_OA_NO_RTPMAP;
    }
    if (format.rtcp_fb_present == 1 && transport == SDP_RTP_AVPF)
        return encode_format_feedback(md, format, payload_number);
    return SDP_OA_SUCCESS;
}

// Stores a property attribute.
uint32_t store_property(media_description *md, text_range text)
{
    if (set_attribute(*md, text))
        return SDP_OA_SUCCESS;
    DAK_LOG("dak_app_oa_encode_media_gen_attr:No attr\n");
    return SDP_OA_INVALID_CONTENT;
}

uint32_t encode_direction(media_description *md, const sdp_media_line &mline)
{
    if (mline.direction_present == 0)
        return SDP_OA_SUCCESS;
    if (const word *direction = find_word(direction_words, mline.direction); direction != nullptr)
        return store_property(md, direction->text);
    DAK_LOG("dak_app_oa_encode_media_gen_attr:Invalid                               dir.attr: %d\n",
            static_cast<int>(mline.direction));
    return SDP_OA_INVALID_CONTENT;
}

// Writes one line: the setup, or in its place the connection; a connection without setup is not written.
uint32_t encode_setup(media_description *md, const sdp_media_line &mline)
{
    if (mline.setup_present == 0)
        return SDP_OA_SUCCESS;
    const word *setup = find_word(setup_words, mline.setup);
    if (setup == nullptr) {
        DAK_LOG("dak_app_oa_encode_media_gen_attr:Invalid                              connsetup.attr: %d\n",
                static_cast<int>(mline.setup));
        return SDP_OA_INVALID_CONTENT;
    }
    if (mline.conn_status_present == 0)
        return store_property(md, setup->text);
    if (const word *connection = find_word(connection_words, mline.conn_status); connection != nullptr)
        return store_property(md, connection->text);
    DAK_LOG("dak_app_oa_encode_media_gen_attr:Invalid                              conn_status.attr: %d\n",
            static_cast<int>(mline.conn_status));
    return SDP_OA_INVALID_CONTENT;
}

uint32_t store_value(media_description *md, const char *name, text_range value, const char *refused)
{
    if (value.length() >= value_size)
        return fail_as_truncated(value_size);
    if (set_attribute(*md, name, &value))
        return SDP_OA_SUCCESS;
    log_text(refused);
    return SDP_OA_BAD_PARAMETERS;
}

// An attribute whose value is a number; maxprate is refused under framerate's text, which log filters expect.
struct number_attribute {
    const char *name;
    uint8_t sdp_media_line::*is_present;
    uint16_t sdp_media_line::*value;
    const char *refused;
};
constexpr number_attribute number_attributes[] = {
    {"framerate", &sdp_media_line::framerate_present, &sdp_media_line::framerate,
     "dak_app_oa_encode_media_gen_attr:No frame rate                                                         info\n"},
    {"maxprate", &sdp_media_line::maxprate_present, &sdp_media_line::maxprate,
     "dak_app_oa_encode_media_gen_attr:No frame rate                                                         info\n"},
    {"maxptime", &sdp_media_line::maxptime_present, &sdp_media_line::maxptime,
     "dak_app_oa_encode_media_gen_attr:No Maxptime                                          attr\n"},
    {"ptime", &sdp_media_line::ptime_present, &sdp_media_line::ptime,
     "dak_app_oa_encode_media_gen_attr:No SDP PTIME attr\n"},
};

uint32_t encode_numbers(media_description *md, const sdp_media_line &mline)
{
    for (const number_attribute &attribute : number_attributes) {
        if (mline.*attribute.is_present == 0)
            continue;
        char room[number_size];
        text_writer digits(room);
        digits.add_number(mline.*attribute.value);
        const uint32_t result = store_value(md, attribute.name, digits.text(), attribute.refused);
        if (result != SDP_OA_SUCCESS)
            return result;
    }
    return SDP_OA_SUCCESS;
}

uint32_t encode_mid(media_description *md, const sdp_media_line &mline)
{
    if (mline.mid_present == 0)
        return SDP_OA_SUCCESS;
    return store_value(md, "mid", field_text(mline.mid),
                       "dak_app_oa_encode_media_gen_attr:No SDP MID attr\n");
}

uint32_t encode_precondition(media_description *md, const sdp_precondition &entry)
{
    char room[precondition_size];
    text_writer text(room);
    const uint32_t result = add_precondition(text, entry);
    if (result != SDP_OA_SUCCESS)
        return result;
    if (set_precondition(*md, entry.kind, text.text()))
        return SDP_OA_SUCCESS;
    DAK_LOG("dak_app_oa_encode_media_gen_attr :                           Invalid precond. attr \n");
    return SDP_OA_INVALID_CONTENT;
}

uint32_t encode_preconditions(media_description *md, const sdp_media_line &mline)
{
    if (mline.precond_present == 0)
        return SDP_OA_SUCCESS;
    if (mline.num_preconds > most_preconditions) {
        DAK_LOG("dak_app_oa_encode_media_gen_attr :                           pcd list size overflow \n");
        return SDP_OA_TOO_LONG;
    }
    for (uint32_t i = 0; i < mline.num_preconds; i++) {
        const uint32_t result = encode_precondition(md, mline.preconds[i]);
        if (result != SDP_OA_SUCCESS)
            return result;
    }
    return SDP_OA_SUCCESS;
}

uint32_t encode_line_feedback(media_description *md, const sdp_media_line &mline)
{
    if (mline.rtcp_fb_present != 1 || mline.transport != SDP_RTP_AVPF)
        return SDP_OA_SUCCESS;
    if (mline.num_rtcp_fb > SDP_MAX_RTCP_FB) {
        DAK_LOG("Invalid number of fb \n");
        return SDP_OA_INVALID_CONTENT;
    }
    for (int i = 0; i < mline.num_rtcp_fb; i++) {
        const sdp_rtcp_fb &entry = mline.rtcp_fb[i];
        const uint32_t subtype = entry.fb_type == RTCP_FB_NACK ? entry.nack_subtype : entry.ccm_subtype;
        if (!dak_sdp_set_media_rtcp_fb_attr(md, entry.fb_type, subtype)) {
            DAK_LOG("dak_app_oa_encode_media_gen_attr :                           Invalid rtcp fb attr \n");
            return SDP_OA_INVALID_CONTENT;
        }
    }
    return SDP_OA_SUCCESS;
}

// In the order in which the attributes are stored; the first that fails decides.
constexpr uint32_t (*attribute_builders[])(media_description *, const sdp_media_line &) = {
    encode_direction, encode_setup, encode_numbers, encode_mid, encode_preconditions, encode_line_feedback,
};

} // namespace

uint32_t dak::encode_mlines(sdp_lib_context *document, sdp_container *container, audience seen_by)
{
    if (document == nullptr || container == nullptr) {
        DAK_LOG("dak_app_oa_encode_mlines: Incorrect params\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    for (uint16_t i = 0; i < container->num_mlines; i++) {
        const uint32_t result =
            encode_mline(document, container->mlines != nullptr ? &container->mlines[i] : nullptr, seen_by);
        if (result != SDP_OA_SUCCESS)
            return result;
    }
    return SDP_OA_SUCCESS;
}

uint32_t dak_app_oa_encode_mlines(sdp_lib_context *document, sdp_container *container)
{
    return encode_mlines(document, container, audience::caller);
}

media_description *dak_app_oa_encode_common_media_line(const sdp_media_line *mline)
{
    return create_section(mline, audience::caller);
}

uint32_t dak_app_oa_encode_media_bandwidth(media_description *md, const sdp_bandwidth *bandwidth)
{
    if (md == nullptr || bandwidth == nullptr) {
        DAK_LOG("dak_app_oa_encode_bw: Incorrect params\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    const auto store_line = [md](text_range text) { return set_media_line(*md, "b=", text); };
    return encode_bandwidth(*bandwidth, store_line, [](int i) { return i; });
}

uint32_t dak_app_oa_encode_media_formats(media_description *md, sdp_media_line *mline)
{
    if (md == nullptr || mline == nullptr) {
        DAK_LOG(
            "dak_app_oa_encode_media_formats: Incorrect                                                      params\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    for (int i = 0; i < mline->num_formats && i < SDP_MAX_FORMATS; i++) {
        if (mline->formats[i].present == 0)
            continue;
        const uint32_t result =
            encode_format(md, mline->formats[i], mline->payload_numbers[i], mline->transport);
        if (result != SDP_OA_SUCCESS)
            return result;
    }
    return SDP_OA_SUCCESS;
}

uint32_t dak_app_oa_encode_media_gen_attr(media_description *md, const sdp_media_line *mline)
{
    if (md == nullptr || mline == nullptr) {
        DAK_LOG("dak_app_oa_encode_media_gen_attr:No mlines\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    for (const auto encode : attribute_builders) {
        const uint32_t result = encode(md, *mline);
        if (result != SDP_OA_SUCCESS)
            return result;
    }
    return SDP_OA_SUCCESS;
}
