#include "oa/codec/fmtp_setter.hpp"

#include "codec/media_value.h"
#include "codec/parameters.hpp"
#include "sdp/codec_access.hpp"
#include "util/bounded_text.hpp"

using namespace dak;

namespace {

constexpr size_t number_size = 21;
constexpr const char *invalid_integer =
    "dak_app_sdp_set_int_inmline:Invalid                             edia info\n";
constexpr const char *invalid_text =
    "dak_app_sdp_set_string_inmline:Invalid media                                                       info\n";
constexpr const char *invalid_flag =
    "dak_app_sdp_set_bool_inmline:Invalid media                                                         value\n";

uint32_t set_value(media_description *md, uint16_t codec_index, const char *value, const char *name,
                   const char *failure)
{
    if (set_media_value(md, codec_index, name, value))
        return SDP_OA_SUCCESS;
    log_text(failure);
    return SDP_OA_INVALID_CONTENT;
}

} // namespace

parameter_writer::parameter_writer(media_description *md, uint16_t codec_index)
    : codec_(has_codec(*md, codec_index) ? &md->codecs[codec_index] : nullptr),
      kind_(codec_ != nullptr ? find_kind(*codec_) : nullptr)
{
    if (kind_ != nullptr && kind_->count == 0)
        kind_ = nullptr;
}

void parameter_writer::set_integer(int32_t value, text_range name)
{
    if (char *room = room_for(name, invalid_integer); room != nullptr)
        text_writer(room, number_size).add_signed(value).terminate();
}

void parameter_writer::set_flag(bool value, text_range name)
{
    if (char *room = room_for(name, invalid_flag); room != nullptr)
        text_writer(room, number_size).add(value ? '1' : '0').terminate();
}

void parameter_writer::set_text(text_range value, text_range name)
{
    if (kind_ == nullptr || !set_parameter(*codec_, *kind_, name, value))
        refuse(invalid_text);
}

char *parameter_writer::room_for(text_range name, const char *failure)
{
    if (kind_ != nullptr)
        return set_parameter_room(*codec_, *kind_, name);
    refuse(failure);
    return nullptr;
}

// Asking for a format that is not there is reported.
void parameter_writer::refuse(const char *failure)
{
    if (codec_ == nullptr)
        dak_assert_failed();
    log_text(failure);
    result_ = SDP_OA_INVALID_CONTENT;
}

uint32_t dak_app_sdp_set_int_inmline(media_description *md, uint16_t codec_index, int32_t value,
                                     const char *name)
{
    built_text<number_size> text;
    text.add_signed(value);
    return set_value(md, codec_index, text.c_str(), name, invalid_integer);
}

uint32_t dak_app_sdp_set_string_inmline(media_description *md, uint16_t codec_index, const char *value,
                                        const char *name)
{
    return set_value(md, codec_index, value, name, invalid_text);
}

uint32_t dak_app_sdp_set_bool_inmline(media_description *md, uint16_t codec_index, int32_t value,
                                      const char *name)
{
    return set_value(md, codec_index, value != 0 ? "1" : "0", name, invalid_flag);
}
