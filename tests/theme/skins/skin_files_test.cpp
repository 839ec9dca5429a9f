#include "vela/theme/skins/skin_files.h"

#include "tests/theme/skins/fake_skin_host.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

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
    const std::string whole = jsonOf("w", "just small enough");
    FakeSkinHost host;
    host.folders[L"C:\\skins"] = {
        {L"z.json", R"({"skins": [)" + jsonOf("a", "first") + ", 7, " + jsonOf("b", "second") + "]}"},
        {L"unreadable.json", std::nullopt},
        {L"truncated.json", R"({"skins": [)" + jsonOf("c", "lost")},
        {L"notes.txt", jsonOf("d", "not a skin file")},
        {L"empty.json", ""},
        {L"whole.json", whole + padding.substr(whole.size())},
        {L"huge.json", jsonOf("h", "too large") + padding},
        {L"mark.JSON", "\xEF\xBB\xBF" + jsonOf("m", "with a mark, \xC3\xA9")},
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
    FakeSkinHost host;
    host.folders[L"f"] = {{L"a.json", bytes + "]"}};
    EXPECT_EQ(loadSkinsFromFolder(host, L"f").size(), kMaxSkinsPerArray);
}

} // namespace
} // namespace vela
