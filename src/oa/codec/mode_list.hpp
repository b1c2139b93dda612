// Mode lists: bit maps in a block, ascending lists on the fmtp line.
#ifndef DAKSDP_OA_CODEC_MODE_LIST_HPP
#define DAKSDP_OA_CODEC_MODE_LIST_HPP

#include "util/bounded_text.hpp"
#include "util/report.hpp"

#include <stdint.h>

namespace dak {

// What a codec's mode lists may hold.
struct mode_list_rule {
    uint32_t highest_mode;
    int most_modes;
    const char *invalid_mode; // log text with one %ld
};

// Adds modes 0 to 7 of a map; gives the mode that did not fit, or -1.
DAK_OUT_OF_LINE int add_modes(text_writer &list, uint32_t mode_map);

// Reads a list: one digit a token, further modes than the rule's most ignored. `is_present` becomes 1 unless
// a token could not be read or there is none. Gives 0; 1 for too long a text, 4 for too high a mode, both
// logged.
uint32_t read_modes(const char *text, const mode_list_rule &rule, uint8_t &is_present, uint32_t &mode_map);

} // namespace dak

#endif
