#include "sdp/encoder.h"

#include "support.h"

namespace {

using Encoder = ContextTest;

TEST_F(Encoder, session_lines_stand_by_type_and_within_a_type_as_stored)
{
    EXPECT_EQ(call(dak_sdp_encode, context), done) << "an empty document is an empty text";
    EXPECT_STREQ(get_sdp_text(context), "");
    for (const char *line :
         {"a=sendrecv", "k=prompt", "z=1 1h", "t=1 2", "r=1d", "t=3 4", "b=AS:41", "c=IN IP4 192.0.2.1",
          "p=+1", "e=a@b", "u=http://a", "i=talk", "s=-", "o=- 1 1 IN IP4 192.0.2.1", "v=0", "a=ptime:20"})
        ASSERT_EQ(set_session_value(context, 0, std::string(line, 2).c_str(), line + 2), 1);
    set_session_value(context, 1, "s=", "received");
    const std::string text =
        "v=0\r\no=- 1 1 IN IP4 192.0.2.1\r\ns=-\r\ni=talk\r\nu=http://a\r\ne=a@b\r\np=+1\r\n"
        "c=IN IP4 192.0.2.1\r\nb=AS:41\r\nt=1 2\r\nt=3 4\r\nr=1d\r\nz=1 1h\r\nk=prompt\r\n"
        "a=sendrecv\r\na=ptime:20\r\n";
    EXPECT_EQ(dak_sdp_encode(context), 1);
    EXPECT_EQ(get_sdp_text(context), text);
    EXPECT_EQ(dak_sdp_encode(context), 1);
    EXPECT_EQ(get_sdp_text(context), text + text) << "a second encoding follows the first";
}

TEST_F(Encoder, the_media_line_has_room_for_199_characters)
{
    const outcome too_long = logged(0, "src str len exceeds dest str len 200\n");
    const std::tuple<std::string, uint32_t, const char *, std::vector<uint32_t>, outcome> rows[] = {
        {"audio", 1, "RTP/AVP", {96, 0}, {1, "m=audio 49170 RTP/AVP 96 0\r\n"}},
        {"audio", 2, "RTP/AVP", {96}, {1, "m=audio 49170/2 RTP/AVP 96\r\n"}},
        {"audio", 0, "RTP/AVP", {96}, refused},
        {"message", 1, "TCP/MSRP", {}, {1, "m=message 49170 TCP/MSRP *\r\n"}},
        {"message", 1, "tcp/msrp", {}, {1, "m=message 49170 tcp/msrp\r\n"}},
        {xs(181), 1, "RTP/AVP", {}, {1, "m=" + xs(181) + " 49170 RTP/AVP\r\n"}},
        {xs(182), 1, "RTP/AVP", {}, too_long},
        {xs(179), 1, "RTP/AVP", {96}, too_long},
    };
    for (const auto &[type, ports, profile, payloads, seen] : rows) {
        const section_ptr made(init_media_description(type.c_str(), 49170, ports, profile, payloads.data(),
                                                      int(payloads.size())));
        EXPECT_EQ(written([&](auto *in) { return dak_sdp_encode_m_equal(in, made.get()); }), seen)
            << type << ports;
    }
}

TEST_F(Encoder, a_payload_has_its_name_parameters_and_feedback)
{
    const std::tuple<uint32_t, std::string, outcome> rows[] = {
        {97, "amr", {1, "a=rtpmap:97 amr/8000\r\na=fmtp:97 crc=1\r\na=rtcp-fb:97 nack\r\n"}},
        {97, "EVS", {1, "a=rtpmap:97 EVS/8000\r\na=rtcp-fb:97 nack\r\n"}}, // not in the registry
        {0, "NULL", {1, ""}},
        {0, "", {1, ""}},
        {95, "no rtpmap line", {1, "a=rtcp-fb:95 nack\r\n"}},
        {96, "no rtpmap line", {1, ""}},
        {96, xs(180), {1, "a=rtpmap:96 " + xs(180) + "/8000\r\na=rtcp-fb:96 nack\r\n"}},
        {96, xs(181), logged(0, "len of str printed exceeded dst str len200 \n")},
    };
    for (const auto &[number, name, seen] : rows) {
        const section_ptr made =
            new_section("RTP/AVPF", {{number, name == "no rtpmap line" ? nullptr : name.c_str()}});
        set_media_value(made.get(), 0, "crc", "1");
        const rtcp_fb_list nack = {1, 1, {{RTCP_FB_NACK}}};
        dak_sdp_add_media_rtcp_fb_to_media_description(made.get(), int32_t(number), &nack);
        EXPECT_EQ(written([&](auto *in) { return dak_sdp_encode_media_codec(in, made.get(), 0); }), seen)
            << number << name;
    }
}

// An accept record that was begun and not completed is passed over; what is no media line ends the text.
TEST_F(Encoder, what_cannot_be_written_ends_the_text)
{
    set_session_value(context, 0, "v=", "0");
    dak_sdp_set_media_file_range_attr(section, {0, 1});
    dak_sdp_set_media_accept_attr(section, {0, 0, 1, {SDP_ACCEPT_CPIM}});
    add_media_description_to_sdp_encoder(context, std::exchange(section, nullptr));
    for (const uint32_t ports : {0, 1})
        add_media_description_to_sdp_encoder(context, init_media_description("x", 1, ports, "y", nullptr, 0));
    EXPECT_EQ(call(dak_sdp_encode, context), refused);
    EXPECT_STREQ(get_sdp_text(context), "v=0\r\nm=audio 49170 RTP/AVP\r\na=file-range:0-1\r\n");
    EXPECT_EQ(
        fill_sdp_buffer(context, xs(SDP_TEXT_CAPACITY - 4 - std::strlen(get_sdp_text(context))).c_str()), 1);
    EXPECT_EQ(call(dak_sdp_encode, context), refused);
    EXPECT_EQ(std::string(get_sdp_text(context)).substr(SDP_TEXT_CAPACITY - 4), "v=0")
        << "no room for the line end";
}

} // namespace
