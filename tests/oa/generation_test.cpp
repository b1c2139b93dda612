#include "body.h"

using namespace oa_tests;

namespace {

class Generation : public PlatformTest {};

struct row {
    const char *label;
    std::string change;
    uint32_t result;
    std::string log;
    std::string text; // behind the text that every row has
};

// How failures end, by what could not be written.
const std::pair<std::string, std::string> endings[] = {
    {"@version", "|~generate_sdp: Error encoding version{46}$"},
    {"@origin", "|~generate_sdp: Error encoding origin{52}$"},
    {"@session", "|~generate_sdp: Error encoding session{52}$"},
    {"@info", "|~generate_sdp: Error encoding info{45}$"},
    {"@bandwidth", "|~generate_sdp: Error encoding BW{45}$"},
    {"@connection", "|~generate_sdp:{28}Error encoding connection$"},
    {"@attributes", "|~generate_sdp:{29}Error encoding attributes$"},
    {"@line", "~encode_mlines: Invalid{50}media line$@media"},
    {"@formats", "|~encode_mlines: Invalid{42}media formats$@media"},
    {"@general", "|~encode_media_message_attr: Invalid{42}message attr$@media"},
    {"@message", "|~encode_mlines: Invalid attr$@media"},
    {"@text", "~generate_sdp: Error encoding{27}session/media$"},
    {"@200", "src str len exceeds dest str len 200$|"},
    {"@group", "encode_gen_attr: Invalid attr tag$"},
    {"@media", "|~generate_sdp: Error encoding media{40}lines$"},
};
std::string expanded(std::string log)
{
    for (const auto &[name, text] : endings)
        log = replaced(log, name, text);
    return log;
}

void expect_rows(std::size_t lines, const std::string &start, const std::string &head,
                 const std::vector<row> &rows)
{
    for (const row &each : rows) {
        body changed(start + " " + each.change, lines);
        const std::string text = each.result == 0 ? head + each.text : "";
        EXPECT_EQ(generate(changed.session), (outcome{each.result, text, expanded(each.log)})) << each.label;
    }
}

const std::string head = "v=0\no=- 1 2 IN IP4 h\ns=-\n";

// RFC 4566 wants a t= line; a container without times gives none.
TEST_F(Generation, the_session_lines)
{
    const std::string most =
        "user=kim id=9223372036854775807 ver=0 oa.type=1 con=2 c.type=1 c.at=2001:db8::1 "
        "s=2:a_name i=2:info b.on=9 b.0.is=41 b.1.mod=1 b.1.is=2:0 b.2.mod=2 "
        "b.2.is=4294967295 b.3.mod=3 b.3.is=7 b.4.mod=4 b.4.is=8 t=2 start=4294967295 "
        "dir=4 gs=1 g0.on=1 g0.sem=1";
    const std::vector<row> rows = {
        {"nothing but the origin", "", 0, "", "- 1 2 IN IP4 h\ns=-\n"},
        {"every line", most, 0, "",
         "kim 9223372036854775807 0 IN IP6 h\ns=a name\ni=info\n"
         "c=IN IP6 2001:db8::1\nb=AS:41\nb=CT:0\nb=TIAS:4294967295\nb=RR:7\nb=RS:8\nt=4294967295 0\n"
         "a=inactive\na=group:FID\n"},
        {"absent fields are not looked at",
         "o=7 s=0:x i=0:x c.type=9 b.0.mod=9 b.0.is=9 start=1 dir=0:9 g0.on=1", 0, "",
         "- 1 2 IN IP4 h\ns=-\n"},
        {"bandwidth ends at the first absent entry", "b.on=1 b.0.is=1 b.2.is=3", 0, "",
         "- 1 2 IN IP4 h\ns=-\nb=AS:1\n"},
        {"as long a name as a line holds", "s=199*s", 0, "",
         "- 1 2 IN IP4 h\ns=" + std::string(199, 's') + "\n"},
        {"ids are written as signed numbers", "id=18446744073709551615", 0, "", "- -1 2 IN IP4 h\ns=-\n"},
    };
    expect_rows(0, "", "v=0\no=", rows);
}

TEST_F(Generation, what_a_session_is_refused_for)
{
    const std::string start = "m0.port=9000 m0.ports=1 m0.type=4 m0.over=2 m0.mid=0:20*m";
    const std::string line = "m=message 9000 TCP/MSRP *\n", mid = " " + std::string(20, 'm');
    const std::string nine = mid + mid + mid + mid + mid + mid + mid + mid + mid;
    const std::vector<row> rows = {
        {"a version", "v=1", 4, "~encode_version: No version info$@version"},
        {"a session id of 20 characters", "id=9223372036854775808", 1,
         "~encode_origin:Insufficient{28}length to fit Session Id: 20 $@origin"},
        {"a session version of 20 characters", "ver=9223372036854775808", 1,
         "~encode_origin:Insufficient{28}length to fit Session version: 20$@origin"},
        {"an address that is not set", "oa.type=2", 4,
         "~parse_address: Invalid address{24}type: 2$|~encode_origin: Invalid address type:{27}2$@origin"},
        {"a user name without end", "user=256*u", 4, "@200~encode_origin:Invalid origin{49}info $@origin"},
        {"a name of 200 characters", "s=200*s", 4, "@200~encode_session:{37}Invalid session tag$@session"},
        {"an info without end", "i=256*i", 4, "@200~encode_info:Invalid SDP context{46}value$@info"},
        {"a modifier: the first entry's is logged", "b.on=1 b.0.mod=2 b.0.is=1 b.1.mod=5 b.1.is=1", 4,
         "~encode_bw:Invalid{12}BW modifier: 2$@bandwidth"},
        {"a connection address type", "con=1 c.type=7", 4,
         "~parse_address: Invalid address{24}type: 7$|~encode_connection:Invalid "
         "address{50}info$@connection"},
        {"a connection address without end", "con=1 c.at=256*c", 4,
         "@200~encode_connection:Invalid connection{50}info$@connection"},
        {"a direction, before any group", "dir=5 gs=6", 4,
         "~encode_gen_attr:Invalid{28}dir.attr: 5$@attributes"},
        {"no direction", "dir=0", 4, "~encode_gen_attr:Invalid{28}dir.attr: 0$@attributes"},
        {"six groups", "gs=6", 4, "encode_gen_attr:Invalid number of groups 6$@attributes"},
        {"semantics", "gs=1 g0.on=1 g0.sem=2", 4, "encode_gen_attr:Invalid grp.sematics: 2$@attributes"},
        {"a line that is not there", "gs=1 g0.on=1 g0.mids=1 g0.at=1", 4, "@group@attributes"},
        {"21 mids", "gs=1 g0.on=1 g0.mids=21", 4, "@group@attributes"},
        {"ten mids", "gs=1 g0.on=1 g0.mids=10", 4, "@200@group@attributes"},
        {"twelve mids", "gs=2 g0.on=1 g0.mids=1 g1.on=1 g1.mids=12", 1,
         "len of str printed exceeded dst str len256 $@attributes"},
        {"nine mids", "gs=1 g0.on=1 g0.sem=1 g0.mids=9", 0, "", "a=group:FID" + nine + "\n" + line},
        {"a group is there for exactly 1", "gs=1 g0.on=2 g0.sem=9 g0.mids=99", 0, "", line},
        {"a refused group in front of another", "gs=2 g0.on=1 g0.mids=10 g1.on=1 g1.mids=1", 0, "@200@group",
         "a=group:LS" + mid + "\n" + line},
        {"a refused group behind another", "gs=2 g0.on=1 g0.mids=1 g1.on=1 g1.mids=10", 4,
         "@200@group@attributes"},
        {"a mid without end", "gs=1 g0.on=1 g0.mids=1 m0.mid=0:21*x", 0, "",
         "a=group:LS " + std::string(21, 'x') + "\n" + line},
    };
    expect_rows(1, start, head, rows);
    const std::vector<row> more_rows = {
        {"no media lines but a count", "", 4, "@line"},
        {"no media lines to group", "gs=1 g0.on=1 g0.mids=1", 4, "@group@attributes"},
    };
    expect_rows(0, "ms=2 ", head, more_rows);
}

// A refused direction counts unless a group follows it. Of the b= lines only the fifth's refusal counts.
TEST_F(Generation, refusals_that_are_overtaken)
{
    using builder = uint32_t (*)(sdp_lib_context *, const sdp_container *);
    const std::string bandwidths = "b.on=1 b.0.is=1 b.1.is=2 b.2.is=3 b.3.is=4",
                      fifth = bandwidths + " b.4.is=5";
    const std::string group = "dir=2 gs=1 g0.on=1", accept = "m0.type=4 m0.msg=1 m0.acc.n=1",
                      no_b = "~encode_bw:Invalid BW info$";
    const struct {
        builder build;
        const char *tag;
        std::string change;
        std::size_t failing; // a further value of its tag takes memory
        outcome seen;
    } rows[] = {
        {dak_app_oa_encode_gen_attr, "a=", "dir=2", 1, {4, "", "~encode_gen_attr:{30}Invalid attr tag$"}},
        {dak_app_oa_encode_gen_attr,
         "a=",
         group,
         1,
         {0, "group:LS ", "~encode_gen_attr:{30}Invalid attr tag$"}},
        {dak_app_oa_encode_gen_attr, "a=", group, 2, {4, "sendonly ", "encode_gen_attr: Invalid attr tag$"}},
        {dak_app_oa_encode_version, "v=", "", 1, {4, "", "~encode_version: Invalid version{55}info$"}},
        {dak_app_oa_encode_session, "s=", "", 1, {4, "", "~encode_session:{30}Invalid session tag$"}},
        {dak_app_oa_encode_time, "t=", "t=1", 1, {4, "", "~encode_time: Invalid time info$"}},
        {dak_app_oa_encode_message_attr, "a=", accept, 1, {4, "", "~encode_gen_attr:{28}Invalid attr tag$"}},
        {dak_app_oa_encode_bw, "b=", fifth, 1, {0, "AS:2 AS:3 AS:4 AS:5 ", no_b}},
        {dak_app_oa_encode_bw, "b=", fifth, 5, {4, "AS:1 AS:2 AS:3 AS:4 ", no_b}},
        {dak_app_oa_encode_bw, "b=", bandwidths, 4, {0, "AS:1 AS:2 AS:3 ", no_b}},
    };
    for (const auto &row : rows) {
        const body session(row.change, 1);
        sdp_lib_context *context = init_sdp_lib();
        set_session_value(context, SDP_ENCODER_DOCUMENT, row.tag, "first");
        standin::fail_allocation(row.failing);
        outcome seen = outcome_of([&] { return row.build(context, &session.session); });
        for (int i = 1; const char *value = get_particular_index_of_session_value(context, 0, row.tag, i);
             ++i)
            seen.text.append(value).append(" ");
        EXPECT_EQ(seen, row.seen) << row.change;
        clean_sdp_lib(context);
    }
}

// Everything about this container is wrong: repairing one thing shows the next.
TEST_F(Generation, the_first_builder_that_fails_decides)
{
    body wrong("v=1 oa.type=2 s=256*s i=256*i b.on=1 b.0.mod=5 b.0.is=1 con=1 c.type=2 dir=5 ms=1");
    const std::pair<const char *, std::string> repairs[] = {
        {"", "@version"},      {"v=0", "@origin"},        {"oa.type=0", "@session"}, {"s=x", "@info"},
        {"i=x", "@bandwidth"}, {"b.on=0", "@connection"}, {"con=0", "@attributes"},  {"dir=1", "@media"},
    };
    for (const auto &[repair, last] : repairs) {
        change(wrong.session, repair);
        const outcome seen = generate(wrong.session);
        EXPECT_TRUE(seen.result == 4 && seen.log.ends_with(expanded(last))) << repair << seen;
    }
}

TEST_F(Generation, the_buffer_takes_the_text_and_its_terminator)
{
    body small;
    EXPECT_EQ(generate(small.session, 29), (outcome{0, head, ""}));
    EXPECT_EQ(generate(small.session, 28),
              (outcome{1, "",
                       "~generate_sdp: SDP out length: 28, In length: 28$|"
                       "~generate_sdp: SDP length greater than{29}allocated $"}));
    EXPECT_EQ(generate(small.session, 0), (outcome{4, "", "~generate_sdp: Invalid SDP Payload{45}length$"}));
    char text[8];
    sdp_payload_buffer buffer = {text, 8}, null = {nullptr, 8};
    const outcome wrong = {3, "", "~generate_sdp: Incorrect params$"};
    EXPECT_EQ(outcome_of([&] { return dak_app_oa_generate_sdp(nullptr, &buffer); }), wrong);
    EXPECT_EQ(outcome_of([&] { return dak_app_oa_generate_sdp(&small.session, nullptr); }), wrong);
    EXPECT_EQ(outcome_of([&] { return dak_app_oa_generate_sdp(&small.session, &null); }), wrong);
}

const std::string one_line = "m0.port=9000 m0.ports=1 m0.n=1 m0.p=8 m0.f0.on=1";

TEST_F(Generation, the_lines_of_a_media_section)
{
    const std::string audio = "m=audio 9000 RTP/AVP ", amr = "m0.p=97 m0.f0.map=1 m0.f0.id=97 m0.f0.khz=8 ";
    const std::string in = "~encode_media_gen_attr:Invalid",
                      four = "m0.b.on=1 m0.b.0.mod=4 m0.b.0.is=1 m0.b.1.mod=3 "
                             "m0.b.1.is=2 m0.b.2.mod=2 m0.b.2.is=4294967295 m0.b.3.mod=1 m0.b.3.is=4 ";
    const std::vector<row> rows = {
        {"a static payload", "", 0, "", audio + "8\n"},
        {"the highest one", "m0.p=95", 0, "", audio + "95\n"},
        {"a dynamic payload without rtpmap", "m0.p=96", 7, "~encode_media_formats:{39}fmtp failed$@formats"},
        {"formats that are not present keep their place", amr + "m0.n=3 m0.p=97,96,0", 0, "",
         audio + "97 96 0\na=rtpmap:97 AMR/8000\n"},
        {"codec parameters", amr + "m0.f0.ch=6 m0.f0.fmtp=1 m0.f0.align=1", 0, "",
         audio + "97\na=rtpmap:97 AMR/8000\na=fmtp:97 octet-align=1\n"},
        {"a codec that is not in the table", amr + "m0.f0.id=114", 3,
         "dak_app_sdp_find_medentry_by_pt:{29}No match found for Mime$|~encode_media_formats:No "
         "media{48}type$@formats"},
        {"codec parameters that are refused",
         "m0.p=98 m0.f0.map=1 m0.f0.id=105 m0.f0.fmtp=1 m0.f0.events=1 m0.f0.e0.kind=3", 4,
         "dak_app_sdp_encode_dtmf_tel_event_tag :{31}Invalid event range: 3 |"
         "~encode_media_formats:{41}fmtp failed$@formats"},
        {"feedback",
         "m0.over=1 m0.f0.fbs=1 m0.f0.fb0.type=1 m0.f0.fb0.nack=1 m0.fbs=2 m0.fb0.type=1 m0.fb0.ccm=1 "
         "m0.fb0.text=lost m0.fb1.type=2 m0.fb1.ccm=1",
         0, "", "m=audio 9000 RTP/AVPF 8\na=rtcp-fb:8 nack pli\na=rtcp-fb:* nack\na=rtcp-fb:* cmm tmmbr\n"},
        {"feedback over another transport", "m0.f0.fbs=9 m0.fbs=9", 0, "", audio + "8\n"},
        {"feedback is there for exactly 1", "m0.over=1 m0.f0.fbs=2:9 m0.fbs=2:9", 0, "",
         "m=audio 9000 RTP/AVPF 8\n"},
        {"six entries of a format", "m0.over=1 m0.f0.fbs=6", 4, "Invalid RTCP fb type$@formats"},
        {"six entries of the line", "m0.over=1 m0.fbs=6", 4, "Invalid number of fb $@general"},
        {"an unknown feedback type", "m0.over=1 m0.f0.fbs=1 m0.f0.fb0.type=3", 4,
         " Unsupported fb attributes $|@text"},
        {"feedback with a text", "m0.over=1 m0.f0.fbs=1 m0.f0.fb0.type=1 m0.f0.fb0.text=app", 4,
         " Unsupported fb attributes $|@text"},
        {"every attribute in its order",
         "m0.port=65535 m0.ports=255 m0.ptime=2:20 m0.maxptime=240 m0.framerate=65535 "
         "m0.maxprate=2:0 m0.mid=2:21*x m0.setup=3 m0.dir=2:1",
         0, "",
         "m=audio 65535/255 RTP/AVP 8\na=recvonly\n"
         "a=setup:holdconn\na=framerate:65535\na=maxprate:0\na=maxptime:240\na=ptime:20\na=mid:" +
             std::string(21, 'x') + "\n"},
        {"what is never written", "m0.con=1 m0.c.type=9 m0.c.at=x m0.rtcp=7 m0.ra.on=1 m0.ra.at=x m0.ok=9", 0,
         "", audio + "8\n"},
        {"a connection in place of the setup", "m0.setup=0 m0.conn=1", 0, "",
         audio + "8\na=connection:existing\n"},
        {"a connection without setup", "m0.conn=9", 0, "", audio + "8\n"},
        {"a direction", "m0.dir=5", 4, in + "{31}dir.attr: 5$@general"},
        {"a setup, in front of the connection", "m0.setup=4 m0.conn=0", 4,
         in + "{30}connsetup.attr: 4$@general"},
        {"a connection", "m0.setup=0 m0.conn=2", 4, in + "{30}conn_status.attr: 2$@general"},
        {"four bandwidths", four, 0, "", audio + "8\nb=RS:1\nb=RR:2\nb=TIAS:4294967295\nb=CT:4\n"},
        {"five bandwidths", four + "m0.b.4.is=5", 4,
         "No entry found for the tag b= $|~encode_bw:Invalid BW info$|@line"},
        {"a modifier: the wrong one is logged", "m0.b.on=1 m0.b.0.mod=2 m0.b.0.is=1 m0.b.1.mod=5 m0.b.1.is=1",
         4, "~encode_bw:Invalid{12}BW modifier: 5$|@line"},
        {"no ports", "m0.ports=0", 4, "@text"},
        {"an image", "m0.type=5", 4, "@line"},
        {"data", "m0.type=2", 4, "@line"},
        {"a secured message line", "m0.over=3", 4, "encode_common_media_line: Invalid Profile|@line"},
        {"21 formats", "m0.n=21", 4, "@line"},
    };
    expect_rows(1, one_line, head, rows);
    std::string all;
    for (int i = 0; i < 30; ++i)
        all += "m=message 1 TCP/MSRP *\n";
    body many("", 31);
    for (sdp_media_line &line : many.lines)
        line.media_type = 4, line.transport = 2, line.num_ports = 1, line.port = 1;
    EXPECT_EQ(generate(many.session), (outcome{4, "", expanded("~encode_mlines: Invalid attr$@media")}));
    many.session.num_mlines = 30;
    EXPECT_EQ(generate(many.session), (outcome{0, head + all, ""}));
}

// Apart from the marker of one codec's block, which is set once that was written.
TEST_F(Generation, a_container_is_only_read)
{
    body offer(one_line + " m0.p=96 m0.f0.map=1 m0.f0.id=106 m0.f0.khz=90 m0.f0.fmtp=1", 1);
    const std::string before = dump(offer.session);
    char text[4096];
    sdp_payload_buffer buffer = {text, sizeof text};
    EXPECT_EQ(dak_app_oa_generate_sdp(&offer.session, &buffer), 0U);
    EXPECT_EQ(dump(offer.session), replaced(before, "fmtp=1", "fmtp=1 valid=1"));
    generate(offer.session);
}

TEST_F(Generation, preconditions)
{
    const std::string in = "~encode_pre_cond_str :";
    const struct {
        const char *kind, *words;
        outcome seen;
    } rows[] = {
        {"1", "1,1,9", {0, "qos e2e recv", ""}},
        {"3", "2,2", {0, "qos local send", ""}},
        {"1", "3,5", {0, "qos remote none", ""}},
        {"2", "0,1,3", {0, "qos unknown e2e sendrecv", ""}},
        {"2", "1,1,3", {0, "qos none e2e sendrecv", ""}},
        {"2", "2,1,3", {0, "qos failure e2e sendrecv", ""}},
        {"2", "3,1,3", {0, "qos optional e2e sendrecv", ""}},
        {"2", "4,1,3", {0, "qos mandatory e2e sendrecv", ""}},
        {"4", "1,1", {4, "", "error - unknown pcd type "}},
        {"2", "5,9,9", {4, "", in + " Error in{28}Precondition strength: 1"}},
        {"1", "0,9", {4, "", in + "{27}error - link status:0"}},
        {"2", "4,4,9", {4, "", in + "{27}error - link status:4"}},
        {"1", "1,0", {4, "", in + "{24}invalid direction: 0"}},
        {"2", "4,1,4", {4, "", in + "{24}invalid direction: 4"}},
    };
    for (const auto &row : rows) {
        std::string change = one_line + " m0.pcds=3:9", nine;
        for (int i = 0; i < 9; ++i) {
            const std::string name = " m0.pcd" + std::to_string(i);
            change += name + ".kind=" + row.kind + name + ".type=1" + name + ".w=" + row.words;
            nine += (*row.kind == '1'   ? "a=curr:"
                     : *row.kind == '2' ? "a=des:"
                                        : "a=conf:") +
                    row.seen.text + "\n";
        }
        body offer(change, 1);
        EXPECT_EQ(generate(offer.session), row.seen.result == 0
                                               ? (outcome{0, head + "m=audio 9000 RTP/AVP 8\n" + nine, ""})
                                               : (outcome{4, "", expanded(row.seen.log + "@general")}))
            << row.words;
        oa_tests::change(offer.session, "m0.pcds=10");
        EXPECT_EQ(generate(offer.session),
                  (outcome{1, "", expanded("~encode_media_gen_attr :{27}pcd list size overflow $@general")}));
    }
    expect_rows(
        1, one_line, "",
        {{"another type", "m0.pcds=1 m0.pcd0.kind=1", 4, in + " Error in{29}Precondition type: 0@general"}});
}

TEST_F(Generation, message_sessions_and_file_transfers)
{
    const std::string start =
        "m0.port=9 m0.ports=1 m0.type=4 m0.over=2 m0.msg=2 m0.acc.n=7 m0.acc.t=0,1,3,2,9 m0.wrap.n=1 "
        "m0.wrap.t=4 m0.path.host=h m0.path.port=7 m0.path.id=id m0.path.over=tcp m0.max=4294967295";
    const std::string
        m = "m=message 9 TCP/MSRP *\n",
        attributes =
            m +
            "a=accept-types:text/plain message/cpim application/imdn+xml application/im-iscomposing+xml *\n"
            "a=acceptwrapped-types:text/html\na=path:msrp://h:7/id;tcp\na=max-size:4294967295\n";
    const std::string in =
        "~encode_media_message_attr :{27}Invalid message attr $|~encode_mlines: Invalid attr$";
    const std::vector<row> rows = {
        {"a chat", "", 0, "", attributes},
        {"no attributes", "m0.msg=0", 0, "", m},
        {"attributes over another transport", "m0.over=1", 0, "", "m=message 9 RTP/AVPF\n"},
        {"a file",
         "m0.files=1 m0.file0.name=a_b m0.file0.type=5 m0.file0.size=9 m0.file0.len=2 "
         "m0.file0.hash=72 m0.fid=Id "
         "m0.disp=2 m0.created=c m0.modified=m m0.read=r m0.icon=i@h m0.from=1 m0.to=9",
         0, "",
         attributes + "a=file-selector:name:\"a b\" type:image/jpeg size:9 "
                      "hash:sha-1:72\na=file-transfer-id:Id\na=file-disposition:render\n"
                      "a=file-date:creation:\"c\"\na=file-date:modification:\"m\"\na=file-date:"
                      "read:\"r\"\na=file-icon:cid:i@h\na=file-range:1-9\n"},
        {"six files", "m0.files=6", 4, in + "@media"},
        {"fewer than no files", "m0.files=-1", 0, "", attributes},
        {"an id without end", "m0.fid=256*f", 4, "@200@text"},
    };
    expect_rows(1, start, head, rows);
}

// No generated body has it: the accept-type attribute of the session.
TEST_F(Generation, the_session_message_attribute)
{
    const std::string in = "~encode_message_attr:Invalid", kind = "{28}accept-type.attr: 3$";
    const row rows[] = {
        {"plain text", "m1.acc.n=0", 0, "", "accept-type:text/plain"},
        {"receipts", "m1.acc.n=257:0 m1.acc.t=3", 0, "", "accept-type:message/imdn+xml"},
        {"a type without text", "m1.acc.n=1 m1.acc.t=4", 4,
         in + "{3}" + std::string(14, '\t') + " accept-type.attr: 3$"},
        {"wrapped types", "m1.acc.n=1 m1.acc.kind=1 m1.acc.t=9", 0, "", "accept-wrapped-types:"},
        {"another kind", "m1.acc.n=1 m1.acc.kind=2", 4, in + kind},
        {"no accept types", "m1.acc.n=256:1", 1, "len of str printed exceeded dst str len256 $"},
        {"no message line", "m1.type=0", 0, ""},
        {"no message attributes", "m1.msg=0", 0, ""},
    };
    for (const row &each : rows) {
        const body chat("m1.type=4 m1.msg=1 dir=3 " + each.change, 2);
        sdp_lib_context *context = init_sdp_lib();
        outcome seen = outcome_of([&] { return dak_app_oa_encode_message_attr(context, &chat.session); });
        if (const char *stored = get_session_value(context, SDP_ENCODER_DOCUMENT, "a="))
            seen.text = stored;
        EXPECT_EQ(seen, (outcome{each.result, each.text, each.log})) << each.label;
        clean_sdp_lib(context);
    }
}

TEST_F(Generation, null_arguments)
{
    sdp_lib_context *context = init_sdp_lib();
    body offer(one_line, 1);
    media_description *md = dak_app_oa_encode_common_media_line(offer.lines.data());
    sdp_container *body = &offer.session;
    sdp_media_line *line = offer.lines.data();
    expect_no_null(dak_app_oa_encode_version, context, body, "~parse_sdp:Incorrect params$");
    expect_no_null(dak_app_oa_encode_origin, context, body, "~encode_origin: Incorrect params$");
    expect_no_null(dak_app_oa_encode_session, context, body, "~encode_session: Incorrect params$");
    expect_no_null(dak_app_oa_encode_info, context, body, "~encode_info: Incorrect params$");
    expect_no_null(dak_app_oa_encode_bw, context, body, "~encode_bw: Incorrect params$");
    expect_no_null(dak_app_oa_encode_connection, context, body, "~encode_connection: Incorrect params$");
    expect_no_null(dak_app_oa_encode_time, context, body, "~encode_time: Incorrect params$");
    expect_no_null(dak_app_oa_encode_gen_attr, context, body, "~encode_gen_attr: Incorrect params$");
    expect_no_null(dak_app_oa_encode_message_attr, context, body, "~encode_message_attr: Incorrect params$");
    expect_no_null(dak_app_oa_encode_mlines, context, body, "~encode_mlines: Incorrect params$");
    expect_no_null(dak_app_oa_encode_media_bandwidth, md, &line->bandwidth, "~encode_bw: Incorrect params$");
    expect_no_null(dak_app_oa_encode_media_formats, md, line, "~encode_media_formats: Incorrect{54}params$");
    expect_no_null(dak_app_oa_encode_media_gen_attr, md, line, "~encode_media_gen_attr:No mlines$");
    expect_no_null(dak_app_oa_encode_media_message_attr, md, line, "~encode_media_message_attr:No mlines$");
    char text[256] = "IN";
    expect_no_null(dak_app_oa_encode_pre_cond_str, text, line->preconds,
                   "~encode_pre_cond_str:{27}error - Invalid params");
    const auto append = [&](char *to, uint16_t capacity, const sdp_address *address) {
        return outcome_of([&] { return dak_app_oa_add_address_value(to, capacity, address); });
    };
    EXPECT_EQ(append(text, 16, nullptr), (outcome{3, "", "~add_address_value:{40}Incorrect params$"}));
    EXPECT_EQ(append(nullptr, 16, &offer.session.connection),
              (outcome{3, "", "~add_address_value:{40}Incorrect params$"}));
    EXPECT_EQ(append(text, 10, &offer.session.origin_address),
              (outcome{1, "", "len of str printed exceeded dst str len10 $"}));
    std::strcpy(text, "IN");
    EXPECT_EQ(append(text, 11, &offer.session.origin_address), outcome());
    EXPECT_STREQ(text, "ININ IP4 h");
    EXPECT_EQ(dak_app_oa_encode_common_media_line(nullptr), nullptr);
    clean_media_description(md);
    clean_sdp_lib(context);
}

} // namespace
