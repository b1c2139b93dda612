// Every example body, damaged at every place. Whatever the damage, each call ends with a result that it states
// and leaves no memory behind, and what is not damaged is read as before.

#include "outcome.h"
#include "reading.h"

#include <malloc.h>

#include <functional>
#include <set>

namespace {

using codes = std::set<uint32_t>;
const codes of_parsing = {0, 1, 3, 4, 5, 6, 7}, of_generation = {0, 1, 3, 4, 7};
const codes of_offers = {0, 1, 2, 3, 4, 5, 7, 8, 11, 12, 13, 14};
const codes of_answers = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};

// A body, its lines with their ends, and the media section of each line; -1 is the session.
struct example {
    explicit example(const std::string &body) : text(body)
    {
        for (std::size_t start = 0, end = 0; start < body.size(); start = end) {
            end = std::min(body.find_first_not_of("\r\n", body.find_first_of("\r\n", start)), body.size());
            lines.push_back(body.substr(start, end - start));
            sections.push_back((sections.empty() ? -1 : sections.back()) + is_m_line(lines.size() - 1));
        }
    }
    bool is_m_line(std::size_t line) const { return lines[line].starts_with("m="); }
    std::size_t line_at(std::size_t place) const
    {
        std::size_t line = 0;
        for (; line + 1 < lines.size() && place >= lines[line].size(); ++line)
            place -= lines[line].size();
        return line;
    }
    // What a line is about: its type or its attribute's name. Preconditions are one list of three names.
    std::string name(std::size_t line) const
    {
        const std::string bare = lines[line].substr(lines[line].find_first_not_of(' '));
        const std::string word = bare.substr(0, bare[0] == 'a' ? bare.find_first_of(":\r\n") : 2);
        return word == "a=des" || word == "a=conf" ? "a=curr" : word;
    }

    std::string text;
    std::vector<std::string> lines;
    std::vector<int> sections;
};

// A damaged body, the first and the last line of the damage, and a body that is read alike, if there is one.
struct damage {
    std::string text;
    std::size_t first, last;
    std::string twin = {};
};

using examine = std::function<void(const damage &)>;

// Every prefix. A NUL is as good as the end.
void cut(const example &body, const examine &look)
{
    for (std::size_t length = 1; length < body.text.size(); ++length) {
        const std::string prefix = body.text.substr(0, length);
        const std::size_t line = body.line_at(length);
        look({prefix, line, body.lines.size()});
        look({prefix + '\0' + body.text.substr(length + 1), line, body.lines.size(), prefix});
    }
}

std::string joined(const std::vector<std::string> &lines)
{
    std::string text;
    for (const std::string &line : lines)
        text += line;
    return text;
}

void drop(const example &body, const examine &look)
{
    for (std::size_t i = 0; i < body.lines.size(); ++i) {
        std::vector<std::string> lines = body.lines;
        lines.erase(lines.begin() + static_cast<int>(i));
        look({joined(lines), i, i});
    }
}

// A line that fills a list counts twice; of all others one is as good as two.
void repeat(const example &body, const examine &look)
{
    const std::set<std::string> lists = {"m=", "b=", "a=group", "a=curr", "a=rtcp-fb", "a=file-selector"};
    for (std::size_t i = 0; i < body.lines.size(); ++i) {
        std::vector<std::string> lines = body.lines;
        lines[i] += lines[i];
        look({joined(lines), i, i, lists.contains(body.name(i)) ? "" : body.text});
    }
}

// Neighbours of one section that are about different things may change places.
void swap(const example &body, const examine &look)
{
    for (std::size_t i = 0; i < body.lines.size(); ++i) {
        for (std::size_t k = i + 1; k < body.lines.size(); ++k) {
            std::vector<std::string> lines = body.lines;
            std::swap(lines[i], lines[k]);
            const bool is_same = k == i + 1 && body.sections[i] == body.sections[k] && !body.is_m_line(i) &&
                                 body.name(i) != body.name(k);
            look({joined(lines), i, k, is_same ? body.text : ""});
        }
    }
}

