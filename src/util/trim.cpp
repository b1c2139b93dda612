#include "util/trim.h"

#include "util/ascii.hpp"
#include "util/report.hpp"

#include <string.h>

using namespace dak;

namespace {

constexpr size_t buffer_size = 200;

} // namespace

int dak_remove_leading_space(char *string)
{
    if (string == nullptr)
        return fail();
    const char *text = string;
    while (is_white(*text))
        text++;
    const size_t length = strlen(text);
    const bool fits = length < buffer_size;
    const size_t kept = fits ? length : buffer_size - 1;
    memmove(string, text, kept);
    string[kept] = '\0';
    if (!fits) {
        DAK_LOG("src str len exceeds dest str len %d\n", static_cast<int>(buffer_size));
        dak_assert_failed();
    }
    return static_cast<int>(length);
}

void dak_remove_trailing_space(char *string)
{
    if (string == nullptr) {
        dak_assert_failed();
        return;
    }
    size_t length = strlen(string);
    while (length > 0 && is_white(string[length - 1]))
        length--;
    string[length] = '\0';
}

void dak_remove_both_space(char *string)
{
    dak_remove_leading_space(string);
    dak_remove_trailing_space(string);
}
