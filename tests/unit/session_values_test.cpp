#include "sdp/session_values.h"

#include "support.h"

namespace {

using SessionValues = ContextTest;

TEST_F(SessionValues, lines_are_kept_as_given_and_read_by_type_and_position)
{
    for (const char *value : {"1 ", " 2", "3"})
        EXPECT_EQ(set_session_value(context, 1, "t=", value), 1);
    EXPECT_EQ(set_session_value(context, 1, "A=", "x"), 1) << "stored ignoring case";
    EXPECT_EQ(call(set_session_value, context, 1, "a=x", "y"), refused);
    EXPECT_EQ(call(set_session_value, context, 2, "a=", "y"), refused);
    const std::tuple<const char *, int, outcome> rows[] = {
        {"t=", 0, {1, "1 "}}, {" \tt=0", 1, {1, " 2"}}, {"t=", 2, {1, "3"}}, {"t=", 3, {0}},
        {"t=", -1, {0}},      {"i=", 0, {0}},           {" ", 0, {0}},       {"a=", 0, {1, "x"}},
        {"A=", 0, refused},   {"m=", 0, refused}};
    for (const auto &[tag, position, seen] : rows) {
        EXPECT_EQ(call(get_particular_index_of_session_value, context, 1, tag, position), seen) << tag;
        EXPECT_EQ(get_particular_index_of_session_value(context, 0, tag, position), nullptr)
            << "another document";
        EXPECT_EQ(call(get_particular_index_of_session_value, context, 2, tag, position), refused)
            << "no document";
    }
    EXPECT_STREQ(get_session_value(context, 1, "t="), "1 ");
    session_value *const further = context->parser_document->extra_values[9];
    EXPECT_TRUE(dak_sdp_traverse_list(further, 1) == further && dak_sdp_traverse_list(further, 0) == nullptr);
}

TEST_F(SessionValues, a_value_has_at_most_199_characters)
{
    const auto set = [&](std::size_t length) {
        return call(set_session_value, context, 0, "s=", xs(length).c_str());
    };
    const auto at = [&](int position) {
        return text_of(get_particular_index_of_session_value(context, 0, "s=", position));
    };
    EXPECT_EQ(set(200), logged(0, "src str len exceeds dest str len 200\n"));
    EXPECT_EQ(at(0), "(null)") << "a refused first line leaves the type unset";
    EXPECT_EQ(set(199), done);
    EXPECT_EQ(set(200), logged(0, "src str len exceeds dest str len 200\n"));
    EXPECT_EQ(set(1), done);
    EXPECT_EQ(at(0) + at(1) + at(2), xs(399)) << "a refused further line stays, cut";
}

} // namespace
