#ifndef DAKSDP_FUZZ_CONTAINER_H
#define DAKSDP_FUZZ_CONTAINER_H

#include <string>

#include "daksdp.h"
#include "input.h"
#include "platform.h"

// A container that releases what it holds.
struct held_container : sdp_container {
    held_container() : sdp_container() {}
    ~held_container() { dak_app_oa_cleanup_sdp_container(this); }
    held_container(const held_container &) = delete;
};

// Parses text that ends with its block, into a container of old bytes.
inline uint32_t parse(held_container &container, std::string_view text)
{
    const exact_text block(text.substr(0, 65535));
    const sdp_payload_buffer buffer = {block.begin(), static_cast<uint16_t>(block.view().size())};
    if (!block.view().empty())
        std::memset(static_cast<sdp_container *>(&container), 0xEE, sizeof(sdp_container));
    const uint32_t result = dak_app_oa_parse_sdp(&container, &buffer);
    FUZZ_EXPECT(block.view() == text.substr(0, 65535));
    return result;
}

// The container and its media lines, byte for byte.
inline std::string bytes_of(const sdp_container &container)
{
    const std::size_t lines = container.mlines != nullptr ? container.num_mlines * sizeof(sdp_media_line) : 0;
    std::string bytes;
    bytes.reserve(sizeof container + lines);
    bytes.append(reinterpret_cast<const char *>(&container), sizeof container);
    bytes.append(reinterpret_cast<const char *>(container.mlines), lines);
    return bytes;
}

// Generates into a block of exactly this capacity: written on success alone, up to the terminator.
inline uint32_t generate(sdp_container &container, uint16_t capacity, std::string &text)
{
    const exact_text block(std::string(capacity, '#'));
    sdp_payload_buffer buffer = {block.begin(), capacity};
    const uint32_t result = dak_app_oa_generate_sdp(&container, &buffer);
    const std::size_t length = result == SDP_OA_SUCCESS ? block.view().find('\0') : 0;
    FUZZ_EXPECT(length < capacity || result != SDP_OA_SUCCESS);
    text = block.view().substr(0, length);
    const std::string_view behind = block.view().substr(length + (result == SDP_OA_SUCCESS));
    FUZZ_EXPECT(behind.find_first_not_of('#') == std::string_view::npos);
    return result;
}

#endif
