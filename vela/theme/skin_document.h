// Skins as they stand in a document: what names a skin, its theme, and its style sections, which are kept as
// flat settings until somebody asks for the skin's style sheet (style_sections.h).
#pragma once

#include "vela/theme/skin_map.h"
#include "vela/theme/theme.h"

#include <string>
#include <string_view>
#include <vector>

namespace vela {

class JsonValue;

// The category of a skin that names none, and the mark of a skin that was read from a document rather than
// made from the built-in defaults.
inline constexpr std::wstring_view kCustomCategory = L"custom";
inline constexpr std::wstring_view kExternalSource = L"external";

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
    SkinMap sections; // under "shapes", "styles", "styleoverrides" and "stylevariants"; not sorted
};

// Reads one skin over the definition: only what is present and readable changes. False, with the definition
// unchanged, when the value is not an object.
bool readSkin(const JsonValue& value, SkinDefinition& skin);

// The skins of a document: those of the array "skins", or the one under "skin", or the root object itself, or
// the elements of a root array.
std::vector<SkinDefinition> skinsFromDocument(const JsonValue& root);

} // namespace vela
