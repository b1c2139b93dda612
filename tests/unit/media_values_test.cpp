#include "sdp/media_values.h"

#include "support.h"

namespace {

class MediaValues : public ContextTest {
protected:
    std::string values() const
    {
        return dump(section).substr(std::string("m=audio 49170/1 RTP/AVP\n").size());
    }
};

TEST_F(MediaValues, each_type_has_its_places)
{
    const auto set = [&](const char *type, std::string value) {
        return call(dak_sdp_set_media_value, section, type, value.c_str());
    };
    for (const char *type : {"k=", "b=", "B=", "b=", "b=", "c=", "i="})
        EXPECT_EQ(set(type, type), done);
    for (const std::string type : {"b=", "c=", "t=", "b"})
        EXPECT_EQ(set(type.c_str(), "x"), logged(0, "No entry found for the tag " + type + " \n"));
    EXPECT_EQ(values(), "  i=i=\n  c=c=\n  b=b=\n  b=B=\n  b=b=\n  b=b=\n  k=k=\n");
    EXPECT_STREQ(get_media_description_value(section, "b="), "B=") << "this one reads the second";
    EXPECT_EQ(get_media_description_value(section, "c="), nullptr);
    EXPECT_EQ(get_media_description_value_by_index(section, 0, "B="), nullptr) << "read with regard to case";
    EXPECT_EQ(written([&](auto *in) { return dak_sdp_encode_media_fields(in, section); }),
              (outcome{1, "i=i=\r\nc=c=\r\nb=b=\r\nb=B=\r\nb=b=\r\nb=b=\r\nk=k=\r\n"}));
    EXPECT_EQ(written([&](auto *in) { return dak_sdp_encode_media_fields(in, section); }, 11),
              logged(0, "", "i=i=\r\nc=c="));
}

TEST_F(MediaValues, a_value_that_is_too_long_takes_no_place)
{
    EXPECT_EQ(call(dak_sdp_set_media_value, section, "i=", xs(200).c_str()),
              logged(0, "src str len exceeds dest str len 200\n"));
    EXPECT_EQ(call(dak_sdp_set_media_value, section, "i=", xs(199).c_str()), done);
    EXPECT_EQ(values(), "  i=" + xs(199) + "\n");
}

} // namespace
