#include "oa/body.h"

using namespace oa_tests;

namespace {

class Container : public PlatformTest {};

TEST_F(Container, release)
{
    sdp_container container = {};
    container.mlines = static_cast<sdp_media_line *>(dak_malloc(sizeof(sdp_media_line)));
    sdp_media_line *const stale = container.mlines;
    const auto released = [&] { return dak_app_oa_cleanup_sdp_container(&container); };
    EXPECT_TRUE(released() == 0 && container.mlines == stale) << "no lines are counted";
    container.num_mlines = 1;
    EXPECT_TRUE(released() == 0 && container.mlines == nullptr && container.num_mlines == 0);
    container.num_mlines = 7;
    EXPECT_TRUE(released() == 0 && container.num_mlines == 7) << "there are no lines";
}

TEST_F(Container, a_duplicate_has_lines_of_its_own)
{
    body source("lines=3 user=kim m0.port=1 m1.port=2 m2.p=9,8 gs=1 g0.on=1");
    sdp_container *copy = nullptr;
    const auto duplicate = [&] { return dak_app_oa_duplicate_sdp_container(&source.session, &copy); };
    const auto release = [&] {
        dak_app_oa_cleanup_sdp_container(copy);
        dak_free(copy);
    };
    EXPECT_EQ(duplicate(), 0U);
    EXPECT_EQ(dump(*copy), dump(source.session));
    EXPECT_NE(copy->mlines, source.session.mlines);
    release();
    standin::fail_allocation(1);
    EXPECT_EQ(duplicate(), 2U);
    EXPECT_EQ(copy, nullptr);
    standin::fail_allocation(2);
    EXPECT_EQ(duplicate(), 2U);
    EXPECT_TRUE(copy->num_mlines == 3 && copy->mlines == nullptr) << "its lines are counted all the same";
    release();
    source.session.num_mlines = 0;
    EXPECT_EQ(duplicate(), 0U);
    EXPECT_EQ(copy->mlines, source.lines.data()) << "a pointer that nothing follows";
    release();
    source.change("ms=3 mlines=none");
    EXPECT_EQ(duplicate(), 7U);
    EXPECT_EQ(copy, nullptr);
    EXPECT_TRUE(standin::logs().empty() && standin::assert_count() == 0);
}

TEST_F(Container, the_dump)
{
    for_each_case("oa/data/print.txt", "print", [](const test_case &each) {
        const body given(each);
        each.expect(seen([&] { return dak_app_oa_print_sdp_container(&given.session), 0; }));
    });
}

} // namespace
