#include "body.h"

using namespace oa_tests;

namespace {

class Container : public PlatformTest {};

TEST_F(Container, release)
{
    sdp_container container = {};
    container.mlines = static_cast<sdp_media_line *>(dak_malloc(sizeof(sdp_media_line)));
    sdp_media_line *const stale = container.mlines;
    const auto released = [&] { return dak_app_oa_cleanup_sdp_container(&container); };
    EXPECT_TRUE(released() == 0 && container.mlines == stale) << "no lines are counted";
    container.num_mlines = 1;
    EXPECT_TRUE(released() == 0 && container.mlines == nullptr && container.num_mlines == 0);
    container.num_mlines = 7;
    EXPECT_TRUE(released() == 0 && container.num_mlines == 7) << "there are no lines";
    EXPECT_EQ(dak_app_oa_cleanup_sdp_container(nullptr), 0U);
}

TEST_F(Container, a_duplicate_has_lines_of_its_own)
{
    body source("user=kim m0.port=1 m1.port=2 m2.p=9,8 gs=1 g0.on=1", 3);
    sdp_container *copy = nullptr;
    const auto duplicate = [&] {
        return outcome_of([&] { return dak_app_oa_duplicate_sdp_container(&source.session, &copy); });
    };
    const auto release = [&] {
        dak_app_oa_cleanup_sdp_container(copy);
        dak_free(copy);
    };
    EXPECT_EQ(duplicate(), outcome());
    EXPECT_EQ(dump(*copy), dump(source.session));
    change(*copy, "m0.port=9");
    EXPECT_EQ(source.lines[0].port, 1);
    release();
    standin::fail_allocation(1);
    EXPECT_EQ(duplicate(), (outcome{2, "", ""}));
    EXPECT_EQ(copy, nullptr);
    standin::fail_allocation(2);
    EXPECT_EQ(duplicate(), (outcome{2, "", ""}));
    EXPECT_TRUE(copy->num_mlines == 3 && copy->mlines == nullptr) << "its lines are counted all the same";
    release();
    source.session.num_mlines = 0;
    EXPECT_EQ(duplicate(), outcome());
    EXPECT_EQ(copy->mlines, source.lines.data()) << "a pointer that nothing follows";
    release();
    source.session.num_mlines = 3;
    source.session.mlines = nullptr;
    EXPECT_EQ(duplicate(), (outcome{7, "", ""}));
    EXPECT_EQ(copy, nullptr);
    EXPECT_EQ(dak_app_oa_duplicate_sdp_container(&source.session, nullptr), 7U);
    EXPECT_EQ(dak_app_oa_duplicate_sdp_container(nullptr, &copy), 7U);
}

TEST_F(Container, codecs_are_found_by_key_and_by_name)
{
    const auto by_key = [](uint32_t key) {
        const auto *found = dak_app_sdp_find_medentry_by_pt(key);
        return std::string(found != nullptr ? found->mime_name : "");
    };
    const auto by_name = [](const char *name) {
        const auto *found = dak_app_sdp_find_medentry_by_mime(name);
        return found != nullptr ? int(found->payload_number) : -1;
    };
    std::string names;
    for (uint32_t key = 0; key < 300; ++key)
        names += by_key(key).empty() ? "" : std::to_string(key) + by_key(key) + " ";
    EXPECT_EQ(
        names,
        "0PCMU 4G723 8PCMA 9G722 18G729 21G711AB 34H263 96AMR-WB 97AMR 98MP4V-ES 99EVRC 100EVRC0 101EVRC1 "
        "102EVRCB0 103EVRCB 104EVRCB1 "
        "105telephone-event 106H263-1998 107H263-2000 108EVRCWB0 109EVRCWB 110EVRCWB1 111G722_2 "
        "112telephone-event 113H264 ");
    EXPECT_EQ(log_behind(standin::logs().size() - 1),
              "dak_app_sdp_find_medentry_by_pt:{29}No match found for Mime$");
    EXPECT_EQ(by_name("amr"), 97);
    EXPECT_EQ(by_name("TELEPHONE-Event"), 105) << "112 goes by its key alone";
    const std::size_t first = standin::logs().size();
    EXPECT_EQ(by_name("AMR-W"), -1);
    EXPECT_EQ(by_name(""), -1);
    EXPECT_EQ(by_name(nullptr), -1);
    const std::string none = "dak_app_sdp_find_medentry_by_mime:{29}No match found for Mime$|";
    EXPECT_EQ(log_behind(first), none + none + "dak_app_sdp_find_medentry_by_mime:{29}Wrong Mime params$");
}

// Entries as kind, type and words; the cells that they fill as row and column, desired ones with a strength.
TEST_F(Container, preconditions_are_tabulated)
{
    const struct {
        const char *label;
        std::vector<std::vector<uint32_t>> entries;
        uint32_t result;
        const char *cells;
        int met;
    } rows[] = {
        {"none", {}, 0, "", 1},
        {"both directions", {{1, 1, 1, 3}}, 0, " 11 12", 1},
        {"no direction", {{1, 1, 2, 5}}, 0, " 25", 1},
        {"a desire in both", {{2, 1, 4, 3, 3}}, 0, " 31=4 32=4", 0},
        {"half of it met", {{2, 1, 4, 1, 3}, {1, 1, 1, 1}}, 0, " 11 11=4 12=4", 0},
        {"all of it met", {{2, 1, 4, 1, 3}, {1, 1, 1, 2}, {1, 1, 1, 1}}, 0, " 11 11=4 12 12=4", 1},
        {"met elsewhere", {{2, 1, 4, 2, 2}, {1, 1, 3, 3}}, 0, " 22=4 31 32", 0},
        {"an option", {{2, 1, 3, 2, 2}, {2, 1, 5, 2, 1}}, 0, " 21=5 22=3", 1},
        {"a mandatory none", {{2, 1, 4, 2, 5}}, 0, " 25=4", 0},
        {"the last desire counts", {{2, 1, 4, 2, 2}, {2, 1, 0, 2, 2}}, 0, "", 1},
        {"confirmations are left out", {{3, 1, 0, 0}, {3, 9, 9, 9}}, 0, "", 1},
        {"so are other types and direction 4", {{2, 0, 4, 9, 9}, {1, 1, 9, 4}}, 0, "", 1},
        {"any type but 0 is tabulated", {{2, 7, 4, 1, 1}}, 0, " 11=4", 0},
        {"a kind", {{1, 1, 1, 1}, {4, 1, 1, 1}}, 14, " 11", 0},
        {"no kind", {{0, 1, 1, 1}}, 14, "", 0},
        {"no status, whatever the type", {{1, 0, 0, 1}}, 14, "", 0},
        {"no direction at all", {{2, 0, 4, 1, 0}}, 14, "", 0},
        {"a status beyond the table", {{1, 1, 4, 1}}, 14, "", 0},
        {"a direction beyond the table", {{2, 1, 4, 1, 6}}, 14, "", 0},
        {"eleven", std::vector<std::vector<uint32_t>>(11, {3}), 14, "", 0},
    };
    for (const auto &row : rows) {
        std::vector<sdp_precondition> entries(row.entries.size() + 1);
        for (std::size_t i = 0; i < row.entries.size(); ++i)
            std::memcpy(&entries[i], row.entries[i].data(), row.entries[i].size() * sizeof(uint32_t));
        body offer("m0.pcds=2:" + std::to_string(row.entries.size()), 1);
        std::copy_n(entries.begin(), std::min<std::size_t>(entries.size(), SDP_MAX_PRECONDS),
                    offer.lines[0].preconds);
        uint8_t current[4][6] = {};
        uint32_t desired[4][6] = {};
        const std::string log = row.result == 0 ? "" : "~check_mline_preconds:PCD attr err$";
        outcome seen = outcome_of([&] {
            return dak_app_oa_fill_pcd_list(static_cast<uint32_t>(row.entries.size()), entries.data(),
                                            current, desired);
        });
        for (int i = 0; i < 24; ++i) {
            const std::string cell = " " + std::to_string(i / 6) + std::to_string(i % 6);
            seen.text += current[i / 6][i % 6] == 1 ? cell : "";
            seen.text += desired[i / 6][i % 6] != 0 ? cell + "=" + std::to_string(desired[i / 6][i % 6]) : "";
        }
        EXPECT_EQ(seen, (outcome{row.result, row.cells, log})) << row.label;
        EXPECT_EQ(outcome_of([&] { return dak_app_oa_check_mline_preconds(offer.lines.data()); }),
                  (outcome{uint32_t(row.met), "", log}))
            << row.label;
        offer.lines[0].precond_present = 0;
        EXPECT_EQ(outcome_of([&] { return dak_app_oa_check_mline_preconds(offer.lines.data()); }),
                  (outcome{1, "", ""}))
            << row.label;
    }
    sdp_precondition entry = {};
    uint8_t current[4][6];
    uint32_t desired[4][6];
    EXPECT_EQ(dak_app_oa_fill_pcd_list(0, nullptr, current, desired), 15U);
    EXPECT_EQ(dak_app_oa_fill_pcd_list(1, &entry, nullptr, desired), 15U);
    EXPECT_EQ(dak_app_oa_fill_pcd_list(1, &entry, current, nullptr), 15U);
}

TEST_F(Container, preconditions_of_all_lines_are_to_be_met)
{
    body offer("m1.pcds=1 m1.pcd0.kind=2 m1.pcd0.type=1 m1.pcd0.w=4,1,3", 2);
    const auto checked = [](const sdp_container *container) {
        return outcome_of([&] { return dak_app_oa_check_preconds(container); });
    };
    EXPECT_EQ(checked(&offer.session),
              (outcome{0, "", "~check_preconds: Preconditions not{26}met for mline- 1 $"}));
    offer.session.num_mlines = 1;
    EXPECT_EQ(checked(&offer.session), (outcome{1, "", ""}));
    offer.session.mlines = nullptr;
    EXPECT_EQ(
        checked(&offer.session),
        (outcome{
            0, "",
            "~check_mline_preconds: Null params$|~check_preconds: Preconditions not{26}met for mline- 0 $"}));
    offer.session.num_mlines = 0;
    EXPECT_EQ(checked(&offer.session), (outcome{1, "", ""}));
    EXPECT_EQ(checked(nullptr), (outcome{0, "", "~check_preconds: Null params $"}));
}

TEST_F(Container, the_dump)
{
    const body most(
        "v=7 id=18446744073709551615 ver=2 t=1 start=3950000000 stop=3950000000 dir=4 b.on=1 b.0.is=1 "
        "b.1.mod=1 b.1.is=2 "
        "b.2.mod=2 b.2.is=3 b.3.mod=3 b.3.is=4294967295 b.4.mod=9 b.4.is=5 m0.port=65535 m0.ports=255 "
        "m0.b.on=1 m0.b.0.mod=4 m0.b.0.is=6 "
        "m0.ptime=20 m0.maxptime=240 m0.framerate=15 m0.maxprate=50 m0.pcds=3 m0.pcd0.kind=1 "
        "m0.pcd0.type=1 m0.pcd0.w=2,5 m0.pcd1.kind=2 m0.pcd1.type=1 "
        "m0.pcd1.w=2,1,3 m0.pcd2.kind=3 m0.pcd2.type=1 m0.pcd2.w=3,2 m0.setup=3 m0.conn=1 m0.msg=1 "
        "m0.acc.n=1 m0.n=2 m0.p=97,8 m0.f0.id=97 m0.f0.ch=2 "
        "m0.f0.fmtp=1 m0.f0.modes=133 m0.f1.id=114 m1.type=4 m1.over=2 m1.msg=1 m1.acc.n=2 m1.acc.t=0,1 "
        "m1.wrap.n=1 m1.wrap.t=2 "
        "m1.path.host=h m1.path.scheme=1 m1.max=4294967295 m2.type=6 m2.over=5",
        3);
    EXPECT_EQ(
        outcome_of([&] { return dak_app_oa_print_sdp_container(&most.session), 0; }).log,
        "SDP Container contents : $|version = 7$|Origin : $|Session Id = 18446744073709551615 $|Version = "
        "2 $|Bandwidth AS :: 1 $|Bandwidth CT :: 2 $|"
        "Bandwidth TIAS :: 3 $|Bandwidth RR :: 4294967295 $|Invalid bandwidth mode 9 $|Time = -344967296 "
        "- 3950000000 $|session direction : inactive $|"
        "Media line :|media type = audio$|Media Port = 65535$|Number of ports = 255$|Media Profile: "
        "RTP/AVP|Bandwidth RS :: 6 $|a=ptime:20$|a=maxptime:240$|"
        "a=framerate:15$|a=maxprate:50$|a=curr:|qos |local |none$|a=des:|qos |fail |e2e |sendrecv$|"
        "a=conf:|qos |remote |send$|a=setup:holdconn|"
        "a=connection:existing|RTPMAP :$Payload number= 97|Mime = AMR$|Number of channels = 2$|FMTP:$|0|"
        "mode set2|mode set7|; |"
        "RTPMAP :$Payload number= 8|Mime = Unknown: 114$|Number of channels = 0$|FMTP:$|"
        "Media line :|media type = message$|Media Port = 0$|Number of ports = 0$|Media Profile: TCP/MSRP|"
        "accept-type:text/plain|accept-type:message/cpim|"
        "accept-wrapped-types:application/im-iscomposing+xml|a=path:msrps|a=max-size:4294967295|"
        "Media line :|Media type - unknown|Media Port = 0$|Number of ports = 0$|Unknown media profile "
        "type$|======End of SDP =======$");
    EXPECT_EQ(
        formats_with_values(),
        "|version = %u$|Session Id = %llu $|Version = %llu $|Bandwidth AS :: %lu $|Bandwidth CT :: %lu $|"
        "Bandwidth TIAS :: %lu $|Bandwidth RR :: %lu $|Invalid bandwidth mode %lu $|Time = %ld - %lu $|"
        "Media Port = %hu$|Number of ports = %u$|Media Profile: %s|Bandwidth RS :: %lu $|a=ptime:%d$|"
        "a=maxptime:%d$|a=framerate:%d$|a=maxprate:%d$|a=%s|RTPMAP :$Payload number= %u|"
        "Number of channels = %u$|%d|mode set%d|Mime = Unknown: %d$|%s:%s|a=path:%s|a=max-size:%lu|");
    // Counts beyond their arrays, and lines that are only counted, are harmless.
    const body careless("dir=9 ms=3", 0),
        counts("m0.n=65535 m0.pcds=4294967295 m0.f0.fbs=255 m0.acc.n=65535 m0.over=2 m0.msg=1", 1);
    EXPECT_EQ(outcome_of([&] { return dak_app_oa_print_sdp_container(&careless.session), 0; }).log,
              "SDP Container contents : $|version = 0$|Origin : $|Session Id = 1 $|Version = 2 $|session "
              "direction : unknown $|======End of SDP =======$");
    EXPECT_TRUE(outcome_of([&] {
                    return dak_app_oa_print_sdp_container(&counts.session), 0;
                }).log.ends_with("FMTP:$|======End of SDP =======$"));
    EXPECT_EQ(outcome_of([] { return dak_app_oa_print_sdp_container(nullptr), 0; }), outcome());
}

TEST_F(Container, the_dump_of_a_part)
{
    const dtx_params dtx = {1, 1, 0, 9, 2, 255, 1, 0};
    const h263_params h263 = {1, 1,  1, 2,       1, 3,  1, 4, 1, -1, 352, -288,
                              1, 1,  1, 1,       1, 1,  1, 4, 1, 0,  9,   {1, 2, 3, 4},
                              1, 12, 1, "1.2.3", 1, 24, 1};
    EXPECT_EQ(outcome_of([&] { return dak_app_oa_print_dtx_attr(&dtx), 0; }).log,
              "silencesupp = 1$|dtxmin = 255$|hangover = 0$");
    EXPECT_EQ(outcome_of([] { return dak_app_oa_print_mode(0x1FE), 0; }).log,
              "1|mode set2|mode set3|mode set4|mode set5|mode set6|mode set7|; ");
    EXPECT_EQ(outcome_of([] { return dak_app_oa_print_mode(0x100), 0; }).log, "; ");
    EXPECT_EQ(
        outcome_of([&] { return dak_app_oa_print_h263_2429_params(&h263), 0; }).log,
        "SQCIF=1;|QCIF=2;|CIF=3;|CIF4=4;|CIF16=65535;|"
        "CUSTOM=352, -288, 1;|F=1;|I=1;|J=1;|T=1;|K=4;|N=0;|P=1,2,3,4;|PAR=12;|CPCF=1.2.3;|BPP=24;|HRD=1;");
    const h263_params none = {};
    EXPECT_EQ(outcome_of([&] {
                  dak_app_oa_print_h263_2429_params(&none), dak_app_oa_print_h263_2429_params(nullptr);
                  dak_app_oa_print_dtx_attr(nullptr), dak_app_oa_print_precondition_attr(nullptr);
                  return 0;
              }),
              outcome());
}

} // namespace
