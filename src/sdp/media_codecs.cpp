#include "sdp/media_codecs.h"

#include "codec/parameters.hpp"
#include "sdp/codec_access.hpp"
#include "sdp/media_codecs.hpp"
#include "sdp/media_description.hpp"
#include "util/bounded_text.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr int not_found = -1;

int fail_to_find()
{
    dak_assert_failed();
    return not_found;
}

// Position of a payload number that has a codec; not_found, reported, otherwise.
int find_codec(const media_description *description, int32_t payload_number)
{
    const int index = description != nullptr ? find_payload(*description, payload_number) : not_found;
    return index != not_found && has_codec(*description, index) ? index : fail_to_find();
}

// A field that an a=rtpmap line gives; 0 without one.
uint32_t rtpmap_field_at(const media_description *description, int index, uint32_t media_codec::*field)
{
    const media_codec *codec = codec_at(description, index);
    return codec != nullptr && codec->rtpmap_valid != 0 ? codec->*field : 0;
}

} // namespace

int dak::set_rtpmap(media_codec &codec, text_range encoding_name, uint32_t clock_rate,
                    uint32_t encoding_param)
{
    codec.rtpmap_valid = 1;
    codec.sample_rate = clock_rate;
    codec.encoding_param = encoding_param;
    if (!copy_text(codec.mime_type, encoding_name)) {
        DAK_LOG("Src str length exceeded dst str %d \n", static_cast<int>(sizeof codec.mime_type));
        return fail();
    }
    if (const codec_kind *kind = find_kind({codec.mime_type, encoding_name.length()}); kind != nullptr)
        prepare_parameters(codec, *kind);
    return 1;
}

int set_payload_number(media_description *description, int32_t payload_number)
{
    if (description == nullptr)
        return fail();
    if (find_payload(*description, payload_number) != not_found)
        return 1;
    const int count = payload_count(*description);
    if (count == SDP_MAX_PAYLOADS)
        return fail();
    const bool needs_codec = description->codecs != nullptr && description->codec_capacity <= count;
    if (needs_codec && !allocate_codecs(*description, count + 1, audience::caller))
        return fail();
    description->payload_numbers[count] = payload_number;
    description->number_of_payload = count + 1;
    return 1;
}

int get_number_of_media_payload(const media_description *description)
{
    return description != nullptr ? description->number_of_payload : fail();
}

int add_media_codec_to_media_description(media_description *description, int32_t payload_number,
                                         const char *encoding_name, uint32_t clock_rate,
                                         uint32_t encoding_param)
{
    const int index = find_codec(description, payload_number);
    if (index == not_found)
        return not_found;
    const text_range name = encoding_name != nullptr ? encoding_name : "";
    return set_rtpmap(description->codecs[index], name, clock_rate, encoding_param) ? index : not_found;
}

int add_media_rtpmap_valid_to_media_description(media_description *description, int32_t payload_number,
                                                int32_t flag)
{
    const int index = find_codec(description, payload_number);
    if (index != not_found)
        description->codecs[index].rtpmap_valid = flag;
    return index;
}

int32_t get_media_codec_payload_number_by_index(const media_description *description, int index)
{
    if (description == nullptr || index < 0 || index >= payload_count(*description))
        return fail();
    return description->payload_numbers[index];
}

const char *get_media_codec_mime_type_by_index(const media_description *description, int index)
{
    const media_codec *codec = codec_at(description, index);
    return codec != nullptr && codec->rtpmap_valid != 0 ? codec->mime_type : nullptr;
}

uint32_t get_media_codec_sample_rate_by_index(const media_description *description, int index)
{
    return rtpmap_field_at(description, index, &media_codec::sample_rate);
}

uint32_t get_media_code_encoding_param_by_index(const media_description *description, int index)
{
    return rtpmap_field_at(description, index, &media_codec::encoding_param);
}

int32_t get_media_rtpmap_valid_flag_by_index(const media_description *description, int index)
{
    const media_codec *codec = codec_at(description, index);
    return codec != nullptr ? codec->rtpmap_valid : 0;
}

uint32_t dak_sdp_get_media_rtcp_fb_valid_flag_by_index(const media_description *description, int index)
{
    const media_codec *codec = codec_at(description, index);
    return codec != nullptr ? codec->rtcp_fb.fb_present : 0;
}
