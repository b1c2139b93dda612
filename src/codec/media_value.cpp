#include "codec/media_value.h"

#include "codec/parameters.hpp"
#include "sdp/codec_access.hpp"
#include "util/bounded_text.hpp"

using namespace dak;

namespace {

constexpr int no_slot = -1;

// Names mostly differ in their first letter.
bool is_named(const char (&slot_name)[200], text_range name)
{
    return to_upper(*slot_name) == to_upper(*name.first) && equal_ignoring_case(slot_name, name);
}

int find_slot(text_range name, char (*names)[200], int count)
{
    for (int i = 0; !name.empty() && i < count && i < MEDIA_INFO_MAX_SLOTS; i++) {
        if (is_named(names[i], name))
            return i;
    }
    return no_slot;
}

int store(text_range name, text_range value, char (*names)[200], char (*values)[200], uint32_t *present,
          int count)
{
    const int slot = find_slot(name, names, count);
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

// Most slots of a record are not set: their names are not looked at.
const char *find_value(text_range name, char (*names)[200], char (*values)[200], const uint32_t *present,
                       int count)
{
    for (int i = 0; !name.empty() && i < count && i < MEDIA_INFO_MAX_SLOTS; i++) {
        if (present[i] == 1 && is_named(names[i], name))
            return find_slot(name, names, i) == no_slot ? values[i] : nullptr;
    }
    return nullptr;
}

// The codec that setting and getting are asked for, and the name without the blanks around it.
media_codec *prepare(const media_description *description, int index, const char *name, text_range &wanted)
{
    if (description == nullptr || name == nullptr)
        return fail_null();
    media_codec *codec = codec_at(description, index);
    if (codec == nullptr)
        return fail_null();
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
    // What tells telephone-event from the other kinds: its line holds the one value without a name.
    if (name.empty() && &kind == &kinds::telephone_event)
        name = kind.slots[0];
    media_info &info = codec.info;
    return store(name, value, info.param_name, info.param_value, info.param_present, kind.count);
}

const char *dak::get_parameter(media_codec &codec, const codec_kind &kind, text_range name)
{
    media_info &info = codec.info;
    return find_value(name, info.param_name, info.param_value, info.param_present, kind.count);
}

int set_media_value(media_description *description, int index, const char *name, const char *value)
{
    if (value == nullptr)
        return fail();
    text_range wanted;
    media_codec *codec = prepare(description, index, name, wanted);
    const codec_kind *kind = codec != nullptr ? find_kind(*codec) : nullptr;
    return kind != nullptr ? set_parameter(*codec, *kind, wanted, value) : 0;
}

const char *get_media_value(media_description *description, int index, const char *name)
{
    text_range wanted;
    media_codec *codec = prepare(description, index, name, wanted);
    const codec_kind *kind = codec != nullptr ? find_kind(*codec) : nullptr;
    return kind != nullptr ? get_parameter(*codec, *kind, wanted) : nullptr;
}

int set_attr_value_by_mime(const char *name, const char *value, char (*names)[200], char (*values)[200],
                           uint32_t *present, uint8_t count)
{
    if (value == nullptr || names == nullptr || values == nullptr || present == nullptr)
        return fail();
    return store(name != nullptr ? name : "", value, names, values, present, count);
}

const char *get_attr_value_by_mime(const char *name, char (*names)[200], char (*values)[200],
                                   const uint32_t *present, uint8_t count)
{
    if (names == nullptr || values == nullptr || present == nullptr)
        return fail_null();
    return find_value(name != nullptr ? name : "", names, values, present, count);
}
