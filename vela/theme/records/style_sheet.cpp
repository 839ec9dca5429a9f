#include "vela/theme/records/style_sheet.h"

#include <algorithm>

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
constexpr std::wstring_view kOnlyDefault[] = {kDefaultVariant};

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

} // namespace

std::span<const std::wstring_view> derivedVariants(ControlKind kind) noexcept
{
    const auto* const row = std::ranges::find(kVariants, kind, &KindVariants::kind);
    return row != std::end(kVariants) ? row->names : std::span<const std::wstring_view>(kOnlyDefault);
}

} // namespace vela
