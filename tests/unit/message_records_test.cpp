#include "attr/file_transfer.h"
#include "attr/message_session.h"
#include "support.h"

// Records of message sessions and file transfers as callers store them; their lines have tables of their own.
namespace {

using MessageRecords = ContextTest;

const outcome absent = log_only(0, " Invalid accept params \n");
const outcome too_long = logged(0, "src str len exceeds dest str len 200\n");

int encode_first_selector(sdp_lib_context *in, media_description *from)
{
    return dak_sdp_encode_file_selector_attr(in, from, 0);
}

TEST_F(MessageRecords, types_that_no_line_can_give)
{
    const std::pair<sdp_accept_attr, outcome> rows[] = {
        {{1, 0, 3, {10, 0, 77}}, {1, "a=accept-types: text/plain \r\n"}},
        {{1, 0, 0, {0}}, {1, "a=accept-types:\r\n"}},
        {{1, 0, 9, {9, 9, 9, 9, 9}}, {1, "a=accept-types:* * * * *\r\n"}},
        {{0x301, 0, 0x10001, {9, 9}}, {1, "a=accept-types:*\r\n"}}, // a byte and 16 bits count
        {{0x100, 0, 1, {9}}, absent},
        {{2, 0, 1, {9}}, absent},
    };
    for (const auto &[record, seen] : rows) {
        EXPECT_EQ(call(dak_sdp_set_media_accept_attr, section, record), done);
        EXPECT_EQ(written_by(dak_sdp_encode_accept_attr, section), seen);
        sdp_accept_attr stored;
        dak_sdp_get_message_accept_attrs(&stored, section);
        EXPECT_EQ(stored.types[0], seen.result == 1 ? record.types[0] : 0U) << "what is absent is all zero";
    }
    for (const auto write :
         {dak_sdp_encode_accept_wrapped_attr, dak_sdp_encode_path_attr, dak_sdp_encode_max_size_attr})
        EXPECT_EQ(written_by(write, section), absent);
    EXPECT_EQ(call(dak_sdp_set_media_accept_wrapped_attr, section, sdp_accept_attr{1, 0, 2, {10, 0}}), done);
    EXPECT_EQ(call(dak_sdp_set_media_path_attr, section, sdp_path_attr{1, 9, "", "h", 0, 0, "", "t"}), done);
    EXPECT_EQ(call(dak_sdp_set_media_max_size_attr, section, sdp_max_size_attr{0x201, 7}), done);
    EXPECT_EQ(written_by(dak_sdp_encode_accept_wrapped_attr, section).text,
              "a=acceptwrapped-types: text/plain\r\n");
    EXPECT_EQ(written_by(dak_sdp_encode_path_attr, section).text, "a=path:h/;t\r\n")
        << "a scheme without text";
    EXPECT_EQ(written_by(dak_sdp_encode_max_size_attr, section).text, "a=max-size:7\r\n");
    EXPECT_EQ(message_session(section), "  wrapped 1|0|2|10|0|0|0|0\n  path 1|9||h|0|0||t\n  size 513|7\n");
}

TEST_F(MessageRecords, selectors_that_no_line_can_give)
{
    const std::pair<sdp_file_selector, std::string> rows[] = {
        {{"x", 5, 1, 0, 0, "", 1}, ""},
        {{"x", 4, 4294967295U}, ":name:\"x\" size:4294967295 "},
        {{"", 9, 0, 1, 5, "72:24"}, ":hash:72:24"},
        {{"", 8, 0, 0, 0, "72:24"}, ":type:image/gif "},
    };
    for (const auto &[record, line] : rows) {
        EXPECT_EQ(dak_sdp_set_media_file_selector_attr(section, record, 0), 1);
        EXPECT_EQ(written_by(encode_first_selector, section),
                  (outcome{1, "a=file-selector" + line + "\r\n"}));
    }
    for (const int index : {-1, 5}) {
        sdp_file_selector record{"x", 1, 1, 1, 1, "x", 1};
        EXPECT_EQ(written_by(dak_sdp_encode_file_selector_attr, section, index),
                  log_only(0, " Invalid params \n"));
        EXPECT_EQ(call(dak_sdp_set_media_file_selector_attr, section, record, index), refused);
        EXPECT_EQ(call(dak_sdp_get_message_file_selector_attrs, &record, section, index), refused);
        EXPECT_EQ(record.type + record.name[0], 0U);
    }
    EXPECT_EQ(set_transport_profile(section, "TCP/MSRP", 8), 1);
    EXPECT_EQ(dak_sdp_set_media_num_of_file_selectors_attr(section, -9), 1);
    EXPECT_EQ(read_line(dak_sdp_parse_a_equal_file_selector_line, section, "a=file-selector:size:1"), 1);
    EXPECT_EQ(dak_sdp_get_message_num_of_file_selectors_attrs(section), 1) << "reading counts from 0";
}

TEST_F(MessageRecords, other_values_that_no_line_can_give)
{
    dak_sdp_set_media_file_disposition_attr(section, {0x101, 0});
    EXPECT_EQ(written_by(dak_sdp_encode_file_disposition_attr, section).text,
              "a=file-disposition:inline\r\n");
    dak_sdp_set_media_file_disposition_attr(section, {0x100, 0});
    EXPECT_EQ(written_by(dak_sdp_encode_file_disposition_attr, section), done)
        << "an absent one is not written";
    dak_sdp_set_media_file_date_attr(section, {"c", "", ""});
    EXPECT_EQ(written_by(dak_sdp_encode_file_date_attr, section).text, "a=file-date:creation:\"c\"\r\n");
    dak_sdp_set_media_file_range_attr(section, {-2147483647 - 1, 2147483647});
    EXPECT_EQ(written_by(dak_sdp_encode_file_range_attr, section).text,
              "a=file-range:-2147483648-2147483647\r\n");
    add_media_description_to_sdp_encoder(context, section);
    EXPECT_EQ(dak_sdp_encode(context), 1);
    EXPECT_STREQ(get_sdp_text(context), "m=audio 49170 RTP/AVP\r\na=file-date:creation:\"c\"\r\n")
        << "a range starts at an octet";
    media_description *const kept = std::exchange(section, nullptr);
    EXPECT_EQ(dak_sdp_set_media_file_transfer_id_attr(kept, xs(300).c_str()), 1);
    EXPECT_EQ(dak_sdp_set_media_file_icon_attr(kept, xs(300).c_str()), 1);
    EXPECT_EQ(std::string(kept->file_transfer_id) + kept->file_icon, xs(255 + 255)) << "kept cut";
}

// More can be stored than fits a line, 256 characters without a terminator.
TEST_F(MessageRecords, fields_without_a_terminator_are_too_long)
{
    dak_sdp_set_media_path_attr(section, {1});
    const std::pair<char(&)[256], int (*)(sdp_lib_context *, media_description *)> rows[] = {
        {section->path.user, dak_sdp_encode_path_attr},
        {section->path.host, dak_sdp_encode_path_attr},
        {section->path.session_id, dak_sdp_encode_path_attr},
        {section->path.transport, dak_sdp_encode_path_attr},
        {section->file_transfer_id, dak_sdp_encode_file_transfer_id_attr},
        {section->file_icon, dak_sdp_encode_file_icon_attr},
        {section->file_date.read, dak_sdp_encode_file_date_attr},
        {section->file_selectors[0].name, encode_first_selector},
        {section->file_selectors[0].hash, encode_first_selector},
    };
    section->file_selectors[0].hash_len = 1;
    for (const auto &[field, write] : rows) {
        std::memset(field, 'x', sizeof field);
        EXPECT_EQ(written_by(write, section), too_long);
        field[0] = '\0';
    }
}

} // namespace
