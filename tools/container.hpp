// A container of the library that releases itself.
#ifndef DAKSDP_TOOLS_CONTAINER_HPP
#define DAKSDP_TOOLS_CONTAINER_HPP

#include "daksdp.h"

#include <cstdint>
#include <string>

namespace inspector {

// What the library reads out of a text, at most largest_body long.
class parsed_container {
public:
    explicit parsed_container(std::string text)
    {
        const sdp_payload_buffer buffer = {text.data(), static_cast<std::uint16_t>(text.size())};
        result_ = dak_app_oa_parse_sdp(&container_, &buffer);
    }
    ~parsed_container() { dak_app_oa_cleanup_sdp_container(&container_); }
    parsed_container(const parsed_container &) = delete;
    parsed_container &operator=(const parsed_container &) = delete;

    // The code of the parsing; the container is of no use unless it is SDP_OA_SUCCESS.
    std::uint32_t result() const { return result_; }
    const sdp_container &get() const { return container_; }
    // Generation takes a container that it may write to.
    sdp_container &get() { return container_; }

private:
    sdp_container container_ = {};
    std::uint32_t result_ = SDP_OA_SUCCESS;
};

} // namespace inspector

#endif
