#include "oa/precondition_text.h"

#include "oa/precondition_fields.hpp"
#include "oa/precondition_text.hpp"
#include "oa/result_code.h"
#include "oa/truncation.hpp"
#include "oa/words.hpp"

using namespace dak;

namespace {

constexpr size_t text_size = 256;
constexpr delimiter_set delimiters = " \n";

bool is_kind(uint32_t kind) { return find_word(precondition_words, kind) != nullptr; }

uint32_t add_type(text_writer &text, const sdp_precondition &entry)
{
    const word *type = find_word(precondition_type_words, entry.precond_type);
    if (type == nullptr) {
        DAK_LOG("dak_app_oa_encode_pre_cond_str : Error in                             Precondition type: %d",
                static_cast<int>(entry.precond_type));
        return SDP_OA_INVALID_CONTENT;
    }
    if (text.add(type->text).add(' ').fits())
        return SDP_OA_SUCCESS;
    DAK_LOG("dak_app_oa_encode_pre_cond_str :                                 error - buffer overflow:%lu",
            static_cast<unsigned long>(text_size));
    return SDP_OA_TOO_LONG;
}

// Its failure logs 1 in place of the strength; log filters look for that.
uint32_t add_strength(text_writer &text, const sdp_precondition &entry)
{
    if (entry.kind != PCD_DES)
        return SDP_OA_SUCCESS;
    const word *strength = find_word(strength_words, entry.desired.strength);
    if (strength == nullptr) {
        DAK_LOG(
            "dak_app_oa_encode_pre_cond_str : Error in                            Precondition strength: %d",
            1);
        return SDP_OA_INVALID_CONTENT;
    }
    if (text.add(strength->text).add(' ').fits())
        return SDP_OA_SUCCESS;
    DAK_LOG("dak_app_oa_encode_pre_cond_str :                                 error - buffer overflow ");
    return SDP_OA_TOO_LONG;
}

uint32_t add_status(text_writer &text, const sdp_precondition &entry)
{
    const word *status = find_word(status_words, status_of(entry));
    const word *direction = find_word(precondition_direction_words, direction_of(entry));
    if (status == nullptr) {
        DAK_LOG("dak_app_oa_encode_pre_cond_str :                           error - link status:%d",
                static_cast<int>(status_of(entry)));
        return SDP_OA_INVALID_CONTENT;
    }
    if (direction == nullptr) {
        DAK_LOG("dak_app_oa_encode_pre_cond_str :                        invalid direction: %d",
                static_cast<int>(direction_of(entry)));
        return SDP_OA_INVALID_CONTENT;
    }
    if (text.add(status->text).add(' ').add(direction->text).fits())
        return SDP_OA_SUCCESS;
    DAK_LOG("dak_app_oa_encode_pre_cond_str :                               error - buffer overflow ");
    return SDP_OA_TOO_LONG;
}

// Stores what was read where the entry's kind has it.
void set_words(sdp_precondition &entry, uint32_t strength, uint32_t status_type, uint32_t direction)
{
    if (entry.kind == PCD_DES)
        entry.desired = {strength, status_type, direction};
    else
        entry.status = {status_type, direction};
}

uint32_t read_strength(text_range &rest, uint32_t &strength)
{
    const word *found = find_word(strength_words, rest.take_token(delimiters));
    if (found == nullptr) {
        DAK_LOG("dak_app_oa_parse_pre_cond_str :                               invalid strength \n");
        return SDP_OA_INVALID_CONTENT;
    }
    strength = found->value;
    return SDP_OA_SUCCESS;
}

// Reads one word of a table; `missing` and `unknown` are the log texts of its failures.
template <typename Word, size_t N>
uint32_t read_word(text_range &rest, const Word (&words)[N], const char *missing, const char *unknown,
                   uint32_t &value)
{
    const text_range token = rest.take_token(delimiters);
    if (token.empty()) {
        log_text(missing);
        return SDP_OA_MISSING_TOKEN;
    }
    const Word *found = find_word(words, token);
    if (found == nullptr) {
        log_text(unknown);
        return SDP_OA_INVALID_CONTENT;
    }
    value = found->value;
    return SDP_OA_SUCCESS;
}

// Reads the words behind the type; the entry takes them when all of them are known.
uint32_t read_words(text_range &rest, sdp_precondition &entry)
{
    uint32_t strength = 0;
    uint32_t status_type = 0;
    uint32_t direction = 0;
    uint32_t result = SDP_OA_SUCCESS;
    if (entry.kind == PCD_DES)
        result = read_strength(rest, strength);
    if (result == SDP_OA_SUCCESS)
        result = read_word(
            rest, status_words,
            "dak_app_oa_parse_pre_cond_str :                              Status Type not avail \n",
            "dak_app_oa_parse_pre_cond_str :                             invalid link \n", status_type);
    if (result == SDP_OA_SUCCESS)
        result = read_word(
            rest, precondition_direction_words,
            "dak_app_oa_parse_pre_cond_str :                             Direc. Attr unavailable \n",
            "dak_app_oa_parse_pre_cond_str :                             unknown direction \n", direction);
    if (result != SDP_OA_SUCCESS)
        return result;
    if (!is_kind(entry.kind)) {
        DAK_LOG("dak_app_oa_parse_pre_cond_str :                     invalid pcd attr type %d\n",
                static_cast<int>(entry.kind));
        return SDP_OA_INVALID_CONTENT;
    }
    set_words(entry, strength, status_type, direction);
    return SDP_OA_SUCCESS;
}

} // namespace

uint32_t dak::add_precondition(text_writer &text, const sdp_precondition &entry)
{
    if (!is_kind(entry.kind)) {
        DAK_LOG("error - unknown pcd type ");
        return SDP_OA_INVALID_CONTENT;
    }
    uint32_t result = add_type(text, entry);
    if (result == SDP_OA_SUCCESS)
        result = add_strength(text, entry);
    if (result == SDP_OA_SUCCESS)
        result = add_status(text, entry);
    return result;
}

uint32_t dak_app_oa_encode_pre_cond_str(char *text, const sdp_precondition *entry)
{
    if (text == nullptr || entry == nullptr) {
        DAK_LOG("dak_app_oa_encode_pre_cond_str:                           error - Invalid params");
        return SDP_OA_BAD_PARAMETERS;
    }
    char room[precondition_size];
    text_writer built(room);
    const uint32_t result = add_precondition(built, *entry);
    if (result == SDP_OA_SUCCESS)
        copy_text(text, text_size, built.text());
    return result;
}

uint32_t dak_app_oa_parse_pre_cond_str(const char *value, sdp_precondition *entry)
{
    if (value == nullptr || entry == nullptr) {
        DAK_LOG("dak_app_oa_parse_pre_cond_str :                           invalid params \n");
        return SDP_OA_BAD_PARAMETERS;
    }
    text_range rest(value);
    if (rest.length() >= text_size)
        return fail_as_truncated(text_size);
    const text_range type = rest.take_token(delimiters);
    if (type.empty()) {
        DAK_LOG("dak_app_oa_parse_pre_cond_str :                           Invalid pcd type \n");
        return SDP_OA_INVALID_CONTENT;
    }
    entry->precond_type =
        find_word(precondition_type_words, type) != nullptr ? SDP_PRECOND_QOS : SDP_PRECOND_UNKNOWN;
    return read_words(rest, *entry);
}
