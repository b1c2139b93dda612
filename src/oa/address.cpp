#include "oa/address.h"

#include "oa/address.hpp"
#include "oa/result_code.h"
#include "oa/truncation.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

// The words in front of an address; null, logged, for an address type that cannot be written.
const char *types_of(const sdp_address &address)
{
    if (address.addr_type == SDP_ADDR_IPV4)
        return "IN IP4 ";
    if (address.addr_type == SDP_ADDR_IPV6)
        return "IN IP6 ";
    DAK_LOG("dak_app_oa_parse_address: Invalid address                        type: %d\n",
            static_cast<int>(address.addr_type));
    return nullptr;
}

bool append(char *text, size_t capacity, text_range piece)
{
    const size_t used = strnlen(text, capacity);
    return used < capacity && copy_text(text + used, capacity - used, piece);
}

uint32_t parse_network_type(text_range word, sdp_address &address)
{
    if (word.empty()) {
        DAK_LOG("dak_app_oa_parse_address: No network type\n");
        return SDP_OA_MISSING_TOKEN;
    }
    if (word.equals("IN")) {
        copy_text(address.net_type, word);
        return SDP_OA_SUCCESS;
    }
    char found[256];
    copy_text(found, word);
    DAK_LOG("dak_app_oa_parse_address: Error in network                            type: %s\n", found);
    return SDP_OA_INVALID_CONTENT;
}

uint32_t parse_address_type(text_range word, sdp_address &address)
{
    if (word.empty()) {
        DAK_LOG("dak_app_oa_parse_address: No address type\n");
        return SDP_OA_MISSING_TOKEN;
    }
    address.addr_type = word.equals("IP4")   ? SDP_ADDR_IPV4
                        : word.equals("IP6") ? SDP_ADDR_IPV6
                                             : SDP_ADDR_NOT_SET;
    return address.addr_type != SDP_ADDR_NOT_SET ? SDP_OA_SUCCESS : SDP_OA_INVALID_CONTENT;
}

uint32_t parse_address_text(text_range word, sdp_address &address)
{
    if (word.empty()) {
        DAK_LOG("dak_app_oa_parse_address: No address info\n");
        return SDP_OA_MISSING_TOKEN;
    }
    if (copy_text(address.address, word))
        return SDP_OA_SUCCESS;
    return fail_as_truncated(sizeof address.address);
}

} // namespace

uint32_t dak::add_address(text_writer &text, const sdp_address &address)
{
    const char *types = types_of(address);
    if (types == nullptr)
        return SDP_OA_INVALID_CONTENT;
    text.add(types).add(field_text(address.address));
    return SDP_OA_SUCCESS;
}

uint32_t dak_app_oa_add_address_value(char *text, uint16_t capacity, const sdp_address *address)
{
    if (text == nullptr || address == nullptr) {
        DAK_LOG("dak_app_oa_add_address_value:                                        Incorrect params\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    const char *types = types_of(*address);
    if (types == nullptr)
        return SDP_OA_INVALID_CONTENT;
    if (append(text, capacity, types) && append(text, capacity, field_text(address->address)))
        return SDP_OA_SUCCESS;
    return fail_as_truncated(capacity);
}

uint32_t dak_app_oa_parse_address(char *text, sdp_address *address)
{
    if (text == nullptr || address == nullptr) {
        DAK_LOG("dak_app_oa_parse_address: Incorrect params\n");
        return SDP_OA_BAD_PARAMETERS;
    }
    address->addr_type = SDP_ADDR_NOT_SET;
    text_range rest(text);
    uint32_t result = parse_network_type(rest.take_word(), *address);
    if (result == SDP_OA_SUCCESS)
        result = parse_address_type(rest.take_word(), *address);
    if (result == SDP_OA_SUCCESS)
        result = parse_address_text(rest.take_word(), *address);
    return result;
}
