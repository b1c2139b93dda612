#include "oa/body.h"

using namespace oa_tests;

namespace {

class Generation : public PlatformTest {};

// A container is only read.
TEST_F(Generation, containers)
{
    for_each_case("oa/data/generation.txt", "generate", [](const test_case &each) {
        body given(each);
        const std::string before = given.bytes();
        const uint32_t room = each.has("room") ? each.number("room") : 4096;
        each.expect(generate(given.session, static_cast<uint16_t>(room)),
                    each.number("result") == 0 ? each.lines("text") : "");
        EXPECT_TRUE(given.bytes() == before);
    });
}

// Apart from the marker of one codec's block, which is set once that was written.
TEST_F(Generation, sets_a_marker)
{
    body offer("v=0 oa.at=h lines=1 m0.ports=1 m0.n=1 m0.p=96 m0.f0.on=1 m0.f0.map=1 m0.f0.id=106 "
               "m0.f0.khz=90 m0.f0.fmtp=1");
    const std::string before = dump(offer.session);
    EXPECT_EQ(generate(offer.session).result, 0);
    EXPECT_EQ(dump(offer.session), replaced(before, "fmtp=1", "fmtp=1 valid=1"));
}

TEST_F(Generation, single_builders)
{
    const std::map<std::string, uint32_t (*)(sdp_lib_context *, const sdp_container *)> builders = {
        {"version", dak_app_oa_encode_version},   {"session", dak_app_oa_encode_session},
        {"time", dak_app_oa_encode_time},         {"bw", dak_app_oa_encode_bw},
        {"gen_attr", dak_app_oa_encode_gen_attr}, {"message_attr", dak_app_oa_encode_message_attr},
    };
    for_each_case("oa/data/generation.txt", "builder", [&](const test_case &each) {
        const body given(each);
        const context_ptr context(init_sdp_lib());
        const std::string tag = each["tag"];
        set_session_value(context.get(), SDP_ENCODER_DOCUMENT, tag.c_str(), "first");
        const auto build = [&] {
            if (each.has("fails"))
                standin::fail_allocation(each.number("fails"));
            const uint32_t result = builders.at(each["builder"])(context.get(), &given.session);
            standin::allow_allocations();
            return result;
        };
        const auto values = [&] {
            std::string all;
            for (int i = 1; const char *value = get_particular_index_of_session_value(
                                context.get(), SDP_ENCODER_DOCUMENT, tag.c_str(), i);
                 ++i)
                all.append(i == 1 ? "" : " ").append(value);
            return all;
        };
        each.expect(seen(build, values), each["leaves"]);
    });
}

TEST_F(Generation, addresses)
{
    for_each_case("oa/data/generation.txt", "address", [](const test_case &each) {
        const sdp_address address = {.addr_type = each.number("type"), .address = "h"};
        std::string text = "IN" + std::string(each.number("room") - 2, '\0');
        each.expect(seen(
                        [&] {
                            return dak_app_oa_add_address_value(text.data(),
                                                                static_cast<uint16_t>(text.size()), &address);
                        },
                        [&] { return text.c_str(); }),
                    each["leaves"]);
    });
}

} // namespace
