// What the records of a media section hold of its lines: the rest has to be shown as it was received.
#ifndef DAKSDP_TOOLS_HELD_LINES_HPP
#define DAKSDP_TOOLS_HELD_LINES_HPP

#include "daksdp.h"

#include <set>
#include <string>
#include <string_view>

namespace inspector {

// A line without the blanks that mean nothing: none around an attribute's colon, one between words. An
// attribute with nothing behind its colon loses the colon.
std::string normal_line(std::string_view line);

// The lines of one media section that its records give back in full.
class held_lines {
public:
    explicit held_lines(media_description &description);

    // Whether the records hold this line, a normal one. What they hold once answers for one line only.
    bool take(const std::string &line);

private:
    void add(const std::string &line);
    void add_media_line();
    void add_typed_lines();
    void add_rtpmap(int index);
    void add_feedback(const std::string &payload, const rtcp_fb_list &feedback);
    void add_preconditions();
    void add_message_session();
    void add_file_transfer();
    void add_file_dates();
    void add_file_date(const std::string &kind, const std::string &date);
    bool holds_fmtp(std::string_view line);
    bool holds_parameter(int index, std::string_view parameter);

    media_description &description_;
    std::multiset<std::string> lines_;
    std::set<const char *> taken_values_; // of parameters, in the records
};

} // namespace inspector

#endif
