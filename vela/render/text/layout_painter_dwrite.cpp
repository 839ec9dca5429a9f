#include "vela/render/text/layout_painter_dwrite.h"

#include "vela/rect_win32.h"
#include "vela/render/gdi/clip_gdi.h"
#include "vela/render/gdi/paint_context.h"
#include "vela/render/text/layout_renderer_dwrite.h"
#include "vela/render/text/text_engine_dwrite.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vela {
namespace {

// The bitmap that every text is drawn on, used again from one text to the next.
class GlyphTarget {
public:
    // Null when there is none of that size.
    IDWriteBitmapRenderTarget* ensure(IDWriteGdiInterop& interop, Size size)
    {
        const Size grown{std::max(size.width, size_.width), std::max(size.height, size_.height)};
        if (target_ && grown == size_)
            return target_.get();
        // Where both together are too much, the size that is asked for now is enough.
        size_ = areaOf(grown) <= kMostReusedPixels ? grown : size;
        if (areaOf(size_) > kMostPixels ||
            FAILED(interop.CreateBitmapRenderTarget(nullptr, static_cast<UINT32>(size_.width),
                                                    static_cast<UINT32>(size_.height), target_.put())) ||
            FAILED(target_->SetPixelsPerDip(kPixelsPerUnit)))
            target_.reset();
        if (!target_)
            size_ = {};
        return target_.get();
    }

    // Lets go of one that is too large to be used again.
    void release() noexcept
    {
        if (areaOf(size_) <= kMostReusedPixels)
            return;
        target_.reset();
        size_ = {};
    }

private:
    static constexpr std::int64_t kMostReusedPixels = 2560 * 1600; // a full screen
    static constexpr std::int64_t kMostPixels = std::numeric_limits<std::int32_t>::max() / 8;

    static constexpr std::int64_t areaOf(Size size) noexcept
    {
        return std::int64_t{size.width} * size.height;
    }

    ComPointer<IDWriteBitmapRenderTarget> target_;
    Size size_;
};

GlyphTarget& glyphTarget()
{
    static GlyphTarget target;
    return target;
}

class LayoutPainter final : public LayoutRenderer {
public:
    LayoutPainter(IDWriteBitmapRenderTarget& target, Size size, const Smoothing& smoothing, Color color,
                  FLOAT reach)
        : target_(target), params_(*smoothing.params.get()), size_(size), color_(color), reach_(reach)
    {
        ComPointer<IDWriteBitmapRenderTarget1> smoothed;
        if (SUCCEEDED(target.QueryInterface(__uuidof(IDWriteBitmapRenderTarget1), smoothed.putVoid())))
            smoothed->SetTextAntialiasMode(smoothing.mode);
    }

    // Around every pixel that was drawn, within the target.
    Rect ink() const noexcept { return intersection(ink_, {0, 0, size_.width, size_.height}); }

    HRESULT STDMETHODCALLTYPE DrawGlyphRun(void*, FLOAT x, FLOAT y, DWRITE_MEASURING_MODE mode,
                                           const DWRITE_GLYPH_RUN* run, const DWRITE_GLYPH_RUN_DESCRIPTION*,
                                           IUnknown*) override
    {
        if (run->isSideways)
            return E_NOTIMPL; // no text here runs from top to bottom
        FLOAT pen = wholePixel(x);
        const DWRITE_GLYPH_RUN part = visiblePart(*run, pen);
        if (part.glyphCount == 0)
            return S_OK;
        RECT box{};
        const HRESULT result = target_.DrawGlyphRun(pen, y, mode, &part, &params_, color_, &box);
        ink_ = around(ink_, toRect(box));
        return result;
    }

