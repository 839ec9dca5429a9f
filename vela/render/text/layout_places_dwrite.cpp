#include "vela/render/text/layout_places_dwrite.h"

#include "vela/render/text/layout_renderer_dwrite.h"

namespace vela {
namespace {

class RunCollector final : public LayoutRenderer {
public:
    const std::vector<GlyphRunPlaces>& runs() const noexcept { return runs_; }

    HRESULT STDMETHODCALLTYPE DrawGlyphRun(void*, FLOAT x, FLOAT, DWRITE_MEASURING_MODE,
                                           const DWRITE_GLYPH_RUN* run,
                                           const DWRITE_GLYPH_RUN_DESCRIPTION* description,
                                           IUnknown*) override
    {
        if (run->isSideways || !description->clusterMap)
            return E_NOTIMPL;
        runs_.push_back({description->textPosition,
                         wholePixel(x),
                         runsLeft(*run),
                         {description->clusterMap, description->clusterMap + description->stringLength},
                         {run->glyphAdvances, run->glyphAdvances + run->glyphCount}});
        return S_OK;
    }

private:
    std::vector<GlyphRunPlaces> runs_;
};

} // namespace

std::optional<TextPlaces> placesOf(std::wstring_view text, IDWriteTextLayout& layout)
{
    RunCollector collector;
    if (FAILED(layout.Draw(nullptr, &collector, 0, 0)))
        return std::nullopt;
    return TextPlaces(text, collector.runs());
}

} // namespace vela
