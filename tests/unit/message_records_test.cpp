#include "attr/file_transfer.h"
#include "attr/message_session.h"
#include "support.h"

// Records of message sessions and file transfers as callers store them; their lines have tables of their own.
namespace {

using MessageRecords = ContextTest;

TEST_F(MessageRecords, hold_what_no_line_can_give)
{
    const sdp_file_selector selectors[] = {{"x", 5, 1, 0, 0, "", 1},
                                           {"x", 4, 4294967295U},
                                           {"", 9, 0, 1, 5, "72:24"},
                                           {"", 8, 0, 0, 0, "72:24"}};
    EXPECT_EQ(dak_sdp_set_media_accept_attr(section, {0x301, 0, 0x10001, {9, 9}}),
              1); // a byte and 16 bits count
    EXPECT_EQ(dak_sdp_set_media_accept_wrapped_attr(section, {1, 0, 9, {10, 0, 77, 9, 9}}), 1);
    EXPECT_EQ(dak_sdp_set_media_path_attr(section, {1, 9, "", "h", 0, 4294967295U, "", "t"}), 1);
    EXPECT_EQ(dak_sdp_set_media_max_size_attr(section, {0x201, 7}), 1);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(dak_sdp_set_media_file_selector_attr(section, selectors[i], i), 1);
    EXPECT_EQ(dak_sdp_set_media_num_of_file_selectors_attr(section, 4), 1);
    EXPECT_EQ(dak_sdp_set_media_file_transfer_id_attr(section, "id"), 1);
    EXPECT_EQ(dak_sdp_set_media_file_disposition_attr(section, {0x101, 0}), 1);
    EXPECT_EQ(dak_sdp_set_media_file_date_attr(section, {"c", "", ""}), 1);
    EXPECT_EQ(dak_sdp_set_media_file_icon_attr(section, "i"), 1);
    EXPECT_EQ(dak_sdp_set_media_file_range_attr(section, {-2147483647 - 1, 2147483647}), 1);
    const std::string held = message_session(section) + file_transfer(section);
    EXPECT_EQ(held,
              "  types 769|0|65537|9|9|0|0|0\n  wrapped 1|0|9|10|0|77|9|9\n  path 1|9||h|0|4294967295||t\n"
              "  size 513|7\n  id id\n  disposition 257|0\n  date c||\n  icon i\n"
              "  range -2147483648|2147483647\n  files 4\n  file x|5|1|0|0||1\n"
              "  file x|4|4294967295|0|0||0\n  file |9|0|1|5|72:24|0\n  file |8|0|0|0|72:24|0\n");
    EXPECT_EQ(written_by(dak_sdp_encode_file_range_attr, section).text,
              "a=file-range:-2147483648-2147483647\r\n");
    add_media_description_to_sdp_encoder(context, std::exchange(section, nullptr));
    EXPECT_EQ(dak_sdp_encode(context), 1) << "without the range, which starts in front of the file";
    EXPECT_STREQ(get_sdp_text(context),
                 "m=audio 49170 RTP/AVP\r\na=accept-types:*\r\na=acceptwrapped-types: text/plain  * *\r\n"
                 "a=path:h:4294967295/;t\r\na=max-size:7\r\na=file-selector\r\n"
                 "a=file-selector:name:\"x\" size:4294967295 \r\na=file-selector:hash:72:24\r\n"
                 "a=file-selector:type:image/gif \r\na=file-transfer-id:id\r\na=file-disposition:inline\r\n"
                 "a=file-date:creation:\"c\"\r\na=file-icon:cid:i\r\n");
}

TEST_F(MessageRecords, that_are_absent_are_neither_read_nor_written)
{
    for (const uint32_t present : {0U, 2U, 0x100U}) {
        dak_sdp_set_media_accept_attr(section, {present, 0, 1, {9}});
        dak_sdp_set_media_accept_wrapped_attr(section, {present, 0, 1, {9}});
        dak_sdp_set_media_path_attr(section, {present, 0, "u"});
        dak_sdp_set_media_max_size_attr(section, {present, 7});
        for (const auto write : {dak_sdp_encode_accept_attr, dak_sdp_encode_accept_wrapped_attr,
                                 dak_sdp_encode_path_attr, dak_sdp_encode_max_size_attr})
            EXPECT_EQ(written_by(write, section), log_only(0, " Invalid accept params \n")) << present;
        EXPECT_EQ(message_session(section), "");
        dak_sdp_set_media_file_disposition_attr(section, {present, 0});
        EXPECT_EQ(written_by(dak_sdp_encode_file_disposition_attr, section), done);
    }
    sdp_path_attr path{1, 1, "u"};
    dak_sdp_get_message_path_attrs(&path, nullptr);
    EXPECT_EQ(path.user[0] + path.scheme, 0U) << "of no section, all is zero";
    for (const int index : {-1, 5}) {
        sdp_file_selector file{"x", 1, 1, 1, 1, "x", 1};
        EXPECT_EQ(written_by(dak_sdp_encode_file_selector_attr, section, index),
                  log_only(0, " Invalid params \n"));
        EXPECT_EQ(call(dak_sdp_set_media_file_selector_attr, section, file, index), refused);
        EXPECT_EQ(call(dak_sdp_get_message_file_selector_attrs, &file, section, index), refused);
        EXPECT_EQ(file.type + file.name[0], 0U);
    }
    EXPECT_EQ(set_transport_profile(section, "TCP/MSRP", 8), 1);
    EXPECT_EQ(dak_sdp_set_media_num_of_file_selectors_attr(section, -9), 1);
    EXPECT_EQ(read_line(dak_sdp_parse_a_equal_file_selector_line, section, "a=file-selector:size:1"), 1);
    EXPECT_EQ(dak_sdp_get_message_num_of_file_selectors_attrs(section), 1) << "reading counts from 0";
}

// More can be stored than fits a line, 256 characters without a terminator.
TEST_F(MessageRecords, fields_without_a_terminator_are_too_long)
{
    EXPECT_EQ(dak_sdp_set_media_file_transfer_id_attr(section, xs(300).c_str()), 1);
    EXPECT_EQ(dak_sdp_get_message_file_transfer_id_attrs(section), xs(255)) << "kept cut";
    dak_sdp_set_media_path_attr(section, {1});
    section->file_selectors[4].hash_len = 1;
    const auto encode_last_selector = [](sdp_lib_context *in, media_description *from) {
        return dak_sdp_encode_file_selector_attr(in, from, 4);
    };
    const std::pair<char(&)[256], int (*)(sdp_lib_context *, media_description *)> rows[] = {
        {section->path.user, dak_sdp_encode_path_attr},
        {section->path.host, dak_sdp_encode_path_attr},
        {section->path.session_id, dak_sdp_encode_path_attr},
        {section->path.transport, dak_sdp_encode_path_attr},
        {section->file_transfer_id, dak_sdp_encode_file_transfer_id_attr},
        {section->file_icon, dak_sdp_encode_file_icon_attr},
        {section->file_date.read, dak_sdp_encode_file_date_attr},
        {section->file_selectors[4].name, encode_last_selector},
        {section->file_selectors[4].hash, encode_last_selector},
    };
    for (const auto &[field, write] : rows) {
        std::memset(field, 'x', sizeof field);
        EXPECT_EQ(written_by(write, section), logged(0, "src str len exceeds dest str len 200\n"));
        field[0] = '\0';
    }
}

} // namespace
