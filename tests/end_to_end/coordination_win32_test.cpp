// Other processes: a second setup, the process to wait for, the running application.
#include "app/run/identity.h"
#include "tests/end_to_end/setup_test_win32.h"

namespace end_to_end {
namespace {

class Coordination : public SetupTest {};

TEST_F(Coordination, ASecondSetupLeavesAtOnce)
{
    const vela::OwnedKernelObject first(::CreateMutexW(nullptr, TRUE, setup::kMutexName.data()));
    ASSERT_TRUE(first);
    for (const wchar_t* mode : {L"--install --quiet", L"--uninstall --quiet", L"--quiet"})
        EXPECT_EQ(runSetup(mode), 0U);
    EXPECT_TRUE(installedProducts().empty());
    EXPECT_FALSE(exists(runFile(L"Tamber.msi")));
}

TEST_F(Coordination, WaitPidWaitsForALivingProcess)
{
    const Program updater = startApplication(L"--deaf", L"Updater.exe");
    const Program setup = startSetup(L"--install --quiet --wait-pid " + std::to_wstring(updater.id()));
    ::Sleep(1000); // long enough for a run that does not wait
    EXPECT_TRUE(installedProducts().empty());
    updater.terminate();
    EXPECT_EQ(setup.wait(), 0U);
    EXPECT_EQ(installedProducts().size(), 1U);
}

TEST_F(Coordination, WaitPidGoesOnWhenTheProcessStays)
{
    const Program updater = startApplication(L"--deaf", L"Updater.exe");
    EXPECT_EQ(runSetup(L"--install --quiet --wait-pid " + std::to_wstring(updater.id())), 0U);
    EXPECT_EQ(installedProducts().size(), 1U);
    EXPECT_TRUE(updater.runs());
    updater.terminate();
}

TEST_F(Coordination, WaitPidPassesOverWhatIsNoProcess)
{
    const Program ended = startApplication(L"", L"Updater.exe");
    ended.terminate();
    for (const std::wstring& id :
         {std::to_wstring(ended.id()), std::wstring(L"0"), std::wstring(L"4294967295"),
          std::wstring(L"99999999999999999999"), std::wstring(L"-1"), std::wstring(L"next"),
          std::wstring(L"\"\""), std::wstring()})
        EXPECT_EQ(runSetup(L"--install --quiet --wait-pid " + id), 0U);
}

TEST_F(Coordination, TheRunningApplicationIsClosedBeforeTheInstallerRuns)
{
    const struct {
        std::wstring_view options;
        bool closesItself;
    } rows[] = {{L"", true}, {L"--start-hidden", true}, {L"--windowless", false}, {L"--deaf", false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::PrintToString(std::wstring(row.options)));
        const Program application = startApplication(row.options);
        EXPECT_EQ(runSetup(L"--install --quiet"), 0U);
        EXPECT_EQ(application.wait(), 0U) << "whoever ends it, it ends with 0";
        EXPECT_EQ(applicationClosedItself(application.id()), row.closesItself);
        EXPECT_EQ(runSetup(L"--uninstall --quiet"), 0U); // closes the one that the install has started
        EXPECT_TRUE(processesNamed(L"Tamber.exe").empty());
    }
}

TEST_F(Coordination, ASetupNamedLikeTheApplicationDoesNotCloseItself)
{
    const std::wstring setup = std::wstring(kPlayground) + L"\\Tamber.exe";
    copyFile(finishedSetup(), setup);
    EXPECT_EQ(runSetup(L"--install --quiet", setup), 0U);
    EXPECT_EQ(installedProducts().size(), 1U);
}

} // namespace
} // namespace end_to_end
