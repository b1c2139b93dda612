#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "body.h"

using namespace oa_tests;

namespace {

class RoundTrip : public PlatformTest {};

// Parses text that ends with its block, hands what was read over, and releases it.
template <class Use> uint32_t parse_and(std::string_view text, Use use)
{
    const heap_text block(text);
    const sdp_payload_buffer buffer = {block.data(), static_cast<uint16_t>(block.size())};
    sdp_container container;
    const uint32_t result = dak_app_oa_parse_sdp(&container, &buffer);
    use(container);
    dak_app_oa_cleanup_sdp_container(&container);
    return result;
}

// Generates from what was parsed.
outcome again(std::string_view text)
{
    outcome seen;
    EXPECT_EQ(parse_and(text, [&](sdp_container &container) { seen = generate(container); }), 0U);
    return {seen.result, seen.text, ""};
}

const std::string call = R"(v=0
o=kim 3890521763 3890521764 IN IP6 2001:db8::17
s=-
i=two ways to talk
c=IN IP6 2001:db8::17
b=AS:563
b=RS:8000
t=3034423619 3042462419
a=sendrecv
a=group:LS voice picture
a=group:FID voice words
m=audio 49120 RTP/AVP 104 97 8 105
b=AS:49
b=RS:612
b=RR:1837
a=rtpmap:104 AMR-WB/16000
a=fmtp:104 mode-set=0,1,2;mode-change-capability=2;max-red=220
a=rtpmap:97 AMR/8000
a=fmtp:97 octet-align=1
a=rtpmap:105 telephone-event/16000
a=fmtp:105 0-15
a=curr:qos local none
a=curr:qos remote none
a=des:qos mandatory local sendrecv
a=des:qos optional remote sendrecv
a=conf:qos remote sendrecv
a=sendonly
a=setup:actpass
a=maxptime:240
a=ptime:20
a=mid:voice
m=video 49250/2 RTP/AVPF 113
a=rtpmap:113 H264/90000
a=fmtp:113 profile-level-id=42E00C;packetization-mode=1
a=rtcp-fb:113 nack
a=rtcp-fb:113 nack pli
a=rtcp-fb:* nack pli
a=framerate:15
a=maxprate:30
a=mid:picture
m=message 2855 TCP/MSRP *
a=accept-types:message/cpim text/plain
a=path:msrps://kim@[2001:db8::17]:2855/q7Zr2Kd0;tcp
a=max-size:131072
a=file-selector:name:"a lake.jpg" type:image/jpeg size:4092 hash:sha-1:72:24
a=file-transfer-id:vBnG916bdb
a=file-disposition:attachment
a=file-date:creation:"Sun, 21 May 2023 13:02:15 +0300"
a=file-icon:cid:7741.preview@example.com
a=file-range:1-4092
a=recvonly
a=mid:words
)";

// Values in the order of the lines, so that the text comes back whole.
TEST_F(RoundTrip, a_call)
{
    EXPECT_EQ(again(call), (outcome{0, call, ""}));
    EXPECT_EQ(
        parse(call),
        (outcome{
            0,
            "o=1 user=kim id=3890521763 ver=3890521764 oa{type=1 net=IN at=2001:db8::17} s=- con=1 "
            "c{type=1 net=IN at=2001:db8::17} b{on=1 0{is=563} 1{mod=4 is=8000}} "
            "i=two ways to talk t=1 start=3034423619 stop=3042462419 dir=3 gs=2 g0{on=1 mids=2 at=0,1} "
            "g1{on=1 sem=1 mids=2 at=0,2} ms=3 "
            "m0{ok=1 port=49120 ports=1 b{on=1 0{is=49} 1{mod=4 is=612} 2{mod=3 is=1837}} n=4 p=104,97,8,105 "
            "f0{on=1 byte=104 map=1 id=96 khz=16 ch=1 fmtp=1 valid=1 modes=7 capability=2 red=220} "
            "f1{on=1 byte=97 map=1 id=97 khz=8 ch=1 fmtp=1 valid=1 align=1} "
            "f3{on=1 byte=105 map=1 id=105 khz=16 ch=1 fmtp=1 valid=1 events=1 e0{kind=2 last=15}} "
            "ptime=20 maxptime=240 dir=2 pcds=5 pcd0{kind=1 type=1 w=2,5} "
            "pcd1{kind=1 type=1 w=3,5} pcd2{kind=2 type=1 w=4,2,3} pcd3{kind=2 type=1 w=3,3,3} "
            "pcd4{kind=3 type=1 w=3,3} mid=voice setup=2 msg=1} "
            "m1{ok=1 type=1 port=49250 ports=2 over=1 n=1 p=113 f0{on=1 byte=113 map=1 id=113 khz=90 ch=1 "
            "fmtp=1 valid=1 profile=42E00C length=6 mode=1 fbs=2 fb0{type=1} "
            "fb1{type=1 nack=1}} framerate=15 maxprate=30 fbs=1 fb0{type=1 nack=1} mid=picture msg=1} "
            "m2{ok=1 type=4 port=2855 ports=1 over=2 dir=1 mid=words msg=1 acc{n=2 t=1,0,10,10,10} "
            "path{host=2001:db8::17 scheme=1 user=kim six=1 port=2855 id=q7Zr2Kd0 over=tcp} "
            "max=131072 files=1 file0{name=a lake.jpg type=5 size=4092 len=5 hash=72:24} fid=vBnG916bdb "
            "disp=1 created=Sun, 21 May 2023 13:02:15 +0300 "
            "icon=7741.preview@example.com from=1 to=4092}",
            ""}));
}

