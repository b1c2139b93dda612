#include "oa/codec/mime_table.h"

#include "oa/codec/amr.h"
#include "oa/codec/evrc.h"
#include "oa/codec/h263.h"
#include "oa/codec/h264.h"
#include "oa/codec/mp4_es.h"
#include "oa/codec/tel_event.h"
#include "util/name_index.hpp"
#include "util/report.hpp"

using namespace dak;

constexpr sdp_mime_entry mime_table[MIME_TABLE_ROWS] = {
    {0, "PCMU", nullptr, nullptr},
    {8, "PCMA", nullptr, nullptr},
    {4, "G723", nullptr, nullptr},
    {9, "G722", nullptr, nullptr},
    {18, "G729", nullptr, nullptr},
    {21, "G711AB", nullptr, nullptr},
    {34, "H263", nullptr, nullptr},
    {98, "MP4V-ES", dak_app_sdp_encode_mp4_es, dak_app_sdp_decode_mp4_es},
    {113, "H264", dak_app_sdp_encode_h264, dak_app_sdp_decode_h264},
    {99, "EVRC", dak_app_sdp_encode_evrc, dak_app_sdp_decode_evrc},
    {97, "AMR", dak_app_sdp_encode_amr, dak_app_sdp_decode_amr},
    {96, "AMR-WB", dak_app_sdp_encode_amr, dak_app_sdp_decode_amr},
    {111, "G722_2", dak_app_sdp_encode_amr, dak_app_sdp_decode_amr},
    {100, "EVRC0", dak_app_sdp_encode_evrc0, dak_app_sdp_decode_evrc0},
    {102, "EVRCB0", dak_app_sdp_encode_evrcb0, dak_app_sdp_decode_evrcb0},
    {103, "EVRCB", dak_app_sdp_encode_evrcb, dak_app_sdp_decode_evrcb},
    {101, "EVRC1", dak_app_sdp_encode_evrc1, dak_app_sdp_decode_evrc1},
    {104, "EVRCB1", dak_app_sdp_encode_evrcb1, dak_app_sdp_decode_evrcb1},
    {105, "telephone-event", dak_app_sdp_encode_tel_event, dak_app_sdp_decode_tel_event},
    {106, "H263-1998", dak_app_sdp_encode_h263_1998, dak_app_sdp_decode_h263_1998},
    {107, "H263-2000", dak_app_sdp_encode_h263_2000, dak_app_sdp_decode_h263_2000},
    {108, "EVRCWB0", dak_app_sdp_encode_evrcwb0, dak_app_sdp_decode_evrcwb0},
    {109, "EVRCWB", dak_app_sdp_encode_evrcwb, dak_app_sdp_decode_evrcwb},
    {110, "EVRCWB1", dak_app_sdp_encode_evrcwb1, dak_app_sdp_decode_evrcwb1},
    {112, "telephone-event", dak_app_sdp_encode_tel_event, dak_app_sdp_decode_tel_event},
};

namespace {

constexpr const char *mime_name(size_t row) { return mime_table[row].mime_name; }
constexpr name_index<MIME_TABLE_ROWS> mime_names(mime_name);

// The row of each key, or one behind the last row.
struct key_index {
    uint8_t rows[128];

    constexpr key_index() : rows()
    {
        for (uint8_t &row : rows)
            row = MIME_TABLE_ROWS;
        for (uint8_t row = 0; row < MIME_TABLE_ROWS; row++)
            rows[mime_table[row].payload_number] = row;
    }
};
constexpr key_index mime_keys;

} // namespace

const sdp_mime_entry *dak_app_sdp_find_medentry_by_pt(uint32_t codec_key)
{
    const uint32_t row = codec_key < sizeof mime_keys.rows ? mime_keys.rows[codec_key] : MIME_TABLE_ROWS;
    if (row < MIME_TABLE_ROWS)
        return &mime_table[row];
    DAK_LOG("dak_app_sdp_find_medentry_by_pt:                             No match found for Mime\n");
    return nullptr;
}

const sdp_mime_entry *dak_app_sdp_find_medentry_by_mime(const char *name)
{
    if (name == nullptr) {
        DAK_LOG("dak_app_sdp_find_medentry_by_mime:                             Wrong Mime params\n");
        return nullptr;
    }
    const int row = mime_names.find(name, mime_name);
    if (row >= 0)
        return &mime_table[row];
    DAK_LOG("dak_app_sdp_find_medentry_by_mime:                             No match found for Mime\n");
    return nullptr;
}
