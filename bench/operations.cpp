#include "operations.hpp"

#include <array>

namespace {

constexpr std::size_t text_capacity = 4096; // more than the library generates

sdp_payload_buffer buffer_of(std::string &text) { return {text.data(), static_cast<uint16_t>(text.size())}; }

uint32_t parse_and_release(std::string &text)
{
    // The call sets the container's fields itself.
    static sdp_container container;
    const sdp_payload_buffer buffer = buffer_of(text);
    const uint32_t result = dak_app_oa_parse_sdp(&container, &buffer);
    dak_app_oa_cleanup_sdp_container(&container);
    return result;
}

uint32_t generate_text(sdp_container &container)
{
    static std::array<char, text_capacity> text;
    sdp_payload_buffer buffer = {text.data(), text.size()};
    return dak_app_oa_generate_sdp(&container, &buffer);
}

uint32_t parse_and_generate(std::string &text)
{
    static sdp_container container;
    const sdp_payload_buffer buffer = buffer_of(text);
    uint32_t result = dak_app_oa_parse_sdp(&container, &buffer);
    if (result == SDP_OA_SUCCESS)
        result = generate_text(container);
    dak_app_oa_cleanup_sdp_container(&container);
    return result;
}

uint32_t copy_and_release(const sdp_container &container)
{
    sdp_container *copy = nullptr;
    const uint32_t result = dak_app_oa_duplicate_sdp_container(&container, &copy);
    dak_app_oa_cleanup_sdp_container(copy);
    dak_free(copy);
    return result;
}

call parse(const body &body)
{
    return [text = body.text]() mutable { return parse_and_release(text); };
}

call generate(const body &body)
{
    return [container = parsed(body.text)] { return generate_text(*container); };
}

call round_trip(const body &body)
{
    return [text = body.text]() mutable { return parse_and_generate(text); };
}

call validate_offer(const body &body)
{
    return [offer = parsed(body.text)] { return dak_app_oa_validate_initial_offer(offer.get()); };
}

call validate_answer(const body &body)
{
    return [offer = parsed(body.text), answer = parsed(body.answer)] {
        return dak_app_oa_validate_answer(answer.get(), offer.get());
    };
}

call duplicate(const body &body)
{
    return [container = parsed(body.text)] { return copy_and_release(*container); };
}

} // namespace

const operation operations[6] = {{"parse", parse},
                                 {"generate", generate},
                                 {"round trip", round_trip},
                                 {"validate offer", validate_offer},
                                 {"validate answer", validate_answer},
                                 {"duplicate", duplicate}};

std::shared_ptr<sdp_container> parsed(const std::string &text)
{
    std::string copy = text;
    const sdp_payload_buffer buffer = buffer_of(copy);
    auto release = [](sdp_container *container) {
        dak_app_oa_cleanup_sdp_container(container);
        delete container;
    };
    std::shared_ptr<sdp_container> container(new sdp_container(), release);
    if (dak_app_oa_parse_sdp(container.get(), &buffer) != SDP_OA_SUCCESS)
        throw std::runtime_error("a body does not parse:\n" + text);
    return container;
}

call prepared(const operation &operation, const body &body)
{
    try {
        return operation.prepare(body);
    } catch (const std::runtime_error &) {
        return {};
    }
}

call parse_both(const body &body)
{
    return [offer = body.text, answer = body.answer]() mutable {
        return parse_and_release(answer) | parse_and_release(offer);
    };
}