TEST_F(RoundTrip, what_a_body_loses)
{
    const std::string head = "v=0\no=- 1 2 IN IP4 h\ns=-\nt=0 0\n", audio = "m=audio 9 RTP/AVP 0\n";
    const struct {
        const char *label;
        std::string text;
        uint32_t result;
        std::string again;
    } rows[] = {
        {"session lines without a field", "u=x\ne=x\np=x\nt=9 9\nr=x\nz=x\nk=x\na=tool:x\n", 0, ""},
        {"groups of other semantics, and later ones", "a=group:X 1\na=group:LS 9\na=group:LS\n", 0, ""},
        {"the connection and rtcp lines of a section", audio + "i=x\nc=IN IP4 x\nk=x\na=rtcp:8\na=x\n", 0,
         audio},
        {"channels and odd rates", "m=audio 9 RTP/AVP 97\na=rtpmap:97 AMR/44100/2\n", 0,
         "m=audio 9 RTP/AVP 97\na=rtpmap:97 AMR/44000\n"},
        {"an unknown codec", "m=audio 9 RTP/AVP 97\na=rtpmap:97 opus/48000/2\n", 0, "m=audio 9 RTP/AVP 97\n"},
        {"the formats behind one that cannot be decoded",
         "m=audio 9 RTP/AVP 97 0 8\na=rtpmap:97 AMR/8000\na=fmtp:97 mode-set=9\n", 0,
         "m=audio 9 RTP/AVP 97 0 0\n"},
        {"a connection attribute", audio + "a=setup:active\na=connection:new\n", 0,
         audio + "a=setup:active\n"},
        {"the word ccm", "m=video 9 RTP/AVPF 34\na=rtcp-fb:* ccm fir\n", 0,
         "m=video 9 RTP/AVPF 34\na=rtcp-fb:* cmm fir\n"},
        {"the name of the wrapped types", "m=message 9 TCP/MSRP *\na=accept-wrapped-types:*\n", 0,
         "m=message 9 TCP/MSRP *\na=acceptwrapped-types:*\n"},
        {"a section of a skipped type: it cannot be written", "m=application 9 udp wb\n", 4, ""},
        {"a secured message section", "m=message 9 TCP/TLS/MSRP *\n", 4, ""},
        {"an image", "m=image 9 udptl t38\n", 4, ""},
        {"an unknown bandwidth", audio + "b=AS:1\nb=X:2\nb=RS:3\n", 0, audio + "b=AS:1\n"},
        {"another precondition type", audio + "a=curr:x e2e send\n", 4, ""},
        {"the text behind wildcard feedback", "m=video 9 RTP/AVPF 34\na=rtcp-fb:* nack x\n", 0,
         "m=video 9 RTP/AVPF 34\na=rtcp-fb:* nack\n"},
        {"the text behind feedback", "m=video 9 RTP/AVPF 34\na=rtcp-fb:34 nack x\n", 4, ""},
    };
    for (const auto &row : rows)
        EXPECT_EQ(again(head + row.text), (outcome{row.result, row.result == 0 ? head + row.again : "", ""}))
            << row.label;
}

