#include "oa/codec/evrc.h"

#include "codec/media_value.h"
#include "oa/codec/dtx.h"
#include "oa/codec/fmtp_setter.hpp"
#include "oa/codec/mode_list.hpp"
#include "oa/result_code.h"
#include "util/fixed_text.hpp"
#include "util/number.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr size_t list_size = 256;
constexpr size_t number_size = 21;
constexpr uint16_t highest_mode = 7;
constexpr mode_list_rule evrc_modes = {
    highest_mode, 8,
    "dak_app_sdp_decode_evrc_mode:Invalid EVRC                                             mode :%ld\n"};

// How a member treats the list behind its sendmode.
enum class second_list : uint8_t { none, recvmode, mode_set_recv };

// Where a block has a presence flag and the field that it belongs to; 0 for one that the block lacks. With
// places instead of types, one function serves the blocks of all nine members.
struct field_offsets {
    uint8_t is_present = 0;
    uint8_t value = 0;
};

struct evrc_layout {
    uint8_t dtx;
    field_offsets maxinterleave = {};
    field_offsets fixedrate = {};
    field_offsets sendmode = {};
    field_offsets recvmode = {};
    field_offsets mode_set_recv = {};
};

template <typename Block> constexpr evrc_layout layout_of(Block block = {})
{
    evrc_layout layout = {offsetof(Block, dtx)};
    if constexpr (requires { block.maxinterleave; }) {
        static_assert(__is_same(decltype(block.maxinterleave), uint16_t));
        layout.maxinterleave = {offsetof(Block, maxinterleave_present), offsetof(Block, maxinterleave)};
    }
    if constexpr (requires { block.fixedrate; }) {
        static_assert(__is_same(decltype(block.fixedrate), uint32_t));
        layout.fixedrate = {offsetof(Block, fixedrate_present), offsetof(Block, fixedrate)};
    }
    if constexpr (requires { block.sendmode; }) {
        layout.sendmode = {offsetof(Block, sendmode_present), offsetof(Block, sendmode)};
        layout.mode_set_recv = {offsetof(Block, mode_set_recv_present), offsetof(Block, mode_set_recv)};
    }
    if constexpr (requires { block.recvmode; })
        layout.recvmode = {offsetof(Block, recvmode_present), offsetof(Block, recvmode)};
    return layout;
}

// What tells the nine members apart. A text that a member has no use for is null.
struct evrc_member {
    second_list second;
    bool passes_over_modes; // a mode that is refused does not end the encoding
    evrc_layout layout;
    fixed_text<42> encode_null;
    fixed_text<100> decode_null;
    const char *no_modes;
    const char *maxinterleave_refused;
    const char *invalid_mode; // with one %d
};

constexpr const char *invalid_evrcb_mode = "Invalid EVRCB mode %d";
constexpr const char *invalid_evrcwb_mode = "Invalid EVRCWB mode %d";

constexpr evrc_member evrc = {
    second_list::none,
    false,
    layout_of<sdp_evrc_params>(),
    "dak_app_sdp_encode_evrc:No fmtp/mline\n",
    "dak_app_sdp_decode_evrc:No fmtp/parsed                                                    media\n",
    nullptr,
    "dak_app_sdp_encode_evrc:Invalid Maxinterleave                                    info\n",
    nullptr};
constexpr evrc_member evrc0 = {
    second_list::none,
    false,
    layout_of<sdp_evrc0_params>(),
    "dak_app_sdp_encode_evrc0:No fmtp/mline\n",
    "dak_app_sdp_decode_evrc0:No fmtp/parsed                                                    media\n",
    nullptr,
    nullptr,
    nullptr};
constexpr evrc_member evrc1 = {
    second_list::none,
    false,
    layout_of<sdp_evrc1_params>(),
    "dak_app_sdp_encode_evrc1:No fmtp/mline\n",
    "dak_app_sdp_decode_evrc1:No fmtp/parsed                                                    media\n",
    nullptr,
    nullptr,
    nullptr};
// EVRCB's decoder bears the name of EVRC's in its text.
constexpr evrc_member evrcb = {
    second_list::recvmode,
    true,
    layout_of<sdp_evrcb_params>(),
    "dak_app_sdp_encode_evrcb:No fmtp/mline\n",
    "dak_app_sdp_decode_evrc:No fmtp/parsed                                                    media\n",
    "dak_app_sdp_encode_evrcb:No EVRC mode\n",
    "dak_app_sdp_encode_evrcb:Invalid Maxinterleave                                    info\n",
    invalid_evrcb_mode};
constexpr evrc_member evrcb0 = {
    second_list::recvmode,
    false,
    layout_of<sdp_evrcb0_params>(),
    "dak_app_sdp_encode_evrcb0:No fmtp/mline\n",
    "dak_app_sdp_decode_evrcb0:No fmtp/parsed                                                    media\n",
    "dak_app_sdp_encode_evrcb0:No EVRC mode\n",
    nullptr,
    invalid_evrcb_mode};
