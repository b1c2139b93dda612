#include "oa/body.h"

using namespace oa_tests;

namespace {

class Codec : public PlatformTest {
protected:
    // Hands the cases of a kind to `check`.
    static void for_each_case_of(const std::string &kind, const std::function<void(const test_case &)> &check)
    {
        for (const char *file : {"amr", "evrc", "h263", "tel_event", "video"})
            for_each_case(std::string("oa/codec/data/") + file + ".txt", kind, check);
    }
};

// A codec's parameter block, in memory that ends with it.
class block {
public:
    block(const std::string &codec, const std::string &fields)
        : entry_(*dak_app_sdp_find_medentry_by_mime(codec.c_str()))
    {
        sdp_codec_params any;
        bytes_.reset(
            new char[with_block(entry_.payload_number, any, [](auto &own) { return sizeof own; })]());
        for_each_change(fields, [&](const setter &set) { visit(set); });
    }
    uint32_t decode(media_description *from) const { return entry_.decode(from, 0, bytes_.get()); }
    uint32_t encode(media_description *into, uint32_t format) const
    {
        return entry_.encode(into, static_cast<uint16_t>(format), bytes_.get());
    }
    sdp_codec_params &any() const { return *reinterpret_cast<sdp_codec_params *>(bytes_.get()); }
    std::string shown() const
    {
        std::string out;
        visit(dumper{out});
        return out.substr(out.empty() ? 0 : 1);
    }

private:
    template <class Visitor> void visit(Visitor visitor) const
    {
        each(entry_.payload_number, any(), visitor);
    }

