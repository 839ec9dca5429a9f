// The skins that travel inside the setup: what their document promises in words is held against their
// colours.
#include "tests/support/default_skins.h"
#include "tests/support/skin_text.h"
#include "tests/support/written_json.h"
#include "tests/theme/records/surface_walk.h"
#include "vela/theme/checks/contrast_checks.h"
#include "vela/theme/color/contrast.h"
#include "vela/theme/color/oklab.h"
#include "vela/theme/document/json.h"
#include "vela/theme/fields/palette.h"
#include "vela/theme/records/spellings.h"
#include "vela/theme/skins/skin_document.h"
#include "vela/theme/skins/style_sections.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>
#include <vector>

namespace vela {
namespace {

constexpr std::wstring_view kIds[] = {
    L"codex-forge",  L"obsidian-atelier", L"carmine-rose",      L"graphite-harbor",   L"win11-auto",
    L"win11-dark",   L"win11-light",      L"arctic-instrument", L"ember-console",     L"ultraviolet-rift",
    L"verdant-ops",  L"navy-copper-desk", L"porcelain-ink",     L"industrial-safety", L"starlance",
    L"starlance-3d", L"classic",
};

constexpr std::wstring_view kCategories[] = {L"hybrid",  L"professional", L"gaming", L"windows",
                                             L"utility", L"companion",    L"signal"};

const SkinDefinition& skinNamed(std::wstring_view id)
{
    const auto& skins = defaultSkins();
    const auto found =
        std::find_if(skins.begin(), skins.end(), [id](const SkinDefinition& skin) { return skin.id == id; });
    EXPECT_NE(found, skins.end());
    return found == skins.end() ? skins.front() : *found;
}

bool isOneOf(std::wstring_view word, std::span<const std::wstring_view> words)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

// --- Colour harmony, on the hue circle of HSL.

constexpr int kGreyUpTo = 15; // the largest channel difference of a colour that counts as grey

int chromaOf(Color color)
{
    const auto [low, high] = std::minmax({redOf(color), greenOf(color), blueOf(color)});
    return high - low;
}

bool isColoured(Color color) { return chromaOf(color) > kGreyUpTo; }

float degreesOf(float y, float x)
{
    const float degrees = std::atan2(y, x) * 57.29578F;
    return degrees < 0 ? degrees + 360 : degrees;
}

float hueOf(Color color)
{
    const float red = redOf(color);
    const float green = greenOf(color);
    const float blue = blueOf(color);
    const auto chroma = static_cast<float>(std::max(chromaOf(color), 1));
    const float highest = std::max({red, green, blue});
    const float sixth = highest == red     ? (green - blue) / chroma
                        : highest == green ? 2 + (blue - red) / chroma
                                           : 4 + (red - green) / chroma;
    return sixth < 0 ? (sixth + 6) * 60 : sixth * 60;
}

float hueDistance(float one, float other)
{
    const float apart = std::fabs(one - other);
    return std::min(apart, 360 - apart);
}

// The hue of everything that is not an accent, each surface counting as much as it is coloured.
float bodyHue(const Theme& theme)
{
    float x = 0;
    float y = 0;
    for (const Color color : {theme.shell, theme.panel, theme.header, theme.control, theme.controlHot,
                              theme.controlPressed, theme.border}) {
        const float radians = hueOf(color) / 57.29578F;
        x += std::cos(radians) * static_cast<float>(chromaOf(color));
        y += std::sin(radians) * static_cast<float>(chromaOf(color));
    }
    return degreesOf(y, x);
}

std::vector<float> colouredHues(const Theme& theme)
{
    std::vector<float> hues;
    for (int role = 0; role < kPaletteRoleCount; ++role) {
        const Color color = paletteColor(theme, static_cast<PaletteRole>(role));
        if (isColoured(color))
            hues.push_back(hueOf(color));
    }
    return hues;
}

// The shortest arc of the circle that holds all hues.
float arcOf(std::vector<float> hues)
{
    std::sort(hues.begin(), hues.end());
    float widestGap = hues.front() + 360 - hues.back();
    for (std::size_t index = 1; index < hues.size(); ++index)
        widestGap = std::max(widestGap, hues[index] - hues[index - 1]);
    return 360 - widestGap;
}

bool isNear(float value, float wanted) { return std::fabs(value - wanted) <= 15; }

float accentAngle(const Theme& theme) { return hueDistance(bodyHue(theme), hueOf(theme.accent)); }

bool isMonochromatic(const Theme& theme) { return arcOf(colouredHues(theme)) <= 20; }

bool isAnalogous(const Theme& theme)
{
    const float arc = arcOf(colouredHues(theme));
    return arc > 20 && arc <= 60;
}

bool isComplementary(const Theme& theme) { return isNear(accentAngle(theme), 180); }

bool isSplitComplementary(const Theme& theme) { return isNear(accentAngle(theme), 150); }

// The body, the accent and the frame share out the circle.
bool isTriadic(const Theme& theme)
{
    return isNear(accentAngle(theme), 120) && isNear(hueDistance(bodyHue(theme), hueOf(theme.frame)), 120) &&
           isNear(hueDistance(hueOf(theme.accent), hueOf(theme.frame)), 120);
}

// Greys and one hue, which only the accents and the frame may have.
bool isNeutralWithAccent(const Theme& theme)
{
    for (int index = 0; index < kPaletteRoleCount; ++index) {
        const auto role = static_cast<PaletteRole>(index);
        const Color color = paletteColor(theme, role);
        const bool accent = role == PaletteRole::Accent || role == PaletteRole::AccentHot;
        const bool mayHaveHue = accent || role == PaletteRole::Frame;
        const bool inHue = mayHaveHue && hueDistance(hueOf(color), hueOf(theme.accent)) <= 15;
        if (accent ? !isColoured(color) || !inHue : isColoured(color) && !inHue)
            return false;
    }
    return true;
}

constexpr struct {
    std::wstring_view name;
    bool (*holds)(const Theme&);
} kHarmonies[] = {
    {L"split-complementary", isSplitComplementary},
    {L"complementary", isComplementary},
    {L"monochromatic", isMonochromatic},
    {L"analogous", isAnalogous},
    {L"neutral-accent", isNeutralWithAccent},
    {L"triadic", isTriadic},
};

// --- Tests

TEST(DefaultSkins, StandInTheirOrder)
{
    std::vector<std::wstring_view> ids;
    for (const SkinDefinition& skin : defaultSkins())
        ids.push_back(skin.id);
    EXPECT_EQ(ids, std::vector<std::wstring_view>(std::begin(kIds), std::end(kIds)));
}

TEST(DefaultSkins, TravelAsPlainAscii)
{
    const std::string bytes = documentBytes();
    EXPECT_TRUE(
        std::all_of(bytes.begin(), bytes.end(), [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); }));
    EXPECT_LE(bytes.size(), 120U * 1024);
}

TEST(DefaultSkins, SayWhatTheyAre)
{
    for (const SkinDefinition& skin : defaultSkins()) {
        SCOPED_TRACE(narrowed(skin.id));
        EXPECT_FALSE(skin.name.empty());
        EXPECT_FALSE(skin.description.empty());
        EXPECT_FALSE(skin.tags.empty());
        EXPECT_TRUE(isOneOf(skin.category, kCategories));
        EXPECT_TRUE(parseWord<SurfaceMode>(skin.surfaceMode));
        EXPECT_FALSE(skin.sections.empty());
    }
}

TEST(DefaultSkins, KeepTheHarmonyTheyDeclare)
{
    for (const SkinDefinition& skin : defaultSkins()) {
        SCOPED_TRACE(narrowed(skin.id));
        const auto* harmony = std::find_if(std::begin(kHarmonies), std::end(kHarmonies),
                                           [&](const auto& row) { return row.name == skin.harmony; });
        ASSERT_NE(harmony, std::end(kHarmonies));
        EXPECT_TRUE(harmony->holds(skin.theme)) << "accent at " << accentAngle(skin.theme) << ", arc of "
                                                << arcOf(colouredHues(skin.theme)) << " degrees";
    }
}

TEST(DefaultSkins, CanBeReadBeforeAnythingIsNudged)
{
    for (const SkinDefinition& skin : defaultSkins()) {
        SCOPED_TRACE(narrowed(skin.id));
        const Theme& theme = skin.theme;
        for (const Color ground : {theme.shell, theme.panel, theme.header, theme.control}) {
            EXPECT_GE(contrastRatio(theme.text, ground), kTextContrast);
            EXPECT_GE(contrastRatio(theme.mutedText, ground), kTextContrast);
            EXPECT_GE(contrastRatio(theme.disabledText, ground), kDisabledTextContrast);
        }
        for (const Color face : {theme.controlHot, theme.controlPressed})
            EXPECT_GE(contrastRatio(theme.text, face), kTextContrast);
        EXPECT_GE(contrastRatio(theme.disabledText, theme.disabledFill), kDisabledTextContrast);
        EXPECT_GE(contrastRatio(theme.accent, theme.panel), kMarkContrast);
        EXPECT_GE(visualDistance(theme.border, theme.panel), 0.08F);
    }
}

TEST(DefaultSkins, StandOutInEveryStateWithTheirSectionsRead)
{
    for (const SkinDefinition& skin : defaultSkins()) {
        SCOPED_TRACE(narrowed(skin.id));
        for (const ContrastCheck& check : contrastChecks(buildStyleSheet(skin))) {
            EXPECT_GE(check.reached, check.required) << "kind " << static_cast<int>(check.kind) << ", "
                                                     << narrowed(check.variant) << ": " << check.part;
        }
    }
}

TEST(DefaultSkins, BeginWithTheLookThatControlsHaveBeforeAnySkin)
{
    const Theme& codex = defaultSkins().front().theme;
    const Theme builtIn;
    for (int role = 0; role < kPaletteRoleCount; ++role) {
        const auto which = static_cast<PaletteRole>(role);
        EXPECT_EQ(paletteColor(codex, which), paletteColor(builtIn, which)) << "role " << role;
    }
    EXPECT_EQ(codex.surfaceMode, builtIn.surfaceMode);
    EXPECT_EQ(codex.uiFont.pointSize, builtIn.uiFont.pointSize);
    EXPECT_EQ(codex.uiFont.weight, builtIn.uiFont.weight);

    EXPECT_EQ(codex.uiFont.family, L"Exo 2");
    EXPECT_EQ(codex.monoFont.family, L"JetBrains Mono");
    EXPECT_EQ(codex.materials.surface, MaterialPreset::ObsidianRelief);
    EXPECT_EQ(codex.materials.control, MaterialPreset::LayeredGlass);
    EXPECT_EQ(codex.materials.accent, MaterialPreset::Gemstone);
    EXPECT_EQ(codex.materials.materialTint, hexColor(0x9FE1D4));
    EXPECT_EQ(codex.materials.materialStrength, 150);
    EXPECT_EQ(codex.materials.gradientKind, GradientKind::Radial);
    EXPECT_EQ(codex.materials.gradientDirection, GradientDirection::DiagonalDown);
    EXPECT_EQ(codex.materials.uvMapping, MappingSpace::Global);
    EXPECT_EQ(codex.materials.finish, MaterialFinish::Etched);
}

TEST(DefaultSkins, HaveTheAutomaticWindowsSkinEqualToTheLightOne)
{
    const auto looksOf = [](std::wstring_view id) {
        std::wstring looks;
        for (const JsonValue& skin : documentRoot().find(L"skins")->items()) {
            if (*skin.find(L"id")->string() != id)
                continue;
            for (const JsonMember& member : skin.members()) {
                if (!isOneOf(member.key(), std::vector<std::wstring_view>{L"id", L"name", L"description"}))
                    looks += std::wstring(member.key()) + L" " + writtenJson(member.value) + L"\n";
            }
        }
        return looks;
    };
    EXPECT_FALSE(looksOf(L"win11-light").empty());
    EXPECT_EQ(looksOf(L"win11-auto"), looksOf(L"win11-light"));
}

// Nothing of the materials comes to be for a Windows skin, or the setup's own windows would wait for a
// graphics device before their first picture.
TEST(DefaultSkins, CarryNoMaterialInTheWindowsSkins)
{
    for (const std::wstring_view id : {L"win11-auto", L"win11-light", L"win11-dark"}) {
        const StyleSheet styles = buildStyleSheet(skinNamed(id));
        testing_surfaces::visitSurfaces(
            styles, [](const std::string& path, const SurfaceStyle& surface, const ShapeKind*) {
                EXPECT_FALSE(carriesMaterial(surface)) << path;
            });
    }
}

TEST(DefaultSkins, UseTheSystemsColoursForTheWindowsSkins)
{
    for (const std::wstring_view id : {L"win11-light", L"win11-dark"}) {
        const SkinDefinition& skin = skinNamed(id);
        EXPECT_EQ(skin.theme.surfaceMode, SurfaceMode::WindowsClean);
        EXPECT_EQ(skin.theme.uiFont.family, L"Segoe UI Variable Text");
        EXPECT_FALSE(skin.theme.materials.enabled);
    }
    EXPECT_EQ(skinNamed(L"win11-light").theme.accent, hexColor(0x0067C0));
    EXPECT_EQ(skinNamed(L"win11-dark").theme.accent, hexColor(0x4CC2FF));
}

// How far two looks are apart: the mean distance of their colours in steps that a glance tells apart, and one
// step for each of what else shows at thumbnail size.
float lookDistance(const SkinDefinition& one, const SkinDefinition& other)
{
    constexpr float kGlance = 0.05F;
    float colours = 0;
    for (int role = 0; role < kPaletteRoleCount; ++role) {
        const auto which = static_cast<PaletteRole>(role);
        colours += visualDistance(paletteColor(one.theme, which), paletteColor(other.theme, which));
    }
    int steps = 0;
    steps += one.theme.surfaceMode != other.theme.surfaceMode;
    steps += one.theme.uiFont.family != other.theme.uiFont.family;
    steps += one.theme.materials.surface != other.theme.materials.surface;
    return colours / kPaletteRoleCount / kGlance + static_cast<float>(steps);
}

TEST(DefaultSkins, AreToldApartAtAGlance)
{
    const auto& skins = defaultSkins();
    for (const SkinDefinition& one : skins) {
        for (const SkinDefinition& other : skins) {
            if (&one == &other || one.id == L"win11-auto" || other.id == L"win11-auto")
                continue;
            EXPECT_GE(lookDistance(one, other), 3) << narrowed(one.id) << " and " << narrowed(other.id);
        }
    }
}

} // namespace
} // namespace vela
