#include "fmtp_case.h"

namespace {

using namespace fmtp_case;

class CodecTable : public PlatformTest {};

// The functions behind the names are the other tests' matter: they take them from here.
TEST_F(CodecTable, rows_in_order)
{
    const std::vector<columns> rows = table(R"(
0 | PCMU | none
8 | PCMA | none
4 | G723 | none
9 | G722 | none
18 | G729 | none
21 | G711AB | none
34 | H263 | none
98 | MP4V-ES
113 | H264
99 | EVRC
97 | AMR
96 | AMR-WB
111 | G722_2
100 | EVRC0
102 | EVRCB0
103 | EVRCB
101 | EVRC1
104 | EVRCB1
105 | telephone-event
106 | H263-1998
107 | H263-2000
108 | EVRCWB0
109 | EVRCWB
110 | EVRCWB1
112 | telephone-event
)");
    ASSERT_EQ(rows.size(), std::size(mime_table));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const sdp_mime_entry &entry = mime_table[i], &first = mime_table[i == 24 ? 18 : i];
        EXPECT_EQ(std::to_string(entry.payload_number), rows[i][0]);
        EXPECT_EQ(entry.mime_name, rows[i][1]);
        EXPECT_EQ(entry.encode == nullptr && entry.decode == nullptr, rows[i][2] == "none") << rows[i][1];
        EXPECT_TRUE(entry.encode == first.encode && entry.decode == first.decode);
        EXPECT_EQ(dak_app_sdp_find_medentry_by_pt(entry.payload_number), &entry) << rows[i][0];
        std::string other_case = rows[i][1];
        for (char &c : other_case)
            c = static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c >= 'a' && c <= 'z' ? c - 32 : c);
        EXPECT_EQ(dak_app_sdp_find_medentry_by_mime(other_case.c_str()), &first) << other_case;
    }
    const auto by_pt = [](uint32_t number) {
        return see([&] { return dak_app_sdp_find_medentry_by_pt(number) != nullptr; });
    };
    const auto by_name = [](const char *name) {
        return see([&] { return dak_app_sdp_find_medentry_by_mime(name) != nullptr; });
    };
    EXPECT_EQ(by_pt(105), outcome(1));
    for (const uint32_t number : {1U, 95U, 114U, 256U + 97U, 0xFFFFFFFFU})
        EXPECT_EQ(by_pt(number), outcome(0, "", "no-pt")) << number;
    for (const char *name : {"", "AM", "AMR-", "AMR ", "G722.2", "opus"})
        EXPECT_EQ(by_name(name), outcome(0, "", "no-mime")) << name;
    EXPECT_EQ(by_name(nullptr), outcome(0, "", "null-mime"));
}

TEST_F(CodecTable, setters)
{
    const section amr("AMR"), plain("G729");
    const auto setter_rows = [&](media_description *md, uint16_t index, int32_t value) {
        return std::vector<std::string>{
            see([&] { return dak_app_sdp_set_int_inmline(md, index, value, "channels"); },
                [&] { return amr.fmtp(); }),
            see([&] { return dak_app_sdp_set_bool_inmline(md, index, value, "Channels"); },
                [&] { return amr.fmtp(); }),
            see([&] { return dak_app_sdp_set_string_inmline(md, index, "a 2", "channels"); },
                [&] { return amr.fmtp(); })};
    };
    const std::string text = outcome(0, "channels=a 2");
    for (const auto &[value, number, flag] : {std::tuple{0, "0", "0"},
                                              {1, "1", "1"},
                                              {-1, "-1", "1"},
                                              {256, "256", "1"},
                                              {INT32_MAX, "2147483647", "1"},
                                              {INT32_MIN, "-2147483648", "1"}})
        EXPECT_EQ(setter_rows(amr, 0, value),
                  (std::vector{outcome(0, std::string("channels=") + number),
                               outcome(0, std::string("channels=") + flag), text}));
    const auto refused = [](bool reported) {
        const auto one = [&](const char *name) { return outcome(4, "channels=a 2", name, reported); };
        return std::vector{one("int"), one("bool"), one("string")};
    };
    EXPECT_EQ(setter_rows(plain, 0, 1), refused(false));
    EXPECT_EQ(setter_rows(amr, 1, 1), refused(true)) << "behind the last payload format";
    EXPECT_EQ(setter_rows(nullptr, 0, 1), refused(true));
    EXPECT_EQ(see([&] { return dak_app_sdp_set_string_inmline(amr, 0, "1", "unknown"); }),
              outcome(0, "", "unsupported"));
}

