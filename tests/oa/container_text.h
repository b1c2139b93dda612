#ifndef DAKSDP_TESTS_OA_CONTAINER_TEXT_H
#define DAKSDP_TESTS_OA_CONTAINER_TEXT_H

#include <algorithm>
#include <cctype>
#include <cstring>
#include <sstream>
#include <string>
#include <gtest/gtest.h>

#include "oa/fields.h"

// Records as text and text into records: a dump shows every field that is not zero, as in "m0{f1{id=97}}", and
// "m0.f1.id=97" sets that one. A field that has a presence flag is shown and set with it: "ptime=20" has the
// flag 1, "ptime[2]=20" the flag 2.
namespace oa_tests {

template <class T> constexpr bool is_text = false;
template <std::size_t N> constexpr bool is_text<char[N]> = true;
template <class T> constexpr bool is_list = requires(T &list) { std::span(list); }
&&!is_text<T>;
// What has a value of its own, and not fields.
using event_list = sdp_tel_event_entry[SDP_TEL_EVENT_ENTRIES];
template <class T>
constexpr bool is_value = std::is_same_v<T, event_list> || !std::is_class_v<std::remove_all_extents_t<T>>;

template <class T> std::string value_of(const T &field)
{
    std::string all;
    if constexpr (is_text<T>)
        all.assign(field, strnlen(field, sizeof field));
    else if constexpr (std::is_same_v<T, sdp_tel_event_entry>)
        all = value_of(field.kind) + ":" + value_of(field.first) + "-" + value_of(field.last);
    else if constexpr (std::is_arithmetic_v<T>)
        all = std::to_string(field);
    else if constexpr (is_list<T>)
        for (const auto &each : field)
            all += (&each == &field[0] ? "" : ",") + value_of(each);
    return all;
}

// The value without the clear elements at the end of a list; nothing for one that is clear.
template <class T> std::string shown_value(const T &field)
{
    std::string value = value_of(field);
    const std::string clear = std::is_same_v<T, event_list> ? "0:0-0" : "0";
    while (is_list<T> && value.ends_with("," + clear))
        value.resize(value.size() - clear.size() - 1);
    return value == clear && !is_text<T> ? "" : value;
}

template <class T> std::string dump(T &record);

struct dumper {
    std::string &out;

    template <class T> void operator()(std::string_view name, T &field) const
    {
        if constexpr (is_value<T>) {
            if (const std::string value = shown_value(field); !value.empty())
                out.append(" ").append(name) += "=" + value;
        } else if constexpr (is_list<T>) {
            for (std::size_t i = 0; i < std::size(field); ++i)
                (*this)(std::string(name) + std::to_string(i), field[i]);
        } else if (const std::string inner = dump(field); !inner.empty()) {
            out.append(" ").append(name) += "{" + inner + "}";
        }
    }
    template <class T> void operator()(std::string_view name, auto flag, T &field) const
    {
        const std::string value = shown_value(field);
        if (flag != 0 || !value.empty())
            out.append(" ").append(name) += (flag == 1 ? "" : "[" + std::to_string(+flag) + "]") + "=" +
                                            (value.empty() && std::is_arithmetic_v<T> ? "0" : value);
    }
};

template <class T> std::string dump(T &record)
{
    std::string out;
    each(record, dumper{out});
    return out.substr(out.empty() ? 0 : 1);
}

// Takes a value as a dump shows it. In a text "_" stands for a blank; one as long as its field leaves no room
// for the terminator.
template <class T> void assign(T &field, std::string value)
{
    std::istringstream in(value);
    if constexpr (is_text<T>) {
        std::replace(value.begin(), value.end(), '_', ' ');
        std::memset(field, 0, sizeof field);
        value.copy(field, sizeof field);
    } else if constexpr (is_list<T>) {
        std::string element;
        for (std::size_t i = 0; i < std::size(field) && std::getline(in, element, ','); ++i)
            assign(field[i], element);
    } else if constexpr (std::is_same_v<T, sdp_tel_event_entry>) {
        char between;
        in >> field.kind >> between >> field.first >> between >> field.last;
    } else if constexpr (std::is_pointer_v<T>) {
        field = nullptr;
    } else {
        field = static_cast<T>(value.starts_with('-') ? std::stoll(value) : std::stoull(value));
    }
}

// Sets the field of this path, if it is one of a record's.
struct setter {
    std::string_view path;
    const std::string &flag, &value;
    int &found;

    template <class T> void operator()(std::string_view name, T &field) const
    {
        if (!path.starts_with(name))
            return;
        const std::string_view rest = path.substr(name.size());
        if constexpr (is_value<T>) {
            if (rest.empty())
                ++found, assign(field, value);
        } else if constexpr (is_list<T>) {
            std::size_t digits = 0;
            const bool has_index = !rest.empty() && std::isdigit(static_cast<unsigned char>(rest[0]));
            const std::size_t index = has_index ? std::stoul(std::string(rest), &digits) : std::size(field);
            if (index < std::size(field))
                setter{rest.substr(digits), flag, value, found}("", field[index]);
        } else if (rest.starts_with('.')) {
            each(field, setter{rest.substr(1), flag, value, found});
        }
    }
    template <class T> void operator()(std::string_view name, auto &is_present, T &field) const
    {
        if (path == name)
            ++found, assign(is_present, flag), assign(field, value);
    }
};

// Splits changes such as "ptime=20 f0.id[2]=97" and hands each to `set`, which is to take it once.
template <class Set> void for_each_change(const std::string &changes, Set set)
{
    std::istringstream in(changes);
    for (std::string one; in >> one;) {
        int found = 0;
        const std::size_t equals = one.find('='), bracket = std::min(one.find('['), equals);
        const std::string flag = bracket < equals ? one.substr(bracket + 1, equals - bracket - 2) : "1";
        const std::string path = one.substr(0, bracket), value = one.substr(equals + 1);
        set(setter{path, flag, value, found});
        EXPECT_EQ(found, 1) << one;
    }
}

} // namespace oa_tests

#endif
