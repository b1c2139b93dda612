#include "oa/precondition_table.h"

#include "oa/precondition_fields.hpp"
#include "util/report.hpp"

#include <string.h>

using namespace dak;

namespace {

// Validation's codes, which tabulation shares.
constexpr uint32_t valid = 0;
constexpr uint32_t precondition_error = 14;
constexpr uint32_t null_argument = 15;

constexpr size_t rows = 4;
constexpr size_t columns = 6;
constexpr uint32_t ignored_direction = 4;

uint32_t fail_as_invalid()
{
    DAK_LOG("dak_app_oa_check_mline_preconds:PCD attr err\n");
    return precondition_error;
}

bool is_ignored(const sdp_precondition &entry)
{
    return entry.precond_type == SDP_PRECOND_UNKNOWN || direction_of(entry) == ignored_direction;
}

struct precondition_tables {
    uint8_t (*current)[columns];
    uint32_t (*desired)[columns];

    void set(const sdp_precondition &entry, uint32_t direction) const
    {
        if (entry.kind == PCD_DES)
            desired[status_of(entry)][direction] = entry.desired.strength;
        else
            current[status_of(entry)][direction] = 1;
    }
};

uint32_t tabulate(const sdp_precondition &entry, const precondition_tables &tables)
{
    if (entry.kind == PCD_CONF)
        return valid;
    const uint32_t status = status_of(entry);
    const uint32_t direction = direction_of(entry);
    if ((entry.kind != PCD_CURR && entry.kind != PCD_DES) || status == 0 || direction == 0)
        return fail_as_invalid();
    if (is_ignored(entry))
        return valid;
    if (status >= rows || direction >= columns)
        return fail_as_invalid();
    if (direction != SDP_PRECOND_SENDRECV) {
        tables.set(entry, direction);
    } else {
        tables.set(entry, SDP_PRECOND_RECV);
        tables.set(entry, SDP_PRECOND_SEND);
    }
    return valid;
}

} // namespace

uint32_t dak_app_oa_fill_pcd_list(uint32_t num_preconds, const sdp_precondition *preconds,
                                  uint8_t current[4][6], uint32_t desired[4][6])
{
    if (preconds == nullptr || current == nullptr || desired == nullptr)
        return null_argument;
    memset(current, 0, rows * columns * sizeof current[0][0]);
    memset(desired, 0, rows * columns * sizeof desired[0][0]);
    if (num_preconds > SDP_MAX_PRECONDS)
        return fail_as_invalid();
    for (uint32_t i = 0; i < num_preconds; i++) {
        const uint32_t result = tabulate(preconds[i], {current, desired});
        if (result != valid)
            return result;
    }
    return valid;
}

int dak_app_oa_check_preconds(const sdp_container *container)
{
    if (container == nullptr) {
        DAK_LOG("dak_app_oa_check_preconds: Null params \n");
        return 0;
    }
    for (uint16_t i = 0; i < container->num_mlines; i++) {
        const sdp_media_line *mline = container->mlines != nullptr ? &container->mlines[i] : nullptr;
        if (dak_app_oa_check_mline_preconds(mline))
            continue;
        DAK_LOG("dak_app_oa_check_preconds: Preconditions not                          met for mline- %d \n",
                static_cast<int>(i));
        return 0;
    }
    return 1;
}

int dak_app_oa_check_mline_preconds(const sdp_media_line *mline)
{
    if (mline == nullptr) {
        DAK_LOG("dak_app_oa_check_mline_preconds: Null params\n");
        return 0;
    }
    if (mline->precond_present == 0 || mline->num_preconds == 0)
        return 1;
    uint8_t current[rows][columns];
    uint32_t desired[rows][columns];
    if (dak_app_oa_fill_pcd_list(mline->num_preconds, mline->preconds, current, desired) != valid)
        return 0;
    for (uint32_t row = 0; row < rows; row++) {
        for (uint32_t column = 0; column < columns; column++) {
            if (desired[row][column] == SDP_STRENGTH_MANDATORY && current[row][column] == 0)
                return 0;
        }
    }
    return 1;
}
