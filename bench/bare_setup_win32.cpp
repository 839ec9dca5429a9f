// The least a setup could be: makes one shell link and waits for the program given on its command line. What
// TamberSetup.exe needs beyond this is its own.
#include "vela/com_pointer_win32.h"
#include "vela/owned_win32.h"

#include <string>

#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

namespace {

HRESULT makeLink(const std::wstring& path)
{
    ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    vela::ComPointer<IShellLinkW> link;
    vela::ComPointer<IPersistFile> file;
    HRESULT result =
        ::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, link.putVoid());
    if (SUCCEEDED(result))
        result = link->SetPath(L"C:\\windows\\notepad.exe");
    if (SUCCEEDED(result))
        result = link.queryTo(file);
    return SUCCEEDED(result) ? file->Save(path.c_str(), TRUE) : result;
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR arguments, int)
{
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, arguments, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                          &process))
        return 1;
    const vela::OwnedKernelObject owners[] = {vela::OwnedKernelObject(process.hProcess),
                                              vela::OwnedKernelObject(process.hThread)};
    ::WaitForSingleObject(process.hProcess, INFINITE);
    std::wstring folder(MAX_PATH + 1, L'\0');
    folder.resize(::GetTempPathW(MAX_PATH + 1, folder.data()));
    return SUCCEEDED(makeLink(folder + L"bare_setup.lnk")) ? 0 : 2;
}