constexpr evrc_member evrcb1 = {
    second_list::none,
    false,
    layout_of<sdp_evrc1_params>(),
    "dak_app_sdp_encode_evrcb1:No fmtp/mline\n",
    "dak_app_sdp_decode_evrcb1:No fmtp/parsed                                                    media\n",
    nullptr,
    nullptr,
    nullptr};
constexpr evrc_member evrcwb = {
    second_list::mode_set_recv,
    false,
    layout_of<sdp_evrcb_params>(),
    "dak_app_sdp_encode_evrcwb:No fmtp/mline\n",
    "dak_app_sdp_decode_evrcwb:No fmtp/parsed                                                    media\n",
    "dak_app_sdp_encode_evrcwb:No EVRC mode\n",
    "dak_app_sdp_encode_evrcwb:Invalid Maxinterleave                                   info\n",
    invalid_evrcwb_mode};
constexpr evrc_member evrcwb0 = {
    second_list::mode_set_recv,
    false,
    layout_of<sdp_evrcb0_params>(),
    "dak_app_sdp_encode_evrcwb0:No fmtp/mline\n",
    "dak_app_sdp_decode_evrcwb0:No fmtp/parsed                                                    media\n",
    "dak_app_sdp_encode_evrcwb0:No EVRC mode\n",
    nullptr,
    invalid_evrcwb_mode};
constexpr evrc_member evrcwb1 = {
    second_list::mode_set_recv,
    false,
    layout_of<sdp_evrcwb1_params>(),
    "dak_app_sdp_encode_evrcwb1:No fmtp/mline\n",
    "dak_app_sdp_decode_evrcwb1:No fmtp/parsed                                                    media\n",
    "dak_app_sdp_encode_evrcwb1:No EVRC mode\n",
    nullptr,
    invalid_evrcwb_mode};

// A field of a block and its presence flag; both null where the block lacks it.
template <typename Value> struct evrc_field {
    uint8_t *is_present = nullptr;
    Value *value = nullptr;
};
using mode_field = evrc_field<uint8_t>;

struct evrc_fields {
    sdp_params_frame *frame;
    dtx_params *dtx;
    evrc_field<uint16_t> maxinterleave;
    evrc_field<uint32_t> fixedrate;
    mode_field sendmode;
    mode_field recvmode;
    mode_field mode_set_recv;
};

template <typename Value> evrc_field<Value> field_at(void *block, field_offsets offsets)
{
    char *start = static_cast<char *>(block);
    if (offsets.value == 0)
        return {};
    return {reinterpret_cast<uint8_t *>(start + offsets.is_present),
            reinterpret_cast<Value *>(start + offsets.value)};
}

evrc_fields fields_of(const evrc_layout &layout, void *block)
{
    return {static_cast<sdp_params_frame *>(block),
            reinterpret_cast<dtx_params *>(static_cast<char *>(block) + layout.dtx),
            field_at<uint16_t>(block, layout.maxinterleave),
            field_at<uint32_t>(block, layout.fixedrate),
            field_at<uint8_t>(block, layout.sendmode),
            field_at<uint8_t>(block, layout.recvmode),
            field_at<uint8_t>(block, layout.mode_set_recv)};
}

// One payload format on its way to or from the block of one member.
struct evrc_codec {
    const evrc_member &member;
    media_description *md;
    uint16_t codec_index;
    evrc_fields block;
};

uint32_t encode_maxinterleave(const evrc_codec &codec)
{
    if (codec.block.maxinterleave.value == nullptr || *codec.block.maxinterleave.is_present == 0)
        return SDP_OA_SUCCESS;
    built_text<number_size> text;
    if (!text.add_number(*codec.block.maxinterleave.value).fits())
        return fail_as_truncated(number_size);
    if (set_media_value(codec.md, codec.codec_index, "maxinterleave", text.c_str()))
        return SDP_OA_SUCCESS;
    log_text(codec.member.maxinterleave_refused);
    return SDP_OA_INVALID_CONTENT;
}

uint32_t encode_modes(const evrc_codec &codec, mode_field field, const char *name)
{
    char modes[list_size];
    if (field.value == nullptr || *field.is_present != 1)
        return SDP_OA_SUCCESS;
    if (!dak_app_sdp_encode_evrc_mode(modes, *field.value)) {
        log_text(codec.member.no_modes);
        return SDP_OA_BAD_PARAMETERS;
    }
    return dak_app_sdp_set_string_inmline(codec.md, codec.codec_index, modes, name);
}

