#include "oa/codec/dtx.h"

#include "codec/media_value.h"
#include "oa/codec/fmtp_reader.hpp"
#include "oa/codec/fmtp_setter.hpp"
#include "oa/result_code.h"
#include "util/bounded_text.hpp"
#include "util/number.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr size_t number_size = 21;

// One of the three byte values, with its log texts.
struct dtx_byte {
    char name[9];
    uint8_t dtx_params::*is_present;
    uint8_t dtx_params::*value;
    char invalid[79]; // with one %d
    char unreadable[82];
};

constexpr dtx_byte dtx_bytes[] = {
    {"dtxmax", &dtx_params::dtxmax_present, &dtx_params::dtxmax,
     "dak_app_sdp_decode_dtx:                           Invalid value dtxmax %d \n",
     "dak_app_sdp_decode_dtx:                           Failed in reading dtxmax  \n"},
    {"dtxmin", &dtx_params::dtxmin_present, &dtx_params::dtxmin,
     "dak_app_sdp_decode_dtx:                           Invalid value dtxmin %d \n",
     "dak_app_sdp_decode_dtx:                           Failed in reading dtxmin  \n"},
    {"hangover", &dtx_params::hangover_present, &dtx_params::hangover,
     "dak_app_sdp_decode_dtx:                           Invalid value hangover %d \n",
     "dak_app_sdp_decode_dtx:                           Failed in reading hangover  \n"},
};

uint32_t encode_byte(media_description *md, uint16_t codec_index, uint8_t value, const char *name)
{
    built_text<number_size> text;
    if (!text.add_number(value).fits())
        return fail_as_truncated(number_size);
    return set_media_value(md, codec_index, name, text.c_str()) == 1 ? SDP_OA_SUCCESS : SDP_OA_NO_RTPMAP;
}

void decode_silencesupp(const parameter_reader &reader, dtx_params &dtx)
{
    const char *text = reader.text("silencesupp");
    int32_t number = 0;
    if (text == nullptr)
        return;
    if (!scan_signed(text, number)) {
        DAK_LOG("dak_app_sdp_decode_dtx:                            Failed in reading silencesupp  \n");
    } else if (number != 0 && number != 1) {
        DAK_LOG("dak_app_sdp_decode_dtx:                          Invalid value silencesupp %d \n", number);
    } else {
        dtx.silencesupp_present = 1;
        dtx.silencesupp = static_cast<uint8_t>(number);
    }
}

uint32_t decode_byte(const parameter_reader &reader, dtx_params &dtx, const dtx_byte &byte)
{
    const char *text = reader.text(byte.name);
    int32_t number = 0;
    if (text == nullptr)
        return SDP_OA_SUCCESS;
    if (!scan_signed(text, number)) {
        log_text(byte.unreadable);
        return SDP_OA_SUCCESS;
    }
    if (number < 0 || number > UINT8_MAX) {
        DAK_LOG(byte.invalid, number);
        return SDP_OA_INVALID_CONTENT;
    }
    dtx.*byte.is_present = 1;
    dtx.*byte.value = static_cast<uint8_t>(number);
    return SDP_OA_SUCCESS;
}

} // namespace

uint32_t dak_app_sdp_encode_dtx(media_description *md, uint16_t codec_index, dtx_params dtx)
{
    uint32_t result = SDP_OA_SUCCESS;
    if (dtx.silencesupp_present != 0)
        result = encode_byte(md, codec_index, dtx.silencesupp, "silencesupp");
    for (const dtx_byte &byte : dtx_bytes) {
        if (result == SDP_OA_SUCCESS && dtx.*byte.is_present != 0)
            result = encode_byte(md, codec_index, dtx.*byte.value, byte.name);
    }
    return result;
}

uint32_t dak_app_sdp_decode_dtx(media_description *md, uint16_t codec_index, dtx_params *dtx)
{
    if (md == nullptr || dtx == nullptr)
        return SDP_OA_BAD_PARAMETERS;
    *dtx = {};
    const parameter_reader reader(md, codec_index);
    decode_silencesupp(reader, *dtx);
    for (const dtx_byte &byte : dtx_bytes) {
        const uint32_t result = decode_byte(reader, *dtx, byte);
        if (result != SDP_OA_SUCCESS)
            return result;
    }
    return SDP_OA_SUCCESS;
}
