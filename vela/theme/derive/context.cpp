#include "vela/theme/derive/context.h"

#include "vela/theme/color/oklab.h"

#include <algorithm>
#include <cmath>

namespace vela::derive {
namespace {

constexpr float kRoundingMargin = 0.04F; // above what is asked for, so that rounding never falls below it
// What a material's light and texture take of the contrast, measured on painted surfaces. Marks lie on large
// surfaces, whose glow lifts the dark ones; the glossiest faces are those in the accent's material.
constexpr float kTextHeadroom = 1.38F;
constexpr float kMarkHeadroom = 1.6F;
constexpr float kSolidHeadroom = 1.6F;
// What the light on carved surfaces takes where no material is applied.
constexpr float kReliefHeadroom = 1.05F;
constexpr float kSharedTextHeadroom =
    1.5F; // five fills, that far apart, between the first and the last legible one
constexpr float kStatesApart = 0.022F; // just visible side by side
constexpr int kStateSteps = 24;        // of half that distance, tried to either side

// The hue of a status, as a direction in Oklab's colour plane, and the lightness in which people know it.
struct StatusHue {
    Intent intent;
    float a;
    float b;
    float chroma;
    float darkest;
    float lightest;
};
constexpr StatusHue kStatusHues[] = {
    {Intent::Success, -0.85F, 0.53F, 0.14F, 0.50F, 0.70F},
    {Intent::Warning, 0.22F, 0.98F, 0.15F, 0.70F, 0.80F},
    {Intent::Danger, 0.91F, 0.42F, 0.18F, 0.52F, 0.64F},
};
constexpr float kPull = 0.14F; // how far a status leans towards the theme's accent
constexpr float kHuesApart = 0.09F;
constexpr float kAside = 0.11F;

Color statusColor(const StatusHue& status, Color accent, bool dark)
{
    const Oklab lead = oklabOf(accent);
    const float a = status.a + kPull * lead.a / 0.15F;
    const float b = status.b + kPull * lead.b / 0.15F;
    const float chroma = status.chroma / std::sqrt(a * a + b * b);
    Oklab lab = {std::clamp(lead.lightness, status.darkest, status.lightest), a * chroma, b * chroma};
    // A status must not pass for the accent itself: in the light it gets deeper, in the dark it steps aside.
    if (visualDistance(colorOf(lab), accent) < kHuesApart)
        lab.lightness += dark && lead.lightness < (status.darkest + status.lightest) / 2 ? kAside : -kAside;
    return colorOf(lab);
}

bool isApart(Color color, std::initializer_list<Color> others)
{
    return std::ranges::all_of(others,
                               [color](Color other) { return visualDistance(color, other) >= kStatesApart; });
}

// The colour or the lighter or darker one nearest to it that fits.
template <class Fits>
Color nearestFitting(Color color, const Fits& fits)
{
    if (fits(color))
        return color;
    for (int step = 1; step <= kStateSteps; ++step) {
        for (const float direction : {1.0F, -1.0F}) {
            const Color candidate = lightened(color, direction * static_cast<float>(step) * kStatesApart / 2);
            if (fits(candidate))
                return candidate;
        }
    }
    return color;
}

} // namespace

Color towards(Color from, Color to, float distance) noexcept
{
    const float whole = visualDistance(from, to);
    return whole <= distance ? to : mixOklab(from, to, distance / whole);
}

Context::Context(const Theme& theme_)
    : theme(theme_), mode(traitsOf(theme_.surfaceMode)),
      materials(mode.materials && theme_.materials.enabled),
      textTarget(withHeadroom(kTextContrast, kTextHeadroom)),
      solidTextTarget(withHeadroom(kTextContrast, kSolidHeadroom)),
      markTarget(withHeadroom(kMarkContrast, kMarkHeadroom))
{
    dark = strongestOn(theme.panel) == hexColor(0xFFFFFF);
    resolveSolidColors();
    resolveContainers();
    resolveTextColors();
    resolveControl();
}

float Context::withHeadroom(float ratio, float materialHeadroom) const noexcept
{
    const float plainHeadroom = mode.leastDepth > 0 ? kReliefHeadroom : 1;
    return (ratio + kRoundingMargin) * (materials ? materialHeadroom : plainHeadroom);
}

void Context::resolveSolidColors()
{
    solidColors_[static_cast<int>(Intent::Neutral)] = theme.control;
    solidColors_[static_cast<int>(Intent::Accent)] = theme.accent;
    for (const StatusHue& status : kStatusHues)
        solidColors_[static_cast<int>(status.intent)] = statusColor(status, theme.accent, dark);
}

void Context::resolveContainers()
{
    const Color panel = containerFill(theme.panel);
    const Color pole = strongestOn(shadedTones(panel, Elevation::Container));
    dark = pole == hexColor(0xFFFFFF);
    backdrop = {panel, shadedTones(panel, Elevation::Container)};
    const auto near = [&](Color role, float distance) {
        const Color fill = containerFill(towards(panel, role, distance));
        const ToneRange tones = shadedTones(fill, Elevation::Container);
        // One that would need text of the other kind is filled as the panel is: one text colour serves all.
        if (strongestOn(tones) != pole)
            return panel;
        backdrop.tones.include(tones);
        return fill;
    };
    containerFills = {.panel = panel,
                      .glass = near(theme.header, 0.030F),
                      .card = near(theme.control, 0.024F),
                      .raisedCard = near(theme.control, 0.036F),
                      .dashboard = near(theme.shell, 0.030F)};
    headerFill = containerFill(theme.header);
}

void Context::resolveTextColors()
{
    text = sharedText({theme.text, theme.textHot}, backdrop.tones);
    strongText = sharedText({theme.textHot, theme.text}, backdrop.tones);
    mutedText = readable({theme.mutedText}, backdrop.tones);
    disabledText = disabledTextOn(text, backdrop.tones);
    edge = mark(theme.border, backdrop.tones);
    hotEdge = mark(mixOklab(edge, strongText, 0.16F), backdrop.tones);
    quietEdge = mixOklab(backdrop.fill, edge, 0.45F);
    hairline = towards(backdrop.fill, theme.border, 0.16F);
    textColors_[static_cast<int>(Intent::Neutral)] = text;
    for (const Intent intent : {Intent::Accent, Intent::Success, Intent::Warning, Intent::Danger})
        textColors_[static_cast<int>(intent)] = readable({solidColor(intent)}, backdrop.tones);
    focus = pickReaching({theme.accent, theme.accentHot, text}, backdrop.tones, markTarget);
}

Color Context::containerFill(Color wanted) const noexcept
{
    return readableFace(wanted, mode.traits(Elevation::Container).shading, textTarget);
}

void Context::resolveControl()
{
    control.normal = stateFill(theme.control, Elevation::Raised, {});
    control.hot = stateFill(theme.controlHot, Elevation::Raised, {control.normal});
    control.pressed = stateFill(theme.controlPressed, Elevation::Pressed, {control.normal, control.hot});
    control.disabled = stateFill(towards(theme.disabledFill, backdrop.fill, 0.02F), Elevation::Flat, {});
    control.active = stateFill(mixOklab(control.normal, theme.accent, 0.22F), Elevation::Pressed,
                               {control.normal, control.hot, control.pressed});
}

ToneRange Context::shadedTones(Color fill, Elevation elevation) const noexcept
{
    const float shading = std::abs(mode.traits(elevation).shading);
    return shading > 0 ? ToneRange(lightened(fill, -shading), lightened(fill, shading)) : ToneRange(fill);
}

Color Context::stateFill(Color wanted, Elevation elevation,
                         std::initializer_list<Color> others) const noexcept
{
    const float shading = std::abs(mode.traits(elevation).shading);
    const Color fill = readableFace(wanted, shading, textTarget);
    return nearestFitting(fill, [&](Color color) {
        return isApart(color, others) && isReadableFace(color, shading, textTarget);
    });
}

Color Context::fillBehind(Color foreground, Color base, Color wanted, Elevation elevation,
                          std::initializer_list<Color> others, float target) const noexcept
{
    const auto legible = [&](Color color) {
        return contrastRatio(foreground, shadedTones(color, elevation)) >= target;
    };
    const auto fits = [&](Color color) { return isApart(color, others) && legible(color); };
    for (const float amount : {1.0F, 0.6F, 0.35F, 0.2F, 0.1F}) {
        const Color color = mixOklab(base, wanted, amount);
        if (!legible(color))
            continue;
        const Color distinct = nearestFitting(color, fits);
        if (fits(distinct))
            return distinct;
    }
    return nearestFitting(base, fits);
}

Color Context::markFill(Color wanted, const ToneRange& on, Elevation elevation,
                        std::initializer_list<Color> others) const noexcept
{
    return nearestFitting(reaching(wanted, on, markTarget), [&](Color color) {
        const ToneRange tones = shadedTones(color, elevation);
        return isApart(color, others) &&
               std::min(contrastRatio(tones.darkest, on), contrastRatio(tones.lightest, on)) >= markTarget;
    });
}

Color Context::sharedText(std::initializer_list<Color> wanted, const ToneRange& on) const noexcept
{
    return pickReaching(wanted, on, textTarget * kSharedTextHeadroom);
}

Color Context::overlay(const Backdrop& on, float amount) const noexcept
{
    return lightened(on.fill, strongestOn(on.tones) == hexColor(0xFFFFFF) ? amount : -amount);
}

Color Context::readable(std::initializer_list<Color> wanted, const ToneRange& on) const noexcept
{
    return pickReaching(wanted, on, textTarget);
}

Color Context::strongestText(const ToneRange& on) const noexcept
{
    const Color roles[] = {theme.text, theme.textHot, theme.shell, theme.panel, theme.control};
    const Color strongest =
        *std::ranges::max_element(roles, {}, [&on](Color role) { return contrastRatio(role, on); });
    return reaching(strongest, on, solidTextTarget * kSharedTextHeadroom);
}

Color Context::mark(Color wanted, const ToneRange& on) const noexcept
{
    return reaching(wanted, on, markTarget);
}

Color Context::disabledTextOn(Color normal, const ToneRange& on) const noexcept
{
    const float wanted = withHeadroom(kDisabledTextContrast, kTextHeadroom);
    const float full = contrastRatio(normal, on);
    const float own = contrastRatio(theme.disabledText, on);
    if (own >= wanted && own <= full * 0.7F)
        return theme.disabledText;
    // Between the surface and its text: the palette's own disabled text would be unreadable or too strong
    // there.
    return reaching(mixOklab(on.darkest, normal, 0.35F), on, wanted);
}

} // namespace vela::derive
