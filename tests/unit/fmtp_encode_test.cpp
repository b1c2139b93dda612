#include "codec/fmtp_encode.h"

#include "support.h"
#include "table.h"

namespace {

class FmtpEncode : public PlatformTest {};

// Slots are given as "present name=value", the name left out of a bare value.
TEST_F(FmtpEncode, the_line_holds_the_slots_that_are_set)
{
    table::for_each_row("fmtp_slots.txt", [](const table::row &row) {
        media_info info{};
        std::istringstream slots(row.at("slots"));
        std::string pair;
        for (int i = 0; slots >> info.param_present[i] >> pair; ++i) {
            pair.substr(0, pair.find('=')).copy(info.param_name[i], 199);
            pair.substr(pair.find('=') + 1).copy(info.param_value[i], 199);
        }
        char scratch[200];
        EXPECT_EQ(written([&](sdp_lib_context *context) {
                      return dak_sdp_encode_a_equal_fmtp_line(std::stoi(row.at("count")), info.param_present,
                                                              97, scratch, context, info.param_name,
                                                              info.param_value, ";");
                  }),
                  table::expected(row));
    });
}

} // namespace
