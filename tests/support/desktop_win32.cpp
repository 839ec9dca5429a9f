// Before the first window: without a window manager Wine waits two seconds for one whenever a window that
// should be managed goes away. This program's windows are said not to be.
#include <gtest/gtest.h>

#include <windows.h>

namespace {

class UnmanagedWindows final : public ::testing::Environment {
public:
    void SetUp() override
    {
        constexpr wchar_t kNo[] = L"N";
        ::RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Wine\\AppDefaults\\unit_tests.exe\\X11 Driver",
                          L"Managed", REG_SZ, kNo, sizeof kNo);
    }
};
[[maybe_unused]] const auto* const kUnmanagedWindows =
    ::testing::AddGlobalTestEnvironment(new UnmanagedWindows);

} // namespace
