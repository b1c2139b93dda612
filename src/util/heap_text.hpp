// Text on the heap for the length of one call.
#ifndef DAKSDP_UTIL_HEAP_TEXT_HPP
#define DAKSDP_UTIL_HEAP_TEXT_HPP

#include "util/bounded_text.hpp"
#include "util/report.hpp"

namespace dak {

// Owns room for `size` characters; none when memory ran out.
class heap_text {
public:
    explicit heap_text(size_t size)
        : room_(static_cast<char *>(dak_malloc(size))), size_(size),
          writer_(room_, room_ != nullptr ? size : 0)
    {
    }
    ~heap_text() { dak_free(room_); }
    heap_text(const heap_text &) = delete;
    heap_text &operator=(const heap_text &) = delete;

    bool is_allocated() const { return room_ != nullptr; }
    size_t size() const { return size_; }
    text_writer &writer() { return writer_; }
    char *c_str()
    {
        writer_.terminate();
        return room_;
    }

private:
    char *room_;
    size_t size_;
    text_writer writer_;
};

} // namespace dak

#endif
