#include "vela/controls/tree/diagnostics.h"

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

} // namespace vela
