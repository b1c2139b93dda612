#include "sdp/attribute_nodes.hpp"

#include "sdp/value_list.hpp"
#include "util/report.hpp"

namespace dak {

namespace {

bool is_in_block(const media_description &description, const session_value *node)
{
    const session_value *block = description.attribute_block;
    return block != nullptr && node >= block && node < block + description.attribute_block_size;
}

} // namespace

void reserve_attributes(media_description &description, uint32_t count)
{
    if (count == 0 || description.attribute_block != nullptr)
        return;
    auto *block = static_cast<session_value *>(dak_malloc(count * sizeof(session_value)));
    if (block == nullptr) {
        dak_assert_failed();
        return;
    }
    description.attribute_block = block;
    description.attribute_block_size = count;
    description.attribute_block_used = 0;
}

session_value *append_attribute_node(media_description &description)
{
    if (description.attribute_block_used >= description.attribute_block_size)
        return append_value(description.attributes, description.attributes_tail);
    session_value *node = &description.attribute_block[description.attribute_block_used++];
    link_value(description.attributes, description.attributes_tail, node);
    return node;
}

void free_attributes(media_description &description)
{
    for (session_value *node = description.attributes; node != nullptr;) {
        session_value *next = node->next;
        if (!is_in_block(description, node))
            dak_free(node);
        node = next;
    }
    dak_free(description.attribute_block);
    description.attributes = description.attributes_tail = description.attribute_block = nullptr;
    description.attribute_block_size = description.attribute_block_used = 0;
}

} // namespace dak
