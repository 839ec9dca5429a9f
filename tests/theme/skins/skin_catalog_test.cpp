#include "vela/theme/skins/skin_catalog.h"

#include "tests/theme/skins/fake_skin_host.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace vela {
namespace {

TEST(SkinCatalog, ResolvesTheAutomaticIdsAtEachRequest)
{
    FakeSkinHost host;
    const struct {
        std::optional<std::uint32_t> lightTheme;
        std::wstring_view id;
    } choices[] = {{std::nullopt, L"win11-light"},
                   {0, L"win11-dark"},
                   {1, L"win11-light"},
                   {0xFFFFFFFF, L"win11-light"}};
    for (const auto& choice : choices) {
        host.lightTheme = choice.lightTheme;
        for (const std::wstring_view id : {L"win11-auto", L"windows-11-auto", L"Windows11-AUTO"})
            EXPECT_EQ(resolveSkinId(id, host), choice.id);
    }
    for (const auto& [requested, resolved] : {std::pair{L"Classic", L"classic"},
                                              {L" win11-auto", L" win11-auto"},
                                              {L"win11_auto", L"win11_auto"},
                                              {L"", L""}})
        EXPECT_EQ(resolveSkinId(requested, host), resolved);
}

TEST(SkinCatalog, FindsTheFirstSkinOfAnIdOrTheBuiltInOne)
{
    FakeSkinHost host;
    host.folders[L"user"] = {{L"1.json", jsonOf("Classic", "the user's")}};
    host.folders[L"ours"] = {
        {L"2.json", "[" + jsonOf("classic", "ours") + "," + jsonOf("other", "other") + "]"},
        {L"3.json", "[" + jsonOf("win11-auto", "auto") + "," + jsonOf("win11-light", "light") + "," +
                        jsonOf("win11-dark", "dark") + "," + jsonOf("other", "second other") + "]"},
    };
    const std::vector<std::wstring> folders{L"user", L"missing", L"ours"};
    const SkinCatalog catalog(host, folders);
    EXPECT_EQ(catalog.skins().size(), 7U);
    const struct {
        std::wstring_view id;
        std::wstring_view name;
    } rows[] = {
        {L"classic", L"the user's"}, {L"CLASSIC", L"the user's"}, {L"other", L"other"}, {L" other", L""},
        {L"win11-auto", L"light"},   {L"Win11-Dark", L"dark"},    {L"unknown", L""},    {L"", L""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(catalog.find(row.id).name, row.name) << std::string(row.id.begin(), row.id.end());
    host.lightTheme = 0;
    EXPECT_EQ(catalog.find(L"windows11-auto").name, L"dark");
    EXPECT_EQ(findSkin(catalog.skins(), L"WIN11-auto")->name, L"auto");
    EXPECT_EQ(findSkin(catalog.skins(), L"windows-11-auto"), nullptr);
}

TEST(SkinCatalog, WithoutSkinsGivesTheBuiltInOne)
{
    FakeSkinHost host;
    const SkinCatalog catalog(host, std::vector<std::wstring>{L"missing"});
    EXPECT_EQ(&catalog.find(L"classic"), &builtInSkin());
    EXPECT_EQ(&catalog.find(L"win11-auto"), &builtInSkin());
    EXPECT_EQ(builtInSkin().theme, Theme());
    EXPECT_TRUE(builtInSkin().id.empty());
}

TEST(SkinCatalog, StylesFollowTheSystem)
{
    FakeSkinHost host;
    host.folders[L"f"] = {{L"a.json", R"({"skins": [
        {"id": "win11-light", "theme": {"text": "#000000", "panel": "#FFFFFF"}},
        {"id": "win11-dark", "theme": {"text": "#FFFFFF", "panel": "#000000"}}]})"}};
    const std::wstring folders[] = {L"f"};
    const SkinCatalog catalog(host, folders);
    const auto textColor = [&] {
        return styleSheetFor(catalog.find(L"win11-auto"), host).find<TextStyle>(L"default").color;
    };
    EXPECT_EQ(textColor(), hexColor(0x000000));
    host.lightTheme = 0;
    EXPECT_EQ(textColor(), hexColor(0xFFFFFF));
    host.contrastColors = SystemColors{.windowText = hexColor(0xFFFF00)};
    EXPECT_EQ(textColor(), hexColor(0xFFFF00));
}

} // namespace
} // namespace vela
