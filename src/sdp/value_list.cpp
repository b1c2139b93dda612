#include "sdp/value_list.hpp"

#include "util/report.hpp"

namespace dak {

void link_value(session_value *&head, session_value *&tail, session_value *node)
{
    node->text[0] = '\0';
    node->next = nullptr;
    (head == nullptr ? head : tail->next) = node;
    tail = node;
}

session_value *append_value(session_value *&head, session_value *&tail)
{
    auto *node = static_cast<session_value *>(dak_malloc(sizeof(session_value)));
    if (node == nullptr)
        return fail_null();
    link_value(head, tail, node);
    return node;
}

void free_nodes(session_value *node)
{
    while (node != nullptr) {
        session_value *next = node->next;
        dak_free(node);
        node = next;
    }
}

} // namespace dak
