#include "tools/showcase/arguments.h"
#include "tools/showcase/commands.h"
#include "tools/showcase/file_watch.h"
#include "tools/showcase/skin_shelf.h"

#include "vela/theme/skins/skin_catalog.h"

#include <gtest/gtest.h>

namespace showcase {
namespace {

using vela::SkinDefinition;

std::optional<Arguments> parsed(std::vector<std::wstring_view> words) { return parseArguments(words); }

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

TEST(ShowcaseArgumentsTest, WordsAreToldByTheirForm)
{
    EXPECT_EQ(parsed({}), Arguments());
    const Arguments all{L"classic", L"a b/Harbour.JSON", 144};
    EXPECT_EQ(parsed({L"classic", L"a b/Harbour.JSON", L"144"}), all);
    EXPECT_EQ(parsed({L"144", L"a b/Harbour.JSON", L"classic"}), all);
    EXPECT_EQ(parsed({L"win11-light"})->skinId, L"win11-light");
}

TEST(ShowcaseArgumentsTest, WhatSaysNothingIsRefused)
{
    const std::vector<std::wstring_view> refused[] = {
        {L"--help"},      {L""},           {L"12"},          {L"9999"},
        {L"99999999999"}, {L"96", L"144"}, {L"one", L"two"}, {L"a.json", L"b.json"}};
    for (const auto& words : refused)
        EXPECT_FALSE(parsed(words)) << words.front().size();
}

TEST(ShowcaseFileWatchTest, AFileIsReadOnceItHasChangedAndRested)
{
    FileWatch watch;
    const FileStamp first{true, 100, 10};
    watch.markRead(first);
    EXPECT_FALSE(watch.tick(first));
    EXPECT_FALSE(watch.tick(first));
    EXPECT_FALSE(watch.tick({true, 101, 0})) << "its writer has just emptied it";
    EXPECT_FALSE(watch.tick({true, 102, 12}));
    EXPECT_TRUE(watch.tick({true, 102, 12}));
    EXPECT_TRUE(watch.tick({true, 102, 12})) << "it could not be read and is tried again";
    watch.markRead({true, 102, 12});
    EXPECT_FALSE(watch.tick({true, 102, 12}));
    EXPECT_FALSE(watch.tick({})) << "gone, perhaps to be renamed";
    EXPECT_TRUE(watch.tick({}));
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

TEST(ShowcaseCommandsTest, KeysReachTheirCommandsUnlessAFieldNeedsThem)
{
    const vela::KeyEvent right{vela::kKeyRight, {}};
    EXPECT_EQ(commandFor(right, false), Command::NextSkin);
    EXPECT_EQ(commandFor(right, true), std::nullopt);
    EXPECT_EQ(commandFor({vela::kKeyTab, {.control = true, .shift = true, .alt = false}}, true),
              Command::PreviousSkin);
    EXPECT_EQ(commandFor({vela::kKeyTab, {}}, false), std::nullopt) << "Tab moves the focus";
    EXPECT_EQ(commandFor({vela::kKeyF12, {}}, false), std::nullopt) << "F12 is the overlay's";
}

TEST(ShowcaseCommandsTest, StepsGoThroughTheScalesOfWindowsAndStopAtTheEnds)
{
    EXPECT_EQ(steppedDpi(96, true), 120);
    EXPECT_EQ(steppedDpi(100, true), 120);
    EXPECT_EQ(steppedDpi(100, false), 96);
    EXPECT_EQ(steppedDpi(96, false), 96);
    EXPECT_EQ(steppedDpi(480, true), 480);
}

} // namespace
} // namespace showcase
