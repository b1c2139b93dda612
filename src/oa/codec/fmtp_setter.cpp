#include "oa/codec/fmtp_setter.h"

#include "codec/media_value.h"
#include "oa/codec/fmtp_setter.hpp"
#include "util/bounded_text.hpp"

using namespace dak;

namespace {

constexpr size_t number_size = 21;

uint32_t set_value(media_description *md, uint16_t codec_index, const char *value, const char *name,
                   const char *failure)
{
    if (set_media_value(md, codec_index, name, value))
        return SDP_OA_SUCCESS;
    log_text(failure);
    return SDP_OA_INVALID_CONTENT;
}

} // namespace

uint32_t dak_app_sdp_set_int_inmline(media_description *md, uint16_t codec_index, int32_t value,
                                     const char *name)
{
    built_text<number_size> text;
    if (!text.add_signed(value).fits())
        return fail_as_truncated(number_size);
    return set_value(md, codec_index, text.c_str(), name,
                     "dak_app_sdp_set_int_inmline:Invalid                             edia info\n");
}

uint32_t dak_app_sdp_set_string_inmline(media_description *md, uint16_t codec_index, const char *value,
                                        const char *name)
{
    return set_value(
        md, codec_index, value, name,
        "dak_app_sdp_set_string_inmline:Invalid media                                                       info\n");
}

uint32_t dak_app_sdp_set_bool_inmline(media_description *md, uint16_t codec_index, int32_t value,
                                      const char *name)
{
    return set_value(
        md, codec_index, value != 0 ? "1" : "0", name,
        "dak_app_sdp_set_bool_inmline:Invalid media                                                         value\n");
}
