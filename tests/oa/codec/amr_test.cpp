#include "fmtp_case.h"

namespace {

using namespace fmtp_case;

class Amr : public PlatformTest {};

TEST_F(Amr, parameters_are_read_and_written)
{
    for (const char *codec : {"AMR", "AMR-WB", "G722_2"})
        expect_decoded(codec, R"(
nothing | |
the first half | octet-align=1;mode-set=0,2,7;mode-change-period=2;mode-change-capability=3
|octet_align=1 mode_set=133 mode_change_period=2 mode_change_capability=3
the second | mode-change-neighbor=1;crc=1;robust-sorting=1;interleaving=1;max-red=220;channels=6
|mode_change_neighbor=1 crc=1 robust_sorting=1 interleaving=1 channels=6 max_red=220
zeros are values | octet-align=0;mode-change-neighbor=0;crc=0;robust-sorting=0;interleaving=0
|octet_align=0 mode_change_neighbor=0 crc=0 robust_sorting=0 interleaving=0
flags of 1 and more are 1 | octet-align=5;mode-change-neighbor=2;crc=256;robust-sorting=65536
|octet_align=1 mode_change_neighbor=1 crc=1 robust_sorting=1
|octet-align=1;mode-change-neighbor=1;crc=1;robust-sorting=1
below 0 they are 0 | octet-align=-1;crc=-2 | octet_align=0 crc=0 | octet-align=0;crc=0
an interleaving depth is not kept | interleaving=30 | interleaving=1 | interleaving=1
a negative one neither | interleaving=-4 | interleaving=1 | interleaving=1
unreadable flags are logged | octet-align=x;mode-change-neighbor=x;crc=-;robust-sorting=+;interleaving=x | |
|octet:0, neighbour:0, crc:0, robust:0, interleave:0
unreadable numbers too | mode-change-period=x;mode-change-capability=x;max-red=x;channels=,2 | |
|change:0, change:0, max-red:0, channels:0
the log tells the last flag read | octet-align=5;mode-change-neighbor=x;crc=-3;robust-sorting=x;interleaving=x
|octet_align=1 crc=0 | octet-align=1;crc=0 | neighbour:5, robust:-3, interleave:-3
and the field of the others
|mode_change_period=4294967295 mode_change_capability=7 channels=3 max_red=-5 > mode-change-period=x
;mode-change-capability=x;max-red=x;channels=x
|mode_change_period[0]=4294967295 mode_change_capability[0]=7 channels[0]=3 max_red[0]=-5 |
|change:4294967295, change:7, max-red:-5, channels:3
flags are cleared | octet_align=1 crc=1 interleaving=1 > octet-align=x;crc=x;interleaving=x
|octet_align[0]=1 crc[0]=1 interleaving[0]=1 | | octet:0, crc:0, interleave:0
absent parameters leave their fields | octet_align=1 mode_set=8 > channels=1
|octet_align=1 mode_set=8 channels=1 | octet-align=1;mode-set=3;channels=1
)");
}

TEST_F(Amr, mode_sets)
{
    expect_decoded("AMR", R"(
in any order | mode-set=7,0,2 | mode_set=133 | mode-set=0,2,7
mode 8 is read and not written | mode-set=8 | mode_set=256 | mode-set=
one digit is read | mode-set=10,79 | mode_set=130 | mode-set=1,7
behind blanks | mode-set=1, 2,  3 | mode_set=14 | mode-set=1,2,3
nine modes are read | mode-set=0,1,2,3,4,5,6,7,8,9 | mode_set=511 | mode-set=0,1,2,3,4,5,6,7
repeated ones count | mode-set=1,1,1,1,1,1,1,1,1,2 | mode_set=2 | mode-set=1
empty tokens vanish | mode-set=,0,,2, | mode_set=5 | mode-set=0,2
a token that is no digit ends it | mode-set=1,x,3 | mode_set[0]=2 |
a sign is no digit | mode-set=-1 | |
nor this one | mode-set=+1 | |
no token | mode_set=3 > mode-set=, | |
no text | mode_set=3 > mode-set= | |
mode 9 fails, and the rest is not read | mode-set=1,9,2;crc=1 | mode_set[0]=2 | | amr-mode:9, no-amr | 4
)");
}

// Values keep their low bits, also where long has 32 of them.
TEST_F(Amr, large_numbers)
{
    const std::string numbers = R"(
+3 | 1 | 3 | 3 | 1 | 3
7.9 | 1 | 7 | 7 | 1 | 7
0x10 | 0 | 0 | 0 | 0 | 0
-1 | 0 | 4294967295 | -1 | 1 | -1
32768 | 1 | 32768 | 32768 | 1 | -32768
70000 | 1 | 70000 | 70000 | 1 | 4464
2147483647 | 1 | 2147483647 | 2147483647 | 1 | -1
2147483648 | 0 | 2147483648 | -2147483648 | 1 | 0
-2147483649 | 1 | 2147483647 | 2147483647 | 1 | -1
4294967295 | 0 | 4294967295 | -1 | 1 | -1
4294967296 | 0 | 0 | 0 | 0 | 0
4294967297 | 1 | 1 | 1 | 1 | 1
9223372036854775807 | 0 | 4294967295 | -1 | 1 | -1
9223372036854775808 | 0 | 0 | 0 | 1 | -1
18446744073709551616 | 0 | 4294967295 | -1 | 1 | -1
{9:30} | 0 | 4294967295 | -1 | 1 | -1
-{9:30} | 0 | 4294967295 | -1 | 0 | 0
)";
    const auto text = [](std::string octet, std::string period, std::string interleaving, std::string red) {
        return "octet-align=" + octet + ";mode-change-period=" + period + ";interleaving=" + interleaving +
               ";max-red=" + red;
    };
    for (const columns &n : table(numbers))
        expect_decoded("AMR", n[0] + " | " + text(n[0], n[0], n[0], n[0]) + " | octet_align=" + n[1] +
                                  " mode_change_period=" + n[2] + " interleaving=" + n[4] +
                                  " max_red=" + n[5] + " | " + text(n[1], n[3], n[4], n[5]));
}

