#include "tools/showcase/skin_shelf.h"

#include "vela/theme/skins/skin_catalog.h"

#include <gtest/gtest.h>

namespace showcase {
namespace {

using vela::SkinDefinition;

SkinDefinition named(std::wstring id)
{
    SkinDefinition skin;
    skin.id = std::move(id);
    return skin;
}

std::string fileWith(std::string_view shell)
{
    return R"({"id": "harbour", "theme": {"shell": ")" + std::string(shell) + "\"}}";
}

TEST(ShowcaseSkinShelfTest, TheLastGoodLookStaysWhileTheFileIsWrong)
{
    SkinShelf shelf("harbour.json", {});
    EXPECT_TRUE(shelf.read(fileWith("#0B1620")));
    const vela::Color good = shelf.skin().theme.shell;
    EXPECT_EQ(good, vela::hexColor(0x0B1620));
    EXPECT_TRUE(shelf.isCurrent());
    EXPECT_TRUE(shelf.lines().empty());

    const struct {
        std::optional<std::string> bytes;
        std::wstring_view line;
    } wrong[] = {{fileWith("#FFF"), L"harbour.json:1:38: error: \"#FFF\" is not a colour"},
                 {"{\"id\": ", L"harbour.json:1:8: error: not JSON"},
                 {"", L"harbour.json:1:1: error: not JSON"},
                 {"[]", L"harbour.json:1:1: error: there is no skin"},
                 {std::nullopt, L"harbour.json:1:1: error: the file cannot be read"}};
    for (const auto& [bytes, line] : wrong) {
        EXPECT_FALSE(shelf.read(bytes));
        EXPECT_FALSE(shelf.isCurrent());
        EXPECT_EQ(shelf.skin().theme.shell, good);
        ASSERT_FALSE(shelf.lines().empty());
        EXPECT_EQ(shelf.lines().front().substr(0, line.size()), line);
    }
    EXPECT_TRUE(shelf.read(fileWith("#102030")));
    EXPECT_TRUE(shelf.isCurrent());
    EXPECT_EQ(shelf.skin().theme.shell, vela::hexColor(0x102030));
}

TEST(ShowcaseSkinShelfTest, AWarningIsToldButTheLookIsShown)
{
    SkinShelf shelf("harbour.json", {});
    EXPECT_TRUE(shelf.read(R"({"id": "harbour", "styles": {"text_input": {"default": {
        "text": {"color": "#777777"}, "surface": {"fill": "#808080", "useGradient": false}}}}})"));
    EXPECT_TRUE(shelf.isCurrent());
    EXPECT_NE(shelf.lines().front().find(L"warning: the contrast"), std::wstring::npos);
}

TEST(ShowcaseSkinShelfTest, AFileThatNeverWasInOrderIsShownAsTheProgramWould)
{
    SkinShelf shelf("harbour.json", {});
    EXPECT_EQ(shelf.skin().id, vela::builtInSkin().id);
    EXPECT_TRUE(shelf.read(R"({"id": "harbour", "theme": {"shell": "#0B1620", "bordr": "#FFFFFF"}})"));
    EXPECT_FALSE(shelf.isCurrent());
    EXPECT_EQ(shelf.skin().id, L"harbour");
}

TEST(ShowcaseSkinShelfTest, TheCurrentSkinStaysWhenTheFileIsWrittenAgain)
{
    SkinShelf shelf("both.json", {});
    EXPECT_TRUE(shelf.read(R"([{"id": "one"}, {"id": "two"}])"));
    EXPECT_TRUE(shelf.choose(L"TWO"));
    EXPECT_TRUE(shelf.read(R"([{"id": "zero"}, {"id": "one"}, {"id": "two", "name": "Second"}])"));
    EXPECT_EQ(shelf.skin().name, L"Second");
    EXPECT_FALSE(shelf.choose(L"three"));
    EXPECT_TRUE(shelf.read(R"([{"id": "zero"}])"));
    EXPECT_EQ(shelf.skin().id, L"zero");
}

TEST(ShowcaseSkinShelfTest, TheFilesSkinsComeFirstAndWinOverTheCatalogues)
{
    std::vector<SkinDefinition> catalogue;
    catalogue.push_back(named(L"classic"));
    catalogue.push_back(named(L"harbour"));
    SkinShelf shelf("harbour.json", std::move(catalogue));
    EXPECT_TRUE(shelf.read(fileWith("#0B1620")));
    ASSERT_EQ(shelf.skins().size(), 2U);
    EXPECT_EQ(shelf.skin().id, L"harbour");
    EXPECT_TRUE(shelf.showsFile());
    shelf.step(1);
    EXPECT_EQ(shelf.skin().id, L"classic");
    EXPECT_FALSE(shelf.showsFile());
    shelf.step(1);
    shelf.step(-1);
    EXPECT_EQ(shelf.skin().id, L"classic");
}

} // namespace
} // namespace showcase
