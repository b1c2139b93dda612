#include "oa/codec/h264.h"

#include "oa/codec/fmtp_reader.hpp"
#include "oa/codec/fmtp_setter.hpp"
#include "oa/result_code.h"
#include "util/bounded_text.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr size_t text_size = 120;

class h264_reader : public parameter_reader {
public:
    using parameter_reader::parameter_reader;

    void cut_text(text_range name, uint8_t &is_present, uint16_t &length, char (&field)[text_size]) const
    {
        const char *found = text(name);
        if (found == nullptr)
            return;
        const text_range whole(found);
        copy_text(field, whole);
        is_present = !whole.empty();
        if (is_present)
            length = static_cast<uint16_t>(whole.length());
    }

    // Keeps the code of the first character, which is also what encoding writes.
    void character(text_range name, uint8_t &is_present, uint8_t &field) const
    {
        const char *found = text(name);
        if (found == nullptr)
            return;
        is_present = *found != '\0';
        if (is_present)
            field = static_cast<uint8_t>(*found);
    }
};

} // namespace

uint32_t dak_app_sdp_encode_h264(media_description *md, uint16_t codec_index, void *block)
{
    if (md == nullptr || block == nullptr) {
        DAK_LOG("dak_app_sdp_encode_h264:No fmtp/mline\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    const auto &h264 = *static_cast<const sdp_h264_params *>(block);
    if (h264.fmtp_present == 0)
        return SDP_OA_SUCCESS;
    parameter_writer writer(md, codec_index);
    writer
        .integer(h264.packetization_mode_present, static_cast<uint32_t>(h264.packetization_mode),
                 "packetization-mode")
        .integer(h264.sprop_deint_buf_req_present, static_cast<uint32_t>(h264.sprop_deint_buf_req),
                 "sprop-deint-buf-req")
        .text(h264.profile_level_id_present, field_text(h264.profile_level_id), "profile-level-id")
        .text(h264.sprop_parameter_sets_present, field_text(h264.sprop_parameter_sets),
              "sprop-parameter-sets")
        .text(h264.sprop_level_parameter_sets_present, field_text(h264.sprop_level_parameter_sets),
              "sprop-level-parameter-sets")
        .integer(h264.max_rcmd_nalu_size_present, h264.max_rcmd_nalu_size, "max-rcmd-nalu-size")
        .integer(h264.sar_understood_present, h264.sar_understood, "sar-understood")
        .integer(h264.sar_supported_present, h264.sar_supported, "sar-supported")
        .integer(h264.in_band_parameter_sets_present, h264.in_band_parameter_sets, "in-band-parameter-sets")
        .integer(h264.parameter_add_present, h264.parameter_add, "parameter-add")
        // The presence flag is the value: peers know the parameter by its being there.
        .integer(h264.use_level_src_parameter_sets_present, h264.use_level_src_parameter_sets_present,
                 "use-level-src-parameter-sets");
    return writer.result();
}

uint32_t dak_app_sdp_decode_h264(media_description *md, uint16_t codec_index, void *block)
{
    if (md == nullptr || block == nullptr) {
        DAK_LOG("dak_app_sdp_decode_h264:No                                 fmtp/parsed_media\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    auto &h264 = *static_cast<sdp_h264_params *>(block);
    h264.fmtp_present = 1;
    h264.h264_params_valid = 1;
    const h264_reader reader(md, codec_index);
    reader.cut_text("profile-level-id", h264.profile_level_id_present, h264.profile_level_id_len,
                    h264.profile_level_id);
    reader.cut_text("sprop-parameter-sets", h264.sprop_parameter_sets_present, h264.sprop_parameter_sets_len,
                    h264.sprop_parameter_sets);
    reader.cut_text("sprop-level-parameter-sets", h264.sprop_level_parameter_sets_present,
                    h264.sprop_level_parameter_sets_len, h264.sprop_level_parameter_sets);
    reader.signed_number("packetization-mode", h264.packetization_mode_present, h264.packetization_mode);
    reader.signed_number("sprop-deint-buf-req", h264.sprop_deint_buf_req_present, h264.sprop_deint_buf_req);
    reader.unsigned_number("max-rcmd-nalu-size", h264.max_rcmd_nalu_size_present, h264.max_rcmd_nalu_size);
    reader.character("sar-understood", h264.sar_understood_present, h264.sar_understood);
    reader.character("sar-supported", h264.sar_supported_present, h264.sar_supported);
    reader.character("in-band-parameter-sets", h264.in_band_parameter_sets_present,
                     h264.in_band_parameter_sets);
    reader.character("parameter-add", h264.parameter_add_present, h264.parameter_add);
    reader.character("use-level-src-parameter-sets", h264.use_level_src_parameter_sets_present,
                     h264.use_level_src_parameter_sets);
    return SDP_OA_SUCCESS;
}
