#include "oa/payload_matching.h"

#include "oa/payload_matching.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

// The static rows of the codec table, whose keys are their payload numbers.
constexpr uint32_t static_payloads[] = {0, 4, 8, 9, 18, 21, 34};

uint32_t codec_of(const sdp_media_line &mline, int format)
{
    if (mline.formats[format].has_rtpmap != 0)
        return mline.formats[format].codec_id;
    return dak_app_oa_find_mime_by_pyld_num(mline.payload_numbers[format]);
}

// What a format is matched by: its payload number or its codec.
uint32_t key_of(const sdp_media_line &mline, int format, bool by_codec)
{
    return by_codec ? codec_of(mline, format) : mline.payload_numbers[format];
}

bool are_given(const void *a, const void *b, const void *a_indexes, const void *b_indexes)
{
    if (a != nullptr && b != nullptr && a_indexes != nullptr && b_indexes != nullptr)
        return true;
    DAK_LOG("dak_app_oa_validate_media_fmts: Null                             params  \n");
    return false;
}

// Hands each pair to `take(a, b)` until it gives false. Gives false itself for an unknown codec in line B.
template <typename Take>
bool visit_pairs(const sdp_media_line &a, const sdp_media_line &b, bool by_codec, Take take)
{
    for (int b_format = 0; b_format < format_count(b); b_format++) {
        const uint32_t key = key_of(b, b_format, by_codec);
        if (by_codec && key == SDP_UNKNOWN_CODEC) {
            DAK_LOG("dak_app_oa_find_matching_plds: Unknown mime                           in offer msg  \n");
            dak_assert_failed();
            return false;
        }
        for (int a_format = 0; a_format < format_count(a); a_format++) {
            if (key_of(a, a_format, by_codec) == key && !take(a_format, b_format))
                return true;
        }
    }
    return true;
}

} // namespace

uint32_t dak_app_oa_find_mime_by_pyld_num(uint32_t payload_number)
{
    for (const uint32_t number : static_payloads) {
        if (number == payload_number)
            return number;
    }
    return SDP_UNKNOWN_CODEC;
}

int dak_app_oa_find_matching_plds(const sdp_media_line *a, const sdp_media_line *b, uint16_t *a_index,
                                  uint16_t *b_index, uint8_t by_codec)
{
    if (!are_given(a, b, a_index, b_index))
        return 0;
    int is_found = 0;
    visit_pairs(*a, *b, by_codec != 0, [&](int a_format, int b_format) {
        *a_index = static_cast<uint16_t>(a_format);
        *b_index = static_cast<uint16_t>(b_format);
        is_found = 1;
        return false;
    });
    return is_found;
}

uint8_t dak_app_oa_find_all_matching_plds(const sdp_media_line *a, const sdp_media_line *b,
                                          uint16_t *a_indexes, uint16_t *b_indexes, uint8_t by_codec)
{
    if (!are_given(a, b, a_indexes, b_indexes))
        return 0;
    uint8_t count = 0;
    const bool is_known = visit_pairs(*a, *b, by_codec != 0, [&](int a_format, int b_format) {
        if (count < SDP_MAX_MATCHES) {
            a_indexes[count] = static_cast<uint16_t>(a_format);
            b_indexes[count] = static_cast<uint16_t>(b_format);
            count++;
        }
        return true; // a full list ends nothing: an unknown codec further on still voids it
    });
    if (!is_known)
        return 0;
    DAK_LOG("Number of pylds matched %d", static_cast<int>(count));
    return count;
}
