// Another SDP library, for comparison. Each is a module of its own, because such libraries share names with
// this one, as sdp_parse; a module is loaded so that its names stay inside it.
#ifndef DAKSDP_BENCH_PEER_HPP
#define DAKSDP_BENCH_PEER_HPP

#include <cstddef>
#include <string_view>

#include "format_records.hpp"

// All but `name` work on a message of that library.
struct peer {
    const char *name;
    // Null when the text does not parse. The text is terminated.
    void *(*parse)(std::string_view text);
    // Breaks down every payload format of the message as far as daksdp does.
    format_records (*formats)(const void *message);
    // Writes the message as text and releases that; whether it could.
    bool (*generate)(const void *message);
    void (*release)(void *message);
};

// What a module exports.
extern "C" const peer bench_peer;

#endif
