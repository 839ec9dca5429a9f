// The debugging overlay on top of a painted tree. It asks the controls and changes nothing in them.
#include "vela/controls/tree/debug_overlay.h"

#include "vela/controls/tree/control.h"
#include "vela/controls/tree/diagnostics.h"
#include "vela/render/paint/paint.h"
#include "vela/theme/records/spellings.h"

#include <algorithm>

namespace vela {

namespace {

// Magenta and cyan on black are no skin's colours, and they are readable on every one.
constexpr Color kBounds = hexColor(0xFF00FF);
constexpr Color kHot = hexColor(0xFFE000);
constexpr Color kContent = hexColor(0x00E5FF);
constexpr Color kContour = hexColor(0x40FF40);
constexpr Color kText = hexColor(0xFFFFFF);
constexpr Color kBackground = hexColor(0x000000);

const FontSpec& overlayFont()
{
    static const FontSpec font{L"Consolas", 8, 400, kText, kText};
    return font;
}

// A text on a plate, cut where its room ends; a negative room is as much as the text needs.
void paintTag(HDC dc, Point at, std::wstring_view text, std::int32_t dpi, Color color, std::int32_t room = -1)
{
    FontSpec font = overlayFont();
    font.color = color;
    const std::int32_t whole = measureTextWidth(text, font, dpi) + 4;
    const Rect tag{at.x, at.y, room < 0 ? whole : std::min(whole, room), lineHeight(font, dpi)};
    fillShape(dc, tag, ShapeKind::Rect, kBackground);
    drawText(dc, {tag.x + 2, tag.y, std::max(tag.width - 2, 0), tag.height}, text, font, dpi);
}

std::wstring stateText(const Control& control)
{
    std::wstring text = !control.isEnabled()  ? L" disabled"
                        : control.isPressed() ? L" pressed"
                        : control.isHot()     ? L" hot"
                                              : L" normal";
    return control.hasFocus() ? text + L" focused" : text;
}

// The usual word of a value, as skins write it.
std::wstring wordFor(const Vocabulary& vocabulary, std::uint16_t value)
{
    for (const Spellings& row : vocabulary.rows) {
        if (row.value == value) {
            const std::string_view word = row.words.substr(0, row.words.find(' '));
            return {word.begin(), word.end()};
        }
    }
    return {};
}

// What the mode tells about a control; empty where it tells nothing.
std::wstring describe(const Control& control, DebugMode mode)
{
    switch (mode) {
    case DebugMode::Basic:
    case DebugMode::Contours: return {};
    case DebugMode::Layout: return toText(control.bounds()) + L" " + toText(control.anchors());
    case DebugMode::Skin: {
        std::wstring text = L"style=" + (control.styleKey().empty() ? L"default" : control.styleKey());
        text += stateText(control);
        if (const SurfaceStyle* const surface = control.paintedSurface()) {
            text += L" shape=" + wordFor(kShapeWords, static_cast<std::uint16_t>(surface->shape));
            text +=
                L" material=" + wordFor(kMaterialPresetWords, static_cast<std::uint16_t>(surface->material));
        }
        if (control.attachedImage())
            text += L" bitmap";
        return text;
    }
    }
    return {};
}

struct OverlayPainter {
    HDC dc;
    const DebugOverlay& overlay;
    const Control* hot;
    std::int32_t dpi;

    void paint(const Control& control) const
    {
        if (!control.isVisible())
            return;
        const Rect rect = control.windowRect().value_or(Rect{});
        const SurfaceStyle* const surface = control.paintedSurface();
        strokeShapeOutline(dc, rect, ShapeKind::Rect, &control == hot ? kHot : kBounds, 1);
        if (surface && (overlay.showContours || overlay.mode == DebugMode::Contours))
            strokeShapeOutline(dc, rect, surface->shape, kContour, 1);
        if (overlay.showContent)
            strokeShapeOutline(dc, movedBy(control.contentBounds(), {rect.x, rect.y}), ShapeKind::Rect,
                               kContent, 1);
        // Neighbours keep to themselves; the one under the pointer has its say on top of all.
        if (&control != hot)
            paintTagOf(control, rect.width);
        for (const Control* child : control.children())
            paint(*child);
    }

    void paintTagOf(const Control& control, std::int32_t room) const
    {
        const Rect rect = control.windowRect().value_or(Rect{});
        std::wstring tag = overlay.showIds ? control.id() : std::wstring();
        const std::wstring description = describe(control, overlay.mode);
        if (!tag.empty() && !description.empty())
            tag += L' ';
        tag += description;
        if (!tag.empty())
            paintTag(dc, {rect.x, rect.y}, tag, dpi, &control == hot ? kHot : kText, room);
    }
};

} // namespace

void paintDebugOverlay(HDC dc, const Control& root, const DebugOverlay& overlay, Point cursor,
                       const Control* hot, std::int32_t dpi)
{
    const OverlayPainter painter{dc, overlay, hot, dpi};
    painter.paint(root);
    if (hot)
        painter.paintTagOf(*hot, -1);
    const std::int32_t line = lineHeight(overlayFont(), dpi);
    paintTag(dc, {0, 0},
             debugHeader(overlay, cursor, hot ? std::wstring_view(hot->id()) : std::wstring_view()), dpi,
             kText);
    paintTag(dc, {0, line}, kDebugKeyHelp, dpi, kText);
}

} // namespace vela
