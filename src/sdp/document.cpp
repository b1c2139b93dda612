#include "sdp/document.h"

#include "sdp/document.hpp"
#include "sdp/media_description.h"
#include "sdp/value_list.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

// The order of these tags is the order in which session lines are written.
constexpr size_t tag_length = 2;
constexpr char session_tags[SDP_SESSION_SLOTS][tag_length + 1] = {
    "v=", "o=", "s=", "i=", "u=", "e=", "p=", "c=", "b=", "t=", "r=", "z=", "k=", "a="};

} // namespace

sdp_info_container *dak::selected_document(const sdp_lib_context *context, int selector)
{
    sdp_info_container *document = nullptr;
    if (context != nullptr && selector == SDP_ENCODER_DOCUMENT)
        document = context->encoder_document;
    if (context != nullptr && selector == SDP_PARSER_DOCUMENT)
        document = context->parser_document;
    return document != nullptr ? document : fail_null();
}

int dak::find_slot(const sdp_info_container &document, text_range line)
{
    if (line.length() < tag_length)
        return no_slot;
    for (int slot = 0; slot < SDP_SESSION_SLOTS; slot++) {
        const char *tag = document.type_tags[slot];
        if (tag[0] == line.first[0] && tag[1] == line.first[1])
            return slot;
    }
    return no_slot;
}

int get_total_session_number_tag(void) { return SDP_SESSION_SLOTS; }

int init_sdp_session_info(sdp_info_container *document)
{
    if (document == nullptr)
        return fail();
    for (int slot = 0; slot < SDP_SESSION_SLOTS; slot++) {
        memcpy(document->type_tags[slot], session_tags[slot], tag_length + 1);
        document->values[slot][0] = '\0';
        document->value_present[slot] = 0;
        document->extra_values[slot] = nullptr;
        document->extra_tail[slot] = nullptr;
    }
    return 1;
}

int clean_sdp_info_container(sdp_info_container *document)
{
    if (document == nullptr)
        return fail();
    for (int slot = 0; slot < SDP_SESSION_SLOTS; slot++)
        free_values(document->extra_values[slot], document->extra_tail[slot]);
    const bool is_full = document->media_descriptions[SDP_MAX_MEDIA_DESCRIPTIONS - 1] != nullptr;
    for (media_description *&description : document->media_descriptions) {
        if (description == nullptr)
            continue;
        clean_media_description(description);
        description = nullptr;
    }
    return is_full;
}

int add_media_description(sdp_info_container *document, media_description *description)
{
    if (document == nullptr || description == nullptr)
        return fail();
    media_description **free_place = nullptr;
    for (media_description *&place : document->media_descriptions) {
        if (place == description)
            return fail(); // a second place would free it twice
        if (place == nullptr && free_place == nullptr)
            free_place = &place;
    }
    if (free_place == nullptr)
        return fail();
    *free_place = description;
    return 1;
}

int add_media_description_to_sdp_container(sdp_info_container *document, media_description *description)
{
    return add_media_description(document, description);
}

int add_media_description_to_sdp_encoder(sdp_lib_context *context, media_description *description)
{
    sdp_info_container *document = selected_document(context, SDP_ENCODER_DOCUMENT);
    return document != nullptr ? add_media_description(document, description) : 0;
}

int get_number_of_media_description_by_sdp_info_type(const sdp_info_container *document)
{
    if (document == nullptr)
        return fail();
    int count = 0;
    for (const media_description *description : document->media_descriptions)
        count += description != nullptr;
    return count;
}

int get_number_of_media_description(sdp_lib_context *context, int selector)
{
    const sdp_info_container *document = selected_document(context, selector);
    return document != nullptr ? get_number_of_media_description_by_sdp_info_type(document) : 0;
}

media_description *get_media_description_by_index_and_sdp_type(sdp_info_container *document, uint32_t index)
{
    if (document == nullptr || index >= SDP_MAX_MEDIA_DESCRIPTIONS)
        return fail_null();
    return document->media_descriptions[index];
}

media_description *get_media_description_by_index(sdp_lib_context *context, int selector, uint32_t index)
{
    sdp_info_container *document = selected_document(context, selector);
    return document != nullptr ? get_media_description_by_index_and_sdp_type(document, index) : nullptr;
}
