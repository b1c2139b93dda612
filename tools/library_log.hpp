// What the library logs.
#ifndef DAKSDP_TOOLS_LIBRARY_LOG_HPP
#define DAKSDP_TOOLS_LIBRARY_LOG_HPP

#include <string>
#include <string_view>
#include <vector>

namespace inspector {

// Nothing is logged anywhere until there is a library_log.
void silence_library();

// Collects the library's log lines for as long as it lives. There can be one at a time.
class library_log {
public:
    explicit library_log(bool echoes); // to standard error as well
    ~library_log();
    library_log(const library_log &) = delete;
    library_log &operator=(const library_log &) = delete;

    void add(std::string_view text);

    // The lines in order, with single blanks. Lines that tell of no fault are left out, and a line that comes
    // several times in a row stands there once.
    const std::vector<std::string> &reasons() const { return reasons_; }

private:
    bool echoes_;
    std::vector<std::string> reasons_;
};

} // namespace inspector

#endif
