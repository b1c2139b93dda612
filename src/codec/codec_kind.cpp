#include "codec/codec_kind.h"

#include "codec/codec_kinds.hpp"
#include "codec/fmtp_encode.h"
#include "codec/media_value.h"
#include "sdp/codec_access.hpp"
#include "util/bounded_text.hpp"

using namespace dak;

namespace {

struct codec_kind {
    const char *const *slots;
    uint8_t count;
    const char *separator;
};

int write_names(char (*names)[200], const char *const *slots, int count)
{
    for (int i = 0; i < count; i++) {
        if (!copy_constant(names[i], slots[i]))
            return 0;
    }
    return 1;
}

int initialise(const codec_kind &kind, media_codec *codec)
{
    if (codec == nullptr)
        return fail();
    if (!write_names(codec->info.param_name, kind.slots, kind.count))
        return 0;
    for (int i = 0; i < kind.count; i++) {
        codec->info.param_value[i][0] = '\0';
        codec->info.param_present[i] = 0;
    }
    return 1;
}

int set_value(const codec_kind &kind, const media_description *description, int index, const char *name,
              const char *value)
{
    media_codec *codec = codec_at(description, index);
    if (codec == nullptr)
        return 0;
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
    char scratch[200];
    media_info &info = codec->info;
    const auto payload_number = static_cast<uint16_t>(description->payload_numbers[index]);
    return dak_sdp_encode_a_equal_fmtp_line(kind.count, info.param_present, payload_number, scratch, context,
                                            info.param_name, info.param_value, kind.separator);
}

#define DAK_KIND(kind, init, set, get, encode, separator, ...) \
    constexpr const char *kind##_slots[] = {__VA_ARGS__}; \
    static_assert(sizeof kind##_slots / sizeof *kind##_slots <= MEDIA_INFO_MAX_SLOTS); \
    constexpr codec_kind kind = {kind##_slots, sizeof kind##_slots / sizeof *kind##_slots, separator};
DAK_CODEC_KINDS(DAK_KIND)

// What tells telephone-event from the other kinds: the line holds its one value without a name. A value that
// comes without a name is the event list; writing it drops the slot's name for good.
const char *setter_name(const codec_kind &kind, const char *name)
{
    const bool is_nameless = name == nullptr || *name == '\0';
    return &kind == &telephone_event && is_nameless ? telephone_event_slots[0] : name;
}

void prepare_writing(const codec_kind &kind, const media_description *description, int index)
{
    if (&kind == &telephone_event && description != nullptr && has_codec(*description, index))
        description->codecs[index].info.param_name[0][0] = '\0';
}

} // namespace

#define DAK_KIND_EXPORTS(kind, init_name, set_name, get_name, encode_name, ...) \
    int init_name(media_codec *codec) { return initialise(kind, codec); } \
    int set_name(media_description *description, int index, const char *name, const char *value) \
    { \
        return set_value(kind, description, index, setter_name(kind, name), value); \
    } \
    const char *get_name(media_description *description, int index, const char *name) \
    { \
        return get_value(kind, description, index, name); \
    } \
    int encode_name(sdp_lib_context *context, media_description *description, int index) \
    { \
        prepare_writing(kind, description, index); \
        return encode(kind, context, description, index); \
    }
DAK_CODEC_KINDS(DAK_KIND_EXPORTS)

int init_h263_common_params(char (*param_name)[200])
{
    return param_name != nullptr ? write_names(param_name, h263_1998_slots, h263_1998.count) : fail();
}
