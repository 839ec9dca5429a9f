#include "vela/theme/skins/skin_catalog.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace vela {
namespace {

// Folders and files in memory; a file without content cannot be opened.
class FakeHost : public SkinHost {
public:
    struct File {
        std::wstring name;
        std::optional<std::string> bytes;
    };

    std::vector<std::wstring> fileNames(const std::wstring& folder) override
    {
        std::vector<std::wstring> names;
        for (const File& file : folders[folder])
            names.push_back(file.name);
        return names;
    }

    std::optional<std::string> readFile(const std::wstring& path, std::size_t limit) override
    {
        for (const auto& [folder, files] : folders) {
            for (const File& file : files) {
                if (folder + L'\\' + file.name == path && file.bytes && file.bytes->size() <= limit)
                    return file.bytes;
            }
        }
        return std::nullopt;
    }

    std::optional<std::uint32_t> appsUseLightTheme() override { return lightTheme; }
    std::optional<SystemColors> highContrastColors() override { return contrastColors; }

    std::map<std::wstring, std::vector<File>> folders;
    std::optional<std::uint32_t> lightTheme;
    std::optional<SystemColors> contrastColors;
};

std::string skin(const std::string& id, const std::string& name)
{
    return R"({"id": ")" + id + R"(", "name": ")" + name + R"("})";
}

std::vector<std::wstring> names(const std::vector<SkinDefinition>& skins)
{
    std::vector<std::wstring> result;
    for (const SkinDefinition& definition : skins)
        result.push_back(definition.name);
    return result;
}

using Names = std::vector<std::wstring>;

TEST(SkinFiles, AreThoseWithTheJsonExtension)
{
    const struct {
        std::wstring_view name;
        bool expected;
    } rows[] = {
        {L"a.json", true},   {L"A.JSON", true},      {L"a.b.Json", true}, {L".json", false}, {L"json", false},
        {L"a.jsonx", false}, {L"a.json.txt", false}, {L"a.json ", false}, {L"", false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(isSkinFileName(row.name), row.expected) << std::string(row.name.begin(), row.name.end());
}

TEST(SkinFiles, ABadFileCostsOnlyItself)
{
    const std::string padding(kMaxSkinFileSize, ' ');
    const std::string whole = skin("w", "just small enough");
    FakeHost host;
    host.folders[L"C:\\skins"] = {
        {L"z.json", R"({"skins": [)" + skin("a", "first") + ", 7, " + skin("b", "second") + "]}"},
        {L"unreadable.json", std::nullopt},
        {L"truncated.json", R"({"skins": [)" + skin("c", "lost")},
        {L"notes.txt", skin("d", "not a skin file")},
        {L"empty.json", ""},
        {L"whole.json", whole + padding.substr(whole.size())},
        {L"huge.json", skin("h", "too large") + padding},
        {L"mark.JSON", "\xEF\xBB\xBF" + skin("m", "with a mark, \xC3\xA9")},
        {L"number.json", "12"},
    };
    EXPECT_EQ(names(loadSkinsFromFolder(host, L"C:\\skins")),
              (Names{L"first", L"second", L"just small enough", L"with a mark, \u00e9"}));
    EXPECT_TRUE(loadSkinsFromFolder(host, L"C:\\missing").empty());
}

TEST(SkinFiles, AHostileFileYieldsABoundedNumberOfSkins)
{
    std::string bytes = "[{}";
    for (std::size_t i = 0; i < 10 * kMaxSkinsPerArray; ++i)
        bytes += ",{}";
    FakeHost host;
    host.folders[L"f"] = {{L"a.json", bytes + "]"}};
    EXPECT_EQ(loadSkinsFromFolder(host, L"f").size(), kMaxSkinsPerArray);
}

TEST(SkinCatalog, ResolvesTheAutomaticIdsAtEachRequest)
{
    FakeHost host;
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
    FakeHost host;
    host.folders[L"user"] = {{L"1.json", skin("Classic", "the user's")}};
    host.folders[L"ours"] = {
        {L"2.json", "[" + skin("classic", "ours") + "," + skin("other", "other") + "]"},
        {L"3.json", "[" + skin("win11-auto", "auto") + "," + skin("win11-light", "light") + "," +
                        skin("win11-dark", "dark") + "," + skin("other", "second other") + "]"},
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
    FakeHost host;
    const SkinCatalog catalog(host, std::vector<std::wstring>{L"missing"});
    EXPECT_EQ(&catalog.find(L"classic"), &builtInSkin());
    EXPECT_EQ(&catalog.find(L"win11-auto"), &builtInSkin());
    EXPECT_EQ(builtInSkin().theme, Theme());
    EXPECT_TRUE(builtInSkin().id.empty());
}

TEST(SkinCatalog, StylesFollowTheSystem)
{
    FakeHost host;
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
