// A library that leaves a mark beside itself when it is loaded; it stands for one planted by an attacker.
#include <windows.h>

#include <cwchar>

extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, void*)
{
    wchar_t path[MAX_PATH + 8];
    if (reason == DLL_PROCESS_ATTACH && ::GetModuleFileNameW(library, path, MAX_PATH) != 0) {
        std::wcscat(path, L".loaded");
        ::CloseHandle(::CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    }
    return TRUE;
}
