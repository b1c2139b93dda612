// The calls of another library that are measured beside those of operations.hpp.
#ifndef DAKSDP_BENCH_PEER_OPERATIONS_HPP
#define DAKSDP_BENCH_PEER_OPERATIONS_HPP

#include <string_view>

#include "operations.hpp"
#include "peer.hpp"

struct peer_operation {
    std::string_view name;
    // Gives an empty call when the library cannot do it with the body.
    call (*prepare)(const peer &library, const body &body);
};

extern const peer_operation peer_operations[4];

// Loads a module. Throws when it cannot.
const peer &load_peer(const char *path);

#endif
