#include "sdp/media_description.h"

#include "sdp/media_codecs.h"
#include "sdp/media_values.h"
#include "support.h"

namespace {

using MediaDescription = ContextTest;

TEST_F(MediaDescription, is_created_whole_or_not_at_all)
{
    const uint32_t numbers[21] = {97, 0, 101};
    const std::tuple<std::string, std::string, const uint32_t *, int, outcome> rows[] = {
        {"audio", "RTP/AVP", numbers, 3, {1, "m=audio 49170/2 RTP/AVP\n  97\n  0\n  101\n"}},
        {xs(199), xs(199), nullptr, 0, {1, "m=" + xs(199) + " 49170/2 " + xs(199) + "\n"}},
        {xs(200), "", nullptr, 0, refused},
        {"", xs(200), nullptr, 0, logged(0, "Src str length exceeded dst str 200 \n")},
        {"", "", numbers, 21, refused},
        {"", "", numbers, -1, refused},
        {"", "", nullptr, 1, refused},
    };
    for (const auto &[type, profile, payloads, count, seen] : rows) {
        section_ptr made;
        const auto make = [&, &type = type, &profile = profile, &payloads = payloads, &count = count] {
            made.reset(init_media_description(type.c_str(), 49170, 2, profile.c_str(), payloads, count));
            return made != nullptr;
        };
        EXPECT_EQ(outcome_of(make, [&] { return made != nullptr ? dump(made.get()) : ""; }), seen)
            << type << count;
    }
    EXPECT_NE(section_ptr(init_media_description("", 1, 1, "", numbers, 20)), nullptr);
    const section_ptr empty(init_empty_media_description());
    EXPECT_EQ(dump(empty.get()), "m= 0/0 \n");
    EXPECT_EQ(empty->codecs, nullptr);
}

TEST_F(MediaDescription, codecs_begin_as_zeroes)
{
    const uint32_t numbers[] = {97, 0};
    const section_ptr made(init_media_description("audio", 1, 1, "RTP/AVP", numbers, 2));
    EXPECT_EQ(set_payload_number(made.get(), 101), 1) << "needs a codec more";
    const std::string bytes(reinterpret_cast<const char *>(made->codecs), 3 * sizeof(media_codec));
    EXPECT_EQ(bytes.find_first_not_of('\0'), bytes.npos);
}

TEST_F(MediaDescription, texts_are_given_with_their_length)
{
    EXPECT_EQ(call(set_media_type, section, heap_text("video \r").data(), 7), done);
    EXPECT_EQ(call(set_media_type, section, "", 0), refused);
    EXPECT_EQ(call(set_transport_profile, section, heap_text("TCP").data(), 3), done);
    EXPECT_EQ(call(set_transport_profile, section, xs(200).c_str(), 200),
              logged(0, "src str len exceeds dest str len 200\n"));
    EXPECT_EQ(call(set_media_format, section, heap_text("*").data(), 1), done);
    EXPECT_EQ(call(set_media_format, section, xs(200).c_str(), 200),
              logged(0, "Src str length 200 exceeded dst str 200 \n"));
    EXPECT_EQ(set_media_port(section, 7394) + set_number_of_media_port(section, 3), 2);
    EXPECT_EQ(dump(section), "m=video 7394/3 TCP format *\n");
}

TEST_F(MediaDescription, holds_twenty_different_payload_numbers)
{
    EXPECT_EQ(get_number_of_media_payload(section), 0) << "unused places are zero, but hold no number";
    for (int number = 0; number < 20; ++number)
        EXPECT_EQ(set_payload_number(section, number), 1);
    EXPECT_EQ(call(set_payload_number, section, 20), refused);
    EXPECT_EQ(call(set_payload_number, section, 0), done) << "it is there already";
    EXPECT_EQ(get_number_of_media_payload(section), 20);
    EXPECT_EQ(call(add_media_codec_to_media_description, section, 0, "AMR", 8000, 1), logged(-1, ""))
        << "no codec records";
}

TEST_F(MediaDescription, a_name_is_bound_to_a_payload_number_of_the_section)
{
    const section_ptr bound = new_section("RTP/AVP 97=amr 0");
    media_description *const m = bound.get();
    set_media_value(m, 0, "octet-align", "1");
    EXPECT_EQ(set_payload_number(m, 98), 1) << "a number joins behind";
    const auto bind = [&](int number, const char *name) {
        return call_then([&] { return dump(m); }, add_media_codec_to_media_description, m, number, name,
                         16000, 2);
    };
    const std::string others = "m=audio 49170/1 RTP/AVP\n  97 amr/8000/1 octet-align=1\n  0\n  98";
    EXPECT_EQ(dump(m), others + "\n") << "what was there is kept";
    EXPECT_EQ(bind(98, "EVS"), (outcome{2, others + " EVS/16000/2\n"}));
    EXPECT_EQ(bind(99, "AMR"), logged(-1, "", others + " EVS/16000/2\n"));
    EXPECT_EQ(bind(98, nullptr), (outcome{2, others + " /16000/2\n"}));
    EXPECT_EQ(bind(98, xs(200).c_str()).log, "Src str length exceeded dst str 200 \n");
    EXPECT_EQ(get_media_rtpmap_valid_flag_by_index(m, 2), 1) << "the line was there, if not its name";
    EXPECT_EQ(bind(98, xs(199).c_str()), (outcome{2, others + " " + xs(199) + "/16000/2\n"}));
    EXPECT_EQ(call(add_media_rtpmap_valid_to_media_description, m, 98, 0), outcome{2});
    EXPECT_EQ(call(add_media_rtpmap_valid_to_media_description, m, 99, 0), logged(-1, ""));
    for (const auto &[index, seen] :
         {std::pair(2, outcome{0}), std::pair(3, refused), std::pair(-1, refused)}) {
        EXPECT_EQ(call(get_media_codec_mime_type_by_index, m, index), seen) << index;
        EXPECT_EQ(call(get_media_codec_sample_rate_by_index, m, index), seen) << index;
        EXPECT_EQ(call(get_media_code_encoding_param_by_index, m, index), seen) << index;
        EXPECT_EQ(call(get_media_rtpmap_valid_flag_by_index, m, index), seen) << index;
    }
    EXPECT_EQ(call(get_media_codec_payload_number_by_index, m, 3), refused);
}

TEST_F(MediaDescription, each_type_of_value_has_its_places)
{
    const auto set = [&](const char *type, const std::string &value) {
        return call(dak_sdp_set_media_value, section, type, value.c_str());
    };
    EXPECT_EQ(set("i=", xs(200)), logged(0, "src str len exceeds dest str len 200\n"))
        << "and takes no place";
    for (const char *type : {"k=", "b=", "B=", "b=", "b=", "c="})
        EXPECT_EQ(set(type, type), done);
    EXPECT_EQ(set("i=", xs(199)), done);
    for (const std::string type : {"b=", "c=", "t=", "b"})
        EXPECT_EQ(set(type.c_str(), "x"), logged(0, "No entry found for the tag " + type + " \n"));
    EXPECT_EQ(dump(section), "m=audio 49170/1 RTP/AVP\n  i=" + xs(199) +
                                 "\n  c=c=\n  b=b=\n  b=B=\n  b=b=\n  b=b=\n  k=k=\n");
    EXPECT_STREQ(get_media_description_value(section, "b="), "B=") << "this one reads the second";
    EXPECT_EQ(get_media_description_value(section, "c="), nullptr);
    EXPECT_EQ(get_media_description_value_by_index(section, 0, "B="), nullptr) << "read with regard to case";
}

} // namespace
