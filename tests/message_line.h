#ifndef DAKSDP_TESTS_MESSAGE_LINE_H
#define DAKSDP_TESTS_MESSAGE_LINE_H

#include "support.h"

// A line of a message session, its reader and writer, the line that is written back and what is logged in a
// section of another profile.
struct message_line {
    std::string line;
    line_reader read;
    int (*write)(sdp_lib_context *context, media_description *section);
    std::string written_back = line;
    std::string other_profile = "RTCP fb not supported for this profile ";
};

inline void expect_message_lines(const std::vector<message_line> &rows)
{
    for (const auto &[line, read, write, written_back, other_profile] : rows) {
        SCOPED_TRACE(line);
        const auto text = [w = write](media_description *section) { return written_by(w, section).text; };
        const section_ptr section = new_section("TCP/MSRP");
        for (const std::string_view line_end : line_ends)
            EXPECT_EQ(lines_read(read, new_section("TCP/MSRP"), {line}, line_end, text),
                      (outcome{1, written_back + "\r\n"}));
        for (const std::string profile : {"TCP/TLS/MSRP", "tcp/msrp", "TCP/MSRP2", "RTP/AVPF"})
            EXPECT_EQ(lines_read(read, new_section(profile.c_str()), {line}, "\n", text),
                      log_only(1, other_profile + profile + " \n", text(section)));
        const outcome unread = log_only(0, "NULL Pararms sent \n"),
                      unwritten = log_only(0, " Invalid params \n");
        EXPECT_EQ(call(read, nullptr, line.data(), line.data()), unread);
        EXPECT_EQ(call(read, section, nullptr, line.data()), unread);
        EXPECT_EQ(call(write, nullptr, section), unwritten);
        EXPECT_EQ(written_by(write, nullptr), unwritten);
        read_line(read, section, line);
        std::vector<std::string> pieces = {written_back, "\r\n"};
        if (line.starts_with("a=file-date")) // its closing quote goes with the line end
            pieces = {line.substr(0, line.size() - 1), "\"\r\n"};
        expect_pieces([&, w = write](auto *context) { return w(context, section); }, pieces,
                      " Unable to fill SDP buffer \n");
    }
}

#endif
