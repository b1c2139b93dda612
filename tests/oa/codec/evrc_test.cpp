#include "fmtp_case.h"

namespace {

using namespace fmtp_case;

class Evrc : public PlatformTest {};

// EVRC0 has no other parameters.
TEST_F(Evrc, dtx)
{
    expect_decoded("EVRC0", R"(
nothing | |
zeros | silencesupp=0 dtxmax=0 dtxmin=0 hangover=0 | silencesupp=0 dtxmax=0 dtxmin=0 hangover=0
all | silencesupp=1 dtxmax=255 dtxmin=12 hangover=1 | silencesupp=1 dtxmax=255 dtxmin=12 hangover=1
silencesupp is 0 or 1 | silencesupp=2 dtxmax=32 | dtxmax=32 | dtxmax=32 | silence:2
and not below 0 | silencesupp=2147483648 | | | silence:-2147483648
unreadable values are logged | silencesupp=x dtxmax=- dtxmin=x hangover=x | |
|no-silence, no-dtx:dtxmax, no-dtx:dtxmin, no-dtx:hangover
what follows them is read | silencesupp=x hangover=3 | hangover=3 | hangover=3 | no-silence
dtxmax ends at 255 | silencesupp=1 dtxmax=256 dtxmin=3 | silencesupp=1 | | dtx:dtxmax 256 | 4
dtxmin begins at 0 | dtxmax=1 dtxmin=-1 hangover=2 | dtxmax=1 | | dtx:dtxmin -1 | 4
hangover | dtxmin=2 hangover=2147483648 | dtxmin=2 | | dtx:hangover -2147483648 | 4
2^32 reads as 0 | silencesupp=4294967296 dtxmax=4294967296 | silencesupp=0 dtxmax=0 | silencesupp=0 dtxmax=0
2^63 as -1 | dtxmax=9223372036854775808 | | | dtx:dtxmax -1 | 4
30 digits too | dtxmin={9:30} | | | dtx:dtxmin -1 | 4
absent ones are cleared | silencesupp=1 dtxmax=32 hangover=1 > dtxmin=2 | dtxmin=2 | dtxmin=2
)");
    expect_encoded("EVRC0", R"(
any flag but 0 counts, a byte is a number | silencesupp[2]=200 dtxmax[255]=3 | silencesupp=200 dtxmax=3
silencesupp on G729 | silencesupp=1 dtxmax=1 dtxmin=1 hangover=1 | | | 7
hangover on G729 | hangover=1 | | | 7
no flag, and so nothing on G729 | silencesupp[0]=1 dtxmax[0]=1 dtxmin[0]=1 hangover[0]=1 |
)");
    const section amr("AMR");
    const auto encode = [&](uint16_t index, dtx_params dtx) {
        return see([&] { return dak_app_sdp_encode_dtx(amr, index, dtx); }, [&] { return amr.fmtp(); });
    };
    EXPECT_EQ(encode(0, {1, 1, 0, 1, 0, 1, 1, 1}), outcome(0, "", "unsupported, unsupported"));
    EXPECT_EQ(encode(1, {0, 0, 0, 0, 0, 0, 1, 1}), outcome(7, "", "", true)) << "behind the last format";
    const std::size_t reports_of_one = standin::assert_count();
    EXPECT_EQ(encode(1, {1, 1, 1, 1, 1, 1, 1, 1}), outcome(7, "", "", true));
    EXPECT_EQ(standin::assert_count(), 2 * reports_of_one) << "nothing is written behind a refusal";
}

TEST_F(Evrc, members_have_their_parameters)
{
    const std::string dtx = "silencesupp=1 dtxmax=32 dtxmin=12 hangover=1",
                      wb_dtx = "silencesupp=1;dtxmax=32;dtxmin=12;hangover=1";
    expect_decoded("EVRC", "all | maxinterleave=5 " + dtx + "| maxinterleave=5 " + dtx);
    expect_decoded("EVRC1", "all | fixedrate=0.5 " + dtx + "| fixedrate=1 " + dtx);
    expect_decoded("EVRCB1", "all | fixedrate=1 " + dtx + "| fixedrate=2 " + dtx);
    expect_decoded("EVRCB", "all | maxinterleave=5 " + dtx + " sendmode=3 recvmode=7 | maxinterleave=5 " +
                                dtx + " sendmode=8 recvmode=128");
    expect_decoded("EVRCB0", "all | " + dtx + " sendmode=3 recvmode=7 | " + dtx + " sendmode=8 recvmode=128");
    expect_decoded("EVRCWB", "all | maxinterleave=5;" + wb_dtx +
                                 ";mode-set-recv=0,7;sendmode=4 | maxinterleave=5 " + dtx +
                                 " mode_set_recv=129 sendmode=16");
    expect_decoded("EVRCWB0", "all | " + wb_dtx + ";mode-set-recv=0,7;sendmode=4 | " + dtx +
                                  " mode_set_recv=129 sendmode=16");
    expect_decoded("EVRCWB1", "all | fixedrate=0.5;" + wb_dtx +
                                  ";mode-set-recv=0,7;sendmode=4 | fixedrate=1 " + dtx +
                                  " mode_set_recv=129 sendmode=16");
    for (const char *codec : {"EVRC", "EVRC1", "EVRCB", "EVRCB0", "EVRCB1", "EVRCWB", "EVRCWB0", "EVRCWB1"})
        expect_decoded(codec, "a bad DTX value | dtxmax=2;dtxmin=256 | dtxmax=2 | | dtx:dtxmin 256 | 4");
}

TEST_F(Evrc, fixed_rates)
{
    for (const char *codec : {"EVRC1", "EVRCB1", "EVRCWB1"}) {
        expect_decoded(codec, R"(
half | fixedrate=0.5 | fixedrate=1
full | fixedrate=1 | fixedrate=2
others end it, and DTX stays | fixedrate=1 dtxmax=9 > fixedrate=1.0;hangover=2
|fixedrate[0]=4 dtxmax=9 | | rate | 4
the whole text counts | fixedrate=0.50 | fixedrate[0]=4 | | rate | 4
none is no rate | fixedrate= | fixedrate[0]=4 | | rate | 4
absent it stays | fixedrate=1 > | fixedrate=1 | fixedrate=0.5
)");
        expect_encoded(codec, R"(
no such rate | fixedrate=3 dtxmin=1 | | rate | 4
nor this | fixedrate[2]=0 | | rate | 4
no flag | fixedrate[0]=3 |
fixedrate on G729 | fixedrate=1 dtxmin=1 | | | 4
DTX on G729 | dtxmin=1 | | | 7
)");
    }
    expect_decoded("EVRCWB1", R"(
modes are read before | fixedrate=2;mode-set-recv=1;sendmode=0;dtxmax=3
|fixedrate[0]=4 mode_set_recv=2 sendmode=1 | | rate | 4
)");
    expect_encoded("EVRCWB1", R"(
and written | fixedrate=3 mode_set_recv=2 sendmode=1 | mode-set-recv=1;sendmode=0 | rate | 4
mode-set-recv before the rate on G729 | fixedrate=3 mode_set_recv=2 | | string | 4
)");
    char out[21];
    for (
        const columns &row : table(
            "1 | 0.5 | | 0 \n 2 | 1 | | 0 \n 0 | 0 | rate | 4 \n 4 | 0 | rate | 4 \n 4294967297 | 0.5 | | 0"))
        EXPECT_EQ(see(
                      [&] {
                          return dak_app_sdp_encode_conv_evrc1_rate(
                              static_cast<uint32_t>(std::stoull(row[0])), out);
                      },
                      [&] { return out; }),
                  outcome(static_cast<uint32_t>(std::stoul(row[3])), row[1], row[2]));
}

TEST_F(Evrc, maxinterleave)
{
    for (const std::string codec : {"EVRC", "EVRCB", "EVRCWB"}) {
        expect_decoded(codec, R"(
16 bits | maxinterleave=70000 | maxinterleave=4464 | maxinterleave=4464
without a sign | maxinterleave=-1 | maxinterleave=65535 | maxinterleave=65535
of 2^31 | maxinterleave=2147483648 | maxinterleave=0 | maxinterleave=0
of 2^63 | maxinterleave=9223372036854775808 | maxinterleave=65535 | maxinterleave=65535
unreadable it loses its flag | maxinterleave=4 > maxinterleave=x | maxinterleave[0]=4 |
absent it stays | maxinterleave=4 > | maxinterleave=4 | maxinterleave=4
)");
        const std::string refused = codec == "EVRC" ? "il-evrc" : codec == "EVRCB" ? "il-evrcb" : "il-evrcwb";
        expect_encoded(codec, R"(
any flag | maxinterleave[255]=0 | maxinterleave=0
none | maxinterleave[0]=4 |
maxinterleave on G729 | maxinterleave=1 dtxmax=3 | | )" +
                                  refused + " | 4");
    }
}