// Codec, text that is written back as it is, and what null gives: both logs, both codes.
const std::vector<columns> codecs = table(R"(
AMR | crc=1 | enc:amr | dec-amr | 3 | 3
AMR-WB | mode-set=0,7 | enc:amr | dec-amr | 3 | 3
G722_2 | channels=2 | enc:amr | dec-amr | 3 | 3
EVRC | maxinterleave=5 | enc:evrc | dec:evrc | 3 | 3
EVRC0 | dtxmax=32 | enc:evrc0 | dec:evrc0 | 3 | 3
EVRC1 | fixedrate=0.5 | enc:evrc1 | dec:evrc1 | 3 | 3
EVRCB | recvmode=0 | enc:evrcb | dec:evrc | 3 | 3
EVRCB0 | sendmode=7 | enc:evrcb0 | dec:evrcb0 | 3 | 3
EVRCB1 | fixedrate=1 | enc:evrcb1 | dec:evrcb1 | 3 | 3
EVRCWB | mode-set-recv=0,4 | enc:evrcwb | dec:evrcwb | 3 | 3
EVRCWB0 | mode-set-recv=4 | enc:evrcwb0 | dec:evrcwb0 | 3 | 3
EVRCWB1 | fixedrate=1 | enc:evrcwb1 | dec:evrcwb1 | 3 | 3
H264 | profile-level-id=42e01e | enc:h264 | dec-video:h264 | 3 | 3
MP4V-ES | config=b0 | enc:mp4_es | dec-video:mp4_es | 3 | 3
H263-1998 | QCIF=2 | | | 3 | 7
H263-2000 | profile=0 | | | 7 | 7
telephone-event | 0-15 | enc-event | dec-event | 3 | 3
)");

TEST_F(CodecTable, null_arguments)
{
    for (const columns &row : codecs) {
        SCOPED_TRACE(row[0]);
        const section md(row[0]);
        const block b(row[0]);
        const sdp_mime_entry *entry = dak_app_sdp_find_medentry_by_mime(row[0].c_str());
        const std::string encoded = outcome(static_cast<uint32_t>(std::stoul(row[4])), "", row[2]);
        const std::string decoded = outcome(static_cast<uint32_t>(std::stoul(row[5])), "", row[3]);
        EXPECT_EQ(see([&] { return entry->encode(nullptr, 0, b); }), encoded);
        EXPECT_EQ(see([&] { return entry->encode(md, 0, nullptr); }), encoded);
        EXPECT_EQ(see([&] { return entry->decode(nullptr, 0, b); }), decoded);
        EXPECT_EQ(see([&] { return entry->decode(md, 0, nullptr); }), decoded);
        EXPECT_EQ(b.bytes(), std::string(b.bytes().size(), '\0'));
    }
    const section h263("H263-2000");
    h263_params common = {};
    EXPECT_EQ(see([&] { return dak_app_sdp_encode_h263plus_params(nullptr, 0, &common); }), outcome(7));
    EXPECT_EQ(see([&] { return dak_app_sdp_encode_h263plus_params(h263, 0, nullptr); }), outcome(7));
    EXPECT_EQ(see([&] { return dak_app_sdp_decode_h263plus_params(nullptr, 0, &common); }), outcome(7));
    EXPECT_EQ(see([&] { return dak_app_sdp_decode_h263plus_params(h263, 0, nullptr); }), outcome(7));
}

// A block is written unless its fmtp_present is 0 (telephone-event: only when it is 1); it stays as it was.
TEST_F(CodecTable, the_frame_says_whether_a_block_is_written)
{
    for (const columns &row : codecs) {
        const sdp_mime_entry *entry = dak_app_sdp_find_medentry_by_mime(row[0].c_str());
        const block b(row[0]);
        ASSERT_EQ(entry->decode(section(row[0], row[1]), 0, b), 0U);
        for (const char present : {'\0', '\1', '\2', '\xFF'}) {
            const section out(row[0]);
            const bool is_written = present == 1 || (present != 0 && row[0] != "telephone-event");
            b[0] = present;
            const std::string before = b.bytes();
            EXPECT_EQ(see([&] { return entry->encode(out, 0, b); }, [&] { return out.fmtp(); }),
                      outcome(0, is_written ? row[1] : ""))
                << row[0] << " " << int(present);
            EXPECT_EQ(b.bytes(), before) << row[0];
        }
    }
}

} // namespace
