#ifndef DAKSDP_TESTS_BODY_READING_H
#define DAKSDP_TESTS_BODY_READING_H

#include "platform_test.h"

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

#include "daksdp.h"

// The example bodies by file name.
inline std::map<std::string, std::string> examples()
{
    std::map<std::string, std::string> bodies;
    for (const auto &file : std::filesystem::directory_iterator(DAKSDP_EXAMPLES_DIR)) {
        std::ifstream in(file.path(), std::ios::binary);
        if (file.path().extension() == ".sdp")
            bodies[file.path().filename()] = {std::istreambuf_iterator<char>(in), {}};
    }
    return bodies;
}

// A body in a block of its own size, and the container that is read from it.
struct reading {
    explicit reading(std::string_view text) : block(text)
    {
        const sdp_payload_buffer buffer = {block.data(), static_cast<uint16_t>(block.size())};
        std::memset(&session, 0xEE, sizeof session);
        result = dak_app_oa_parse_sdp(&session, &buffer);
    }
    // Cleaning up twice is as good as once, whatever came before.
    ~reading()
    {
        for (int i = 0; i < 2; ++i)
            EXPECT_EQ(dak_app_oa_cleanup_sdp_container(&session), 0U);
    }
    reading(const reading &) = delete;

    heap_text block;
    sdp_container session;
    uint32_t result;
};

// Media lines next to each other, byte for byte.
inline std::string_view lines_of(const sdp_container &session, std::size_t first, std::size_t count)
{
    return {reinterpret_cast<const char *>(session.mlines + first), count * sizeof(sdp_media_line)};
}

// What stands in front of the groups, which depend on media lines.
inline std::string_view head_of(const sdp_container &session)
{
    return {reinterpret_cast<const char *>(&session), offsetof(sdp_container, num_groups)};
}

// A call's result, and what it left.
using ending = std::pair<uint32_t, std::string>;

// Generates into a block that takes any text, and is written on success alone.
inline ending generate(sdp_container &session)
{
    const heap_text block(std::string(SDP_TEXT_CAPACITY + 1, '#'));
    sdp_payload_buffer buffer = {block.data(), static_cast<uint16_t>(block.size())};
    const uint32_t result = dak_app_oa_generate_sdp(&session, &buffer);
    if (result == 0)
        return {result, block.data()};
    EXPECT_EQ(block.view().find_first_not_of('#'), std::string::npos);
    return {result, ""};
}

#endif
