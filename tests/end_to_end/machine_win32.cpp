#include "tests/end_to_end/machine_win32.h"

#include "app/run/identity.h"
#include "vela/com_pointer_win32.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include <gtest/gtest.h>
#include <msi.h>
#include <objbase.h>
#include <shlobj.h>
#include <tlhelp32.h>

namespace end_to_end {
namespace {

std::wstring ownFolder()
{
    std::wstring path(MAX_PATH, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return path.substr(0, path.rfind(L'\\'));
}

std::wstring wide(const std::string& utf8)
{
    std::wstring text(utf8.size(), L'\0');
    const int length = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()),
                                             text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::wstring sampleLog() { return knownFolder(FOLDERID_LocalAppData) + L"\\Tamber\\sample.log"; }

} // namespace

std::wstring builtFile(std::wstring_view name) { return ownFolder().append(L"\\").append(name); }

std::wstring package(std::wstring_view name)
{
    return (std::filesystem::path(ownFolder()) / L"..\\..\\packages" / name).lexically_normal().wstring();
}

std::wstring source(std::wstring_view path)
{
    return (std::filesystem::path(L"" TAMBER_SOURCE_DIR) / path).make_preferred().wstring();
}

std::wstring finishedSetup()
{
    return (std::filesystem::path(ownFolder()) / L"..\\..\\TamberSetup.exe").lexically_normal().wstring();
}

std::wstring inQuotes(std::wstring_view text) { return std::wstring(1, L'"').append(text).append(1, L'"'); }

Program::Program(const std::wstring& path, std::wstring_view arguments, const std::wstring& folder)
{
    std::wstring commandLine = inQuotes(path).append(1, L' ').append(arguments);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(path.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                          folder.empty() ? nullptr : folder.c_str(), &startup, &process)) {
        ADD_FAILURE() << "cannot start, error " << ::GetLastError();
        return;
    }
    ::CloseHandle(process.hThread);
    process_.reset(process.hProcess);
    id_ = process.dwProcessId;
}

Program::~Program()
{
    if (runs())
        terminate();
}

bool Program::endsWithin(DWORD milliseconds) const noexcept
{
    return ::WaitForSingleObject(process_.get(), milliseconds) != WAIT_TIMEOUT;
}

DWORD Program::wait() const
{
    if (!endsWithin(kPatienceMilliseconds)) {
        ADD_FAILURE() << "the program does not end";
        terminate();
    }
    DWORD exitCode = 0;
    EXPECT_TRUE(::GetExitCodeProcess(process_.get(), &exitCode));
    return exitCode;
}

void Program::terminate() const noexcept
{
    ::TerminateProcess(process_.get(), 99);
    ::WaitForSingleObject(process_.get(), kPatienceMilliseconds);
}

std::optional<std::wstring> environmentVariable(const wchar_t* name)
{
    const DWORD size = ::GetEnvironmentVariableW(name, nullptr, 0);
    if (size == 0)
        return std::nullopt;
    std::wstring value(size, L'\0');
    value.resize(::GetEnvironmentVariableW(name, value.data(), size));
    return value;
}

EnvironmentGuard::EnvironmentGuard(const wchar_t* name, const std::wstring& value)
    : name_(name), previous_(environmentVariable(name))
{
    ::SetEnvironmentVariableW(name, value.c_str());
}

EnvironmentGuard::~EnvironmentGuard()
{
    ::SetEnvironmentVariableW(name_, previous_ ? previous_->c_str() : nullptr);
}

std::vector<std::wstring> installedProducts()
{
    std::vector<std::wstring> codes;
    wchar_t code[39];
    for (DWORD index = 0;
         ::MsiEnumRelatedProductsW(setup::kUpgradeCode.data(), 0, index, code) == ERROR_SUCCESS; ++index)
        codes.emplace_back(code);
    return codes;
}

DWORD runInstaller(const std::wstring& arguments)
{
    return Program(knownFolder(FOLDERID_System) + L"\\msiexec.exe", arguments + L" /qn /norestart").wait();
}

std::wstring knownFolder(const GUID& id)
{
    PWSTR path = nullptr;
    std::wstring folder;
    if (SUCCEEDED(::SHGetKnownFolderPath(id, 0, nullptr, &path)))
        folder = path;
    ::CoTaskMemFree(path);
    return folder;
}

std::wstring startupShortcut() { return knownFolder(FOLDERID_Startup) + L"\\Tamber.lnk"; }

std::wstring desktopShortcut() { return knownFolder(FOLDERID_Desktop) + L"\\Tamber.lnk"; }

std::optional<Shortcut> readShortcut(const std::wstring& path)
{
    ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    vela::ComPointer<IShellLinkW> link;
    vela::ComPointer<IPersistFile> file;
    if (FAILED(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                  link.putVoid())) ||
        FAILED(link.queryTo(file)) || FAILED(file->Load(path.c_str(), STGM_READ)))
        return std::nullopt;
    wchar_t target[MAX_PATH]{};
    wchar_t arguments[MAX_PATH]{};
    wchar_t folder[MAX_PATH]{};
    wchar_t description[MAX_PATH]{};
    wchar_t icon[MAX_PATH]{};
    int iconIndex = -1;
    link->GetPath(target, MAX_PATH, nullptr, 0);
    link->GetArguments(arguments, MAX_PATH);
    link->GetWorkingDirectory(folder, MAX_PATH);
    link->GetDescription(description, MAX_PATH);
    link->GetIconLocation(icon, MAX_PATH, &iconIndex);
    return Shortcut{target, arguments, folder, description, icon, iconIndex};
}

