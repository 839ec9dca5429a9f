// Buttons of every emphasis, on any backdrop: the button kind itself and the buttons that other records
// contain.
#pragma once

#include "vela/theme/derive/surfaces.h"
#include "vela/theme/derive/texts.h"
#include "vela/theme/records/style_sheet.h"

#include <string_view>

namespace vela::derive {

enum class Emphasis : std::uint8_t {
    Solid,    // filled with the intent's colour: the action that the dialog is about
    Standard, // a control's own face
    Outline,  // a control's face, half faded into the backdrop
    Soft,     // tinted with the intent's colour
    Quiet,    // only text until the pointer comes
};

struct ButtonRecipe {
    Intent intent = Intent::Neutral;
    Emphasis emphasis = Emphasis::Standard;
    TypeStep step = kBody;
};

struct ButtonVariant {
    std::wstring_view name;
    ButtonRecipe recipe;
};

// The variants that every style sheet has; those that a skin adds start from the default.
inline constexpr ButtonVariant kButtonVariants[] = {
    {kDefaultVariant, {}},
    {L"secondary", {Intent::Neutral, Emphasis::Outline}},
    {L"primary", {Intent::Accent, Emphasis::Solid}},
    {L"primary-action", {Intent::Accent, Emphasis::Solid, kLabel}},
    {L"quiet", {Intent::Neutral, Emphasis::Quiet}},
    {L"success", {Intent::Success, Emphasis::Soft}},
    {L"success-action", {Intent::Success, Emphasis::Solid, kLabel}},
    {L"warning", {Intent::Warning, Emphasis::Soft}},
    {L"warning-action", {Intent::Warning, Emphasis::Solid, kLabel}},
    {L"danger", {Intent::Danger, Emphasis::Soft}},
    {L"danger-action", {Intent::Danger, Emphasis::Solid, kLabel}},
};

// Standard for a variant that a skin added.
Emphasis emphasisOf(std::wstring_view variant) noexcept;

void deriveButton(const Context& context, const ButtonRecipe& recipe, const Backdrop& backdrop,
                  ShapeKind shape, ButtonStyle& style);

} // namespace vela::derive
