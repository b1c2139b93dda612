#include "oa/codec/amr.h"

#include "oa/codec/fmtp_reader.hpp"
#include "oa/codec/fmtp_setter.hpp"
#include "oa/codec/mode_list.hpp"
#include "oa/result_code.h"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr size_t list_size = 256;
constexpr mode_list_rule amr_modes = {
    8, 9, "dak_app_oa_get_amr_mode:Invalid AMR                                               mode :%ld\n"};

// Reads the parameters of one payload format; a failed read clears the presence flag and is logged.
class amr_reader : public parameter_reader {
public:
    using parameter_reader::parameter_reader;

    // A number of which only `keeps(number)` is kept; `failure` prints the last number that was read so.
    template <typename Field, typename Keeps>
    void reduced(text_range name, uint8_t &is_present, Field &value, Keeps keeps, const char *failure)
    {
        const char *found = text(name);
        if (found == nullptr)
            return;
        is_present = scan_signed(found, last_number_);
        if (is_present)
            value = keeps(last_number_);
        else
            DAK_LOG(failure, last_number_);
    }

    // 1 for a number of 1 or more, else 0.
    void flag(text_range name, uint8_t &is_present, uint8_t &value, const char *failure)
    {
        reduced(
            name, is_present, value, [](int32_t number) { return static_cast<uint8_t>(number >= 1); },
            failure);
    }

    void count(text_range name, uint8_t &is_present, uint32_t &value, const char *failure) const
    {
        const char *found = text(name);
        if (found == nullptr)
            return;
        is_present = scan_unsigned(found, value);
        if (!is_present)
            DAK_LOG(failure, static_cast<unsigned long>(value));
    }

    void small(text_range name, uint8_t &is_present, int16_t &value, const char *failure) const
    {
        const char *found = text(name);
        if (found == nullptr)
            return;
        is_present = scan_signed(found, value);
        if (!is_present)
            DAK_LOG(failure, static_cast<int>(value));
    }

private:
    int32_t last_number_ = 0;
};

void decode_values(amr_reader reader, sdp_amr_params &amr)
{
    // Both mode-change numbers share one text; log filters match on it.
    constexpr const char *mode_change_failure =
        "dak_app_sdp_decode_amr:Invalid mode change                 period : %lu \n";
    reader.flag(
        "octet-align", amr.octet_align_present, amr.octet_align,
        "dak_app_sdp_decode_amr:Invalid octet                                             align: %d\n");
    reader.count("mode-change-period", amr.mode_change_period_present, amr.mode_change_period,
                 mode_change_failure);
    reader.count("mode-change-capability", amr.mode_change_capability_present, amr.mode_change_capability,
                 mode_change_failure);
    reader.flag("mode-change-neighbor", amr.mode_change_neighbor_present, amr.mode_change_neighbor,
                "dak_app_sdp_decode_amr:Invalid mode change                             neighbour: %d \n");
    reader.flag("crc", amr.crc_present, amr.crc,
                "dak_app_sdp_decode_amr:Invalid CRC                                  value: %d \n");
    reader.flag("robust-sorting", amr.robust_sorting_present, amr.robust_sorting,
                "dak_app_sdp_decode_amr:Invalid robust                             sorting : %d\n");
    reader.reduced(
        "interleaving", amr.interleaving_present, amr.interleaving,
        [](int32_t number) { return static_cast<uint16_t>(number != 0); },
        "dak_app_sdp_decode_amr:Invalid Interleaving                             value: %d\n");
    reader.small("max-red", amr.max_red_present, amr.max_red,
                 "dak_app_sdp_decode_amr:Invalid                               max-red: %hd\n");
    reader.small("channels", amr.channels_present, amr.channels,
                 "dak_app_sdp_decode_amr:Invalid                               Channels: %hd\n");
}

} // namespace

uint32_t dak_app_sdp_encode_amr(media_description *md, uint16_t codec_index, void *block)
{
    if (md == nullptr || block == nullptr) {
        DAK_LOG("dak_app_sdp_encode_amr:No fmtp/mline\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    const auto &amr = *static_cast<const sdp_amr_params *>(block);
    if (amr.fmtp_present == 0)
        return SDP_OA_SUCCESS;
    parameter_writer writer(md, codec_index);
    writer.integer(amr.channels_present, static_cast<uint32_t>(amr.channels), "channels")
        .flag(amr.crc_present, amr.crc, "crc")
        .integer(amr.max_red_present, static_cast<uint32_t>(amr.max_red), "max-red")
        .integer(amr.interleaving_present, amr.interleaving, "interleaving")
        .flag(amr.mode_change_neighbor_present, amr.mode_change_neighbor, "mode-change-neighbor")
        .integer(amr.mode_change_period_present, amr.mode_change_period, "mode-change-period")
        .integer(amr.mode_change_capability_present, amr.mode_change_capability, "mode-change-capability")
        .flag(amr.octet_align_present, amr.octet_align, "octet-align")
        .flag(amr.robust_sorting_present, amr.robust_sorting, "robust-sorting");
    if (writer.result() != SDP_OA_SUCCESS || amr.mode_set_present == 0)
        return writer.result();
    char modes[list_size];
    if (!dak_app_sdp_encode_amr_mode_map(modes, amr.mode_set)) {
        DAK_LOG("dak_app_sdp_encode_amr:No AMR mode\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    return writer.text(true, modes, "mode-set").result();
}

uint32_t dak_app_sdp_decode_amr(media_description *md, uint16_t codec_index, void *block)
{
    if (md == nullptr || block == nullptr) {
        DAK_LOG("dak_app_sdp_decode_evrc:No fmtp/parsed media\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    auto &amr = *static_cast<sdp_amr_params *>(block);
    amr.fmtp_present = 1;
    amr.amr_params_valid = 1;
    const amr_reader reader(md, codec_index);
    const char *modes = reader.text("mode-set");
    if (modes != nullptr &&
        dak_app_oa_get_amr_mode(modes, &amr.mode_set_present, &amr.mode_set) != SDP_OA_SUCCESS) {
        DAK_LOG("dak_app_sdp_decode_amr:Invalid AMR mode\n");
        return SDP_OA_INVALID_CONTENT;
    }
    decode_values(reader, amr);
    return SDP_OA_SUCCESS;
}

int dak_app_sdp_encode_amr_mode_map(char *out, uint32_t mode_map)
{
    if (out == nullptr) {
        DAK_LOG("dak_app_sdp_encode_amr_mode_map:Bad buffer\n");
        return 0;
    }
    text_writer modes(out, list_size);
    const bool fits = add_modes(modes, mode_map) < 0;
    modes.terminate();
    if (!fits)
        fail_as_truncated(list_size);
    return fits;
}

uint32_t dak_app_oa_get_amr_mode(const char *text, uint8_t *mode_set_present, uint32_t *mode_set)
{
    if (text == nullptr || mode_set_present == nullptr || mode_set == nullptr)
        return SDP_OA_INVALID_CONTENT;
    return read_modes(text, amr_modes, *mode_set_present, *mode_set);
}
