// What every receiver of a layout's glyph runs has in common. Lives on the stack for one pass over a layout,
// so it is not counted.
#pragma once

#include "vela/render/text/layout_dwrite.h"

#include <cmath>

namespace vela {

class LayoutRenderer : public IDWriteTextRenderer {
public:
    LayoutRenderer(const LayoutRenderer&) = delete;
    LayoutRenderer& operator=(const LayoutRenderer&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        if (id != __uuidof(IUnknown) && id != __uuidof(IDWritePixelSnapping) &&
            id != __uuidof(IDWriteTextRenderer)) {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        *object = static_cast<IDWriteTextRenderer*>(this);
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE IsPixelSnappingDisabled(void*, BOOL* disabled) override
    {
        *disabled = FALSE;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetCurrentTransform(void*, DWRITE_MATRIX* transform) override
    {
        *transform = {1, 0, 0, 1, 0, 0};
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPixelsPerDip(void*, FLOAT* pixels) override
    {
        *pixels = kPixelsPerUnit;
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE DrawUnderline(void*, FLOAT, FLOAT, const DWRITE_UNDERLINE*, IUnknown*) override
    {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DrawStrikethrough(void*, FLOAT, FLOAT, const DWRITE_STRIKETHROUGH*,
                                                IUnknown*) override
    {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DrawInlineObject(void*, FLOAT, FLOAT, IDWriteInlineObject*, BOOL, BOOL,
                                               IUnknown*) override
    {
        return E_NOTIMPL; // layouts made here hold none
    }

protected:
    LayoutRenderer() = default;
    ~LayoutRenderer() = default;

    static bool runsLeft(const DWRITE_GLYPH_RUN& run) noexcept { return run.bidiLevel % 2 != 0; }
    // Centred lines may begin at half pixels; GDI rounds them down.
    static FLOAT wholePixel(FLOAT x) noexcept { return std::floor(x); }
};

} // namespace vela
