#include "vela/controls/diagnostics.h"

#include "vela/controls/control.h"
#include "vela/text.h"

namespace vela {

std::wstring toText(Point point)
{
    return L"{x=" + decimalText(point.x) + L",y=" + decimalText(point.y) + L"}";
}

std::wstring toText(Size size) { return decimalText(size.width) + L"x" + decimalText(size.height); }

std::wstring toText(const Rect& rect)
{
    return L"{x=" + decimalText(rect.x) + L",y=" + decimalText(rect.y) + L",w=" + decimalText(rect.width) +
           L",h=" + decimalText(rect.height) + L"}";
}

std::wstring toText(Anchors anchors)
{
    static constexpr struct {
        Anchors flag;
        const wchar_t* name;
    } kNames[] = {{Anchors::Left, L"Left"},
                  {Anchors::Top, L"Top"},
                  {Anchors::Right, L"Right"},
                  {Anchors::Bottom, L"Bottom"}};
    std::wstring result;
    for (const auto& [flag, name] : kNames) {
        if (contains(anchors, flag))
            result.append(result.empty() ? L"" : L"|").append(name);
    }
    return result.empty() ? L"None" : result;
}

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

} // namespace vela
