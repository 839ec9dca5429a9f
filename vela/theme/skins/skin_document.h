// Skins as they stand in a document: what names a skin, its theme, and its style sections, which are kept as
// flat settings until somebody asks for the skin's style sheet (style_sections.h).
#pragma once

#include "vela/theme/document/skin_map.h"
#include "vela/theme/records/theme.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vela {

class JsonValue;

// The category of a skin that names none, and the mark of a skin that was read from a document rather than
// made from the built-in defaults.
inline constexpr std::wstring_view kCustomCategory = L"custom";
inline constexpr std::wstring_view kExternalSource = L"external";

// Where the sections lie in SkinDefinition::sections.
inline constexpr std::wstring_view kShapesSection = L"shapes";
inline constexpr std::wstring_view kStylesSection = L"styles";
inline constexpr std::wstring_view kOverridesSection = L"styleoverrides";
inline constexpr std::wstring_view kVariantsSection = L"stylevariants";

struct SkinDefinition {
    std::wstring id;
    std::wstring name;
    std::wstring description;
    std::wstring category;
    std::wstring harmony;
    std::wstring surfaceMode; // as written; the theme holds what it means
    std::wstring source;      // empty: built in
    std::vector<std::wstring> tags;
    Theme theme;
    SkinMap sections; // not sorted
};

enum class SkinKeyKind : std::uint8_t { Text, SurfaceMode, Tags, Materials, Theme, Section };

// One key of a skin with its aliases in reading order, separated by blanks. They are compared in normalised
// form, as all keys are.
struct SkinKey {
    std::string_view keys;
    SkinKeyKind kind;
    std::wstring SkinDefinition::*text = nullptr; // of a Text
    std::wstring_view section = {};               // of a Section: its path in SkinDefinition::sections
};

// In the order in which they are read.
inline constexpr SkinKey kSkinKeys[] = {
    {"name", SkinKeyKind::Text, &SkinDefinition::name},
    {"id", SkinKeyKind::Text, &SkinDefinition::id},
    {"description", SkinKeyKind::Text, &SkinDefinition::description},
    {"harmony", SkinKeyKind::Text, &SkinDefinition::harmony},
    {"category", SkinKeyKind::Text, &SkinDefinition::category},
    {"surfaceMode", SkinKeyKind::SurfaceMode},
    {"tags", SkinKeyKind::Tags},
    {"materials materialProfile", SkinKeyKind::Materials},
    {"theme", SkinKeyKind::Theme},
    {"styles", SkinKeyKind::Section, nullptr, kStylesSection},
    {"shapes", SkinKeyKind::Section, nullptr, kShapesSection},
    {"styleOverrides", SkinKeyKind::Section, nullptr, kOverridesSection},
    {"styleVariants variants controlVariants", SkinKeyKind::Section, nullptr, kVariantsSection},
};

// Reads one skin over the definition: only what is present and readable changes. False, with the definition
// unchanged, when the value is not an object.
bool readSkin(const JsonValue& value, SkinDefinition& skin);

// More than anybody writes: a few megabytes of "{}" would otherwise become gigabytes of skins.
inline constexpr std::size_t kMaxSkinsPerArray = 4096;

// The skins of a document: those of the array "skins", or the one under "skin", or the root object itself, or
// the elements of a root array.
std::vector<SkinDefinition> skinsFromDocument(const JsonValue& root);

} // namespace vela
