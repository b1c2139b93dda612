#include "validation_test.h"

#include "oa/validate_address.h"
#include "oa/validate_groups.h"
#include "oa/validate_offer.h"

using namespace validation;

namespace {

using OfferValidation = PlatformTest;

const char unknown_address[] =
    "dak_app_oa_validate_ipaddress: Unknown                             address type  \n";
const char long_address[] = "src str len exceeded dst str len256 \n";
const char null_offer[] = "dak_app_oa_validate_offer_params: null                            params\n";
const char origin[] = "dak_app_oa_validate_modified_sdp: Invalid                             origin  \n";
const char no_mid[] = "oa_validate_offer_params: Invalid mid/groups \n";
const char same_mid[] = "oa_validate_offer_params: Invalid mid \n";

verdict initial(session &s) { return call(dak_app_oa_validate_initial_offer, s.get()); }

verdict modified(exchange &e)
{
    return judge({&e.earlier, &e.later},
                 [&] { return dak_app_oa_validate_modified_sdp(e.later.get(), e.earlier.get()); });
}

// Leaves telephone-event as the only format.
void leave_events(session &s)
{
    s.format(0) = s.format(1);
    s.format(0).has_rtpmap = 1;
    s[0].payload_numbers[0] = 101;
    s[0].num_formats = 1;
}

void unmap(session &s, uint32_t number)
{
    s[0].payload_numbers[0] = number;
    s.format(0).has_rtpmap = 0;
}

void silence(session &s) { s.format(1).params.tel_event.events_present = 0; }

void place(sdp_media_line &line, const char *address)
{
    line.connection_present = 1;
    strcpy(line.connection.net_type, "IN");
    strcpy(line.connection.address, address);
}

TEST_F(OfferValidation, FirstFailedCheckDecides)
{
    const table<session> rows = {
        {"version of 2^62", [](auto &s) { s->origin_session_version = UINT64_C(1) << 62; }, 4,
         "dak_app_oa_validate_initial_offer: Invalid                          "
         "                          origin \n"},
        {"address", [](auto &s) { s->connection_present = 1, s->connection.addr_type = 2; }, 2,
         unknown_address},
        {"bandwidth of 0", [](auto &s) { s->bandwidth.entries[0].value = 0; }, 3,
         "dak_app_oa_validate_offer_params: Invalid -               Bw zero bandwidth \n"},
        {"six groups", [](auto &s) { s->num_groups = 6; }, 7,
         "validate_offer_params:Invalid no. of groups 6 \n"},
        {"no usable line", [](auto &s) { s[0].valid = s[1].valid = 2; }, 5,
         "oa_validate_offer_params: No mlines \n"},
        {"no formats", [](auto &s) { s[0].num_formats = 0; }, 5,
         "dak_app_oa_validate_initial_offer:Invalid                 mline-0 no formats listed  \n"},
        {"own address", [](auto &s) { place(s[0], ""), s[0].connection.addr_type = 3; }, 2,
         "dak_app_oa_validate_ipaddress: Unknown                             address type  \n"
         "dak_app_oa_validate_offer_params: Invalid IP -                for mline 0 \n"},
        {"no address", [](auto &s) { s->connection_present = 0; }, 1,
         "dak_app_oa_validate_offer_params:Invalid                    mline-0 no c= line  \n"},
        {"feedback", [](auto &s) { s[0].rtcp_fb_present = 1; }, 13,
         "validate_offer_params:Invalid profile for rtcp-fb"},
        {"events alone", leave_events, 11,
         "dak_app_oa_validate_offer_params: Invalid                              media formant \n"},
        {"no rtpmap", [](auto &s) { s.format(0).has_rtpmap = 0; }, 11,
         "dak_app_oa_validate_offer_params: Invalid                                  media formant 0 \n"},
        {"parameters", [](auto &s) { silence(s), s.format(0) = s.format(1), s.format(0).has_rtpmap = 1; }, 11,
         "supported DTMF events not mentionedvalidate_offer_params:Invalid fmtp params"},
        {"feedback for a format", [](auto &s) { s.format(0).rtcp_fb_present = 1; }, 13,
         "validate_offer_params:Invalid profile for rtcp-fb"},
        {"next format", [](auto &s) { s.format(1).has_rtpmap = 0; }, 11, "~ media formant 1 \n"},
        {"ptime of 0", [](auto &s) { s[0].ptime = 0; }, 12,
         "dak_app_oa_validate_offer_params: Invalid                                  ptime \n"},
        {"preconditions",
         [](auto &s) { s[0].precond_present = s[0].num_preconds = 1, s[0].preconds[0] = current(1, 3); }, 14},
        {"no mid", [](auto &s) { s[0].mid_present = 0; }, 8, no_mid},
        {"mid twice", [](auto &s) { s[1].port = 1, strcpy(s[1].mid, "voice"); }, 8, same_mid},
        {"semantics", [](auto &s) { s->groups[0].semantics = 2; }, 7,
         "validate_group_semantics:Invalid grp semantics\n"},
        {"empty group", [](auto &s) { s->groups[0].semantics = 1, s->groups[0].num_mids = 0; }, 7,
         "validate_offer_params:0 mids in offer \n"},
        {"rejected line in a group", [](auto &s) { s[1].port = 0; }, 7,
         "validate_offer_params:mline with          port = 0 in group mline 1 \n"},
    };
    expect_in_order(rows, grouped, initial);
}

TEST_F(OfferValidation, Boundaries)
{
    const table<session> rows = {
        {"as parsed", [](auto &) {}, 0},
        {"2^62 - 1", [](auto &s) { s->origin_session_version = (UINT64_C(1) << 62) - 1; }, 0},
        {"2^63", [](auto &s) { s->origin_session_version = UINT64_C(1) << 63; }, 0},
        {"2^64 - 1", [](auto &s) { s->origin_session_version = UINT64_MAX; }, 0},
        {"no origin", [](auto &s) { s->origin_present = 0; }, 0},
        {"stop time", [](auto &s) { s->stop_time = 7; }, 0,
         "dak_app_oa_validate_offer_params: Invalid  -           time  0-7 \n"},
        {"NTP times", [](auto &s) { s->start_time = 3950000000, s->stop_time = ~0U; }, 0,
         "~ -344967296--1 \n"},
        {"time not given", [](auto &s) { s->time_present = 0, s->start_time = 1; }, 0},
        {"bandwidth not given", [](auto &s) { s->bandwidth = {}; }, 0},
        {"five groups", [](auto &s) { s->num_groups = 5; }, 0},
        {"fifth",
         [](auto &s) { s->num_groups = 5, std::swap(s->groups[0], s->groups[4]), s[0].mid_present = 2; }, 8,
         no_mid},
        {"sixth group is none", [](auto &s) { s->num_groups = 0, s[0].mid_present = 0; }, 0},
        {"group not in use",
         [](auto &s) { s->groups[0].present = 2, s->groups[0].semantics = 9, s[0].mid_present = 0; }, 0},
        {"group beyond the lines", [](auto &s) { s->groups[0].mline_index[1] = 2; }, 7,
         "~media1 0, media2 6 no. of mids 2 \n"},
        {"mid twice, no groups", [](auto &s) { s->num_groups = 0, strcpy(s[1].mid, "voice"); }, 8, same_mid},
        {"mid empty twice",
         [](auto &s) { s->num_groups = s[0].mid_present = 0, s[0].mid[0] = s[1].mid[0] = 0; }, 8, same_mid},
        {"of a rejected line", [](auto &s) { s->num_groups = s[0].port = 0, strcpy(s[1].mid, "voice"); }, 8,
         same_mid},
        {"mid without end twice", [](auto &s) { fill(s[0].mid, 'm'), fill(s[1].mid, 'm'); }, 8, same_mid},
        {"21st letter", [](auto &s) { fill(s[0].mid, 'm'), fill(s[1].mid, 'm'), s[1].mid[20] = 'n'; }, 0},
        {"all rejected", [](auto &s) { s->num_groups = s[0].port = s[1].port = s[0].num_formats = 0; }, 0},
        {"invalid line", [](auto &s) { s->num_groups = s[0].valid = s[0].num_formats = 0; }, 0},
        {"no lines", [](auto &s) { s.resize(0); }, 5, "oa_validate_offer_params: No mlines \n"},
        {"no array", [](auto &s) { s->mlines = nullptr; }, 15, null_offer},
        {"no array, 255 groups", [](auto &s) { s->mlines = nullptr, s->num_groups = 255; }, 7,
         "~groups 255 \n"},
        {"94 without rtpmap", [](auto &s) { unmap(s, 94); }, 0},
        {"95 without rtpmap", [](auto &s) { unmap(s, 95); }, 11, "~formant 0 \n"},
        {"96 without rtpmap", [](auto &s) { unmap(s, 96); }, 11, "~formant 0 \n"},
        {"94 has no events", [](auto &s) { s[0].payload_numbers[1] = 94, silence(s); }, 0},
        {"95 has", [](auto &s) { s[0].payload_numbers[1] = 95, silence(s); }, 11, "~fmtp params"},
        {"absent format", [](auto &s) { s.format(1).present = 2, silence(s); }, 0},
        {"absent parameters", [](auto &s) { s.format(1).params.frame.fmtp_present = 2, silence(s); }, 0},
        {"sendonly by the session", [](auto &s) { s->direction = 2, silence(s); }, 0},
        {"recvonly by the line",
         [](auto &s) { s->direction = 2, s[0].direction = s[0].direction_present = 1, silence(s); }, 11,
         "~fmtp params"},
        {"events alone, other key", [](auto &s) { leave_events(s), s.format(0).codec_id = 112; }, 0},
        {"events alone, other mark", [](auto &s) { leave_events(s), s.format(0).has_rtpmap = 2; }, 0},
        {"events alone, image", [](auto &s) { leave_events(s), s[0].media_type = 5, s->num_groups = 0; }, 0},
        {"20 formats", [](auto &s) { s[0].num_formats = 20; }, 0},
        {"40 formats", [](auto &s) { s[0].num_formats = 40; }, 11, "~ media formant 20 \n"},
        {"feedback marks", [](auto &s) { s[0].rtcp_fb_present = s.format(0).rtcp_fb_present = 2; }, 0},
        {"RTP/AVPF", [](auto &s) { s[0].rtcp_fb_present = s.format(0).rtcp_fb_present = s[0].transport = 1; },
         0},
        {"ptime not given", [](auto &s) { s[0].ptime_present = s[0].ptime = 0; }, 0},
        {"own addresses", [](auto &s) { s->connection_present = 0, place(s[0], "a"), place(s[1], "b"); }, 0},
    };
    expect_each(rows, grouped, initial);
    expect_verdict("null", call(dak_app_oa_validate_initial_offer, nullptr), 15,
                   "dak_app_oa_validate_initial_offer: null                            params\n");
    expect_verdict("null", call(dak_app_oa_validate_offer_params, nullptr), 15, null_offer);
}

TEST_F(OfferValidation, Modified)
{
    const auto make = [] { return exchange{grouped(), grouped()}; };
    const char null[] = "dak_app_oa_validate_modified_sdp: Null                             params  \n";
    expect_in_order<exchange>(
        {
            {"no origin", [](auto &e) { e.later->origin_present = 0; }, 4, origin},
            {"version skipped", [](auto &e) { e.later->origin_session_version = 9; }, 4, origin},
            {"line gone", [](auto &e) { e.later->num_mlines = 1; }, 5, origin},
            {"common check", [](auto &e) { e.later[0].ptime = 0; }, 12, "~ ptime \n"},
            {"codec changed", [](auto &e) { e.later.format(0).codec_id = 99; }, 11},
            {"mid", [](auto &e) { strcpy(e.later[0].mid, "speech"); }, 8,
             "validate_modified_sdp:Mids in mod-offer dont         match with the prev-offer "
             "prev_tag voice mod_tag speech\n"},
            {"next line", [](auto &e) { e.later[1].formats[0].codec_id = 98; }, 11},
        },
        make, modified);
    expect_each<exchange>(
        {
            {"same version", [](auto &) {}, 0},
            {"next version", [](auto &e) { e.later->origin_session_version = 8; }, 0},
            {"older version", [](auto &e) { e.later->origin_session_version = 6; }, 4, origin},
            {"versions wrap",
             [](auto &e) {
                 e.earlier->origin_session_version = ~UINT64_C(0), e.later->origin_session_version = 0;
             },
             0},
            {"2^62 is no limit",
             [](auto &e) {
                 e.earlier->origin_session_version = e.later->origin_session_version = UINT64_C(1) << 62;
             },
             0},
            {"no earlier origin", [](auto &e) { e.earlier->origin_present = 0; }, 4, origin},
            {"line added", [](auto &e) { e.later.resize(3), strcpy(e.later[2].mid, "more"); }, 0},
            {"only the first match", [](auto &e) { e.later.format(1).codec_id = 99; }, 0},
            {"number moved away",
             [](auto &e) { e.later[0].payload_numbers[0] = 98, e.later.format(0).codec_id = 99; }, 0},
            {"no rtpmap before",
             [](auto &e) { e.earlier.format(0).has_rtpmap = 0, e.later.format(0).codec_id = 99; }, 0},
            {"mid added", [](auto &e) { e.earlier[0].mid[0] = 0; }, 8, "~prev_tag  mod_tag voice\n"},
            {"mid without end", [](auto &e) { fill(e.later[0].mid, 'm'); }, 8,
             "~mod_tag mmmmmmmmmmmmmmmmmmmmm\n"},
            {"mid dropped", [](auto &e) { e.later->num_groups = e.later[0].mid_present = 0; }, 0},
            {"40 formats before", [](auto &e) { e.earlier[0].num_formats = 40; }, 0},
            {"no array", [](auto &e) { e.later->mlines = nullptr; }, 15, null_offer},
            {"no array before", [](auto &e) { e.earlier->mlines = nullptr; }, 15, null},
        },
        make, modified);
    session s = grouped();
    expect_verdict("null", call(dak_app_oa_validate_modified_sdp, s.get(), nullptr), 15, null);
    expect_verdict("null", call(dak_app_oa_validate_modified_sdp, nullptr, s.get()), 15, null);
}

TEST_F(OfferValidation, Address)
{
    const table<sdp_address> rows = {
        {"longer network type", [](auto &a) { fill(a.net_type, 'x'), memcpy(a.net_type, "IN", 2); }, 0},
        {"half a network type", [](auto &a) { a.net_type[1] = 0; }, 2, unknown_address},
        {"small letters", [](auto &a) { strcpy(a.net_type, "in"); }, 2, unknown_address},
        {"address type unset", [](auto &a) { a.addr_type = 2; }, 2, unknown_address},
        {"any text", [](auto &a) { strcpy(a.address, "not an address"); }, 0},
        {"255 characters", [](auto &a) { fill(a.address, '1'), a.address[255] = 0; }, 0},
        {"256 characters", [](auto &a) { fill(a.address, '1'); }, 2, long_address},
        {"256 of IPv6", [](auto &a) { fill(a.address, '1'), a.addr_type = 1; }, 0},
    };
    expect_each(
        rows, [] { return grouped()->connection; },
        [](sdp_address &a) { return call(dak_app_oa_validate_ipaddress, &a); });
    expect_verdict("null", call(dak_app_oa_validate_ipaddress, nullptr), 15,
                   "dak_app_oa_validate_ipaddress: Null                             params  \n");
    expect_verdict("null text", call(dak_app_oa_validate_ipv4_addr, nullptr), 15,
                   "dak_app_oa_validate_ipv4_addr: Null                             params  \n");
    expect_verdict("null IPv6 text", call(dak_app_oa_validate_ipv6_addr, nullptr), 15, "");
}

TEST_F(OfferValidation, EffectiveDirection)
{
    const struct {
        uint8_t in_line;
        uint32_t line;
        uint8_t in_session;
        uint32_t session, expected;
    } rows[] = {{1, 4, 1, 2, 4}, {2, 1, 0, 0, 1}, {0, 1, 1, 2, 2},
                {0, 1, 0, 2, 3}, {1, 0, 1, 2, 3}, {0, 0, 1, 0, 3}};
    session s = grouped();
    for (const auto &row : rows) {
        s[0].direction_present = row.in_line, s[0].direction = row.line;
        s->direction_present = row.in_session, s->direction = row.session;
        EXPECT_EQ(dak_app_oa_get_chl_direction(&s[0], s.get()), row.expected) << row.line << row.session;
    }
    for (const auto &[line, whole] : {std::pair(&s[0], (sdp_container *)nullptr), {nullptr, s.get()}})
        expect_verdict("null", call(dak_app_oa_get_chl_direction, line, whole), 0,
                       "dak_app_oa_get_chl_direction: Null params");
}

struct group_row {
    const char *label;
    sdp_group group; // presence, number of mids, semantics, lines
    uint32_t code;
    const char *reasons = "";
    void (*edit)(session &) = [](session &) {};
};

// The group stands fourth. Line 1 is video; all others are audio and share a port.
template <class Validate> void expect_groups(std::initializer_list<group_row> rows, Validate validate)
{
    for (const group_row &row : rows) {
        session s = grouped();
        s.resize(20);
        const sdp_group group = {1, 2, 1, {0, 1}}, absent = {0, 1, 1, {5}}, empty = {1, 0, 1, {6}};
        for (std::size_t each = 0; const sdp_group &next : {group, absent, empty, row.group, {1, 1, 1, {8}}})
            s->groups[each++] = next;
        row.edit(s);
        expect_verdict(row.label, judge({&s}, [&] { return validate(s.get(), &s->groups[3]); }), row.code,
                       row.reasons);
        expect_verdict("null", judge({&s}, [&] { return validate(s.get(), nullptr); }), 15, "~params\n");
        expect_verdict("null", judge({}, [&] { return validate(nullptr, &s->groups[3]); }), 15, "~params\n");
    }
}

void as_session(session &s) { s[1].port = s[0].port, place(s[0], "192.0.2.1"); }
void nowhere(session &s) { place(s[0], "a"), s->connection_present = 0; }
void endless(session &s) { fill(s->connection.address, '1'); }
void no_array(session &s) { s->mlines = nullptr; }

TEST_F(OfferValidation, GroupSemantics)
{
#define GROUP "validate_group_semantics:Invalid param"
    const char null[] = "dak_app_oa_validate_group_semantics: null                            params\n";
    const char one[] = GROUP "s for LS          group semantic number of mids 1 \n";
    const char voices[] = GROUP "s                for LS group semantic media 0, no. of mids 2\n";
    const char message[] = GROUP "s for LS          group semantic media1 1, media2 4 no. of mids 2 \n";
    const char same[] = GROUP "            for FID group semantic: streams have same IP 192.0.2.1\n";
    const char equal[] = GROUP "          for FID group semantic same ip for mlines 0 n 2 ip a \n";
    const char too_long[] = "len of str printed exceeded dst str len256 \n";
    const char fid[] = GROUP "          for FID group semantic \n";
#undef GROUP
    expect_groups(
        {
            {"LS of two kinds", {1, 2, 0, {0, 1}}, 0},
            {"LS of two kinds, turned", {1, 2, 0, {1, 0}}, 0},
            {"LS of one", {1, 1, 0, {0}}, 7, one},
            {"LS of 255", {1, 255, 0, {0, 1}}, 7, "~number of mids 255 \n"},
            {"LS of two voices", {1, 2, 0, {0, 2}}, 7, voices},
            {"LS of a message", {1, 2, 0, {1, 0}}, 7, message, [](auto &s) { s[0].media_type = 4; }},
            {"LS beyond the lines", {1, 2, 0, {20, 1}}, 7, "~media1 6, media2 1 no. of mids 2 \n"},
            {"FID of one, anywhere", {1, 1, 1, {255}}, 0},
            {"FID, two ports", {1, 2, 1, {0, 1}}, 0, "", [](auto &s) { s->connection_present = 0; }},
            {"FID, one address", {1, 2, 1, {0, 2}}, 7, same},
            {"FID, two", {1, 2, 1, {0, 2}}, 0, "", [](auto &s) { place(s[0], "a"), place(s[2], "b"); }},
            {"FID, equal", {1, 2, 1, {0, 2}}, 7, equal, [](auto &s) { place(s[0], "a"), place(s[2], "a"); }},
            {"FID, session's", {1, 2, 1, {1, 0}}, 7, "~mlines 1 n 0 ip 192.0.2.1 \n", as_session},
            {"FID, other than the session's", {1, 2, 1, {0, 2}}, 0, "", [](auto &s) { place(s[0], "a"); }},
            {"FID, no address", {1, 2, 1, {0, 2}}, 7, fid, nowhere},
            {"FID, last two", {1, 3, 1, {0, 2, 3}}, 7, same, [](auto &s) { place(s[0], "a"); }},
            {"FID, endless address", {1, 2, 1, {0, 2}}, 7, too_long, endless},
            {"FID beyond the lines", {1, 2, 1, {0, 20}}, 7, fid},
            {"FID of 21", {1, 21, 1, {0, 1}}, 7, fid},
            {"other semantics", {1, 2, 2, {0, 1}}, 7, "~:Invalid grp semantics\n"},
            {"no array", {1, 2, 0, {0, 1}}, 15, null, no_array},
            {"no array, no need", {1, 1, 1, {0}}, 0, "", no_array},
        },
        dak_app_oa_validate_group_semantics);
    session s = grouped();
    s.resize(3), endless(s), s->groups[0] = {1, 2, 1, {0, 2}};
    EXPECT_EQ(call(dak_app_oa_validate_group_semantics, s.get(), s->groups).code, 7U);
    EXPECT_EQ(standin::assert_count(), 1U);
}

TEST_F(OfferValidation, GroupMids)
{
    const char null[] = "dak_app_oa_validate_group_mids: null                            params\n";
    const char used_0[] = "validate_offer_params:mline used in              2 groups with same semantics "
                          "mline 0 semantics 1\n";
    expect_groups(
        {
            {"others", {1, 2, 1, {2, 3}}, 0},
            {"none", {1, 0, 1, {0}}, 0},
            {"rejected", {1, 2, 1, {2, 1}}, 7, "~ in group mline 1 \n", [](auto &s) { s[1].port = 0; }},
            {"beyond the lines", {1, 1, 1, {20}}, 7, "~ port = 0 in group mline 20 \n"},
            {"in an earlier group", {1, 2, 1, {2, 0}}, 7, used_0},
            {"in an absent group", {1, 1, 1, {5}}, 7, "~ same semantics mline 5 semantics 1\n"},
            {"in an empty group", {1, 1, 1, {6}}, 0},
            {"in a later group", {1, 1, 1, {8}}, 0},
            {"other semantics", {1, 2, 0, {0, 1}}, 0},
            {"twice", {1, 3, 1, {2, 3, 2}}, 7, "repeated mids 2 in group \n"},
            {"twice and in an earlier group", {1, 2, 1, {0, 0}}, 7, used_0},
            {"21", {1, 21, 0, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19}}, 7},
            {"no array", {1, 1, 1, {2}}, 15, null, no_array},
            {"no array, no need", {1, 0, 1, {}}, 0, "", no_array},
        },
        [](const sdp_container *container, const sdp_group *group) {
            return dak_app_oa_validate_group_mids(container, group, 3);
        });
    session s = grouped();
    const auto as_first = [&] { return dak_app_oa_validate_group_mids(s.get(), s->groups, 0); };
    expect_verdict("first group", judge({&s}, as_first), 0, "");
}

} // namespace
