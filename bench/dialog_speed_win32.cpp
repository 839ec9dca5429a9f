// What the setup's first dialog costs once it is open, one line a skin: painted as a whole, and one button
// changing its state (medians in milliseconds), each without its texts and what these take beside it; and, in
// the same run, painted as a whole into a picture with and without what is stored of pictures; then what it
// takes while nobody touches it. Run it under Wine with scripts/wine; there a paint is Wine's GDI as much as
// this program's own work, and each letter is drawn several times.
//
// Usage: dialog_speed SKIN_FOLDER [SKIN...], without skins all of the folder's.
#include "app/dialogs/choice_dialog.h"
#include "app/dialogs/toolkit_texts.h"

#include "vela/render/gdi/dib_gdi.h"
#include "vela/render/gdi/paint_context.h"
#include "vela/render/paint/paint.h"
#include "vela/render/surface/mark_painter.h"
#include "vela/render/text/text.h"
#include "vela/resource_folders.h"
#include "vela/theme/skins/style_sections.h"
#include "vela/theme/skins/system_skins.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include <windows.h>

namespace {

constexpr double kDialogGoal = 8.0;
constexpr double kButtonGoal = 0.5;

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

Milliseconds spentOnTexts{};

template <typename Draw>
void timeText(Draw&& draw)
{
    const auto start = Clock::now();
    draw();
    spentOnTexts += Clock::now() - start;
}

struct Cost {
    double rest;
    double texts;
};

double middleOf(std::vector<double>& rounds)
{
    const auto middle = rounds.begin() + static_cast<std::ptrdiff_t>(rounds.size() / 2);
    std::nth_element(rounds.begin(), middle, rounds.end());
    return *middle;
}

template <typename Work>
Cost medianOf(Work&& work)
{
    constexpr int kRounds = 200;
    std::vector<double> rests;
    std::vector<double> texts;
    for (int round = 0; round < kRounds; ++round) {
        spentOnTexts = {};
        const auto start = Clock::now();
        work();
        const Milliseconds spent = Clock::now() - start;
        rests.push_back((spent - spentOnTexts).count());
        texts.push_back(spentOnTexts.count());
    }
    return {middleOf(rests), middleOf(texts)};
}

struct Costs {
    Cost dialog;
    Cost button;
    Cost picture;
    Cost uncachedPicture;
};

Cost pictureCost(const setup::ChoiceDialog& dialog, const vela::DibSurface& picture, bool caches)
{
    const vela::PaintContextBinding context(picture.dc(), {.cachesPictures = caches});
    return medianOf([&] {
        ::SendMessageW(dialog.handle(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(picture.dc()), PRF_CLIENT);
    });
}

Costs costsOf(setup::ChoiceDialog& dialog)
{
    const Cost whole = medianOf([&] {
        ::InvalidateRect(dialog.handle(), nullptr, FALSE);
        ::UpdateWindow(dialog.handle());
    });
    vela::ThemedButton& button = dialog.popup().actionButton(0);
    const Cost state = medianOf([&] {
        button.setHot(!button.isHot());
        ::UpdateWindow(dialog.handle());
    });
    RECT client{};
    ::GetClientRect(dialog.handle(), &client);
    const vela::DibSurface picture({client.right, client.bottom});
    return {whole, state, pictureCost(dialog, picture, true), pictureCost(dialog, picture, false)};
}

std::shared_ptr<const vela::StyleSheet> stylesOf(const vela::SkinDefinition& skin)
{
    return std::make_shared<vela::StyleSheet>(vela::buildStyleSheet(skin));
}

void measure(const vela::SkinDefinition& skin)
{
    const auto styles = stylesOf(skin);
    setup::ChoiceDialog dialog({::GetModuleHandleW(nullptr), [&styles] { return styles; }}, {});
    dialog.open();
    ::ShowWindow(dialog.handle(), SW_SHOWNORMAL);
    ::UpdateWindow(dialog.handle());
    const Costs costs = costsOf(dialog);
    std::printf("%-24ls dialog %5.2f%s texts %5.2f   button %6.3f%s text %6.3f   picture %5.2f (%5.2f anew) "
                "texts %5.2f\n",
                skin.id.c_str(), costs.dialog.rest, costs.dialog.rest > kDialogGoal ? " !" : "  ",
                costs.dialog.texts, costs.button.rest, costs.button.rest > kButtonGoal ? " !" : "  ",
                costs.button.texts, costs.picture.rest, costs.uncachedPicture.rest, costs.picture.texts);
}

double processorMilliseconds()
{
    FILETIME begun{};
    FILETIME ended{};
    FILETIME kernel{};
    FILETIME user{};
    ::GetProcessTimes(::GetCurrentProcess(), &begun, &ended, &kernel, &user);
    const auto hundredNanoseconds = [](const FILETIME& time) {
        return static_cast<double>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime);
    };
    return (hundredNanoseconds(kernel) + hundredNanoseconds(user)) / 10'000;
}

// An open dialog that nobody touches: only the caret blinks in its field.
void measureIdle(const vela::SkinDefinition& skin)
{
    constexpr ULONGLONG kSettling = 1'000;
    constexpr ULONGLONG kWatched = 10'000;
    const auto styles = stylesOf(skin);
    setup::ChoiceDialog dialog({::GetModuleHandleW(nullptr), [&styles] { return styles; }}, {});
    dialog.open();
    ::ShowWindow(dialog.handle(), SW_SHOWNORMAL);
    ::SetForegroundWindow(dialog.handle());
    const auto pumpFor = [](ULONGLONG milliseconds) {
        const ULONGLONG end = ::GetTickCount64() + milliseconds;
        MSG message{};
        while (::GetTickCount64() < end && ::GetMessageW(&message, nullptr, 0, 0) > 0)
            ::DispatchMessageW(&message);
    };
    pumpFor(kSettling);
    const double before = processorMilliseconds();
    pumpFor(kWatched);
    std::printf("idle for %.0f s: %.0f ms of processor time, after %.0f ms for all that was before\n",
                kWatched / 1000.0, processorMilliseconds() - before, before);
}

} // namespace

// The signs of the product, with a watch on the texts.
namespace vela {

void drawText(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font, std::int32_t dpi,
              TextLook look)
{
    timeText([&] { render::drawText(dc, rect, text, font, dpi, look); });
}

void drawUnclippedLine(HDC dc, const Rect& rect, std::wstring_view text, const FontSpec& font,
                       std::int32_t dpi, Color color)
{
    timeText([&] { render::drawUnclippedLine(dc, rect, text, font, dpi, color); });
}

void paintIcon(HDC dc, Icon icon, const Rect& box, std::int32_t dpi, Color color)
{
    render::paintIcon(dc, icon, box, dpi, color);
}

} // namespace vela

int wmain(int count, wchar_t** arguments)
{
    if (count < 2)
        return 2;
    vela::setToolkitTexts(setup::kToolkitTexts);
    vela::setResourceFolders({.skins = {arguments[1]}, .fonts = {}, .bitmaps = {}});
    const vela::SkinCatalog& catalog = vela::skinCatalog();
    std::printf("goals, texts apart: a dialog of 690 x 420 within %.1f ms, a button within %.1f ms\n",
                kDialogGoal, kButtonGoal);
    for (int i = 2; i < count; ++i)
        measure(catalog.find(arguments[i]));
    if (count == 2)
        std::for_each(catalog.skins().begin(), catalog.skins().end(), measure);
    measureIdle(catalog.find(count > 2 ? arguments[2] : L"win11-auto"));
    return 0;
}
