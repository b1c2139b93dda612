#include "oa/codec/mode_list.hpp"

#include "oa/result_code.h"
#include "oa/truncation.hpp"
#include "util/number.hpp"
#include "util/report.hpp"

namespace dak {

int add_modes(text_writer &list, uint32_t mode_map)
{
    for (int mode = 0; mode <= 7; mode++) {
        if ((mode_map & (uint32_t{1} << mode)) == 0)
            continue;
        if (!list.add_number(static_cast<uint64_t>(mode)).add(',').fits())
            return mode;
    }
    list.drop_last();
    return -1;
}

uint32_t read_modes(const char *text, const mode_list_rule &rule, uint8_t &is_present, uint32_t &mode_map)
{
    constexpr size_t longest = 256;
    constexpr delimiter_set delimiters = ",;";
    text_range rest(text);
    if (rest.length() > longest) {
        return fail_as_too_long(longest + 1);
    }
    is_present = 0;
    mode_map = 0;
    text_range token = rest.take_token(delimiters);
    if (token.empty())
        return SDP_OA_SUCCESS;
    for (int count = 0; !token.empty() && count < rule.most_modes; count++) {
        const scanned_number mode = scan_number(token, 1, 10, true);
        if (!mode.is_read)
            return SDP_OA_SUCCESS;
        if (mode.bits > rule.highest_mode) {
            DAK_LOG(rule.invalid_mode, static_cast<long>(mode.bits));
            return SDP_OA_INVALID_CONTENT;
        }
        mode_map |= uint32_t{1} << mode.bits;
        token = rest.take_token(delimiters);
    }
    is_present = 1;
    return SDP_OA_SUCCESS;
}

} // namespace dak
