// Bandwidth lines, which sessions and media lines have alike.
#ifndef DAKSDP_OA_BANDWIDTH_HPP
#define DAKSDP_OA_BANDWIDTH_HPP

#include "oa/result_code.h"
#include "oa/truncation.hpp"
#include "oa/words.hpp"
#include "util/bounded_text.hpp"
#include "util/number.hpp"

namespace dak {

// Stores the lines up to the first absent one through `store(text)`. A wrong modifier is logged as that of
// the entry which `named(i)` gives. Only a refusal of the fifth line counts.
template <typename Store, typename Named>
uint32_t encode_bandwidth(const sdp_bandwidth &bandwidth, Store store, Named named)
{
    constexpr size_t size = 24;
    uint32_t result = SDP_OA_SUCCESS;
    if (bandwidth.present == 0)
        return result;
    for (int i = 0; i < SDP_MAX_BANDWIDTHS; i++) {
        const sdp_bandwidth_entry &entry = bandwidth.entries[i];
        if (entry.present == 0)
            return SDP_OA_SUCCESS;
        const word *modifier = find_word(bandwidth_words, entry.modifier);
        if (modifier == nullptr) {
            DAK_LOG("dak_app_oa_encode_bw:Invalid            BW modifier: %d\n",
                    static_cast<int>(bandwidth.entries[named(i)].modifier));
            return SDP_OA_INVALID_CONTENT;
        }
        char room[size];
        text_writer text(room);
        if (!text.add(modifier->text).add(':').add_number(entry.value).fits())
            return fail_as_truncated(size);
        result = store(text.text()) ? SDP_OA_SUCCESS : SDP_OA_INVALID_CONTENT;
        if (result != SDP_OA_SUCCESS)
            DAK_LOG("dak_app_oa_encode_bw:Invalid BW info\n");
    }
    return result;
}

// What tells the two readers of bandwidth lines apart.
struct bandwidth_reader {
    const char *no_info;
    const char *invalid_value; // with one %lu
    uint32_t invalid_value_result;
};

// Reads one line into an entry; `is_last` is set where the reading of further lines ends.
inline uint32_t read_bandwidth_entry(text_range value, const bandwidth_reader &reader,
                                     sdp_bandwidth_entry &entry, bool &is_last)
{
    const text_range modifier = value.take_token(":\r\n");
    const text_range number = value.take_token("\r\n");
    is_last = true;
    if (modifier.empty()) {
        log_text(reader.no_info);
        return SDP_OA_MISSING_TOKEN;
    }
    const word *found = find_word(bandwidth_words, modifier);
    entry.modifier = found != nullptr ? found->value : uint32_t{SDP_BW_UNKNOWN};
    if (found == nullptr)
        return SDP_OA_SUCCESS;
    if (number.empty()) {
        log_text(reader.no_info);
        return SDP_OA_MISSING_TOKEN;
    }
    if (!scan_unsigned(number, entry.value)) {
        DAK_LOG(reader.invalid_value, static_cast<unsigned long>(entry.value));
        return reader.invalid_value_result;
    }
    entry.present = 1;
    is_last = false;
    return SDP_OA_SUCCESS;
}

// The first entry without a line, or null.
inline sdp_bandwidth_entry *free_entry(sdp_bandwidth &bandwidth)
{
    for (sdp_bandwidth_entry &entry : bandwidth.entries) {
        if (entry.present == 0)
            return &entry;
    }
    return nullptr;
}

// Reads the lines that `value_at(k)` gives, up to the fifth or to one that ends the reading.
template <typename ValueAt>
uint32_t parse_bandwidth(sdp_bandwidth &bandwidth, const bandwidth_reader &reader, ValueAt value_at)
{
    constexpr size_t size = 256;
    bandwidth.present = 0;
    for (sdp_bandwidth_entry &entry : bandwidth.entries)
        entry.present = 0;
    for (int k = 0; k < SDP_MAX_BANDWIDTHS; k++) {
        const char *value = value_at(k);
        if (value == nullptr)
            return SDP_OA_SUCCESS;
        bandwidth.present = 1;
        const text_range text(value);
        if (text.length() >= size)
            return fail_as_too_long(size);
        sdp_bandwidth_entry *entry = free_entry(bandwidth);
        if (entry == nullptr) {
            DAK_LOG("dak_app_oa_parse_media_bandwidth: too many modifiers \n");
            return SDP_OA_INVALID_CONTENT;
        }
        bool is_last = false;
        const uint32_t result = read_bandwidth_entry(text, reader, *entry, is_last);
        if (is_last)
            return result;
    }
    return SDP_OA_SUCCESS;
}

} // namespace dak

#endif
