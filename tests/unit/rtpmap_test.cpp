#include "sdp/rtpmap.h"

#include "sdp/rtcp_address.h"
#include "support.h"

// What readers of a=rtpmap and a=rtcp lines tell beyond the records; the lines have a table of their own.
namespace {

class Rtpmap : public PlatformTest {};

TEST_F(Rtpmap, a_number_is_read_with_the_blank_that_ends_it)
{
    const heap_text text("97 AMR/8000");
    const char *at = text.begin();
    uint32_t number = 0;
    EXPECT_EQ(get_media_payload_number(&at, text.end(), &number), 1);
    EXPECT_EQ(at - text.begin(), 3);
}

TEST_F(Rtpmap, the_place_moves_behind_a_whole_address)
{
    const std::pair<std::string, outcome> rows[] = {
        {" IN IP6 ::1 more", {1, " more"}},
        {" IN IP9 x", {RTCP_ADDRESS_WRONG_TYPE, " IN IP9 x"}},
        {" X25",
         {RTCP_ADDRESS_WRONG_TYPE, " X25",
          "get_media_rtcp_ip_address: Error in network                            type: X25\n"}},
        {" IN", {RTCP_ADDRESS_MISSING, " IN", "get_media_rtcp_ip_address: No address type\n"}},
        {" IN IP6 ", {RTCP_ADDRESS_MISSING, " IN IP6 ", "get_media_rtcp_ip_address: No address info\n"}},
        {" \t", {0, " \t"}},
    };
    for (const auto &[given, seen] : rows) {
        const heap_text text(given);
        const char *at = text.begin(), *const end = text.end();
        rtcp_address_info address;
        EXPECT_EQ(
            call_then([&] { return std::string(at, end); }, get_media_rtcp_ip_address, &at, end, &address),
            seen);
    }
}

TEST_F(Rtpmap, a_port_is_read_without_its_address)
{
    const heap_text text("a=rtcp:53020");
    uint32_t port = 0;
    rtcp_address_info address = {7, 7, "?", "?"};
    EXPECT_EQ(call(parse_a_euqal_rtcp, text.begin(), text.end(), &port, &address), refused);
    EXPECT_EQ(port, 53020U);
    const section_ptr section = new_section("RTP/AVP");
    EXPECT_EQ(add_media_rtcp_port_to_media_description(section, port, {1, SDP_ADDRESS_IP6, "IN", "::1"}), 1);
    EXPECT_EQ(set_rtcp_port(section, 53022), 1);
    EXPECT_EQ(dump(section), "m=audio 49170/1 RTP/AVP\n  rtcp 53022 1 IN 1 ::1\n");
    EXPECT_EQ(call(get_rtcp_ipaddress, &address, nullptr), refused);
    EXPECT_EQ(std::string(sizeof address, '\0'),
              std::string(reinterpret_cast<char *>(&address), sizeof address));
}

} // namespace
