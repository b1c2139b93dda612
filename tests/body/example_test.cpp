#include <regex>

#include "reading.h"
#include "support.h"

namespace {

class Example : public PlatformTest {
protected:
    std::string read(const char *name) const { return bodies.at(name); }

    const std::map<std::string, std::string> bodies = examples();
};

TEST_F(Example, a_document_is_held_whole)
{
    EXPECT_EQ(parse(read("minimal.sdp")), (outcome{1, "v=0\no=- 0 0 IN IP4 192.0.2.1\ns=-\nt=0 0\n"}));
    EXPECT_EQ(parse(read("lf_lines.sdp")).text.substr(73), parse(read("cr_lines.sdp")).text.substr(73));
    EXPECT_EQ(parse(read("static_payloads.sdp")), logged(1, "parse fmtp err ", R"(v=0
o=- 7001 7001 IN IP4 192.0.2.181
s=-
c=IN IP4 192.0.2.181
t=0 0
m=audio 37000/1 RTP/AVP
  0
  8
  18
  101 telephone-event/8000/1 events=0-16
  a=fmtp:18 annexb=no
  a=fmtp:101 0-16
  a=ptime:20
)"));
}

// Attributes are held in records and as text, so a document that was read writes them twice: in the encoder's
// order, then as they came.
TEST_F(Example, a_document_that_was_read_can_be_written)
{
    const std::pair<const char *, const char *> rows[] = {
        {"volte_answer.sdp", R"(a=rtpmap:104 AMR-WB/16000
a=fmtp:104 mode-set=0,1,2;mode-change-capability=2;max-red=220
a=rtpmap:105 telephone-event/16000
a=fmtp:105 0-15
a=curr:qos local sendrecv
a=curr:qos remote none
a=des:qos mandatory local sendrecv
a=des:qos mandatory remote sendrecv
a=conf:qos remote sendrecv
)"},
        {"msrp_file_transfer.sdp", R"(a=accept-types:*
a=path:msrp://send.example.com:7654/jshA7we;tcp
a=file-selector:name:"lake at dusk.jpg" type:image/jpeg size:4092 hash:sha-1:72:24:5F:E8:65:3D:DA:F3:71:36:2F:86:D4:71:91:3E:E4:A2:CE:2E
a=file-transfer-id:vBnG916bdberum2fFEABR1FR3ExZMUrd
a=file-disposition:attachment
a=file-date:creation:"Sun, 21 May 2023 13:02:15 +0300"
a=file-icon:cid:7741.preview@example.com
a=file-range:1-4092
)"},
    };
    for (const auto &[name, records] : rows) {
        const std::string body = read(name);
        const context_ptr context(init_sdp_lib());
        EXPECT_EQ(call(sdp_parse, context.get(), body.data(), uint32_t(body.size())), done);
        std::swap(context->encoder_document, context->parser_document);
        EXPECT_EQ(call(dak_sdp_encode, context.get()), done);
        const std::string text = std::regex_replace(get_sdp_text(context.get()), std::regex("\r"), "");
        std::string expected = std::regex_replace(body, std::regex("\r|a=rtpmap.*\r\n"), "");
        EXPECT_EQ(text, expected.insert(expected.find("a="), records));
    }
}

} // namespace
