#include "port/host/host_port.h"

#include <arpa/inet.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/socket.h>

#include "port/port.h"

namespace {

void write_to_stderr(int, const char *text, void *)
{
    const size_t length = strlen(text);
    const bool ended = length > 0 && text[length - 1] == '\n';
    fprintf(stderr, "%s%s", text, ended ? "" : "\n");
}

void stay_silent(void *) {}

struct {
    dak_host_log_sink function;
    void *user;
} log_sink = {write_to_stderr, nullptr};

struct {
    dak_host_assert_hook function;
    void *user;
} assert_hook = {stay_silent, nullptr};

// The line that did not fit the buffer on the stack. Without memory it goes out cut short.
void log_long_line(int priority, const char *cut, size_t size, const char *format, va_list arguments)
{
    char *whole = static_cast<char *>(malloc(size));
    if (whole != nullptr)
        vsnprintf(whole, size, format, arguments);
    log_sink.function(priority, whole != nullptr ? whole : cut, log_sink.user);
    free(whole);
}

} // namespace

extern "C" {

void dak_host_set_log_sink(dak_host_log_sink sink, void *user)
{
    log_sink = {sink != nullptr ? sink : write_to_stderr, user};
}

void dak_host_set_assert_hook(dak_host_assert_hook hook, void *user)
{
    assert_hook = {hook != nullptr ? hook : stay_silent, user};
}

void *dak_malloc(size_t size) { return malloc(size); }

void dak_free(void *block) { free(block); }

char *dak_strtok(char *text, const char *delimiters, char **save)
{
    // strtok_r takes no null place, which is one of the two ways in which a text may have run out.
    if (text == nullptr && *save == nullptr)
        return nullptr;
    return strtok_r(text, delimiters, save);
}

void dak_assert_failed(void) { assert_hook.function(assert_hook.user); }

int platInetPton(int family, const char *text, void *destination)
{
    return inet_pton(family == DAK_FAMILY_IPV6 ? AF_INET6 : family, text, destination);
}

int __android_log_print(int priority, const char *, const char *format, ...)
{
    char line[512];
    va_list arguments;
    va_start(arguments, format);
    va_list again;
    va_copy(again, arguments);
    const int length = vsnprintf(line, sizeof line, format, arguments);
    if (length >= static_cast<int>(sizeof line))
        log_long_line(priority, line, static_cast<size_t>(length) + 1, format, again);
    else if (length >= 0)
        log_sink.function(priority, line, log_sink.user);
    va_end(again);
    va_end(arguments);
    return length;
}

} // extern "C"
