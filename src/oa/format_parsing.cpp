// Reading payload formats with their codec parameters.

#include "oa/media_parsing.h"

#include "attr/rtcp_fb.h"
#include "oa/codec/mime_table.h"
#include "oa/result_code.h"
#include "sdp/media_codecs.h"
#include "util/bounded_text.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr uint32_t first_dynamic_payload = 96;
constexpr uint32_t hz_per_khz = 1000;

// Reads the a=rtpmap line of a format.
void read_rtpmap(const media_description *md, int index, uint32_t payload_number, sdp_payload_format &format)
{
    const uint32_t channels = get_media_code_encoding_param_by_index(md, index);
    format.clock_rate_khz =
        static_cast<uint16_t>(get_media_codec_sample_rate_by_index(md, index) / hz_per_khz);
    format.num_channels = static_cast<uint8_t>(channels);
    if (channels > 1)
        format.multi_channel = 1;
    format.payload_byte = static_cast<uint8_t>(payload_number);
}

// Decodes the parameters of a format. The result of the last decode function is remembered: a codec without
// one is cleared by an earlier failure of its line.
void read_codec(media_description *md, int index, sdp_payload_format &format, uint32_t &decoded)
{
    const sdp_mime_entry *entry =
        dak_app_sdp_find_medentry_by_mime(get_media_codec_mime_type_by_index(md, index));
    if (entry == nullptr) {
        format.codec_id = SDP_UNKNOWN_CODEC;
        return;
    }
    format.present = 1;
    format.codec_id = entry->payload_number;
    if (entry->decode != nullptr)
        decoded = entry->decode(md, static_cast<uint16_t>(index), &format.params);
    if (decoded != SDP_OA_SUCCESS) {
        format.present = 0;
        format.has_rtpmap = 0;
    }
}

uint32_t read_feedback_entry(const media_description *md, int index, int codec_index, sdp_rtcp_fb &entry)
{
    rtcp_fb_kind kind = {};
    const char *param = dak_sdp_get_media_rtcp_fb_type(md, &kind, index, codec_index);
    if (param == nullptr) {
        DAK_LOG("Invalid RTCP fb attr\n");
        return SDP_OA_INVALID_CONTENT;
    }
    entry = {kind.fb_type, kind.ccm_subtype, kind.nack_subtype, ""};
    copy_text(entry.fb_param, param);
    return SDP_OA_SUCCESS;
}

uint32_t read_format_feedback(const media_description *md, int index, sdp_payload_format &format)
{
    if (dak_sdp_get_media_rtcp_fb_valid_flag_by_index(md, index) != 1)
        return SDP_OA_SUCCESS;
    const int count = dak_sdp_get_number_of_rtcp_fb_attrs(md, index);
    if (count > SDP_MAX_RTCP_FB) {
        DAK_LOG("Invalid RTCP fb list size \n");
        return SDP_OA_INVALID_CONTENT;
    }
    for (int i = 0; i < count; i++) {
        const uint32_t result = read_feedback_entry(md, i, index, format.rtcp_fb[i]);
        if (result != SDP_OA_SUCCESS)
            return result;
    }
    if (count > 0) {
        format.num_rtcp_fb = static_cast<uint8_t>(count);
        format.rtcp_fb_present = 1;
        format.present = 1;
    }
    return SDP_OA_SUCCESS;
}

uint32_t read_format(media_description *md, int index, uint32_t payload_number, sdp_payload_format &format,
                     uint32_t &decoded)
{
    const bool has_name = get_media_codec_mime_type_by_index(md, index) != nullptr;
    const bool is_dynamic = payload_number >= first_dynamic_payload;
    if (is_dynamic && !has_name)
        return SDP_OA_SUCCESS;
    format.has_rtpmap = static_cast<uint8_t>(get_media_rtpmap_valid_flag_by_index(md, index));
    if (format.has_rtpmap != 0) {
        read_rtpmap(md, index, payload_number, format);
        read_codec(md, index, format, decoded);
    }
    if (is_dynamic && format.has_rtpmap == 0) {
        DAK_LOG("fmtp parsing failed\n");
        return SDP_OA_NO_RTPMAP;
    }
    return read_format_feedback(md, index, format);
}

} // namespace

uint32_t dak_app_oa_parse_formats(media_description *md, sdp_media_line *mline)
{
    if (md == nullptr || mline == nullptr) {
        DAK_LOG("dak_app_oa_parse_formats: Incorrect params\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    const int count = get_number_of_media_payload(md);
    if (count > SDP_MAX_FORMATS) {
        DAK_LOG(
            "dak_app_oa_parse_sdp:Media types num                                              exceeding\n");
        return SDP_OA_UNUSABLE;
    }
    mline->num_formats = static_cast<uint16_t>(count);
    uint32_t decoded = SDP_OA_SUCCESS;
    for (int i = 0; i < count; i++) {
        mline->payload_numbers[i] = static_cast<uint32_t>(get_media_codec_payload_number_by_index(md, i));
        const uint32_t result = read_format(md, i, mline->payload_numbers[i], mline->formats[i], decoded);
        if (result != SDP_OA_SUCCESS)
            return result;
    }
    return SDP_OA_SUCCESS;
}
