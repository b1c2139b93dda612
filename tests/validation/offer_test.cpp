#include "validation_test.h"

#include "oa/validate_address.h"
#include "oa/validate_groups.h"
#include "oa/validate_offer.h"

using namespace validation;

namespace {

using OfferValidation = PlatformTest;

const char unknown_address[] =
    "dak_app_oa_validate_ipaddress: Unknown                             address type  \n";
const char null_offer[] = "dak_app_oa_validate_offer_params: null                            params\n";
const char origin[] = "dak_app_oa_validate_modified_sdp: Invalid                             origin  \n";
const char same_mid[] = "oa_validate_offer_params: Invalid mid \n";
const char feedback[] = "validate_offer_params:Invalid profile for rtcp-fb";

verdict initial(session &s)
{
    return judge({&s}, [&] { return dak_app_oa_validate_initial_offer(s.get()); });
}

verdict modified(exchange &e)
{
    return judge({&e.earlier, &e.later},
                 [&] { return dak_app_oa_validate_modified_sdp(e.later.get(), e.earlier.get()); });
}

// Leaves telephone-event as the only format.
void leave_events(session &s)
{
    s.format(0) = s.format(1), s.format(0).has_rtpmap = 1;
    s[0].payload_numbers[0] = 101, s[0].num_formats = 1;
}

void silence(session &s) { s.format(1).params.tel_event.events_present = 0; }

void place(sdp_media_line &line, const char *address)
{
    line.connection_present = 1, strcpy(line.connection.net_type, "IN");
    strcpy(line.connection.address, address);
}

TEST_F(OfferValidation, FirstFailedCheckDecides)
{
#define PARAMS "dak_app_oa_validate_offer_params: Invalid"
    const std::vector<row<session>> rows = {
        {"version of 2^62", EDIT(s->origin_session_version = UINT64_C(1) << 62), 4,
         "dak_app_oa_validate_initial_offer: Invalid                          "
         "                          origin \n"},
        {"address", EDIT(s->connection_present = 1, s->connection.addr_type = 2), 2, unknown_address},
        {"bandwidth of 0", EDIT(s->bandwidth.entries[0].value = 0), 3,
         PARAMS " -               Bw zero bandwidth \n"},
        {"six groups", EDIT(s->num_groups = 6), 7, "validate_offer_params:Invalid no. of groups 6 \n"},
        {"no usable line", EDIT(s[0].valid = s[1].valid = 2), 5, "oa_validate_offer_params: No mlines \n"},
        {"no formats", EDIT(s[0].num_formats = 0), 5,
         "dak_app_oa_validate_initial_offer:Invalid                 mline-0 no formats listed  \n"},
        {"own address", EDIT(place(s[0], ""), s[0].connection.addr_type = 3), 2,
         "~" PARAMS " IP -                for mline 0 \n"},
        {"no address", EDIT(s->connection_present = 0), 1,
         "dak_app_oa_validate_offer_params:Invalid                    mline-0 no c= line  \n"},
        {"feedback", EDIT(s[0].rtcp_fb_present = 1), 13, feedback},
        {"events alone", leave_events, 11, PARAMS "                              media formant \n"},
        {"no rtpmap", EDIT(s.format(0).has_rtpmap = 0), 11,
         PARAMS "                                  media formant 0 \n"},
        {"parameters", EDIT(silence(s), s.format(0) = s.format(1), s.format(0).has_rtpmap = 1), 11,
         "supported DTMF events not mentionedvalidate_offer_params:Invalid fmtp params"},
        {"feedback for a format", EDIT(s.format(0).rtcp_fb_present = 1), 13, feedback},
        {"next format", EDIT(s.format(1).has_rtpmap = 0), 11, "~ media formant 1 \n"},
        {"ptime of 0", EDIT(s[0].ptime = 0), 12, PARAMS "                                  ptime \n"},
        {"preconditions", EDIT(s[0].precond_present = s[0].num_preconds = 1), 14,
         "dak_app_oa_check_mline_preconds:PCD attr err\n"},
        {"no mid", EDIT(s[0].mid_present = 0), 8, "oa_validate_offer_params: Invalid mid/groups \n"},
        {"mid twice", EDIT(s[1].port = 1, strcpy(s[1].mid, "voice")), 8, same_mid},
        {"semantics", EDIT(s->groups[0].semantics = 2), 7,
         "validate_group_semantics:Invalid grp semantics\n"},
        {"empty group", EDIT(s->groups[0].semantics = 1, s->groups[0].num_mids = 0), 7,
         "validate_offer_params:0 mids in offer \n"},
        {"rejected line in a group", EDIT(s[1].port = 0), 7,
         "validate_offer_params:mline with          port = 0 in group mline 1 \n"},
    };
#undef PARAMS
    expect_rows(rows, grouped, initial, true);
}

TEST_F(OfferValidation, Boundaries)
{
    // A row that is valid may change what many checks look at.
    const std::vector<row<session>> rows = {
        {"nothing given",
         EDIT(s->origin_present = s->time_present = s->bandwidth.present = s[0].ptime_present = s[0].ptime =
                  0,
              s->start_time = 1, s->bandwidth.entries[0].value = s->connection_present = 0, s->num_groups = 5,
              s->origin_session_version = (UINT64_C(1) << 62) - 1, place(s[0], "a"), place(s[1], "b")),
         0},
        {"fifth group", EDIT(s->num_groups = 5, std::swap(s->groups[0], s->groups[4]), s[0].mid_present = 2),
         8, "~/groups \n"},
        {"feedback over RTP/AVPF", EDIT(s[0].rtcp_fb_present = 1, s[0].transport = SDP_RTP_AVPF), 0},
        {"feedback not marked by 1", EDIT(s[0].rtcp_fb_present = 2), 0},
        {"mid of a rejected line, no groups",
         EDIT(s->num_groups = s[0].port = s[0].mid_present = s[0].mid[0] = s[1].mid[0] = 0), 8, same_mid},
        {"no lines", EDIT(s.resize(0)), 5, "oa_validate_offer_params: No mlines \n"},
        {"no array", EDIT(s->mlines = nullptr), 15, null_offer},
        {"2^63", EDIT(s->origin_session_version = UINT64_C(1) << 63), 0},
        {"95, no rtpmap", EDIT(s[0].payload_numbers[1] = 95, s.format(1).has_rtpmap = 0), 11,
         "~formant 1 \n"},
        {"95, no events", EDIT(s[0].payload_numbers[1] = 95, silence(s)), 11, "~fmtp params"},
        {"20 formats", EDIT(s[0].num_formats = 20), 0},
        {"mid without end twice", EDIT(fill(s[0].mid, 'm'), fill(s[1].mid, 'm')), 8, same_mid},
        {"FID beyond", EDIT(s->groups[0] = {1, 2, 1, {0, 20}}), 7, "~FID group semantic \n"},
        {"94 needs no rtpmap, nor events",
         EDIT(s[0].payload_numbers[1] = 94, s.format(1).has_rtpmap = 0, silence(s)), 0},
        {"absent format and parameters",
         EDIT(silence(s), s.format(0) = s.format(1), s.format(0).has_rtpmap = 1, s.format(0).present = 2,
              s.format(1).params.frame.fmtp_present = 2),
         0},
        {"recvonly by the line",
         EDIT(s->direction = 2, s[0].direction = s[0].direction_present = 1, silence(s)), 11, "~fmtp params"},
        {"40 formats", EDIT(s[0].num_formats = 40), 11, "~ media formant 20 \n"},
    };
    expect_rows(rows, grouped, initial);
    expect_verdict("null", call(dak_app_oa_validate_initial_offer, nullptr), 15,
                   "dak_app_oa_validate_initial_offer: null                            params\n");
    expect_verdict("null", call(dak_app_oa_validate_offer_params, nullptr), 15, null_offer);
}

TEST_F(OfferValidation, Modified)
{
    const char null[] = "dak_app_oa_validate_modified_sdp: Null                             params  \n";
    const std::vector<row<exchange>> in_order = {
        {"version skipped", EDIT(s.later->origin_session_version = 9), 4, origin},
        {"line gone", EDIT(s.later->num_mlines = 1), 5, origin},
        {"common check", EDIT(s.later[0].ptime = 0), 12, "~ ptime \n"},
        {"codec changed", EDIT(s.later.format(0).codec_id = 99), 11},
        {"mid", EDIT(strcpy(s.later[0].mid, "speech")), 8,
         "validate_modified_sdp:Mids in mod-offer dont         match with the prev-offer "
         "prev_tag voice mod_tag speech\n"},
        {"next line", EDIT(s.later[1].formats[0].codec_id = 98), 11},
    };
    expect_rows(in_order, unchanged, modified, true);
    const std::vector<row<exchange>> rows = {
        {"next version and a line more",
         EDIT(s.later->origin_session_version = 8, s.later.resize(3), strcpy(s.later[2].mid, "more")), 0},
        {"versions wrap",
         EDIT(s.earlier->origin_session_version = ~UINT64_C(0), s.later->origin_session_version = 0), 0},
        {"only the first match", EDIT(s.later.format(1).codec_id = 99), 0},
        {"mid without end", EDIT(s.earlier[0].mid[0] = 0, fill(s.later[0].mid, 'm')), 8,
         "~prev_tag  mod_tag mmmmmmmmmmmmmmmmmmmmm\n"},
        {"no array before", EDIT(s.earlier->mlines = nullptr), 15, null},
    };
    expect_rows(rows, unchanged, modified);
    session s = grouped();
    expect_verdict("null", call(dak_app_oa_validate_modified_sdp, s.get(), nullptr), 15, null);
    expect_verdict("null", call(dak_app_oa_validate_modified_sdp, nullptr, s.get()), 15, null);
}

TEST_F(OfferValidation, Address)
{
    const char too_long[] = "src str len exceeded dst str len256 \n";
    const std::vector<row<sdp_address>> rows = {
        {"longer network type, any text",
         EDIT(fill(s.net_type, 'x'), memcpy(s.net_type, "IN", 2), strcpy(s.address, "any")), 0},
        {"255 characters", EDIT(fill(s.address, '1'), s.address[255] = 0), 0},
        {"256 characters", EDIT(fill(s.address, '1')), 2, too_long},
        {"256 of IPv6", EDIT(fill(s.address, '1'), s.addr_type = 1), 0},
    };
    expect_rows(
        rows, [] { return grouped()->connection; },
        [](sdp_address &a) { return call(dak_app_oa_validate_ipaddress, &a); });
    expect_verdict("null", call(dak_app_oa_validate_ipaddress, nullptr), 15,
                   "~: Null                             params  \n");
    expect_verdict("null", call(dak_app_oa_validate_ipv4_addr, nullptr), 15,
                   "~_ipv4_addr: Null                             params  \n");
    expect_verdict("null", call(dak_app_oa_validate_ipv6_addr, nullptr), 15);
}

TEST_F(OfferValidation, EffectiveDirection)
{
    const uint8_t rows[][5] = {{1, 4, 1, 2, 4}, {2, 1, 0, 0, 1}, {0, 1, 1, 2, 2},
                               {0, 1, 0, 2, 3}, {1, 0, 1, 2, 3}, {0, 0, 1, 0, 3}};
    session s = grouped();
    for (const auto &[in_line, line, in_session, whole, expected] : rows) {
        s[0].direction_present = in_line, s[0].direction = line;
        s->direction_present = in_session, s->direction = whole;
        EXPECT_EQ(dak_app_oa_get_chl_direction(&s[0], s.get()), expected) << int{line} << int{whole};
    }
    const char null[] = "dak_app_oa_get_chl_direction: Null params";
    expect_verdict("null", call(dak_app_oa_get_chl_direction, &s[0], nullptr), 0, null);
    expect_verdict("null", call(dak_app_oa_get_chl_direction, nullptr, s.get()), 0, null);
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
    }
    const session s = grouped();
    expect_verdict("null", call(validate, s.get(), nullptr), 15, "~params\n");
    expect_verdict("null", call(validate, nullptr, s->groups), 15, "~params\n");
}

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
    const char fid[] = GROUP "          for FID group semantic \n";
    const char too_long[] = "len of str printed exceeded dst str len256 \n";
