#include "oa/cases.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace oa_tests {

namespace {

const char *const blanks = " \t";

std::string trimmed(const std::string &text)
{
    const std::size_t first = text.find_first_not_of(blanks);
    return first == text.npos ? "" : text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

// A text with 62 times x for "(x*62)".
std::string repeated(std::string text)
{
    for (std::size_t open = text.find('('); open != text.npos; open = text.find('(', open + 1)) {
        const std::size_t close = std::min(text.find(')', open), text.size());
        const std::size_t star = std::min(text.find_last_of('*', close), close);
        const std::string count = star < open ? "" : text.substr(star, close - star).erase(0, 1);
        if (count.empty() || count.find_first_not_of("0123456789") != count.npos)
            continue;
        std::string all;
        for (int i = std::stoi(count); i > 0; --i)
            all += text.substr(open + 1, star - open - 1);
        text.replace(open, close + 1 - open, all);
    }
    return text;
}

// What a value of a file stands for.
std::string meant(std::string text)
{
    if (text.size() > 1 && text.starts_with('"') && text.ends_with('"'))
        text = text.substr(1, text.size() - 2);
    text = repeated(text);
    const std::pair<std::string, char> escapes[] = {
        {"\\n", '\n'}, {"\\t", '\t'}, {"\\0", '\0'}, {"\\xE9", '\xE9'}};
    for (const auto &[name, character] : escapes)
        for (std::size_t at = text.find(name); at != text.npos; at = text.find(name))
            text.replace(at, name.size(), 1, character);
    return text;
}

class reader {
public:
    explicit reader(const std::string &file) : file_(file) {}

    void read(const std::string &line)
    {
        ++line_number_;
        if (line.empty() || line.starts_with('#'))
            return;
        if (line.starts_with(' '))
            return add(trimmed(line));
        if (line.starts_with('['))
            return begin_section(line.substr(1, line.find(']') - 1));
        std::vector<std::string> cells = words(line, '|');
        if (cells[0] == "label") {
            columns_ = cells;
            return;
        }
        EXPECT_LE(cells.size(), columns_.size()) << line;
        cells.resize(std::min(cells.size(), columns_.size()));
        found.push_back(section_);
        found.back().label = cells[0];
        found.back().place = file_ + ":" + std::to_string(line_number_);
        for (std::size_t i = 1; i < cells.size(); ++i)
            found.back().own[columns_[i]].push_back(meant(cells[i]));
    }

    // Ends a section: in order its cases come once more, with the changes of all that follow.
    void end_section()
    {
        for (std::size_t i = begin_, end = found.size(); is_in_order_ && i < end; ++i) {
            test_case all = found[i];
            all.label += ", and what follows";
            for (const std::string key : {"change", "earlier", "later"}) {
                all.own[key].clear();
                for (std::size_t each = end; each-- > i;)
                    for (const std::string &value : found[each].own[key])
                        all.own[key].push_back(value);
            }
            found.push_back(all);
        }
        begin_ = found.size();
    }

    std::vector<test_case> found;

private:
    void begin_section(std::string heading)
    {
        end_section();
        const std::string in_order = " in order";
        is_in_order_ = heading.ends_with(in_order);
        heading.resize(heading.size() - (is_in_order_ ? in_order.size() : 0));
        const std::size_t blank = std::min(heading.find(' '), heading.size());
        section_ = {heading.substr(0, blank), trimmed(heading.substr(blank))};
        columns_ = {"label"};
    }

    void add(const std::string &line)
    {
        const std::size_t blank = std::min(line.find(' '), line.size());
        test_case::values &values = found.size() == begin_ ? section_.given : found.back().own;
        values[line.substr(0, blank)].push_back(meant(trimmed(line.substr(blank))));
    }

    const std::string file_;
    int line_number_ = 0;
    test_case section_;
    std::vector<std::string> columns_ = {"label"};
    std::size_t begin_ = 0; // the first case of the section
    bool is_in_order_ = false;
};

// Expects that these are the formats, of the log lines behind the first ones, that show values.
void expect_formats(const std::vector<std::string> &expected, std::size_t first)
{
    std::set<std::string> formats;
    for (; first < standin::logs().size(); ++first)
        if (const std::string &format = standin::logs()[first].format; format.find('%') != format.npos)
            formats.insert(format);
    EXPECT_EQ(formats, std::set<std::string>(expected.begin(), expected.end()));
}

} // namespace

std::vector<std::string> words(const std::string &text, char delimiter)
{
    std::vector<std::string> found;
    std::istringstream in(text + (delimiter == ' ' ? "" : std::string(1, delimiter)));
    for (std::string each; std::getline(in, each, delimiter);)
        if (delimiter != ' ' || !each.empty())
            found.push_back(trimmed(each));
    return found;
}

std::vector<std::string> test_case::all(const std::string &key) const
{
    std::vector<std::string> found;
    asked.insert(key);
    if (given.contains(key))
        found = given.at(key);
    auto at = std::find(found.begin(), found.end(), "...");
    if (at != found.end())
        at = found.erase(at);
    if (own.contains(key))
        found.insert(at, own.at(key).begin(), own.at(key).end());
    return found;
}

std::string test_case::operator[](const std::string &key) const
{
    std::string text;
    for (const std::string &value : all(key))
        text += (text.empty() || value.empty() ? "" : " ") + value;
    return text;
}

std::string test_case::lines(const std::string &key) const
{
    std::string text;
    for (const std::string &value : all(key))
        text += value + "\n";
    return text;
}

uint32_t test_case::number(const std::string &key) const
{
    const std::string text = (*this)[key];
    return text.empty() ? 0 : static_cast<uint32_t>(std::stoul(text));
}

void test_case::expect(const outcome &seen, const std::string &text) const
{
    outcome expected = {static_cast<int>(number("result")), text, "", has("reports")};
    for (const std::string &line : all("log"))
        expected.log += (expected.log.empty() ? "" : "|") + line;
    EXPECT_EQ(seen, expected);
}

void for_each_case(const std::string &file, const std::string &kind,
                   const std::function<void(const test_case &)> &check)
{
    std::ifstream in(DAKSDP_TESTS_DIR "/" + file);
    reader all(file);
    for (std::string line; std::getline(in, line);)
        all.read(line);
    all.end_section();
    std::size_t count = 0;
    const std::size_t first_log = standin::logs().size();
    for (const test_case &each : all.found) {
        SCOPED_TRACE(each.place + ": " + each.label);
        if (each.kind == kind) {
            check(each), ++count;
            for (const auto &[key, values] : each.own)
                EXPECT_TRUE(each.asked.contains(key) || values == std::vector<std::string>(values.size()))
                    << "nothing looks at " << key;
        } else if (each.kind == "formats" && each.argument == kind) {
            expect_formats(each.all("format"), first_log);
        }
    }
    EXPECT_GT(count, 0U) << "no cases of " << kind << " in " << file;
}

} // namespace oa_tests
