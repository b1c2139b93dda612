#ifndef DAKSDP_FUZZ_INPUT_H
#define DAKSDP_FUZZ_INPUT_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

// Rows of a table, several to a line.
template <class... Row> constexpr auto table_of(Row... rows) { return std::array{rows...}; }

// The fuzzer's bytes as numbers and texts, alike on all hosts. Behind the last byte there are zeros.
class input {
public:
    input(const uint8_t *data, std::size_t size) : at_(data), end_(data + size) {}

    std::size_t left() const { return static_cast<std::size_t>(end_ - at_); }
    uint8_t byte() { return at_ != end_ ? *at_++ : uint8_t{0}; }
    uint32_t word()
    {
        uint32_t value = 0;
        for (int i = 0; i < 4; ++i)
            value = value << 8 | byte();
        return value;
    }
    uint32_t below(uint32_t limit) { return (limit > 256 ? uint32_t{byte()} << 8 | byte() : byte()) % limit; }
    bool flag() { return (byte() & 1) != 0; }

    // Mostly small; else a bound of some kind, or anything.
    uint32_t number()
    {
        constexpr uint32_t bounds[] = {0xFFFFFFFF, 0x7FFFFFFF, 0x80000000, 0xFFFF, 0x10000, 0x8000, 0x7FFF,
                                       256,        255,        1000,       8000,   90000,   3584,   114};
        const uint32_t first = byte();
        if (first < 200)
            return first < 128 ? first % 16 : first;
        return first - 200 < std::size(bounds) ? bounds[first - 200] : word();
    }

    // The next bytes; or one character again and again, up to the size of a field or just beyond.
    std::string text()
    {
        constexpr std::size_t runs[] = {19,  20,  21,  22,  62,  63,  64,  119, 120, 121, 180, 181,
                                        198, 199, 200, 201, 251, 252, 254, 255, 256, 257, 300, 3584};
        const std::size_t first = byte();
        if (first >= 200)
            return std::string(runs[(first - 200) % std::size(runs)], static_cast<char>(byte()));
        const std::size_t length = std::min(first, left());
        const uint8_t *start = at_;
        at_ += length;
        return {reinterpret_cast<const char *>(start), length};
    }
    // A text without NULs.
    std::string c_text()
    {
        std::string taken = text();
        taken.resize(std::strlen(taken.c_str()));
        return taken;
    }
    std::string rest()
    {
        const uint8_t *start = std::exchange(at_, end_);
        return {reinterpret_cast<const char *>(start), static_cast<std::size_t>(end_ - start)};
    }
    void fill(void *record, std::size_t size)
    {
        const std::size_t length = std::min(size, left());
        if (length > 0)
            std::memcpy(record, at_, length);
        at_ += length;
    }

private:
    const uint8_t *at_;
    const uint8_t *end_;
};

// A text in a heap block of exactly its size, so that the address sanitizer notices one byte too many. An
// empty text lies at its block's end.
class exact_text {
public:
    explicit exact_text(std::string_view text)
        : block_(new char[std::max<std::size_t>(text.size(), 1)]),
          data_(block_.get() + (text.empty() ? 1 : 0)), size_(text.size())
    {
        text.copy(data_, size_);
    }
    char *begin() const { return data_; }
    char *end() const { return data_ + size_; }
    std::string_view view() const { return {data_, size_}; }

private:
    std::unique_ptr<char[]> block_;
    char *data_;
    std::size_t size_;
};

// The same with its NUL inside the block: a terminated text, or a line whose terminator may be read.
class exact_line : public exact_text {
public:
    explicit exact_line(const std::string &text) : exact_text({text.c_str(), text.size() + 1}) {}
    const char *c_str() const { return begin(); }
    const char *line_end() const { return end() - 1; }
};

inline uint32_t hash_of(const uint8_t *data, std::size_t size)
{
    uint32_t hash = 2166136261;
    for (std::size_t i = 0; i < size; ++i)
        hash = (hash ^ data[i]) * 16777619;
    return hash ^ hash >> 15;
}

#endif
