// The layout that callers compiled against: the same on 32-bit ARM, AArch64 and x86-64, but for pointers.

#include "oa/codec/mime_table.h"
#include "oa/sdp_container.h"

#include <stddef.h>

static_assert(sizeof(sdp_address) == 516);
static_assert(sizeof(rtcp_address_info) == 520);
static_assert(sizeof(sdp_bandwidth) == 64);
static_assert(sizeof(sdp_group) == 28);
static_assert(sizeof(sdp_precondition) == 20);
static_assert(sizeof(sdp_rtcp_fb) == 264);
static_assert(sizeof(dtx_params) == 8);
static_assert(sizeof(sdp_amr_params) == 48);
static_assert(sizeof(sdp_evrc_params) == 14);
static_assert(sizeof(sdp_evrc0_params) == 10);
static_assert(sizeof(sdp_evrc1_params) == 16);
static_assert(sizeof(sdp_evrcb_params) == 20);
static_assert(sizeof(sdp_evrcb0_params) == 16);
static_assert(sizeof(sdp_evrcwb1_params) == 20);
static_assert(sizeof(sdp_fixedrate_part) == 8);
static_assert(sizeof(sdp_h264_params) == 400);
static_assert(sizeof(sdp_codec_params) == 400);
static_assert(sizeof(sdp_mp4_es_params) == 130);
static_assert(sizeof(h263_params) == 140);
static_assert(sizeof(sdp_h263_1998_params) == 144);
static_assert(sizeof(sdp_h263_2000_params) == 152);
static_assert(sizeof(sdp_tel_event_params) == 132);
static_assert(sizeof(sdp_payload_format) == 1736);
static_assert(sizeof(sdp_media_line) == 42600);
static_assert(sizeof(sdp_payload_buffer) == 2 * sizeof(void *));
static_assert(sizeof(sdp_mime_entry) == (sizeof(void *) == 8 ? 280 : 268));

// i386 aligns 64-bit numbers to 4 bytes; everything else lays the container out alike.
static_assert(alignof(uint64_t) != 8 || sizeof(sdp_container) == (sizeof(void *) == 8 ? 2072 : 2064));
static_assert(alignof(uint64_t) != 8 || offsetof(sdp_container, origin_session_id) == 264);

// Every block begins with its presence flag and its marker, so that both can be read through the frame.
static_assert(offsetof(sdp_amr_params, amr_params_valid) == 1);
static_assert(offsetof(sdp_evrc_params, evrc_params_valid) == 1);
static_assert(offsetof(sdp_evrc0_params, evrc_params_valid) == 1);
static_assert(offsetof(sdp_evrc1_params, evrc_params_valid) == 1);
static_assert(offsetof(sdp_evrcb_params, evrc_params_valid) == 1);
static_assert(offsetof(sdp_evrcb0_params, evrc_params_valid) == 1);
static_assert(offsetof(sdp_evrcwb1_params, evrc_params_valid) == 1);
static_assert(offsetof(sdp_h264_params, h264_params_valid) == 1);
static_assert(offsetof(sdp_mp4_es_params, mp4_params_valid) == 1);
static_assert(offsetof(sdp_h263_1998_params, h263_1998_params_valid) == 1);
static_assert(offsetof(sdp_h263_2000_params, h263_2000_params_valid) == 1);
static_assert(offsetof(sdp_tel_event_params, tel_event_valid) == 1);
