#include "vela/render/text/fonts_gdi.h"

#include "vela/folder_listing_win32.h"
#include "vela/render/text/fonts.h"
#include "vela/resource_folders.h"
#include "vela/text.h"

#include <algorithm>
#include <deque>

namespace vela {
namespace {

class PrivateFonts {
public:
    const std::vector<std::wstring>& files() const noexcept { return files_; }

    void loadOnce()
    {
        if (std::exchange(loaded_, true))
            return;
        std::wstring folder = resourceFolders().fonts;
        if (folder.empty())
            return;
        const std::vector<std::wstring> names = fileNamesIn(folder);
        folder += L'\\';
        for (const std::wstring& name : names) {
            if (isFontFileName(name))
                add(folder + name);
        }
    }

private:
    void add(std::wstring path)
    {
        if (std::find(files_.begin(), files_.end(), path) != files_.end())
            return;
        if (::AddFontResourceExW(path.c_str(), FR_PRIVATE, nullptr) > 0)
            files_.push_back(std::move(path));
    }

    std::vector<std::wstring> files_;
    bool loaded_ = false;
};

PrivateFonts& privateFonts()
{
    static PrivateFonts fonts;
    return fonts;
}

// A memory context for asking GDI about fonts while nothing is being painted.
HDC measuringDc()
{
    static const OwnedMemoryDc dc(::CreateCompatibleDC(nullptr));
    return dc.get();
}

int CALLBACK stopAtFirst(const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM found)
{
    *reinterpret_cast<bool*>(found) = true;
    return 0;
}

// GDI itself never says no: CreateFontW puts some font in the place of an unknown one.
bool isFamilyInstalled(const std::wstring& family)
{
    LOGFONTW wanted{};
    if (family.size() >= std::size(wanted.lfFaceName))
        return false;
    wanted.lfCharSet = DEFAULT_CHARSET;
    std::copy(family.begin(), family.end(), wanted.lfFaceName);
    bool found = false;
    ::EnumFontFamiliesExW(measuringDc(), &wanted, stopAtFirst, reinterpret_cast<LPARAM>(&found), 0);
    return found;
}

Font makeFont(const FontSpec& spec, std::int32_t dpi)
{
    Font font{FontKey(spec, dpi), chooseFace(spec.family, spec.weight, isFamilyInstalled),
              emPixels(spec.pointSize, dpi)};
    font.owned.reset(::CreateFontW(-font.em, 0, 0, 0, font.face.weight, spec.italic, spec.underline, FALSE,
                                   DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                                   CLEARTYPE_QUALITY, DEFAULT_PITCH | FF_DONTCARE, font.face.family.c_str()));
    font.handle = font.owned ? font.owned.get() : static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));
    const SelectedObject selected(measuringDc(), font.handle);
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(measuringDc(), &metrics);
    font.lineHeight = metrics.tmHeight;
    font.ascent = metrics.tmAscent;
    return font;
}

// A deque: fonts are handed out by reference and never move.
std::deque<Font>& fonts()
{
    static std::deque<Font> all;
    return all;
}

} // namespace

GdiTextMeasurer::GdiTextMeasurer(const Font& font)
    : dc_(::CreateCompatibleDC(nullptr)), selected_(dc_.get(), font.handle)
{
}

void GdiTextMeasurer::measure(std::wstring_view text, std::vector<std::int32_t>& ends) const
{
    static_assert(sizeof(INT) == sizeof(std::int32_t));
    ends.assign(text.size(), 0);
    SIZE size;
    if (!text.empty())
        ::GetTextExtentExPointW(dc_.get(), text.data(), static_cast<int>(text.size()), 0, nullptr,
                                reinterpret_cast<INT*>(ends.data()), &size);
}

const Font& ensureFont(const FontSpec& spec, std::int32_t dpi)
{
    loadPrivateFonts();
    for (const Font& font : fonts()) {
        if (font.key.matches(spec, dpi))
            return font;
    }
    return fonts().emplace_back(makeFont(spec, dpi));
}

std::size_t fontCount() noexcept { return fonts().size(); }

const std::vector<std::wstring>& privateFontFiles() { return privateFonts().files(); }

HFONT fontFor(const FontSpec& font, std::int32_t dpi) { return ensureFont(font, dpi).owned.get(); }

void loadPrivateFonts() { privateFonts().loadOnce(); }

} // namespace vela