TEST_F(Evrc, modes)
{
    for (const std::string codec : {"EVRCB", "EVRCB0", "EVRCWB", "EVRCWB0", "EVRCWB1"}) {
        const std::string invalid = codec[4] == 'W' ? "evrcwb" : "evrcb";
        expect_decoded(codec, R"(
a sendmode replaces the one before | sendmode=4 > sendmode=7 | sendmode=128
unreadable ones keep it without its flag | sendmode=4 > sendmode=x | sendmode[0]=4 |
a list gives its first mode | sendmode=2,5 | sendmode=4 | sendmode=2
16 bits are read | sendmode=65537 | sendmode=2 | sendmode=1
of 2^31 | sendmode=2147483648 | sendmode=1 | sendmode=0
absent ones stay | sendmode=4 > | sendmode=4 | sendmode=2
too high ones keep it too | sendmode=4 > sendmode=8;dtxmax=3 | sendmode[0]=4 | |)" +
                                  invalid + R"(:4 | 4
one below 0 is too high | sendmode=-1 | | |)" +
                                  invalid + R"(:0 | 4
30 digits are | sendmode={9:30} | | |)" +
                                  invalid + ":0 | 4");
        expect_encoded(codec, R"(
lists | sendmode=145 | sendmode=0,4,7
no modes | sendmode=0 | sendmode=
the flag is 1 | sendmode[2]=3 |
)");
    }
    for (const char *codec : {"EVRCB", "EVRCB0"}) {
        expect_decoded(codec, R"(
recvmodes gather | recvmode=128 > recvmode=0 | recvmode=129 | recvmode=0,7
unreadable ones keep them without the flag | recvmode=128 > recvmode=x | recvmode[0]=128 |
a sendmode is not taken for one | sendmode=3 recvmode=x | sendmode=8 | sendmode=3
one that is too high | recvmode=128 > sendmode=1 recvmode=9 dtxmax=1
|sendmode=2 recvmode[0]=128 | | evrcb:128 | 4
)");
        expect_encoded(codec, R"(
lists | sendmode=1 recvmode=9 | sendmode=0 recvmode=0,3
the flag is 1, and mode-set-recv not written | mode_set_recv=3 recvmode[3]=1 |
)");
    }
    for (const char *codec : {"EVRCWB", "EVRCWB0", "EVRCWB1"}) {
        expect_decoded(codec, R"(
eight modes are read | mode-set-recv=7,6,5,4,3,2,1,0,9 | mode_set_recv=255 | mode-set-recv=0,1,2,3,4,5,6,7
one digit of each | mode-set-recv=12,30 | mode_set_recv=10 | mode-set-recv=1,3
a list replaces the one before | mode_set_recv=128 > mode-set-recv=1 | mode_set_recv=2
absent it stays | mode_set_recv=128 > | mode_set_recv=128 | mode-set-recv=7
no digit | mode-set-recv=0,x,2 | mode_set_recv[0]=1 |
no token | mode_set_recv=128 > mode-set-recv=, | |
mode 8 | sendmode=1;mode-set-recv=0,8;dtxmax=2 | mode_set_recv[0]=1 sendmode=2 | | evrc-mode:8 | 4
)");
        expect_encoded(codec, R"(
the flag is 1 | mode_set_recv[2]=3 |
no modes | mode_set_recv=0 | mode-set-recv=
sendmode on G729 | dtxmax=1 mode_set_recv=1 sendmode=1 | | string | 4
mode-set-recv on G729 | dtxmax=1 mode_set_recv=1 | | string | 4
DTX on G729 | dtxmax=1 | | | 7
)");
    }
    expect_encoded("EVRCB0", R"(
sendmode on G729 | dtxmax=1 sendmode=1 recvmode=1 | | string | 4
recvmode on G729 | dtxmax=1 recvmode=1 | | string | 4
)");
    expect_encoded("EVRCB", R"(
a sendmode that is refused passes over the recvmode on G729 | sendmode=1 recvmode=1 | | string
DTX decides on G729 | sendmode=1 recvmode=1 dtxmax=1 | | string | 7
as behind a recvmode on G729 | recvmode=1 dtxmax=1 | | string | 7
and on G729 | recvmode=1 | | string
)");
    expect_encoded("EVRCWB", "recvmode is not written | recvmode=3 |");
}

