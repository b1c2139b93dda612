#include "util/ipv6.h"

#include "util/report.hpp"

#include <string.h>

namespace {

constexpr int family_ipv6 = 10;

} // namespace

int dak_sdp_convert_str_to_ipv6(const char *text, uint8_t *destination)
{
    if (text == nullptr || destination == nullptr) {
        DAK_LOG("dak_sdp_convert_str_to_ipv6: Null                             params  \n");
        return 0;
    }
    uint8_t address[16];
    if (platInetPton(family_ipv6, text, address) != 1)
        return 0;
    memcpy(destination, address, sizeof address);
    return 1;
}
