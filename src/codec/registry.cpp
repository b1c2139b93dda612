#include "codec/registry.h"

#include "codec/codec_kind.h"
#include "codec/parameters.hpp"
#include "util/name_index.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

struct codec_functions {
    kinds::place kind;
    dak_init_media_codec_fn init;
    dak_set_media_value_fn set;
    dak_get_media_value_fn get;
    dak_encoder_fn encode;
};

#define DAK_KIND_FUNCTIONS(kind, init, set, get, encode, ...) \
    constexpr codec_functions kind = {kinds::place::kind, init, set, get, encode};
DAK_CODEC_KINDS(DAK_KIND_FUNCTIONS)
constexpr codec_functions no_parameters = {kinds::place::no_parameters, nullptr, nullptr, nullptr, nullptr};

} // namespace

#define DAK_MIME_NAME(name, kind) name,
#define DAK_MIME_KIND(name, row) row.kind,
#define DAK_INIT(name, kind) kind.init,
#define DAK_SET(name, kind) kind.set,
#define DAK_GET(name, kind) kind.get,
#define DAK_ENCODE(name, kind) kind.encode,

constexpr char g_media_mime[MEDIA_MIME_COUNT][50] = {DAK_REGISTRY(DAK_MIME_NAME)};
constexpr dak_init_media_codec_fn dak_g_init_media_codec[MEDIA_MIME_COUNT] = {DAK_REGISTRY(DAK_INIT)};
constexpr dak_set_media_value_fn dak_g_set_media_value_by_mime_func_ptr[MEDIA_MIME_COUNT] = {
    DAK_REGISTRY(DAK_SET)};
constexpr dak_get_media_value_fn dak_g_get_media_value_by_mime_func_ptr[MEDIA_MIME_COUNT] = {
    DAK_REGISTRY(DAK_GET)};
constexpr dak_encoder_fn dak_g_encoder_func_ptr[MEDIA_MIME_COUNT] = {DAK_REGISTRY(DAK_ENCODE)};

namespace {

constexpr kinds::place kinds_by_mime[MEDIA_MIME_COUNT] = {DAK_REGISTRY(DAK_MIME_KIND)};

constexpr const char *mime_name(size_t index) { return g_media_mime[index]; }
constexpr name_index<MEDIA_MIME_COUNT> mime_names(mime_name);

} // namespace

int init_media_functions(void) { return 1; }

int dak_sdp_get_mime_val(const char *name, uint32_t *index)
{
    if (name == nullptr)
        return 0;
    if (index == nullptr)
        return fail();
    const int found = mime_names.find(name, mime_name);
    if (found < 0)
        return 0;
    *index = static_cast<uint32_t>(found);
    return 1;
}

const codec_kind *dak::find_kind(text_range name)
{
    const int found = mime_names.find(name, mime_name);
    return found < 0 ? nullptr : &kinds::all[static_cast<size_t>(kinds_by_mime[found])];
}

const char *dak::registered_name(text_range name)
{
    const int found = mime_names.find(name, mime_name);
    return found < 0 ? "" : g_media_mime[found];
}
