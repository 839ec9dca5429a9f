// Runs that end early: what they report, and that they leave the machine as it was.
#include "app/run/identity.h"
#include "tests/end_to_end/setup_test_win32.h"

#include <filesystem>

namespace end_to_end {
namespace {

class Failure : public SetupTest {
protected:
    void expectNothingDone() const
    {
        EXPECT_EQ(installedProducts(), std::vector<std::wstring>());
        EXPECT_FALSE(exists(std::wstring(kProductFolder) + L"\\TamberSetup.exe"));
        EXPECT_FALSE(exists(startupShortcut()));
        EXPECT_TRUE(applicationStarts().empty());
    }

    // A run that has ended holds nothing: its files can be removed, the mutex is gone.
    void expectNothingHeld() const
    {
        for (const wchar_t* name : {L"Tamber.msi", L"install.log", L"uninstall.log", L"setup.log"})
            EXPECT_TRUE(!exists(runFile(name)) || canBeWritten(runFile(name)));
        const vela::OwnedKernelObject mutex(::OpenMutexW(SYNCHRONIZE, FALSE, setup::kMutexName.data()));
        EXPECT_FALSE(mutex);
    }
};

class FullDisk : public Failure {};

TEST_F(Failure, OfThePackageIsReportedBeforeAnythingIsChanged)
{
    const struct {
        const wchar_t* program;
        std::string_view failedStep;
        bool installerRan;
    } rows[] = {
        {L"setup_without_package.exe", "extract package: failed", false},
        {L"setup_with_empty_package.exe", "extract package: failed", false},
        {L"setup_with_corrupt_package.exe", "run installer: failed, error 16", true},
        {L"setup_with_failing_package.exe", "run installer: failed, error 1603", true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(row.program)));
        EXPECT_EQ(runSetup(L"--install --quiet --desktop", builtFile(row.program)), 4U);
        EXPECT_NE(stepLog().find(row.failedStep), std::string::npos) << stepLog();
        EXPECT_EQ(stepLog().find("run installer") != std::string::npos, row.installerRan);
        expectNothingDone();
        expectNothingHeld();
    }
}

TEST_F(Failure, OfTheVersionCheckStartsNoOldApplication)
{
    EXPECT_EQ(runSetup(L"--install --quiet --restart-app", builtFile(L"setup_with_old_version_package.exe")),
              4U);
    EXPECT_NE(stepLog().find("check installed version: failed"), std::string::npos) << stepLog();
    EXPECT_NE(stepLog().find(TAMBER_OLD_VERSION), std::string::npos) << stepLog();
    EXPECT_EQ(installedProducts().size(), 1U);
    EXPECT_TRUE(exists(startupShortcut()));
    EXPECT_TRUE(applicationStarts().empty());
    expectNothingHeld();
}

TEST_F(Failure, OfTheUninstallKeepsTheShortcuts)
{
    writeFile(startupShortcut(), "kept");
    ASSERT_EQ(runInstaller(L"/i " + inQuotes(package(L"clinging_package.msi"))), 0U);
    EXPECT_EQ(runSetup(L"--uninstall --quiet"), 5U);
    EXPECT_NE(stepLog().find("run installer: failed, error 1603"), std::string::npos) << stepLog();
    EXPECT_TRUE(exists(startupShortcut()));
    EXPECT_EQ(installedProducts().size(), 1U);
    expectNothingHeld();
}

// Runs by itself, under a limit on the size of files that stands for a full disk.
TEST_F(FullDisk, IsReportedAndNothingInstalled)
{
    if (!environmentVariable(L"TAMBER_TEST_FILES_ARE_LIMITED"))
        GTEST_SKIP() << "needs a limit on the size of files";
    EXPECT_EQ(runSetup(L"--install --quiet"), 4U);
    EXPECT_LT(contents(runFile(L"Tamber.msi")).size(), contents(package(L"sample_package.msi")).size());
    EXPECT_NE(stepLog().find("extract package: failed"), std::string::npos) << stepLog();
    expectNothingDone();
    expectNothingHeld();
}

TEST_F(Failure, OfTheCopyIsReportedAfterTheInstallerHasDoneItsWork)
{
    // A folder lies where the setup's copy should go.
    const std::wstring folder = std::wstring(kPlayground) + L"\\blocked";
    std::filesystem::create_directories(folder + L"\\TamberSetup.exe");
    EXPECT_EQ(runSetup(L"--install --quiet --install-dir " + inQuotes(folder)), 4U);
    EXPECT_NE(stepLog().find("copy setup: failed"), std::string::npos) << stepLog();
    EXPECT_EQ(installedProducts().size(), 1U);
    EXPECT_FALSE(exists(startupShortcut()));
    expectNothingHeld();
}

} // namespace
} // namespace end_to_end
