// Text written into fixed space: nothing is ever cut without the caller being told.
#ifndef DAKSDP_UTIL_BOUNDED_TEXT_HPP
#define DAKSDP_UTIL_BOUNDED_TEXT_HPP

#include "util/text_range.hpp"

#include <stdint.h>

namespace dak {

// Copies as much as fits into `size` characters, terminates it, and tells whether all of it did.
inline bool copy_text(char *destination, size_t size, text_range source)
{
    const size_t kept = source.length() < size ? source.length() : size - 1;
    memmove(destination, source.first, kept); // a caller may hand a field's own text back
    destination[kept] = '\0';
    return kept == source.length();
}

template <size_t N> bool copy_text(char (&field)[N], text_range source)
{
    return copy_text(field, N, source);
}

// Writes the digits of a number behind the first `length` characters of `size`, the terminator included, if
// they fit, and gives the length with them.
size_t append_decimal(char *room, size_t size, size_t length, uint64_t number);

// Writes pieces one behind the other into room that somebody else owns. A piece that does not fit is left out
// with all that follow it, but counted.
class text_writer {
public:
    // `size` counts the terminator.
    text_writer(char *room, size_t size) : room_(room), size_(size) {}
    template <size_t Size> explicit text_writer(char (&room)[Size]) : text_writer(room, Size) {}

    text_writer &add(text_range piece)
    {
        const size_t end = length_ + piece.length();
        if (end < size_)
            memcpy(room_ + length_, piece.first, piece.length());
        length_ = end;
        return *this;
    }
    text_writer &add(char c)
    {
        if (length_ + 1 < size_)
            room_[length_] = c;
        length_++;
        return *this;
    }
    text_writer &add_number(uint64_t number)
    {
        length_ = append_decimal(room_, size_, length_, number);
        return *this;
    }
    text_writer &add_signed(int64_t number)
    {
        const auto magnitude = static_cast<uint64_t>(number);
        return number < 0 ? add('-').add_number(0 - magnitude) : add_number(magnitude);
    }

    // Takes the last character off, if there is one.
    void drop_last() { length_ -= length_ > 0; }

    bool fits() const { return length_ < size_; }
    // Of all that was added.
    size_t length() const { return length_; }
    // Empty for a text that does not fit.
    text_range text() const { return {room_, fits() ? length_ : 0}; }
    void terminate() { room_[text().length()] = '\0'; }
    const char *c_str()
    {
        terminate();
        return room_;
    }

private:
    char *room_;
    size_t size_;
    size_t length_ = 0;
};

// A text of fewer than `Size` characters with its own room.
template <size_t Size> class built_text : public text_writer {
public:
    built_text() : text_writer(text_, Size) {}
    explicit built_text(text_range beginning) : built_text() { add(beginning); }
    built_text(const built_text &) = delete;
    built_text &operator=(const built_text &) = delete;

private:
    char text_[Size];
};

// A field as a terminated text, whether the field is terminated or not.
template <size_t N> built_text<N + 1> terminated(const char (&field)[N])
{
    return built_text<N + 1>(field_text(field));
}

} // namespace dak

#endif
