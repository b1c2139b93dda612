#include "codec/media_value.h"

#include "codec/parameters.hpp"
#include "sdp/codec_access.hpp"
#include "util/bounded_text.hpp"

using namespace dak;

namespace {

constexpr int no_slot = -1;

int find_slot(text_range name, char (*names)[200], int count)
{
    for (int i = 0; !name.empty() && i < count && i < MEDIA_INFO_MAX_SLOTS; i++) {
        if (equal_ignoring_case(names[i], name))
            return i;
    }
    return no_slot;
}

// Whether a slot of a record bears a name. That is the kind's, whose length is known, unless it was dropped.
bool is_named(const media_info &info, const codec_kind &kind, int slot, text_range name)
{
    return kind.slots[slot].length() == name.length() && equal_ignoring_case(info.param_name[slot], name);
}

int find_slot(text_range name, const media_info &info, const codec_kind &kind)
{
    for (int i = 0; !name.empty() && i < kind.count; i++) {
        if (is_named(info, kind, i, name))
            return i;
    }
    return no_slot;
}

int store(int slot, text_range value, char (*values)[200], uint32_t *present)
{
    if (slot == no_slot) {
        DAK_LOG("Unsupported parameter ");
        return 1;
    }
    if (value.length() >= sizeof values[slot]) {
        copy_text(values[slot], value);
        DAK_LOG("Src str length exceeded dst str %d \n", static_cast<int>(sizeof values[slot]));
        return fail();
    }
    copy_text(values[slot], value.trimmed_end());
    present[slot] = 1;
    return 1;
}

// The codec that setting and getting are asked for, and the name without the blanks around it.
media_codec *prepare(const media_description *description, int index, const char *name, text_range &wanted)
{
    if (description == nullptr || name == nullptr)
        return fail_null();
    media_codec *codec = codec_at(description, index);
    if (codec == nullptr)
        return nullptr;
    wanted = name;
    constexpr size_t size = sizeof codec->info.param_name[0];
    if (wanted.length() >= size) {
        DAK_LOG("Src str length exceeded dst str %d \n", static_cast<int>(size));
        return fail_null();
    }
    wanted = wanted.trimmed();
    return codec;
}

} // namespace

int dak::set_parameter(media_codec &codec, const codec_kind &kind, text_range name, text_range value)
{
    if (kind.count == 0)
        return 0;
    if (name.empty() && &kind == &kinds::telephone_event)
        name = kind.slots[0];
    media_info &info = codec.info;
    return store(find_slot(name, info, kind), value, info.param_value, info.param_present);
}

char *dak::set_parameter_room(media_codec &codec, const codec_kind &kind, text_range name)
{
    const int slot = find_slot(name, codec.info, kind);
    if (slot == no_slot) {
        DAK_LOG("Unsupported parameter ");
        return nullptr;
    }
    codec.info.param_present[slot] = 1;
    return codec.info.param_value[slot];
}

uint32_t dak::set_slots(const media_codec &codec, const codec_kind &kind)
{
    uint32_t slots = 0;
    for (int i = 0; i < kind.count; i++)
        slots |= uint32_t{codec.info.param_present[i] == 1} << i;
    return slots;
}

const char *dak::get_parameter(media_codec &codec, const codec_kind &kind, uint32_t slots, text_range name)
{
    for (; !name.empty() && slots != 0; slots &= slots - 1) {
        const int slot = __builtin_ctz(slots);
        if (is_named(codec.info, kind, slot, name))
            return codec.info.param_value[slot];
    }
    return nullptr;
}

int set_media_value(media_description *description, int index, const char *name, const char *value)
{
    if (value == nullptr)
        return fail();
    text_range wanted(name, name);
    media_codec *codec = prepare(description, index, name, wanted);
    const codec_kind *kind = codec != nullptr ? find_kind(*codec) : nullptr;
    return kind != nullptr ? set_parameter(*codec, *kind, wanted, value) : 0;
}

const char *get_media_value(media_description *description, int index, const char *name)
{
    text_range wanted(name, name);
    media_codec *codec = prepare(description, index, name, wanted);
    const codec_kind *kind = codec != nullptr ? find_kind(*codec) : nullptr;
    return kind != nullptr ? get_parameter(*codec, *kind, set_slots(*codec, *kind), wanted) : nullptr;
}

int set_attr_value_by_mime(const char *name, const char *value, char (*names)[200], char (*values)[200],
                           uint32_t *present, uint8_t count)
{
    if (value == nullptr || names == nullptr || values == nullptr || present == nullptr)
        return fail();
    return store(find_slot(name != nullptr ? name : "", names, count), value, values, present);
}

const char *get_attr_value_by_mime(const char *name, char (*names)[200], char (*values)[200],
                                   const uint32_t *present, uint8_t count)
{
    if (name == nullptr || names == nullptr || values == nullptr || present == nullptr)
        return fail_null();
    const int slot = find_slot(name, names, count);
    return slot != no_slot && present[slot] == 1 ? values[slot] : nullptr;
}
