// The lower layer's records as callers compiled against them: the same on 32-bit ARM, AArch64 and x86-64, but
// for pointers and what stands behind them.

#include "sdp/document_record.h"
#include "sdp/media_description_record.h"

#include <stddef.h>

namespace {

constexpr size_t by_word(size_t with_32_bits, size_t with_64_bits)
{
    return sizeof(void *) == 8 ? with_64_bits : with_32_bits;
}

} // namespace

static_assert(sizeof(media_info) == 10100);
static_assert(sizeof(rtcp_fb_kind) == 12);
static_assert(sizeof(rtcp_fb_entry) == 268);
static_assert(sizeof(rtcp_fb_list) == 1348);
static_assert(sizeof(sdp_accept_attr) == 32);
static_assert(sizeof(sdp_path_attr) == 1040);
static_assert(sizeof(sdp_max_size_attr) == 8);
static_assert(sizeof(sdp_file_disposition) == 8);
static_assert(sizeof(sdp_file_date) == 768);
static_assert(sizeof(sdp_file_range) == 8);
static_assert(sizeof(sdp_file_selector) == 532);
static_assert(sizeof(media_codec) == 11660);
static_assert(sizeof(sdp_text_buffer) == 3592);
static_assert(sizeof(sdp_lib_context) == 3 * sizeof(void *));
static_assert(sizeof(session_value) == by_word(204, 208));
static_assert(sizeof(sdp_info_container) == by_word(5888, 6120));
static_assert(sizeof(media_description) == by_word(12540, 12560));

// Where the longer records continue behind a pointer.
static_assert(offsetof(sdp_info_container, media_descriptions) == by_word(5712, 5768));
static_assert(offsetof(sdp_info_container, extra_tail) == by_word(5832, 6008));
static_assert(offsetof(media_codec, info) == 1560);
static_assert(offsetof(media_description, codecs) == 1216);
static_assert(offsetof(media_description, attributes) == by_word(4048, 4056));
static_assert(offsetof(media_description, pcd_present) == by_word(4052, 4064));
static_assert(offsetof(media_description, file_selectors) == by_word(9860, 9872));
static_assert(offsetof(media_description, attributes_tail) == by_word(12524, 12536));
