#include "app/run/paths.h"
#include "app/windows/file_copy_win32.h"
#include "app/windows/process_win32.h"
#include "app/windows/reachable_path_win32.h"
#include "app/windows/setup_effects_win32.h"

#include <gtest/gtest.h>

namespace setup {
namespace {

// A folder of its own below the temporary one, with a name that no single code page can spell. Only the
// folder itself is removed in the end: each test removes what it made in it.
class Files : public testing::Test {
protected:
    Files()
        : folder_(joinPath(effects_.tempFolder(),
                           L"Tamber t\u011bst \u4e2d " + std::to_wstring(::GetCurrentProcessId())))
    {
        EXPECT_EQ(effects_.createFolders(folder_), kNoError);
    }
    void TearDown() override { EXPECT_TRUE(::RemoveDirectoryW(folder_.c_str())) << "a test left something"; }

    std::wstring in(std::wstring_view name) const { return joinPath(folder_, name); }

    static void write(const std::wstring& path, std::string_view text)
    {
        const vela::OwnedFile file(
            ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        DWORD written = 0;
        ASSERT_TRUE(::WriteFile(file.get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr));
    }

    static std::string read(const std::wstring& path)
    {
        const vela::OwnedFile file(
            ::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
        std::string text(64, '\0');
        DWORD got = 0;
        ::ReadFile(file.get(), text.data(), static_cast<DWORD>(text.size()), &got, nullptr);
        text.resize(got);
        return text;
    }

    WindowsEffects effects_{nullptr}; // the test program itself: no package in it
    const std::wstring folder_;
};

TEST_F(Files, FoldersAreCreatedWithTheirParentsAtAnyLength)
{
    std::vector<std::wstring> levels{folder_};
    while (levels.back().size() < 400)
        levels.push_back(joinPath(levels.back(), std::wstring(60, L'\u017e')));
    EXPECT_EQ(effects_.createFolders(levels.back()), kNoError);
    EXPECT_EQ(effects_.createFolders(levels.back()), kNoError) << "a folder that is there is fine";

    const std::wstring source = in(L"source");
    const std::wstring target = joinPath(levels.back(), L"target");
    write(source, "bytes");
    EXPECT_EQ(copyFileOver(source, target), kNoError);
    EXPECT_TRUE(effects_.fileExists(target));
    EXPECT_EQ(effects_.deleteFile(target), kNoError);
    EXPECT_EQ(effects_.deleteFile(target), kErrorFileNotFound);
    EXPECT_EQ(effects_.deleteFile(source), kNoError);
    for (std::size_t level = levels.size(); --level > 0;)
        EXPECT_TRUE(::RemoveDirectoryW(reachablePath(levels[level]).c_str()));
}

TEST_F(Files, AFileInTheWayOfAFolderIsAnError)
{
    const std::wstring file = in(L"file");
    write(file, "");
    EXPECT_NE(effects_.createFolders(file), kNoError);
    EXPECT_NE(effects_.createFolders(joinPath(file, L"a\\b")), kNoError);
    EXPECT_NE(effects_.createFolders(L"Q:\\no such drive"), kNoError);
    EXPECT_FALSE(effects_.fileExists(folder_)) << "a folder is no file";
    effects_.deleteFile(file);
}

TEST_F(Files, ACopyReplacesAReadOnlyFile)
{
    const std::wstring source = in(L"source");
    const std::wstring target = in(L"target");
    write(source, "new");
    write(target, "older");
    ::SetFileAttributesW(target.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(copyFileOver(source, target), kNoError);
    EXPECT_EQ(read(target), "new");
    EXPECT_NE(copyFileOver(in(L"absent"), target), kNoError);
    EXPECT_EQ(read(target), "new");
    effects_.deleteFile(source);
    effects_.deleteFile(target);
}

TEST_F(Files, TheSameFileUnderAnotherNameCountsAsCopied)
{
    const std::wstring source = in(L"source");
    const std::wstring other = in(L"other");
    write(source, "bytes");
    ASSERT_TRUE(::CreateHardLinkW(other.c_str(), source.c_str(), nullptr));
    {
        // As when the program runs from there: nothing could be written over it.
        const vela::OwnedFile running(
            ::CreateFileW(source.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
        EXPECT_EQ(copyFileOver(source, source), kNoError);
        EXPECT_EQ(copyFileOver(source, other), kNoError);
        EXPECT_EQ(copyFileOver(joinPath(folder_, L".\\SOURCE"), other), kNoError);
    }
    EXPECT_EQ(read(source), "bytes");
    effects_.deleteFile(source);
    effects_.deleteFile(other);
}

TEST_F(Files, AProgramWithoutAPackageSaysSoAndPinsNothing)
{
    const std::wstring path = in(L"package");
    const auto extracted = effects_.extractPackage(path);
    ASSERT_FALSE(extracted);
    EXPECT_EQ(extracted.error().fault, PackageFault::Absent);
    EXPECT_FALSE(effects_.fileExists(path)) << "nothing is created before the package is found";
    write(path, "not the package");
    const auto pinned = effects_.pinPackage(path);
    ASSERT_FALSE(pinned);
    EXPECT_NE(pinned.error(), kNoError);
    EXPECT_EQ(effects_.deleteFile(path), kNoError) << "a file that was refused is not held";
}

TEST_F(Files, AVersionIsReadOnlyFromAVersionBlock)
{
    EXPECT_TRUE(effects_.productVersion(L"C:\\windows\\system32\\kernel32.dll"));
    EXPECT_FALSE(effects_.productVersion(programPath())) << "the test program has none";
    const std::wstring text = in(L"text");
    write(text, "MZ but no program");
    EXPECT_FALSE(effects_.productVersion(text));
    EXPECT_FALSE(effects_.productVersion(in(L"absent")));
    effects_.deleteFile(text);
}

} // namespace
} // namespace setup
