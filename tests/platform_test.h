#ifndef DAKSDP_TESTS_PLATFORM_TEST_H
#define DAKSDP_TESTS_PLATFORM_TEST_H

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

#include "port_standin.h"

// A test that starts on a fresh platform and may leave no memory behind.
class PlatformTest : public testing::Test {
protected:
    void SetUp() override { standin::reset(); }
    void TearDown() override { EXPECT_EQ(standin::live_blocks(), 0) << "memory left behind"; }
};

namespace detail {

// Runs the body with the first, second, ... allocation armed, until one run meets no failure.
template <class Body, class Arm> std::size_t sweep_with(Body &body, Arm arm, const char *how)
{
    for (std::size_t number = 1;; ++number) {
        SCOPED_TRACE(testing::Message() << "allocation " << number << " fails " << how);
        standin::reset();
        arm(number);
        body();
        standin::allow_allocations();
        EXPECT_EQ(standin::live_blocks(), 0) << "memory left behind";
        if (standin::failed_allocations() == 0 || testing::Test::HasFatalFailure())
            return number - 1;
    }
}

} // namespace detail

// Repeats a test body with each of its allocations failing in turn: first that one alone, then it
// and all that follow. The body cleans up after itself, and may ask
// standin::failed_allocations() whether this run met a failure. Returns how many of the body's
// allocations failed in turn, which is at least one or the test fails.
template <class Body> std::size_t sweep_allocations(Body body)
{
    const std::size_t once = detail::sweep_with(body, standin::fail_allocation, "once");
    if (testing::Test::HasFatalFailure())
        return once;
    EXPECT_GT(once, 0U) << "the body allocates nothing, so the sweep shows nothing";
    detail::sweep_with(body, standin::fail_allocations_from, "with all that follow");
    return once;
}

// A text in a heap block of exactly its size, so that the address sanitizer sees one byte too
// many. It has no NUL of its own: give the library pointer pairs, or use heap_c_text.
class heap_text {
public:
    explicit heap_text(std::string_view text)
        // A block of no bytes would still be one byte long: an empty text lies at a block's end.
        : block_(new char[text.empty() ? 1 : text.size()]), data_(block_.get() + (text.empty() ? 1 : 0)),
          size_(text.size())
    {
        text.copy(data_, size_);
    }

    char *data() const { return data_; }
    char *begin() const { return data_; }
    char *end() const { return data_ + size_; }
    std::size_t size() const { return size_; }
    std::string_view view() const { return {data_, size_}; }

private:
    std::unique_ptr<char[]> block_;
    char *data_;
    std::size_t size_;
};

// The same with a NUL as the block's last byte.
class heap_c_text {
public:
    explicit heap_c_text(std::string_view text) : block_(new char[text.size() + 1]), size_(text.size())
    {
        text.copy(block_.get(), size_);
        block_[size_] = '\0';
    }

    char *c_str() const { return block_.get(); }
    char *begin() const { return block_.get(); }
    // Behind the last character, at the NUL.
    char *end() const { return block_.get() + size_; }
    std::size_t size() const { return size_; }

private:
    std::unique_ptr<char[]> block_;
    std::size_t size_;
};

#endif
