#include "vela/theme/records/spellings.h"

#include "tests/support/skin_text.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace vela {
namespace {

const Vocabulary* const kVocabularies[] = {
    &kSurfaceModeWords,    &kShapeWords,          &kGradientDirectionWords, &kGradientKindWords,
    &kMaterialPresetWords, &kMaterialFinishWords, &kMappingSpaceWords,      &kAlphaHitModeWords,
    &kTintModeWords,       &kMaskChannelWords,    &kVisualStateWords,       &kPaletteRoleWords,
    &kBooleanWords,        &kWeightWords,         &kTintSwitchWords,
};

// As a skin's author might write a word: capitals, and separators where none stand in the table.
std::wstring disguised(std::string_view word)
{
    std::wstring text = L" ";
    for (const char c : word) {
        text += static_cast<wchar_t>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
        text += L"_- \t"[text.size() % 4];
    }
    return text;
}

TEST(Spellings, EveryWordIsReadInEverySpellingAndNamesOneValue)
{
    for (const Vocabulary* vocabulary : kVocabularies) {
        std::set<std::string> seen;
        for (const Spellings& row : vocabulary->rows) {
            anyWord(row.words, [&](std::string_view word) {
                EXPECT_TRUE(seen.emplace(word).second) << vocabulary->name << " spells twice " << word;
                EXPECT_EQ(parseWord(*vocabulary, widened(word)), row.value) << word;
                EXPECT_EQ(parseWord(*vocabulary, disguised(word)), row.value) << word;
                EXPECT_EQ(parseWord(*vocabulary, widened(word) + L"x"), std::nullopt) << word;
                EXPECT_EQ(parseWord(*vocabulary, widened(word) + L'\0'), std::nullopt) << word;
                return false;
            });
        }
        EXPECT_EQ(parseWord(*vocabulary, L""), std::nullopt) << vocabulary->name;
    }
}

template <typename Enum>
struct Meaning {
    std::wstring_view text;
    std::optional<Enum> value;
};

template <typename Enum, std::size_t kCount>
void expectMeanings(const Meaning<Enum> (&rows)[kCount])
{
    for (const Meaning<Enum>& row : rows)
        EXPECT_EQ(parseWord<Enum>(row.text), row.value) << narrowed(row.text);
}

TEST(Spellings, WordsMeanWhatSkinsExpect)
{
    expectMeanings<ShapeKind>({{L"round", ShapeKind::Pill},
                               {L"Rounded", ShapeKind::Pill},
                               {L"round-rect", ShapeKind::RoundedRect},
                               {L"win11-rounded", ShapeKind::RoundedRect},
                               {L"gem", ShapeKind::Diamond},
                               {L"cut_corner", ShapeKind::Bevel},
                               {L"parallelogram", ShapeKind::SlantRight},
                               {L"parallelogram-left", ShapeKind::SlantLeft},
                               {L"blob", {}}});
    expectMeanings<GradientDirection>({{L"Diagonal_Down", GradientDirection::DiagonalDown},
                                       {L"upleft", GradientDirection::DiagonalUpReverse},
                                       {L"down left", GradientDirection::DiagonalDownReverse},
                                       {L"right-to-left", GradientDirection::HorizontalLeft},
                                       {L"sideways", {}}});
    expectMeanings<MaterialPreset>({{L"AAA-glass", MaterialPreset::LayeredGlass},
                                    {L"matte", MaterialPreset::None},
                                    {L"zula", MaterialPreset::StoneGranite},
                                    {L"mramor", MaterialPreset::StoneMarble},
                                    {L"obsidian_3d", MaterialPreset::ObsidianRelief}});
    expectMeanings<MaterialFinish>({{L"cracred", MaterialFinish::Cracked},
                                    {L"wet", MaterialFinish::WetGloss},
                                    {L"flat", MaterialFinish::Matte}});
    expectMeanings<MappingSpace>({{L"tiled-global", MappingSpace::Global}, {L"rect", MappingSpace::Local}});
    expectMeanings<AlphaHitMode>({{L"bitmap_alpha_shape", AlphaHitMode::AlphaLayout},
                                  {L"mask-alpha-layout", AlphaHitMode::MaskLayout}});
    expectMeanings<TintMode>({{L"mul", TintMode::Colorize}, {L"color-stop", TintMode::PaletteMap}});
    expectMeanings<MaskChannel>({{L"value", MaskChannel::Brightness}});
    expectMeanings<VisualState>(
        {{L"hover", VisualState::Hot}, {L"down", VisualState::Pressed}, {L"checked", VisualState::Active}});
    EXPECT_EQ(surfaceModeFrom(L"flat"), SurfaceMode::Flat2d);
    EXPECT_EQ(surfaceModeFrom(L"Bitmap-Plates"), SurfaceMode::BitmapPlates);
    EXPECT_EQ(surfaceModeFrom(L"nonsense"), SurfaceMode::Sculpted3d);
    EXPECT_EQ(surfaceModeFrom(L""), SurfaceMode::Sculpted3d);
}

// The numbers are stored and compared, so they must not move.
TEST(Spellings, TablesListTheirValuesInOrder)
{
    const struct {
        const Vocabulary& vocabulary;
        std::size_t count;
    } rows[] = {
        {kSurfaceModeWords, 5},  {kShapeWords, 9},           {kGradientDirectionWords, 8},
        {kGradientKindWords, 5}, {kMaterialPresetWords, 19}, {kMaterialFinishWords, 11},
        {kMappingSpaceWords, 2}, {kAlphaHitModeWords, 4},    {kTintModeWords, 6},
        {kMaskChannelWords, 6},  {kVisualStateWords, 5},     {kPaletteRoleWords, 15},
    };
    for (const auto& row : rows) {
        ASSERT_EQ(row.vocabulary.rows.size(), row.count) << row.vocabulary.name;
        for (std::size_t i = 0; i < row.count; ++i)
            EXPECT_EQ(row.vocabulary.rows[i].value, i) << row.vocabulary.name;
    }
}

TEST(Spellings, OnlyCarvedGlassGemsAndStonesSwitchTheMaterialOn)
{
    for (int preset = 0; preset <= 18; ++preset)
        EXPECT_EQ(switchesMaterialOn(static_cast<MaterialPreset>(preset)), preset >= 11) << preset;
}

} // namespace
} // namespace vela
