// A sheet of the gallery: a picture with captions and helpers to place things on it.
#pragma once

#include "vela/render/gdi/dib_gdi.h"
#include "vela/render/text/text_look.h"
#include "vela/theme/color/color.h"
#include "vela/theme/records/vocabulary.h"

#include <string>
#include <string_view>

namespace gallery {

inline constexpr std::int32_t kDpi = 96;

// Of captions and of the sheet itself.
struct SheetColors {
    vela::Color background = vela::hexColor(0x1B2026);
    vela::Color text = vela::hexColor(0xE8ECEF);
    vela::Color faintText = vela::hexColor(0x8E99A3);
};

class Sheet {
public:
    Sheet(vela::Size size, const SheetColors& colors);

    HDC dc() const noexcept { return surface_.dc(); }
    const SheetColors& colors() const noexcept { return colors_; }

    void title(vela::Point at, std::wstring_view text);
    void heading(vela::Point at, std::wstring_view text);
    void caption(const vela::Rect& rect, std::wstring_view text,
                 vela::TextAlign align = vela::TextAlign::Left);

    // Only the rows down to `height` are written. False when the file cannot be.
    bool save(const std::wstring& path, std::int32_t height = 0) const;

private:
    void text(const vela::Rect& rect, std::wstring_view text, std::int32_t points, std::int32_t weight,
              vela::Color color, vela::TextAlign align);

    SheetColors colors_;
    vela::DibSurface surface_;
};

// What an icon stands on, or a dot.
void paintBadge(HDC dc, const vela::Rect& rect, vela::ShapeKind shape, vela::Color color);

// Hands out places from left to right, and in rows below each other.
class Flow {
public:
    Flow(vela::Rect area, std::int32_t gap) : area_(area), gap_(gap), next_{area.x, area.y} {}

    vela::Rect place(vela::Size size);
    void newRow();
    std::int32_t bottom() const noexcept { return next_.y + rowHeight_; }

private:
    vela::Rect area_;
    std::int32_t gap_;
    vela::Point next_;
    std::int32_t rowHeight_ = 0;
};

constexpr vela::Rect inset(const vela::Rect& rect, std::int32_t x, std::int32_t y) noexcept
{
    return {rect.x + x, rect.y + y, rect.width - 2 * x, rect.height - 2 * y};
}

constexpr vela::Rect centered(const vela::Rect& rect, vela::Size size) noexcept
{
    return {rect.x + (rect.width - size.width) / 2, rect.y + (rect.height - size.height) / 2, size.width,
            size.height};
}

} // namespace gallery