TEST_F(Evrc, mode_lists_by_themselves)
{
    char out[256] = "left";
    const auto list = [&](uint8_t modes) {
        return see([&] { return dak_app_sdp_encode_evrc_mode(out, modes); }, [&] { return out; });
    };
    EXPECT_EQ(list(0), outcome(1));
    EXPECT_EQ(list(129), outcome(1, "0,7"));
    EXPECT_EQ(list(255), outcome(1, "0,1,2,3,4,5,6,7"));
    EXPECT_EQ(see([] { return dak_app_sdp_encode_evrc_mode(nullptr, 1); }), outcome(0, "", "bad-evrc"));
    uint8_t present = 7, map = 7;
    const auto read = [&](const std::string &text, bool has_text = true) {
        const heap_c_text copy(text);
        return see(
            [&] { return dak_app_sdp_decode_evrc_mode(has_text ? copy.c_str() : nullptr, &present, &map); },
            [&] { return std::to_string(present) + " " + std::to_string(map); });
    };
    EXPECT_EQ(read("", false), outcome(7, "7 7", "null-modes"));
    EXPECT_EQ(without_report(read("3" + std::string(256, ';'))), outcome(1, "7 7", "over:257"));
    EXPECT_EQ(read("3" + std::string(255, ';')), outcome(0, "1 8"));
    EXPECT_EQ(read("0;2,7"), outcome(0, "1 133"));
    EXPECT_EQ(read(""), outcome(0, "0 0"));
    EXPECT_EQ(see([&] { return dak_app_sdp_decode_evrc_mode("1", nullptr, &map); }),
              outcome(7, "", "null-modes"));
    EXPECT_EQ(see([&] { return dak_app_sdp_decode_evrc_mode("1", &present, nullptr); }),
              outcome(7, "", "null-modes"));
}

} // namespace