// Fields that a body keeps, each row there or not; "#9" is a number up to 9 and "@" the media line.
const std::vector<const char *> session_fields = {
    "i=100*i",
    "con=1 c.net=IN c.type=#1 c.at=::#9999",
    "t=1 start=#4294967295 stop=#4294967295",
    "dir=4",
    "b.on=1 b.0.mod=#4 b.0.is=#4294967295 b.1.mod=#4 b.1.is=#9 b.2.is=7 b.3.mod=#4 b.3.is=0 b.4.mod=4 "
    "b.4.is=1",
};
const std::vector<const char *> line_fields = {
    "@ptime=#65535",
    "@maxptime=#65535",
    "@framerate=#65535 @maxprate=#65535",
    "@dir=3",
    "@setup=#3",
    "@b.on=1 @b.0.mod=#4 @b.0.is=#4294967295 @b.1.mod=#4 @b.1.is=#9 @b.2.is=7 @b.3.mod=#4 @b.3.is=1",
    "@pcds=2 @pcd0.kind=2 @pcd0.type=1 @pcd0.w=#4,1,5 @pcd1.kind=3 @pcd1.type=1 @pcd1.w=3,2",
};
const std::vector<const char *> message_fields = {
    "@acc.n=2 @acc.t=#2,9,10,10,10",
    "@max=#2147483647",
    "@path.host=h#9 @path.scheme=#1 @path.port=#65535 @path.id=long @path.over=tcp",
    "@files=1 @file0.name=f @file0.type=6 @file0.size=#2147483647 @fid=Id @disp=#2 @modified=m @from=1 @to=7",
};
const std::vector<const char *> stream_fields = {
    "@type=1",
    "@f1.align=#1 @f1.modes=1#99 @f1.red=#32767",
    "@f4.on=1 @f4.map=1 @f4.khz=8 @f4.ch=1",
    "@f2.on=1 @f2.byte=113 @f2.map=1 @f2.id=113 @f2.khz=90 @f2.ch=1 @f2.fmtp=1 @f2.valid=1 "
    "@f2.profile=42E00C @f2.length=6",
    "@over=1 @fbs=2 @fb0.type=1 @fb1.type=1 @fb1.nack=#1 @f0.on=1 @f0.fbs=1 @f0.fb0.type=1 @f0.fb0.nack=#1",
};

TEST_F(RoundTrip, nothing_else_is_lost)
{
    std::mt19937 random(20240611);
    const auto filled = [&](std::string fields) {
        for (std::size_t at = fields.find('#'); at != std::string::npos; at = fields.find('#')) {
            std::size_t digits = 0;
            const uint64_t most = std::stoull(fields.substr(at + 1), &digits);
            fields.replace(at, 1 + digits, std::to_string(random() % (most + 1)));
        }
        return " " + fields;
    };
    const auto some_of = [&](const std::vector<const char *> &rows) {
        std::string some;
        for (const char *row : rows)
            some += random() % 2 == 0 ? filled(row) : "";
        return some;
    };
    for (int round = 0; round < 400; ++round) {
        const std::size_t count = random() % 5;
        std::string fields =
            filled("o=1 id=#4294967295 ver=#9 oa.net=IN oa.type=#1 s=s#9") + some_of(session_fields);
        if (count > 1)
            fields += filled("gs=2 g0.on=1 g0.sem=#1 g0.mids=2 g0.at=#1,#1 g1.on=1");
        for (std::size_t i = 0; i < count; ++i) {
            std::string line = filled("@ok=1 @msg=1 @mid=x@ @port=#65535 @ports=1#9") + some_of(line_fields);
            if (random() % 3 == 0)
                line += " @type=4 @over=2" + some_of(message_fields);
            else
                line += filled("@n=5 @p=8,97,113,105 @f1.on=1 @f1.byte=97 @f1.map=1 @f1.id=97 @f1.khz=#65535 "
                               "@f1.ch=1 @f1.fmtp=1 @f1.valid=1") +
                        some_of(stream_fields);
            fields += replaced(line, "@", "m" + std::to_string(i) + ".");
        }
        body kept(fields, count);
        const outcome written = generate(kept.session);
        ASSERT_EQ(written, (outcome{0, written.text, ""})) << fields;
        ASSERT_EQ(parse(written.text).text, dump(kept.session)) << written.text;
    }
}

// What a call gives with each of its allocations failing alone: the results, and the first log line of each,
// repetitions left out. Then the results with all that follow failing too.
struct failures {
    std::string once, log, on;
};
template <class Call> failures failing(Call make)
{
    std::vector<std::string> lines;
    std::string results;
    const std::size_t count = sweep_allocations([&] {
        results += std::to_string(make());
        const std::string log = log_behind(0);
        lines.push_back(log.substr(0, log.find('|')) + "\n");
    });
    EXPECT_EQ(results[count], '0') << "nothing failed";
    failures seen = {results.substr(0, count), "", results.substr(count + 1, count)};
    for (std::size_t i = 0; i < count; ++i)
        seen.log += i == 0 || lines[i] != lines[i - 1] ? lines[i] : "";
    return seen;
}

