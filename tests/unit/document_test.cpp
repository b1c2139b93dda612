#include "sdp/document.h"

#include "support.h"

namespace {

using Document = ContextTest;

TEST_F(Document, a_new_context_is_empty)
{
    std::string tags;
    for (int slot = 0; slot < get_total_session_number_tag(); ++slot)
        tags.append(context->encoder_document->type_tags[slot])
            .append(context->parser_document->type_tags[slot]);
    EXPECT_EQ(tags, "v=v=o=o=s=s=i=i=u=u=e=e=p=p=c=c=b=b=t=t=r=r=z=z=k=k=a=a=");
    EXPECT_EQ(dump(context, 0) + dump(context, 1) + get_sdp_text(context), "");
    EXPECT_EQ(clean_sdp_lib(nullptr), 1);
}

TEST_F(Document, the_text_buffer_holds_3584_characters_and_no_part_of_a_piece)
{
    const auto fill = [&](std::size_t length) {
        return call_then([&] { return std::to_string(std::strlen(get_sdp_text(context))); }, fill_sdp_buffer,
                         context, xs(length).c_str());
    };
    EXPECT_EQ(fill(3585), logged(0, "", "0"));
    EXPECT_EQ(fill(3583), (outcome{1, "3583"}));
    EXPECT_EQ(fill(2), logged(0, "", "3583"));
    EXPECT_EQ(fill(1), (outcome{1, "3584"}));
    EXPECT_EQ(fill(1), logged(0, "", "3584"));
    EXPECT_EQ(fill(0), (outcome{1, "3584"}));
}

TEST_F(Document, thirty_sections_find_room_once_each)
{
    sdp_info_container *document = context->encoder_document;
    for (int i = 0; i < 30; ++i)
        ASSERT_EQ(add_media_description_to_sdp_encoder(context, new_section("RTP/AVP").release()), 1);
    EXPECT_EQ(call(add_media_description, document, section), refused);
    EXPECT_EQ(get_number_of_media_description(context, 0), 30);
    EXPECT_EQ(clean_sdp_info_container(document), 1) << "the thirtieth place was taken";
    EXPECT_EQ(call(clean_sdp_info_container, document), outcome{0}) << "nothing is freed twice";
    media_description *const twice = std::exchange(section, nullptr);
    EXPECT_EQ(add_media_description_to_sdp_container(document, twice), 1);
    EXPECT_EQ(call(add_media_description, document, twice), refused) << "already there";
}

TEST_F(Document, a_gap_is_not_counted_and_cannot_be_written)
{
    sdp_info_container *document = context->encoder_document;
    document->media_descriptions[0] = new_section("RTP/AVP").release();
    document->media_descriptions[2] = std::exchange(section, nullptr);
    EXPECT_EQ(call(add_media_description, document, document->media_descriptions[2]), refused)
        << "a second place would free it twice";
    EXPECT_EQ(get_number_of_media_description(context, 0), 2);
    EXPECT_EQ(get_number_of_media_description(context, 1), 0);
    EXPECT_EQ(call(get_number_of_media_description, context, 2), refused);
    EXPECT_EQ(get_media_description_by_index(context, 0, 2), document->media_descriptions[2]);
    EXPECT_EQ(call(get_media_description_by_index, context, 0, 1), outcome{0});
    EXPECT_EQ(call(get_media_description_by_index, context, 0, 30), refused);
    EXPECT_EQ(call(get_media_description_by_index, context, 2, 0), refused);
    EXPECT_EQ(call(dak_sdp_encode_media_description_by_index, context, 1), outcome{0});
    EXPECT_EQ(call(dak_sdp_encode, context), logged(0, "")) << "the second of two is not there";
}

} // namespace
