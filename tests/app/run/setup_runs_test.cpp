#include "app/run/setup_runs.h"

#include "tests/app/recording_effects.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace setup {
namespace {

using test::Calls;
using test::RecordingEffects;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

const std::wstring kPackage = L"C:\\Temp\\TamberSetup-4242-Tamber.msi";
const std::wstring kInstallLog = L"C:\\Temp\\TamberSetup-4242-install.log";

// Every call of an install that starts with Windows and has no desktop shortcut, in order.
const Calls kInstallCalls = {
    L"extract C:\\Temp\\TamberSetup-4242-Tamber.msi",
    L"pin C:\\Temp\\TamberSetup-4242-Tamber.msi",
    L"processes",
    L"msiexec /i \"C:\\Temp\\TamberSetup-4242-Tamber.msi\" /qn /norestart INSTALLFOLDER=\"E:\\Apps\\Tamber\" "
    L"/L*v \"C:\\Temp\\TamberSetup-4242-install.log\"",
    L"unpin",
    L"create E:\\Apps\\Tamber",
    L"copy E:\\Apps\\Tamber\\TamberSetup.exe",
    L"link D:\\Startup\\Tamber.lnk",
    L"delete D:\\Desktop\\Tamber.lnk",
    L"notify",
    L"version E:\\Apps\\Tamber\\Tamber.exe",
    L"hidden \"E:\\Apps\\Tamber\\Tamber.exe\" --prepare-dev-toolchain --prepare-local-provider "
    L"--prefer-ollama "
    L"--pull-selected-model in E:\\Apps\\Tamber",
};

const InstallRequest kRequest{L" E:\\Apps\\Tamber\\ ", true, false};

TEST(InstallRun, GoesThroughItsStepsInOrder)
{
    RecordingEffects effects;
    const SetupActionResult result = runInstall(effects, kRequest);
    EXPECT_TRUE(result.success);
    EXPECT_EQ(result.exitCode, 0U);
    EXPECT_EQ(result.phase, L"install");
    EXPECT_EQ(result.logPath, kInstallLog);
    EXPECT_EQ(result.message, L"");
    EXPECT_THAT(effects.calls, ElementsAreArray(kInstallCalls));
}

struct InstallFault {
    std::wstring failingCall;
    WindowsError error;
    PackageFault packageFault;
    std::size_t callsMade; // of kInstallCalls, the failing one included
    bool success;
    std::uint32_t exitCode;
    std::wstring message;
};

const std::wstring kNotCopied =
    L"MSI probehlo, ale setup nedokazal zkopirovat TamberSetup.exe do instalacni slozky.";

const InstallFault kInstallFaults[] = {
    {L"extract", 1812, PackageFault::Absent, 1, false, 0,
     L"Setup nema vlozeny MSI balicek. Stahni setup znovu."},
    {L"extract", 13, PackageFault::Unreadable, 1, false, 0,
     L"Vlozeny MSI balicek nejde nacist. Stahni setup znovu."},
    {L"extract", 5, PackageFault::NotCreated, 1, false, 0,
     L"Setup nedokazal vytvorit docasny MSI soubor: " + kPackage},
    {L"extract", 112, PackageFault::NotWritten, 1, false, 0,
     L"Setup nedokazal zapsat cely docasny MSI soubor: " + kPackage},
    {L"pin", 1392, {}, 2, false, 0, L"Setup nedokazal zapsat cely docasny MSI soubor: " + kPackage},
    {L"msiexec",
     1603,
     {},
     5,
     false,
     1603,
     L"Windows Installer nahlasil obecne selhani. Nejcasto jde o zamceny soubor nebo blokaci bezpecnostnim "
     L"softwarem."},
    {L"msiexec",
     3010,
     {},
     5,
     false,
     3010,
     L"Zkontroluj MSI log uvedeny nize. Je to standardni Windows Installer log."},
    {L"msiexec",
     RecordingEffects::kErrorNotStarted,
     {},
     5,
     false,
     1223,
     L"Zkontroluj MSI log uvedeny nize. Je to standardni Windows Installer log."},
    {L"create", 183, {}, 6, false, 0, kNotCopied},
    {L"copy", 32, {}, 7, false, 0, kNotCopied},
    {L"link", 0x80070005, {}, 8, false, 0, L"Nepodarilo se nastavit spousteni Tambere s Windows."},
    {L"link", 1, {}, 12, true, 0, L""}, // S_FALSE is a success
    {L"delete", 3, {}, 9, false, 0, L"Nepodarilo se nastavit zastupce Tambere na plose."},
    {L"delete", 2, {}, 12, true, 0, L""}, // nothing to delete
    {L"version",
     1813,
     {},
     11,
     false,
     0,
     L"Instalace probehla, ale setup nedokazal overit verzi nainstalovaneho Tamber.exe: "
     L"E:\\Apps\\Tamber\\Tamber.exe"},
    {L"hidden", 740, {}, 12, true, 0, L""}, // not looked at
};

TEST(InstallRun, EndsAtTheFirstFailingStepWithItsMessage)
{
    for (const InstallFault& fault : kInstallFaults) {
        SCOPED_TRACE(testing::PrintToString(fault.failingCall) + " " + std::to_string(fault.error));
        RecordingEffects effects;
        effects.failingCall = fault.failingCall;
        effects.failure = fault.error;
        effects.packageFault = fault.packageFault;
        const SetupActionResult result = runInstall(effects, kRequest);
        EXPECT_EQ(result.success, fault.success);
        EXPECT_EQ(result.exitCode, fault.exitCode);
        EXPECT_EQ(result.message, fault.message);
        EXPECT_EQ(result.logPath, kInstallLog);
        EXPECT_THAT(effects.calls,
                    ElementsAreArray(kInstallCalls.begin(),
                                     kInstallCalls.begin() + static_cast<std::ptrdiff_t>(fault.callsMade)));
    }
}

TEST(InstallRun, EveryStepThatCanFailHasARowAbove)
{
    for (const std::wstring& call : kInstallCalls) {
        const bool cannotFail = call == L"processes" || call == L"unpin" || call == L"notify";
        const bool covered =
            std::any_of(std::begin(kInstallFaults), std::end(kInstallFaults),
                        [&](const InstallFault& row) { return call.starts_with(row.failingCall); });
        EXPECT_NE(cannotFail, covered) << testing::PrintToString(call);
    }
}

TEST(InstallRun, AnotherVersionInTheFolderIsNamedAndNotStarted)
{
    RecordingEffects effects;
    effects.installedVersion = ProductVersion{TAMBER_VERSION_NUMBERS, 5};
    const SetupActionResult result = runInstall(effects, kRequest);
    EXPECT_FALSE(result.success);
    const std::wstring version = L"" TAMBER_VERSION;
    EXPECT_EQ(result.message, L"Instalace probehla, ale nainstalovany Tamber.exe ma verzi " + version +
                                  L".5 misto ocekavane " + version +
                                  L". Setup nespusti starou aplikaci; spust instalaci znovu.");
    EXPECT_EQ(effects.calls.back(), L"version E:\\Apps\\Tamber\\Tamber.exe");
}

TEST(InstallRun, SetsTheShortcutsAsAsked)
{
    RecordingEffects effects;
    ASSERT_TRUE(runInstall(effects, {L"", false, true}).success);
    EXPECT_THAT(effects.calls, ::testing::IsSupersetOf({L"delete D:\\Startup\\Tamber.lnk"}));
    ASSERT_EQ(effects.links.size(), 1U);
    const ShellLink& link = effects.links.front();
    EXPECT_EQ(link.link, L"D:\\Desktop\\Tamber.lnk");
    EXPECT_EQ(link.target, L"C:\\Program Files\\Tamber\\Tamber.exe");
    EXPECT_EQ(link.workingFolder, L"C:\\Program Files\\Tamber");
    EXPECT_EQ(link.arguments, L"");
    EXPECT_EQ(link.description, L"Tamber personal local agent");

    RecordingEffects startup;
    startup.folders[KnownFolder::Startup].clear();
    ASSERT_TRUE(runInstall(startup, {L"C:\\", true, false}).success);
    EXPECT_EQ(startup.links.at(0).link,
              L"%APPDATA%\\Microsoft\\Windows\\Start Menu\\Programs\\Startup\\Tamber.lnk");
    EXPECT_EQ(startup.links.at(0).target, L"C:\\Tamber.exe");
    EXPECT_EQ(startup.links.at(0).workingFolder, L"C:\\");
    EXPECT_EQ(startup.links.at(0).arguments, L"--start-hidden");
}

TEST(InstallRun, LogsEachStepWithItsOutcome)
{
    RecordingEffects effects;
    effects.failingCall = L"link";
    effects.failure = 0x80070005;
    runInstall(effects, kRequest);
    EXPECT_THAT(effects.log,
                ElementsAre(L"extract package: ok (C:\\Temp\\TamberSetup-4242-Tamber.msi)",
                            L"pin package: ok", L"run installer: ok (" + kInstallCalls[3].substr(8) + L")",
                            L"create install folder: ok (E:\\Apps\\Tamber)", L"copy setup: ok",
                            L"startup shortcut: failed, error 0x80070005 (on)"));
}

const Calls kUninstallCalls = {
    L"processes",
    L"msiexec /x \"{A}\" /qn /norestart /L*v \"C:\\Temp\\TamberSetup-4242-uninstall.log\"",
    L"msiexec /x \"{B}\" /qn /norestart /L*v \"C:\\Temp\\TamberSetup-4242-uninstall.log\"",
    L"delete D:\\Startup\\Tamber.lnk",
    L"delete D:\\Desktop\\Tamber.lnk",
    L"notify",
};

TEST(UninstallRun, RemovesEveryProductThenTheShortcutsWhateverBecomesOfThem)
{
    for (const WindowsError error : {kNoError, WindowsError{5}}) {
        RecordingEffects effects;
        effects.products = {L"{A}", L"", L"{B}"}; // the one in the middle cannot be read
        effects.failingCall = L"delete";
        effects.failure = error;
        const SetupActionResult result = runUninstall(effects);
        EXPECT_TRUE(result.success);
        EXPECT_EQ(result.phase, L"uninstall");
        EXPECT_EQ(result.logPath, L"C:\\Temp\\TamberSetup-4242-uninstall.log");
        EXPECT_THAT(effects.calls, ElementsAreArray(kUninstallCalls));
    }
}

TEST(UninstallRun, EndsAtTheFirstProductThatStays)
{
    const struct {
        std::wstring failingCall;
        std::ptrdiff_t callsMade;
    } rows[] = {{L"msiexec /x \"{A}\"", 2}, {L"msiexec /x \"{B}\"", 3}};
    for (const auto& row : rows) {
        RecordingEffects effects;
        effects.products = {L"{A}", L"{B}"};
        effects.failingCall = row.failingCall;
        effects.failure = 1618;
        const SetupActionResult result = runUninstall(effects);
        EXPECT_FALSE(result.success);
        EXPECT_EQ(result.exitCode, 1618U);
        EXPECT_EQ(result.message,
                  L"Windows Installer prave obsluhuje jinou instalaci. Pockej a spust setup znovu.");
        EXPECT_THAT(effects.calls,
                    ElementsAreArray(kUninstallCalls.begin(), kUninstallCalls.begin() + row.callsMade));
    }
}

TEST(UninstallRun, SucceedsUntouchedWhenNothingIsInstalled)
{
    RecordingEffects effects;
    EXPECT_TRUE(runUninstall(effects).success);
    EXPECT_THAT(effects.calls, IsEmpty());
    EXPECT_THAT(effects.log, ElementsAre(L"find installed products: ok (0)"));

    effects.products.assign(100000, L""); // an installer that never says where its list ends
    EXPECT_TRUE(runUninstall(effects).success);
    EXPECT_THAT(effects.calls, IsEmpty());
}

} // namespace
} // namespace setup
