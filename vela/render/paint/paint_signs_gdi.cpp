// Texts and icons, as the product paints them: what there is to be read or recognised. Apart from the rest,
// so that a tool that looks at just these can take their place.
#include "vela/render/paint/paint.h"
#include "vela/render/paint/unless_out_of_memory.h"
#include "vela/render/surface/mark_painter.h"
#include "vela/render/text/text.h"

namespace vela {

void drawText(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font, std::int32_t dpi,
              TextLook look)
{
    paintUnlessOutOfMemory([&] { render::drawText(dc, rect, text, font, dpi, look); });
}

void drawUnclippedLine(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font,
                       std::int32_t dpi, Color color)
{
    paintUnlessOutOfMemory([&] { render::drawUnclippedLine(dc, rect, text, font, dpi, color); });
}

void paintIcon(HDC dc, Icon icon, const Rect& box, std::int32_t dpi, Color color)
{
    paintUnlessOutOfMemory([&] { render::paintIcon(dc, icon, box, dpi, color); });
}

} // namespace vela
