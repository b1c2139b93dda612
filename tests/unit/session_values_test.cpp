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

TEST_F(SessionValues, an_attribute_is_found_by_the_beginning_of_its_name)
{
    const auto get = [&](const char *name) {
        char value[256] = "-";
        return outcome_of([&] { return get_session_attribute_value(context, 0, name, value); },
                          [&] { return value; });
    };
    EXPECT_EQ(get("ptime"), (outcome{0, "-"})) << "no attributes at all";
    for (const char *value : {"tool:a:b", "inactive", "sendrecv:1", "ptime:20"})
        set_session_value(context, 0, "a=", value);
    const std::pair<const char *, outcome> rows[] = {{"tool", {1, "a:b"}}, {"inactive", {1, "-"}},
                                                     {"send", {1, "1"}},   {"ptime", {1, "20"}},
                                                     {"Ptime", {0, "-"}},  {"maxptime", {0, "-"}}};
    for (const auto &[name, seen] : rows)
        EXPECT_EQ(get(name), seen) << name;
}

} // namespace
