#include "tests/end_to_end/setup_test_win32.h"

#include <filesystem>

#include <shlobj.h>

namespace end_to_end {
namespace {

void endApplications()
{
    for (const DWORD id : processesNamed(L"Tamber.exe")) {
        const vela::OwnedKernelObject process(::OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, id));
        ::TerminateProcess(process.get(), 0);
        ::WaitForSingleObject(process.get(), INFINITE);
    }
}

std::wstring tempFolder()
{
    std::wstring path(MAX_PATH + 1, L'\0');
    path.resize(::GetTempPathW(MAX_PATH + 1, path.data()));
    return path;
}

// A setup leaves its logs behind, and its process id comes round again.
void removeRunFiles()
{
    for (const auto& file : std::filesystem::directory_iterator(tempFolder())) {
        if (file.path().filename().wstring().starts_with(L"TamberSetup-"))
            removeTree(file.path());
    }
}

void removeEverything()
{
    endApplications();
    for (const std::wstring& code : installedProducts())
        EXPECT_EQ(runInstaller(L"/x " + code + L" LETGO=1"), 0U);
    removeRunFiles();
    removeTree(kProductFolder);
    removeTree(kPlayground);
    removeTree(knownFolder(FOLDERID_LocalAppData) + L"\\Tamber");
    ::DeleteFileW(startupShortcut().c_str());
    ::DeleteFileW(desktopShortcut().c_str());
}

} // namespace

void SetupTest::SetUp()
{
    // Under Wine a desktop that nobody uses is taken down, and starts anew for every program that has a
    // window.
    ::GetDesktopWindow();
    removeEverything();
    std::filesystem::create_directories(kPlayground);
}

void SetupTest::TearDown() { removeEverything(); }

Program SetupTest::startSetup(std::wstring_view arguments, const std::wstring& program,
                              const std::wstring& currentFolder)
{
    Program setup(program, arguments, currentFolder);
    lastRun_ = setup.id();
    return setup;
}

DWORD SetupTest::runSetup(std::wstring_view arguments, const std::wstring& program,
                          const std::wstring& currentFolder)
{
    const bool skinsBefore = exists(skinsFile());
    const Program setup = startSetup(arguments, program, currentFolder);
    while (!setup.endsWithin(10)) {
        if (!visibleWindows(setup.id()).empty()) {
            ADD_FAILURE() << "a quiet setup shows a window";
            setup.terminate();
        }
    }
    EXPECT_EQ(exists(skinsFile()), skinsBefore) << "a setup without windows needs no skins";
    return setup.wait();
}

std::wstring SetupTest::skinsFile()
{
    return knownFolder(FOLDERID_LocalAppData) + L"\\Tamber\\setup-skins\\00-vela-default-skins.json";
}

std::wstring SetupTest::runFile(std::wstring_view name) const
{
    return tempFolder().append(L"TamberSetup-").append(std::to_wstring(lastRun_)).append(L"-").append(name);
}

Program SetupTest::startApplication(std::wstring_view options, std::wstring_view fileName)
{
    const std::wstring path = std::wstring(kPlayground).append(L"\\").append(fileName);
    copyFile(package(L"sample_package\\Tamber.exe"), path);
    Program application(path, options);
    const bool windowless = options.find(L"--windowless") != std::wstring_view::npos;
    EXPECT_TRUE(eventually(
        [&] { return windowless ? !applicationStarts().empty() : !windowsOf(application.id()).empty(); }));
    return application;
}

} // namespace end_to_end
