#include "fmtp_case.h"

namespace {

using namespace fmtp_case;

class Video : public PlatformTest {};

TEST_F(Video, h264)
{
    expect_decoded("H264", R"(
nothing | |
texts | profile-level-id=42e01e;packetization-mode=1;sprop-deint-buf-req=2;max-rcmd-nalu-size=9
|profile_level_id=42e01e profile_level_id_len=6 packetization_mode=1 sprop_deint_buf_req=2
& max_rcmd_nalu_size=9
further texts | sprop-parameter-sets=Z0IACpZTBYmI,aMljiA==;sprop-level-parameter-sets=Z0I
|sprop_parameter_sets=Z0IACpZTBYmI,aMljiA== sprop_parameter_sets_len=21
& sprop_level_parameter_sets=Z0I sprop_level_parameter_sets_len=3
characters come back as codes | sar-understood=1;sar-supported=0;in-band-parameter-sets=x;parameter-add=10
|sar_understood=49 sar_supported=48 in_band_parameter_sets=120 parameter_add=49
|sar-understood=49;sar-supported=48;in-band-parameter-sets=120;parameter-add=49
the last as its flag | use-level-src-parameter-sets=0 | use_level_src_parameter_sets=48
|use-level-src-parameter-sets=1
119 characters | sprop-parameter-sets={x:119} | sprop_parameter_sets={x:119} sprop_parameter_sets_len=119
longer texts are cut | sprop-parameter-sets={x:199};sprop-level-parameter-sets={y:120}
|sprop_parameter_sets={x:119} sprop_parameter_sets_len=199
& sprop_level_parameter_sets={y:119} sprop_level_parameter_sets_len=120
|sprop-parameter-sets={x:119};sprop-level-parameter-sets={y:119}
so is the first | profile-level-id={z:120} | profile_level_id={z:119} profile_level_id_len=120
| profile-level-id={z:119}
16 and 32 bits are kept | packetization-mode=70000;sprop-deint-buf-req=-1;max-rcmd-nalu-size=2147483648
|packetization_mode=4464 sprop_deint_buf_req=-1 max_rcmd_nalu_size=2147483648
|packetization-mode=4464;sprop-deint-buf-req=-1;max-rcmd-nalu-size=-2147483648
of 2^63 | sprop-deint-buf-req=9223372036854775808;max-rcmd-nalu-size=9223372036854775808
|sprop_deint_buf_req=-1 max_rcmd_nalu_size=0 | sprop-deint-buf-req=-1;max-rcmd-nalu-size=0
of 30 digits | sprop-deint-buf-req=-{9:30};max-rcmd-nalu-size={9:30}
|sprop_deint_buf_req=0 max_rcmd_nalu_size=4294967295 | sprop-deint-buf-req=0;max-rcmd-nalu-size=-1
unreadable numbers lose their flags
|packetization_mode=3 sprop_deint_buf_req=4 max_rcmd_nalu_size=5 > packetization-mode=x;sprop-deint-buf-req=-
;max-rcmd-nalu-size=x | packetization_mode[0]=3 sprop_deint_buf_req[0]=4 max_rcmd_nalu_size[0]=5 |
absent ones stay | packetization_mode=3 parameter_add=48 > packetization-mode=0
|packetization_mode=0 parameter_add=48 | packetization-mode=0;parameter-add=48
an empty text has no flag | profile_level_id=42e01e profile_level_id_len=6 > profile-level-id=
|profile_level_id_len=6 |
and no character | parameter_add=49 > parameter-add= | parameter_add[0]=49 |
)");
    expect_decoded("H264", "a code has no sign | sar-supported=\xE9 | sar_supported=233 | sar-supported=233");
    expect_encoded("H264", R"(
texts without an end | profile_level_id={x:120} sprop_parameter_sets={y:120}
& sprop_level_parameter_sets={z:120}
|profile-level-id={x:120};sprop-parameter-sets={y:120};sprop-level-parameter-sets={z:120}
the text counts, not its length | profile_level_id= profile_level_id_len=9 | profile-level-id=
a flag is written for its value | use_level_src_parameter_sets=0 | use-level-src-parameter-sets=1
any | use_level_src_parameter_sets[7]=9 | use-level-src-parameter-sets=7
a value without a flag is not | profile_level_id[0]=x sar_supported[0]=1 use_level_src_parameter_sets[0]=1 |
any flag but 0 counts, and bytes are numbers | sar_supported[255]=255 | sar-supported=255
packetization-mode on G729 | profile_level_id=x packetization_mode=1 | | int | 4
sprop-deint-buf-req on G729 | profile_level_id=x sprop_deint_buf_req=1 | | int | 4
profile-level-id on G729 | profile_level_id=x max_rcmd_nalu_size=1 | | string | 4
sprop-parameter-sets on G729 | max_rcmd_nalu_size=1 sprop_parameter_sets=x | | string | 4
sprop-level-parameter-sets on G729 | sar_understood=1 sprop_level_parameter_sets=x | | string | 4
use-level-src-parameter-sets on G729 | use_level_src_parameter_sets=1 | | int | 4
)");
}

TEST_F(Video, mp4_es)
{
    expect_decoded("MP4V-ES", R"(
nothing | |
octets come back in lower case | profile-level-id=3;config=000001B0AF
|profile_level_id=3 config_len=5 config=000001b0af | profile-level-id=3;config=000001b0af
an odd last digit is dropped | config=000001B | config_len=3 config=000001 | config=000001
a pair ends at what is no digit | config=1G+f-10x | config_len=4 config=010fff00 | config=010fff00
and may begin with a blank | config=00 1 | config_len=2 config=0001 | config=0001
a pair that is none leaves no config | config=01G1ff | config_len=3 config[0]=010000 |
an empty config | config= | config=
absent ones stay | config_len=1 config= > profile-level-id=1 | profile_level_id=1 config_len=1 config=00
|profile-level-id=1;config=00
as many as a line takes | config={5a:96} | config_len=96 config={5a:96}
one more | config={5a:97} | config_len=97 config={5a:97} | (refused)
as many as a parameter takes | config={5a:99}5 | config_len=99 config={5a:99} | (refused)
16 bits | profile-level-id=32768 | profile_level_id=-32768 | profile-level-id=-32768
of 30 digits | profile-level-id={9:30} | profile_level_id=-1 | profile-level-id=-1
unreadable it loses its flag | profile_level_id=3 > profile-level-id=x | profile_level_id[0]=3 |
)");
    expect_encoded("MP4V-ES", R"(
100 octets do not fit | profile_level_id=0 config_len=100 config[2]=
|profile-level-id=0 | too-long, string | 4!
nor do 120 | config_len=120 config= | | too-long, string | 4!
more than the block has | config_len=65535 config= | | too-long, string | 4!
octets without a flag | config_len=2 |
profile-level-id on G729 | profile_level_id=1 config_len=1 config= | | int | 4
config on G729 | config_len=1 config= | | string | 4
)");
    const section out("MP4V-ES");
    const block b("MP4V-ES", "profile_level_id=1 config_len=1 config=");
    standin::fail_allocation(1);
    const std::string got = see([&] { return dak_app_sdp_encode_mp4_es(out, 0, b); });
    standin::allow_allocations();
    EXPECT_EQ(got, outcome(2, "", "no-memory"));
    EXPECT_EQ(out.fmtp(), "profile-level-id=1");
}

TEST_F(Video, h263)
{
    for (const char *codec : {"H263-1998", "H263-2000"}) {
        expect_decoded(codec, R"(
nothing | |
sizes | SQCIF=1;QCIF=2;CIF=3;CIF4=4;CIF16=5;CUSTOM=360,240,2
|sqcif=1 qcif=2 cif=3 cif4=4 cif16=5 custom_x=360 custom_y=240 custom_mpi=2 custom_present=1
options | F=1;I=1;J=1;T=1;K=4;N=0;P=1,2,3,4;PAR=12;CPCF=36,1000,0,1;BPP=8;HRD=1
|f=1 i=1 j=1 t=1 k=4 n=0 p[4]=1,2,3,4 par=12 cpcf=36,1000,0,1 bpp=8 hrd=1
absent ones stay | cif4=4 custom_present=1 f=1 k=3 p=2 cpcf=x hrd=1 > BPP=2
|cif4=4 custom_present=1 f=1 k=3 p=2 cpcf=x bpp=2 hrd=1 | CIF4=4;CUSTOM=0,0,0;F=1;K=3;P=2;CPCF=x;BPP=2;HRD=1
unreadable sizes are cleared | sqcif=1 qcif=2 cif=3 cif4=4 cif16=5 custom_present=1 > SQCIF=x;QCIF=x;CIF=x
;CIF4=x;CIF16=x;CUSTOM=x | sqcif[0]=1 qcif[0]=2 cif[0]=3 cif4[0]=4 cif16[0]=5 |
and options | f=1 i=1 j=1 t=1 k=4 n=1 p=1 par=2 bpp=3 hrd=1 > F=x;I=x;J=x;T=x;K=x;N=x;P=x;PAR=x;BPP=x;HRD=x
|k[0]=4 n[0]=1 par[0]=2 bpp[0]=3 |
16 bits | SQCIF=70000;CIF=-1;CIF4=2147483648;CIF16=9223372036854775808;PAR=65537
|sqcif=4464 cif=-1 cif4=0 cif16=-1 par=1
|SQCIF=4464;CIF=-1;CIF4=0;CIF16=-1;PAR=1
options are 0 or 1 | j=1 > F=0;I=2;J=65536;T=-1;HRD=256 | i=1 t=1 hrd=1 | I=1;T=1;HRD=1
K and N end at 4 | k=2 n=3 > K=5;N=-1 | k[0]=2 n[0]=3 |
in their 16 bits | K=65540;N=4294967298 | k=4 n=2 | K=4;N=2
a custom size has three numbers | custom_present=1 > CUSTOM=352,288;BPP=1
|custom_x=352 custom_y=288 bpp=1 | BPP=1
of 16 bits | CUSTOM=,65535,,70000,2x,9 | custom_x=-1 custom_y=4464 custom_mpi=2 custom_present=1
| CUSTOM=-1,4464,2
submodes end at what is no number | P=1,0,x,3 | p[2]=1,0 | P=1,0
five are too many, and the rest is read | p=3 > P=1,2,3,4,0;BPP=2 | bpp=2 | BPP=2
5 is too high | p=3 > P=1,5 | |
-1 too low | p=3 > P=-1 | |
no token | p=3 custom_present=1 > P=,;CUSTOM=, | |
62 characters | CPCF={x:62} | cpcf={x:62}
63 are cut | CPCF={x:63} | cpcf={x:62} | CPCF={x:62}
64 fail and end it | QCIF=2;PAR=3;CPCF={x:64};BPP=4;HRD=1 | frame[0]=0 qcif=2 par=3 | | | 6
65 too, whatever was there before | cif=2 > CPCF={x:65} | frame[0]=0 cif=2 | | | 6
)");
        expect_encoded(codec, R"(
any flag but 0 counts | cif[9]=-1 f=5 t=255 n[2]=0 hrd=7 | CIF=-1;F=1;T=1;N=0;HRD=1
none does not | cif[0]=1 custom_x=1 k[0]=1 p[0]=1 par[0]=1 cpcf[0]=x bpp[0]=1 |
five digits | custom_x=-32768 custom_y=-32768 custom_mpi=-32768 custom_present=2 | CUSTOM=-32768,-32768,-32768
a text without an end | cpcf={x:64} | CPCF={x:64}
numbers are not checked | k=2147483648 p=4294967295 | K=-2147483648;P=4294967295
five submodes | p[5]=1,2,3,4 par=1 | P=1,2,3,4;PAR=1
128 | p[128]=4,3,2,1 | P=4,3,2,1
129 | cif=1 p[129]=4,3,2,1 par=1 | CIF=1 | submodes | 1
as many as can be said | p[4294967295]=1 | | submodes | 1
CIF on G729 | cif=1 custom_present=1 | | int | 4
CUSTOM on G729 | custom_present=1 f=1 | | string | 4
T on G729 | t=1 k=1 | | bool | 4
N on G729 | n=1 p=1 | | int | 4
P on G729 | p=1 par=1 | | string | 4
PAR on G729 | par=1 cpcf=x | | int | 4
CPCF on G729 | cpcf=x bpp=1 | | string | 4
BPP on G729 | bpp=1 hrd=1 | | int | 4
HRD on G729 | hrd=1 | | bool | 4
)");
    }
    expect_decoded("H263-2000", R"(
what it has of its own | QCIF=1;profile=0;level=10;interlace=1 | profile=0 level=10 interlace=1 qcif=1
16 bits | interlace=1 > profile=-1;level=70000;interlace=65536 | profile=-1 level=4464 | profile=-1;level=4464
unreadable | profile=3 level=10 interlace=1 > profile=x;level=x;interlace=x | profile[0]=3 level[0]=10 |
interlace is 0 or 1 | interlace=7 | interlace=1 | interlace=1
absent ones are cleared | profile=3 interlace=1 > level=2 | profile[0]=3 level=2 | level=2
read before it fails | CPCF={x:64};level=2 | frame[0]=0 level=2 | | | 6
)");
    expect_encoded("H263-2000", R"(
interlace as it is | profile[5]=0 level[0]=3 interlace=5 | profile=0;interlace=5
interlace on G729 | interlace=1 f=1 | | int | 4
)");
}

// Encoding sets the marker of H263-1998, and only that, once all was written.
TEST_F(Video, h263_marker)
{
    for (const columns &row : table(R"(
H263-1998 | H263-1998 | frame=0 |
H263-1998 | H263-1998 | frame[0]=0 | frame[0]=0
H263-1998 | H263-1998 | frame=0 p[129]=1,1,1,1 | frame=0 p[129]=1,1,1,1
H263-1998 | G729 | frame=0 cif=1 | frame=0 cif=1
H263-2000 | H263-2000 | frame=0 cif=1 | frame=0 cif=1
)")) {
        const block b(row[0], row[2]);
        dak_app_sdp_find_medentry_by_mime(row[0].c_str())->encode(section(row[1]), 0, b);
        EXPECT_EQ(b.shown(), row[3]) << row[2];
    }
}

TEST_F(Video, h263_lists_by_themselves)
{
    for (const auto parse : {dak_app_sdp_parse_h263_custom_param, dak_app_sdp_parse_h263_ref_pic_param}) {
        const block b("H263-2000");
        h263_params *params = &b.as<sdp_h263_2000_params>().params;
        const auto read = [&](const char *text) { return see([&] { return parse(text, params); }); };
        EXPECT_EQ(read(nullptr), outcome(3, "", "null-list"));
        EXPECT_EQ(see([&] { return parse("1,2,3", nullptr); }), outcome(3, "", "null-list"));
        EXPECT_EQ(read(""), outcome(6));
        EXPECT_EQ(without_report(read(heap_c_text("1,2,3" + std::string(251, ' ')).c_str())),
                  outcome(1, "", "over:256"));
        EXPECT_EQ(b.shown(), "frame[0]=0");
        EXPECT_EQ(read(heap_c_text("1;2;3" + std::string(250, ' ')).c_str()), outcome(0));
        EXPECT_EQ(b.shown(), parse == dak_app_sdp_parse_h263_custom_param
                                 ? "frame[0]=0 custom_x=1 custom_y=2 custom_mpi=3"
                                 : "frame[0]=0 p[3]=1,2,3");
    }
}

} // namespace
