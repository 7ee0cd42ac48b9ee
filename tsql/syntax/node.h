// What all nodes of the syntax tree share: a kind to switch over and the place in the text.
#pragma once

#include "tsql/source/position.h"

#include <cassert>
#include <memory>
#include <vector>

namespace tsql {

// The tree says what was written and nothing else: no name is resolved, no type is known. A node
// owns its parts. Families of nodes (Expression, TableSource, QueryBody, Statement) derive from
// Node of their own kind enumeration; each class names its kind as `own_kind`, so that
//
//     switch (expression.kind) {
//     case ExpressionKind::Binary: return bind(as<Binary>(expression));
//
// is the way to walk it.
template <typename Kind> struct Node {
    explicit Node(Kind node_kind) : kind(node_kind) {}
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;
    virtual ~Node() = default;

    const Kind kind;
    SourceRange at;
};

// The node as the class its kind says.
template <typename Class, typename Base> const Class& as(const Base& node) {
    assert(node.kind == Class::own_kind);
    return static_cast<const Class&>(node);
}
template <typename Class, typename Base> Class& as(Base& node) {
    assert(node.kind == Class::own_kind);
    return static_cast<Class&>(node);
}

// The node as that class, or null when it is of another kind.
template <typename Class, typename Base> const Class* as_if(const Base* node) {
    return node != nullptr && node->kind == Class::own_kind ? static_cast<const Class*>(node)
                                                            : nullptr;
}

} // namespace tsql
