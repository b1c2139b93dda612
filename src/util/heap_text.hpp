// Text on the heap for the length of one call.
#ifndef DAKSDP_UTIL_HEAP_TEXT_HPP
#define DAKSDP_UTIL_HEAP_TEXT_HPP

#include "util/bounded_text.hpp"
#include "util/report.hpp"

namespace dak {

// Owns `size` characters, empty at first; null inside when memory ran out.
class heap_text {
public:
    explicit heap_text(size_t size) : text_(static_cast<char *>(dak_malloc(size))), size_(size)
    {
        if (text_ != nullptr && size_ > 0)
            text_[0] = '\0';
    }
    ~heap_text() { dak_free(text_); }
    heap_text(const heap_text &) = delete;
    heap_text &operator=(const heap_text &) = delete;

    bool is_allocated() const { return text_ != nullptr; }
    char *c_str() { return text_; }
    size_t size() const { return size_; }

    // What is written this way is not counted by add().
    text_writer writer() { return {text_, size_}; }

    // Appends a piece; false when it does not fit, with nothing appended.
    bool add(text_range piece)
    {
        if (piece.length() >= size_ - length_)
            return false;
        memcpy(text_ + length_, piece.first, piece.length());
        length_ += piece.length();
        text_[length_] = '\0';
        return true;
    }

private:
    char *text_;
    size_t size_;
    size_t length_ = 0;
};

} // namespace dak

#endif