// Replaces each run of characters that are, or are not, among these.
void replace_runs(const example &body, const examine &look, std::string_view characters, bool are_among,
                  const std::vector<std::string> &replacements)
{
    const std::string &text = body.text;
    const auto belongs = [&](char c) { return (characters.find(c) != characters.npos) == are_among; };
    for (auto end = text.begin(); end != text.end();) {
        const auto start = std::find_if(end, text.end(), belongs);
        end = std::find_if_not(start, text.end(), belongs);
        const std::size_t line = body.line_at(static_cast<std::size_t>(start - text.begin()));
        for (const std::string &replacement : replacements)
            if (start != end)
                look({std::string(text.begin(), start) + replacement + std::string(end, text.end()), line,
                      line});
    }
}

void numbers(const example &body, const examine &look)
{
    replace_runs(body, look, "0123456789", true,
                 {"", "-1", "0", "65535", "65536", "2147483647", "2147483648", "4294967295", "4294967296",
                  "9223372036854775808", "18446744073709551616", std::string(30, '9')});
}

void tokens(const example &body, const examine &look)
{
    replace_runs(body, look, "\r\n :;,=/\"", false, {std::string(300, 'x')});
}

template <class... Text> bool end(const Text &...texts)
{
    return ((strnlen(texts, sizeof texts) < sizeof texts) && ...);
}

bool is_sound(const sdp_payload_format &format);
bool is_sound(const sdp_address &address) { return end(address.net_type, address.address); }
bool is_sound(const sdp_rtcp_fb &feedback) { return end(feedback.fb_param); }
bool is_sound(const sdp_file_selector &file) { return end(file.name, file.hash); }

template <class Record, std::size_t N> bool is_sound(const Record (&list)[N], std::size_t count)
{
    return count <= N && std::all_of(list, list + N, [](const Record &record) { return is_sound(record); });
}

bool is_sound(const sdp_payload_format &format)
{
    const sdp_codec_params &params = format.params;
    const auto &h264 = params.h264;
    return is_sound(format.rtcp_fb, format.num_rtcp_fb) &&
           (format.codec_id != 106 || end(params.h263_1998.params.cpcf)) &&
           (format.codec_id != 107 || end(params.h263_2000.params.cpcf)) &&
           (format.codec_id != 113 || end(h264.profile_level_id, h264.sprop_parameter_sets));
}

bool is_sound(const sdp_media_line &line)
{
    return is_sound(line.connection) && end(line.rtcp_address.network_type, line.rtcp_address.address) &&
           end(line.mid, line.path.user, line.path.host, line.path.session_id, line.path.transport) &&
           end(line.file_transfer_id, line.file_icon, line.file_date.creation, line.file_date.modification,
               line.file_date.read) &&
           is_sound(line.formats, line.num_formats) && is_sound(line.rtcp_fb, line.num_rtcp_fb) &&
           is_sound(line.file_selectors, static_cast<uint32_t>(line.num_file_selectors)) &&
           line.num_preconds <= SDP_MAX_PRECONDS && line.accept_types.count <= SDP_ACCEPT_MAX_TYPES &&
           line.accept_wrapped_types.count <= SDP_ACCEPT_MAX_TYPES;
}

// Whether texts are terminated and counts within their limits.
bool is_sound(const sdp_container &session)
{
    bool sound = session.num_mlines <= SDP_MAX_MLINES && is_sound(session.origin_address) &&
                 is_sound(session.connection) &&
                 end(session.origin_username, session.session_name, session.info);
    for (const sdp_group &group : session.groups)
        for (int i = 0; i < group.num_mids; ++i)
            sound = sound && i < SDP_MAX_GROUP_MIDS && group.mline_index[i] < session.num_mlines;
    for (int i = 0; i < session.num_mlines; ++i)
        sound = sound && is_sound(session.mlines[i]);
    return sound;
}

// Reads the same text with the lower layer, which refuses no more than the upper one and says so, and writes
// what it read. What was written can be read.
void read_document(const heap_text &block, uint32_t result)
{
    const context_ptr context(init_sdp_lib()), again(init_sdp_lib());
    const std::size_t reports = standin::assert_count();
    const int parsed = sdp_parse(context.get(), block.data(), static_cast<uint32_t>(block.size()));
    EXPECT_TRUE(parsed == 1 || (result == 6 && standin::assert_count() > reports));
    std::swap(context->encoder_document, context->parser_document);
    if (dak_sdp_encode(context.get()) == 0 || parsed == 0)
        return;
    const heap_text text(get_sdp_text(context.get()));
    EXPECT_EQ(sdp_parse(again.get(), text.data(), static_cast<uint32_t>(text.size())), 1);
}

