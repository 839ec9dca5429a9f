// What a silent install leaves behind, and what a silent uninstall takes away again.
#include "tests/end_to_end/setup_test_win32.h"

#include <shlobj.h>

namespace end_to_end {
namespace {

class Install : public SetupTest {};
class Uninstall : public SetupTest {};

const std::wstring kApplication = std::wstring(kProductFolder) + L"\\Tamber.exe";
const std::wstring kSetupCopy = std::wstring(kProductFolder) + L"\\TamberSetup.exe";
const std::vector<std::wstring> kSampleOnly{kSampleProduct};
const std::vector<std::wstring> kNothing;

std::wstring backgroundStart(const std::wstring& application)
{
    return inQuotes(application) +
           L" --prepare-dev-toolchain --prepare-local-provider --prefer-ollama --pull-selected-model";
}

// The start in the background is not waited for by the setup.
std::vector<ApplicationStart> startsOnceThereAre(std::size_t count)
{
    EXPECT_TRUE(eventually([=] { return applicationStarts().size() >= count; }));
    return applicationStarts();
}

TEST_F(Install, PutsEverythingInPlace)
{
    ASSERT_EQ(runSetup(L"--install --quiet"), 0U);
    EXPECT_EQ(installedProducts(), kSampleOnly);
    EXPECT_EQ(contents(kApplication), contents(package(L"sample_package\\Tamber.exe")));
    EXPECT_EQ(contents(kSetupCopy), contents(finishedSetup()));
    EXPECT_EQ(contents(runFile(L"Tamber.msi")), contents(package(L"sample_package.msi")));
    EXPECT_FALSE(contents(runFile(L"install.log")).empty());
    EXPECT_NE(stepLog().find("copy setup: ok"), std::string::npos);

    const std::vector<ApplicationStart> starts = startsOnceThereAre(1);
    ASSERT_EQ(starts.size(), 1U);
    EXPECT_EQ(starts[0].commandLine, backgroundStart(kApplication));
    EXPECT_EQ(starts[0].showCommand, SW_HIDE);
}

TEST_F(Install, WritesShortcutsThatTheShellUnderstands)
{
    ASSERT_EQ(runSetup(L"--install --quiet --desktop"), 0U);
    const Shortcut desktop{kApplication, L"", kProductFolder, L"Tamber personal local agent",
                           kApplication, 0};
    Shortcut startup = desktop;
    startup.arguments = L"--start-hidden";
    EXPECT_EQ(readShortcut(startupShortcut()), startup);
    EXPECT_EQ(readShortcut(desktopShortcut()), desktop);
}

TEST_F(Install, ReinstallKeepsTheChoicesThatItsOptionsDoNotChange)
{
    // One after the other on the same machine, so that each row starts with what the one before it left.
    const struct {
        std::wstring_view options;
        bool startup;
        bool desktop;
    } rows[] = {
        {L"--install --quiet", true, false}, // the first install
        {L"--install --quiet", true, false},
        {L"--install --quiet --desktop", true, true},
        {L"--INSTALL --Quiet --No-Startup", false, true},
        {L"--quiet --install", false, true},
        {L"--install --uninstall --quiet --unheard-of", false, true}, // installing wins
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(row.options)));
        EXPECT_EQ(runSetup(row.options), 0U);
        EXPECT_EQ(installedProducts(), kSampleOnly);
        EXPECT_EQ(exists(startupShortcut()), row.startup);
        EXPECT_EQ(exists(desktopShortcut()), row.desktop);
    }
    ::DeleteFileW(desktopShortcut().c_str());
    EXPECT_EQ(runSetup(L"--install --quiet"), 0U);
    EXPECT_FALSE(exists(desktopShortcut()));
}

TEST_F(Install, RestartAppOpensTheApplicationVisiblyAfterTheBackgroundStart)
{
    ASSERT_EQ(runSetup(L"--install --quiet --restart-app"), 0U);
    std::vector<ApplicationStart> starts = startsOnceThereAre(2);
    ASSERT_EQ(starts.size(), 2U);
    if (starts[0].showCommand != SW_HIDE)
        std::swap(starts[0], starts[1]); // both run at once, and the second may write first
    EXPECT_EQ(starts[0].commandLine, backgroundStart(kApplication));
    EXPECT_EQ(starts[0].showCommand, SW_HIDE);
    EXPECT_EQ(starts[1].showCommand, SW_SHOWNORMAL);
    EXPECT_EQ(starts[1].commandLine.find(L"--"), std::wstring::npos);
    EXPECT_TRUE(starts[1].commandLine.starts_with(inQuotes(kApplication)));
}

TEST_F(Install, RunsFromTheInstallFolderItself)
{
    ASSERT_EQ(runSetup(L"--install --quiet"), 0U);
    // Under another spelling of the same path it is still the same file.
    for (const wchar_t* setup :
         {L"C:\\Program Files\\Tamber\\TamberSetup.exe", L"C:\\PROGRA~1\\tamber\\TAMBERSETUP.EXE"}) {
        if (!exists(setup))
            continue;
        EXPECT_EQ(runSetup(L"--install --quiet", setup), 0U);
        EXPECT_EQ(contents(kSetupCopy), contents(finishedSetup()));
    }
}

TEST_F(Uninstall, RemovesTheProductFromWhereItWasPut)
{
    const std::wstring folder = std::wstring(kPlayground) + L"\\elsewhere";
    ASSERT_EQ(runSetup(L"--install --quiet --desktop --install-dir " + inQuotes(folder)), 0U);
    ASSERT_TRUE(exists(folder + L"\\Tamber.exe"));
    EXPECT_FALSE(exists(kProductFolder));

    ASSERT_EQ(runSetup(L"--uninstall --quiet"), 0U);
    EXPECT_EQ(installedProducts(), kNothing);
    EXPECT_FALSE(exists(folder + L"\\Tamber.exe"));
    EXPECT_TRUE(exists(folder + L"\\TamberSetup.exe")) << "the setup's own copy stays";
    EXPECT_FALSE(exists(startupShortcut()));
    EXPECT_FALSE(exists(desktopShortcut()));
    EXPECT_FALSE(contents(runFile(L"uninstall.log")).empty());
}

TEST_F(Uninstall, RemovesEveryProductOfTheFamily)
{
    ASSERT_EQ(runSetup(L"--install --quiet"), 0U);
    ASSERT_EQ(runInstaller(L"/i " + inQuotes(package(L"second_product_package.msi"))), 0U);
    ASSERT_EQ(installedProducts().size(), 2U);
    EXPECT_EQ(runSetup(L"--uninstall --quiet"), 0U);
    EXPECT_EQ(installedProducts(), kNothing);
    EXPECT_FALSE(exists(kApplication));
}

TEST_F(Uninstall, TouchesNothingWhenNothingIsInstalled)
{
    writeFile(startupShortcut(), "somebody else's");
    const Program application = startApplication(L"");
    EXPECT_EQ(runSetup(L"--uninstall --quiet --desktop --install-dir C:\\"), 0U);
    EXPECT_TRUE(exists(startupShortcut()));
    EXPECT_TRUE(application.runs());
    EXPECT_FALSE(exists(runFile(L"uninstall.log")));
}

} // namespace
} // namespace end_to_end
