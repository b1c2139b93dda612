#include "sdp/rtpmap.h"

#include "sdp/rtcp_address.h"
#include "support.h"

namespace {

class Rtpmap : public PlatformTest {};

TEST_F(Rtpmap, a_line_binds_a_name_and_its_rates)
{
    const std::pair<outcome, std::vector<std::string>> rows[] = {
        // number, name, rate, parameter
        {{1, "97 AMR 8000 1"}, {"97 AMR/8000", " 97  AMR / 8000 ", "97 AMR/8000/", "97 AMR/8000.5"}},
        {{1, "97 AMR-WB 16000 2"}, {"97 AMR-WB/16000/2", "97\tAMR-WB/16000/2 x"}},
        {{1, "97 " + xs(199) + " 8000 1"}, {"97 " + xs(199) + "/8000"}},
        {logged(0, "src str len exceeds dest str len 200\n"), {"97 " + xs(200) + "/8000"}},
        {refused,
         {"97 AMR/8000\t", "97 AMR/8000;x", "97 AMR/8000/2x", "97 AMR/4294967296", "97 AMR//1", "97 AMR/",
          "97 AMR", "97", "x AMR/8000", ""}},
    };
    for (const auto &[seen, lines] : rows)
        for (const std::string &line : lines)
            for (const std::string_view line_end : line_ends) {
                const heap_text text("a=rtpmap:" + line + std::string(line_end));
                uint32_t number = 0, rate = 0, parameter = 0;
                char name[200] = "";
                outcome read = outcome_of([&] {
                    return parse_a_euqal_rtpmap(text.begin(), text.end() - line_end.size(), &number, name,
                                                &rate, &parameter);
                });
                if (read.result == 1)
                    read.text =
                        (std::ostringstream() << number << ' ' << name << ' ' << rate << ' ' << parameter)
                            .str();
                EXPECT_EQ(read, seen) << line << line_end;
            }
    const heap_text text("97 AMR/8000");
    const char *at = text.begin();
    uint32_t number = 0;
    EXPECT_EQ(get_media_payload_number(&at, text.end(), &number), 1);
    EXPECT_EQ(at - text.begin(), 3) << "behind the number and the blank that ended it";
}

TEST_F(Rtpmap, an_rtcp_line_has_a_port_and_as_much_of_an_address_as_there_is)
{
    const auto missing = [](const char *what) { return std::string("get_media_rtcp_ip_address: ") + what; };
    const auto wrong = [&](const std::string &type) {
        return missing("Error in network                            type: ") + type + "\n";
    };
    const std::pair<std::string, outcome> rows[] = {
        // valid, network type, address type, address
        {" IN IP4 192.0.2.1", {1, "1 IN 0 192.0.2.1"}},
        {"  IN  IP6 2001:db8::1 and more", {1, "1 IN 1 2001:db8::1"}},
        {" IN IP9 x", {RTCP_ADDRESS_WRONG_TYPE, "0 IN 2 "}},
        {" X25 IP4 192.0.2.1", {RTCP_ADDRESS_WRONG_TYPE, "0  0 ", wrong("X25")}},
        {" IN\tIP4 192.0.2.1", {RTCP_ADDRESS_WRONG_TYPE, "0  0 ", wrong("IN\tIP4")}},
        {" IN", {RTCP_ADDRESS_MISSING, "0 IN 0 ", missing("No address type\n")}},
        {" IN IP6 ", {RTCP_ADDRESS_MISSING, "0 IN 1 ", missing("No address info\n")}},
        {" IN IP4 " + xs(255), {1, "1 IN 0 " + xs(255)}},
        {" IN IP4 " + xs(256),
         logged(1, "len of str printed exceeded dst str len256 \n", "0 IN 0 " + xs(255))},
        {"", {0, "0  0 "}},
        {" \t", {0, "0  0 "}},
    };
    for (const auto &[rest, seen] : rows)
        for (const std::string_view line_end : line_ends) {
            const heap_text text("a=rtcp:53020" + rest + std::string(line_end));
            const char *const end = text.end() - line_end.size();
            const char *const start = end - rest.size();
            const char *at = start;
            uint32_t port = 0;
            rtcp_address_info address = {7, 7, "?", "?"};
            const auto held = [&] {
                return (std::ostringstream() << address.valid << ' ' << address.network_type << ' '
                                             << address.address_type << ' ' << address.address)
                    .str();
            };
            EXPECT_EQ(outcome_of([&] { return get_media_rtcp_ip_address(&at, end, &address); }, held), seen)
                << rest;
            EXPECT_EQ(at != start, address.valid == 1) << rest << ", the place moves behind a whole address";
            address = {7, 7, "?", "?"};
            EXPECT_EQ(parse_a_euqal_rtcp(text.begin(), end, &port, &address), seen.result != 0) << rest;
            EXPECT_EQ(std::pair(port, held()), std::pair(53020U, seen.text)) << rest;
        }
    uint32_t port = 0;
    rtcp_address_info address;
    for (const std::string line : {"a=rtcp:x IN IP4 192.0.2.1", "a=rtcp:", "a=rtcp"}) {
        const heap_c_text text(line);
        EXPECT_EQ(outcome_of([&] { return parse_a_euqal_rtcp(text.begin(), text.end(), &port, &address); }),
                  refused)
            << line;
    }
}

TEST_F(Rtpmap, the_rtcp_address_is_kept_with_its_section)
{
    const section_ptr section = new_section("RTP/AVP");
    EXPECT_EQ(
        add_media_rtcp_port_to_media_description(section.get(), 53020, {1, SDP_ADDRESS_IP6, "IN", "::1"}), 1);
    EXPECT_EQ(set_rtcp_port(section.get(), 53022), 1);
    EXPECT_EQ(dump(section.get()), "m=audio 49170/1 RTP/AVP\n  rtcp 53022 1 IN 1 ::1\n");
    rtcp_address_info address = {7, 7, "?", "?"};
    EXPECT_EQ(call(get_rtcp_ipaddress, &address, nullptr), refused);
    EXPECT_EQ(std::string(sizeof address, '\0'),
              std::string(reinterpret_cast<char *>(&address), sizeof address));
}

} // namespace
