#include "oa/codec/h263.h"

#include "oa/codec/fmtp_reader.hpp"
#include "oa/codec/fmtp_setter.hpp"
#include "oa/result_code.h"
#include "oa/truncation.hpp"
#include "util/bounded_text.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr delimiter_set delimiters = ",;";
constexpr size_t list_size = 256;
constexpr uint32_t most_submodes = sizeof h263_params::p_modes / sizeof *h263_params::p_modes;
constexpr uint32_t most_packed_submodes = 128;
constexpr int16_t highest_submode = 4;
constexpr size_t longest_cpcf = 63;

struct picture_size {
    char name[6];
    uint8_t h263_params::*is_present;
    int16_t h263_params::*value;
};
constexpr picture_size picture_sizes[] = {
    {"SQCIF", &h263_params::sqcif_present, &h263_params::sqcif},
    {"QCIF", &h263_params::qcif_present, &h263_params::qcif},
    {"CIF", &h263_params::cif_present, &h263_params::cif},
    {"CIF4", &h263_params::cif4_present, &h263_params::cif4},
    {"CIF16", &h263_params::cif16_present, &h263_params::cif16},
};

struct annex {
    char name[2];
    uint8_t h263_params::*is_set;
};
constexpr annex annexes[] = {
    {"F", &h263_params::f}, {"I", &h263_params::i}, {"J", &h263_params::j}, {"T", &h263_params::t}};

struct submode {
    char name[2];
    uint8_t h263_params::*is_present;
    uint32_t h263_params::*value;
};
constexpr submode submodes[] = {{"K", &h263_params::k_present, &h263_params::k},
                                {"N", &h263_params::n_present, &h263_params::n}};

uint32_t unsigned_of(int16_t value) { return static_cast<uint32_t>(value); }

void write_custom(parameter_writer &writer, const h263_params &params)
{
    built_text<list_size> text; // three numbers always fit
    text.add_signed(params.custom_x)
        .add(',')
        .add_signed(params.custom_y)
        .add(',')
        .add_signed(params.custom_mpi);
    writer.text(true, text.text(), "CUSTOM");
}

// Writes as many submodes as the block stores.
void write_submodes(parameter_writer &writer, const h263_params &params)
{
    built_text<list_size> text;
    for (uint32_t i = 0; i < params.p_count && i < most_submodes; i++) {
        if (i > 0)
            text.add(',');
        text.add_number(params.p_modes[i]);
    }
    writer.text(true, text.text(), "P");
}

void write_sizes(parameter_writer &writer, const h263_params &params)
{
    for (const picture_size &size : picture_sizes)
        writer.integer(params.*size.is_present, unsigned_of(params.*size.value), size.name);
    if (params.custom_present != 0)
        write_custom(writer, params);
    for (const annex &option : annexes)
        writer.flag(params.*option.is_set, 1, option.name);
    for (const submode &option : submodes)
        writer.integer(params.*option.is_present, params.*option.value, option.name);
}

void write_options(parameter_writer &writer, const h263_params &params)
{
    if (params.p_count != 0)
        write_submodes(writer, params);
    writer.integer(params.par_present, unsigned_of(params.par), "PAR")
        .text(params.cpcf_present, field_text(params.cpcf), "CPCF")
        .integer(params.bpp_present, unsigned_of(params.bpp), "BPP")
        .flag(params.hrd, 1, "HRD");
}

class h263_reader : public parameter_reader {
public:
    using parameter_reader::parameter_reader;

    // 1 for a number other than 0, else 0.
    void option(text_range name, uint8_t &is_set) const
    {
        int16_t value = 0;
        if (const char *found = text(name); found != nullptr)
            is_set = scan_signed(found, value) && value != 0;
    }

    void small(text_range name, uint8_t &is_present, uint32_t &value) const
    {
        const char *found = text(name);
        int16_t scanned = 0;
        if (found == nullptr)
            return;
        is_present = scan_signed(found, scanned) && scanned >= 0 && scanned <= highest_submode;
        if (is_present)
            value = static_cast<uint32_t>(scanned);
    }
};

void read_sizes(const h263_reader &reader, h263_params &params)
{
    for (const picture_size &size : picture_sizes)
        reader.signed_number(size.name, params.*size.is_present, params.*size.value);
    if (const char *custom = reader.text("CUSTOM"); custom != nullptr)
        params.custom_present = dak_app_sdp_parse_h263_custom_param(custom, &params) == SDP_OA_SUCCESS;
    for (const annex &option : annexes)
        reader.option(option.name, params.*option.is_set);
    for (const submode &option : submodes)
        reader.small(option.name, params.*option.is_present, params.*option.value);
    const char *list = reader.text("P");
    if (list != nullptr && dak_app_sdp_parse_h263_ref_pic_param(list, &params) != SDP_OA_SUCCESS)
        params.p_count = 0;
}

// A text of 63 characters is cut to 62; a longer one is refused.
uint32_t read_cpcf(const h263_reader &reader, h263_params &params)
{
    const char *found = reader.text("CPCF");
    if (found == nullptr)
        return SDP_OA_SUCCESS;
    if (text_range(found).length() > longest_cpcf)
        return SDP_OA_UNUSABLE;
    copy_text(params.cpcf, longest_cpcf, found);
    params.cpcf_present = 1;
    return SDP_OA_SUCCESS;
}