TEST_F(Amr, blocks_that_no_text_gives)
{
    expect_encoded("AMR", R"(
any flag but 0 counts | mode_set[255]=3 crc[2]=1 | mode-set=0,1;crc=1
none does not | octet_align[0]=1 mode_set[0]=3 channels[0]=1 max_red[0]=1 |
flags above 1 are written as 1 | octet_align=255 crc=2 | octet-align=1;crc=1
interleaving as it is | interleaving=65535 | interleaving=65535
numbers are signed | mode_change_capability=4294967295 channels=-32768
|mode-change-capability=-1;channels=-32768
modes above 7 are not written | mode_set=4294967040 | mode-set=
the first that is refused ends it: channels on G729 | mode_set=1 crc=1 channels=1 | | int | 4
crc on G729 | crc=1 max_red=1 | | bool | 4
max-red on G729 | mode_change_neighbor=1 max_red=1 | | int | 4
interleaving on G729 | mode_change_neighbor=1 interleaving=1 | | int | 4
mode-change-neighbor on G729 | mode_change_period=1 mode_change_neighbor=1 | | bool | 4
mode-change-period on G729 | octet_align=1 mode_change_period=1 | | int | 4
mode-change-capability on G729 | octet_align=1 mode_change_capability=1 | | int | 4
octet-align on G729 | octet_align=1 mode_set=1 | | bool | 4
robust-sorting on G729 | mode_set=1 robust_sorting=1 | | bool | 4
mode-set on G729 | mode_set=1 | | string | 4
)");
}

TEST_F(Amr, mode_lists_by_themselves)
{
    char out[256] = "left";
    const auto list = [&](uint32_t modes) {
        return see([&] { return dak_app_sdp_encode_amr_mode_map(out, modes); }, [&] { return out; });
    };
    EXPECT_EQ(list(0), outcome(1));
    EXPECT_EQ(list(0x1FF), outcome(1, "0,1,2,3,4,5,6,7"));
    EXPECT_EQ(list(0xFFFFFF00), outcome(1));
    EXPECT_EQ(list(0x80000085), outcome(1, "0,2,7"));
    EXPECT_EQ(see([] { return dak_app_sdp_encode_amr_mode_map(nullptr, 1); }), outcome(0, "", "bad-amr"));
    uint8_t present = 7;
    uint32_t map = 7;
    const auto read = [&](const std::string &text, bool has_text = true) {
        const heap_c_text copy(text);
        return see([&] { return dak_app_oa_get_amr_mode(has_text ? copy.c_str() : nullptr, &present, &map); },
                   [&] { return std::to_string(present) + " " + std::to_string(map); });
    };
    EXPECT_EQ(read("", false), outcome(4, "7 7"));
    EXPECT_EQ(without_report(read("3" + std::string(256, ';'))), outcome(1, "7 7", "over:257"));
    EXPECT_EQ(read("3" + std::string(255, ';')), outcome(0, "1 8"));
    EXPECT_EQ(read("0;2,7"), outcome(0, "1 133"));
    EXPECT_EQ(read(";"), outcome(0, "0 0"));
}

} // namespace