uint32_t encode_mode_lists(const evrc_codec &codec)
{
    const uint32_t result = encode_modes(codec, codec.block.sendmode, "sendmode");
    if (result != SDP_OA_SUCCESS || codec.member.second == second_list::none)
        return result;
    if (codec.member.second == second_list::recvmode)
        return encode_modes(codec, codec.block.recvmode, "recvmode");
    return encode_modes(codec, codec.block.mode_set_recv, "mode-set-recv");
}

sdp_fixedrate_part fixedrate_of(const evrc_fields &block)
{
    return {block.frame->params_valid, *block.fixedrate.is_present, *block.fixedrate.value};
}

uint32_t encode_fixedrate(const evrc_codec &codec)
{
    if (codec.block.fixedrate.value == nullptr)
        return SDP_OA_SUCCESS;
    return dak_app_sdp_encode_evrc1_fixed_rate(codec.md, codec.codec_index, fixedrate_of(codec.block));
}

uint32_t encode(const evrc_codec &codec)
{
    if (codec.block.frame->fmtp_present == 0)
        return SDP_OA_SUCCESS;
    uint32_t result = encode_maxinterleave(codec);
    if (result != SDP_OA_SUCCESS)
        return result;
    result = encode_mode_lists(codec);
    if (result != SDP_OA_SUCCESS && !codec.member.passes_over_modes)
        return result;
    result = encode_fixedrate(codec);
    if (result != SDP_OA_SUCCESS)
        return result;
    return dak_app_sdp_encode_dtx(codec.md, codec.codec_index, *codec.block.dtx);
}

const char *text_of(const evrc_codec &codec, const char *name)
{
    return get_media_value(codec.md, codec.codec_index, name);
}

void decode_maxinterleave(const evrc_codec &codec)
{
    if (codec.block.maxinterleave.value == nullptr)
        return;
    if (const char *text = text_of(codec, "maxinterleave"); text != nullptr)
        *codec.block.maxinterleave.is_present = scan_signed(text, *codec.block.maxinterleave.value);
}

// Reads a single mode; it replaces the map, or adds to it.
uint32_t decode_mode(const evrc_codec &codec, mode_field field, const char *name, bool adds)
{
    const char *text = field.value != nullptr ? text_of(codec, name) : nullptr;
    uint16_t mode = 0;
    if (text == nullptr)
        return SDP_OA_SUCCESS;
    *field.is_present = 0;
    if (!scan_signed(text, mode))
        return SDP_OA_SUCCESS;
    if (mode > highest_mode) {
        DAK_LOG(codec.member.invalid_mode, static_cast<int>(*field.value));
        return SDP_OA_INVALID_CONTENT;
    }
    *field.is_present = 1;
    *field.value = static_cast<uint8_t>((adds ? *field.value : 0U) | (1U << mode));
    return SDP_OA_SUCCESS;
}

uint32_t decode_mode_lists(const evrc_codec &codec)
{
    const uint32_t result = decode_mode(codec, codec.block.sendmode, "sendmode", false);
    if (result != SDP_OA_SUCCESS || codec.member.second == second_list::none)
        return result;
    if (codec.member.second == second_list::recvmode)
        return decode_mode(codec, codec.block.recvmode, "recvmode", true);
    const char *text = text_of(codec, "mode-set-recv");
    if (text == nullptr)
        return SDP_OA_SUCCESS;
    return dak_app_sdp_decode_evrc_mode(text, codec.block.mode_set_recv.is_present,
                                        codec.block.mode_set_recv.value);
}

uint32_t decode_fixedrate(const evrc_codec &codec)
{
    if (codec.block.fixedrate.value == nullptr)
        return SDP_OA_SUCCESS;
    sdp_fixedrate_part part = fixedrate_of(codec.block);
    const uint32_t result = dak_app_sdp_decode_evrc1_fixed_rate(codec.md, codec.codec_index, &part);
    *codec.block.fixedrate.is_present = part.fixedrate_present;
    *codec.block.fixedrate.value = part.fixedrate;
    return result;
}

uint32_t decode(const evrc_codec &codec)
{
    codec.block.frame->fmtp_present = 1;
    codec.block.frame->params_valid = 1;
    decode_maxinterleave(codec);
    uint32_t result = decode_mode_lists(codec);
    if (result == SDP_OA_SUCCESS)
        result = decode_fixedrate(codec);
    if (result == SDP_OA_SUCCESS)
        result = dak_app_sdp_decode_dtx(codec.md, codec.codec_index, codec.block.dtx);
    return result;
}

uint32_t encode_block(const evrc_member &member, media_description *md, uint16_t codec_index, void *block)
{
    if (md != nullptr && block != nullptr)
        return encode({member, md, codec_index, fields_of(member.layout, block)});
    log_text(member.encode_null.c_str());
    return SDP_OA_BAD_PARAMETERS;
}