// Refuses what the parsers of "CUSTOM" and "P" both refuse.
uint32_t check_list(const char *text, const h263_params *params)
{
    if (text == nullptr || params == nullptr) {
        DAK_LOG("dak_app_sdp_parse_h263_custom_param:Null params\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    if (text_range(text).length() < list_size)
        return SDP_OA_SUCCESS;
    return fail_as_too_long(list_size);
}

} // namespace

uint32_t dak_app_sdp_encode_h263_1998(media_description *md, uint16_t codec_index, void *block)
{
    if (md == nullptr || block == nullptr)
        return SDP_OA_BAD_PARAMETERS;
    auto &h263 = *static_cast<sdp_h263_1998_params *>(block);
    if (h263.fmtp_present == 0)
        return SDP_OA_SUCCESS;
    const uint32_t result = dak_app_sdp_encode_h263plus_params(md, codec_index, &h263.params);
    if (result == SDP_OA_SUCCESS)
        h263.h263_1998_params_valid = 1;
    return result;
}

uint32_t dak_app_sdp_decode_h263_1998(media_description *md, uint16_t codec_index, void *block)
{
    if (md == nullptr || block == nullptr)
        return SDP_OA_NO_RTPMAP;
    auto &h263 = *static_cast<sdp_h263_1998_params *>(block);
    const uint32_t result = dak_app_sdp_decode_h263plus_params(md, codec_index, &h263.params);
    h263.fmtp_present = result == SDP_OA_SUCCESS;
    h263.h263_1998_params_valid = h263.fmtp_present;
    return result;
}

uint32_t dak_app_sdp_encode_h263_2000(media_description *md, uint16_t codec_index, void *block)
{
    if (md == nullptr || block == nullptr)
        return SDP_OA_NO_RTPMAP;
    const auto &h263 = *static_cast<const sdp_h263_2000_params *>(block);
    if (h263.fmtp_present == 0)
        return SDP_OA_SUCCESS;
    parameter_writer writer(md, codec_index);
    writer.integer(h263.profile_present, unsigned_of(h263.profile), "profile")
        .integer(h263.level_present, unsigned_of(h263.level), "level")
        .integer(h263.interlace != 0, h263.interlace, "interlace");
    if (writer.result() != SDP_OA_SUCCESS)
        return writer.result();
    return dak_app_sdp_encode_h263plus_params(md, codec_index, &h263.params);
}

uint32_t dak_app_sdp_decode_h263_2000(media_description *md, uint16_t codec_index, void *block)
{
    if (md == nullptr || block == nullptr)
        return SDP_OA_NO_RTPMAP;
    auto &h263 = *static_cast<sdp_h263_2000_params *>(block);
    const h263_reader reader(md, codec_index);
    h263.profile_present = 0;
    h263.level_present = 0;
    h263.interlace = 0;
    reader.signed_number("profile", h263.profile_present, h263.profile);
    reader.signed_number("level", h263.level_present, h263.level);
    reader.option("interlace", h263.interlace);
    const uint32_t result = dak_app_sdp_decode_h263plus_params(md, codec_index, &h263.params);
    h263.fmtp_present = result == SDP_OA_SUCCESS;
    h263.h263_2000_params_valid = h263.fmtp_present;
    return result;
}

uint32_t dak_app_sdp_encode_h263plus_params(media_description *md, uint16_t codec_index,
                                            const h263_params *params)
{
    if (md == nullptr || params == nullptr)
        return SDP_OA_NO_RTPMAP;
    parameter_writer writer(md, codec_index);
    write_sizes(writer, *params);
    if (writer.result() == SDP_OA_SUCCESS && params->p_count > most_packed_submodes) {
        DAK_LOG("dak_app_sdp_encode_h263plus_params: Length              not sufficient to pack submodes ");
        return SDP_OA_TOO_LONG;
    }
    write_options(writer, *params);
    return writer.result();
}

uint32_t dak_app_sdp_decode_h263plus_params(media_description *md, uint16_t codec_index, h263_params *params)
{
    if (md == nullptr || params == nullptr)
        return SDP_OA_NO_RTPMAP;
    const h263_reader reader(md, codec_index);
    read_sizes(reader, *params);
    reader.signed_number("PAR", params->par_present, params->par);
    const uint32_t result = read_cpcf(reader, *params);
    if (result != SDP_OA_SUCCESS)
        return result;
    reader.signed_number("BPP", params->bpp_present, params->bpp);
    reader.option("HRD", params->hrd);
    return SDP_OA_SUCCESS;
}

uint32_t dak_app_sdp_parse_h263_custom_param(const char *text, h263_params *params)
{
    const uint32_t result = check_list(text, params);
    if (result != SDP_OA_SUCCESS)
        return result;
    text_range rest(text);
    const bool is_read = scan_signed(rest.take_token(delimiters), params->custom_x) &&
                         scan_signed(rest.take_token(delimiters), params->custom_y) &&
                         scan_signed(rest.take_token(delimiters), params->custom_mpi);
    return is_read ? SDP_OA_SUCCESS : SDP_OA_UNUSABLE;
}

uint32_t dak_app_sdp_parse_h263_ref_pic_param(const char *text, h263_params *params)
{
    const uint32_t result = check_list(text, params);
    if (result != SDP_OA_SUCCESS)
        return result;
    text_range rest(text);
    uint32_t count = 0;
    int16_t mode = 0;
    while (scan_signed(rest.take_token(delimiters), mode)) {
        if (mode < 0 || mode > highest_submode || count == most_submodes)
            return SDP_OA_UNUSABLE;
        params->p_modes[count++] = static_cast<uint32_t>(mode);
    }
    if (count == 0)
        return SDP_OA_UNUSABLE;
    params->p_count = count;
    return SDP_OA_SUCCESS;
}
