#include "sdp/rtcp_address.h"

#include "sdp/rtpmap.h"
#include "util/bounded_text.hpp"
#include "util/line_scan.h"
#include "util/report.hpp"
#include "util/token.h"

using namespace dak;

namespace {

uint32_t address_type_of(text_range word)
{
    if (word.equals("IP4"))
        return SDP_ADDRESS_IP4;
    return word.equals("IP6") ? SDP_ADDRESS_IP6 : SDP_ADDRESS_OTHER;
}

// Reads "IN"; anything else ends the reading.
int read_network_type(rtcp_address_info &address, text_range word)
{
    if (word.empty()) {
        DAK_LOG("get_media_rtcp_ip_address: No ip address mentioned\n");
        return 0;
    }
    char text[sizeof address.network_type];
    copy_text(text, word);
    if (!word.equals("IN")) {
        DAK_LOG("get_media_rtcp_ip_address: Error in network                            type: %s\n", text);
        return 0;
    }
    copy_text(address.network_type, word);
    return 1;
}

int read_address(rtcp_address_info &address, text_range word)
{
    if (word.empty()) {
        DAK_LOG("get_media_rtcp_ip_address: No address info\n");
        return RTCP_ADDRESS_MISSING;
    }
    address.valid = copy_text(address.address, word);
    if (!address.valid) {
        DAK_LOG("len of str printed exceeded dst str len%d \n", static_cast<int>(sizeof address.address));
        dak_assert_failed();
    }
    return RTCP_ADDRESS_READ;
}

} // namespace

int set_rtcp_port(media_description *description, uint32_t port)
{
    if (description == nullptr)
        return fail();
    description->rtcp_port = port;
    return 1;
}

uint32_t get_rtcp_port(const media_description *description)
{
    return description != nullptr ? description->rtcp_port : static_cast<uint32_t>(fail());
}

int add_media_rtcp_port_to_media_description(media_description *description, uint32_t port,
                                             rtcp_address_info address)
{
    if (description == nullptr) {
        dak_assert_failed();
        return -1;
    }
    description->rtcp_port = port;
    description->rtcp_address = address;
    return 1;
}

void get_rtcp_ipaddress(rtcp_address_info *destination, const media_description *description)
{
    if (destination == nullptr) {
        dak_assert_failed();
        return;
    }
    if (description != nullptr) {
        *destination = description->rtcp_address;
        return;
    }
    *destination = {};
    dak_assert_failed();
}

int parse_a_euqal_rtcp(const char *line_start, const char *line_end, uint32_t *port,
                       rtcp_address_info *address)
{
    const char *start = nullptr;
    const char *colon = nullptr;
    if (!get_token(line_start, 0, line_end, &start, &colon, ":") || colon >= line_end)
        return fail();
    const char *position = skip_whitespace(colon + 1, line_end);
    if (!get_media_payload_number(&position, line_end, port))
        return 0;
    return get_media_rtcp_ip_address(&position, line_end, address) != 0 ? 1 : fail();
}

int get_media_rtcp_ip_address(const char **position, const char *end, rtcp_address_info *address)
{
    if (position == nullptr || *position == nullptr || end == nullptr || address == nullptr)
        return fail();
    *address = {};
    const char *start = nullptr;
    const char *stop = nullptr;
    if (!get_token(*position, 0, end, &start, &stop, nullptr))
        return 0;
    text_range rest(start, end);
    const text_range network_type = rest.take_word();
    if (!read_network_type(*address, network_type))
        return network_type.empty() ? RTCP_ADDRESS_READ : RTCP_ADDRESS_WRONG_TYPE;
    const text_range address_type = rest.take_word();
    if (address_type.empty()) {
        DAK_LOG("get_media_rtcp_ip_address: No address type\n");
        return RTCP_ADDRESS_MISSING;
    }
    address->address_type = address_type_of(address_type);
    if (address->address_type == SDP_ADDRESS_OTHER)
        return RTCP_ADDRESS_WRONG_TYPE;
    const text_range word = rest.take_word();
    const int result = read_address(*address, word);
    if (address->valid)
        *position = word.last;
    return result;
}
