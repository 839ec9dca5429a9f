// The words in which skins spell the closed sets of vocabulary.h: one table per set, one parser for all.
// Words are compared in normalised form: without "_", "-" and white space, in lower case.
#pragma once

#include "vela/theme/records/vocabulary.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vela {

std::wstring normalizedName(std::wstring_view text);

// Whether both have the same normalised form.
bool sameName(std::wstring_view left, std::wstring_view right) noexcept;

// The same for a word of a table, which holds neither "_", "-" nor white space.
bool isName(std::wstring_view text, std::string_view word) noexcept;

// Calls visit for each word of a list that is separated by single blanks, until it returns true; tells
// whether it did.
template <typename Visit>
constexpr bool anyWord(std::string_view words, Visit&& visit)
{
    while (!words.empty()) {
        const std::size_t length = words.find(' ');
        if (visit(words.substr(0, length)))
            return true;
        words.remove_prefix(length == std::string_view::npos ? words.size() : length + 1);
    }
    return false;
}

// The words of one value: in normalised form, the usual one first, separated by blanks.
struct Spellings {
    template <typename Value>
    constexpr Spellings(Value meaning, std::string_view allWords) noexcept
        : words(allWords), value(static_cast<std::uint16_t>(meaning))
    {
    }

    std::string_view words;
    std::uint16_t value;
};

// All words of one set, with a name for it that fits into a message ("gradient direction").
struct Vocabulary {
    std::string_view name;
    std::span<const Spellings> rows;
};

extern const Vocabulary kSurfaceModeWords;
extern const Vocabulary kShapeWords;
extern const Vocabulary kGradientDirectionWords;
extern const Vocabulary kGradientKindWords;
extern const Vocabulary kMaterialPresetWords;
extern const Vocabulary kMaterialFinishWords;
extern const Vocabulary kMappingSpaceWords;
extern const Vocabulary kAlphaHitModeWords;
extern const Vocabulary kTintModeWords;
extern const Vocabulary kMaskChannelWords;
extern const Vocabulary kVisualStateWords; // a checked control paints as an active one
extern const Vocabulary kPaletteRoleWords; // the keys of the theme's colours, and defined with these
extern const Vocabulary kBooleanWords;
extern const Vocabulary kWeightWords;
extern const Vocabulary kTintSwitchWords; // what a tint block may be instead of an object; values of TintMode

template <typename Enum>
inline constexpr const Vocabulary* kVocabularyOf = nullptr;
template <>
inline constexpr const Vocabulary* kVocabularyOf<SurfaceMode> = &kSurfaceModeWords;
template <>
inline constexpr const Vocabulary* kVocabularyOf<ShapeKind> = &kShapeWords;
template <>
inline constexpr const Vocabulary* kVocabularyOf<GradientDirection> = &kGradientDirectionWords;
template <>
inline constexpr const Vocabulary* kVocabularyOf<GradientKind> = &kGradientKindWords;
template <>
inline constexpr const Vocabulary* kVocabularyOf<MaterialPreset> = &kMaterialPresetWords;
template <>
inline constexpr const Vocabulary* kVocabularyOf<MaterialFinish> = &kMaterialFinishWords;
template <>
inline constexpr const Vocabulary* kVocabularyOf<MappingSpace> = &kMappingSpaceWords;
template <>
inline constexpr const Vocabulary* kVocabularyOf<AlphaHitMode> = &kAlphaHitModeWords;
template <>
inline constexpr const Vocabulary* kVocabularyOf<TintMode> = &kTintModeWords;
template <>
inline constexpr const Vocabulary* kVocabularyOf<MaskChannel> = &kMaskChannelWords;
template <>
inline constexpr const Vocabulary* kVocabularyOf<VisualState> = &kVisualStateWords;
template <>
inline constexpr const Vocabulary* kVocabularyOf<PaletteRole> = &kPaletteRoleWords;

// The value spelled by the text; empty when no word of the vocabulary matches.
std::optional<std::uint16_t> parseWord(const Vocabulary& vocabulary, std::wstring_view text) noexcept;

template <typename Enum>
std::optional<Enum> parseWord(std::wstring_view text) noexcept
{
    const std::optional<std::uint16_t> value = parseWord(*kVocabularyOf<Enum>, text);
    return value ? std::optional<Enum>(static_cast<Enum>(*value)) : std::nullopt;
}

inline std::optional<ShapeKind> parseShapeKind(std::wstring_view text) noexcept
{
    return parseWord<ShapeKind>(text);
}

// Sculpted3d for any word that names no mode: an unknown mode shall not flatten a skin.
SurfaceMode surfaceModeFrom(std::wstring_view text) noexcept;

// The carved glasses, gems and stones are drawn wherever they are named; the plainer presets only where the
// material is switched on as well.
constexpr bool switchesMaterialOn(MaterialPreset preset) noexcept
{
    return preset >= MaterialPreset::BloodGloss;
}

} // namespace vela