// What is in front of the damage and behind it is as before. Damage behind an m= line changes nothing but its
// media line and the groups.
void expect_the_rest(const reading &seen, const reading &whole, const example &body, const damage &done)
{
    const std::size_t count = seen.session.num_mlines, whole_count = whole.session.num_mlines;
    const int section = body.sections[done.first];
    if (seen.result == 0 && section > 0) {
        const std::size_t front = std::min<std::size_t>(section - body.is_m_line(done.first), count - 1);
        EXPECT_TRUE(lines_of(seen.session, 0, front) == lines_of(whole.session, 0, front));
    }
    if (done.last == body.lines.size())
        return;
    const std::size_t back = whole_count - 1 - body.sections[done.last];
    EXPECT_TRUE(seen.result != 0 || lines_of(seen.session, count - back, back) ==
                                        lines_of(whole.session, whole_count - back, back));
    if (section >= 0 && !body.is_m_line(done.first) && !body.is_m_line(done.last)) {
        EXPECT_TRUE(seen.result == whole.result && count == whole_count &&
                    head_of(seen.session) == head_of(whole.session));
    }
}

void expect_same(const reading &seen, const reading &twin)
{
    const std::size_t count = seen.session.num_mlines;
    EXPECT_TRUE(seen.result == twin.result && count == twin.session.num_mlines &&
                head_of(seen.session) == head_of(twin.session) &&
                lines_of(seen.session, 0, count) == lines_of(twin.session, 0, count));
}

void validate(const sdp_container &session, const sdp_container &other)
{
    EXPECT_TRUE(of_offers.contains(dak_app_oa_validate_initial_offer(&session)));
    EXPECT_TRUE(of_offers.contains(dak_app_oa_validate_modified_sdp(&session, &other)));
    EXPECT_TRUE(of_offers.contains(dak_app_oa_validate_modified_sdp(&other, &session)));
    EXPECT_TRUE(of_answers.contains(dak_app_oa_validate_answer(&session, &other)));
    EXPECT_TRUE(of_answers.contains(dak_app_oa_validate_answer(&other, &session)));
}

// What was generated can be read. Not all that is written can be, but what comes back then stays.
void rewrite(sdp_container &session)
{
    const ending written = generate(session);
    EXPECT_TRUE(of_generation.contains(written.first));
    if (written.first != 0)
        return;
    reading first(written.second);
    EXPECT_EQ(first.result, 0U);
    const ending again = generate(first.session);
    if (again == written)
        return;
    reading second(again.second);
    EXPECT_EQ(generate(second.session), again) << written.second;
}

void look_at(const reading &whole, const example &body, const damage &done)
{
    reading seen(done.text);
    EXPECT_EQ(seen.block.view(), done.text) << "the text is only read";
    EXPECT_TRUE(of_parsing.contains(seen.result)) << seen.result;
    EXPECT_TRUE(is_sound(seen.session));
    expect_the_rest(seen, whole, body, done);
    if (!done.twin.empty())
        return expect_same(seen, reading(done.twin));
    read_document(seen.block, seen.result);
    dak_app_oa_print_sdp_container(&seen.session);
    validate(seen.session, whole.session);
    if (seen.result == 0)
        rewrite(seen.session);
}

// Looks at every damage of a kind to every example.
void sweep(void (*kind)(const example &, const examine &))
{
    // Media lines of 840 KB come and go; handing them back to the system takes longer than all else.
    mallopt(M_MMAP_THRESHOLD, 1 << 25);
    mallopt(M_TRIM_THRESHOLD, 1 << 26);
    for (const auto &file : examples()) {
        const example body(file.second);
        const reading whole(file.second);
        kind(body, [&](const damage &done) {
            if (testing::Test::HasFailure())
                return;
            SCOPED_TRACE(file.first + ": " + done.text);
            standin::reset();
            look_at(whole, body, done);
            EXPECT_EQ(standin::live_blocks(), 0);
        });
    }
}

// A test each, so that they run side by side.
TEST(Damage, by_a_cut) { sweep(cut); }
TEST(Damage, by_a_dropped_line) { sweep(drop); }
TEST(Damage, by_a_repeated_line) { sweep(repeat); }
TEST(Damage, by_swapped_lines) { sweep(swap); }
TEST(Damage, by_other_numbers) { sweep(numbers); }
TEST(Damage, by_long_tokens) { sweep(tokens); }

} // namespace
