// From a skin to its style sheet: the records derived from its theme, overridden field by field by what the
// skin's sections say, in this order: "shapes", "styles", "styleOverrides", "styleVariants".
//
// Every section holds blocks by control kind (controlSections), and a block holds variants by name; a name
// that the derived sheet lacks adds a variant, which starts as a copy of "default". Fields that stand in a
// block beside its variants hold for every variant of the kind, before the variants' own.
//
// A block, a variant or a style within a record may start from another one with "inherits" (or "extends", or
// "base"):
// - a variant that names a variant of its own kind starts as a copy of it, as this section leaves it;
// - a variant that names "kind" or "kind.variant" first takes the fields that the section holds there;
// - a block that names another kind first takes what the section holds for that kind;
// - a text, button or scroll bar within a record that names "kind.variant" starts as a copy of that style.
// A circle, or a chain longer than kMaxInheritance, ends at the style where it is noticed.
#pragma once

#include "vela/theme/fields/fields.h"
#include "vela/theme/records/style_sheet.h"
#include "vela/theme/skins/skin_document.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace vela {

inline constexpr std::string_view kInheritanceKeys = "inherits extends base";
bool isInheritanceKey(std::wstring_view name) noexcept;
inline constexpr int kMaxInheritance = 8;

// Variants that one kind may have; a skin cannot add more.
inline constexpr std::size_t kMaxVariants = 64;

// The names under which skins write the blocks of a control kind, and the fields of its style record.
struct ControlSection {
    ControlKind kind;
    std::string_view names; // normalised, in reading order, separated by blanks
    const FieldTable* fields;
};

// In the order of ControlKind.
std::span<const ControlSection> controlSections() noexcept;

// Null when no control kind has the name.
const ControlSection* findControlSection(std::wstring_view name) noexcept;

StyleSheet buildStyleSheet(const SkinDefinition& skin);

} // namespace vela
