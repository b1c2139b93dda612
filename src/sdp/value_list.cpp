#include "sdp/value_list.hpp"

#include "util/report.hpp"

namespace dak {

session_value *append_value(session_value *&head, session_value *&tail)
{
    auto *node = static_cast<session_value *>(dak_malloc(sizeof(session_value)));
    if (node == nullptr)
        return fail_null();
    node->text[0] = '\0';
    node->next = nullptr;
    (head == nullptr ? head : tail->next) = node;
    tail = node;
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