// Parts of a body that cannot be stored may be missing from what a parse or a generation gives.
TEST_F(RoundTrip, memory_may_run_out_at_any_allocation)
{
    const heap_text block(call);
    const sdp_payload_buffer received = {block.data(), static_cast<uint16_t>(block.size())};
    sdp_container parsed;
    const failures parsing = failing([&] {
        const uint32_t result = dak_app_oa_parse_sdp(&parsed, &received);
        EXPECT_EQ(parsed.mlines == nullptr, result != 0);
        EXPECT_EQ(parsed.num_mlines, result == 0 ? 3 : 0);
        dak_app_oa_cleanup_sdp_container(&parsed);
        return result;
    });
    EXPECT_THAT(parsing.once, testing::MatchesRegex("33336[06]+222"));
    EXPECT_THAT(parsing.on, testing::MatchesRegex("33336[26]+222"));
    EXPECT_THAT(parsing.log, testing::StartsWith("~parse_sdp:Failed to initialise{43}SDP context\n"
                                                 "~parse_sdp: SDP Core parse error\n"));
    EXPECT_THAT(parsing.log,
                testing::EndsWith("~parse_origin:Malloc failed $\n~parse_connection:Malloc failed$\n"
                                  "~parse_mlines: Media Malloc{44}failed$\n"));

    standin::reset();
    ASSERT_EQ(dak_app_oa_parse_sdp(&parsed, &received), 0U);
    std::vector<sdp_media_line> lines(parsed.mlines, parsed.mlines + parsed.num_mlines);
    dak_app_oa_cleanup_sdp_container(&parsed);
    parsed.mlines = lines.data();
    parsed.num_mlines = static_cast<uint16_t>(lines.size());
    const failures generating = failing([&] {
        char text[4096] = "#";
        sdp_payload_buffer buffer = {text, sizeof text};
        const uint32_t result = dak_app_oa_generate_sdp(&parsed, &buffer);
        EXPECT_EQ(text[0], result == 0 ? 'v' : '#');
        return result;
    });
    EXPECT_EQ(generating.once, "33332220204444433344333443");
    EXPECT_EQ(generating.on, "33332222244444433344333443");
    EXPECT_EQ(generating.log, R"(~generate_sdp: SDP context init{46}failed$
~encode_origin:Malloc failed{52}$
~encode_session:Malloc failed$
~encode_info:Malloc failed $
~encode_bw:Invalid BW info$
~encode_connection:Malloc failed$
encode_gen_attr: Invalid attr tag$
~encode_mlines: Invalid{50}media line$
~encode_media_gen_attr:No attr$
~encode_media_gen_attr:No Maxptime{42}attr$
~encode_media_gen_attr:No SDP PTIME attr$
~encode_media_gen_attr:No SDP MID attr$
~encode_mlines: Invalid{50}media line$
~encode_media_gen_attr:No frame rate{57}info$
~encode_media_gen_attr:No SDP MID attr$
~encode_mlines: Invalid{50}media line$
~encode_media_gen_attr:No attr$
~encode_media_gen_attr:No SDP MID attr$
)");
    const failures duplicating = failing([&] {
        sdp_container *copy = nullptr;
        const uint32_t result = dak_app_oa_duplicate_sdp_container(&parsed, &copy);
        dak_app_oa_cleanup_sdp_container(copy);
        dak_free(copy);
        return result;
    });
    EXPECT_EQ(duplicating.once + duplicating.on, "2222");
}

// What comes back from any example comes back again, and any part of one is read or refused without harm.
TEST_F(RoundTrip, the_examples)
{
    int written = 0;
    for (const auto &file : std::filesystem::directory_iterator(DAKSDP_EXAMPLES_DIR)) {
        if (file.path().extension() != ".sdp")
            continue;
        std::ifstream in(file.path(), std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(in), {}};
        const outcome first = again(text);
        written += first.result == 0;
        EXPECT_EQ(first.result == 0 ? again(first.text) : first, first) << file.path();
        for (std::size_t length = 1; length < text.size(); ++length)
            ASSERT_LE(parse_and(text.substr(0, length), [](const sdp_container &) {}), 7U)
                << file.path() << length;
    }
    EXPECT_GT(written, 0);
}

} // namespace
