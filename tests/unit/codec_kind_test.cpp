#include "codec/codec_kind.h"

#include "codec/media_value.h"
#include "codec/registry.h"
#include "support.h"

namespace {

class CodecKind : public PlatformTest {};

std::vector<std::string> split(const std::string &text, const char *at)
{
    std::vector<std::string> parts;
    for (std::size_t start = 0, stop; start <= text.size(); start = stop + 1) {
        stop = std::min(text.find_first_of(at, start), text.size());
        parts.push_back(text.substr(start, stop - start));
    }
    return parts;
}

// The slots of a kind are the parameters of its fmtp line, in that order, whatever the order of setting.
TEST_F(CodecKind, sets_reads_and_writes_its_slots)
{
    const std::string picture = "SQCIF=0;QCIF=1;CIF=2;CIF4=3;CIF16=4;CUSTOM=5;F=6;I=7;J=8;T=9;K=10;N=11;P=12;"
                                "PAR=13;CPCF=14;BPP=15;HRD=16";
    const struct {
        const char *mime_types;
        std::string line;
    } rows[] = {
        {"AMR AMR-WB G722_2 amr-wb", "octet-align=0;mode-set=1;mode-change-period=2;mode-change-capability=3;"
                                     "mode-change-neighbor=4;crc=5;"
                                     "robust-sorting=6;interleaving=7;max-red=8;channels=9"},
        {"EVRC", "maxinterleave=0 silencesupp=1 dtxmax=2 dtxmin=3 hangover=4"},
        {"EVRC0", "silencesupp=0 dtxmax=1 dtxmin=2 hangover=3"},
        {"EVRC1 EVRCB1", "fixedrate=0 silencesupp=1 dtxmax=2 dtxmin=3 hangover=4"},
        {"EVRCB0", "silencesupp=0 dtxmax=1 dtxmin=2 hangover=3 sendmode=4 recvmode=5"},
        {"EVRCB evrcb", "maxinterleave=0 silencesupp=1 dtxmax=2 dtxmin=3 hangover=4 sendmode=5 recvmode=6"},
        {"EVRCWB0", "silencesupp=0;dtxmax=1;dtxmin=2;hangover=3;mode-set-recv=4;sendmode=5"},
        {"EVRCWB", "maxinterleave=0;silencesupp=1;dtxmax=2;dtxmin=3;hangover=4;mode-set-recv=5;sendmode=6"},
        {"EVRCWB1", "fixedrate=0;silencesupp=1;dtxmax=2;dtxmin=3;hangover=4;mode-set-recv=5;sendmode=6"},
        {"telephone-event", "0-15"},
        {"H263", "profile=0;level=1"},
        {"H263-1998", picture},
        {"H263-2000", picture + ";profile=17;level=18;interlace=19"},
        {"MP4V-ES", "profile-level-id=0;config=1"},
        {"H264", "profile-level-id=0;packetization-mode=1;sprop-deint-buf-req=2;max-rcmd-nalu-size=3;sar-"
                 "understood=4;"
                 "sar-supported=5;in-band-parameter-sets=6;parameter-add=7;sprop-parameter-sets=8;"
                 "sprop-level-parameter-sets=9;use-level-src-parameter-sets=10"},
        {"mpeg4-generic isoff-generic generic-mp4",
         "streamType=0;profile-level-id=1;config=2;mode=3;objectType=4;constantSize=5;constantDuration=6;"
         "maxDisplacement=7;de_interleaveBufferSize=8;sizeLength=9;indexLength=10;indexDeltaLength=11;"
         "CTSDeltaLength=12;DTSDeltaLength=13;randomAccessIndication=14;streamStateIndication=15;rate=16"},
        {"enc-generic-mp4 enc-mpeg4-generic enc-isoff-generic",
         "codec=0;mode=1;profile-level-id=2;sprop-parameter-sets=3;ISMACrypCryptoSuite=4;ISMACrypIVLength=5;"
         "ISMACrypDeltaIVLength=6;ISMACrypSelectiveEncryption=7;ISMACrypKeyIndicatorLength=8;"
         "ISMACrypKeyIndicatorPerAU=9;ISMACrypSalt=10;ISMACrypKey=11;ISMACrypKMSID=12;ISMACrypKMSVersion=13;"
         "ISMACrypKMSSpecificData=14;ISMACRYP_CRYPTO_SUITE=15;ISMACRYP_IV_LENGTH=16;ISMACRYP_DELTA_IV_LENGTH="
         "17;"
         "ISMACRYP_SELECTIVE_ENCRYPTION=18;ISMACRYP_KEY_INDICATOR_LENGTH=19;ISMACRYP_KEY_INDICATOR_PER_AU=20;"
         "ISMACRYP_SALT=21;ISMACRYP_KEY=22;ISMACRYP_KMS_ID=23;ISMACRYP_KMS_SPECIFIC_DATA=24"},
    };
    for (const auto &row : rows) {
        for (const std::string &mime : split(row.mime_types, " ")) {
            SCOPED_TRACE(mime);
            const section_ptr section = new_section("RTP/AVP", {{0, "PCMU"}, {97, mime.c_str()}});
            std::vector<std::string> parameters = split(row.line, "; ");
            std::reverse(parameters.begin(), parameters.end());
            for (const std::string &parameter : parameters) {
                const std::size_t equals = parameter.find('='); // the events have no name on the line
                const std::string name = equals == std::string::npos ? "" : parameter.substr(0, equals);
                const std::string value = parameter.substr(equals + 1);
                const char *asked = name.empty() ? "events" : name.c_str();
                EXPECT_EQ(get_media_value(section, 1, asked), nullptr) << asked << " was never set";
                EXPECT_EQ(call(set_media_value, section, 1, name.c_str(), value.c_str()), done) << name;
                EXPECT_EQ(text_of(get_media_value(section, 1, asked)), value);
            }
            uint32_t place = 0;
            ASSERT_EQ(dak_sdp_get_mime_val(mime.c_str(), &place), 1);
            for (const char *label : {"once", "writing changes no value"})
                EXPECT_EQ(written_by(dak_g_encoder_func_ptr[place], section, 1),
                          (outcome{1, "a=fmtp:97 " + row.line + "\r\n"}))
                    << label;
            add_media_codec_to_media_description(section, 97, mime.c_str(), 8000, 1);
            EXPECT_EQ(written_by(dak_g_encoder_func_ptr[place], section, 1), done) << "bound anew";
        }
    }
}

TEST_F(CodecKind, drops_what_it_has_no_slot_for)
{
    const struct {
        const char *mime, *name;
    } rows[] = {
        {"EVRC0", "maxinterleave"},
        {"EVRCB1", "sendmode"},
        {"EVRCB", "mode-set-recv"},
        {"EVRCWB", "recvmode"},
        {"H263-1998", "profile"},
        {"telephone-event", "event"},
        {"AMR", ""},
        {"mpeg4-generic", ""},                        // its last slot bears no name, and none finds it
        {"mpeg4-generic", "auxiliaryDataSizeLength"}, // "rate" took its slot
        {"enc-generic-mp4", "ISMACRYP_KMS_VERSION"},  // "ISMACRYP_KMS_SPECIFIC_DATA" took its slot
    };
    for (const auto &[mime, name] : rows) {
        const section_ptr section = new_section("RTP/AVP", {{97, mime}});
        EXPECT_EQ(call(set_media_value, section, 0, name, "1"), log_only(1, "Unsupported parameter "))
            << mime << " " << name;
        EXPECT_EQ(get_media_value(section, 0, name), nullptr);
        EXPECT_EQ(written_by(dak_sdp_encode_media_codec, section, 0).text.find("a=fmtp"), std::string::npos);
    }
}

// The events stand bare on the line, so writing takes their name away for good: until the format is bound
// anew, neither "events" nor the empty name finds them.
TEST_F(CodecKind, telephone_event_loses_its_name_when_written)
{
    const section_ptr section = new_section("RTP/AVP", {{101, "telephone-event"}});
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
    add_media_codec_to_media_description(section, 101, "telephone-event", 8000, 1);
    EXPECT_EQ(set_media_value(section, 0, "events", "16"), 1);
    EXPECT_EQ(write(), "a=fmtp:101 16\r\n");
}

TEST_F(CodecKind, refuses_what_is_not_there)
{
    const section_ptr section = new_section("RTP/AVP", {{97, "AMR"}, {98, "AMR"}}),
                      bare = new_section("RTP/AVP");
    const struct {
        media_description *section;
        int index;
    } rows[] = {{nullptr, 0}, {section, -1}, {section, 2}, {section, 20}, {bare, 0}};
    for (int place = 0; place < MEDIA_MIME_COUNT; ++place) {
        if (dak_g_init_media_codec[place] == nullptr)
            continue;
        EXPECT_EQ(call(dak_g_init_media_codec[place], section->codecs), done);
        EXPECT_EQ(call(dak_g_init_media_codec[place], nullptr), refused);
        EXPECT_EQ(call(dak_g_encoder_func_ptr[place], nullptr, section, 0), refused);
        for (const auto &[from, index] : rows) {
            EXPECT_EQ(call(dak_g_set_media_value_by_mime_func_ptr[place], from, index, "mode", "1"), refused);
            EXPECT_EQ(call(dak_g_get_media_value_by_mime_func_ptr[place], from, index, "mode"), refused);
            EXPECT_EQ(written_by(dak_g_encoder_func_ptr[place], from, index), refused);
        }
    }
    media_info info{};
    EXPECT_EQ(call(init_h263_common_params, info.param_name), done);
    EXPECT_EQ(info.param_name[0] + std::string(" ") + info.param_name[16] + info.param_name[17], "SQCIF HRD");
    EXPECT_EQ(call(init_h263_common_params, nullptr), refused);
}

} // namespace