uint32_t decode_block(const evrc_member &member, media_description *md, uint16_t codec_index, void *block)
{
    if (md != nullptr && block != nullptr)
        return decode({member, md, codec_index, fields_of(member.layout, block)});
    log_text(member.decode_null.c_str());
    return SDP_OA_BAD_PARAMETERS;
}

} // namespace

#define DAK_EVRC_EXPORTS(member) \
    uint32_t dak_app_sdp_encode_##member(media_description *md, uint16_t codec_index, void *block) \
    { \
        return encode_block(member, md, codec_index, block); \
    } \
    uint32_t dak_app_sdp_decode_##member(media_description *md, uint16_t codec_index, void *block) \
    { \
        return decode_block(member, md, codec_index, block); \
    }
DAK_EVRC_EXPORTS(evrc)
DAK_EVRC_EXPORTS(evrc0)
DAK_EVRC_EXPORTS(evrc1)
DAK_EVRC_EXPORTS(evrcb)
DAK_EVRC_EXPORTS(evrcb0)
DAK_EVRC_EXPORTS(evrcb1)
DAK_EVRC_EXPORTS(evrcwb)
DAK_EVRC_EXPORTS(evrcwb0)
DAK_EVRC_EXPORTS(evrcwb1)

int dak_app_sdp_encode_evrc_mode(char *out, uint8_t mode_map)
{
    if (out == nullptr) {
        DAK_LOG("dak_app_sdp_encode_evrc_mode:Bad buffer\n");
        return 0;
    }
    text_writer modes(out, list_size);
    const int overflowed = add_modes(modes, mode_map);
    modes.terminate();
    if (overflowed < 0)
        return 1;
    if (overflowed != 3) {
        fail_as_truncated(list_size);
        return 0;
    }
    DAK_LOG("len of str printed exceeded dst str len %u \n", static_cast<unsigned>(list_size));
    return fail();
}

uint32_t dak_app_sdp_decode_evrc_mode(const char *text, uint8_t *present, uint8_t *mode_map)
{
    if (text == nullptr || present == nullptr || mode_map == nullptr) {
        DAK_LOG("dak_app_sdp_decode_evrc_mode: Null params\n");
        return SDP_OA_NO_RTPMAP;
    }
    uint32_t modes = *mode_map;
    const uint32_t result = read_modes(text, evrc_modes, *present, modes);
    *mode_map = static_cast<uint8_t>(modes);
    return result;
}

uint32_t dak_app_sdp_encode_evrc1_fixed_rate(media_description *md, uint16_t codec_index,
                                             sdp_fixedrate_part part)
{
    char rate[number_size];
    if (part.fixedrate_present == 0)
        return SDP_OA_SUCCESS;
    const uint32_t result = dak_app_sdp_encode_conv_evrc1_rate(part.fixedrate, rate);
    if (result != SDP_OA_SUCCESS)
        return result;
    return set_media_value(md, codec_index, "fixedrate", rate) ? SDP_OA_SUCCESS : SDP_OA_INVALID_CONTENT;
}

uint32_t dak_app_sdp_decode_evrc1_fixed_rate(media_description *md, uint16_t codec_index,
                                             sdp_fixedrate_part *part)
{
    if (md == nullptr || part == nullptr)
        return SDP_OA_BAD_PARAMETERS;
    const char *text = get_media_value(md, codec_index, "fixedrate");
    if (text == nullptr)
        return SDP_OA_SUCCESS;
    const uint32_t result = dak_app_sdp_decode_conv_evrc1_rate(text, &part->fixedrate);
    part->fixedrate_present = result == SDP_OA_SUCCESS;
    return result;
}

uint32_t dak_app_sdp_encode_conv_evrc1_rate(uint32_t rate, char *out)
{
    if (out == nullptr)
        return SDP_OA_BAD_PARAMETERS;
    const bool is_rate = rate == SDP_EVRC_HALF_RATE || rate == SDP_EVRC_FULL_RATE;
    copy_text(out, number_size, !is_rate ? "0" : rate == SDP_EVRC_HALF_RATE ? "0.5" : "1");
    if (is_rate)
        return SDP_OA_SUCCESS;
    DAK_LOG("Invalid evrcfixedrate");
    return SDP_OA_INVALID_CONTENT;
}

uint32_t dak_app_sdp_decode_conv_evrc1_rate(const char *text, uint32_t *rate)
{
    if (text == nullptr || rate == nullptr)
        return SDP_OA_BAD_PARAMETERS;
    const text_range value(text);
    *rate = value.equals("0.5") ? SDP_EVRC_HALF_RATE
            : value.equals("1") ? SDP_EVRC_FULL_RATE
                                : SDP_EVRC_INVALID_RATE;
    if (*rate != SDP_EVRC_INVALID_RATE)
        return SDP_OA_SUCCESS;
    DAK_LOG("Invalid evrcfixedrate");
    return SDP_OA_INVALID_CONTENT;
}
