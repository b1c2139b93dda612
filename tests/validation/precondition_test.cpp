#include "validation_test.h"

#include <map>

#include "oa/precondition_table.h"
#include "oa/validate_preconditions.h"

using namespace validation;

namespace {

using PreconditionValidation = PlatformTest;
using entries = std::vector<sdp_precondition>;
using lists = std::vector<std::string>;

// Types are e2e, local and remote; directions recv, send, both, and 5 for none.
enum : uint32_t { recv = 1, send, both };

const char attribute_error[] = "dak_app_oa_check_mline_preconds:PCD attr err\n";

TEST_F(PreconditionValidation, Offer)
{
    const std::string ten = "c15 d413 f79 f00 f00 f00 f00 f00 f00 f00";
    const struct {
        uint32_t direction, code;
        const char *reasons;
        lists offers;
    } rows[] = {
        {both, 0, "", {"c15 d413", "d411 d312 c15", "c25 c35 d423 d133", "c11/2 d411/3", "c19 d919"}},
        {both, 0, "", {"", "f00", "c21/0 f11", ten}},
        {both, 14, "", {"c15 d411 d312 d315", "c11 c12 d413", "d413", "c13", "c25 c35 d423 d321 d322 d133"}},
        {both, 14, "", {"c25 d423", "c35 d433", "c25 c35 d423 d133 c15"}},
        {both, 14, attribute_error, {"?11", "c11 x11", "d401", "c01/0", "d441", "c71", ten + " f00"}},
        {send, 14, "", {"c25 c35 d421 d133", "d421/0", "d421 c01"}},
        {send, 0, "", {"c25 c35 d422 d133", "c25 c35 d423 d133", "c25 c35 d321 d133"}},
        {recv, 14, "", {"c25 c35 d422 d133"}},
        {recv, 0, "", {"c25 c35 d421 d133"}},
    };
    session s = grouped();
    for (const auto &row : rows) {
        for (const std::string &offer : row.offers) {
            const entries given = preconditions(offer);
            s[0].precond_present = 2, s[0].num_preconds = static_cast<uint32_t>(given.size());
            std::copy_n(given.begin(), std::min(s[0].num_preconds, 10U), s[0].preconds);
            expect_verdict(offer, call(dak_app_oa_validate_preconditions, &s[0], row.direction), row.code,
                           row.reasons);
        }
    }
    s[0].precond_present = 0;
    expect_verdict("absent", call(dak_app_oa_validate_preconditions, &s[0], both), 0);
    expect_verdict("null", call(dak_app_oa_validate_preconditions, nullptr, both), 15,
                   "dak_app_oa_validate_preconditions: Null params\n");
}

TEST_F(PreconditionValidation, Tabulation)
{
    const std::string eleven = "c11 c11 c11 c11 c11 c11 c11 c11 c11 c11 c11";
    std::map<std::string, std::string> rows = {
        // what gives type, direction and strength, or 'c'; after a '!' up to an error
        {"c11 c22 c35", "11c 22c 35c "},
        {"c23 d433", "21c 22c 314 324 "},
        {"d423 d021", "224 "},
        {"f00 c79/0 c14 c74", ""},
        {"c11/9", "11c "},
        {"c11 x12", "!11c "}};
    for (const std::string &bad : lists{"c01/0", "d410/0", "c41", "d471", "c16", "d439", eleven})
        rows[bad] = "!";
    struct {
        uint8_t current[4][6];
        uint32_t desired[4][6];
    } got;
    for (const auto &[list, expected] : rows) {
        memset(&got, 0xA5, sizeof got); // tabulation clears it
        entries given = preconditions(list);
        const auto count = static_cast<uint32_t>(given.size());
        given.resize(std::min(count, 10U)), given.shrink_to_fit(); // no 11th to be read
        const verdict result = call(dak_app_oa_fill_pcd_list, count, given.data(), got.current, got.desired);
        std::string table = result.code != 0 ? "!" : "";
        expect_verdict(list, result, table.empty() ? 0 : 14, table.empty() ? "" : attribute_error);
        for (uint32_t at = 0; at < 24; ++at) {
            const std::string place = std::to_string(at / 6) + std::to_string(at % 6);
            const uint32_t strength = got.desired[at / 6][at % 6];
            table += got.current[at / 6][at % 6] ? place + "c " : "";
            table += strength ? place + std::to_string(strength) + " " : "";
        }
        EXPECT_EQ(table, expected) << list;
    }
    const entries one = preconditions("c11");
    EXPECT_EQ(dak_app_oa_fill_pcd_list(0, nullptr, got.current, got.desired), 15U);
    EXPECT_EQ(dak_app_oa_fill_pcd_list(1, one.data(), nullptr, got.desired), 15U);
    EXPECT_EQ(dak_app_oa_fill_pcd_list(1, one.data(), got.current, nullptr), 15U);
}

uint32_t answered(const std::string &answer, const std::string &offer, uint32_t direction = both)
{
    entries a = preconditions(answer), o = preconditions(offer);
    a.reserve(1), o.reserve(1); // empty, but not null
    return call(dak_app_oa_validate_ans_pcd, static_cast<uint32_t>(a.size()), a.data(),
                static_cast<uint32_t>(o.size()), o.data(), direction)
        .code;
}

TEST_F(PreconditionValidation, StrengthsAreKept)
{
    const std::pair<std::string, std::string> mirrors[] = {{"21", "32"}, {"22", "31"}, {"25", "31"},
                                                           {"31", "22"}, {"32", "21"}, {"35", "21"}};
    for (const auto &[here, there] : mirrors) {
        const std::string across = {there[0], there[1] == '1' ? '2' : '1'};
        for (int offered = 0; offered < 5; ++offered) {
            SCOPED_TRACE(here + " " + std::to_string(offered));
            const std::string offer = "d" + std::to_string(offered) + here;
            for (int answer = 0; answer < 6; ++answer)
                EXPECT_EQ(answered("d" + std::to_string(answer) + there, offer),
                          answer >= offered ? 0U : 14U);
            const std::string elsewhere =
                std::string("d4") + here[0] + "3 d413 d4" + there[0] + "5 d4" + across;
            EXPECT_EQ(answered(elsewhere, offer), offered == 0 ? 0U : 14U);
        }
    }
}

TEST_F(PreconditionValidation, Answer)
{
    const std::string kept = "c25 c35 d423 d433";
    const struct {
        uint32_t direction, code;
        const char *offer;
        lists answers;
    } rows[] = {
        {both, 0, "c25 c35 d423 d133", {kept}},
        {both, 14, "c25 c35 d423 d133", {"c25 c35 d423 d333", "c25 c33 d423 d433"}},
        {4, 0, "", {kept, "d431", "d432"}},
        {send, 14, "", {"d432"}},
        {send, 0, "", {"d431", "d532"}},
        {recv, 14, "", {"d431"}},
        {recv, 0, "", {"d432", "d531"}},
        {both, 14, "d413", {"d413"}},
        {both, 0, "d013 c13 c33", {""}}, // e2e and remote are not looked at
        {both, 14, "c21", {"c31"}},
        {both, 0, "c21 c25", {"c32 c35"}},
        {both, 0, "c22", {"c31"}},
        {both, 14, "c23", {"c32", "c31"}},
        {both, 0, "c23", {"c33"}},
        {both, 15, "", {"c71"}},
        {both, 15, "c19", {""}},
    };
    for (const auto &row : rows)
        for (const std::string &answer : row.answers)
            EXPECT_EQ(answered(answer, row.offer, row.direction), row.code) << answer << " for " << row.offer;
    const entries one = preconditions("c11");
    EXPECT_EQ(dak_app_oa_validate_ans_pcd(0, nullptr, 1, one.data(), both), 15U);
    EXPECT_EQ(dak_app_oa_validate_ans_pcd(1, one.data(), 0, nullptr, both), 15U);
}

} // namespace
