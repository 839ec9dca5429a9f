// What whole surfaces and texts cost on a device context: one line for each, in microseconds a paint; of
// surfaces composed anew and, where they are stored, found. Run it
// under Wine with scripts/wine; there a paint is Wine's GDI as much as this program's own work.
#include "app/dialogs/toolkit_texts.h"
#include "vela/render/gdi/dib_gdi.h"
#include "vela/render/gdi/paint_context.h"
#include "vela/render/paint/paint.h"
#include "vela/render/text/text.h"
#include "vela/resource_folders.h"
#include "vela/theme/derive/derive_style_sheet.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

using vela::ButtonStyle;
using vela::kDefaultVariant;
using vela::PanelStyle;
using vela::Rect;
using vela::SurfaceStyle;

// The median of some rounds: the machine has other things to do.
template <typename Paint>
double microsecondsPerPaint(Paint&& paint)
{
    using Clock = std::chrono::steady_clock;
    constexpr int kRounds = 7;
    paint();
    std::vector<double> rounds;
    for (int round = 0; round < kRounds; ++round) {
        int paints = 0;
        const auto start = Clock::now();
        std::chrono::duration<double, std::micro> spent{};
        do {
            paint();
            ++paints;
            spent = Clock::now() - start;
        } while (spent < std::chrono::milliseconds(60));
        rounds.push_back(spent.count() / paints);
    }
    std::nth_element(rounds.begin(), rounds.begin() + kRounds / 2, rounds.end());
    return rounds[kRounds / 2];
}

void report(const char* name, vela::Size size, double microseconds)
{
    const double pixels = static_cast<double>(size.width) * size.height;
    std::printf("%-34s %5d x %-5d %9.1f us %8.0f Mpix/s\n", name, size.width, size.height, microseconds,
                pixels / microseconds);
}

void measureSurface(const vela::DibSurface& target, const char* name, vela::Size size,
                    const SurfaceStyle& style)
{
    const auto paint = [&] { vela::paintSurface(target.dc(), {40, 40, size.width, size.height}, style); };
    {
        const vela::PaintContextBinding anew(target.dc(), {.cachesPictures = false});
        report(name, size, microsecondsPerPaint(paint));
    }
    report("    found", size, microsecondsPerPaint(paint));
}

SurfaceStyle fullStyle()
{
    SurfaceStyle style;
    style.useGradient = style.useNoise = style.showInnerShadow = style.showShadow = style.showGlow = true;
    style.showOutline = true;
    return style;
}

void measureText(const vela::DibSurface& target)
{
    const vela::FontSpec font{L"Segoe UI", 10, 400, vela::hexColor(0xFFFFFF), vela::hexColor(0x808080)};
    const wchar_t* const line = L"Spouštět s Windows";
    const Rect rect{8, 8, 240, 24};
    report("text by DirectWrite", {240, 24},
           microsecondsPerPaint([&] { vela::drawText(target.dc(), rect, line, font, 96); }));
    report("text by GDI", {240, 24},
           microsecondsPerPaint([&] { vela::drawCenteredText(target.dc(), rect, line, font, 96); }));
    report("text measured, three lines", {120, 60}, microsecondsPerPaint([&] {
               vela::measureText(L"Aplikace se nainstaluje do zvolené složky a potom se spustí.", font, 96,
                                 160);
           }));
}

} // namespace

int main()
{
    vela::setToolkitTexts(setup::kToolkitTexts);
    vela::setResourceFolders({});
    const vela::DibSurface target({1960, 1120});
    for (const auto& [name, mode] :
         {std::pair{"flat", vela::SurfaceMode::Flat2d}, {"sculpted", vela::SurfaceMode::Sculpted3d}}) {
        vela::Theme theme;
        theme.surfaceMode = mode;
        const vela::StyleSheet styles = vela::deriveStyleSheet(theme);
        std::printf("%s theme\n", name);
        const SurfaceStyle& panel = styles.find<PanelStyle>(kDefaultVariant).surface;
        measureSurface(target, "  panel", {690, 420}, panel);
        measureSurface(target, "  panel", {1920, 1080}, panel);
        measureSurface(target, "  button", {128, 34}, styles.find<ButtonStyle>(L"primary").surface.normal);
    }
    std::printf("every layer at once\n");
    measureSurface(target, "  surface", {690, 420}, fullStyle());
    measureSurface(target, "  surface", {128, 34}, fullStyle());
    std::printf("long reaches\n");
    SurfaceStyle wide;
    wide.showGlow = true;
    wide.glowRadius = 20;
    measureSurface(target, "  glow of 20", {650, 380}, wide);
    wide.showGlow = false;
    wide.showOutline = true;
    wide.outlineWidth = 60;
    measureSurface(target, "  outline of 60", {690, 420}, wide);
    wide.shape = vela::ShapeKind::Rect;
    measureSurface(target, "  twenty million rows", {690, 20'000'000}, wide);
    measureText(target);
}
