// Reporting: one log macro and one way to fail.
#ifndef DAKSDP_UTIL_REPORT_HPP
#define DAKSDP_UTIL_REPORT_HPP

#include "port/port.h"

#include <stddef.h>

// A macro, so that the compiler checks each format against its arguments. Most lines have none: a call of
// log_text() takes less code.
#define DAK_LOG(format, ...) DAK_LOG_##__VA_OPT__(FORMAT)(format __VA_OPT__(, ) __VA_ARGS__)
#define DAK_LOG_(text) dak::log_text(dak::without_conversions(text))
#define DAK_LOG_FORMAT(...) __android_log_print(6, nullptr, __VA_ARGS__)

// Keeps a function out of its callers. Checks of bounds that none of them exceeds then stay in the library with
// the texts that they log, and a build can be searched for these.
#define DAK_OUT_OF_LINE __attribute__((__noinline__))

namespace dak {

// Reports an assertion and gives the failure value of the functions that return 1 or 0.
inline int fail()
{
    dak_assert_failed();
    return 0;
}

// Logs a text of the library's own that holds no conversion, such as one from a table.
void log_text(const char *text) DAK_RARELY_CALLED;

// Does not compile for a text with a conversion, which needs a value.
consteval const char *without_conversions(const char *text)
{
    for (const char *c = text; *c != '\0'; c++) {
        if (*c == '%')
            dak_assert_failed();
    }
    return text;
}

inline decltype(nullptr) fail_null()
{
    dak_assert_failed();
    return nullptr;
}

} // namespace dak

#endif
