// The fixture of the end-to-end tests: before and after each test neither Tamber nor a trace of it is there.
#pragma once

#include "tests/end_to_end/machine_win32.h"

#include <string>

#include <gtest/gtest.h>

namespace end_to_end {

inline constexpr const wchar_t* kProductFolder = L"C:\\Program Files\\Tamber";
inline constexpr const wchar_t* kSampleProduct = L"{0D6E6F5C-6A9B-4B37-8A0E-1F0C7C0E4921}";
// Everything the tests put down elsewhere lies here.
inline constexpr const wchar_t* kPlayground = L"C:\\Tamber tests";

class SetupTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Starts a setup; the files of a run asked for below are from now on this one's.
    Program startSetup(std::wstring_view arguments, const std::wstring& program = finishedSetup(),
                       const std::wstring& currentFolder = {});
    // Starts a quiet one and sees it to its end, during which it must show no window: the exit code.
    DWORD runSetup(std::wstring_view arguments, const std::wstring& program = finishedSetup(),
                   const std::wstring& currentFolder = {});

    // A file of the last run in the temp folder.
    std::wstring runFile(std::wstring_view name) const;
    // The last run's own log of its steps.
    std::string stepLog() const { return contents(runFile(L"setup.log")); }

    // The skins that the setup puts down for its windows.
    static std::wstring skinsFile();

    // Starts a copy of the sample application, under its own name in a folder of its own, and waits until it
    // has its window (or would have it).
    static Program startApplication(std::wstring_view options, std::wstring_view fileName = L"Tamber.exe");

private:
    DWORD lastRun_ = 0;
};

} // namespace end_to_end
