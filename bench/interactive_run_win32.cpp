// Installs silently and through the windows, in turn, and watches from outside: how much longer a user waits
// between the press and the notice than a script waits for the silent run, and how quickly the progress
// window answers all the while. Usage: interactive_run ROUNDS SETUP
#include "vela/owned_win32.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cwchar>
#include <string>
#include <vector>

#include <windows.h>

namespace {

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

struct Program {
    vela::OwnedKernelObject process;
    DWORD id = 0;

    DWORD wait() const
    {
        ::WaitForSingleObject(process.get(), INFINITE);
        DWORD code = 1;
        ::GetExitCodeProcess(process.get(), &code);
        return code;
    }
};

Program start(const std::wstring& setup, const wchar_t* options)
{
    std::wstring command = L'"' + setup + L"\" " + options;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION made{};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                          &made))
        return {};
    ::CloseHandle(made.hThread);
    return {vela::OwnedKernelObject(made.hProcess), made.dwProcessId};
}

// The setup's window whose title begins so, once it is shown.
HWND shownWindow(DWORD process, const wchar_t* title)
{
    HWND window = nullptr;
    while ((window = ::FindWindowExW(nullptr, window, L"VelaDesignWindow", nullptr)) != nullptr) {
        DWORD owner = 0;
        ::GetWindowThreadProcessId(window, &owner);
        wchar_t text[128] = L"";
        ::GetWindowTextW(window, text, 128);
        if (owner == process && ::IsWindowVisible(window) &&
            std::wcsncmp(text, title, std::wcslen(title)) == 0)
            return window;
    }
    return nullptr;
}

HWND waitForWindow(const Program& program, const wchar_t* title)
{
    HWND window = nullptr;
    while (!(window = shownWindow(program.id, title)) &&
           ::WaitForSingleObject(program.process.get(), 1) == WAIT_TIMEOUT)
        continue;
    return window;
}

void press(HWND window, WPARAM key) { ::PostMessageW(window, WM_KEYDOWN, key, 0); }

// Asks the progress window again and again until the notice is there; what each answer took.
std::vector<double> askUntilTheNotice(const Program& setup)
{
    std::vector<double> answers;
    while (!shownWindow(setup.id, L"Nainstalovano") &&
           ::WaitForSingleObject(setup.process.get(), 0) == WAIT_TIMEOUT) {
        if (const HWND progress = shownWindow(setup.id, L"Instaluju")) {
            const auto asked = Clock::now();
            DWORD_PTR ignored = 0;
            ::SendMessageTimeoutW(progress, WM_NULL, 0, 0, SMTO_NORMAL, 10'000, &ignored);
            answers.push_back(millisecondsSince(asked));
        }
        ::Sleep(2);
    }
    return answers;
}

double part(std::vector<double>& values, double fraction)
{
    std::sort(values.begin(), values.end());
    return values.empty()
               ? 0
               : values[static_cast<std::size_t>(fraction * static_cast<double>(values.size() - 1))];
}

} // namespace

int wmain(int count, wchar_t** arguments)
{
    if (count < 3)
        return 2;
    const std::wstring setup = arguments[2];
    std::vector<double> silent;
    std::vector<double> interactive;
    std::vector<double> answers;
    bool failed = false;
    const auto remove = [&] { failed |= start(setup, L"--uninstall --quiet").wait() != 0; };
    remove();
    for (long round = std::wcstol(arguments[1], nullptr, 10); round > 0; --round) {
        const auto started = Clock::now();
        failed |= start(setup, L"--install --quiet").wait() != 0;
        silent.push_back(millisecondsSince(started));
        remove();

        const Program program = start(setup, L"");
        press(waitForWindow(program, L"Tamber"), VK_RETURN);
        const auto pressed = Clock::now();
        const std::vector<double> asked = askUntilTheNotice(program);
        interactive.push_back(millisecondsSince(pressed));
        answers.insert(answers.end(), asked.begin(), asked.end());
        press(shownWindow(program.id, L"Nainstalovano"), VK_RETURN);
        failed |= program.wait() != 0;
        remove();
    }
    std::printf("silent install %.0f ms   from the press to the notice %.0f ms   (%+.0f ms)\n",
                part(silent, 0.5), part(interactive, 0.5), part(interactive, 0.5) - part(silent, 0.5));
    std::printf(
        "the progress window answered %zu times: median %.1f ms, of 100 the slowest %.1f ms, slowest %.1f "
        "ms\n",
        answers.size(), part(answers, 0.5), part(answers, 0.99), part(answers, 1));
    return failed ? 1 : 0;
}
