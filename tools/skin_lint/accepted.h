// What a field accepts, in words for the writer of a skin.
#pragma once

#include "vela/theme/fields/fields.h"

#include <string>
#include <string_view>
#include <vector>

namespace vela::lint {

// "a colour (#RRGGBB or three decimals)", "one of linear, reflected, ...".
std::string acceptedBy(const Field& field);

// Whether the text would be read: reading itself reports nothing.
bool acceptsText(const Field& field, std::wstring_view text);

// All words of a vocabulary as its table spells them, the usual one of each value first.
std::vector<std::string> wordsOf(const Vocabulary& vocabulary);

// Whether the field takes substances beside the words of its vocabulary.
bool takesNamedMaterials(FieldKind kind) noexcept;

// The candidate that is a slip of the pen away from the text; empty when none is near.
std::string nearest(std::string_view text, const std::vector<std::string>& candidates);

// Skins are written in any script; names and messages are shown as UTF-8.
std::string toUtf8(std::wstring_view text);

} // namespace vela::lint
