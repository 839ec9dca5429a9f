// Before the first window: without a window manager Wine waits two seconds for one whenever a window that
// should be managed goes away. No program's windows are managed in the prefix of the tests.
#include <gtest/gtest.h>

#include <windows.h>

namespace {

class UnmanagedWindows final : public ::testing::Environment {
public:
    void SetUp() override
    {
        constexpr wchar_t kNo[] = L"N";
        ::RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Wine\\X11 Driver", L"Managed", REG_SZ, kNo,
                          sizeof kNo);
    }
};
[[maybe_unused]] const auto* const kUnmanagedWindows =
    ::testing::AddGlobalTestEnvironment(new UnmanagedWindows);

} // namespace
