#include "attr/message_session.h"

#include "message_line.h"

namespace {

class MessageSession : public PlatformTest {};

const std::string not_present = " Invalid accept params \n";

TEST_F(MessageSession, only_a_message_section_reads_its_lines)
{
    const std::vector<message_line> rows = {
        {"a=accept-types:text/plain *", dak_sdp_parse_a_equal_accept_type_line, dak_sdp_encode_accept_attr},
        {"a=accept-wrapped-types:text/plain *", dak_sdp_parse_a_equal_accept_wrapped_type_line,
         dak_sdp_encode_accept_wrapped_attr, "a=acceptwrapped-types:text/plain *",
         "accept type not supported for this profile "},
        {"a=path:msrp://[2001:db8::1]:9000/2s93i;tcp", dak_sdp_parse_a_equal_path_line,
         dak_sdp_encode_path_attr},
        {"a=max-size:4096", dak_sdp_parse_a_equal_max_size_line, dak_sdp_encode_max_size_attr},
    };
    expect_message_lines(rows);
    for (const message_line &row : rows) {
        const section_ptr section = new_section("TCP/MSRP");
        for (const char *nothing : {"", ":", ": \t"})
            EXPECT_EQ(
                call(read_line, row.read, section, row.line.substr(0, row.line.find(':')) + nothing, "\r"),
                refused);
        EXPECT_EQ(written_by(row.write, section), log_only(0, not_present));
    }
}

// Both accept lines are read alike. 10 stands where no type was read.
TEST_F(MessageSession, accept_types_are_read)
{
    const auto shown = [](const sdp_accept_attr &record) {
        std::string text = record.present == 1 ? "present " + std::to_string(record.kind) + ":" : "absent:";
        for (const uint32_t type : record.types)
            text += " " + std::to_string(type);
        return text + " of " + std::to_string(record.count);
    };
    const auto unknown = [](const std::string &word) { return " fmt list not supported " + word + " \n"; };
    const struct {
        std::vector<std::string> values;
        outcome seen;
    } rows[] = {
        {{"text/plain message/cpim application/im-iscomposing+xml message/imdn+xml text/html"},
         {1, "present 0: 0 1 2 3 4 of 5"}},
        {{" image/jpeg  image/png image/bmp image/gif * "}, {1, "present 0: 5 6 7 8 9 of 5"}},
        {{"* * * * text/plain text/unknown"}, {1, "present 0: 9 9 9 9 0 of 5"}},
        {{"text/plain", "text/html *"}, {1, "present 0: 4 9 10 10 10 of 2"}},
        {{"text/plain text/unknown text/html"}, {1, "absent: 0 10 0 0 0 of 1", unknown("text/unknown")}},
        {{"*", "text/html application/imdn+xml"},
         {1, "present 0: 4 10 10 10 10 of 1", unknown("application/imdn+xml")}},
        {{"text/plain\ttext/html"}, {1, "absent: 10 0 0 0 0 of 0", unknown("text/plain\ttext/html")}},
    };
    for (const auto &row : rows) {
        const section_ptr section = new_section("TCP/MSRP");
        section->accept_types.kind = section->accept_wrapped_types.kind = 5;
        for (const bool wrapped : {false, true}) {
            std::vector<std::string> lines = row.values;
            for (std::string &line : lines)
                line.insert(0, wrapped ? "a=accept-wrapped-types:" : "a=accept-types:");
            EXPECT_EQ(lines_read(wrapped ? dak_sdp_parse_a_equal_accept_wrapped_type_line
                                         : dak_sdp_parse_a_equal_accept_type_line,
                                 section, lines, "\r\n",
                                 [&](auto *from) {
                                     return shown(wrapped ? from->accept_wrapped_types : from->accept_types);
                                 }),
                      row.seen);
        }
    }
}

// The wrapped line is spelt without its first hyphen and has no images; only its "imdn" is one that is read.
TEST_F(MessageSession, accept_types_are_written)
{
    const struct {
        sdp_accept_attr record;
        const char *types, *wrapped;
    } rows[] = {
        {{1, 0, 5, {0, 1, 2, 3, 4}},
         "text/plain message/cpim application/im-iscomposing+xml application/imdn+xml text/html",
         "text/plain message/cpim application/im-iscomposing+xml message/imdn+xml text/html"},
        {{1, 0, 5, {5, 6, 7, 8, 9}}, "image/jpeg image/png image/bmp image/gif *", "    *"},
        {{1, 0, 3, {0, 10, 1}}, "text/plain  message/cpim", "text/plain  message/cpim"},
        {{1, 0, 3, {10, 0, 77}}, " text/plain ", " text/plain "},
        {{1, 0, 0, {0}}, "", ""},
        {{1, 0, 9, {9, 9, 9, 9, 9}}, "* * * * *", "* * * * *"},
        {{0x301, 0, 0x10001, {9, 9}}, "*", "*"}, // a byte and 16 bits count
        {{0x100, 0, 1, {9}}, nullptr, nullptr},
        {{2, 0, 1, {9}}, nullptr, nullptr},
    };
    for (const auto &row : rows) {
        const section_ptr section = new_section("TCP/MSRP");
        const auto line = [](const std::string &head, const char *types) {
            return types != nullptr ? outcome{1, head + types + "\r\n"} : log_only(0, not_present);
        };
        EXPECT_EQ(dak_sdp_set_media_accept_attr(section, row.record), 1);
        EXPECT_EQ(dak_sdp_set_media_accept_wrapped_attr(section, row.record), 1);
        EXPECT_EQ(written_by(dak_sdp_encode_accept_attr, section), line("a=accept-types:", row.types));
        EXPECT_EQ(written_by(dak_sdp_encode_accept_wrapped_attr, section),
                  line("a=acceptwrapped-types:", row.wrapped));
    }
}

// What is read shows in what is written back.
TEST_F(MessageSession, a_path_is_one_msrp_uri)
{
    const std::string absent = "(none)";
    const struct {
        std::string value, written_back = value;
    } rows[] = {
        {"msrp://atlanta.example.com:7394/2s93i93idj;tcp"},
        {"msrps://alice@bob.example.com:8888/9di4ea;tcp"},
        {"msrps://bob@[::1]/9di4ea;tcp"},
        {"msrp://host/9di4ea;tcp"},
        {"msrp:host:7394/9di4ea;tcp", "msrp://host:7394/9di4ea;tcp"},
        {"msrp://host:7394/a:b/c;tcp;x=1", "msrp://host:7394/a:b/c;tcp;x"}, // no longer than the session id
        {"msrp://host:7394/ab;tcp", "msrp://host:7394/ab;tc"},
        {"msrp://host:7394/;tcp", "msrp://host:7394/;"},
        {"msrp://host:7394/9di4ea", "msrp://host:7394/9di4ea;"},
        {"msrp://host:x/9di;tcp", "msrp://host/9di;tcp"},
        {"msrp://host:4294967297/9di;tcp", "msrp://host:2147483647/9di;tcp"},
        {"MSRP://host:7394/9di4ea;tcp", absent},
        {"sip:alice@example.com/9di4ea;tcp", absent},
        {"msrp", absent},
        {"msrp://host:7394", absent},
        {"msrp://[2001:db8::1:9000/9di4ea;tcp", absent},
    };
    const section_ptr section = new_section("TCP/MSRP");
    for (const auto &row : rows) {
        const std::vector<std::string> lines = {"a=path:msrp://user@earlier:1/path;tcp",
                                                "a=path:" + row.value};
        EXPECT_EQ(
            lines_read(dak_sdp_parse_a_equal_path_line, section, lines, "\r\n", [](auto *) { return ""; }),
            done);
        EXPECT_EQ(written_by(dak_sdp_encode_path_attr, section).text,
                  row.written_back == absent ? "" : "a=path:" + row.written_back + "\r\n")
            << row.value;
    }
    sdp_path_attr path, expected{1, 1, "al", "::1", 1, 88, "9di4", "tcp"};
    read_line(dak_sdp_parse_a_equal_path_line, section, "a=path:msrps://al@[::1]:88/9di4;tcp");
    dak_sdp_get_message_path_attrs(&path, section);
    EXPECT_EQ(std::memcmp(&path, &expected, sizeof path), 0) << "every field has its own part";
}

TEST_F(MessageSession, a_path_line_holds_199_characters)
{
    sdp_path_attr path{1, 9, "", "", 0, 4294967295U, "", "tcp"};
    const auto write = [&] {
        const section_ptr section = new_section("TCP/MSRP");
        dak_sdp_set_media_path_attr(section, path);
        return written_by(dak_sdp_encode_path_attr, section);
    };
    const outcome too_long = logged(0, "src str len exceeds dest str len 200\n");
    xs(176).copy(path.host, 255);
    EXPECT_EQ(write(), (outcome{1, "a=path:" + xs(176) + ":4294967295/;tcp\r\n"}))
        << "another scheme has no text";
    for (char(*field)[256] : {&path.user, &path.host, &path.session_id, &path.transport}) {
        const sdp_path_attr before = path;
        (*field)[std::strlen(*field)] = 'y';
        EXPECT_EQ(write(), too_long);
        std::memset(*field, 'z', sizeof *field); // unterminated
        EXPECT_EQ(write(), too_long);
        path = before;
    }
}

TEST_F(MessageSession, max_size_is_a_number)
{
    for (const std::vector<std::string> &row :
         std::vector<std::vector<std::string>>{{"0", "0"},
                                               {" +12 34", "12"},
                                               {"much", "0"},
                                               {"-1", "4294967295"},
                                               {"3000000000", "2147483647"}}) {
        const section_ptr section = new_section("TCP/MSRP");
        EXPECT_EQ(read_line(dak_sdp_parse_a_equal_max_size_line, section, "a=max-size:" + row[0]), 1);
        EXPECT_EQ(written_by(dak_sdp_encode_max_size_attr, section).text, "a=max-size:" + row[1] + "\r\n");
    }
}

// Sets a record and reads it back: whole when its present byte is 1, all zero when not or without a section.
template <class Record, class Set, class Get> void expect_record(Record record, Set set, Get get)
{
    const Record zero{};
    Record out;
    for (const uint32_t present : {1U, 0x201U, 0U, 2U, 0x100U}) {
        const section_ptr section = new_section("TCP/MSRP");
        record.present = present;
        std::memset(&out, 0x5A, sizeof out);
        EXPECT_EQ(call(set, section, record), done);
        EXPECT_EQ(call(get, &out, section).log, "");
        EXPECT_EQ(std::memcmp(&out, (present & 0xFF) == 1 ? &record : &zero, sizeof out), 0)
            << "present is " << present;
    }
    std::memset(&out, 0x5A, sizeof out);
    EXPECT_EQ(call(set, nullptr, record), log_only(0, "null params \n"));
    EXPECT_EQ(call(get, &out, nullptr), log_only(0, " invalid input argumet \n"));
    EXPECT_EQ(std::memcmp(&out, &zero, sizeof out), 0);
    EXPECT_EQ(call(get, nullptr, nullptr), refused);
}

TEST_F(MessageSession, records_are_copied_in_and_out)
{
    const sdp_accept_attr accept{1, 3, 7, {1, 2, 3, 4, 5}};
    expect_record(accept, dak_sdp_set_media_accept_attr, dak_sdp_get_message_accept_attrs);
    expect_record(accept, dak_sdp_set_media_accept_wrapped_attr, dak_sdp_get_message_accept_wrapped_attrs);
    expect_record(sdp_path_attr{1, 1, "u", "h", 1, 9, "id", "tcp"}, dak_sdp_set_media_path_attr,
                  dak_sdp_get_message_path_attrs);
    expect_record(sdp_max_size_attr{1, 4096}, dak_sdp_set_media_max_size_attr,
                  dak_sdp_get_message_max_size_attrs);
}

} // namespace
