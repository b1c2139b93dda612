#include "oa/codec/mp4_es.h"

#include "oa/codec/fmtp_reader.hpp"
#include "oa/codec/fmtp_setter.hpp"
#include "oa/result_code.h"
#include "util/heap_text.hpp"
#include "util/number.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr size_t config_size = sizeof sdp_mp4_es_params::config;
constexpr size_t most_digits = 2 * config_size;

bool add_octet(heap_text &text, uint8_t octet)
{
    constexpr const char *digits = "0123456789abcdef";
    const char pair[] = {digits[octet >> 4], digits[octet & 15]};
    return text.writer().add(text_range(pair, sizeof pair)).fits();
}

uint32_t encode_config(media_description *md, uint16_t codec_index, const sdp_mp4_es_params &mp4)
{
    heap_text text((size_t{mp4.config_len} + 1) * 2);
    if (!text.is_allocated()) {
        DAK_LOG(
            "dak_app_sdp_encode_mp4_es:Malloc failed at                                     config string \n");
        return SDP_OA_NO_MEMORY;
    }
    for (size_t i = 0; i < mp4.config_len && i < config_size; i++) {
        if (!add_octet(text, mp4.config[i])) {
            DAK_LOG("len of str printed exceeded dst str len %lu \n",
                    static_cast<unsigned long>(text.size()));
            dak_assert_failed();
            return SDP_OA_TOO_LONG;
        }
    }
    return dak_app_sdp_set_string_inmline(md, codec_index, text.c_str(), "config");
}

// Reads pairs of digits; a pair that is none ends the reading without a config. An odd last digit is dropped.
uint32_t decode_config(text_range text, sdp_mp4_es_params &mp4)
{
    if (text.length() > most_digits) {
        DAK_LOG("dak_app_sdp_decode_mp4_es:Invalid length:%d\n", static_cast<int>(text.length()));
        return SDP_OA_TOO_LONG;
    }
    mp4.config_len = static_cast<uint16_t>(text.length() / 2);
    mp4.config_present = 1;
    for (uint16_t i = 0; i < mp4.config_len; i++) {
        const scanned_number octet =
            scan_number(text_range(text.first + size_t{2} * i, size_t{2}), 2, 16, false);
        if (!octet.is_read) {
            mp4.config_present = 0;
            return SDP_OA_SUCCESS;
        }
        mp4.config[i] = static_cast<uint8_t>(octet.bits);
    }
    return SDP_OA_SUCCESS;
}

} // namespace

uint32_t dak_app_sdp_encode_mp4_es(media_description *md, uint16_t codec_index, void *block)
{
    if (md == nullptr || block == nullptr) {
        DAK_LOG("dak_app_sdp_encode_mp4_es:No fmtp/mline\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    const auto &mp4 = *static_cast<const sdp_mp4_es_params *>(block);
    if (mp4.fmtp_present == 0)
        return SDP_OA_SUCCESS;
    parameter_writer writer(md, codec_index);
    writer.integer(mp4.profile_level_id_present, static_cast<uint32_t>(mp4.profile_level_id),
                   "profile-level-id");
    if (writer.result() != SDP_OA_SUCCESS || mp4.config_present == 0)
        return writer.result();
    return encode_config(md, codec_index, mp4);
}

uint32_t dak_app_sdp_decode_mp4_es(media_description *md, uint16_t codec_index, void *block)
{
    if (md == nullptr || block == nullptr) {
        DAK_LOG("dak_app_sdp_decode_mp4_es:No                                 fmtp/parsed_media\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    auto &mp4 = *static_cast<sdp_mp4_es_params *>(block);
    mp4.fmtp_present = 1;
    mp4.mp4_params_valid = 1;
    const parameter_reader reader(md, codec_index);
    reader.signed_number("profile-level-id", mp4.profile_level_id_present, mp4.profile_level_id);
    const char *config = reader.text("config");
    if (config == nullptr)
        return SDP_OA_SUCCESS;
    return decode_config(config, mp4);
}