bool exists(const std::wstring& path) noexcept
{
    return ::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::string contents(const std::wstring& path)
{
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const std::wstring& path, std::string_view bytes)
{
    std::ofstream file(std::filesystem::path(path), std::ios::binary);
    file << bytes;
    EXPECT_TRUE(file.flush());
}

void copyFile(const std::wstring& from, const std::wstring& to)
{
    EXPECT_TRUE(::CopyFileW(from.c_str(), to.c_str(), FALSE)) << ::GetLastError();
}

void removeTree(const std::wstring& path) noexcept
{
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

bool canBeWritten(const std::wstring& path)
{
    const vela::OwnedFile file(::CreateFileW(path.c_str(), GENERIC_WRITE | DELETE,
                                             FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                             OPEN_EXISTING, 0, nullptr));
    return static_cast<bool>(file);
}

std::vector<DWORD> processesNamed(std::wstring_view fileName)
{
    std::vector<DWORD> ids;
    const vela::OwnedFile snapshot(::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = ::Process32FirstW(snapshot.get(), &entry); more;
         more = ::Process32NextW(snapshot.get(), &entry)) {
        if (fileName == entry.szExeFile)
            ids.push_back(entry.th32ProcessID);
    }
    return ids;
}

std::vector<HWND> windowsOf(DWORD processId)
{
    struct Search {
        DWORD processId;
        std::vector<HWND> found;
    } search{processId, {}};
    ::EnumWindows(
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            DWORD owner = 0;
            ::GetWindowThreadProcessId(window, &owner);
            if (owner == wanted.processId)
                wanted.found.push_back(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::vector<HWND> visibleWindows(DWORD processId)
{
    std::vector<HWND> windows = windowsOf(processId);
    std::erase_if(windows, [](HWND window) { return !::IsWindowVisible(window); });
    return windows;
}

std::wstring titleOf(HWND window)
{
    std::wstring title(256, L'\0');
    title.resize(static_cast<std::size_t>(::GetWindowTextW(window, title.data(), 256)));
    return title;
}

std::vector<ApplicationStart> applicationStarts()
{
    std::vector<ApplicationStart> starts;
    std::istringstream log(contents(sampleLog()));
    for (std::string line; std::getline(log, line);) {
        std::istringstream fields(line);
        std::string event;
        ApplicationStart start{};
        fields >> event >> start.processId >> start.showCommand >> std::ws;
        if (event != "start" || !std::getline(fields, line, '\r'))
            continue;
        start.commandLine = wide(line);
        starts.push_back(std::move(start));
    }
    return starts;
}

bool applicationClosedItself(DWORD processId)
{
    return contents(sampleLog()).find("close " + std::to_string(processId) + "\r") != std::string::npos;
}

} // namespace end_to_end
