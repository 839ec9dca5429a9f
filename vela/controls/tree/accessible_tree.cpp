#include "vela/controls/tree/accessible_tree.h"

#include "vela/controls/tree/control.h"

#include <iterator>
#include <utility>

namespace vela {

AccessibleNode accessibleTree(const Control& root)
{
    AccessibleNode node{root.accessibleInfo(), {}};
    for (const Control* child : root.children()) {
        if (!child->isVisible() || child->isCollapsed())
            continue;
        AccessibleNode below = accessibleTree(*child);
        // A pane without a name says nothing itself; what it holds stands in its place.
        if (below.info.role == AccessibleRole::Pane && below.info.name.empty())
            std::move(below.children.begin(), below.children.end(), std::back_inserter(node.children));
        else
            node.children.push_back(std::move(below));
    }
    return node;
}

} // namespace vela
