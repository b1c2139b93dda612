// Looking up names of a constant table, letters folded.
#ifndef DAKSDP_UTIL_NAME_INDEX_HPP
#define DAKSDP_UTIL_NAME_INDEX_HPP

#include "util/text_range.hpp"

#include <stdint.h>

namespace dak {

// The positions of the names in order of their lengths: a name is compared with those as long as itself.
template <size_t Count> class name_index {
public:
    // `name_at(i)` is the i-th name; of equal names the first is found.
    template <typename NameAt> constexpr explicit name_index(NameAt name_at)
    {
        uint8_t filled = 0;
        for (size_t length = 0; length <= longest; length++) {
            starts_[length] = filled;
            for (size_t i = 0; i < Count; i++) {
                if (length_of(name_at(i)) == length)
                    order_[filled++] = static_cast<uint8_t>(i);
            }
        }
        starts_[longest + 1] = filled;
    }

    // The position of a name, or -1.
    template <typename NameAt> int find(text_range name, NameAt name_at) const
    {
        const size_t length = name.length();
        if (length > longest)
            return -1;
        for (size_t i = starts_[length]; i < starts_[length + 1]; i++) {
            if (equal_ignoring_case(name_at(order_[i]), name.first, length))
                return order_[i];
        }
        return -1;
    }

private:
    static constexpr size_t longest = 17; // "enc-mpeg4-generic"

    static constexpr size_t length_of(const char *text)
    {
        size_t length = 0;
        while (text[length] != '\0')
            length++;
        return length;
    }

    uint8_t starts_[longest + 2] = {};
    uint8_t order_[Count] = {};
};

} // namespace dak

#endif
