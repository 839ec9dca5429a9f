#include "vela/controls/tree/panel.h"

#include "vela/controls/tree/diagnostics.h"

#include <algorithm>
#include <utility>

namespace vela {
namespace {

// A child that raised the minimum content size of its panel.
std::wstring inflationDiagnostic(const Control& panel, const Control& child, Size hint, Size before,
                                 Size after)
{
    const bool wider = after.width > before.width;
    const bool higher = after.height > before.height;
    const wchar_t* const inflates = wider && higher ? L"width,height" : wider ? L"width" : L"height";
    return L"[Vela diagnostic] Panel::minimumContentSizeHint panel=" + panel.id() + L" child=" + child.id() +
           L" visible=" + (child.isVisible() ? L"true" : L"false") + L" bounds=" + toText(child.bounds()) +
           L" anchors=" + toText(child.anchors()) + L" minimumParentSizeHint=" + toText(hint) +
           L" inflates=" + inflates + L" before=" + toText(before) + L" after=" + toText(after);
}

} // namespace

Panel::~Panel()
{
    for (std::unique_ptr<Control>& child : owned_) {
        child->container_ = nullptr;
        child.reset();
    }
}

Size Panel::minimumSize() const
{
    if (isCollapsed())
        return {};
    return largerOf(Control::minimumSize(), minimumContentSizeHint());
}

Size Panel::minimumContentSizeHint() const
{
    const bool explain = window() && window()->diagnosticsEnabled();
    Size result;
    for (const Control* child : order_) {
        if (!child->isVisible())
            continue;
        const Size hint = child->minimumParentHint();
        const Size larger = largerOf(result, hint);
        if (explain && larger != result)
            window()->writeDiagnostic(inflationDiagnostic(*this, *child, hint, result, larger));
        result = larger;
    }
    return result;
}

void Panel::detach()
{
    Control::detach();
    for (Control* child : order_)
        child->detach();
}

void Panel::attachToWindow()
{
    for (Control* child : order_)
        child->attach(window());
}

void Panel::afterAttach()
{
    for (Control* child : order_) {
        child->afterAttach();
        for (Control* plain : child->isContainer() ? std::vector<Control*>{} : child->children())
            plain->afterAttach();
    }
}

Control* Panel::add(std::unique_ptr<Control> child)
{
    Control* const added = child.get();
    owned_.push_back(std::move(child));
    order_.push_back(added);
    adopt(*added, this);
    added->layoutInside(contentBounds());
    minimumSizeMayHaveChanged();
    return added;
}

std::unique_ptr<Control> Panel::remove(Control& child)
{
    const auto found = std::find_if(owned_.begin(), owned_.end(),
                                    [&child](const auto& candidate) { return candidate.get() == &child; });
    if (found == owned_.end())
        return nullptr;
    child.invalidate(InvalidationReason::Geometry);
    child.detach();
    std::unique_ptr<Control> taken = std::move(*found);
    owned_.erase(found);
    std::erase(order_, &child);
    abandon(child);
    return taken;
}

void Panel::setSurface(const SurfaceStyle& surface)
{
    surface_ = surface;
    invalidate(InvalidationReason::State);
}

void Panel::layoutChildren()
{
    const Rect content = contentBounds();
    for (Control* child : order_) {
        child->layoutInside(content);
        child->onContentRefresh();
    }
}

Control* findControl(Control& root, std::wstring_view id)
{
    if (root.id() == id)
        return &root;
    for (Control* child : root.children()) {
        if (Control* const found = findControl(*child, id))
            return found;
    }
    return nullptr;
}

} // namespace vela
