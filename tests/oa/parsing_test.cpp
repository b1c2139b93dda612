#include "body.h"

using namespace oa_tests;

namespace {

class Parsing : public PlatformTest {};

struct row {
    const char *label;
    std::string text; // behind the text that every row has
    uint32_t result;
    std::string held; // behind what every row holds
    std::string log = {};
};

void expect_rows(const std::string &head, const std::string &held, const std::vector<row> &rows)
{
    for (const row &each : rows)
        EXPECT_EQ(parse(head + each.text), (outcome{each.result, held + each.held, each.log})) << each.label;
}

const std::string head = "v=0\no=- 1 2 IN IP4 h\n";
const std::string origin = "o=1 user=- id=1 ver=2 oa{net=IN at=h}";
const std::string no_time = "~parse_time: No time info$";

TEST_F(Parsing, version_and_origin)
{
    const std::string in = "~parse_address: ",
                      end = "|~parse_sdp: Error in parsing origin$|~parse_sdp: Error in parsing connection$";
    const std::string end_o = "\no=- 1 2 IN IP4 h\nt=0 0\n", held = origin + " t=1";
    const std::vector<row> rows = {
        {"another version", "v=1" + end_o, 0, "v=1 " + held},
        {"its low bits", "v=256" + end_o, 0, held},
        {"below zero", "v=-1" + end_o, 0, "v=255 " + held},
        {"its low bits again", "v=4294967296" + end_o, 0, held},
        {"no number", "v=x" + end_o, 6, "", "~parse_version: Invalid{39}version info$" + end},
        {"no version", "o=- 1 2 IN IP4 h\nt=0 0\n", 6, "", "~parse_version: Invalid{37}version info$" + end},
        {"no origin", "v=0\ns=-\n", 3, "oa{type=2}", "~parse_origin:No Origin info$" + end},
        {"no session id", "v=0\no=-\n", 5, "o=1 user=- oa{type=2}",
         "~parse_origin:No Session ID info$" + end},
        {"no session version", "v=0\no=- 7\n", 5, "o=1 user=- id=7 oa{type=2}",
         "~parse_origin:No Session version{42}info$" + end},
        {"a session id that is no number", "v=0\no=- x 1 IN IP4 h\n", 7, "o=1 user=- oa{type=2}",
         end.substr(1)},
        {"a session version beyond 63 bits", "v=0\no=- 1 9223372036854775808 IN IP4 h\n", 7,
         "o=1 user=- id=1 oa{type=2}", end.substr(1)},
        {"ids at their ends", "v=0\no=- 9223372036854775807 -5 IN IP6 ::1\nt=0 0\n", 0,
         "o=1 user=- id=9223372036854775807 ver=18446744073709551611 oa{type=1 net=IN at=::1} t=1"},
        {"no network type", "v=0\no=- 1 2\n", 5, "o=1 user=- id=1 ver=2 oa{type=2}",
         in + "No network type$" + end},
        {"a network type", "v=0\no=- 1 2 ATM IP4 h\n", 4, "o=1 user=- id=1 ver=2 oa{type=2}",
         in + "Error in network{28}type: ATM$" + end},
        {"no address type", "v=0\no=- 1 2 IN\n", 5, "o=1 user=- id=1 ver=2 oa{type=2 net=IN}",
         in + "No address type$" + end},
        {"an address type", "v=0\no=- 1 2 IN IP5 h\n", 4, "o=1 user=- id=1 ver=2 oa{type=2 net=IN}",
         end.substr(1)},
        {"no address", "v=0\no=- 1 2 IN IP6\n", 5, "o=1 user=- id=1 ver=2 oa{type=1 net=IN}",
         in + "No address info$" + end},
        {"no text", std::string(1, '\0'), 6, "", "~parse_sdp: SDP Core parse error"},
        {"no SDP", "hello\n", 6, "", "~parse_sdp: SDP Core parse error"},
    };
    expect_rows("", "", rows);
}

TEST_F(Parsing, the_other_session_lines)
{
    const std::string in = "~parse_address: ", end = "|~parse_sdp: Error in parsing connection$",
                      invalid = "~parse_bandwidth: ";
    const std::vector<row> rows = {
        {"nothing else", "", 0, "", no_time},
        {"texts", "s= a name \ni=info\nt=1 2\n", 0, " s=a name i=info t=1 start=1 stop=2"},
        {"long texts", "s=" + std::string(198, 's') + "\nt=0 0\n", 0, " s=" + std::string(198, 's') + " t=1"},
        {"a connection", "c=IN IP4 224.2.1.1/127/3 IP6\nt=0 0\n", 0,
         " con=1 c{net=IN at=224.2.1.1/127/3} t=1"},
        {"no address", "c=IN IP4\n", 5, " con=1 c{net=IN}", in + "No address info$" + end},
        {"another network", "c=%s%n IP4 h\n", 4, " con=1 c{type=2}",
         in + "Error in network{28}type: %s%n$" + end},
        {"a tab is no delimiter", "c=IN\tIP4 h\n", 4, " con=1 c{type=2}",
         in + "Error in network{28}type: IN\tIP4$" + end},
        {"an empty connection", "c=\n", 5, " con=1 c{type=2}", in + "No network type$" + end},
        {"the first five bandwidths", "b=AS:1\nb=CT:2\nb=TIAS:3\nb=RR:4\nb=RS:5\nb=AS:6\nt=0 0\n", 0,
         " b{on=1 0{is=1} 1{mod=1 is=2} 2{mod=2 is=3} 3{mod=3 is=4} 4{mod=4 is=5}} t=1"},
        {"an unknown modifier ends the reading", "b=AS:1\nb=X-Y:2\nb=CT:3\nt=0 0\n", 0,
         " b{on=1 0{is=1} 1{mod=5}} t=1"},
        {"numbers beyond their fields",
         "b=AS:-1\nb=AS:99999999999999999999\nb=AS:4294967297x\nt=4294967296 4294967295\n", 0,
         " b{on=1 0{is=4294967295} 1{is=4294967295} 2{is=1}} t=1 stop=4294967295"},
        {"a bandwidth that is no number", "b=AS:1\nb=AS:x\nb=AS:3\nt=0 0\n", 0, " b{on=1 0{is=1}} t=1",
         invalid + "Invalid BW Info:{8}0$"},
        {"a bandwidth without value", "b=AS\nb=AS:3\nt=0 0\n", 0, " b{on=1} t=1", invalid + "No BW Info$"},
        {"a bandwidth without modifier", "b=\nt=0 0\n", 0, " b{on=1} t=1", invalid + "No BW Info$"},
        {"the first time", "t=3950000000 7 8\nt=1 1\n", 0, " t=1 start=3950000000 stop=7"},
        {"no stop time", "t=5\n", 0, " start=5", "~parse_time: No Stop time Info$"},
        {"a stop time that is no number", "t=5 x\n", 0, " start=5",
         "~parse_time: Invalid Stop Time{33}Info: 0$"},
        {"a start time that is no number", "t=x 5\n", 0, "", "~parse_time: Invalid Start Time{31}Info: 0$"},
        {"the directions have an order of their own", "t=0 0\na=inactive\na=sendonly\na=x\n", 0,
         " t=1 dir=2"},
        {"a direction is a prefix", "t=0 0\na=sendrecvX\n", 0, " t=1 dir=3"},
        {"half a direction", "t=0 0\na=send\na=Inactive\n", 0, " t=1"},
    };
    expect_rows(head, origin, rows);
    const std::string blank(31, ' ');
    EXPECT_EQ(formats_with_values(),
              "|dak_app_oa_parse_address: Error in network" + blank.substr(3) +
                  "type: %s$|dak_app_oa_parse_bandwidth: "
                  "Invalid BW Info:        %lu$|dak_app_oa_parse_time: Invalid Stop Time  " +
                  blank + "Info: %lu$|dak_app_oa_parse_time: Invalid Start Time" + blank + "Info: %lu$|");
}

// A group's media lines are found by their mid; the first that is not found spoils all later groups.
TEST_F(Parsing, groups)
{
    const std::string lines =
        "m=audio 1 RTP/AVP 0\na=mid:1\nm=audio 2 RTP/AVP 0\na=mid:2\nm=application 3 udp wb\na=mid:3\n";
    const std::string held =
        " ms=3 m0{ok=1 port=1 ports=1 n=1 mid=1 msg=1} m1{ok=1 port=2 ports=1 n=1 mid=2 msg=1} m2{type=6}";
    const std::string log = "~parse_mlines: Error in{39}media lines $", many = "a=group:LS 1\n";
    const std::string fid = " g1{on=1 sem=1 mids=2 at=1}", ls = "{on=1 mids=1}";
    const auto groups = [&](const std::string &count, const std::string &each) {
        return " t=1 gs=" + count + each + held;
    };
    const std::vector<row> rows = {
        {"two groups", "a=group:LS 1 2\na=x\na=group:FID  2 1\n", 0,
         groups("2", " g0{on=1 mids=2 at=0,1}" + fid), log},
        {"a mid that no line has", "a=group:FID 1 9 2\na=group:LS 1 2\n", 0,
         groups("2", " g0{sem=1 mids=1} g1{mids=2 at=0,1}"), log},
        {"a group in front of it is there", "a=group:LS 1 2\na=group:FID 9\n", 0,
         groups("2", " g0{on=1 mids=2 at=0,1} g1{sem=1}"), log},
        {"the mid of a skipped line", "a=group:LS 3\n", 0, groups("1", ""), log},
        {"other semantics", "a=group:BUNDLE 1 2\na=group\na=group:FID 2 1\na=groups:LS 1\n", 0,
         groups("3", " g0{sem=2} g1{sem=2} g2{on=1 sem=1 mids=2 at=1}"), log},
        {"no mids", "a=group:FID\n", 0, groups("1", " g0{on=1 sem=1}"), log},
        {"five groups", many + many + many + many + many, 0,
         groups("5", " g0" + ls + " g1" + ls + " g2" + ls + " g3" + ls + " g4" + ls), log},
        {"six groups", many + many + many + many + many + many, 4,
         groups("6", " g0" + ls + " g1" + ls + " g2" + ls + " g3" + ls + " g4" + ls),
         log + "|parse_group_attr:Invalid number of groups 6$"},
        {"twenty mids", "a=group:LS 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 2\n", 0,
         groups("1", " g0{on=1 mids=20 at=0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,1}"), log},
        {"21 mids", "a=group:LS 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 2 1\n", 0,
         groups("1", " g0{mids=20 at=0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,1}"), log},
    };
    for (const row &each : rows)
        EXPECT_EQ(parse(head + "t=0 0\n" + each.text + lines),
                  (outcome{each.result, origin + each.held, each.log}))
            << each.label;
    std::string unknown;
    for (int i = 1; i <= 300; ++i)
        unknown += "a=group:X 1\n";
    const std::string five = " g0{sem=2} g1{sem=2} g2{sem=2} g3{sem=2} g4{sem=2}";
    const std::vector<row> alone = {
        {"no media lines", "a=group:LS 1\n", 0, " gs=1"},
        {"more groups than are counted", unknown, 0, " gs=255" + five},
        {"and one more", unknown + many, 4, " gs=255" + five,
         "parse_group_attr:Invalid number of groups 255$"},
        {"five and one more", unknown.substr(0, 60) + many, 4, " gs=6" + five,
         "parse_group_attr:Invalid number of groups 6$"},
    };
    expect_rows(head + "t=0 0\n", origin + " t=1", alone);
}

// In a container of the caller's a mid counts for a present flag of exactly 1.
TEST_F(Parsing, groups_of_a_container)
{
    const std::string text = head + "a=group:LS 1\na=group:LS\n";
    sdp_lib_context *context = init_sdp_lib();
    EXPECT_EQ(sdp_parse(context, text.data(), static_cast<uint32_t>(text.size())), 1);
    for (const auto &[mid, held] :
         {std::pair("m0.mid=1", "gs=2 g0{on=1 mids=1} g1{on=1}"), {"m0.mid=2:1", "gs=2"}}) {
        body offer(mid, 1);
        EXPECT_EQ(dak_app_oa_parse_group_attr(context, &offer.session), 0U);
        EXPECT_NE(dump(offer.session).find(std::string(held) + " ms=1"), std::string::npos)
            << dump(offer.session);
    }
    clean_sdp_lib(context);
}

TEST_F(Parsing, the_m_line)
{
    const std::string log = "~parse_mlines: Error in{39}media lines $",
                      any = "parse_media_line: Invalid Profile";
    const std::vector<row> rows = {
        {"audio", "m=audio 9 RTP/AVP 0 8\n", 0, "ok=1 port=9 ports=1 n=2 p=0,8 msg=1}"},
        {"video", "m=video 65535/255 RTP/AVPF 34\n", 0,
         "ok=1 type=1 port=65535 ports=255 over=1 n=1 p=34 msg=1}"},
        {"counts of ports are bytes", "m=audio 9/256 RTP/AVP 0\n", 0, "ok=1 port=9 n=1 msg=1}"},
        {"a message", "m=message 9 TCP/MSRP *\n", 0, "ok=1 type=4 port=9 ports=1 over=2 msg=1}"},
        {"a secured message", "m=message 9 TCP/TLS/MSRP *\n", 0, "ok=1 type=4 port=9 ports=1 over=3 msg=1}"},
        {"an image", "m=image 9 udptl t38\n", 0, "ok=1 type=5 port=9 ports=1 over=5 msg=1}", any},
        {"a profile that is close", "m=audio 9 RTP/AVPX 0\n", 0, "ok=1 port=9 ports=1 over=5 n=1 msg=1}",
         any},
        {"an application", "m=application 9 RTP/AVP 0\na=ptime:20\n", 0, "type=6}", log},
        {"data", "m=data 9 RTP/AVP 0\n", 0, "type=6}", log},
        {"an rtcp line", "m=audio 9 RTP/AVP 0\na=rtcp:65537 IN IP6 ::1\n", 0,
         "ok=1 port=9 ports=1 rtcp=1 ra{on=1 type=1 net=IN at=::1} n=1 msg=1}"},
    };
    expect_rows(head + "t=0 0\n", origin + " t=1 ms=1 m0{", rows);
    for (const auto &[count, result, why] :
         {std::tuple(20, 0U, ""), std::tuple(21, 4U, "~parse_mlines: Too many mlines - 21$"),
          std::tuple(30, 4U, "~parse_mlines: Too many mlines - 30$"),
          std::tuple(31, 6U, "~parse_sdp: SDP Core parse error")}) {
        std::string lines, held = " t=1 ms=20";
        for (int i = 0; i < count; ++i) {
            lines += "m=audio 9 RTP/AVP 0\n";
            held += i < 20 ? " m" + std::to_string(i) + "{ok=1 port=9 ports=1 n=1 msg=1}" : "";
        }
        EXPECT_EQ(parse(head + "t=0 0\n" + lines), (outcome{result,
                                                            result == 0   ? origin + held
                                                            : result == 4 ? origin + " t=1"
                                                                          : "",
                                                            why}))
            << count;
    }
}

TEST_F(Parsing, the_lines_of_a_media_section)
{
    const std::string wrong = "~parse_mlines:Invalid media{46}connection$",
                      end = "|~parse_mlines: Error in{45}media attr$";
    const std::string bandwidth = "~parse_media_bandwidth: No BW Info", all = " n=1 msg=1}";
    const std::vector<row> rows = {
        {"a connection", "c=IN IP6 ::1\n", 0, " con=1 c{type=1 net=IN at=::1}" + all},
        {"a connection that cannot be read clears the bandwidth", "c=IN\nb=AS:1\na=mid:1\n", 0,
         " c{type=2 net=IN}}", "~parse_address: No address type$|" + wrong + "|" + wrong + end},
        {"four bandwidths", "b=AS:1\nb=AS:2\nb=RR:3\nb=RS:4\nb=AS:5\n", 0,
         " b{on=1 0{is=1} 1{is=2} 2{mod=3 is=3} 3{mod=4 is=4}}" + all},
        {"an unknown modifier ends the reading", "b=X:1\nb=AS:2\n", 0, " b{on=1 0{mod=5}}" + all},
        {"and so does a value that is no number", "b=AS:1\nb=CT:x\nb=AS:2\n", 0,
         " b{on=1 0{is=1} 1{mod=1}}" + all, bandwidth + ":  \t\t\t\t\t\t 0$"},
        {"a missing value clears the connection", "c=IN IP4 a\nb=AS:1\nb=CT\na=mid:1\n", 0,
         " c{net=IN at=a} b{on=1 0{is=1} 1{mod=1}}}", bandwidth + "$|" + wrong + end},
        {"numbers", "a=ptime:20\na=maxptime:240 \na=framerate:29.97\na=maxprate:65556\n", 0,
         " n=1 ptime=20 maxptime=240 framerate=29 maxprate=20 msg=1}"},
        {"what is no number", "a=ptime:20ms\na=maxptime:x\na=framerate:-1\na=maxprate:.x\n", 0,
         " n=1 maxprate=0 msg=1}", "~parse_sdp:parsing maxprate failed{46}$"},
        {"attributes without colon", "a=ptime\na=mid\na=setup\n", 0, " n=1 ptime=0 mid= msg=1}"},
        {"names are prefixes", "a=midx:7\na=mid:8\n", 0, " n=1 mid=7 msg=1}"},
        {"twenty characters of mid", "a=mid:" + std::string(20, 'm') + "\n", 0,
         " n=1 mid=" + std::string(20, 'm') + " msg=1}"},
        {"21 end the line", "a=mid:" + std::string(21, 'm') + "\na=curr:qos e2e none\na=recvonly\n", 0,
         " dir=1 mid=" + std::string(20, 'm') + "}", "src str len exceeded dst str len21 $" + end},
        {"the directions have an order of their own", "a=sendrecv\na=inactive:foo\na=sendonly\n", 0,
         " n=1 dir=2 msg=1}"},
        {"so have the setups", "a=setup:actpass\na=setup:holdconn\n", 0, " n=1 setup=3 msg=1}"},
        {"a setup and a connection", "a=setup: actpass\na=connection:new\n", 0, " n=1 setup=2 msg=1}"},
        {"a connection", "a=connection:existing\n", 0, all},
    };
    expect_rows(head + "t=0 0\nm=audio 9 RTP/AVP 0\n", origin + " t=1 ms=1 m0{ok=1 port=9 ports=1", rows);
    std::string ten, held;
    for (int i = 0; i < 10; ++i, ten += "a=conf:qos local send\n")
        held += " pcd" + std::to_string(i) + "{kind=3 type=1 w=2,2}";
    const std::vector<row> more_rows = {
        {"feedback",
         "a=rtcp-fb:* nack pli\na=rtcp-fb:* ccm tmmbr\na=rtcp-fb:* nack foo\na=rtcp-fb:0 nack foo\n", 0,
         " f0{on=1 fbs=1 fb0{type=1 text=foo}} fbs=3 fb0{type=1 nack=1} fb1{type=2 ccm=1} fb2{type=1} "
         "msg=1}"},
        {"the feedback of a number without name", "a=rtcp-fb:97 nack\n", 0, " msg=1}"},
        {"ten preconditions", ten, 0, " pcds=10" + held + " msg=1}"},
        {"eleven preconditions", ten + "a=des:x\n", 0, " pcds=10" + held + " msg=1}",
         "parse_a_equal_pcd_line: pcd attr size exceeded$"},
    };
    expect_rows(head + "t=0 0\nm=audio 9 RTP/AVPF 0 97\n",
                origin + " t=1 ms=1 m0{ok=1 port=9 ports=1 over=1 n=2 p=0,97", more_rows);
}

TEST_F(Parsing, preconditions)
{
    const std::string in = "~parse_pre_cond_str :";
    const struct {
        uint32_t kind;
        std::string value;
        uint32_t result;
        const char *held;
        std::string log;
    } rows[] = {
        {1, "qos e2e sendrecv", 0, "kind=1 type=1 w=1,3"},
        {2, "qos  mandatory\nlocal recv x", 0, "kind=2 type=1 w=4,2,1"},
        {2, "qos optional remote none", 0, "kind=2 type=1 w=3,3,5"},
        {2, "qos failure e2e send", 0, "kind=2 type=1 w=2,1,2"},
        {2, "qos none e2e send", 0, "kind=2 type=1 w=1,1,2"},
        {2, "foo unknown e2e send", 0, "kind=2 w=0,1,2"},
        {3, "QOS local send", 0, "kind=3 w=2,2"},
        {1, " \n", 4, "kind=1", in + "{27}Invalid pcd type $"},
        {2, "qos", 4, "kind=2 type=1", in + "{31}invalid strength $"},
        {2, "qos fail e2e send", 4, "kind=2 type=1", in + "{31}invalid strength $"},
        {1, "qos", 5, "kind=1 type=1", in + "{30}Status Type not avail $"},
        {1, "qos mandatory e2e send", 4, "kind=1 type=1", in + "{29}invalid link $"},
        {1, "qos e2e", 5, "kind=1 type=1", in + "{29}Direc. Attr unavailable $"},
        {1, "qos e2e sendonly", 4, "kind=1 type=1", in + "{29}unknown direction $"},
        {4, "qos e2e send", 4, "kind=4 type=1", in + "{21}invalid pcd attr type 4$"},
        {1, "qos e2e send" + std::string(243, ' '), 0, "kind=1 type=1 w=1,2"},
        {1, "qos e2e send" + std::string(244, ' '), 1, "kind=1",
         "len of str printed exceeded dst str len256 $"},
    };
    for (const auto &row : rows) {
        sdp_precondition entry = {.kind = row.kind};
        const outcome seen =
            outcome_of([&] { return dak_app_oa_parse_pre_cond_str(heap_c_text(row.value).c_str(), &entry); });
        EXPECT_EQ((outcome{seen.result, dump(entry), seen.log}), (outcome{row.result, row.held, row.log}))
            << row.value;
    }
    // One that cannot be read ends the line.
    EXPECT_EQ(
        parse(head + "t=0 0\nm=audio 9 RTP/AVP 0\na=ptime:20\na=curr:qos local none\na=des:qos local\n"),
        (outcome{
            0,
            origin +
                " t=1 ms=1 m0{ok=1 port=9 ports=1 ptime=20 pcd0{kind=1 type=1 w=2,5} pcd1{kind=2 type=1}}",
            in + "{31}invalid strength $|~parse_mlines: Error in{45}media attr$"}));
}

// A codec whose parameters cannot be decoded takes those behind it without decoder along; from 96 on it ends
// the formats of its line, and of that line alone.
TEST_F(Parsing, formats)
{
    const std::string amr = "a=rtpmap:97 AMR/8000\n", bad = "a=fmtp:97 mode-set=9\n",
                      pcmu = "a=rtpmap:0 PCMU/8000\n";
    const std::string f97 = "{on=1 byte=97 map=1 id=97 khz=8 ch=1 fmtp=1 valid=1",
                      f0 = "{on=1 map=1 khz=8 ch=1}";
    const std::string unknown = "dak_app_sdp_find_medentry_by_mime:{29}No match found for Mime$";
    const std::string invalid =
        "~get_amr_mode:Invalid AMR{47}mode :9$|dak_app_sdp_decode_amr:Invalid AMR mode$";
    const std::vector<row> rows = {
        {"codecs",
         "m=audio 9 RTP/AVP 97 105\na=rtpmap:105 telephone-event/16000\na=fmtp:105 0-15,66\n" + amr +
             "a=fmtp:97 octet-align=1;mode-set=0,2\n",
         0,
         " n=2 p=97,105 f0" + f97 +
             " align=1 modes=5} f1{on=1 byte=105 map=1 id=105 khz=16 ch=1 fmtp=1 valid=1 events=1 "
             "e0{kind=2 last=15} e1{kind=1 first=66}} msg=1}"},
        {"names in any case, channels, odd rates", "m=audio 9 RTP/AVP 97\na=rtpmap:97 amr/44100/2\n", 0,
         " n=1 p=97 f0{on=1 byte=97 map=1 id=97 khz=44 multi=1 ch=2 fmtp=1 valid=1} msg=1}"},
        {"an unknown codec", "m=audio 9 RTP/AVP 96 0\na=rtpmap:96 opus/48000/2\n" + pcmu, 0,
         " n=2 p=96 f0{byte=96 map=1 id=114 khz=48 multi=1 ch=2} f1" + f0 + " msg=1}", unknown},
        {"a dynamic number without name", "m=audio 9 RTP/AVP 96 0\n" + pcmu, 0,
         " n=2 p=96 f1" + f0 + " msg=1}"},
        {"the highest static number", "m=audio 9 RTP/AVPF 95 97\na=rtcp-fb:95 nack\na=rtcp-fb:97 nack\n", 0,
         " over=1 n=2 p=95,97 f0{on=1 fbs=1 fb0{type=1}} msg=1}"},
        {"a codec that cannot be decoded", "m=audio 9 RTP/AVP 97 0 101\na=recvonly\n" + amr + bad + pcmu, 0,
         " n=3 p=97 f0{byte=97 id=97 khz=8 ch=1 fmtp=1 valid=1} dir=1}",
         invalid + "|fmtp parsing failed$|~parse_message_attr: Error in{45}message attr$"},
        {"a static number that cannot be decoded",
         "m=audio 9 RTP/AVP 8 3 0\na=rtpmap:3 AMR/8000\na=fmtp:3 mode-set=9\na=rtpmap:8 PCMA/8000\n" + pcmu,
         0,
         " n=3 p=8,3 f0{on=1 byte=8 map=1 id=8 khz=8 ch=1} f1{byte=3 id=97 khz=8 ch=1 fmtp=1 valid=1} "
         "f2{khz=8 ch=1} msg=1}",
         invalid},
        {"until a decoder succeeds",
         "m=audio 9 RTP/AVP 3 97 0\na=rtpmap:3 AMR/8000\na=fmtp:3 mode-set=9\n" + amr + pcmu, 0,
         " n=3 p=3,97 f0{byte=3 id=97 khz=8 ch=1 fmtp=1 valid=1} f1" + f97 + "} f2" + f0 + " msg=1}",
         invalid},
    };
    expect_rows(head + "t=0 0\n", origin + " t=1 ms=1 m0{ok=1 port=9 ports=1", rows);
}

TEST_F(Parsing, message_sessions)
{
    const std::string accept =
        "a=accept-types:message/cpim "
        "text/plain\na=accept-wrapped-types:*\na=path:msrps://kim@[::1]:7/id;tcp\na=max-size:131072\n";
    const std::string held =
        " acc{n=2 t=1,0,10,10,10} wrap{n=1 t=9,10,10,10,10} path{host=::1 scheme=1 user=kim six=1 port=7 "
        "id=id over=tc} max=131072";
    const std::string records = "a=file-transfer-id:Id\na=file-disposition:render\n"
                                "a=file-date:creation:\"c\"\na=file-icon:cid:i@h\na=file-range:1-9\n";
    const std::vector<row> rows = {
        {"a chat", accept, 0, held + "}"},
        {"file records without a file", records, 0, "}"},
        {"a file", "a=file-selector:name:\"a b\" type:image/png size:9 hash:sha-1:72\n" + records, 0,
         " files=1 file0{name=a b type=6 size=9 len=2 hash=72} fid=Id disp=2 created=c icon=i@h "
         "from=1 to=9}"},
    };
    expect_rows(head + "t=0 0\nm=message 9 TCP/MSRP *\n",
                origin + " t=1 ms=1 m0{ok=1 type=4 port=9 ports=1 over=2 msg=1", rows);
}

TEST_F(Parsing, the_text_ends_at_its_nul_or_its_capacity)
{
    const std::string text = head + "t=0 0\n";
    const outcome whole = {0, origin + " t=1", ""};
    EXPECT_EQ(parse(text), whole);
    EXPECT_EQ(parse(text + std::string(1, '\0')), whole);
    EXPECT_EQ(parse(text + std::string(90, '\0')), whole);
    EXPECT_EQ(parse(text + '\0' + "s=behind\n"), whole);
    EXPECT_EQ(parse(text.substr(0, text.size() - 1)), whole);
}

TEST_F(Parsing, null_arguments)
{
    sdp_container container;
    std::memset(&container, 0xEE, sizeof container);
    const std::string before = bytes_of({}).replace(
        0, sizeof container, reinterpret_cast<const char *>(&container), sizeof container);
    char text[] = "v=0";
    sdp_payload_buffer empty = {text, 0}, null = {nullptr, 3};
    const auto parsed = [](sdp_container *to, const sdp_payload_buffer *from) {
        return outcome_of([&] { return dak_app_oa_parse_sdp(to, from); });
    };
    const outcome wrong = {3, "", "~parse_sdp:Incorrect SDP params$"};
    EXPECT_EQ(parsed(&container, nullptr), wrong);
    EXPECT_EQ(parsed(&container, &null), wrong);
    EXPECT_EQ(parsed(nullptr, &empty), wrong);
    EXPECT_EQ(parsed(&container, &empty), (outcome{4, "", "~parse_sdp:Invalid SDP payload{46}length$"}));
    EXPECT_EQ(std::memcmp(&container, before.data(), sizeof container), 0) << "it is not touched";
    sdp_lib_context *context = init_sdp_lib();
    body offer("m0.ports=1", 1);
    media_description *md = dak_app_oa_encode_common_media_line(offer.lines.data());
    sdp_container *body = &offer.session;
    sdp_media_line *line = offer.lines.data();
    expect_no_null(dak_app_oa_parse_version, context, body, "~parse_version: Incorrect params$");
    expect_no_null(dak_app_oa_parse_origin, context, body, "~parse_origin: Incorrect params$");
    expect_no_null(dak_app_oa_parse_session, context, body, "~parse_session: Incorrect params$");
    expect_no_null(dak_app_oa_parse_sess_info, context, body, "~parse_sess_info: Incorrect params$");
    expect_no_null(dak_app_oa_parse_connection, context, body, "~parse_connection: No Conn Info$");
    expect_no_null(dak_app_oa_parse_bandwidth, context, body, "~parse_bandwidth:{42}Incorrect params$");
    expect_no_null(dak_app_oa_parse_time, context, body, "~parse_time: Incorrect params$");
    expect_no_null(dak_app_oa_parse_gen_attr, context, body, "~parse_gen_attr: Incorrect params$");
    expect_no_null(dak_app_oa_parse_group_attr, context, body, "~parse_group_attr: invalid i/p args $");
    expect_no_null(dak_app_oa_parse_mlines, context, body, "~parse_mlines: Incorrect params$");
    expect_no_null(dak_app_oa_parse_media_line, md, line, "~parse_media_line: Incorrect{49}params$");
    expect_no_null(dak_app_oa_parse_media_connection, md, line,
                   "~parse_media_connection: Incorrect{51}params$");
    expect_no_null(dak_app_oa_parse_media_bandwidth, md, line,
                   "~parse_media_bandwidth: Incorrect{51}params$");
    expect_no_null(dak_app_oa_parse_media_gen_attr, md, line, "~parse_media_gen_attr: Incorrect{53}params$");
    expect_no_null(dak_app_oa_parse_formats, md, line, "~parse_formats: Incorrect params$");
    expect_no_null(dak_app_oa_parse_address, text, &offer.session.connection,
                   "~parse_address: Incorrect params$");
    expect_no_null(dak_app_oa_parse_pre_cond_str, text, line->preconds,
                   "~parse_pre_cond_str :{27}invalid params $");
    expect_no_null(dak_app_oa_parse_rtcp_fb_subtype, text, line->rtcp_fb, " invalid params $");
    EXPECT_EQ(outcome_of([&] { return dak_app_oa_parse_message_attr(nullptr, nullptr); }), outcome());
    clean_media_description(md);
    clean_sdp_lib(context);
}

TEST_F(Parsing, feedback_subtypes)
{
    sdp_rtcp_fb entry = {1, 0, 9, ""};
    const auto classified = [&](const char *subtype) {
        return outcome_of([&] { return dak_app_oa_parse_rtcp_fb_subtype(subtype, &entry); });
    };
    EXPECT_EQ(classified(""), outcome());
    EXPECT_EQ(entry.nack_subtype, 0U);
    EXPECT_EQ(classified("pli"), outcome());
    EXPECT_EQ(entry.nack_subtype, 5U);
    entry.fb_type = 2;
    EXPECT_EQ(classified(""), (outcome{0, "", " Unsupported fb type $"}));
    EXPECT_EQ(entry.nack_subtype, 5U);
}

} // namespace
