#include "container_text.hpp"

#include "words.hpp"

namespace inspector {

std::string address_text(const sdp_address &address)
{
    const std::string_view type = find_word(address_types, address.addr_type);
    return std::string(address.net_type) + " " + (type.empty() ? "(no address type)" : std::string(type)) +
           " " + address.address;
}

std::string port_text(std::uint32_t port, std::uint32_t count)
{
    std::string text = "port " + std::to_string(port);
    if (port == 0)
        text += " (not in use)";
    if (count != 1)
        text += " (" + std::to_string(count) + " ports)";
    return text;
}

void print_bandwidth(outline &out, const sdp_bandwidth &bandwidth)
{
    if (bandwidth.present == 0)
        return;
    for (const sdp_bandwidth_entry &entry : bandwidth.entries) {
        if (entry.present != 0) {
            out.row("bandwidth " + std::string(find_word(bandwidth_modifiers, entry.modifier)),
                    std::to_string(entry.value) + " " +
                        std::string(find_word(bandwidth_units, entry.modifier)));
            continue;
        }
        // What is left in the first absent entry tells more than its absence.
        if (entry.modifier == SDP_BW_UNKNOWN)
            out.row("bandwidth", "not read from an unknown modifier on");
        else if (&entry == bandwidth.entries)
            out.row("bandwidth", "not read");
        return;
    }
}

} // namespace inspector
