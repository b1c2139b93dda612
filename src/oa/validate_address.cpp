#include "oa/validate_address.h"

#include "oa/truncation.hpp"
#include "oa/validation_code.h"
#include "util/report.hpp"
#include "util/text_range.hpp"

using namespace dak;

uint32_t dak_app_oa_validate_ipaddress(const sdp_address *address)
{
    if (address == nullptr) {
        DAK_LOG("dak_app_oa_validate_ipaddress: Null                             params  \n");
        return SDP_NULL_ARGUMENT;
    }
    if (field_text(address->net_type).begins_with("IN")) {
        if (address->addr_type == SDP_ADDR_IPV4)
            return dak_app_oa_validate_ipv4_addr(address->address);
        if (address->addr_type == SDP_ADDR_IPV6)
            return dak_app_oa_validate_ipv6_addr(address->address);
    }
    DAK_LOG("dak_app_oa_validate_ipaddress: Unknown                             address type  \n");
    return SDP_INVALID_ADDRESS;
}

uint32_t dak_app_oa_validate_ipv4_addr(const char *address)
{
    constexpr size_t size = sizeof sdp_address::address;
    if (address == nullptr) {
        DAK_LOG("dak_app_oa_validate_ipv4_addr: Null                             params  \n");
        return SDP_NULL_ARGUMENT;
    }
    if (strnlen(address, size) < size)
        return SDP_VALID;
    fail_as_too_long(size);
    return SDP_INVALID_ADDRESS;
}

uint32_t dak_app_oa_validate_ipv6_addr(const char *address)
{
    return address != nullptr ? SDP_VALID : SDP_NULL_ARGUMENT;
}
