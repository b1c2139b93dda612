#ifndef DAKSDP_TESTS_OA_CODEC_FMTP_CASE_H
#define DAKSDP_TESTS_OA_CODEC_FMTP_CASE_H

#include <string>
#include <vector>

#include "daksdp.h"
#include "platform_test.h"

// Tables of fmtp texts and parameter blocks. A table is a text of one row a line, its columns separated by
// "|"; a line that begins with "|", ";" or "&", which is dropped, continues the row above. "{x:62}" stands
// for 62 times x.
//
// A block is those of its fields that are not clear, in their order: "name=value", or "name[flag]=value"
// where the flag is not 1. "frame[2]=0" is fmtp_present 2 and marker 0; without it both are 1.
//
// Log texts go by the short names that stand in fmtp_case.cpp, a value behind ":".
namespace fmtp_case {

using columns = std::vector<std::string>;
std::vector<columns> table(const std::string &text);

// What a call gave, as one text: its code, what it left behind, the log texts joined by "|" and "!" for a
// reported assertion.
std::string outcome(uint32_t code, const std::string &left = "", const std::string &log_names = "",
                    bool reported = false);
// The log texts since that line, and "!" for a report since that one.
std::string logged_since(std::size_t log_lines, std::size_t reports);

// Makes a call; `show` tells afterwards what it left.
template <class Call, class Show> std::string see(Call call, Show show)
{
    const std::size_t log_lines = standin::logs().size(), reports = standin::assert_count();
    const auto code = static_cast<uint32_t>(call());
    const std::string log = logged_since(log_lines, reports);
    return std::to_string(code) + " [" + show() + "] " + log;
}
template <class Call> std::string see(Call call)
{
    return see(call, [] { return ""; });
}

// For texts too long to be copied, where a report is left open.
inline std::string without_report(const std::string &outcome)
{
    return outcome.substr(0, outcome.find_last_not_of('!') + 1);
}

// A media section with one payload format, 97, and what an fmtp line says of it. A text that ends in "="
// stores an empty value, which no line can do.
class section {
public:
    explicit section(const std::string &codec, const std::string &fmtp = "");
    section(const section &) = delete;
    ~section() { clean_media_description(md_); }
    operator media_description *() const { return md_; }
    // What stands behind "a=fmtp:97 " when the format is written; "" without such a line.
    std::string fmtp() const;

private:
    media_description *md_;
};

// A codec's parameter block, in memory that ends with it; all clear without a text.
class block {
public:
    explicit block(const std::string &codec, const std::string &fields = "frame[0]=0");
    operator char *() const { return bytes_.get(); }
    template <class Block> Block &as() const { return *reinterpret_cast<Block *>(bytes_.get()); }
    std::string shown() const;
    std::string bytes() const { return std::string(bytes_.get(), size_); }

private:
    std::string codec_;
    std::size_t size_;
    std::unique_ptr<char[]> bytes_;
};

// label | fmtp text, or block that was there before > fmtp text | block | what encoding it writes: the fmtp
// text without this column or for "=" | log of decoding | code of decoding, and no encoding when it is not 0
void expect_decoded(const std::string &codec, const std::string &rows);

// label | block | fmtp text written | log | code, "!" behind it for a reported assertion. A label that
// ends in "G729" has it written into a payload format of that name, which takes no parameters.
void expect_encoded(const std::string &codec, const std::string &rows);

} // namespace fmtp_case

#endif
