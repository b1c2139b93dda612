#include "platform.h"

#include <arpa/inet.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "port/port.h"

namespace platform {
namespace {

constexpr std::size_t never = SIZE_MAX;

long live;
std::size_t asked;
std::size_t first_failing = never;
std::size_t last_failing = never;
std::string logged;

} // namespace

std::string take_log() { return std::exchange(logged, {}); }

std::size_t allocations() { return asked; }

void fail_allocation(std::size_t number, bool and_on)
{
    first_failing = asked + number;
    last_failing = and_on ? never : first_failing;
}

void allow_allocations() { first_failing = last_failing = never; }

run::run()
{
    live = 0;
    asked = 0;
    logged.clear();
    allow_allocations();
}

run::~run() { FUZZ_EXPECT(live == 0); }

void finding(const char *what, const char *file, int line)
{
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, what);
    std::abort();
}

void expect_same(const std::string &first, const std::string &second, const char *file, int line)
{
    if (first == second)
        return;
    const auto parted = std::mismatch(first.begin(), first.end(), second.begin(), second.end()).first;
    const auto at = static_cast<std::size_t>(parted - first.begin());
    const std::size_t from = at < 80 ? 0 : at - 80;
    std::fprintf(stderr, "%s\n--- is not the same as ---\n%s\n", first.substr(from, 160).c_str(),
                 second.substr(from, 160).c_str());
    finding("both are the same", file, line);
}

} // namespace platform

extern "C" {

void *dak_malloc(size_t size)
{
    using namespace platform;
    ++asked;
    if (asked >= first_failing && asked <= last_failing)
        return nullptr;
    void *block = std::malloc(size);
    if (block == nullptr)
        std::abort();
    // What is read before it is written is to show.
    std::memset(block, 0xA5, size);
    ++live;
    return block;
}

void dak_free(void *block)
{
    platform::live -= block != nullptr;
    std::free(block);
}

char *dak_strtok(char *text, const char *delimiters, char **save) { return strtok_r(text, delimiters, save); }

void dak_assert_failed(void) {}

int platInetPton(int family, const char *text, void *destination)
{
    return inet_pton(family == DAK_FAMILY_IPV6 ? AF_INET6 : family, text, destination);
}

int __android_log_print(int, const char *, const char *format, ...)
{
    char line[2048];
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    FUZZ_EXPECT(length >= 0);
    platform::logged += line;
    return length;
}

} // extern "C"
