#include "validation_test.h"

#include "oa/precondition_table.h"
#include "oa/validate_preconditions.h"

using namespace validation;

namespace {

using PreconditionValidation = PlatformTest;
using entries = std::vector<sdp_precondition>;

enum : uint32_t { e2e = 1, local, remote };
enum : uint32_t { recv = 1, send, sendrecv, none = 5 };

const char attribute_error[] = "dak_app_oa_check_mline_preconds:PCD attr err\n";

sdp_precondition of_kind(uint32_t kind, sdp_precondition entry)
{
    entry.kind = kind;
    return entry;
}

sdp_precondition of_type(uint32_t type, sdp_precondition entry)
{
    entry.precond_type = type;
    return entry;
}

TEST_F(PreconditionValidation, Offer)
{
    const auto both = [](uint32_t strength, uint32_t direction) {
        return entries{current(local, none), current(remote, none), desired(strength, local, direction),
                       desired(1, remote, sendrecv)};
    };
    entries ten = both(4, sendrecv);
    ten.resize(10, of_kind(3, current(7, 9)));
    entries eleven = ten, thrice = both(4, send), half = both(4, sendrecv);
    half.push_back(current(e2e, none));
    eleven.push_back(ten[0]);
    thrice.insert(thrice.end(), 2, desired(3, local, recv));
    const struct {
        const char *label;
        entries given;
        uint32_t direction, code;
        const char *reasons = "";
    } rows[] = {
        {"e2e", {current(e2e, none), desired(4, e2e, sendrecv)}, 3, 0},
        {"e2e, two desired", {desired(4, e2e, recv), desired(3, e2e, send), current(e2e, none)}, 3, 0},
        {"e2e, thrice",
         {current(e2e, none), desired(4, e2e, 1), desired(3, e2e, 2), desired(3, e2e, 5)},
         3,
         14},
        {"e2e, two current", {current(e2e, recv), current(e2e, send), desired(4, e2e, sendrecv)}, 3, 14},
        {"e2e, none current", {desired(4, e2e, sendrecv)}, 3, 14},
        {"e2e, none desired", {current(e2e, sendrecv)}, 3, 14},
        {"segmented", both(4, sendrecv), 3, 0},
        {"segmented, three desired", thrice, 3, 14},
        {"local alone", {current(local, none), desired(4, local, sendrecv)}, 3, 14},
        {"remote alone", {current(remote, none), desired(4, remote, sendrecv)}, 3, 14},
        {"segmented and half of e2e", half, 3, 14},
        {"sendonly, local recv needed", both(4, recv), 2, 14},
        {"recvonly, local send needed", both(4, send), 1, 14},
        {"sendonly, local send needed", both(4, send), 2, 0},
        {"recvonly, local recv needed", both(4, recv), 1, 0},
        {"sendonly, both needed", both(4, sendrecv), 2, 0},
        {"sendonly, local recv wished", both(3, recv), 2, 0},
        {"sendonly, needed of another type", {of_type(0, desired(4, local, recv))}, 2, 14},
        {"not counted", {of_type(0, current(local, 1)), of_kind(3, current(e2e, 1))}, 3, 0},
        {"type beyond qos", {of_type(2, current(e2e, 1)), of_type(3, desired(4, e2e, 1))}, 3, 0},
        {"confirmed with anything", {of_kind(3, current(0, 0))}, 3, 0},
        {"kind 0", {of_kind(0, current(e2e, 1))}, 3, 14, attribute_error},
        {"kind 4", {current(e2e, 1), of_kind(4, current(e2e, 1))}, 3, 14, attribute_error},
        {"status 0, desired", {desired(4, 0, 1)}, 3, 14, attribute_error},
        {"status 0, current", {current(0, 1)}, 3, 14, attribute_error},
        {"status 0, not counted", {of_type(0, current(0, 1))}, 3, 14, attribute_error},
        {"status 4", {desired(4, 4, 1)}, 3, 14, attribute_error},
        {"status 7", {current(7, 1)}, 3, 14, attribute_error},
        {"direction 9", {current(e2e, 9), desired(9, e2e, 9)}, 3, 0},
        {"contradiction before an error", {desired(4, local, recv), current(0, 1)}, 2, 14},
        {"10", ten, 3, 0},
        {"11", eleven, 3, 14, attribute_error},
        {"none", {}, 3, 0},
    };
    session s = grouped();
    for (const auto &row : rows) {
        s[0].precond_present = 2, s[0].num_preconds = static_cast<uint32_t>(row.given.size());
        std::copy_n(row.given.begin(), std::min(s[0].num_preconds, 10U), s[0].preconds);
        expect_verdict(row.label, call(dak_app_oa_validate_preconditions, &s[0], row.direction), row.code,
                       row.reasons);
    }
    s[0].precond_present = 0, s[0].num_preconds = 11;
    expect_verdict("absent", call(dak_app_oa_validate_preconditions, &s[0], 3), 0, "");
    expect_verdict("null", call(dak_app_oa_validate_preconditions, nullptr, 3), 15,
                   "dak_app_oa_validate_preconditions: Null params\n");
}

TEST_F(PreconditionValidation, Tabulation)
{
    const struct {
        const char *label;
        entries given;
        uint32_t code;
        const char *table = ""; // status, direction and strength, or 'c'
    } rows[] = {
        {"current", {current(e2e, recv), current(local, send), current(remote, none)}, 0, "11c 22c 35c "},
        {"both ways", {current(local, sendrecv), desired(4, remote, sendrecv)}, 0, "21c 22c 314 324 "},
        {"last one holds", {desired(4, local, sendrecv), desired(0, local, recv)}, 0, "224 "},
        {"not tabulated",
         {of_kind(3, current(0, 0)), of_type(0, current(7, 9)), current(1, 4), current(7, 4)},
         0},
        {"type beyond qos", {of_type(9, current(1, 1))}, 0, "11c "},
        {"kind 4", {current(1, 1), of_kind(4, current(1, 2))}, 14, "11c "},
        {"status 0", {of_type(0, current(0, 1))}, 14},
        {"direction 0", {of_type(0, desired(4, 1, 0))}, 14},
        {"status 4", {current(4, 1)}, 14},
        {"status 7", {desired(4, 7, 1)}, 14},
        {"direction 6", {current(1, 6)}, 14},
        {"direction 9", {desired(4, 3, 9)}, 14},
        {"11", entries(11, current(1, 1)), 14},
    };
    struct {
        uint8_t current[4][6];
        uint32_t desired[4][6];
    } got;
    for (const auto &row : rows) {
        memset(&got, 0xA5, sizeof got); // tabulation clears it
        const auto count = static_cast<uint32_t>(row.given.size());
        const entries given(row.given.begin(),
                            row.given.begin() + std::min(count, 10U)); // no 11th to be read
        expect_verdict(row.label,
                       call(dak_app_oa_fill_pcd_list, count, given.data(), got.current, got.desired),
                       row.code, row.code ? attribute_error : "");
        std::string table;
        for (uint32_t at = 0; at < 24; ++at) {
            const std::string place = std::to_string(at / 6) + std::to_string(at % 6);
            const uint32_t strength = got.desired[at / 6][at % 6];
            table += got.current[at / 6][at % 6] ? place + "c " : "";
            table += strength ? place + std::to_string(strength) + " " : "";
        }
        EXPECT_EQ(table, row.table) << row.label;
    }
    const entries one = {current(1, 1)};
    EXPECT_EQ(dak_app_oa_fill_pcd_list(0, nullptr, got.current, got.desired), 15U);
    EXPECT_EQ(dak_app_oa_fill_pcd_list(1, one.data(), nullptr, got.desired), 15U);
    EXPECT_EQ(dak_app_oa_fill_pcd_list(1, one.data(), got.current, nullptr), 15U);
}

uint32_t answered(const entries &answer, const entries &offer, uint32_t direction = sendrecv)
{
    const auto a = static_cast<uint32_t>(answer.size()), o = static_cast<uint32_t>(offer.size());
    return call(dak_app_oa_validate_ans_pcd, a, answer.data(), o, offer.data(), direction).code;
}

TEST_F(PreconditionValidation, StrengthsAreKept)
{
    const struct {
        uint32_t status, direction, to_status, to_direction;
    } mirrors[] = {{local, recv, remote, send}, {local, send, remote, recv}, {local, none, remote, recv},
                   {remote, recv, local, send}, {remote, send, local, recv}, {remote, none, local, recv}};
    for (const auto &[status, direction, to_status, to_direction] : mirrors) {
        for (uint32_t offered = 0; offered < 5; ++offered) {
            SCOPED_TRACE(testing::Message() << status << ' ' << direction << ' ' << offered);
            const entries offer = {desired(offered, status, direction)};
            for (uint32_t answer = 0; answer < 6; ++answer)
                EXPECT_EQ(answered({desired(answer, to_status, to_direction)}, offer),
                          answer >= offered ? 0U : 14U);
            const entries elsewhere = {desired(4, status, sendrecv), desired(4, e2e, sendrecv),
                                       desired(4, to_status, none), desired(4, to_status, 3 - to_direction)};
            EXPECT_EQ(answered(elsewhere, offer), offered == 0 ? 0U : 14U);
        }
    }
}

TEST_F(PreconditionValidation, Answer)
{
    const entries offer = {current(local, none), current(remote, none), desired(4, local, sendrecv),
                           desired(1, remote, sendrecv)};
    const auto answer = [](uint32_t strength, uint32_t reached) {
        return entries{current(local, none), current(remote, reached), desired(4, local, sendrecv),
                       desired(strength, remote, sendrecv)};
    };
    const struct {
        const char *label;
        entries answer, offer;
        uint32_t direction, code;
    } rows[] = {
        {"kept", answer(4, none), offer, sendrecv, 0},
        {"kept, inactive", answer(4, none), offer, 4, 0},
        {"mandatory, sendonly", answer(4, none), offer, send, 14},
        {"mandatory, recvonly", answer(4, none), offer, recv, 14},
        {"remote send, sendonly", {desired(4, remote, send)}, {}, send, 14},
        {"remote recv, sendonly", {desired(4, remote, recv)}, {}, send, 0},
        {"remote recv, recvonly", {desired(4, remote, recv)}, {}, recv, 14},
        {"remote send, recvonly", {desired(4, remote, send)}, {}, recv, 0},
        {"stronger than mandatory, recvonly", {desired(5, remote, recv)}, {}, recv, 0},
        {"weakened", answer(3, none), offer, sendrecv, 14},
        {"another status", answer(4, sendrecv), offer, sendrecv, 14},
        {"strength is unsigned", answer(~0U, none), offer, sendrecv, 0},
        {"e2e", {desired(4, e2e, 3)}, {desired(4, e2e, 3)}, sendrecv, 14},
        {"e2e, strength 0", {}, {desired(0, e2e, 3)}, sendrecv, 0},
        {"e2e, status", {}, {current(e2e, 3)}, sendrecv, 0},
        {"local recv", {current(remote, send)}, {current(local, recv)}, sendrecv, 0},
        {"local recv, not turned", {current(remote, recv)}, {current(local, recv)}, sendrecv, 14},
        {"local send", {current(remote, recv)}, {current(local, send)}, sendrecv, 0},
        {"local none", {current(remote, none)}, {current(local, none)}, sendrecv, 0},
        {"local sendrecv, half", {current(remote, send)}, {current(local, sendrecv)}, sendrecv, 14},
        {"local sendrecv", {current(remote, sendrecv)}, {current(local, sendrecv)}, sendrecv, 0},
        {"remote is not looked at", {}, {current(remote, sendrecv)}, sendrecv, 0},
        {"error in the answer", {current(7, 1)}, {}, sendrecv, 15},
        {"error in the offer", {}, {current(1, 9)}, sendrecv, 15},
    };
    for (const auto &row : rows) {
        entries given = row.answer, offered = row.offer;
        given.reserve(1), offered.reserve(1); // empty, but not null
        EXPECT_EQ(answered(given, offered, row.direction), row.code) << row.label;
    }
    EXPECT_EQ(dak_app_oa_validate_ans_pcd(0, nullptr, 1, offer.data(), 3), 15U);
    EXPECT_EQ(dak_app_oa_validate_ans_pcd(1, offer.data(), 0, nullptr, 3), 15U);
}

} // namespace
