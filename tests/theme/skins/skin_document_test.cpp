#include "vela/theme/skins/skin_document.h"

#include "tests/support/skin_text.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

std::vector<std::wstring> idsOf(std::string_view text)
{
    JsonDocument document;
    EXPECT_TRUE(document.read(jsonText(text))) << text;
    std::vector<std::wstring> ids;
    for (const SkinDefinition& skin : skinsFromDocument(document.root()))
        ids.push_back(skin.id);
    return ids;
}

TEST(SkinDocument, AcceptsEveryKindOfRoot)
{
    using Ids = std::vector<std::wstring>;
    EXPECT_EQ(idsOf("{'skins': [{'id': 'a'}, 7, {'id': 'b'}]}"), (Ids{L"a", L"b"}));
    EXPECT_EQ(idsOf("{'skins': [], 'skin': {'id': 'a'}}"), Ids{});
    EXPECT_EQ(idsOf("{'skins': 1, 'skin': {'id': 'a'}, 'id': 'b'}"), Ids{L"a"});
    EXPECT_EQ(idsOf("{'skin': 'a', 'id': 'b'}"), Ids{});
    EXPECT_EQ(idsOf("{'id': 'b'}"), Ids{L"b"});
    EXPECT_EQ(idsOf("[{'id': 'a'}, [], {'id': 'b'}]"), (Ids{L"a", L"b"}));
    for (const char* root : {"null", "true", "3", "'id'"})
        EXPECT_EQ(idsOf(root), Ids{}) << root;
}

TEST(SkinDocument, ReadsTheTextKeysFromStringsOnly)
{
    const SkinDefinition skin =
        skinOf("{'id': 'a', 'name': 'A', 'description': 'about', 'category': 'gaming',"
               " 'harmony': 'triadic', 'tags': ['x', 5, 'y'], 'surfaceMode': 'Bitmap'}");
    EXPECT_EQ(skin.id, L"a");
    EXPECT_EQ(skin.name, L"A");
    EXPECT_EQ(skin.description, L"about");
    EXPECT_EQ(skin.category, L"gaming");
    EXPECT_EQ(skin.harmony, L"triadic");
    EXPECT_EQ(skin.tags, (std::vector<std::wstring>{L"x", L"y"}));
    EXPECT_EQ(skin.surfaceMode, L"Bitmap");
    EXPECT_EQ(skin.theme.surfaceMode, SurfaceMode::BitmapPlates);
    EXPECT_EQ(skin.source, kExternalSource);

    const SkinDefinition bare =
        skinOf("{'id': 7, 'name': null, 'category': [], 'surface_mode': 3, 'tags': 'x'}");
    EXPECT_EQ(bare.id, L"");
    EXPECT_EQ(bare.name, L"");
    EXPECT_EQ(bare.category, kCustomCategory);
    EXPECT_TRUE(bare.tags.empty());
    EXPECT_EQ(bare.theme, Theme{});
    EXPECT_TRUE(bare.sections.empty());
}

TEST(SkinDocument, OnlyPresentKeysChangeTheTheme)
{
    EXPECT_EQ(skinOf("{'id': 'a'}").theme, Theme{});
    EXPECT_EQ(skinOf("{'surface_mode': 'nonsense'}").theme.surfaceMode, SurfaceMode::Sculpted3d);

    Theme expected;
    expected.controlHot = rgb(1, 2, 3);
    expected.disabledFill = rgb(255, 0, 0);
    expected.uiFont.family = L"Exo 2";
    expected.uiFont.pointSize = 12;
    expected.uiFont.weight = 650;
    expected.monoFont.weight = 700;
    expected.materials.control = MaterialPreset::LayeredGlass;
    expected.materials.roughness = 5;
    expected.materials.finish = MaterialFinish::Etched;
    EXPECT_EQ(
        skinOf("{'theme': {'controlHot': [1, 2, 3], 'disabled_fill': '#FF0000', 'ui_font_family': 'Exo 2',"
               " 'uiPointSize': 12, 'ui_weight': 650, 'mono_weight': 'bold', 'header': '#12', 'text': true},"
               " 'material_profile': {'controls': 'layered_glass', 'roughness': '5'},"
               " 'materials': {'finish': 'etched', 'roughness': 4}}")
            .theme,
        expected);
}

TEST(SkinDocument, AValueThatIsNoObjectLeavesTheDefinitionAlone)
{
    JsonDocument document;
    ASSERT_TRUE(document.read(L"[{}]"));
    SkinDefinition skin;
    skin.id = L"kept";
    EXPECT_FALSE(readSkin(document.root(), skin));
    EXPECT_EQ(skin.id, L"kept");
    EXPECT_EQ(skin.source, L"");
}

} // namespace
} // namespace vela
