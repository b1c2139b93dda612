#include "codec/codec_kind.h"

#include "codec/codec_kinds.hpp"
#include "codec/media_value.h"
#include "codec/parameters.hpp"
#include "sdp/codec_access.hpp"

using namespace dak;

namespace {

int initialise(const codec_kind &kind, media_codec *codec)
{
    if (codec == nullptr)
        return fail();
    prepare_parameters(*codec, kind);
    return 1;
}

int set_value(const codec_kind &kind, const media_description *description, int index, const char *name,
              const char *value)
{
    media_codec *codec = codec_at(description, index);
    if (codec == nullptr)
        return 0;
    // What tells telephone-event from the other kinds: its line holds the one value without a name.
    const bool is_nameless = name == nullptr || *name == '\0';
    if (is_nameless && &kind == &kinds::telephone_event)
        name = kind.slots[0].c_str();
    media_info &info = codec->info;
    return set_attr_value_by_mime(name, value, info.param_name, info.param_value, info.param_present,
                                  kind.count);
}

const char *get_value(const codec_kind &kind, const media_description *description, int index,
                      const char *name)
{
    media_codec *codec = codec_at(description, index);
    if (codec == nullptr)
        return nullptr;
    media_info &info = codec->info;
    return get_attr_value_by_mime(name, info.param_name, info.param_value, info.param_present, kind.count);
}

int encode(const codec_kind &kind, sdp_lib_context *context, const media_description *description, int index)
{
    media_codec *codec = codec_at(description, index);
    if (codec == nullptr)
        return 0;
    const auto payload_number = static_cast<uint16_t>(description->payload_numbers[index]);
    return write_fmtp_line(context, payload_number, *codec, kind);
}

} // namespace

void dak::prepare_parameters(media_codec &codec, const codec_kind &kind)
{
    for (int i = 0; i < kind.count; i++) {
        kind.slots[i].copy_to(codec.info.param_name[i]);
        codec.info.param_value[i][0] = '\0';
        codec.info.param_present[i] = 0;
    }
}

#define DAK_KIND_EXPORTS(kind, init_name, set_name, get_name, encode_name, ...) \
    int init_name(media_codec *codec) { return initialise(kinds::kind, codec); } \
    int set_name(media_description *description, int index, const char *name, const char *value) \
    { \
        return set_value(kinds::kind, description, index, name, value); \
    } \
    const char *get_name(media_description *description, int index, const char *name) \
    { \
        return get_value(kinds::kind, description, index, name); \
    } \
    int encode_name(sdp_lib_context *context, media_description *description, int index) \
    { \
        return encode(kinds::kind, context, description, index); \
    }
DAK_CODEC_KINDS(DAK_KIND_EXPORTS)

int init_h263_common_params(char (*param_name)[200])
{
    if (param_name == nullptr)
        return fail();
    for (int i = 0; i < kinds::h263_1998.count; i++)
        kinds::h263_1998.slots[i].copy_to(param_name[i]);
    return 1;
}
