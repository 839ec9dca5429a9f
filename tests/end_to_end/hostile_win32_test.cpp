// A setup runs with administrator rights out of a folder full of strangers' files.
#include "tests/end_to_end/setup_test_win32.h"
#include "tests/end_to_end/setup_window_win32.h"

#include <filesystem>

namespace end_to_end {
namespace {

class Hostile : public SetupTest {};

constexpr const wchar_t* kPlantable[] = {
    L"msi",     L"version",       L"dwmapi",         L"d3d11",          L"dwrite",        L"d2d1",
    L"msimg32", L"windowscodecs", L"d3dcompiler_47", L"d3dcompiler_46", L"d3dcompiler_43"};

TEST_F(Hostile, NothingPlantedBesideTheSetupOrInTheCurrentFolderIsLoaded)
{
    const std::wstring beside = std::wstring(kPlayground) + L"\\beside";
    const std::wstring current = std::wstring(kPlayground) + L"\\current";
    const std::wstring setup = beside + L"\\TamberSetup.exe";
    const std::wstring victim = beside + L"\\victim.exe";
    std::wstring nativeFirst = L"mscoree,mshtml=;winemenubuilder.exe=d";
    for (const std::wstring& folder : {beside, current}) {
        std::filesystem::create_directories(folder);
        for (const std::wstring name : kPlantable) {
            // Wine's own windowing maps version.dll by itself before the program's first instruction.
            if (name == L"version" && folder == beside)
                continue;
            copyFile(builtFile(L"planted.dll"), folder + L"\\" + name + L".dll");
            nativeFirst += L";" + name + L"=n,b";
        }
        copyFile(package(L"sample_package\\Tamber.exe"), folder + L"\\msiexec.exe");
    }
    copyFile(finishedSetup(), setup);
    copyFile(builtFile(L"victim.exe"), victim);
    // Wine prefers its own libraries unless told otherwise; Windows does not know the variable.
    const EnvironmentGuard overrides(L"WINEDLLOVERRIDES", nativeFirst);

    // A program without precautions falls for it: the trap works.
    EXPECT_EQ(Program(victim, L"", current).wait(), 0U);
    ASSERT_TRUE(exists(beside + L"\\dwmapi.dll.loaded"));
    std::filesystem::remove(beside + L"\\dwmapi.dll.loaded");

    for (const wchar_t* mode : {L"--install --quiet", L"--uninstall --quiet"})
        EXPECT_EQ(runSetup(mode, setup, current), 0U);
    const Program withWindows = startSetup(L"", setup, current);
    const SetupWindow choice(withWindows, kSetupTitle, installPlan());
    press(VK_ESCAPE);
    EXPECT_EQ(withWindows.wait(), 0U);
    for (const std::wstring& folder : {beside, current}) {
        for (const auto& file : std::filesystem::directory_iterator(folder))
            EXPECT_NE(file.path().extension(), L".loaded") << file.path();
    }
    for (const ApplicationStart& start : applicationStarts())
        EXPECT_EQ(start.commandLine.find(L"msiexec"), std::wstring::npos);
}

TEST_F(Hostile, ThePackageCannotBeChangedWhileTheSetupRuns)
{
    // The deaf application holds the setup up between the extraction and the installer.
    const Program application = startApplication(L"--deaf");
    const Program setup = startSetup(L"--install --quiet");
    const std::wstring extracted = runFile(L"Tamber.msi");
    ASSERT_TRUE(eventually([&] { return stepLog().find("pin package: ok") != std::string::npos; }));
    while (application.runs() && setup.runs()) {
        EXPECT_FALSE(canBeWritten(extracted));
        EXPECT_FALSE(::DeleteFileW(extracted.c_str()));
        EXPECT_FALSE(::MoveFileW(extracted.c_str(), (extracted + L".old").c_str()));
        ::Sleep(100);
    }
    EXPECT_EQ(setup.wait(), 0U);
    EXPECT_TRUE(canBeWritten(extracted)) << "the setup has let go of it";
}

TEST_F(Hostile, OddInstallFoldersGiveSuccessOrAMessage)
{
    const std::wstring playground = kPlayground;
    const std::wstring longName(120, L'd');
    const struct {
        std::wstring argument;
        std::wstring folder; // empty: no folder can have this name
        bool mustSucceed;
    } rows[] = {
        {inQuotes(playground + L"\\with some blanks"), playground + L"\\with some blanks", true},
        {inQuotes(playground + L"\\P\u0159\u00edli\u0161 \u017elu\u0165ou\u010dk\u00fd"),
         playground + L"\\P\u0159\u00edli\u0161 \u017elu\u0165ou\u010dk\u00fd", true},
        {inQuotes(playground + L"\\separators//\\\\"), playground + L"\\separators", true},
        {inQuotes(L"  " + playground + L"\\trimmed "), playground + L"\\trimmed", true},
        {L"\"  \"", kProductFolder, true},
        {inQuotes(playground + L"\\a\\\"b"), L"", false},
        {L"C:\\", L"C:", false},
        {inQuotes(playground + L"\\" + longName + L"\\" + longName + L"\\" + longName),
         playground + L"\\" + longName + L"\\" + longName + L"\\" + longName, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::PrintToString(row.argument));
        const DWORD exitCode = runSetup(L"--install --quiet --install-dir " + row.argument);
        EXPECT_TRUE(exitCode == 0 || (exitCode == 4 && !row.mustSucceed)) << exitCode << '\n' << stepLog();
        if (exitCode == 0) {
            EXPECT_TRUE(exists(L"\\\\?\\" + row.folder + L"\\Tamber.exe")) << stepLog();
            EXPECT_TRUE(exists(L"\\\\?\\" + row.folder + L"\\TamberSetup.exe")) << stepLog();
        } else {
            EXPECT_NE(stepLog().find(": failed, error "), std::string::npos) << stepLog();
        }
        EXPECT_EQ(runSetup(L"--uninstall --quiet"), 0U);
    }
    ::DeleteFileW(L"C:\\TamberSetup.exe");
}

TEST_F(Hostile, AFileInTheWayOfTheInstallFolderGivesAMessage)
{
    const std::wstring inTheWay = std::wstring(kPlayground) + L"\\file";
    writeFile(inTheWay, "in the way");
    EXPECT_EQ(runSetup(L"--install --quiet --install-dir " + inQuotes(inTheWay)), 4U);
    EXPECT_EQ(contents(inTheWay), "in the way");
}

TEST_F(Hostile, TempFoldersMayHaveAnyName)
{
    const std::wstring temp = std::wstring(kPlayground) + L"\\Do\u010dasn\u00e9 \u6e29\u5ea6 \U0001F525";
    std::filesystem::create_directories(temp);
    const EnvironmentGuard tmp(L"TMP", temp);
    EXPECT_EQ(runSetup(L"--install --quiet"), 0U);
    EXPECT_TRUE(runFile(L"install.log").starts_with(temp));
    EXPECT_FALSE(contents(runFile(L"install.log")).empty());
}

TEST_F(Hostile, ATempFolderThatIsNotThereGivesAMessage)
{
    const EnvironmentGuard tmp(L"TMP", std::wstring(kPlayground) + L"\\missing");
    EXPECT_EQ(runSetup(L"--install --quiet"), 4U);
    EXPECT_TRUE(installedProducts().empty());
}

} // namespace
} // namespace end_to_end
