#include "vela/theme/checks/contrast_checks.h"
#include "vela/theme/color/oklab.h"
#include "vela/theme/derive/derive_style_sheet.h"
#include "vela/theme/fields/fields.h"

#include <gtest/gtest.h>

#include <random>

namespace vela {
namespace {

constexpr SurfaceMode kModes[] = {SurfaceMode::Flat2d, SurfaceMode::Sculpted3d, SurfaceMode::Textured,
                                  SurfaceMode::BitmapPlates, SurfaceMode::WindowsClean};

// Fifteen colours, in the order of the roles.
using Palette = std::array<std::uint32_t, kPaletteRoleCount>;

Theme themeOf(const Palette& palette, SurfaceMode mode)
{
    static constexpr Color Theme::*kRoles[] = {
        &Theme::frame,     &Theme::shell,        &Theme::panel,          &Theme::header,
        &Theme::control,   &Theme::controlHot,   &Theme::controlPressed, &Theme::border,
        &Theme::accent,    &Theme::accentHot,    &Theme::text,           &Theme::textHot,
        &Theme::mutedText, &Theme::disabledText, &Theme::disabledFill};
    Theme theme;
    theme.surfaceMode = mode;
    theme.materials.surface = MaterialPreset::ObsidianRelief;
    theme.materials.control = MaterialPreset::LayeredGlass;
    theme.materials.accent = MaterialPreset::Gemstone;
    for (std::size_t role = 0; role < palette.size(); ++role)
        theme.*kRoles[role] = hexColor(palette[role]);
    return theme;
}

constexpr Palette kWindowsLight = {0xBDBDBD, 0xF3F3F3, 0xF9F9F9, 0xF3F3F3, 0xFDFDFD,
                                   0xF5F5F5, 0xEFEFEF, 0xD6D6D6, 0x0067C0, 0x1975C5,
                                   0x1B1B1B, 0x000000, 0x5E5E5E, 0x949494, 0xF5F5F5};
constexpr Palette kWindowsDark = {0x4D4D4D, 0x202020, 0x2B2B2B, 0x202020, 0x373737,
                                  0x3D3D3D, 0x323232, 0x464646, 0x4CC2FF, 0x47B1E8,
                                  0xFFFFFF, 0xFFFFFF, 0xCFCFCF, 0x868686, 0x333333};

// Palettes that a careless or a wicked author might write.
const Palette kHardPalettes[] = {
    kWindowsLight,
    kWindowsDark,
    {},                                                                              // all black
    {0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, // all white
     0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF},
    {0x767676, 0x767676, 0x767676, 0x767676, 0x767676, 0x767676, 0x767676, 0x767676, // the dead middle
     0x767676, 0x767676, 0x767676, 0x767676, 0x767676, 0x767676, 0x767676},
    {0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF, 0xFF8000, 0x8000FF, // a box of crayons
     0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF, 0xFF8000},
    {0x000000, 0xFFFFFF, 0x000000, 0xFFFFFF, 0x000000, 0xFFFFFF, 0x808080, 0x000000, // chequered
     0x000000, 0xFFFFFF, 0x000000, 0xFFFFFF, 0x000000, 0xFFFFFF, 0x000000},
};

std::vector<Palette> randomPalettes(int count)
{
    std::mt19937 random(20240611);
    std::vector<Palette> palettes(static_cast<std::size_t>(count));
    for (Palette& palette : palettes) {
        for (std::uint32_t& color : palette)
            color = random() & 0xFFFFFF;
    }
    return palettes;
}

std::vector<Palette> allPalettes()
{
    std::vector<Palette> palettes = randomPalettes(120);
    palettes.insert(palettes.end(), std::begin(kHardPalettes), std::end(kHardPalettes));
    return palettes;
}

std::string described(const ContrastCheck& check)
{
    return "kind " + std::to_string(static_cast<int>(check.kind)) + " " +
           std::string(check.variant.begin(), check.variant.end()) + ": " + check.part;
}

TEST(DeriveStyleSheet, ReachesTheContrastRuleForAnyPalette)
{
    std::size_t checked = 0;
    for (const Palette& palette : allPalettes()) {
        for (const SurfaceMode mode : kModes) {
            for (const ContrastCheck& check : contrastChecks(deriveStyleSheet(themeOf(palette, mode)))) {
                ++checked;
                EXPECT_GE(check.reached, check.required)
                    << described(check) << ", mode " << static_cast<int>(mode) << ", panel " << std::hex
                    << palette[2] << ", accent " << palette[8];
            }
        }
    }
    EXPECT_GT(checked, 100'000U);
}

// What tells one state from another at a glance.
struct Appearance {
    const SurfaceStyle* surface;
    Color text;
};

float difference(const Appearance& one, const Appearance& other)
{
    const SurfaceStyle& left = *one.surface;
    const SurfaceStyle& right = *other.surface;
    float most = visualDistance(one.text, other.text);
    if (left.drawFill != right.drawFill)
        return 1;
    if (left.drawFill)
        most = std::max({most, visualDistance(left.fill, right.fill),
                         left.useGradient || right.useGradient
                             ? visualDistance(left.useGradient ? left.gradientStart : left.fill,
                                              right.useGradient ? right.gradientStart : right.fill)
                             : 0.0F});
    if (left.drawBorder && right.drawBorder)
        most = std::max(most, visualDistance(left.border, right.border));
    if (left.showOutline != right.showOutline)
        most = 1;
    if (left.showOutline && right.showOutline)
        most = std::max(most, visualDistance(left.outline, right.outline));
    return most;
}

void expectAllDistinct(std::initializer_list<Appearance> states, const std::string& what)
{
    for (const auto* one = states.begin(); one != states.end(); ++one) {
        for (const auto* other = one + 1; other != states.end(); ++other)
            EXPECT_GE(difference(*one, *other), 0.018F)
                << what << ": states " << one - states.begin() << " and " << other - states.begin();
    }
}

void expectDistinctStates(const ButtonStyle& style, const std::string& what)
{
    const auto state = [&style](VisualState at) {
        return Appearance{&style.surface[at],
                          at == VisualState::Disabled ? style.text[at].disabledColor : style.text[at].color};
    };
    expectAllDistinct({state(VisualState::Normal), state(VisualState::Hot), state(VisualState::Pressed),
                       state(VisualState::Disabled), state(VisualState::Active)},
                      what);
}

TEST(DeriveStyleSheet, ShowsEveryStateDifferently)
{
    for (const Palette& palette : allPalettes()) {
        for (const SurfaceMode mode : kModes) {
            const StyleSheet sheet = deriveStyleSheet(themeOf(palette, mode));
            const std::string where = " in mode " + std::to_string(static_cast<int>(mode)) + " on panel " +
                                      std::to_string(palette[2]);
            for (const auto& button : sheet.table<ButtonStyle>())
                expectDistinctStates(button.record,
                                     std::string(button.name.begin(), button.name.end()) + where);
            expectDistinctStates(sheet.find<ChromeTitleBarStyle>(kDefaultVariant).titleButton,
                                 "caption button" + where);
            expectDistinctStates(sheet.find<TabsStyle>(kDefaultVariant).itemButton, "tab" + where);

            const auto& field = sheet.find<TextInputStyle>(kDefaultVariant);
            const Color text = field.text.color;
            expectAllDistinct({{&field.surface, text},
                               {&field.hotSurface, text},
                               {&field.pressedSurface, text},
                               {&field.focusedSurface, text},
                               {&field.disabledSurface, field.text.disabledColor}},
                              "text input" + where);
            // The check mark itself tells the checked boxes from the others.
            const auto& box = sheet.find<CheckBoxStyle>(kDefaultVariant);
            expectAllDistinct({{&box.boxUnchecked, 0},
                               {&box.boxUncheckedHot, 0},
                               {&box.boxUncheckedPressed, 0},
                               {&box.boxUncheckedDisabled, 0}},
                              "check box" + where);
            expectAllDistinct({{&box.boxChecked, 0},
                               {&box.boxCheckedHot, 0},
                               {&box.boxCheckedPressed, 0},
                               {&box.boxCheckedDisabled, 0}},
                              "checked box" + where);
            const auto& list = sheet.find<ListBoxStyle>(kDefaultVariant);
            expectAllDistinct({{&list.row, 0},
                               {&list.rowHot, 0},
                               {&list.rowPressed, 0},
                               {&list.selectedRow, 0},
                               {&list.selectedRowHot, 0}},
                              "list row" + where);
            const auto& menu = sheet.find<MenuBarStyle>(kDefaultVariant);
            expectAllDistinct({{&menu.itemSurface, 0},
                               {&menu.itemHotSurface, 0},
                               {&menu.itemPressedSurface, 0},
                               {&menu.itemActiveSurface, 0}},
                              "menu item" + where);
            const auto& select = sheet.find<SelectBoxStyle>(kDefaultVariant);
            expectAllDistinct({{&select.surface, 0},
                               {&select.hotSurface, 0},
                               {&select.pressedSurface, 0},
                               {&select.disabledSurface, 0}},
                              "select box" + where);
            expectAllDistinct({{&select.dropdownSurface, 0},
                               {&select.optionHotSurface, 0},
                               {&select.optionSelectedSurface, 0}},
                              "option" + where);
            const auto& thumb = sheet.find<ScrollBarStyle>(kDefaultVariant).thumb;
            expectAllDistinct({{&thumb.normal, 0}, {&thumb.hot, 0}, {&thumb.pressed, 0}, {&thumb.active, 0}},
                              "thumb" + where);
        }
    }
}

// Sets every number of a record that is no byte.
void setNumbers(const FieldTable& table, void* record, std::int32_t value)
{
    for (const Field& field : table.fields) {
        auto* const place = static_cast<std::byte*>(record) + field.offset;
        if (field.kind == FieldKind::Length || field.kind == FieldKind::Integer)
            *reinterpret_cast<std::int32_t*>(place) = value;
        else if (field.kind == FieldKind::Record)
            setNumbers(tableOf(field), place, value);
    }
}

TEST(DeriveStyleSheet, TakesNumbersAtTheLimits)
{
    for (const std::int32_t value : {INT32_MIN, INT32_MAX}) {
        for (int mode = 0; mode < 5; ++mode) {
            Theme theme;
            theme.surfaceMode = static_cast<SurfaceMode>(mode);
            setNumbers(Fields<Theme>::kTable, &theme, value);
            setNumbers(Fields<MaterialProfile>::kTable, &theme.materials, value);
            EXPECT_GE(deriveStyleSheet(theme).find<TextStyle>(L"title").pointSize, 1);
        }
    }
}

} // namespace
} // namespace vela
