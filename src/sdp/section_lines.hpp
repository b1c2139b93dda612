// Walking the lines of a media section.
#ifndef DAKSDP_SDP_SECTION_LINES_HPP
#define DAKSDP_SDP_SECTION_LINES_HPP

#include "util/scan.hpp"
#include "util/text_range.hpp"

namespace dak {

// The lines behind an m= line, which are walked twice: the second walk does not search for the first of them
// again.
class section_lines {
public:
    section_lines(const char *start, const char *end) : start_(start), position_(start), end_(end) {}

    // The next line; empty at the next m= line and at the end of the text.
    text_range next()
    {
        text_range line(position_, position_);
        if (walked_ < remembered_) {
            line = {starts_[walked_], stops_[walked_]};
            walked_++;
        } else {
            line = next_line(position_, end_);
            if (line.begins_with("m="))
                return {position_, position_};
            remember(line);
        }
        position_ = line.last;
        return line;
    }

    void rewind()
    {
        position_ = start_;
        walked_ = 0;
    }

private:
    static constexpr int most_remembered = 40;

    void remember(text_range line)
    {
        if (remembered_ == most_remembered || line.empty())
            return;
        starts_[remembered_] = line.first;
        stops_[remembered_] = line.last;
        walked_ = ++remembered_;
    }

    const char *start_;
    const char *position_;
    const char *end_;
    int walked_ = 0;
    int remembered_ = 0;
    const char *starts_[most_remembered];
    const char *stops_[most_remembered];
};

} // namespace dak

#endif
