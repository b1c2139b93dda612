// Lists of session_value nodes: further session lines, and the generic attributes of a media section.
#ifndef DAKSDP_SDP_VALUE_LIST_HPP
#define DAKSDP_SDP_VALUE_LIST_HPP

#include "sdp/document_record.h"

namespace dak {

// Links a node, emptied, behind the last.
void link_value(session_value *&head, session_value *&tail, session_value *node);

// Allocates a node and links it; null, reported, when memory runs out.
session_value *append_value(session_value *&head, session_value *&tail);

// Frees the nodes from one on.
void free_nodes(session_value *node);

// Frees every node and empties the list; most lists of a document are empty.
inline void free_values(session_value *&head, session_value *&tail)
{
    if (head != nullptr)
        free_nodes(head);
    head = tail = nullptr;
}

} // namespace dak

#endif
