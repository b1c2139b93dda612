#include "codec/codec_kind.h"

#include "codec/media_value.h"
#include "codec/registry.h"
#include "support.h"
#include "table.h"

namespace {

class CodecKind : public PlatformTest {};

struct functions {
    const char *names; // of the registry's entries that have them
    dak_init_media_codec_fn init = nullptr;
    dak_set_media_value_fn set = nullptr;
    dak_get_media_value_fn get = nullptr;
    dak_encoder_fn write = nullptr;
};

#define FUNCTIONS(names, init, value, line) \
    { \
        names, init_##init##_media_info, set_##value##_value, get_##value##_value, \
            dak_sdp_##line##_media_info_encode \
    }
#define LIKE(names, kind) FUNCTIONS(names, kind, kind##_media, kind)

const functions kinds[] = {
    {"G723 G722 G729 G711AB PCMU PCMA"},
    FUNCTIONS("mpeg4-generic isoff-generic generic-mp4", mpeg4_generic, m4v_media, mpeg4_gen),
    FUNCTIONS("enc-generic-mp4 enc-mpeg4-generic enc-isoff-generic", enc_mp4v, enc_m4v_media, enc_mp4v),
    FUNCTIONS("MP4V-ES", mp4ves, m4v_es_media, mp4ves),
    FUNCTIONS("telephone-event", tel_evnt, telephone_event, tel_evnt),
    FUNCTIONS("H263", h263, h263_media, 263),
    LIKE("H264", h264),
    LIKE("AMR AMR-WB G722_2", amr),
    LIKE("H263-1998", h263_1998),
    LIKE("H263-2000", h263_2000),
    LIKE("EVRC", evrc),
    LIKE("EVRC0", evrc0),
    LIKE("EVRC1", evrc1),
    LIKE("EVRCB", evrcb),
    LIKE("EVRCB0", evrcb0),
    LIKE("EVRCB1", evrcb1),
    LIKE("EVRCWB", evrcwb),
    LIKE("EVRCWB0", evrcwb0),
    LIKE("EVRCWB1", evrcwb1),
};

TEST_F(CodecKind, every_name_has_its_place_and_its_functions)
{
    std::string names;
    for (const char *name : g_media_mime)
        names += std::string(name) + " ";
    EXPECT_EQ(names,
              "mpeg4-generic MP4V-ES H264 isoff-generic generic-mp4 enc-generic-mp4 enc-mpeg4-generic "
              "enc-isoff-generic EVRC AMR AMR-WB G723 G722 G722_2 G729 G711AB H263 H263-1998 H263-2000 "
              "PCMU PCMA telephone-event EVRC0 EVRCB0 EVRCB EVRC1 EVRCB1 EVRCWB0 EVRCWB EVRCWB1 ");
    EXPECT_EQ(init_media_functions(), 1);
    for (const functions &kind : kinds) {
        std::istringstream of_kind(kind.names);
        for (std::string name; of_kind >> name;) {
            uint32_t place = 99;
            EXPECT_EQ(dak_sdp_get_mime_val(name.c_str(), &place), 1);
            ASSERT_EQ(g_media_mime[place], name);
            EXPECT_TRUE(dak_g_init_media_codec[place] == kind.init &&
                        dak_g_set_media_value_by_mime_func_ptr[place] == kind.set &&
                        dak_g_get_media_value_by_mime_func_ptr[place] == kind.get &&
                        dak_g_encoder_func_ptr[place] == kind.write)
                << name;
        }
    }
}

TEST_F(CodecKind, names_match_whole)
{
    uint32_t index = 99;
    for (const char *name : {"H264 ", " H264", "H26", "AMR-", "-WB", "opus", "", (const char *)nullptr})
        EXPECT_EQ(call(dak_sdp_get_mime_val, name, &index), outcome{0}) << text_of(name);
    EXPECT_EQ(index, 99U) << "written for a name that is found";
    EXPECT_EQ(call(dak_sdp_get_mime_val, "h263-1998", &index), done);
    EXPECT_EQ(index, 17U);
}

// The slots of a kind are the parameters of its line, in that order, whatever the order of setting.
TEST_F(CodecKind, sets_reads_and_writes_its_slots)
{
    table::for_each_row("codec_kinds.txt", [](const table::row &row) {
        const section_ptr section = new_section("RTP/AVP 0=PCMU 97=" + row.at("mime"));
        std::vector<std::string> parameters;
        const std::string &line = row.at("parameters");
        for (std::size_t at = 0, stop; at < line.size(); at = stop + 1) {
            stop = std::min(line.find_first_of("; ", at), line.size());
            parameters.insert(parameters.begin(), line.substr(at, stop - at));
        }
        for (const std::string &parameter : parameters) {
            const std::size_t equals = parameter.find('=');
            const std::string name = equals == parameter.npos ? "" : parameter.substr(0, equals);
            const std::string value = parameter.substr(equals + 1);
            const char *asked = name.empty() ? "events" : name.c_str();
            EXPECT_EQ(call(get_media_value, section, 1, asked), outcome{0}) << asked << " was never set";
            EXPECT_EQ(call(set_media_value, section, 1, name.c_str(), value.c_str()), done) << name;
            EXPECT_EQ(call(get_media_value, section, 1, asked), (outcome{1, value}));
        }
        for (const std::string &lines : {"a=fmtp:97 " + line + "\r\n", std::string()}) {
            const std::string head = "a=rtpmap:97 " + row.at("mime") + "/8000\r\n";
            EXPECT_EQ(written_by(dak_sdp_encode_media_codec, section, 1), (outcome{1, head + lines}));
            EXPECT_EQ(written_by(dak_sdp_encode_media_codec, section, 1), (outcome{1, head + lines}))
                << "writing changes no value";
            add_media_codec_to_media_description(section, 97, row.at("mime").c_str(), 8000, 1);
        }
    });
}

TEST_F(CodecKind, drops_what_it_has_no_slot_for)
{
    table::for_each_row("no_parameters.txt", [](const table::row &row) {
        const section_ptr section = new_section("RTP/AVP 97=" + row.at("mime"));
        const char *const name = row.at("name").c_str();
        EXPECT_EQ(call(set_media_value, section, 0, name, "1"), log_only(1, "Unsupported parameter "));
        EXPECT_EQ(call(get_media_value, section, 0, name), outcome{0});
        EXPECT_EQ(written_by(dak_sdp_encode_media_codec, section, 0).text.find("a=fmtp"), std::string::npos);
    });
    media_info info{};
    EXPECT_EQ(call(init_h263_common_params, info.param_name), done);
    EXPECT_EQ(info.param_name[0] + std::string(" ") + info.param_name[16] + info.param_name[17], "SQCIF HRD");
}

// The events stand bare on the line, so writing takes their name away for good: until the format is bound
// anew, neither "events" nor the empty name finds them.
TEST_F(CodecKind, telephone_event_loses_its_name_when_written)
{
    const section_ptr section = new_section("RTP/AVP 101=telephone-event");
    const auto write = [&] { return written_by(dak_sdp_tel_evnt_media_info_encode, section, 0).text; };
    EXPECT_EQ(set_telephone_event_value(section, 0, nullptr, "0-11 "), 1);
    EXPECT_EQ(text_of(get_telephone_event_value(section, 0, "EVENTS")), "0-11");
    EXPECT_EQ(get_telephone_event_value(section, 0, ""), nullptr) << "the getter has no default name";
    EXPECT_EQ(write(), "a=fmtp:101 0-11\r\n");
    for (const char *name : {"events", ""}) {
        EXPECT_EQ(get_telephone_event_value(section, 0, name), nullptr) << name;
        EXPECT_EQ(call(set_telephone_event_value, section, 0, name, "16").log, "Unsupported parameter ");
    }
    EXPECT_EQ(write(), "a=fmtp:101 0-11\r\n");
    EXPECT_EQ(written_by(dak_sdp_tel_evnt_media_info_encode, section, 1), refused)
        << "behind the last format";
}

} // namespace
