// Payload formats broken down from the text of their a=rtpmap and a=fmtp lines, as a program does that uses a
// library which keeps attributes as text.
#ifndef DAKSDP_BENCH_FORMAT_RECORDS_HPP
#define DAKSDP_BENCH_FORMAT_RECORDS_HPP

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

struct format_record {
    unsigned payload = 0;
    std::string name;
    unsigned rate = 0;
    unsigned channels = 1;
    std::vector<std::pair<std::string, std::string>> parameters = {};
};

class format_records {
public:
    // Payload numbers name formats of one media line alone.
    void start_media() { first_of_media_ = records_.size(); }

    // "104 AMR-WB/16000/1"
    void add_rtpmap(std::string_view value)
    {
        const unsigned payload = number(cut(value, ' '));
        const std::string_view name = cut(value, '/');
        const unsigned rate = number(cut(value, '/'));
        add(payload, name, rate, value);
    }

    void add(unsigned payload, std::string_view name, unsigned rate, std::string_view channels)
    {
        records_.push_back({payload, std::string(name), rate, channels.empty() ? 1 : number(channels)});
    }

    // "104 mode-set=7;octet-align=1"
    void add_fmtp(std::string_view value)
    {
        const unsigned payload = number(cut(value, ' '));
        add_parameters(of(payload), value);
    }

    void add_parameters(std::string_view value) { add_parameters(records_.back(), value); }

    std::size_t size() const { return records_.size(); }

    std::size_t parameters() const
    {
        std::size_t count = 0;
        for (const format_record &record : records_)
            count += record.parameters.size();
        return count;
    }

private:
    // Takes what stands before a separator off a text, and the separator with it.
    static std::string_view cut(std::string_view &text, char separator)
    {
        const std::size_t length = std::min(text.find(separator), text.size());
        const std::string_view head = text.substr(0, length);
        text.remove_prefix(std::min(length + 1, text.size()));
        return head;
    }

    static unsigned number(std::string_view text)
    {
        unsigned value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    }

    static void add_parameters(format_record &record, std::string_view value)
    {
        while (!value.empty()) {
            std::string_view pair = cut(value, ';');
            pair.remove_prefix(std::min(pair.find_first_not_of(' '), pair.size()));
            const std::string_view key = cut(pair, '=');
            record.parameters.emplace_back(key, pair);
        }
    }

    format_record &of(unsigned payload)
    {
        const auto found =
            std::find_if(records_.begin() + static_cast<std::ptrdiff_t>(first_of_media_), records_.end(),
                         [payload](const format_record &record) { return record.payload == payload; });
        return found != records_.end() ? *found : records_.emplace_back(format_record{payload, "", 0, 1});
    }

    std::vector<format_record> records_;
    std::size_t first_of_media_ = 0;
};

#endif
