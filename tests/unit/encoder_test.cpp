#include "sdp/encoder.h"

#include "support.h"
#include "table.h"

namespace {

using Encoder = ContextTest;

// With room for nothing, for one character more, ... up to the whole text.
TEST_F(Encoder, a_piece_is_written_whole_or_not_at_all)
{
    std::vector<std::pair<std::string, std::string>> pieces; // with the log when one finds no room
    std::string whole;
    table::for_each_row("pieces.txt", [&](const table::row &row) {
        std::istringstream line(row.at("line"));
        for (std::string piece; std::getline(line, piece, '^'); whole += piece)
            pieces.emplace_back(piece, row.at("log"));
    });
    const std::string body = read_file(DAKSDP_TESTS_DIR "/unit/data/pieces.sdp");
    for (std::size_t room = 0; room <= whole.size(); ++room) {
        outcome expected{room == whole.size(), "", "", room != whole.size()};
        auto piece = pieces.begin();
        for (; piece != pieces.end() && expected.text.size() + piece->first.size() <= room; ++piece)
            expected.text += piece->first;
        expected.log = piece != pieces.end() ? piece->second : "";
        ASSERT_EQ(written(
                      [&](sdp_lib_context *in) {
                          sdp_parse(in, body.data(), uint32_t(body.size()));
                          std::swap(in->encoder_document, in->parser_document);
                          return dak_sdp_encode(in);
                      },
                      room),
                  expected)
            << "room for " << room;
    }
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
        {"message", 1, "TCP/TLS/MSRP", {}, {1, "m=message 49170 TCP/TLS/MSRP\r\n"}},
        {xs(181), 1, "RTP/AVP", {}, {1, "m=" + xs(181) + " 49170 RTP/AVP\r\n"}},
        {xs(182), 1, "RTP/AVP", {}, too_long},
        {xs(179), 1, "RTP/AVP", {96}, too_long},
    };
    for (const auto &[type, ports, profile, payloads, seen] : rows) {
        const section_ptr made(init_media_description(type.c_str(), 49170, ports, profile, payloads.data(),
                                                      int(payloads.size())));
        EXPECT_EQ(written_by(dak_sdp_encode_m_equal, made.get()), seen) << type << ports;
    }
}

// An accept record that was begun and not completed is passed over; what is no media line ends the text. A second
// text follows the first.
TEST_F(Encoder, what_cannot_be_written_ends_the_text)
{
    EXPECT_EQ(call(dak_sdp_encode, context), done) << "an empty document is an empty text";
    set_session_value(context, 0, "v=", "0");
    set_session_value(context, 1, "s=", "received");
    dak_sdp_set_media_file_range_attr(section, {0, 1});
    dak_sdp_set_media_accept_attr(section, {0, 0, 1, {SDP_ACCEPT_CPIM}});
    add_media_description_to_sdp_encoder(context, std::exchange(section, nullptr));
    for (const uint32_t ports : {0, 1})
        add_media_description_to_sdp_encoder(context, init_media_description("x", 1, ports, "y", nullptr, 0));
    const std::string text = "v=0\r\nm=audio 49170 RTP/AVP\r\na=file-range:0-1\r\n";
    EXPECT_EQ(call(dak_sdp_encode, context), refused);
    EXPECT_EQ(get_sdp_text(context), text);
    EXPECT_EQ(call(dak_sdp_encode, context), refused);
    EXPECT_EQ(get_sdp_text(context), text + text);
}

} // namespace
