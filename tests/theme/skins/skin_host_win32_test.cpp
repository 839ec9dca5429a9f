#include "vela/theme/skins/skin_host_win32.h"

#include "vela/owned_win32.h"

#include <algorithm>
#include <string>
#include <string_view>

#include <gtest/gtest.h>
#include <windows.h>

namespace vela {
namespace {

class SkinFolder : public testing::Test {
protected:
    SkinFolder() : folder_(tempFolder() + L"skins t\u011bst " + std::to_wstring(::GetCurrentProcessId()))
    {
        EXPECT_TRUE(::CreateDirectoryW(folder_.c_str(), nullptr));
    }
    ~SkinFolder() override
    {
        for (const std::wstring& name : WindowsSkinHost().fileNames(folder_))
            ::DeleteFileW(in(name).c_str());
        ::RemoveDirectoryW(in(L"folder.json").c_str());
        ::RemoveDirectoryW(folder_.c_str());
    }

    std::wstring in(const std::wstring& name) const { return folder_ + L'\\' + name; }

    void write(const std::wstring& name, std::string_view bytes) const
    {
        const OwnedFile file(
            ::CreateFileW(in(name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        DWORD written = 0;
        ASSERT_TRUE(
            ::WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr));
    }

    static std::wstring tempFolder()
    {
        std::wstring folder(MAX_PATH + 1, L'\0');
        folder.resize(::GetTempPathW(static_cast<DWORD>(folder.size()), folder.data()));
        return folder;
    }

    const std::wstring folder_;
};

TEST_F(SkinFolder, IsListedWithoutItsSubfoldersAndReadWhole)
{
    write(L"a.json", "bytes \x80 as they are");
    write(L"\u017elu\u0165.JSON", "");
    ASSERT_TRUE(::CreateDirectoryW(in(L"folder.json").c_str(), nullptr));

    WindowsSkinHost host;
    std::vector<std::wstring> names = host.fileNames(folder_);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::wstring>{L"a.json", L"\u017elu\u0165.JSON"}));
    EXPECT_EQ(host.readFile(in(L"a.json"), 19), "bytes \x80 as they are");
    EXPECT_EQ(host.readFile(in(L"a.json"), 18), std::nullopt);
    EXPECT_EQ(host.readFile(in(L"\u017elu\u0165.JSON"), 20), "");
    EXPECT_EQ(host.readFile(in(L"folder.json"), 20), std::nullopt);
    EXPECT_EQ(host.readFile(in(L"missing.json"), 20), std::nullopt);
    EXPECT_TRUE(host.fileNames(in(L"missing")).empty());
}

// The current user's keys, replaced by an empty one for the length of a test.
class UserKeys : public testing::Test {
protected:
    UserKeys()
    {
        EXPECT_EQ(::RegCreateKeyExW(HKEY_CURRENT_USER, kTestKey, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                                    &key_, nullptr),
                  ERROR_SUCCESS);
        EXPECT_EQ(::RegOverridePredefKey(HKEY_CURRENT_USER, key_), ERROR_SUCCESS);
    }
    ~UserKeys() override
    {
        ::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        ::RegCloseKey(key_);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kTestKey);
    }

    void set(DWORD type, const void* value, DWORD size) const
    {
        EXPECT_EQ(::RegSetKeyValueW(key_,
                                    L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                                    L"AppsUseLightTheme", type, value, size),
                  ERROR_SUCCESS);
    }

    static constexpr wchar_t kTestKey[] = L"Software\\Tamber test of user keys";
    HKEY key_ = nullptr;
};

TEST_F(UserKeys, TellWhetherApplicationsAreLightByANumberOnly)
{
    WindowsSkinHost host;
    EXPECT_EQ(host.appsUseLightTheme(), std::nullopt);
    for (const DWORD value : {0UL, 1UL, 0xFFFFFFFFUL}) {
        set(REG_DWORD, &value, sizeof value);
        EXPECT_EQ(host.appsUseLightTheme(), value);
    }
    set(REG_SZ, L"0", 2 * sizeof(wchar_t));
    EXPECT_EQ(host.appsUseLightTheme(), std::nullopt);
    const ULONGLONG wide = 0;
    set(REG_QWORD, &wide, sizeof wide);
    EXPECT_EQ(host.appsUseLightTheme(), std::nullopt);
}

} // namespace
} // namespace vela
