#include "codec/registry.h"

#include <cctype>

#include "codec/codec_kind.h"
#include "support.h"

namespace {

class Registry : public PlatformTest {};

struct functions {
    dak_init_media_codec_fn init = nullptr;
    dak_set_media_value_fn set = nullptr;
    dak_get_media_value_fn get = nullptr;
    dak_encoder_fn write = nullptr;
};

#define FUNCTIONS(init, value, line) \
    { \
        init_##init##_media_info, set_##value##_value, get_##value##_value, \
            dak_sdp_##line##_media_info_encode \
    }
#define LIKE(kind) FUNCTIONS(kind, kind##_media, kind)

TEST_F(Registry, every_name_has_its_place_and_its_functions)
{
    const functions none, amr = LIKE(amr), encrypted = FUNCTIONS(enc_mp4v, enc_m4v_media, enc_mp4v);
    const functions mpeg4 = FUNCTIONS(mpeg4_generic, m4v_media, mpeg4_gen);
    const struct {
        std::string name;
        functions entries;
    } rows[MEDIA_MIME_COUNT] = {
        {"mpeg4-generic", mpeg4},
        {"MP4V-ES", FUNCTIONS(mp4ves, m4v_es_media, mp4ves)},
        {"H264", LIKE(h264)},
        {"isoff-generic", mpeg4},
        {"generic-mp4", mpeg4},
        {"enc-generic-mp4", encrypted},
        {"enc-mpeg4-generic", encrypted},
        {"enc-isoff-generic", encrypted},
        {"EVRC", LIKE(evrc)},
        {"AMR", amr},
        {"AMR-WB", amr},
        {"G723", none},
        {"G722", none},
        {"G722_2", amr},
        {"G729", none},
        {"G711AB", none},
        {"H263", FUNCTIONS(h263, h263_media, 263)},
        {"H263-1998", LIKE(h263_1998)},
        {"H263-2000", LIKE(h263_2000)},
        {"PCMU", none},
        {"PCMA", none},
        {"telephone-event", FUNCTIONS(tel_evnt, telephone_event, tel_evnt)},
        {"EVRC0", LIKE(evrc0)},
        {"EVRCB0", LIKE(evrcb0)},
        {"EVRCB", LIKE(evrcb)},
        {"EVRC1", LIKE(evrc1)},
        {"EVRCB1", LIKE(evrcb1)},
        {"EVRCWB0", LIKE(evrcwb0)},
        {"EVRCWB", LIKE(evrcwb)},
        {"EVRCWB1", LIKE(evrcwb1)},
    };
    EXPECT_EQ(init_media_functions(), 1);
    for (uint32_t place = 0; place < MEDIA_MIME_COUNT; ++place) {
        const auto &[name, entries] = rows[place];
        EXPECT_EQ(g_media_mime[place], name);
        EXPECT_EQ(dak_g_init_media_codec[place], entries.init) << name;
        EXPECT_EQ(dak_g_set_media_value_by_mime_func_ptr[place], entries.set) << name;
        EXPECT_EQ(dak_g_get_media_value_by_mime_func_ptr[place], entries.get) << name;
        EXPECT_EQ(dak_g_encoder_func_ptr[place], entries.write) << name;
        for (int (*fold)(int) : {(int (*)(int))std::toupper, (int (*)(int))std::tolower}) {
            std::string spelling;
            for (const char letter : name)
                spelling += static_cast<char>(fold(letter));
            uint32_t index = 99;
            EXPECT_EQ(dak_sdp_get_mime_val(spelling.c_str(), &index), 1) << spelling;
            EXPECT_EQ(index, place) << spelling;
        }
    }
}

TEST_F(Registry, names_match_whole)
{
    for (const char *name : {"H264 ", " H264", "H26", "AMR-", "-WB", "opus", "", (const char *)nullptr}) {
        uint32_t index = 99;
        EXPECT_EQ(dak_sdp_get_mime_val(name, &index), 0) << testing::PrintToString(name);
        EXPECT_EQ(index, 99U) << "written for a name that is found";
    }
    EXPECT_EQ(call(dak_sdp_get_mime_val, "AMR", nullptr), refused);
}

} // namespace
