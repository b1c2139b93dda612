#include "validation.h"

using namespace oa_tests;

namespace {

class OfferValidation : public PlatformTest {
protected:
    // Judges the container of each case of a kind.
    template <class Validate> static void expect_judged(const std::string &kind, Validate validate)
    {
        for_each_case("validation/data/offer.txt", kind, [&](const test_case &each) {
            const body given(each);
            each.expect(judged({&given}, [&] { return validate(given.session); }));
        });
    }
};

TEST_F(OfferValidation, initial_offers)
{
    expect_judged("offer", [](auto &offer) { return dak_app_oa_validate_initial_offer(&offer); });
}

TEST_F(OfferValidation, modified_offers)
{
    for_each_case("validation/data/offer.txt", "modified",
                  [](const test_case &each) { expect_compared(each, dak_app_oa_validate_modified_sdp); });
}

TEST_F(OfferValidation, addresses)
{
    expect_judged("address", [](auto &offer) { return dak_app_oa_validate_ipaddress(&offer.connection); });
}

TEST_F(OfferValidation, directions)
{
    expect_judged("direction",
                  [](auto &offer) { return dak_app_oa_get_chl_direction(&offer.mlines[0], &offer); });
}

TEST_F(OfferValidation, groups)
{
    expect_judged("semantics",
                  [](auto &offer) { return dak_app_oa_validate_group_semantics(&offer, &offer.groups[3]); });
    expect_judged("mids",
                  [](auto &offer) { return dak_app_oa_validate_group_mids(&offer, &offer.groups[3], 3); });
}

} // namespace
