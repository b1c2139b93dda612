#include <set>

#include "oa/payload_matching.h"
#include "validation.h"

using namespace oa_tests;

namespace {

class FormatValidation : public PlatformTest {};

const std::string file = "validation/data/format.txt";

TEST_F(FormatValidation, static_payloads)
{
    const std::set<uint32_t> known = {0, 4, 8, 9, 18, 21, 34};
    for (uint32_t number = 0; number < 0x10100; ++number)
        EXPECT_EQ(dak_app_oa_find_mime_by_pyld_num(number), known.contains(number) ? number : 114U);
}

// Positions in two lists; nothing is written behind their end.
std::string pairs(const std::vector<uint16_t> &a, const std::vector<uint16_t> &b)
{
    const auto end = std::find(a.begin(), a.end(), 777) - a.begin();
    EXPECT_EQ(std::count(a.begin() + end, a.end(), 777) + std::count(b.begin() + end, b.end(), 777),
              2 * (a.end() - a.begin() - end));
    std::string all;
    for (auto i = 0; i < end; i = i == 2 && end > 20 ? end - 1 : i + 1)
        all += (i == 0 ? "" : i > 20 ? " ... " : " ") + std::to_string(a[i]) + "-" + std::to_string(b[i]);
    return all;
}

TEST_F(FormatValidation, matching)
{
    const auto matched = [](const test_case &each, auto find) {
        const body lines("lines=2 " + each["change"]);
        std::vector<uint16_t> a(255, 777), b(255, 777);
        const auto by_codec = static_cast<uint8_t>(each.argument == "by codec" ? 2 : 0);
        outcome found = judged(
            {&lines}, [&] { return find(&lines.lines[0], &lines.lines[1], a.data(), b.data(), by_codec); });
        found.text = pairs(a, b);
        return found;
    };
    for_each_case(file, "matching", [&](const test_case &each) {
        each.expect(matched(each, dak_app_oa_find_all_matching_plds), each["pairs"]);
        const outcome first = matched(each, dak_app_oa_find_matching_plds);
        EXPECT_EQ(first.result, each.number("result") != 0);
        EXPECT_EQ(first.text, each["pairs"].substr(0, each["pairs"].find(' ')));
    });
    for_each_case(file, "first", [&](const test_case &each) {
        each.expect(matched(each, dak_app_oa_find_matching_plds), each["pairs"]);
        EXPECT_EQ(matched(each, dak_app_oa_find_all_matching_plds).result, 0);
    });
}

TEST_F(FormatValidation, codec_parameters)
{
    for_each_case(file, "fmtp", [](const test_case &each) {
        for (const std::string &codec : words(each.argument)) {
            const body given("lines=1 m0.f19.id=" + codec + " " + each["change"]);
            for (const std::string &direction : words(each["for"]))
                each.expect(judged({&given}, [&] {
                    return dak_app_oa_validate_fmtp(static_cast<uint32_t>(std::stoul(codec)),
                                                    static_cast<uint32_t>(std::stoul(direction)), 19,
                                                    &given.lines[0]);
                }));
        }
    });
}

TEST_F(FormatValidation, event_lists)
{
    for_each_case(file, "listed", [](const test_case &each) {
        const auto block = std::make_unique<sdp_tel_event_params>();
        assign(block->events, each["events"]);
        std::vector<uint16_t> list(255, 777);
        uint8_t count = 9;
        EXPECT_EQ(dak_app_oa_form_dtmf_evt_list(block.get(), list.data(), &count), 1);
        EXPECT_EQ(standin::texts().back(),
                  "dak_app_oa_form_dtmf_evt_list: num evts " + std::to_string(count));
        outcome listed = {0};
        for (int i = 0; i < count; ++i)
            listed.text += (i == 0 ? "" : " ") + std::to_string(list[i]);
        each.expect(listed, each["list"]);
    });
}

} // namespace
