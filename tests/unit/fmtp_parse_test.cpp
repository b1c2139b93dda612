#include "codec/fmtp_parse.h"

#include "codec/media_value.h"
#include "support.h"

namespace {

class FmtpParse : public PlatformTest {};

// The set parameters of all payload formats, as name<value> in slot order.
std::string stored(const media_description *section)
{
    std::string text;
    for (int codec = 0; codec < section->number_of_payload; ++codec) {
        const media_info &info = section->codecs[codec].info;
        for (int slot = 0; slot < MEDIA_INFO_MAX_SLOTS; ++slot)
            if (info.param_present[slot] == 1)
                text += (text.empty() ? "" : " ") + std::string(info.param_name[slot]) + "<" +
                        info.param_value[slot] + ">";
    }
    return text;
}

struct fmtp_row {
    const char *mime;
    std::string line;
    outcome seen;
};

// Every row holds for every line end, whatever the next line begins with.
void expect_lines(const std::vector<fmtp_row> &rows)
{
    for (const fmtp_row &row : rows) {
        for (const std::string_view line_end :
             {std::string_view("\r\n=9;crc=9"), std::string_view("\n=9;crc=9"), std::string_view("\r"),
              std::string_view("\0", 1)}) {
            SCOPED_TRACE(row.mime + (" " + row.line.substr(0, 80)) + testing::PrintToString(line_end));
            const section_ptr section = new_section("RTP/AVP", {{0, "PCMU"}, {97, row.mime}, {98, "H263"}});
            EXPECT_EQ(lines_read(parse_a_equal_fmtp_line, section, {row.line}, line_end, stored), row.seen);
            const bool wiped = row.seen.log.ends_with("Invalid MIME or an invalid attribute\n");
            EXPECT_STREQ(get_media_codec_mime_type_by_index(section, 1), wiped ? "" : row.mime);
        }
    }
}

const std::string unsupported = "Unsupported parameter ";

TEST_F(FmtpParse, parameters_are_separated_by_semicolons)
{
    expect_lines({
        {"AMR", "a=fmtp:97 mode-set=0,2,4,7;octet-align=1", {1, "octet-align<1> mode-set<0,2,4,7>"}},
        {"AMR", "a=fmtp:97 Octet-Align=1;OCTET-ALIGN=0", {1, "octet-align<0>"}},
        {"AMR", "a=fmtp:97  \t octet-align=1", {1, "octet-align<1>"}},
        {"AMR", "a=fmtp:97\toctet-align=1; mode-set=2", {1, "octet-align<1> mode-set<2>"}},
        {"AMR", "a=fmtp:97 octet-align = 1; mode-set\t=\t2 ", {1, "octet-align<1> mode-set<2>"}},
        {"AMR", "a=fmtp:97 octet-align=1 mode-set=2", {1, "octet-align<1 mode-set=2>"}},
        {"AMR", "a=fmtp:97 octet-align=1;", {1, "octet-align<1>"}},
        {"AMR", "a=fmtp:97 octet-align=1;;mode-set=20", {1, "octet-align<1> mode-set<20>"}},
        {"AMR", "a=fmtp:97 octet-align=1; ", {0, "octet-align<1>", "", true}},
        {"AMR", "a=fmtp:97  ;octet-align=1", refused},
        {"AMR", "a=fmtp:97 ", refused},
        {"AMR", "a=fmtp:97 mode-set=;octet-align=1", refused},
        {"AMR", "a=fmtp:97 crc=1;mode-set= ;octet-align=1", {0, "crc<1>", "", true}},
        {"AMR", "a=fmtp:97 crc=1; =5;octet-align=1", {0, "crc<1>", "", true}},
        {"AMR", "a=fmtp:97 octet-align;mode-set=1", {1, "mode-set<1>", unsupported}},
        {"AMR", "a=fmtp:97 foo=1;crc=1;bar=2", {1, "crc<1>", unsupported + "|" + unsupported}},
        {"AMR", "a=fmtp:97 foo", {1, "", unsupported}},
        {"AMR", "a=fmtp:97", {1}},
        {"AMR", "a=fmtp: 97 x=1", {1, "", unsupported}},
        {"AMR", "a=fmtp:97 crc=" + xs(199), {1, "crc<" + xs(199) + ">"}},
        {"AMR", "a=fmtp:97 crc=1;mode-set=" + xs(199) + "x;max-red=1", {0, "crc<1>", "", true}},
        {"AMR", "a=fmtp:97 " + xs(199) + "=1;crc=1", {1, "crc<1>", unsupported}},
        {"AMR", "a=fmtp:97 " + xs(199) + "x=1;crc=1", refused},
        {"mpeg4-generic", "a=fmtp:97 foo;rate=1", {1, "rate<1>", unsupported}},
        {"mpeg4-generic",
         "a=fmtp:97 auxiliaryDataSizeLength=0;mode=AAC-hbr",
         {1, "mode<AAC-hbr>", unsupported}},
        {"H264",
         "a=fmtp:97 sprop-parameter-sets=Z0IACg==,aMljiA==;packetization-mode=1",
         {1, "packetization-mode<1> sprop-parameter-sets<Z0IACg==,aMljiA==>"}},
        {"H264",
         "a=fmtp:97 packetization-mode=1;sprop-parameter-sets=Z0IACg==,aMljiA==",
         {1, "packetization-mode<1> sprop-parameter-sets<Z0IACg==,aMljiA==>"}},
        {"telephone-event", "a=fmtp:97 0-15", {1, "events<0-15>"}},
        {"telephone-event", "a=fmtp:97 0-15;;", {1, "events<0-15>"}},
        {"telephone-event", "a=fmtp:97 0-11 ;16", {1, "events<16>"}},
        {"telephone-event", "a=fmtp:97 events=0-15", {1, "events<0-15>"}},
        {"telephone-event", "a=fmtp:97 " + xs(199), {1, "events<" + xs(199) + ">"}},
    });
}

// EVRC and EVRC-B lines are written with blanks, so blanks separate there; the names are compared exactly.
TEST_F(FmtpParse, blanks_separate_the_parameters_of_evrc_and_evrcb)
{
    std::vector<fmtp_row> rows = {
        {"EVRC", "a=fmtp:97  maxinterleave=5 dtxmax=32", {1, "maxinterleave<5> dtxmax<32>"}},
        {"EVRC", "a=fmtp:97   maxinterleave=5 dtxmax=32", {1, "maxinterleave<5> dtxmax<32>"}},
        {"EVRC", "a=fmtp:97\tmaxinterleave=5 dtxmax=32", {1, "maxinterleave<5> dtxmax<32>"}},
        {"EVRC", "a=fmtp:97 maxinterleave=5\tdtxmax=32", {1, "maxinterleave<5\tdtxmax=32>"}},
        {"EVRC", "a=fmtp:97 dtxmax=32  ", {1, "dtxmax<32>"}},
        {"EVRC", "a=fmtp:97 ; ;", {1}},
        {"EVRC", "a=fmtp:97 ", {1}},
        {"EVRC", "a=fmtp:97 dtxmax= 32", refused},
    };
    for (const char *separator : {" ", ";", "; ", " ; "}) {
        const std::string line = std::string("a=fmtp:97 silencesupp=1") + separator + "dtxmax=32";
        for (const char *mime : {"EVRC", "EVRC0", "EVRC1", "EVRCB", "EVRCB0", "EVRCB1"})
            rows.push_back({mime, line, {1, "silencesupp<1> dtxmax<32>"}});
    }
    for (const char *mime : {"EVRCWB", "EVRCWB0", "EVRCWB1", "evrcb", "Evrc"})
        rows.push_back({mime, "a=fmtp:97 silencesupp=1 dtxmax=32", {1, "silencesupp<1 dtxmax=32>"}});
    expect_lines(rows);
}

TEST_F(FmtpParse, a_line_that_no_format_can_take_fails)
{
    const std::string invalid = "Invalid MIME or an invalid attribute\n";
    expect_lines({
        {"G729", "a=fmtp:97 annexb=no", {0, "", invalid}}, // known by name only: it loses its name
        {"PCMA", "a=fmtp:97 foo;bar", {0, "", invalid}},
        {"G729", "a=fmtp:97", {1}},
        {"opus", "a=fmtp:97 useinbandfec=1", refused},
        {"AMR", "a=fmtp:99 crc=1", refused},
        {"AMR", "a=fmtp:97;crc=1", {0}},
        {"AMR", "a=fmtp:x crc=1", {0}},
        {"AMR", "a=fmtp:-97 crc=1", {0}},
        {"AMR", "a=fmtp:4294967393 crc=1", refused}, // 97 in 32 bits
        {"AMR", "a=fmtp", refused},
        {"AMR", "a=fmtp:", refused},
        {"AMR", "a=fmtp:\t", refused},
    });
    const char *line = "a=fmtp:97 crc=1";
    const section_ptr section = new_section("RTP/AVP", {{97, "AMR"}}), no_formats = new_section("RTP/AVP");
    EXPECT_EQ(lines_read(parse_a_equal_fmtp_line, no_formats, {line}, "\n", stored), refused);
    EXPECT_EQ(parse_a_equal_fmtp_line(nullptr, line, line + 15), 0);
    EXPECT_EQ(parse_a_equal_fmtp_line(section, nullptr, line + 15), 0);
    EXPECT_EQ(parse_a_equal_fmtp_line(section, line, nullptr), 0);
}

// The layers above find formats by their encoding name: a wiped one is out of use, the others are read on.
TEST_F(FmtpParse, a_wiped_format_is_out_of_use)
{
    const std::string body = "v=0\nm=audio 49170 RTP/AVP 18 97\na=rtpmap:18 G729/8000\na=rtpmap:97 AMR/8000\n"
                             "a=fmtp:18 annexb=no\na=fmtp:18 annexb=no\na=fmtp:97 crc=1";
    const context_ptr context(init_sdp_lib());
    const outcome seen = call(sdp_parse, context.get(), body.c_str(), static_cast<uint32_t>(body.size()));
    EXPECT_EQ(seen, logged(1, "Invalid MIME or an invalid attribute\n|parse fmtp err |parse fmtp err "));
    media_description *section = get_media_description_by_index(context.get(), SDP_PARSER_DOCUMENT, 0);
    EXPECT_EQ(stored(section), "crc<1>");
    EXPECT_EQ(written_by(dak_sdp_encode_media_codec, section, 0), done);
}

// Past 65,535 characters as well: nothing counts positions in 16 bits.
TEST_F(FmtpParse, long_lines)
{
    expect_lines({
        {"AMR", "a=fmtp:97 max-red=1" + std::string(70000, ';') + "crc=1", {1, "crc<1> max-red<1>"}},
        {"EVRC", "a=fmtp:97 " + std::string(70000, ' ') + "dtxmax=1", {1, "dtxmax<1>"}},
        {"AMR", "a=fmtp:97 crc=" + std::string(70000, ' ') + "1", {1, "crc<1>"}},
        {"AMR", "a=fmtp:97 max-red=1;crc=" + std::string(70000, '1'), {0, "max-red<1>", "", true}},
    });
}

} // namespace
