// The setup's own log.
#include "app/windows/setup_effects_win32.h"

#include "app/run/temp_file.h"
#include "app/windows/reachable_path_win32.h"

namespace setup {
namespace {

std::string utf8(const std::wstring& text)
{
    const int length = static_cast<int>(text.size());
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, text.c_str(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(size), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.c_str(), length, result.data(), size, nullptr, nullptr);
    return result;
}

std::wstring timeStamp()
{
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    std::array<wchar_t, 32> text{};
    ::wsprintfW(text.data(), L"%02u:%02u:%02u.%03u ", now.wHour, now.wMinute, now.wSecond, now.wMilliseconds);
    return text.data();
}

} // namespace

void WindowsEffects::writeLogLine(const std::wstring& line)
{
    // Each line goes out at once, so that the log tells how far a run came that was cut off. A log that
    // cannot be written stops nothing.
    if (!log_)
        *log_.put() = ::CreateFileW(reachablePath(tempSetupFile(*this, L"setup.log")).c_str(), GENERIC_WRITE,
                                    FILE_SHARE_READ, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    const std::string bytes = utf8(timeStamp() + line + L"\r\n");
    DWORD written = 0;
    ::WriteFile(log_.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

} // namespace setup
