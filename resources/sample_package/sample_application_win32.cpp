// The stand-in for Tamber.exe: a tray-style program with one unowned top-level window that closes when it is
// asked to. It notes its starts and its closing in sample.log in its data folder, for whoever tests the
// setup:
//   start <process id> <show command> <command line>
//   close <process id>
// Two options give the setup a harder time: --deaf ignores the close request, --windowless has no window.
#include <windows.h>

#include <shlobj.h>

#include <string>
#include <string_view>

namespace {

constexpr UINT kCloseRequest = WM_APP + 0x759;

bool deaf = false; // to the close request; set before the window is there

bool hasArgument(std::wstring_view commandLine, std::wstring_view name)
{
    return commandLine.find(name) != std::wstring_view::npos;
}

std::string utf8(std::wstring_view text)
{
    std::string bytes(text.size() * 3, '\0');
    const int length = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                             bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(length));
    return bytes;
}

std::wstring dataFolder()
{
    PWSTR path = nullptr;
    if (FAILED(::SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &path)))
        return {};
    std::wstring folder = std::wstring(path) + L"\\Tamber";
    ::CoTaskMemFree(path);
    return folder;
}

// Append access makes each line one write at the end, whoever else is writing.
void note(std::wstring_view event, std::wstring_view details)
{
    const std::wstring folder = dataFolder();
    ::CreateDirectoryW(folder.c_str(), nullptr);
    const HANDLE file = ::CreateFileW((folder + L"\\sample.log").c_str(), FILE_APPEND_DATA,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                      OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return;
    std::wstring line(event);
    line += L' ' + std::to_wstring(::GetCurrentProcessId());
    if (!details.empty())
        line.append(1, L' ').append(details);
    const std::string bytes = utf8(line + L"\r\n");
    DWORD written = 0;
    ::WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    ::CloseHandle(file);
}

LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    switch (message) {
    case kCloseRequest:
        if (!deaf) {
            note(L"close", {});
            ::DestroyWindow(window);
        }
        return 0;
    case WM_DESTROY: ::PostQuitMessage(0); return 0;
    default: return ::DefWindowProcW(window, message, wParam, lParam);
    }
}

void openWindow(HINSTANCE instance, int show)
{
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = windowProcedure;
    windowClass.hInstance = instance;
    windowClass.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    windowClass.lpszClassName = L"TamberSample";
    ::RegisterClassW(&windowClass);
    const HWND window =
        ::CreateWindowExW(0, windowClass.lpszClassName, L"Tamber", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                          CW_USEDEFAULT, 640, 400, nullptr, nullptr, instance, nullptr);
    ::ShowWindow(window, show);
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int show)
{
    const std::wstring_view commandLine = ::GetCommandLineW();
    note(L"start", std::to_wstring(show) + L' ' + std::wstring(commandLine));
    if (hasArgument(commandLine, L"--windowless")) {
        ::Sleep(INFINITE);
        return 0;
    }
    deaf = hasArgument(commandLine, L"--deaf");
    openWindow(instance, hasArgument(commandLine, L"--start-hidden") ? SW_HIDE : show);
    MSG message{};
    while (::GetMessageW(&message, nullptr, 0, 0) > 0)
        ::DispatchMessageW(&message);
    return 0;
}
