#include "validation_test.h"

#include <set>

#include "oa/payload_matching.h"
#include "oa/validate_fmtp.h"

using namespace validation;

namespace {

using FormatValidation = PlatformTest;
using pairs = std::vector<std::pair<uint16_t, uint16_t>>;

// Payload numbers and codecs of a line's formats; codec 0 leaves out the rtpmap.
auto line_of(const pairs &formats, std::size_t count)
{
    auto line = std::make_unique<sdp_media_line>();
    line->num_formats = static_cast<uint16_t>(count);
    for (std::size_t each = 0; each < formats.size(); ++each) {
        line->payload_numbers[each] = formats[each].first;
        line->formats[each].has_rtpmap = formats[each].second == 0 ? 0 : 2;
        line->formats[each].codec_id = formats[each].second;
    }
    return line;
}

TEST_F(FormatValidation, StaticPayloads)
{
    const std::set<uint32_t> known = {0, 4, 8, 9, 18, 21, 34};
    for (uint32_t number = 0; number < 0x10100; ++number)
        EXPECT_EQ(dak_app_oa_find_mime_by_pyld_num(number), known.count(number) ? number : 114U);
}

TEST_F(FormatValidation, Matching)
{
    const std::string unknown =
        "dak_app_oa_find_matching_plds: Unknown mime                           in offer msg  \n";
    const struct {
        pairs a, b;
        uint8_t by_codec;
        pairs expected; // positions in A and in B
        bool is_unknown = false;
    } rows[] = {
        {{{5, 0}, {6, 0}, {5, 0}}, {{6, 0}, {5, 0}}, 0, {{1, 0}, {0, 1}, {2, 1}}}, // B leads
        {{{97, 97}, {98, 114}}, {{98, 99}, {97, 99}}, 0, {{1, 0}, {0, 1}}},        // whatever the codec
        {{{97, 97}, {98, 99}}, {{120, 99}, {121, 97}}, 2, {{1, 0}, {0, 1}}},       // whatever the number
        {{{0, 0}, {100, 8}}, {{8, 0}, {3, 97}, {34, 0}}, 1, {{1, 0}}},
        {{{97, 97}, {98, 114}}, {{98, 114}, {97, 97}}, 1, {}, true},
        {{{98, 114}, {97, 97}}, {{97, 97}}, 1, {{1, 0}}}, // unknown in A
        {{{97, 97}}, {}, 1, {}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(&row - rows);
        const auto a = line_of(row.a, row.a.size()), b = line_of(row.b, row.b.size());
        std::vector<uint16_t> in_a(255, 7), in_b(255, 7);
        standin::reset();
        const std::size_t count =
            dak_app_oa_find_all_matching_plds(a.get(), b.get(), in_a.data(), in_b.data(), row.by_codec);
        EXPECT_EQ(standin::texts().at(0),
                  row.is_unknown ? unknown : "Number of pylds matched " + std::to_string(count));
        pairs expected = row.expected, got;
        expected.resize(255, {7, 7}); // nothing is written behind them
        for (std::size_t each = 0; each < 255; ++each)
            got.emplace_back(in_a[each], in_b[each]);
        EXPECT_EQ(count, row.expected.size());
        EXPECT_EQ(got, expected);
        uint16_t first_a = 7, first_b = 7;
        expect_verdict(
            "first", call(dak_app_oa_find_matching_plds, a.get(), b.get(), &first_a, &first_b, row.by_codec),
            count != 0, row.is_unknown ? unknown : "");
        EXPECT_EQ(std::pair(first_a, first_b), expected[0]);
        EXPECT_EQ(standin::assert_count(), row.is_unknown);
    }
    // A match in front of the unknown one is found; all matches are not.
    const auto a = line_of({{97, 97}}, 1), b = line_of({{97, 97}, {98, 114}}, 2);
    uint16_t in[255];
    expect_verdict("first", call(dak_app_oa_find_matching_plds, a.get(), b.get(), in, in, 1), 1);
    expect_verdict("all", call(dak_app_oa_find_all_matching_plds, a.get(), b.get(), in, in, 1), 0, unknown);
    for (int missing = 0; missing < 4; ++missing) {
        const auto *x = missing == 0 ? nullptr : a.get(), *y = missing == 1 ? nullptr : b.get();
        uint16_t *in_x = missing == 2 ? nullptr : in, *in_y = missing == 3 ? nullptr : in;
        const char null[] = "dak_app_oa_validate_media_fmts: Null                             params  \n";
        expect_verdict("null", call(dak_app_oa_find_matching_plds, x, y, in_x, in_y, 0), 0, null);
        expect_verdict("null", call(dak_app_oa_find_all_matching_plds, x, y, in_x, in_y, 0), 0, null);
    }
}

TEST_F(FormatValidation, MatchingAtItsLimits)
{
    for (const std::size_t count : {15U, 16U, 20U, 65535U}) {
        const auto line = line_of(pairs(std::min<std::size_t>(count, 20), {96, 97}), count);
        std::vector<uint16_t> a(255), b(255);
        EXPECT_EQ(call(dak_app_oa_find_all_matching_plds, line.get(), line.get(), a.data(), b.data(), 0).code,
                  std::min<std::size_t>(count * count, 255));
    }
}

// A line whose last format has these parameters.
auto line_with(const sdp_codec_params &params)
{
    auto line = std::make_unique<sdp_media_line>();
    line->formats[19].params = params;
    return line;
}

TEST_F(FormatValidation, EveryCodecsOwnCheck)
{
    const struct {
        uint32_t codec;
        std::string name, function;
        decltype(&dak_app_oa_validate_dtmf_fmtp) check;
    } rows[] = {
        {102, "EVRCB0", "evrcb0", dak_app_oa_validate_evrcb0_fmtp},
        {103, "EVRCB", "evrcb", dak_app_oa_validate_evrcb_fmtp},
        {105, "DTMF", "dtmf", dak_app_oa_validate_dtmf_fmtp},
        {112, "DTMF", "dtmf", dak_app_oa_validate_dtmf_fmtp},
        {108, "EVRCWB0", "evrcwb0", dak_app_oa_validate_evrcwb0_fmtp},
        {109, "EVRCWB", "evrcwb", dak_app_oa_validate_evrcwb_fmtp},
        {110, "EVRCWB1", "evrcwb1", dak_app_oa_validate_evrcwb1_fmtp},
    };
    const auto unmarked = line_with({.frame = {1, 2}});
    const sdp_media_line *line = unmarked.get(), *no_line = nullptr;
    std::vector<std::string> reasons(120); // of codecs without a rule
    for (const auto &row : rows) {
        const std::string null = "dak_app_oa_validate_" + row.function + "_fmtp: Null params";
        reasons[row.codec] = " No " + row.name + " config ";
        expect_verdict(row.name, call(row.check, 3, 19, line), 0, reasons[row.codec]);
        expect_verdict(row.name, call(row.check, 3, 20, line), 15, null);
        expect_verdict(row.name, call(row.check, 3, 0, no_line), 15, null);
    }
    const char null[] = "dak_app_oa_validate_fmtp: Null params";
    for (uint32_t codec = 0; codec < 120; ++codec)
        expect_verdict("unmarked", call(dak_app_oa_validate_fmtp, codec, 3, 19, line), 0, reasons[codec]);
    expect_verdict("no format", call(dak_app_oa_validate_fmtp, 97, 3, 20, line), 15, null);
    expect_verdict("null", call(dak_app_oa_validate_fmtp, 97, 3, 0, no_line), 15, null);
}

// Sets the fields that a block of the EVRC family has; -1 leaves modes out.
auto evrc(uint32_t codec, int sendmode, int modes, uint8_t fixedrate)
{
    sdp_codec_params params = {};
    const auto set = [&](auto &block) {
        block.evrc_params_valid = 1;
        block.sendmode_present = sendmode < 0 ? 0 : 2, block.sendmode = static_cast<uint8_t>(sendmode & 255);
        block.mode_set_recv_present = modes < 0 ? 0 : 2,
        block.mode_set_recv = static_cast<uint8_t>(modes & 255);
        if constexpr (requires { block.recvmode; })
            block.recvmode_present = block.mode_set_recv_present;
        if constexpr (requires { block.fixedrate; })
            block.fixedrate_present = fixedrate;
    };
    codec == 110                   ? set(params.evrcwb1)
    : codec == 103 || codec == 109 ? set(params.evrcb)
                                   : set(params.evrcb0);
    return line_with(params);
}

TEST_F(FormatValidation, EvrcFamily)
{
#define SEND " sendmode used for recvonly stream "
#define RATE " fixedrate not applicable for sendmode "
    const char receive[] = " recvmode used for sendonly stream ";
    const char all[] = " Invalid sendmode for @ 108 " SEND " Invalid modes for mode-set-recv for @";
    const char set[] = " Invalid modes for mode-set-recv for @ mode-set-recv used for sendonly stream ";
    const char every[] = SEND " Invalid modes for mode-set-recv for @" RATE "129 ";
    const struct {
        std::vector<uint32_t> codecs;
        int sendmode, modes;
        uint8_t fixedrate;
        uint32_t direction, code;
        std::string reasons = ""; // '@' stands for the codec's name
    } rows[] = {
        {{102, 103}, 2, 2, 0, 3, 0},
        {{102, 103}, 2, 2, 0, 1, 0, SEND},
        {{102, 103}, 2, 2, 0, 2, 0, receive},
        {{102, 103, 108, 109, 110}, -1, -1, 1, 2, 0},
        {{108, 109, 110}, 1, 128, 1, 3, 0},
        {{108, 109, 110}, 108, 2, 0, 1, 0, all},
        {{108, 109, 110}, 255, 110, 0, 2, 0, set},
        {{108, 109}, 144, 1, 1, 3, 0},
        {{110}, 16, 1, 1, 3, 11, RATE "16 "},
        {{110}, 129, 2, 1, 1, 11, every},
        {{110}, 16, 16, 2, 3, 0},
    };
#undef SEND
#undef RATE
    const std::string names[] = {"EVRCWB0", "EVRCWB", "EVRCWB1"};
    for (const auto &row : rows) {
        for (const uint32_t codec : row.codecs) {
            std::string reasons = row.reasons;
            for (std::size_t at; (at = reasons.find('@')) != std::string::npos;)
                reasons.replace(at, 1, names[codec - 108]);
            const auto line = evrc(codec, row.sendmode, row.modes, row.fixedrate);
            expect_verdict(std::to_string(codec),
                           call(dak_app_oa_validate_fmtp, codec, row.direction, 19, line.get()), row.code,
                           reasons);
        }
    }
}

TEST_F(FormatValidation, Events)
{
    const char missing[] = "supported DTMF events not mentioned", range[] = "invalid DTMF event range";
    sdp_tel_event_params absent = events({}), last = events({});
    absent.events_present = 2, last.events[15] = {2, 7, 3};
    const struct {
        const char *label;
        sdp_tel_event_params block;
        std::vector<uint32_t> directions;
        uint32_t code;
        const char *reasons = "";
    } rows[] = {
        {"listed", events({{1, 66, 0}, {2, 0, 15}}), {0, 1, 2, 3, 4}, 0},
        {"needed", absent, {1, 3}, 11, missing},
        {"not needed", absent, {0, 2, 4}, 0},
        {"range of one", events({{2, 0, 15}, {2, 5, 5}}), {1, 2, 3, 4}, 11, range},
        {"range behind the end", last, {2, 3}, 11, range},
        {"no range", events({{1, 7, 3}, {3, 7, 3}}), {3}, 0},
    };
    for (const auto &row : rows) {
        const auto line = line_with({.tel_event = row.block});
        for (const uint32_t direction : row.directions)
            expect_verdict(row.label, call(dak_app_oa_validate_dtmf_fmtp, direction, 19, line.get()),
                           row.code, row.reasons);
    }
}

TEST_F(FormatValidation, EventList)
{
    using numbers = std::vector<uint16_t>;
    const auto count_up = [](numbers list, uint16_t first, std::size_t count) {
        for (; count > 0; --count)
            list.push_back(first++);
        return list;
    };
    sdp_tel_event_params singles = events({});
    for (uint16_t each = 0; each < 16; ++each)
        singles.events[each] = {1, each, 99};
    sdp_tel_event_params overlong = singles;
    overlong.events[15] = {2, 0, 255};
    const std::pair<sdp_tel_event_params, numbers> rows[] = {
        {events({}), {}},
        {events({{2, 0, 15}, {1, 16, 0}}), count_up({}, 0, 16)}, // 16 are enough
        {events({{2, 0, 14}, {1, 20, 0}, {1, 21, 0}}), count_up(count_up({}, 0, 15), 20, 1)},
        {events({{2, 0, 3}, {2, 20, 40}, {1, 9, 0}}), count_up(count_up({}, 0, 4), 20, 21)},
        {singles, count_up({}, 0, 16)},
        {events({{0, 1, 2}, {3, 1, 2}, {2, 7, 3}, {1, 300, 0}, {2, 5, 5}}), {300, 5}},
        {overlong, count_up(count_up({}, 0, 15), 0, 240)},
        {events({{2, 256, 260}}), count_up({}, 0, 5)}, // a range's ends have 8 bits
        {events({{2, 250, 300}}), {}},
    };
    for (const auto &[given, expected] : rows) {
        SCOPED_TRACE(testing::PrintToString(expected));
        const auto block = std::make_unique<sdp_tel_event_params>(given);
        numbers list(255);
        uint8_t count = 9;
        EXPECT_EQ(call(dak_app_oa_form_dtmf_evt_list, block.get(), list.data(), &count).code, 1U);
        list.resize(count);
        EXPECT_EQ(list, expected);
        EXPECT_EQ(standin::texts().at(0), "dak_app_oa_form_dtmf_evt_list: num evts " + std::to_string(count));
    }
    numbers list(255);
    uint8_t count = 9;
    for (int missing = 0; missing < 3; ++missing)
        expect_verdict("null",
                       call(dak_app_oa_form_dtmf_evt_list, missing == 0 ? nullptr : &singles,
                            missing == 1 ? nullptr : list.data(), missing == 2 ? nullptr : &count),
                       0, "dak_app_oa_get_chl_direction: Null params");
}

} // namespace
