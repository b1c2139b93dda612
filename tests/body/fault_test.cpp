// Whole calls on every example body, with each of their allocations failing in turn.

#include "reading.h"
#include "support.h"

#include <gmock/gmock.h>

#include <regex>
#include <set>

namespace {

ending bytes_of(uint32_t result, const sdp_container &session)
{
    std::string bytes(reinterpret_cast<const char *>(&session), offsetof(sdp_container, mlines));
    return {result, bytes.append(session.mlines != nullptr ? lines_of(session, 0, session.num_mlines) : "")};
}

ending parse_container(const std::string &body)
{
    const reading seen(body);
    return bytes_of(seen.result, seen.session);
}

ending duplicate(const sdp_container &session)
{
    sdp_container *copy = nullptr;
    const uint32_t result = dak_app_oa_duplicate_sdp_container(&session, &copy);
    const ending seen = copy != nullptr ? bytes_of(result, *copy) : ending{result, ""};
    EXPECT_TRUE(result == 0 || copy == nullptr || copy->mlines == nullptr);
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(dak_app_oa_cleanup_sdp_container(copy), 0U);
    dak_free(copy);
    return seen;
}

ending parse_document(const std::string &body)
{
    const context_ptr context(init_sdp_lib());
    if (context == nullptr)
        return {0, ""};
    const int result = sdp_parse(context.get(), body.data(), static_cast<uint32_t>(body.size()));
    return {result, dump(context.get(), SDP_PARSER_DOCUMENT)};
}

// What calls with a failing allocation gave.
struct failures {
    std::string once, on;       // the results, for each allocation alone and with all that follow
    std::set<std::string> ways; // each result, "!" for a report, and the log line that shows the failure
};

// The first log line that a call without failures does not have in this place, its runs of blanks as one.
std::string first_difference(const std::vector<std::string> &log, const std::vector<std::string> &whole)
{
    const auto line = std::mismatch(log.begin(), log.end(), whole.begin(), whole.end()).first;
    return line != log.end() ? " " + std::regex_replace(*line, std::regex("\\s+"), " ") : "";
}

// Makes a call with each of its allocations failing. With memory again it gives what it always gave.
template <class Call> void fail(Call call, failures &seen)
{
    standin::reset();
    const ending whole = call();
    const std::vector<std::string> log = standin::texts();
    const bool is_quiet = standin::assert_count() == 0;
    std::string results;
    sweep_allocations([&] {
        const ending now = call();
        if (standin::failed_allocations() > 0) {
            const std::string result = std::to_string(now.first),
                              report = standin::assert_count() > 0 ? "!" : "",
                              way = result + report + first_difference(standin::texts(), log);
            results += result;
            if (is_quiet)
                seen.ways.insert(way);
            EXPECT_TRUE(now != whole || way != result) << "a loss that shows nowhere";
        }
        standin::allow_allocations();
        EXPECT_TRUE(call() == whole) << "with memory again";
    });
    seen.once = results.substr(0, results.size() / 2);
    seen.on = results.substr(results.size() / 2);
}

// No memory for a context, then for what the lower layer reads, of which a generic attribute can be done without
// and the block of a section's attributes replaced, and at last for what the upper layer keeps.
TEST(Fault, in_a_parse)
{
    failures seen;
    for (const auto &[name, body] : examples()) {
        SCOPED_TRACE(name);
        fail([&text = body] { return parse_container(text); }, seen);
        EXPECT_THAT(seen.once, testing::MatchesRegex("36[06]*2+"));
        EXPECT_THAT(seen.on, testing::MatchesRegex("36+2+"));
    }
    EXPECT_THAT(seen.ways, testing::ElementsAre(
                               "0!", "2 dak_app_oa_parse_connection:Malloc failed ",
                               "2 dak_app_oa_parse_mlines: Media Malloc failed ",
                               "2 dak_app_oa_parse_origin:Malloc failed ",
                               "2! parse sdp a= ", "3! dak_app_oa_parse_sdp:Failed to initialise SDP context",
                               "6! dak_app_oa_parse_sdp: SDP Core parse error", "6! parse sdp a= "));
}

// Without memory for a b= line the text lacks that line.
TEST(Fault, in_a_generation)
{
    failures seen;
    for (const auto &[name, body] : examples()) {
        SCOPED_TRACE(name);
        reading from(body);
        if (generate(from.session).first != 0)
            continue;
        fail([&] { return generate(from.session); }, seen);
        EXPECT_THAT(seen.once, testing::MatchesRegex("3[02]+[234]*"));
        EXPECT_THAT(seen.on, testing::MatchesRegex("32+[234]*"));
    }
    const std::string in = " dak_app_oa_encode_";
    EXPECT_THAT(
        seen.ways,
        testing::ElementsAre(
            "0!" + in + "bw:Invalid BW info ", "2" + in + "connection:Malloc failed ",
            "2" + in + "info:Malloc failed ", "2" + in + "origin:Malloc failed ",
            "2" + in + "session:Malloc failed ",
            "2 dak_app_sdp_encode_mp4_es:Malloc failed at config string ", "2!" + in + "bw:Invalid BW info ",
            "3!" + in + "media_gen_attr:No Maxptime attr ", "3!" + in + "media_gen_attr:No SDP MID attr ",
            "3!" + in + "media_gen_attr:No SDP PTIME attr ", "3!" + in + "media_gen_attr:No frame rate info ",
            "3! dak_app_oa_generate_sdp: SDP context init failed ", "4!" + in + "media_gen_attr:No attr ",
            "4!" + in + "mlines: Invalid media line ", "4! encode_gen_attr: Invalid attr tag "));
}

TEST(Fault, in_a_duplication)
{
    failures seen;
    for (const auto &[name, body] : examples()) {
        SCOPED_TRACE(name);
        const reading from(body);
        fail([&] { return duplicate(from.session); }, seen);
        EXPECT_EQ(seen.once + seen.on, from.session.num_mlines == 0 ? "22" : "2222");
    }
    EXPECT_THAT(seen.ways, testing::ElementsAre("2"));
}

// What a document lacks is reported; attributes are all that it can do without, or find room for elsewhere.
TEST(Fault, in_a_document)
{
    failures seen;
    for (const auto &[name, body] : examples()) {
        SCOPED_TRACE(name);
        fail([&text = body] { return parse_document(text); }, seen);
    }
    EXPECT_THAT(seen.ways, testing::ElementsAre("0!", "0! parse sdp a= ", "1!", "1! parse sdp a= "));
}

} // namespace
