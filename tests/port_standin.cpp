#include "port_standin.h"

#include <arpa/inet.h>
#include <sys/socket.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <ostream>

#include "port/port.h"

namespace standin {
namespace {

constexpr unsigned char fresh_byte = 0xA5;
constexpr std::size_t never = std::numeric_limits<std::size_t>::max();

struct platform {
    std::vector<log_line> logs;
    std::size_t asserts = 0;
    long live = 0;
    std::size_t allocations = 0;
    std::size_t failed = 0;
    // The allocations in [first_failing, last_failing] fail, by their running number.
    std::size_t first_failing = never;
    std::size_t last_failing = never;
    exhausted_place exhausted = exhausted_place::at_end;
};

thread_local platform here;

bool next_allocation_fails()
{
    ++here.allocations;
    const bool fails = here.allocations >= here.first_failing && here.allocations <= here.last_failing;
    here.failed += fails ? 1 : 0;
    return fails;
}

std::string formatted(const char *format, va_list arguments)
{
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, again);
    va_end(again);
    if (length < 0)
        return "(a format that cannot be written)";
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    std::vsnprintf(text.data(), text.size(), format, arguments);
    text.pop_back();
    return text;
}

} // namespace

std::ostream &operator<<(std::ostream &out, const log_line &line)
{
    out << line.priority << (line.tagged ? " (tagged) " : " ") << '"' << line.text << '"';
    return out;
}

void reset() { here = platform{}; }

const std::vector<log_line> &logs() { return here.logs; }

std::vector<std::string> texts()
{
    std::vector<std::string> result;
    for (const log_line &line : here.logs)
        result.push_back(line.text);
    return result;
}

std::size_t assert_count() { return here.asserts; }

long live_blocks() { return here.live; }

std::size_t allocations() { return here.allocations; }

std::size_t failed_allocations() { return here.failed; }

void fail_allocation(std::size_t number)
{
    here.first_failing = here.allocations + number;
    here.last_failing = here.first_failing;
}

void fail_allocations_from(std::size_t number)
{
    here.first_failing = here.allocations + number;
    here.last_failing = never;
}

void allow_allocations()
{
    here.first_failing = never;
    here.last_failing = never;
}

void set_exhausted_place(exhausted_place place) { here.exhausted = place; }

} // namespace standin

using standin::here;

extern "C" {

void *dak_malloc(size_t size)
{
    if (standin::next_allocation_fails())
        return nullptr;
    // Exactly what was asked for: the address sanitizer guards the very next byte.
    void *block = std::malloc(size);
    if (block == nullptr)
        std::abort();
    std::memset(block, standin::fresh_byte, size);
    ++here.live;
    return block;
}

void dak_free(void *block)
{
    if (block == nullptr)
        return;
    --here.live;
    std::free(block);
}

char *dak_strtok(char *text, const char *delimiters, char **save)
{
    char *token = text != nullptr ? text : *save;
    if (token == nullptr)
        return nullptr;
    token += std::strspn(token, delimiters);
    char *end = token + std::strcspn(token, delimiters);
    char *found = token != end ? token : nullptr;
    if (*end != '\0') {
        *end = '\0';
        *save = end + 1;
    } else {
        *save = here.exhausted == standin::exhausted_place::null ? nullptr : end;
    }
    return found;
}

void dak_assert_failed(void) { ++here.asserts; }

int platInetPton(int family, const char *text, void *destination)
{
    return inet_pton(family == DAK_FAMILY_IPV6 ? AF_INET6 : family, text, destination);
}

int __android_log_print(int priority, const char *tag, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::string text = standin::formatted(format, arguments);
    va_end(arguments);
    const int length = static_cast<int>(text.size());
    here.logs.push_back({format, std::move(text), priority, tag != nullptr});
    return length;
}

} // extern "C"
