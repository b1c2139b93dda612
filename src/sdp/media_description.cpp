#include "sdp/media_description.h"

#include "sdp/attribute_nodes.hpp"
#include "sdp/media_description.hpp"
#include "util/bounded_text.hpp"
#include "util/report.hpp"
#include "util/text.h"

using namespace dak;

namespace {

constexpr char value_tags[SDP_MEDIA_VALUE_SLOTS][sizeof "c="] = {"i=", "c=", "b=", "b=", "b=", "b=", "k="};

bool are_payloads_valid(const uint32_t *payload_numbers, int payload_count)
{
    return payload_count >= 0 && payload_count <= SDP_MAX_PAYLOADS &&
           (payload_count == 0 || payload_numbers != nullptr);
}

// Empties a record of 12 KB but for its parameters, which a format gets with its name. Of texts, the first
// characters are enough.
void clear(media_codec &codec)
{
    codec.rtpmap_valid = 0;
    codec.mime_type[0] = '\0';
    codec.sample_rate = 0;
    codec.encoding_param = 0;
    codec.rtcp_fb.fb_present = 0;
    codec.rtcp_fb.fb_count = 0;
    for (rtcp_fb_entry &entry : codec.rtcp_fb.fb_entries) {
        entry.fb_type = entry.ccm_subtype = entry.nack_subtype = 0;
        entry.fb_param[0] = '\0';
    }
}

template <size_t First, size_t Last> void zero(media_description &description)
{
    memset(reinterpret_cast<char *>(&description) + First, 0, Last - First);
}

// Zeroes the parts of a section that tell what is in the others.
void clear(media_description &description)
{
    using section = media_description;
    zero<0, offsetof(section, media_value_tags)>(description);
    zero<offsetof(section, media_value_present), offsetof(section, pcd_value)>(description);
    zero<offsetof(section, rtcp_fb), offsetof(section, rtcp_fb.fb_entries)>(description);
    zero<offsetof(section, accept_types), offsetof(section, path.user)>(description);
    zero<offsetof(section, max_size), offsetof(section, file_selectors)>(description);
    zero<offsetof(section, codec_capacity), sizeof(section)>(description);
}

// Fills an emptied section; what has to be released on failure is the caller's.
int fill(media_description &description, text_range media_type, text_range transport_profile,
         const uint32_t *payload_numbers, int payload_count, audience seen_by)
{
    if (!copy_text(description.media_type, media_type) ||
        !allocate_codecs(description, payload_count, seen_by))
        return 0;
    if (!copy_text(description.transport_profile, transport_profile)) {
        DAK_LOG("Src str length exceeded dst str %lu \n",
                static_cast<unsigned long>(sizeof description.transport_profile));
        return 0;
    }
    description.number_of_payload = payload_count;
    for (int i = 0; i < payload_count; i++)
        description.payload_numbers[i] = static_cast<int32_t>(payload_numbers[i]);
    for (int slot = 0; slot < SDP_MEDIA_VALUE_SLOTS; slot++)
        memcpy(description.media_value_tags[slot], value_tags[slot], sizeof value_tags[slot]);
    return 1;
}

} // namespace

int dak::allocate_codecs(media_description &description, int count, audience seen_by)
{
    if (count == 0)
        return 1;
    const size_t size = static_cast<size_t>(count) * sizeof(media_codec);
    auto *codecs = static_cast<media_codec *>(dak_malloc(size));
    if (codecs == nullptr)
        return 0;
    const int kept = description.codecs != nullptr ? description.codec_capacity : 0;
    if (kept > 0)
        memcpy(codecs, description.codecs, static_cast<size_t>(kept) * sizeof(media_codec));
    if (seen_by == audience::caller)
        memset(codecs + kept, 0, size - static_cast<size_t>(kept) * sizeof(media_codec));
    else
        for (int i = kept; i < count; i++)
            clear(codecs[i]);
    dak_free(description.codecs);
    description.codecs = codecs;
    description.codec_capacity = count;
    return 1;
}

media_description *dak::new_media_description(text_range media_type, uint32_t port, uint32_t number_of_ports,
                                              text_range transport_profile, const uint32_t *payload_numbers,
                                              int payload_count, audience seen_by)
{
    if (!are_payloads_valid(payload_numbers, payload_count))
        return fail_null();
    auto *description = static_cast<media_description *>(dak_malloc(sizeof(media_description)));
    if (description == nullptr)
        return fail_null();
    if (seen_by == audience::caller)
        memset(description, 0, sizeof *description);
    else
        clear(*description);
    if (!fill(*description, media_type, transport_profile, payload_numbers, payload_count, seen_by)) {
        clean_media_description(description);
        return fail_null();
    }
    description->media_port = port;
    description->number_of_media_port = number_of_ports;
    return description;
}

media_description *init_media_description(const char *media_type, uint32_t port, uint32_t number_of_ports,
                                          const char *transport_profile, const uint32_t *payload_numbers,
                                          int payload_count)
{
    if (media_type == nullptr || transport_profile == nullptr)
        return fail_null();
    return new_media_description(media_type, port, number_of_ports, transport_profile, payload_numbers,
                                 payload_count, audience::caller);
}

media_description *init_empty_media_description(void)
{
    return init_media_description("", 0, 0, "", nullptr, 0);
}

int clean_media_description(media_description *description)
{
    if (description == nullptr)
        return fail();
    free_attributes(*description);
    dak_free(description->codecs);
    dak_free(description);
    return 1;
}

int set_media_port(media_description *description, uint32_t port)
{
    if (description == nullptr)
        return fail();
    description->media_port = port;
    return 1;
}

int set_number_of_media_port(media_description *description, uint32_t number)
{
    if (description == nullptr)
        return fail();
    description->number_of_media_port = number;
    return 1;
}

uint32_t get_media_port(const media_description *description)
{
    return description != nullptr ? description->media_port : static_cast<uint32_t>(fail());
}

uint32_t get_number_of_media_port(const media_description *description)
{
    return description != nullptr ? description->number_of_media_port : static_cast<uint32_t>(fail());
}

int set_media_type(media_description *description, const char *text, uint32_t length)
{
    return description != nullptr ? create_string(description->media_type, text, length) : fail();
}

int set_transport_profile(media_description *description, const char *text, uint32_t length)
{
    return description != nullptr ? create_string(description->transport_profile, text, length) : fail();
}

const char *get_media_type(const media_description *description)
{
    return description != nullptr ? description->media_type : fail_null();
}

const char *get_transport_profile(const media_description *description)
{
    return description != nullptr ? description->transport_profile : fail_null();
}

int set_media_format(media_description *description, const char *text, uint32_t length)
{
    if (description == nullptr || text == nullptr)
        return fail();
    constexpr size_t size = sizeof description->media_format;
    if (length >= size) {
        DAK_LOG("Src str length %d exceeded dst str %d \n", static_cast<int>(length), static_cast<int>(size));
        return fail();
    }
    copy_text(description->media_format, {text, strnlen(text, length)});
    return 1;
}

int dak_sdp_get_media_format(const media_description *description, char *destination)
{
    if (description == nullptr || destination == nullptr)
        return fail();
    copy_text(destination, sizeof description->media_format, field_text(description->media_format));
    return 1;
}
