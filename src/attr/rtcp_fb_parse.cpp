// Reading a=rtcp-fb lines.

#include "attr/rtcp_fb.h"

#include "attr/attribute_line.hpp"
#include "sdp/codec_access.hpp"
#include "util/number.hpp"
#include "util/report.hpp"
#include "util/token.hpp"

using namespace dak;

namespace {

constexpr int max_payloads_of_line = 5;

// What a line says behind its payload part. No defaults: for records that begin as a constant with pointers,
// some compilers keep a template that can be written to.
struct feedback_tail {
    uint32_t fb_type;
    uint32_t subtype;
    bool sets_present;
    text_range param;
};

// Takes the next word off `rest` when it is `word`. Tabs belong to words.
bool take_if(text_range &rest, const char *word)
{
    text_range ahead = rest;
    if (!ahead.take_word().equals(word))
        return false;
    rest = ahead;
    return true;
}

feedback_tail read_nack(text_range rest)
{
    rest.skip_blanks();
    const uint32_t subtype = take_if(rest, "pli") ? RTCP_FB_NACK_PLI : RTCP_FB_NACK_PLAIN;
    return {RTCP_FB_NACK, subtype, true, rest.trimmed()};
}

// Any word behind "ccm" is taken for its subtype; one that is unknown leaves the list as present as it was.
feedback_tail read_ccm(text_range rest)
{
    const text_range word = rest.take_word();
    const bool is_tmmbr = word.equals("tmmbr");
    const uint32_t subtype = is_tmmbr ? RTCP_FB_CCM_TMMBR : RTCP_FB_CCM_FIR;
    return {RTCP_FB_CCM, subtype, is_tmmbr || word.equals("fir"), rest.trimmed()};
}

feedback_tail read_tail(text_range rest, bool takes_ccm)
{
    if (take_if(rest, "nack"))
        return read_nack(rest);
    if (takes_ccm && take_if(rest, "ccm"))
        return read_ccm(rest);
    return {RTCP_FB_UNSUPPORTED, 0, false, {rest.last, rest.last}};
}

bool is_full(const rtcp_fb_list &list)
{
    if (list.fb_count < RTCP_FB_MAX_ENTRIES)
        return false;
    DAK_LOG("fb attr size exceeded\n");
    return true;
}

// Fills the next entry without counting it; 0 when the parameter text is too long.
int fill_entry(rtcp_fb_list &list, const feedback_tail &tail)
{
    rtcp_fb_entry &entry = list.fb_entries[list.fb_count];
    entry = {};
    entry.fb_type = tail.fb_type;
    if (tail.fb_type == RTCP_FB_NACK)
        entry.nack_subtype = tail.subtype;
    if (tail.fb_type == RTCP_FB_CCM)
        entry.ccm_subtype = tail.subtype;
    if (tail.sets_present)
        list.fb_present = 1;
    return tail.param.length() < 200 && copy_text(entry.fb_param, tail.param);
}

int store_wildcard(rtcp_fb_list &list, text_range rest)
{
    if (is_full(list))
        return 1;
    const feedback_tail tail = read_tail(rest, true);
    if (!fill_entry(list, tail)) {
        DAK_LOG("parse_a_equal_rtcp_fb_line :\t\t\t\t\t\t\tcould not get type and value \n");
        return fail();
    }
    if (tail.fb_type == RTCP_FB_UNSUPPORTED)
        DAK_LOG("DAK_SDP_parse_a_equal_rtcp_fb_line :\t\t\t\t\t\t\tunsupported rtcp fb attribute type \n");
    else
        list.fb_count++;
    return 1;
}

enum class outcome { stored, skipped, failed };

outcome store_at_payload(media_description &description, uint32_t payload_number, const feedback_tail &tail)
{
    const int index = find_payload(description, payload_number);
    if (!has_codec(description, index)) {
        dak_assert_failed();
        return outcome::failed;
    }
    rtcp_fb_list &list = description.codecs[index].rtcp_fb;
    if (is_full(list))
        return outcome::skipped;
    if (!fill_entry(list, tail)) {
        DAK_LOG("parse_a_equal_rtcp_fb_line :                          could not get type and value \n");
        dak_assert_failed();
        return outcome::failed;
    }
    if (tail.fb_type == RTCP_FB_UNSUPPORTED) {
        DAK_LOG(
            "DAK_SDP_parse_a_equal_rtcp_fb_line :                          unsupported rtcp fb attribute type \n");
        return outcome::skipped;
    }
    list.fb_count++;
    return outcome::stored;
}

bool read_payload_number(text_range word, uint32_t &number)
{
    return !word.empty() && read_lenient(word, number);
}

// Stores the line under its first number and the numbers that follow it; the first word that is no number, or
// a sixth number, is the feedback type.
int store_payloads(media_description &description, uint32_t first_number, text_range rest)
{
    uint32_t numbers[max_payloads_of_line] = {first_number};
    int count = 1;
    for (text_range ahead = rest; count < max_payloads_of_line; count++) {
        if (!read_payload_number(ahead.take_word(), numbers[count]))
            break;
        rest = ahead;
    }
    const feedback_tail tail = read_tail(rest, false);
    for (int i = 0; i < count; i++) {
        const outcome result = store_at_payload(description, numbers[i], tail);
        if (result != outcome::stored)
            return result == outcome::skipped;
    }
    return 1;
}

} // namespace

int dak_sdp_parse_a_equal_rtcp_fb_line(media_description *description, const char *line_start,
                                       const char *line_end)
{
    if (description == nullptr || line_start == nullptr) {
        DAK_LOG("NULL Pararms sent \n");
        return 0;
    }
    if (line_end == nullptr)
        return fail();
    if (!field_text(description->transport_profile).equals("RTP/AVPF"))
        return skip_for_profile(*description);
    const type_and_value line = split_type_and_value(line_start, line_end, ":", nullptr);
    if (line.parts != 2)
        return fail();
    const text_range rest(line.next, line_end);
    if (line.value.equals("*"))
        return store_wildcard(description->rtcp_fb, rest);
    uint32_t number = 0;
    return read_payload_number(line.value, number) ? store_payloads(*description, number, rest) : 0;
}
