// Calls are independent: threads that each have contexts and containers of their own need no lock.

#include <algorithm>
#include <fstream>
#include <iterator>
#include <latch>
#include <thread>

#include "support.h"

namespace {

// What the lower layer reads out of a body and writes again.
std::string document_of(const std::string &body)
{
    const context_ptr context(init_sdp_lib());
    std::string all = std::to_string(sdp_parse(context.get(), body.data(), uint32_t(body.size()))) +
                      dump(context.get(), SDP_PARSER_DOCUMENT);
    std::swap(context->encoder_document, context->parser_document);
    all += std::to_string(dak_sdp_encode(context.get()));
    return all + get_sdp_text(context.get());
}

// What a container and its copy hold and give, and the verdicts on the body as an offer and as its own answer.
std::string container_of(std::string body)
{
    const sdp_payload_buffer received = {body.data(), uint16_t(body.size())};
    std::string written(8192, '\0');
    sdp_payload_buffer buffer = {written.data(), uint16_t(written.size())};
    sdp_container container = {};
    sdp_container *copy = nullptr;
    std::string codes;
    for (const uint32_t code :
         {dak_app_oa_parse_sdp(&container, &received), dak_app_oa_duplicate_sdp_container(&container, &copy),
          dak_app_oa_generate_sdp(copy, &buffer), dak_app_oa_validate_initial_offer(&container),
          dak_app_oa_validate_modified_sdp(copy, &container), dak_app_oa_validate_answer(copy, &container)})
        codes += std::to_string(code) + ' ';
    dak_app_oa_cleanup_sdp_container(&container);
    dak_app_oa_print_sdp_container(copy);
    dak_app_oa_cleanup_sdp_container(copy);
    dak_free(copy);
    return codes + written.c_str();
}

// All that can be seen of the work on one body, log lines included.
std::string work_on(const std::string &name)
{
    std::ifstream in(DAKSDP_EXAMPLES_DIR "/" + name + ".sdp", std::ios::binary);
    const std::string body{std::istreambuf_iterator<char>(in), {}};
    standin::reset();
    std::string seen = document_of(body) + container_of(body);
    for (const std::string &line : standin::texts())
        seen += line + '|';
    EXPECT_EQ(standin::live_blocks(), 0) << name;
    return seen + std::to_string(standin::assert_count());
}

TEST(Threads, see_what_one_alone_sees)
{
    const std::string names[] = {"volte_offer", "vilte_answer", "evrc_family", "maximal", "many_media"};
    std::vector<std::string> alone;
    std::ranges::transform(names, std::back_inserter(alone), work_on);
    std::vector<std::vector<std::string>> together(8, std::vector<std::string>(alone.size()));
    std::latch start(8);
    std::vector<std::jthread> running;
    for (std::size_t first = 0; first < together.size(); ++first)
        running.emplace_back([&, first] {
            start.arrive_and_wait();
            // Each begins with another body, so that different ones are worked on at the same time.
            for (std::size_t i = first; i < first + alone.size(); ++i)
                together[first][i % alone.size()] = work_on(names[i % alone.size()]);
        });
    running.clear();
    for (const std::vector<std::string> &seen : together)
        EXPECT_EQ(seen, alone);
}

} // namespace
