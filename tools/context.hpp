// A context of the library that releases itself.
#ifndef DAKSDP_TOOLS_CONTEXT_HPP
#define DAKSDP_TOOLS_CONTEXT_HPP

#include "daksdp.h"

#include <memory>
#include <string_view>

namespace inspector {

struct context_cleaner {
    void operator()(sdp_lib_context *context) const { clean_sdp_lib(context); }
};

using context_pointer = std::unique_ptr<sdp_lib_context, context_cleaner>;

// Null when memory runs out.
inline context_pointer create_context() { return context_pointer(init_sdp_lib()); }

inline bool parse(sdp_lib_context *context, std::string_view text)
{
    return sdp_parse(context, text.data(), static_cast<std::uint32_t>(text.size())) != 0;
}

} // namespace inspector

#endif
