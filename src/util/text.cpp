#include "util/text.h"

#include "util/bounded_text.hpp"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr size_t string_size = 200;

// An upper-case copy on the heap, or null.
char *upper_case_copy(const char *source)
{
    const size_t size = strlen(source) + 1;
    auto *copy = static_cast<char *>(dak_malloc(size));
    for (size_t i = 0; copy != nullptr && i < size; i++)
        copy[i] = static_cast<char>(to_upper(source[i]));
    return copy;
}

} // namespace

int create_string(char *destination, const char *source, uint32_t length)
{
    if (destination == nullptr || source == nullptr || length == 0)
        return fail();
    if (length >= string_size) {
        DAK_LOG("src str len exceeds dest str len %d\n", static_cast<int>(string_size));
        return fail();
    }
    copy_text(destination, string_size, text_range(source, strnlen(source, length)).trimmed_end());
    return 1;
}

size_t dak_strlcpy(char *destination, const char *source, size_t size)
{
    if (destination == nullptr || source == nullptr) {
        dak_assert_failed();
        return 0;
    }
    const text_range text(source);
    if (size > 0)
        copy_text(destination, size, text);
    return text.length();
}

size_t dak_strlcat(char *destination, const char *source, size_t size)
{
    if (destination == nullptr || source == nullptr) {
        dak_assert_failed();
        return 0;
    }
    const size_t used = strnlen(destination, size);
    return used + dak_strlcpy(destination + used, source, size - used);
}

int dak_stricmp(const char *a, const char *b)
{
    if (a == nullptr || b == nullptr) {
        dak_assert_failed();
        return 1;
    }
    char *upper_a = upper_case_copy(a);
    char *upper_b = upper_case_copy(b);
    int order = 1;
    if (upper_a != nullptr && upper_b != nullptr)
        order = strcmp(upper_a, upper_b);
    else
        dak_assert_failed();
    dak_free(upper_a);
    dak_free(upper_b);
    return order;
}
