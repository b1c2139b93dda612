// Writing text of known length to a context's text buffer.
#ifndef DAKSDP_SDP_TEXT_BUFFER_HPP
#define DAKSDP_SDP_TEXT_BUFFER_HPP

#include "sdp/document_record.h"
#include "util/bounded_text.hpp"
#include "util/report.hpp"

namespace dak {

inline sdp_text_buffer *buffer_of(const sdp_lib_context *context)
{
    return context != nullptr ? context->text_buffer : nullptr;
}

// Characters that a buffer can take, the terminator included; 0 for none.
inline size_t room_in(const sdp_text_buffer *buffer)
{
    return buffer != nullptr && buffer->length <= SDP_TEXT_CAPACITY ? sizeof buffer->text - buffer->length
                                                                    : 0;
}

// fill_sdp_buffer() for a text that is not terminated.
inline int append_sdp_text(sdp_text_buffer *buffer, text_range text)
{
    if (text.length() >= room_in(buffer))
        return fail();
    char *end = buffer->text + buffer->length;
    memcpy(end, text.first, text.length());
    end[text.length()] = '\0';
    buffer->length += static_cast<uint32_t>(text.length());
    return 1;
}

// Appends a tag, a value and CR LF, each of them whole or not at all.
int append_sdp_line(sdp_text_buffer *buffer, text_range tag, text_range value);

// A line, or a piece of one, of fewer than 200 characters, which is built where it is to stand: behind the
// text.
class sdp_line : public text_writer {
public:
    explicit sdp_line(const sdp_lib_context *context) : sdp_line(buffer_of(context)) {}
    explicit sdp_line(sdp_text_buffer *buffer) : sdp_line(buffer, room_in(buffer)) {}
    sdp_line(const sdp_line &) = delete;
    sdp_line &operator=(const sdp_line &) = delete;
    ~sdp_line()
    {
        if (is_in_buffer_)
            buffer_->text[buffer_->length] = '\0';
    }

    bool is_too_long() const { return length() >= size; }

    // Adds the line to the text, then its ending as a piece of its own; 0, reported, when there is no room
    // for one.
    int write() { return fits() ? advance() : fail(); }
    int write(text_range ending) { return write() && append_sdp_text(buffer_, ending); }

private:
    static constexpr size_t size = 200;

    sdp_line(sdp_text_buffer *buffer, size_t room)
        : text_writer(room != 0 ? buffer->text + buffer->length : nullptr, room < size ? room : size),
          buffer_(buffer), is_in_buffer_(room != 0)
    {
    }

    int advance()
    {
        buffer_->length += static_cast<uint32_t>(length());
        return 1;
    }

    sdp_text_buffer *buffer_;
    bool is_in_buffer_;
};

} // namespace dak

#endif
