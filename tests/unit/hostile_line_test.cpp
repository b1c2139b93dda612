#include "support.h"

namespace {

class HostileLine : public PlatformTest {};

// Every block ends behind the line's terminator, so that the address sanitizer sees a reader that goes one
// character too far.
TEST_F(HostileLine, of_any_length_and_any_character)
{
    const struct {
        std::string head;
        line_reader read;
        const char *profile = "TCP/MSRP";
    } rows[] = {
        {"a=fmtp:96 ", parse_a_equal_fmtp_line, "RTP/AVPF"},
        {"a=fmtp:97 ", parse_a_equal_fmtp_line, "RTP/AVPF"},
        {"a=fmtp:97 max-red=", parse_a_equal_fmtp_line, "RTP/AVPF"},
        {"a=curr:", parse_a_equal_pcd_line, "RTP/AVPF"},
        {"a=rtcp-fb:", dak_sdp_parse_a_equal_rtcp_fb_line, "RTP/AVPF"},
        {"a=rtcp-fb:* nack ", dak_sdp_parse_a_equal_rtcp_fb_line, "RTP/AVPF"},
        {"a=rtcp-fb:96 97 nack ", dak_sdp_parse_a_equal_rtcp_fb_line, "RTP/AVPF"},
        {"a=accept-types:", dak_sdp_parse_a_equal_accept_type_line},
        {"a=accept-wrapped-types:", dak_sdp_parse_a_equal_accept_wrapped_type_line},
        {"a=path:", dak_sdp_parse_a_equal_path_line},
        {"a=path:msrp://u@[h", dak_sdp_parse_a_equal_path_line},
        {"a=path:msrp://h/s", dak_sdp_parse_a_equal_path_line},
        {"a=max-size:", dak_sdp_parse_a_equal_max_size_line},
        {"a=file-transfer-id:", dak_sdp_parse_a_equal_file_transfer_id_line},
        {"a=file-disposition:", dak_sdp_parse_a_equal_file_disposition_line},
        {"a=file-date:creation:\"", dak_sdp_parse_a_equal_file_date_line},
        {"a=file-icon:cid:", dak_sdp_parse_a_equal_file_icon_line},
        {"a=file-range:1-", dak_sdp_parse_a_equal_file_range_line},
        {"a=file-selector:", dak_sdp_parse_a_equal_file_selector_line},
        {"a=file-selector:name:\"", dak_sdp_parse_a_equal_file_selector_line},
        {"a=file-selector:hash:sha-1:", dak_sdp_parse_a_equal_file_selector_line},
    };
    for (const auto &row : rows) {
        for (const char fill : std::string_view("x9 \t:=;\"/@[]*-%\x80\xFF\0\x01", 19)) {
            for (const std::size_t length :
                 {0U, 1U, 196U, 197U, 198U, 199U, 200U, 255U, 256U, 65000U, 65536U}) {
                const section_ptr section = new_section(row.profile, {{96, "EVRC"}, {97, "AMR"}});
                const int result = read_line(row.read, section, row.head + std::string(length, fill),
                                             length % 2 ? "\r" : "\n");
                EXPECT_TRUE(result == 0 || (result == 1 && (fill != 'x' || length < 200)))
                    << row.head << fill << length;
            }
        }
    }
}

// Whatever could not be kept, something shows that it is missing, and the context stays whole.
TEST_F(HostileLine, memory_runs_out_in_any_family)
{
    const std::string body = "v=0\nm=video 49170 RTP/AVPF 97 101\na=rtpmap:97 AMR/8000\n"
                             "a=rtpmap:101 telephone-event/8000\na=fmtp:97 octet-align=1;mode-set=0,2\n"
                             "a=fmtp:101 0-15\na=curr:qos local none\na=des:qos optional remote sendrecv\n"
                             "a=rtcp-fb:* ccm fir\na=rtcp-fb:97 nack pli\nm=message 7394 TCP/MSRP *\n"
                             "a=accept-types:text/plain\na=accept-wrapped-types:*\na=max-size:4096\n"
                             "a=path:msrp://host:7394/9di4ea;tcp\na=file-transfer-id:x\na=file-icon:cid:x\n"
                             "a=file-disposition:inline\na=file-date:creation:\"Mon\"\na=file-range:1-5\n"
                             "a=file-selector:name:\"x\" size:5\n";
    const auto parsed = [&] {
        const context_ptr context(init_sdp_lib());
        if (context == nullptr)
            return std::string();
        const int result = sdp_parse(context.get(), body.c_str(), static_cast<uint32_t>(body.size()));
        return std::to_string(result) + dump(context.get(), SDP_PARSER_DOCUMENT);
    };
    const std::string whole = parsed();
    EXPECT_NE(whole.find("octet-align=1 mode-set=0,2"), std::string::npos) << whole;
    EXPECT_NE(whole.find("file-selector:name:\"x\" size:5"), std::string::npos) << whole;
    sweep_allocations([&] {
        const bool is_whole = parsed() == whole;
        EXPECT_EQ(is_whole, standin::failed_allocations() == 0);
    });
}

} // namespace
