#ifndef DAKSDP_TESTS_VALIDATION_TEST_H
#define DAKSDP_TESTS_VALIDATION_TEST_H

#include <algorithm>
#include <initializer_list>
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
    session earlier;
    session later;
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
                           std::string_view reasons)
{
    EXPECT_EQ(got.code, code) << label << ": " << got.reasons;
    if (reasons.starts_with('~'))
        EXPECT_TRUE(got.reasons.ends_with(reasons.substr(1))) << label << ": " << got.reasons;
    else
        EXPECT_EQ(got.reasons, reasons) << label;
}

template <class Subject> struct row {
    const char *label;
    void (*edit)(Subject &);
    uint32_t code;
    const char *reasons = "";
};

template <class Subject> using table = std::vector<row<Subject>>;

// Each row by itself.
template <class Subject, class Make, class Validate>
void expect_each(const table<Subject> &rows, Make make, Validate validate)
{
    for (const row<Subject> &each : rows) {
        Subject subject = make();
        each.edit(subject);
        expect_verdict(each.label, validate(subject), each.code, each.reasons);
    }
}

// Each row together with all that follow, whose checks come later: it decides. A row's edit is made after
// those of the rows that follow, and takes back what would hide it.
template <class Subject, class Make, class Validate>
void expect_in_order(const table<Subject> &rows, Make make, Validate validate)
{
    for (std::size_t first = 0; first < rows.size(); ++first) {
        Subject subject = make();
        for (std::size_t each = rows.size(); each-- > first;)
            rows[each].edit(subject);
        expect_verdict(std::string(rows[first].label) + " and all that follow", validate(subject),
                       rows[first].code, rows[first].reasons);
    }
    expect_each(rows, make, validate);
}

template <std::size_t Size> void fill(char (&field)[Size], char character)
{
    std::fill_n(field, Size, character); // and no NUL
}

inline sdp_precondition current(uint32_t status, uint32_t direction)
{
    sdp_precondition entry = {.kind = 1, .precond_type = 1};
    entry.status = {status, direction};
    return entry;
}

inline sdp_precondition desired(uint32_t strength, uint32_t status, uint32_t direction)
{
    sdp_precondition entry = {.kind = 2, .precond_type = 1};
    entry.desired = {strength, status, direction};
    return entry;
}

inline sdp_tel_event_params events(std::initializer_list<sdp_tel_event_entry> entries)
{
    sdp_tel_event_params block = {.fmtp_present = 1, .tel_event_valid = 1, .events_present = 1};
    std::copy(entries.begin(), entries.end(), block.events);
    return block;
}

// Voice with telephone events, and a picture in step with it.
inline const char grouped_body[] = R"(v=0
o=- 7 7 IN IP4 192.0.2.1
s=-
c=IN IP4 192.0.2.1
b=AS:64
t=0 0
a=sendrecv
a=group:LS voice picture
m=audio 4000 RTP/AVP 97 101
a=mid:voice
a=rtpmap:97 AMR/8000
a=rtpmap:101 telephone-event/8000
a=fmtp:101 0-15
a=ptime:20
m=video 4002 RTP/AVP 113
a=mid:picture
a=rtpmap:113 H264/90000
)";

inline session grouped() { return session(grouped_body); }

} // namespace validation

#endif
