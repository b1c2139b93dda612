#ifndef DAKSDP_TESTS_VALIDATION_TEST_H
#define DAKSDP_TESTS_VALIDATION_TEST_H

#include <algorithm>
#include <initializer_list>
#include <sstream>
#include <string>
#include <vector>

#include "oa/container.h"
#include "oa/parse.h"
#include "platform_test.h"

namespace validation {

// A body as a container, whose media lines lie in a block of exactly their size.
class session {
public:
    explicit session(std::string text) : container_(std::make_unique<sdp_container>())
    {
        const sdp_payload_buffer buffer = {text.data(), static_cast<uint16_t>(text.size())};
        EXPECT_EQ(dak_app_oa_parse_sdp(container_.get(), &buffer), 0U) << text;
        const std::size_t count = container_->num_mlines;
        mlines_.assign(container_->mlines, container_->mlines + count);
        dak_app_oa_cleanup_sdp_container(container_.get());
        resize(count);
    }

    sdp_container *get() const { return container_.get(); }
    sdp_container *operator->() const { return get(); }
    sdp_media_line &operator[](std::size_t index) { return mlines_.at(index); }
    sdp_payload_format &format(std::size_t index) { return mlines_.at(0).formats[index]; }
    // Media lines that are added are copies of the first.
    void resize(std::size_t count)
    {
        if (count != 0)
            mlines_.resize(count, mlines_.at(0));
        mlines_.shrink_to_fit();
        container_->mlines = mlines_.data();
        container_->num_mlines = static_cast<uint16_t>(count);
    }
    std::string bytes() const
    {
        return std::string(reinterpret_cast<const char *>(get()), sizeof *get()) +
               std::string(reinterpret_cast<const char *>(mlines_.data()),
                           mlines_.size() * sizeof(sdp_media_line));
    }

private:
    std::unique_ptr<sdp_container> container_;
    std::vector<sdp_media_line> mlines_;
};

// An offer and its answer, or an offer and the modified one.
struct exchange {
    session earlier, later;
};

struct verdict {
    uint32_t code;
    std::string reasons;
};

// Calls a validation, which may neither allocate nor touch the containers. The lines that only tell how many
// formats or events were found are no reasons.
template <class Validate> verdict judge(std::initializer_list<const session *> sessions, Validate validate)
{
    std::string before, after;
    for (const session *each : sessions)
        before += each->bytes();
    standin::reset();
    verdict result = {static_cast<uint32_t>(validate()), {}};
    for (const session *each : sessions)
        after += each->bytes();
    EXPECT_TRUE(before == after) << "a container has changed";
    EXPECT_EQ(standin::allocations(), 0U);
    for (const standin::log_line &line : standin::logs()) {
        EXPECT_TRUE(line.priority == 6 && !line.tagged) << line;
        if (!line.text.starts_with("Number of pylds") && line.text.find("num evts") == std::string::npos)
            result.reasons += line.text;
    }
    return result;
}

template <class Function, class... Arguments> verdict call(Function function, Arguments... arguments)
{
    return judge({}, [&] { return function(arguments...); });
}

// `reasons` are all lines in a row, or, after a '~', how they end.
inline void expect_verdict(const std::string &label, const verdict &got, uint32_t code,
                           std::string_view reasons = "")
{
    const bool is_end = reasons.starts_with('~');
    EXPECT_EQ(got.code, code) << label << ": " << got.reasons;
    EXPECT_TRUE(is_end ? got.reasons.ends_with(reasons.substr(1)) : got.reasons == reasons)
        << label << ": " << got.reasons;
}

template <class Subject> struct row {
    const char *label;
    void (*edit)(Subject &);
    uint32_t code;
    const char *reasons = "";
};

// An edit of a subject, s.
#define EDIT(...) [](auto &s) { __VA_ARGS__; }

// Each row by itself. Rows in order are also tried together with all that follow, whose checks come later:
// the first decides. A row's edit is made after those that follow, and takes back what would hide it.
template <class Subject, class Make, class Validate>
void expect_rows(const std::vector<row<Subject>> &rows, Make make, Validate validate, bool in_order = false)
{
    for (std::size_t first = 0; first < rows.size() * (in_order ? 2 : 1); ++first) {
        Subject subject = make();
        const std::size_t index = first % rows.size();
        for (std::size_t each = first < rows.size() ? index + 1 : rows.size(); each-- > index;)
            rows[each].edit(subject);
        expect_verdict(rows[index].label, validate(subject), rows[index].code, rows[index].reasons);
    }
}

template <std::size_t Size> void fill(char (&field)[Size], char character)
{
    std::fill_n(field, Size, character); // and no NUL
}

// "c15" is a current status: type and direction; "d413" a desired one: strength, type and direction. 'f' is a
// confirmation, '?' and 'x' are no kinds. What follows a '/' is the precondition's type, else qos.
inline std::vector<sdp_precondition> preconditions(const std::string &text)
{
    std::vector<sdp_precondition> list;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        const auto digit = [&](std::size_t at) { return static_cast<uint32_t>(word[at] - '0'); };
        sdp_precondition entry = {.kind = static_cast<uint32_t>(std::string("?cdfx").find(word[0]))};
        entry.precond_type = word.find('/') == std::string::npos ? 1 : digit(word.find('/') + 1);
        if (word[0] == 'd')
            entry.desired = {digit(1), digit(2), digit(3)};
        else
            entry.status = {digit(1), digit(2)};
        list.push_back(entry);
    }
    return list;
}

inline sdp_tel_event_params events(std::initializer_list<sdp_tel_event_entry> entries)
{
    sdp_tel_event_params block = {.fmtp_present = 1, .tel_event_valid = 1, .events_present = 1};
    std::copy(entries.begin(), entries.end(), block.events);
    return block;
}

// Voice with telephone events, and a picture in step with it.
inline session grouped()
{
    return session("v=0\no=- 7 7 IN IP4 192.0.2.1\ns=-\nc=IN IP4 192.0.2.1\nb=AS:64\nt=0 0\na=sendrecv\n"
                   "a=group:LS voice picture\nm=audio 4000 RTP/AVP 97 101\na=mid:voice\n"
                   "a=rtpmap:97 AMR/8000\na=rtpmap:101 telephone-event/8000\na=fmtp:101 0-15\na=ptime:20\n"
                   "m=video 4002 RTP/AVP 113\na=mid:picture\na=rtpmap:113 H264/90000\n");
}

inline exchange unchanged() { return {grouped(), grouped()}; }

} // namespace validation

#endif
