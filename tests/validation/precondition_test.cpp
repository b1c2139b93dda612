#include "oa/precondition_table.h"
#include "validation.h"

using namespace oa_tests;

namespace {

class Preconditions : public PlatformTest {};

const std::string file = "validation/data/preconditions.txt";

// The entries of a text such as "c15 d413/2", in a block that ends with them.
std::vector<sdp_precondition> entries(const std::string &text)
{
    std::vector<sdp_precondition> list;
    for (const std::string &word : words(text)) {
        const auto digit = [&](std::size_t at) { return static_cast<uint32_t>(word[at] - '0'); };
        sdp_precondition entry = {.kind = static_cast<uint32_t>(std::string("?cdfx").find(word[0]))};
        entry.precond_type = word.find('/') == word.npos ? 1 : digit(word.find('/') + 1);
        if (word[0] == 'd')
            entry.desired = {digit(1), digit(2), digit(3)};
        else
            entry.status = {digit(1), digit(2)};
        list.push_back(entry);
    }
    list.shrink_to_fit();
    list.reserve(1); // empty, but not null
    return list;
}

// Gives a media line entries, as many of them as it holds.
void give(body &line, const std::vector<sdp_precondition> &list)
{
    line.change("lines=1 m0.pcds[2]=" + std::to_string(list.size()));
    std::copy_n(list.begin(), std::min<std::size_t>(list.size(), SDP_MAX_PRECONDS), line.lines[0].preconds);
}

TEST_F(Preconditions, are_tabulated_and_met)
{
    for_each_case(file, "tabulated", [](const test_case &each) {
        const std::vector<sdp_precondition> list = entries(each["entries"]);
        uint8_t current[4][6];
        uint32_t desired[4][6];
        std::memset(current, 0xA5, sizeof current); // tabulation clears it
        std::memset(desired, 0xA5, sizeof desired);
        const auto tabulate = [&] {
            return dak_app_oa_fill_pcd_list(static_cast<uint32_t>(list.size()), list.data(), current,
                                            desired);
        };
        const auto cells = [&] {
            std::string all;
            for (int i = 0; i < 24; ++i) {
                const std::string cell = " " + std::to_string(i / 6) + std::to_string(i % 6);
                const uint32_t strength = desired[i / 6][i % 6];
                all += current[i / 6][i % 6] == 1 ? cell : "";
                all += strength != 0 ? cell + "=" + std::to_string(strength) : "";
            }
            return all.substr(!all.empty());
        };
        outcome tabulated = seen(tabulate, cells);
        each.expect(tabulated, each["cells"]);
        body line;
        give(line, list);
        tabulated.result = each["met"] == "yes", tabulated.text = "";
        EXPECT_EQ(judged({&line}, [&] { return dak_app_oa_check_mline_preconds(&line.lines[0]); }),
                  tabulated);
        line.lines[0].precond_present = 0;
        EXPECT_EQ(judged({&line}, [&] { return dak_app_oa_check_mline_preconds(&line.lines[0]); }),
                  outcome());
    });
}

TEST_F(Preconditions, of_all_lines_are_to_be_met)
{
    for_each_case(file, "all", [](const test_case &each) {
        const body given(each);
        each.expect(judged({&given}, [&] { return dak_app_oa_check_preconds(&given.session); }));
    });
}

TEST_F(Preconditions, of_an_offer)
{
    for_each_case(file, "offered", [](const test_case &each) {
        body line;
        give(line, entries(each["entries"]));
        const auto validate = [&] {
            return dak_app_oa_validate_preconditions(&line.lines[0], each.number("direction"));
        };
        each.expect(judged({&line}, validate));
        line.lines[0].precond_present = 0;
        EXPECT_EQ(validate(), 0U);
    });
}

uint32_t answered(const std::string &answer, const std::string &offer, uint32_t direction = 3)
{
    const auto a = entries(answer), o = entries(offer);
    return dak_app_oa_validate_ans_pcd(static_cast<uint32_t>(a.size()), a.data(),
                                       static_cast<uint32_t>(o.size()), o.data(), direction);
}

TEST_F(Preconditions, of_an_answer)
{
    for_each_case(file, "answered", [](const test_case &each) {
        each.expect(
            judged({}, [&] { return answered(each["answer"], each["offer"], each.number("direction")); }));
    });
}

// An answer keeps every strength, or has a greater one, in the mirrored cell and no other.
TEST_F(Preconditions, strengths_are_kept)
{
    for_each_case(file, "mirrored", [](const test_case &each) {
        const std::string here = each["offer"], there = each["answer"];
        const std::string across = {there[0], there[1] == '1' ? '2' : '1'};
        for (char offered = '0'; offered < '5'; ++offered) {
            const std::string offer = std::string("d") + offered + here;
            for (char answer = '0'; answer < '6'; ++answer)
                EXPECT_EQ(answered(std::string("d") + answer + there, offer), answer >= offered ? 0U : 14U);
            const std::string elsewhere =
                std::string("d4") + here[0] + "3 d413 d4" + there[0] + "5 d4" + across;
            EXPECT_EQ(answered(elsewhere, offer), offered == '0' ? 0U : 14U) << offer;
        }
    });
}

} // namespace
