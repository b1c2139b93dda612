#include "codec/media_value.h"

#include "codec/registry.h"
#include "sdp/codec_access.hpp"
#include "util/bounded_text.hpp"
#include "util/trim.h"

using namespace dak;

namespace {

constexpr int no_slot = -1;

int find_slot(const char *name, char (*names)[200], int count)
{
    if (name == nullptr || *name == '\0')
        return no_slot;
    for (int i = 0; i < count && i < MEDIA_INFO_MAX_SLOTS; i++) {
        if (equal_ignoring_case(names[i], name))
            return i;
    }
    return no_slot;
}

// Checks the arguments that setting and getting share and makes the trimmed copy of the name.
int prepare(const media_description *description, int index, const char *name, char (&trimmed_name)[200])
{
    if (description == nullptr || name == nullptr || codec_at(description, index) == nullptr)
        return fail();
    if (!copy_text(trimmed_name, name)) {
        DAK_LOG("Src str length exceeded dst str %d \n", static_cast<int>(sizeof trimmed_name));
        return fail();
    }
    dak_remove_both_space(trimmed_name);
    return 1;
}

} // namespace

int set_media_value(media_description *description, int index, const char *name, const char *value)
{
    char trimmed_name[200];
    uint32_t mime = 0;
    if (value == nullptr)
        return fail();
    if (!prepare(description, index, name, trimmed_name))
        return 0;
    if (!dak_sdp_get_mime_val(description->codecs[index].mime_type, &mime))
        return 0;
    const dak_set_media_value_fn set = dak_g_set_media_value_by_mime_func_ptr[mime];
    return set != nullptr ? set(description, index, trimmed_name, value) : 0;
}

const char *get_media_value(media_description *description, int index, const char *name)
{
    char trimmed_name[200];
    uint32_t mime = 0;
    if (!prepare(description, index, name, trimmed_name))
        return nullptr;
    if (!dak_sdp_get_mime_val(description->codecs[index].mime_type, &mime))
        return nullptr;
    const dak_get_media_value_fn get = dak_g_get_media_value_by_mime_func_ptr[mime];
    return get != nullptr ? get(description, index, trimmed_name) : nullptr;
}

int set_attr_value_by_mime(const char *name, const char *value, char (*names)[200], char (*values)[200],
                           uint32_t *present, uint8_t count)
{
    if (value == nullptr || names == nullptr || values == nullptr || present == nullptr)
        return fail();
    const int slot = find_slot(name, names, count);
    if (slot == no_slot) {
        DAK_LOG("Unsupported parameter ");
        return 1;
    }
    if (!copy_text(values[slot], value)) {
        DAK_LOG("Src str length exceeded dst str %d \n", static_cast<int>(sizeof values[slot]));
        return fail();
    }
    present[slot] = 1;
    dak_remove_trailing_space(values[slot]);
    return 1;
}

const char *get_attr_value_by_mime(const char *name, char (*names)[200], char (*values)[200],
                                   const uint32_t *present, uint8_t count)
{
    if (names == nullptr || values == nullptr || present == nullptr)
        return fail_null();
    const int slot = find_slot(name, names, count);
    return slot != no_slot && present[slot] == 1 ? values[slot] : nullptr;
}