    const sdp_mime_entry &entry_;
    std::unique_ptr<char[]> bytes_;
};

// A media section with one payload format, 97, and what an fmtp line says of it.
section_ptr section_of(const std::string &codec, const std::string &fmtp = "")
{
    section_ptr section = new_section("RTP/AVP 97=" + codec);
    const int is_read = fmtp.empty() ? 1
                        : fmtp.ends_with('=')
                            ? set_media_value(section, 0, fmtp.substr(0, fmtp.size() - 1).c_str(), "")
                            : read_line(parse_a_equal_fmtp_line, section, "a=fmtp:97 " + fmtp);
    EXPECT_EQ(is_read, 1) << fmtp;
    return section;
}

// What stands behind "a=fmtp:97 " when the format is written; "" without such a line.
std::string fmtp_of(const section_ptr &section)
{
    const outcome written = written_by(dak_sdp_encode_media_codec, section, 0);
    const std::string name = "a=fmtp:97 ";
    const std::size_t at = written.text.find(name), end = written.text.rfind("\r\n");
    return written.result != 1       ? "(refused)"
           : at == written.text.npos ? ""
                                     : written.text.substr(at + name.size(), end - at - name.size());
}

// A block is written unless its fmtp_present is 0 (telephone-event: only when it is 1).
void expect_written(const block &given, const std::string &codec, const std::string &fmtp)
{
    for (const uint8_t present : {1, 0, 2}) {
        given.any().frame.fmtp_present = present;
        const bool is_written = present == 1 || (present == 2 && codec != "telephone-event");
        const section_ptr out = section_of(codec);
        EXPECT_EQ(seen([&] { return given.encode(out, 0); }, [&] { return fmtp_of(out); }),
                  (outcome{0, is_written ? fmtp : ""}))
            << int(present);
    }
}

TEST_F(Codec, parameters_are_read_and_written)
{
    for_each_case_of("decode", [](const test_case &each) {
        for (const std::string &codec : words(each.argument)) {
            SCOPED_TRACE(codec);
            const block read(codec, each["before"]);
            const section_ptr in = section_of(codec, each["fmtp"]);
            each.expect(seen([&] { return read.decode(in); }, [&] { return read.shown(); }), each["fields"]);
            if (each.number("result") == 0)
                expect_written(read, codec, each[each.has("written") ? "written" : "fmtp"]);
        }
    });
}

TEST_F(Codec, blocks_that_no_text_gives)
{
    for_each_case_of("encode", [](const test_case &each) {
        const std::vector<std::string> names = words(each.argument);
        const auto into = std::find(names.begin(), names.end(), "into");
        for (auto codec = names.begin(); codec != into; ++codec) {
            SCOPED_TRACE(*codec);
            const block given(*codec, each["change"]);
            const section_ptr out = section_of(into == names.end() ? *codec : names.back());
            const std::string before = given.shown();
            const auto encode = [&] {
                if (each.has("fails"))
                    standin::fail_allocation(each.number("fails"));
                const uint32_t result = given.encode(out, each.number("format"));
                standin::allow_allocations();
                return result;
            };
            each.expect(seen(encode, [&] { return fmtp_of(out); }), each["written"]);
            EXPECT_EQ(given.shown(), each.has("leaves") ? each["leaves"] : before);
        }
    });
}

// Each value that is refused is reported.
TEST_F(Codec, nothing_is_written_behind_a_refusal)
{
    const section_ptr out = section_of("AMR");
    EXPECT_EQ(block("EVRC0", "fmtp=1 silencesupp=1").encode(out, 1), 7U);
    const std::size_t reports_of_one = standin::assert_count();
    EXPECT_EQ(block("EVRC0", "fmtp=1 silencesupp=1 dtxmax=1 dtxmin=1 hangover=1").encode(out, 1), 7U);
    EXPECT_EQ(standin::assert_count(), 2 * reports_of_one);
}

template <class Map, class Read> auto mode_reader(Read read)
{
    return [read](const char *text) {
        uint8_t present = 7;
        Map map = 7;
        return seen([&] { return read(text, &present, &map); },
                    [&] { return std::to_string(present) + " " + std::to_string(map); });
    };
}

template <class Read> auto block_reader(const char *codec, Read read)
{
    return [=](const char *text) {
        const block given(codec, "");
        return seen([&] { return read(text, given.any()); }, [&] { return given.shown(); });
    };
}

TEST_F(Codec, lists_are_read_by_themselves)
{
    const std::map<std::string, std::function<outcome(const char *)>> readers = {
        {"amr-modes", mode_reader<uint32_t>(dak_app_oa_get_amr_mode)},
        {"evrc-modes", mode_reader<uint8_t>(dak_app_sdp_decode_evrc_mode)},
        {"events", block_reader("telephone-event",
                                [](auto *text, auto &any) {
                                    return dak_app_oa_get_dtmf_tel_event(text, any.tel_event.events);
                                })},
        {"custom", block_reader("H263-1998",
                                [](auto *text, auto &any) {
                                    return dak_app_sdp_parse_h263_custom_param(text, &any.h263_1998.params);
                                })},
        {"submodes", block_reader("H263-1998",
                                  [](auto *text, auto &any) {
                                      return dak_app_sdp_parse_h263_ref_pic_param(text,
                                                                                  &any.h263_1998.params);
                                  })},
    };
    for_each_case("oa/codec/data/lists.txt", "read", [&](const test_case &each) {
        each.expect(readers.at(each.argument)(heap_c_text(each["text"]).c_str()), each["leaves"]);
    });
}

TEST_F(Codec, lists_are_written_by_themselves)
{
    for_each_case("oa/codec/data/lists.txt", "write", [](const test_case &each) {
        sdp_tel_event_params block = {};
        uint16_t count = 99;
        char text[300] = "left";
        const auto write = [&] {
            if (each.argument == "rate")
                return dak_app_sdp_encode_conv_evrc1_rate(each.number("value"), text);
            assign(block.events, each["value"]);
            const uint32_t result = dak_app_sdp_encode_dtmf_tel_event_tag(&block, text, &count);
            std::strcat(text, (" in " + std::to_string(count)).c_str());
            return result;
        };
        each.expect(seen(write, [&] { return text; }), each["text"]);
    });
}

// The functions behind the names are the other tests' matter: they take them from here.
TEST_F(Codec, table)
{
    std::size_t row = 0;
    for_each_case("oa/codec/data/table.txt", "rows", [&](const test_case &each) {
        const sdp_mime_entry &entry = mime_table[row++];
        const sdp_mime_entry *first = dak_app_sdp_find_medentry_by_mime(each["name"].c_str());
        EXPECT_EQ(std::to_string(entry.payload_number) + entry.mime_name, each["key"] + each.label);
        EXPECT_EQ(dak_app_sdp_find_medentry_by_pt(each.number("key")), &entry);
        ASSERT_NE(first, nullptr);
        EXPECT_EQ(first->payload_number, each.number("found"));
        EXPECT_TRUE(first->encode == entry.encode && first->decode == entry.decode);
        EXPECT_EQ(entry.encode == nullptr && entry.decode == nullptr, each["parameters"] == "none");
    });
    EXPECT_EQ(row, std::size(mime_table));
    for_each_case("oa/codec/data/table.txt", "missing", [](const test_case &each) {
        const auto find = [&]() -> const void * {
            if (each.has("key"))
                return dak_app_sdp_find_medentry_by_pt(each.number("key"));
            return dak_app_sdp_find_medentry_by_mime(each["name"].c_str());
        };
        each.expect(seen([&] { return find() != nullptr; }));
    });
}

} // namespace
