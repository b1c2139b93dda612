#include "attr/file_transfer.h"

#include "message_line.h"

namespace {

class FileTransfer : public PlatformTest {};

int encode_first_selector(sdp_lib_context *context, media_description *section)
{
    return dak_sdp_encode_file_selector_attr(context, section, 0);
}

// What the readers give, left out where nothing is stored; a selector as
// name|type|size|algorithm|length|hash.
std::string shown(const media_description *section)
{
    std::string text;
    const auto add = [&](const char *name, const std::string &value) {
        if (!value.empty())
            text += (text.empty() ? "" : " ") + std::string(name) + "<" + value + ">";
    };
    sdp_file_disposition disposition;
    sdp_file_date date;
    sdp_file_range range;
    dak_sdp_get_message_file_disposition_attrs(&disposition, section);
    dak_sdp_get_message_file_date_attrs(&date, section);
    dak_sdp_get_message_file_range_attrs(&range, section);
    const int32_t count = dak_sdp_get_message_num_of_file_selectors_attrs(section);
    add("id", dak_sdp_get_message_file_transfer_id_attrs(section));
    add("disposition", disposition.present == 1 ? std::to_string(disposition.disposition) : "");
    add("creation", date.creation);
    add("modification", date.modification);
    add("read", date.read);
    add("icon", dak_sdp_get_message_file_icon_attrs(section));
    if (range.start != 0 || range.stop != 0)
        add("range", std::to_string(range.start) + ".." + std::to_string(range.stop));
    add("count", count == 0 ? "" : std::to_string(count));
    for (int i = 0; i < SDP_MAX_FILE_SELECTORS; ++i) {
        sdp_file_selector one;
        dak_sdp_get_message_file_selector_attrs(&one, section, i);
        std::string all = one.name;
        for (const uint32_t number : {one.type, one.size, one.hash_alg, one.hash_len})
            all += "|" + std::to_string(number);
        all += std::string("|") + one.hash;
        add("selector", one.empty == 1 ? "empty" : all == "|0|0|0|0|" ? "" : all);
    }
    return text;
}

const std::string date_line = "a=file-date:modification:\"Mon, 15 May 2006 15:01:31 +0300\"";
const std::string selector_line =
    "a=file-selector:hash:sha-1:72:24 size:32349 type:image/jpeg name:\"My cool: picture.jpg\"";
const std::vector<message_line> attributes = {
    {"a=file-transfer-id:vBnG916bdberum2fFEABR1FR3ExZMUrd", dak_sdp_parse_a_equal_file_transfer_id_line,
     dak_sdp_encode_file_transfer_id_attr},
    {"a=file-disposition:render", dak_sdp_parse_a_equal_file_disposition_line,
     dak_sdp_encode_file_disposition_attr},
    {date_line, dak_sdp_parse_a_equal_file_date_line, dak_sdp_encode_file_date_attr},
    {"a=file-icon:cid:id2@alicepc", dak_sdp_parse_a_equal_file_icon_line, dak_sdp_encode_file_icon_attr},
    {"a=file-range:1-32349", dak_sdp_parse_a_equal_file_range_line, dak_sdp_encode_file_range_attr},
    {selector_line, dak_sdp_parse_a_equal_file_selector_line, encode_first_selector,
     "a=file-selector:name:\"My cool: picture.jpg\" type:image/jpeg size:32349 hash:sha-1:72:24"},
};

// Reads lines that are given without "a=file-", each by the reader of its attribute.
outcome read(const std::vector<std::string> &lines)
{
    const section_ptr section = new_section("TCP/MSRP");
    outcome seen;
    for (const std::string &line : lines)
        for (const message_line &attribute : attributes)
            if (attribute.line.compare(7, 4, line, 0, 4) == 0)
                seen = lines_read(attribute.read, section, {"a=file-" + line}, "\r\n", shown);
    return seen;
}

TEST_F(FileTransfer, only_a_message_section_reads_its_lines) { expect_message_lines(attributes); }

TEST_F(FileTransfer, lines_are_read)
{
    const std::string hash = "72:24:5F:E8:65:3D:DA:F3:71:36:2F:86:D4:71:91:3E:E4:A2:CE:2E";
    const std::string one = "selector:size:1", two = "selector:size:2", stored_one = "selector<|0|1|0|0|>";
    const struct {
        std::vector<std::string> lines;
        outcome seen;
    } rows[] = {
        {{"transfer-id: two words \t"}, {1, "id<two words>"}},
        {{"transfer-id:" + xs(198)}, {1, "id<" + xs(198) + ">"}},
        {{"transfer-id:" + xs(200)}, refused},
        {{"transfer-id:"}, refused},
        {{"disposition:inline"}, {1, "disposition<0>"}},
        {{"disposition:attachment"}, {1, "disposition<1>"}},
        {{"disposition:session"}, {1, "disposition<3>"}},
        {{"disposition"}, refused},
        {{"date:creation:\"Mon, 15 May\" x", "date:read:\"\"", "date:modification:\" a:b \""},
         {1, "creation<Mon, 15 May> modification< a:b >"}},
        {{"date:read:\"old\"", "date:read:\"new\""}, {1, "read<new>"}},
        {{"date:access:\"Mon\""}, {1}}, // another kind
        {{"date:creation:Mon"}, {1}},   // no quotes
        {{"date:creation:\"Mon"}, {1}}, // one quote
        {{"date:creation: \"Mon\""}, {1}},
        {{"date:"}, refused},
        {{"icon:http://example.com/x"}, {1}},
        {{"icon:CID:id2"}, {1}},
        {{"icon:cid"}, {1}},
        {{"icon:"}, refused},
        {{"range:1-100", "range:5"}, {1, "range<5..100>"}}, // the stop stays
        {{"range:1-*"}, {1, "range<1..0>"}},
        {{"range: 10 - 99999999999 "}, {1, "range<10..2147483647>"}},
        {{"range:"}, refused},
        {{"selector:name:\"My cool: picture.jpg\" type:image/jpeg size:32349 hash:sha-1:" + hash},
         {1, "count<1> selector<My cool: picture.jpg|5|32349|0|59|" + hash + ">"}},
        {{"selector:size:1 \ttype:image/png name: \"x\"", "selector:type:image/bmp name:\"\"",
          "selector: type:image/gif "},
         {1, "count<3> selector<x|6|1|0|0|> selector<|7|0|0|0|> selector<|8|0|0|0|>"}},
        {{"selector:owner:alice name:plain size:1 type:text/plain hash:sha-256:AA"},
         {1, "count<1> " + stored_one}},
        {{"selector:size:99999999999"}, {1, "count<1> selector<|0|2147483647|0|0|>"}},
        {{"selector"}, {1, "count<1> selector<empty>"}},
        // One without a value sets the count to 1 and does not raise it, so the next replaces the second.
        {{one, two, "selector: "}, {1, "count<1> " + stored_one + " selector<|0|2|0|0|> selector<empty>"}},
        {{one, two, "selector:", "selector:type:image/png"},
         {1, "count<2> " + stored_one + " selector<|6|0|0|0|> selector<empty>"}},
        {{one, one, one, one, one, two, "selector"},
         {1, "count<5> " + stored_one + " " + stored_one + " " + stored_one + " " + stored_one + " " +
                 stored_one}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(read(row.lines), row.seen) << row.lines[0];
}

TEST_F(FileTransfer, records_are_written)
{
    const section_ptr section = new_section("TCP/MSRP");
    for (const auto &[record, line] : std::vector<std::pair<sdp_file_selector, std::string>>{
             {{}, ":"},
             {{"x", 5, 1, 0, 0, "", 1}, ""},
             {{"x", 6, 4294967295U}, ":name:\"x\" type:image/png size:4294967295 "},
             {{"", 4, 1}, ":size:1 "},
             {{"", 9, 1}, ":size:1 "},
             {{"", 7, 0, 0, 5, "72:24"}, ":type:image/bmp hash:sha-1:72:24"},
             {{"", 8, 0, 1, 5, "72:24"}, ":type:image/gif hash:72:24"},
             {{"", 8, 0, 0, 0, "72:24"}, ":type:image/gif "},
         }) {
        EXPECT_EQ(dak_sdp_set_media_file_selector_attr(section, record, 0), 1);
        EXPECT_EQ(written_by(encode_first_selector, section),
                  (outcome{1, "a=file-selector" + line + "\r\n"}));
    }
    for (const int index : {-1, 5})
        EXPECT_EQ(written_by(dak_sdp_encode_file_selector_attr, section, index),
                  log_only(0, " Invalid params \n"));
    const std::string dispositions[] = {"inline", "attachment", "render", "", ""};
    for (uint32_t i = 0; i < 5; ++i) {
        dak_sdp_set_media_file_disposition_attr(section, {0x101, i});
        EXPECT_EQ(written_by(dak_sdp_encode_file_disposition_attr, section),
                  (outcome{1, "a=file-disposition:" + dispositions[i] + "\r\n"}));
    }
    dak_sdp_set_media_file_disposition_attr(section, {0x100, 0});
    EXPECT_EQ(written_by(dak_sdp_encode_file_disposition_attr, section), done)
        << "an absent one is not written";
    EXPECT_EQ(written_by(dak_sdp_encode_file_date_attr, section), done);
    dak_sdp_set_media_file_date_attr(section, {"c", "m", "r"});
    expect_pieces([&](auto *context) { return dak_sdp_encode_file_date_attr(context, section); },
                  {"a=file-date:creation:\"c", "\"\r\n", "a=file-date:modification:\"m", "\"\r\n",
                   "a=file-date:read:\"r", "\"\r\n"},
                  " Unable to fill SDP buffer \n");
    dak_sdp_set_media_file_range_attr(section, {-2147483647 - 1, 2147483647});
    EXPECT_EQ(written_by(dak_sdp_encode_file_range_attr, section),
              (outcome{1, "a=file-range:-2147483648-2147483647\r\n"}));
    EXPECT_EQ(written_by(dak_sdp_encode_file_transfer_id_attr, section),
              (outcome{1, "a=file-transfer-id:\r\n"}));
    EXPECT_EQ(written_by(dak_sdp_encode_file_icon_attr, section), (outcome{1, "a=file-icon:cid:\r\n"}));
}

// More can be stored than fits a line, 256 characters without a terminator.
TEST_F(FileTransfer, a_line_holds_199_characters)
{
    const section_ptr section = new_section("TCP/MSRP");
    const struct {
        char (&field)[256];
        int (*write)(sdp_lib_context *, media_description *);
        std::string head, tail;
        std::size_t longest;
    } rows[] = {
        {section->file_transfer_id, dak_sdp_encode_file_transfer_id_attr, "a=file-transfer-id:", "\r\n", 180},
        {section->file_icon, dak_sdp_encode_file_icon_attr, "a=file-icon:cid:", "\r\n", 183},
        {section->file_date.read, dak_sdp_encode_file_date_attr, "a=file-date:read:\"", "\"\r\n", 181},
        {section->file_selectors[0].name, encode_first_selector, "a=file-selector:name:\"", "\" \r\n", 175},
    };
    for (const auto &row : rows) {
        for (const std::size_t length : {row.longest, row.longest + 1, std::size_t{256}}) {
            std::memset(row.field, 'x', length);
            EXPECT_EQ(written_by(row.write, section),
                      length == row.longest ? (outcome{1, row.head + xs(length) + row.tail})
                                            : logged(0, "src str len exceeds dest str len 200\n"))
                << row.head << length;
        }
    }
    EXPECT_EQ(dak_sdp_set_media_file_transfer_id_attr(section, xs(300).c_str()), 1);
    EXPECT_EQ(dak_sdp_set_media_file_icon_attr(section, xs(300).c_str()), 1);
    EXPECT_EQ(dak_sdp_get_message_file_transfer_id_attrs(section), xs(255));
    EXPECT_EQ(dak_sdp_get_message_file_icon_attrs(section), xs(255));
}

template <class Get, class Record, class... Index> void expect_zero(Get get, Record record, Index... index)
{
    const Record zero{};
    std::memset(&record, 0x5A, sizeof record);
    EXPECT_EQ(call(get, &record, nullptr, index...), log_only(0, " invalid input argumet \n"));
    EXPECT_EQ(std::memcmp(&record, &zero, sizeof zero), 0);
    EXPECT_EQ(call(get, nullptr, nullptr, index...), refused);
}

TEST_F(FileTransfer, records_are_copied_in_and_out)
{
    const section_ptr section = new_section("TCP/MSRP");
    for (media_description *to : {section.get(), (media_description *)nullptr}) {
        const outcome seen = to != nullptr ? done : log_only(0, "null params \n");
        EXPECT_EQ(call(dak_sdp_set_media_file_disposition_attr, to, sdp_file_disposition{1, 2}), seen);
        EXPECT_EQ(call(dak_sdp_set_media_file_date_attr, to, sdp_file_date{"c", "m", "r"}), seen);
        EXPECT_EQ(call(dak_sdp_set_media_file_range_attr, to, sdp_file_range{-1, 7}), seen);
        EXPECT_EQ(call(dak_sdp_set_media_num_of_file_selectors_attr, to, -9), seen);
        EXPECT_EQ(
            call(dak_sdp_set_media_file_selector_attr, to, sdp_file_selector{"n", 5, 1, 2, 3, "h", 0}, 4),
            seen);
        EXPECT_EQ(call(dak_sdp_set_media_file_transfer_id_attr, to, "id"), seen);
        EXPECT_EQ(call(dak_sdp_set_media_file_icon_attr, to, "i"), seen);
    }
    EXPECT_EQ(call(dak_sdp_set_media_file_icon_attr, section, nullptr), refused);
    EXPECT_EQ(shown(section),
              "id<id> disposition<2> creation<c> modification<m> read<r> icon<i> range<-1..7> count<-9> "
              "selector<n|5|1|2|3|h>");
    EXPECT_EQ(read_line(dak_sdp_parse_a_equal_file_selector_line, section, "a=file-selector:size:1"), 1);
    EXPECT_EQ(dak_sdp_get_message_num_of_file_selectors_attrs(section), 1) << "reading counts from 0";
    expect_zero(dak_sdp_get_message_file_disposition_attrs, sdp_file_disposition{});
    expect_zero(dak_sdp_get_message_file_date_attrs, sdp_file_date{});
    expect_zero(dak_sdp_get_message_file_range_attrs, sdp_file_range{});
    expect_zero(dak_sdp_get_message_file_selector_attrs, sdp_file_selector{}, 0);
    const outcome none = log_only(0, " invalid input argumet \n");
    EXPECT_EQ(call(dak_sdp_get_message_file_transfer_id_attrs, nullptr), none);
    EXPECT_EQ(call(dak_sdp_get_message_file_icon_attrs, nullptr), none);
    EXPECT_EQ(call(dak_sdp_get_message_num_of_file_selectors_attrs, nullptr), none);
    for (const int index : {-1, 5}) {
        sdp_file_selector record{"x", 1, 1, 1, 1, "x", 1};
        EXPECT_EQ(call(dak_sdp_set_media_file_selector_attr, section, record, index), refused);
        EXPECT_EQ(call(dak_sdp_get_message_file_selector_attrs, &record, section, index), refused);
        EXPECT_EQ(
            record.name[0] + record.type + record.size + record.hash_len + record.hash[0] + record.empty, 0U);
    }
}

} // namespace
