#include "oa/body.h"

using namespace oa_tests;

namespace {

class Parsing : public PlatformTest {};

TEST_F(Parsing, bodies)
{
    for_each_case("oa/data/parsing.txt", "parse",
                  [](const test_case &each) { each.expect(parse(each.lines("sdp")), each["holds"]); });
}

TEST_F(Parsing, preconditions)
{
    for_each_case("oa/data/parsing.txt", "precondition", [](const test_case &each) {
        sdp_precondition entry;
        std::memset(&entry, 0, sizeof entry);
        entry.kind = each.number("kind");
        const heap_c_text value(each["value"]);
        each.expect(seen([&] { return dak_app_oa_parse_pre_cond_str(value.c_str(), &entry); },
                         [&] { return dump(entry); }),
                    each["holds"]);
    });
}

// In a container of the caller's a mid counts for a present flag of exactly 1.
TEST_F(Parsing, groups_of_a_container)
{
    const std::string text = "v=0\na=group:LS 1\na=group:LS\n";
    const context_ptr context(init_sdp_lib());
    EXPECT_EQ(sdp_parse(context.get(), text.data(), static_cast<uint32_t>(text.size())), 1);
    body offer("lines=1 m0.mid=1");
    EXPECT_EQ(dak_app_oa_parse_group_attr(context.get(), &offer.session), 0U);
    EXPECT_EQ(dump(offer.session), "gs=2 g0{on=1 mids=1} g1{on=1} ms=1 m0{mid=1}");
    offer.change("gs=0 m0.mid[2]=1");
    EXPECT_EQ(dak_app_oa_parse_group_attr(context.get(), &offer.session), 0U);
    EXPECT_EQ(dump(offer.session), "gs=2 ms=1 m0{mid[2]=1}");
}

TEST_F(Parsing, the_text_ends_at_its_nul_or_its_capacity)
{
    const std::string text = "v=0\no=- 1 2 IN IP4 h\nt=0 0\n", nul(1, '\0');
    const outcome whole = {0, "o=1 user=- id=1 ver=2 oa{net=IN at=h} t=1"};
    for (const std::string &same : {text, text + nul, text + std::string(90, '\0'), text + nul + "s=behind\n",
                                    text.substr(0, text.size() - 1)})
        EXPECT_EQ(parse(same), whole) << same;
}

// Feedback subtypes that the lower layer hands over as text.
TEST_F(Parsing, feedback_subtypes)
{
    for_each_case("oa/data/parsing.txt", "subtype", [](const test_case &each) {
        sdp_rtcp_fb entry = {each.number("type"), 0, 9, ""};
        each.expect(seen([&] { return dak_app_oa_parse_rtcp_fb_subtype(each["subtype"].c_str(), &entry); },
                         [&] { return std::to_string(entry.nack_subtype); }),
                    each["leaves"]);
    });
}

} // namespace
