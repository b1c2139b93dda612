#include "peer_operations.hpp"

#include <dlfcn.h>

namespace {

// A message of a peer.
class message {
public:
    message(const peer &library, const std::string &text) : library_(library), handle_(library.parse(text)) {}
    message(const message &) = delete;
    message &operator=(const message &) = delete;
    ~message()
    {
        if (handle_ != nullptr)
            library_.release(handle_);
    }

    bool read() const { return handle_ != nullptr; }
    format_records formats() const { return library_.formats(handle_); }
    bool generate() const { return library_.generate(handle_); }

private:
    const peer &library_;
    void *handle_;
};

std::size_t occurrences(std::string_view text, std::string_view part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

// Whether every format and parameter of a text stands in the records. An a=fmtp line has one parameter more
// than semicolons.
bool complete(const format_records &records, std::string_view text)
{
    std::size_t parameters = 0;
    for (std::size_t at = text.find("a=fmtp:"); at != text.npos; at = text.find("a=fmtp:", at + 1))
        parameters += 1 + occurrences(text.substr(at, text.find('\r', at) - at), ";");
    return records.size() == occurrences(text, "a=rtpmap:") && records.parameters() == parameters;
}

bool can_read(const peer &library, const body &body)
{
    const message read(library, body.text);
    return read.read() && complete(read.formats(), body.text);
}

call parse(const peer &library, const body &body)
{
    if (!can_read(library, body))
        return {};
    return [&library, text = body.text] { return message(library, text).formats().size() > text.size(); };
}

call parse_text_only(const peer &library, const body &body)
{
    if (!can_read(library, body))
        return {};
    return [&library, text = body.text] { return !message(library, text).read(); };
}

call generate(const peer &library, const body &body)
{
    const auto read = std::make_shared<message>(library, body.text);
    if (!read->read() || !read->generate())
        return {};
    return [read] { return !read->generate(); };
}

call round_trip(const peer &library, const body &body)
{
    if (!parse(library, body) || !generate(library, body))
        return {};
    return [&library, text = body.text] {
        const message read(library, text);
        return read.formats().size() > text.size() || !read.generate();
    };
}

} // namespace

const peer_operation peer_operations[4] = {{"parse", parse},
                                           {"generate", generate},
                                           {"round trip", round_trip},
                                           {"parse, formats as text", parse_text_only}};

const peer &load_peer(const char *path)
{
    // Its own names come first, or the library's sdp_parse would be taken for that of a peer.
    void *module = dlopen(path, RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND);
    if (module == nullptr)
        throw std::runtime_error(dlerror());
    return *static_cast<const peer *>(dlsym(module, "bench_peer"));
}
