#include "oa/validate_preconditions.h"

#include "oa/precondition_fields.hpp"
#include "oa/precondition_table.h"
#include "oa/validation_code.h"
#include "util/report.hpp"

using namespace dak;

namespace {

constexpr uint32_t rows = 4;
constexpr uint32_t columns = 6;
constexpr uint8_t most_desired = 2;

uint32_t fail_as_invalid()
{
    DAK_LOG("dak_app_oa_check_mline_preconds:PCD attr err\n");
    return SDP_INVALID_PRECONDITIONS;
}

// Entries of an offer by status type.
struct status_counts {
    uint8_t current[rows] = {};
    uint8_t desired[rows] = {};

    bool has(uint32_t status) const { return current[status] != 0 || desired[status] != 0; }
    bool is_complete(uint32_t status) const
    {
        return current[status] == 1 && desired[status] >= 1 && desired[status] <= most_desired;
    }
};

// Whether an entry makes a direction mandatory in which the stream does not flow.
bool contradicts(const sdp_precondition &entry, uint32_t stream_direction)
{
    if (entry.kind != PCD_DES || entry.desired.strength != SDP_STRENGTH_MANDATORY ||
        status_of(entry) != SDP_STATUS_LOCAL)
        return false;
    return (stream_direction == SDP_SENDONLY && direction_of(entry) == SDP_PRECOND_RECV) ||
           (stream_direction == SDP_RECVONLY && direction_of(entry) == SDP_PRECOND_SEND);
}

uint32_t count_entry(const sdp_precondition &entry, uint32_t stream_direction, status_counts &counts)
{
    if (entry.kind == PCD_CONF)
        return SDP_VALID;
    if (entry.kind != PCD_CURR && entry.kind != PCD_DES)
        return fail_as_invalid();
    if (contradicts(entry, stream_direction))
        return SDP_INVALID_PRECONDITIONS;
    const uint32_t status = status_of(entry);
    if (status == 0 || status >= rows)
        return fail_as_invalid();
    if (entry.precond_type != SDP_PRECOND_UNKNOWN)
        (entry.kind == PCD_CURR ? counts.current : counts.desired)[status]++;
    return SDP_VALID;
}

uint32_t check_completeness(const status_counts &counts)
{
    const bool is_segmented = counts.has(SDP_STATUS_LOCAL) || counts.has(SDP_STATUS_REMOTE);
    if (counts.has(SDP_STATUS_E2E) && !counts.is_complete(SDP_STATUS_E2E))
        return SDP_INVALID_PRECONDITIONS;
    if (is_segmented && !(counts.is_complete(SDP_STATUS_LOCAL) && counts.is_complete(SDP_STATUS_REMOTE)))
        return SDP_INVALID_PRECONDITIONS;
    return SDP_VALID;
}

struct precondition_tables {
    uint8_t current[rows][columns];
    uint32_t desired[rows][columns];

    bool fill(uint32_t count, const sdp_precondition *entries)
    {
        return dak_app_oa_fill_pcd_list(count, entries, current, desired) == 0;
    }
};

// Where the answer keeps what the offer has at (row, column). Tabulation never fills row 0, so an e2e entry
// of the offer with a strength above 0 is never matched.
uint32_t answer_strength(const precondition_tables &answer, uint32_t row, uint32_t column)
{
    constexpr uint32_t mirrored_rows[rows] = {0, 0, SDP_STATUS_REMOTE, SDP_STATUS_LOCAL};
    constexpr uint32_t mirrored_columns[columns] = {1, 2, 1, 1, 1, 1};
    const uint32_t mirrored_column = row == 0 && column == 0 ? 0 : mirrored_columns[column];
    return answer.desired[mirrored_rows[row]][mirrored_column];
}

bool keeps_strengths(const precondition_tables &answer, const precondition_tables &offer)
{
    for (uint32_t row = 0; row < rows; row++) {
        for (uint32_t column = 0; column < columns; column++) {
            if (answer_strength(answer, row, column) < offer.desired[row][column])
                return false;
        }
    }
    return true;
}

bool confirms_status(const precondition_tables &answer, const precondition_tables &offer)
{
    constexpr uint32_t mirrored_columns[columns] = {0, 2, 1, 3, 4, 5};
    for (uint32_t column = 0; column < columns; column++) {
        if (offer.current[SDP_STATUS_LOCAL][column] != 0 &&
            answer.current[SDP_STATUS_REMOTE][mirrored_columns[column]] == 0)
            return false;
    }
    return true;
}

// Whether the answer makes mandatory at the offerer's side what the offer's direction leaves out.
bool demands_too_much(const precondition_tables &answer, uint32_t offer_direction)
{
    const uint32_t(&remote)[columns] = answer.desired[SDP_STATUS_REMOTE];
    return (offer_direction == SDP_RECVONLY && remote[SDP_PRECOND_RECV] == SDP_STRENGTH_MANDATORY) ||
           (offer_direction == SDP_SENDONLY && remote[SDP_PRECOND_SEND] == SDP_STRENGTH_MANDATORY);
}

} // namespace

uint32_t dak_app_oa_validate_preconditions(const sdp_media_line *mline, uint32_t direction)
{
    if (mline == nullptr) {
        DAK_LOG("dak_app_oa_validate_preconditions: Null params\n");
        return SDP_NULL_ARGUMENT;
    }
    if (mline->precond_present == 0 || mline->num_preconds == 0)
        return SDP_VALID;
    if (mline->num_preconds > SDP_MAX_PRECONDS)
        return fail_as_invalid();
    status_counts counts;
    for (uint32_t i = 0; i < mline->num_preconds; i++) {
        const uint32_t result = count_entry(mline->preconds[i], direction, counts);
        if (result != SDP_VALID)
            return result;
    }
    return check_completeness(counts);
}

uint32_t dak_app_oa_validate_ans_pcd(uint32_t ans_num, const sdp_precondition *ans, uint32_t offer_num,
                                     const sdp_precondition *offer, uint32_t offer_direction)
{
    precondition_tables answered;
    precondition_tables offered;
    if (ans == nullptr || offer == nullptr || !answered.fill(ans_num, ans) || !offered.fill(offer_num, offer))
        return SDP_NULL_ARGUMENT;
    const bool is_kept = !demands_too_much(answered, offer_direction) && keeps_strengths(answered, offered) &&
                         confirms_status(answered, offered);
    return is_kept ? SDP_VALID : SDP_INVALID_PRECONDITIONS;
}
