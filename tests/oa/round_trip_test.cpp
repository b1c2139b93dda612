#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "oa/body.h"

using namespace oa_tests;

namespace {

class RoundTrip : public PlatformTest {};

const std::string file = "oa/data/round_trip.txt";

// Parses a body and generates it again.
void expect_returned(const test_case &each)
{
    body parsed("", each.lines("sdp"));
    EXPECT_EQ(each.has("holds") ? dump(parsed.session) : "", each["holds"]);
    each.expect(generate(parsed.session),
                each.number("result") == 0 ? each.lines(each.has("again") ? "again" : "sdp") : "");
}

TEST_F(RoundTrip, bodies) { for_each_case(file, "body", expect_returned); }

// A container made of the fields that a body keeps, each there or not.
class kept_fields {
public:
    kept_fields()
    {
        for_each_case(file, "kept", [&](const test_case &each) {
            fields_[words(each.argument).back()].push_back(" " + each["change"]);
        });
    }
    std::string session()
    {
        const unsigned count = random_() % 5;
        std::string all = "lines=" + std::to_string(count) + " o=1 user=- id=#4294967295 ver=#9 oa.net=IN";
        all += " oa.type=#1 oa.at=h s=s#9" + some_of("session");
        if (count > 1)
            all += " gs=2 g0.on=1 g0.sem=#1 g0.mids=2 g0.at=#1,#1 g1.on=1";
        for (unsigned i = 0; i < count; ++i)
            all += replaced(line(), "@", "m" + std::to_string(i) + ".");
        for (std::size_t at = all.find('#'), digits = 0; at != all.npos; at = all.find('#')) {
            const uint64_t most = std::stoull(all.substr(at + 1), &digits);
            all.replace(at, 1 + digits, std::to_string(random_() % (most + 1)));
        }
        return all;
    }

private:
    std::string line()
    {
        const std::string any = " @ok=1 @msg=1 @mid=x@ @port=#65535 @ports=1#9" + some_of("line");
        if (random_() % 3 == 0)
            return any + " @type=4 @over=2" + some_of("message");
        return any +
               " @n=5 @p=8,97,113,105 @f1.on=1 @f1.byte=97 @f1.map=1 @f1.id=97 @f1.khz=#65535 @f1.ch=1" +
               " @f1.fmtp=1 @f1.valid=1" + some_of("stream");
    }
    std::string some_of(const std::string &where)
    {
        std::string some;
        for (const std::string &each : fields_.at(where))
            some += random_() % 2 == 0 ? each : "";
        return some;
    }

    std::map<std::string, std::vector<std::string>> fields_;
    std::mt19937 random_{20240611};
};

TEST_F(RoundTrip, nothing_else_is_lost)
{
    kept_fields fields;
    for (int round = 0; round < 400; ++round) {
        const std::string all = fields.session();
        body kept(all);
        const outcome written = generate(kept.session);
        ASSERT_EQ(written, (outcome{0, written.text})) << all;
        ASSERT_EQ(parse(written.text).text, dump(kept.session)) << written.text;
    }
}

// What comes back from any example comes back again.
TEST_F(RoundTrip, the_examples)
{
    int count = 0;
    for (const auto &example : std::filesystem::directory_iterator(DAKSDP_EXAMPLES_DIR)) {
        std::ifstream in(example.path(), std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(in), {}};
        if (example.path().extension() != ".sdp")
            continue;
        body received("", text);
        const outcome once = generate(received.session);
        if (once.result != 0)
            continue;
        body returned("", once.text);
        EXPECT_EQ(generate(returned.session), once) << example.path();
        ++count;
    }
    EXPECT_GT(count, 0);
}

} // namespace