#undef GROUP
    expect_groups(
        {
            {"LS of two kinds", {1, 2, 0, {0, 1}}, 0},
            {"LS of one", {1, 1, 0, {0}}, 7, one},
            {"LS of two voices", {1, 2, 0, {0, 2}}, 7, voices},
            {"LS of a message", {1, 2, 0, {1, 0}}, 7, message, EDIT(s[0].media_type = 4)},
            {"LS beyond the lines", {1, 2, 0, {20, 1}}, 7, "~media1 6, media2 1 no. of mids 2 \n"},
            {"FID of one, anywhere", {1, 1, 1, {255}}, 0, "", no_array},
            {"FID, two", {1, 2, 1, {0, 2}}, 0, "", EDIT(place(s[0], "a"), place(s[2], "b"))},
            {"FID, equal", {1, 2, 1, {0, 2}}, 7, equal, EDIT(place(s[0], "a"), place(s[2], "a"))},
            {"FID, two ports", {1, 2, 1, {0, 2}}, 0, "", EDIT(s[2].port = 40002)},
            {"FID, no address", {1, 2, 1, {0, 2}}, 7, fid, EDIT(place(s[0], "a"), s->connection_present = 0)},
            {"FID, last two", {1, 3, 1, {0, 2, 3}}, 7, same, EDIT(place(s[0], "a"))},
            {"FID, endless address", {1, 2, 1, {0, 2}}, 7, too_long, endless},
            {"FID of 21", {1, 21, 1, {0, 1}}, 7, fid},
            {"no array, LS", {1, 2, 0, {0, 1}}, 15, null, no_array},
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
    const char used_0[] =
        "validate_offer_params:mline used in              2 groups with same semantics mline 0 semantics 1\n";
    expect_groups(
        {
            {"others, also in empty and later groups", {1, 4, 1, {2, 3, 6, 8}}, 0},
            {"rejected", {1, 2, 1, {2, 1}}, 7, "~ in group mline 1 \n", EDIT(s[1].port = 0)},
            {"beyond the lines", {1, 1, 1, {20}}, 7, "~ port = 0 in group mline 20 \n"},
            {"twice and in an earlier group", {1, 2, 1, {0, 0}}, 7, used_0},
            {"in an absent group", {1, 1, 1, {5}}, 7, "~ same semantics mline 5 semantics 1\n"},
            {"twice", {1, 3, 1, {2, 3, 2}}, 7, "repeated mids 2 in group \n"},
            {"21", {1, 21, 0, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19}}, 7},
            {"no array", {1, 1, 1, {2}}, 15, null, no_array},
        },
        [](const sdp_container *container, const sdp_group *group) {
            return dak_app_oa_validate_group_mids(container, group, 3);
        });
}

} // namespace
