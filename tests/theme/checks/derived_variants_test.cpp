#include "vela/theme/checks/derived_variants.h"

#include "vela/theme/derive/derive_style_sheet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace vela {
namespace {

struct KindVariants {
    ControlKind kind;
    std::span<const std::wstring_view> names;
};

constexpr std::wstring_view kTexts[] = {L"default", L"title", L"muted", L"mono", L"danger"};
constexpr std::wstring_view kButtons[] = {
    L"default",        L"secondary", L"primary",        L"primary-action", L"quiet",        L"success",
    L"success-action", L"warning",   L"warning-action", L"danger",         L"danger-action"};
constexpr std::wstring_view kBitmapButtons[] = {L"default", L"action", L"primary-action", L"muted"};
constexpr std::wstring_view kPanels[] = {L"default", L"glass"};
constexpr std::wstring_view kCards[] = {L"default", L"raised", L"dashboard"};
constexpr std::wstring_view kStatusChips[] = {L"default", L"success", L"warning", L"danger"};
constexpr std::wstring_view kPopups[] = {L"default", L"danger"};
constexpr std::wstring_view kTooltips[] = {L"default", L"designed-help"};
constexpr std::wstring_view kOnlyDefault[] = {L"default"};

constexpr KindVariants kVariants[] = {
    {ControlKind::Text, kTexts},
    {ControlKind::Button, kButtons},
    {ControlKind::BitmapButton, kBitmapButtons},
    {ControlKind::Panel, kPanels},
    {ControlKind::Card, kCards},
    {ControlKind::StatusChip, kStatusChips},
    {ControlKind::Popup, kPopups},
    {ControlKind::Tooltip, kTooltips},
};

std::span<const std::wstring_view> variantsOf(ControlKind kind)
{
    const auto* const row = std::ranges::find(kVariants, kind, &KindVariants::kind);
    return row != std::end(kVariants) ? row->names : std::span<const std::wstring_view>(kOnlyDefault);
}

TEST(DerivedVariants, AreHeldForEveryKindOnceDerived)
{
    const StyleSheet sheet = deriveStyleSheet(Theme{});
    std::size_t kinds = 0;
    sheet.forEachTable([&kinds](ControlKind kind, const auto& table) {
        EXPECT_EQ(static_cast<std::size_t>(kind), kinds++);
        const auto names = variantsOf(kind);
        EXPECT_TRUE(
            std::equal(table.begin(), table.end(), names.begin(), names.end(),
                       [](const auto& variant, std::wstring_view name) { return variant.name == name; }))
            << "kind " << static_cast<int>(kind);
        EXPECT_TRUE(std::ranges::equal(derivedVariants(kind), names));
    });
    EXPECT_EQ(kinds, kControlKindCount);
}

} // namespace
} // namespace vela