    HRESULT STDMETHODCALLTYPE DrawUnderline(void*, FLOAT x, FLOAT y, const DWRITE_UNDERLINE* line,
                                            IUnknown*) override
    {
        return drawLine(x, y + line->offset, line->width, line->thickness);
    }
    HRESULT STDMETHODCALLTYPE DrawStrikethrough(void*, FLOAT x, FLOAT y, const DWRITE_STRIKETHROUGH* line,
                                                IUnknown*) override
    {
        return drawLine(x, y + line->offset, line->width, line->thickness);
    }

private:
    // The glyphs that stand on the target or near it, and where they begin: of a line that is longer than its
    // field, or of one letter beneath a caret that blinks, most do not.
    DWRITE_GLYPH_RUN visiblePart(const DWRITE_GLYPH_RUN& run, FLOAT& pen) const noexcept
    {
        const auto stepOf = [&run](UINT32 glyph) {
            return runsLeft(run) ? -run.glyphAdvances[glyph] : run.glyphAdvances[glyph];
        };
        const auto isNear = [this, &stepOf](FLOAT begin, UINT32 glyph) {
            const FLOAT end = begin + stepOf(glyph);
            return std::max(begin, end) >= -reach_ &&
                   std::min(begin, end) <= static_cast<FLOAT>(size_.width) + reach_;
        };
        UINT32 first = 0;
        while (first < run.glyphCount && !isNear(pen, first))
            pen += stepOf(first++);
        UINT32 last = first;
        for (FLOAT at = pen; last < run.glyphCount && isNear(at, last);)
            at += stepOf(last++);
        DWRITE_GLYPH_RUN part = run;
        part.glyphCount = last - first;
        part.glyphIndices += first;
        part.glyphAdvances += first;
        if (part.glyphOffsets)
            part.glyphOffsets += first;
        return part;
    }

    HRESULT drawLine(FLOAT x, FLOAT y, FLOAT width, FLOAT thickness)
    {
        const auto rounded = [](FLOAT value) { return static_cast<std::int32_t>(std::lround(value)); };
        const Rect line = intersection(
            {rounded(wholePixel(x)), rounded(y), rounded(width), std::max(rounded(thickness), 1)},
            {0, 0, size_.width, size_.height});
        const RECT filled = toRECT(line);
        ::SetDCBrushColor(target_.GetMemoryDC(), color_);
        ::FillRect(target_.GetMemoryDC(), &filled, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
        ::GdiFlush();
        ink_ = isEmpty(line) ? ink_ : around(ink_, line);
        return S_OK;
    }

    IDWriteBitmapRenderTarget& target_;
    IDWriteRenderingParams& params_;
    Size size_;
    Color color_;
    FLOAT reach_; // how far a glyph's ink may lie from its place
    Rect ink_;
};

bool drawOnTarget(HDC dc, const Rect& area, Point origin, const Font& font, IDWriteTextLayout& layout,
                  Color color)
{
    TextEngine* const engine = TextEngine::instance();
    // A context that cannot tell its clip shows nothing, and the area is then as large as a skin made it.
    if (!engine || !clipBox(dc))
        return false;
    const Smoothing& smoothing = engine->ensureSmoothing(paintContext(dc).monitor);
    IDWriteBitmapRenderTarget* const target = glyphTarget().ensure(*engine->interop(), sizeOf(area));
    if (!target || !smoothing.params)
        return false;
    const HDC memory = target->GetMemoryDC();
    if (!::BitBlt(memory, 0, 0, area.width, area.height, dc, area.x, area.y, SRCCOPY))
        return false;
    ::GdiFlush();
    LayoutPainter painter(*target, sizeOf(area), smoothing, color, static_cast<FLOAT>(2 * font.em));
    if (FAILED(layout.Draw(nullptr, &painter, static_cast<FLOAT>(origin.x - area.x),
                           static_cast<FLOAT>(origin.y - area.y))))
        return false;
    const Rect ink = painter.ink();
    return isEmpty(ink) ||
           ::BitBlt(dc, area.x + ink.x, area.y + ink.y, ink.width, ink.height, memory, ink.x, ink.y, SRCCOPY);
}

} // namespace

bool paintLayout(HDC dc, const Rect& area, Point origin, const Font& font, IDWriteTextLayout& layout,
                 Color color)
{
    const bool isDrawn = drawOnTarget(dc, area, origin, font, layout, color);
    glyphTarget().release();
    return isDrawn;
}

} // namespace vela
