// Starts programs and watches, from outside, when the picture of their window is finished: the programs need
// no code for it. One line a round, and in it for each command the milliseconds from its start to its first
// finished picture and the window's width and height. The script beside this file turns them into medians.
// Usage: first_paint ROUNDS COMMAND...     a command is one argument, quoted as a whole
#include "vela/owned_win32.h"
#include "vela/rect_win32.h"
#include "vela/render/gdi/dib_gdi.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cwchar>
#include <optional>
#include <string>

#include <windows.h>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

// A picture that has not changed for so long is finished. Shorter than the time between two blinks of a
// caret.
constexpr Milliseconds kSettled{400};
constexpr Milliseconds kPatience{20'000};
constexpr DWORD kCloseWait = 3'000; // milliseconds

struct Program {
    vela::OwnedKernelObject process;
    DWORD id = 0;
};

struct FirstPicture {
    Milliseconds after;
    vela::Size size;
};

std::optional<Program> start(std::wstring command)
{
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION made{};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                          &made))
        return std::nullopt;
    const vela::OwnedKernelObject thread(made.hThread);
    return Program{vela::OwnedKernelObject(made.hProcess), made.dwProcessId};
}

std::int64_t areaOf(HWND window)
{
    RECT rect{};
    ::GetWindowRect(window, &rect);
    return std::int64_t{rect.right - rect.left} * (rect.bottom - rect.top);
}

// The program's largest window that is shown; null while there is none.
HWND shownWindow(DWORD process)
{
    struct Search {
        DWORD process;
        HWND largest;
    } search{process, nullptr};
    ::EnumWindows(
        [](HWND window, LPARAM argument) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(argument);
            DWORD owner = 0;
            ::GetWindowThreadProcessId(window, &owner);
            if (owner == wanted.process && ::IsWindowVisible(window) &&
                areaOf(window) > (wanted.largest ? areaOf(wanted.largest) : 0))
                wanted.largest = window;
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.largest;
}

// What the screen shows, in one number; zero for a window that is all black, as unpainted ones are.
class Screen {
public:
    std::uint64_t pictureOf(const RECT& rect)
    {
        const vela::Size size = sizeOf(vela::toRect(rect));
        if (!copy_ || copy_->size() != size)
            copy_.emplace(size);
        const HDC screen = ::GetDC(nullptr);
        ::BitBlt(copy_->dc(), 0, 0, size.width, size.height, screen, rect.left, rect.top, SRCCOPY);
        ::ReleaseDC(nullptr, screen);
        const vela::PixelView pixels = copy_->pixels();
        std::uint64_t sum = 0;
        for (std::int32_t y = 0; y < size.height; ++y)
            for (std::int32_t x = 0; x < size.width; ++x)
                sum = sum * 0x9E3779B97F4A7C15 + (pixels.row(y)[x] & 0xFFFFFF);
        return sum;
    }

private:
    std::optional<vela::DibSurface> copy_;
};

std::optional<FirstPicture> watch(const Program& program, Clock::time_point started, Screen& screen)
{
    std::uint64_t picture = 0;
    Milliseconds changed{};
    for (Milliseconds now{}; now < kPatience; now = Clock::now() - started) {
        const HWND window = shownWindow(program.id);
        RECT rect{};
        if (!window || !::GetWindowRect(window, &rect)) {
            if (::WaitForSingleObject(program.process.get(), 0) == WAIT_OBJECT_0)
                return std::nullopt;
            ::Sleep(1);
            continue;
        }
        const std::uint64_t seen = screen.pictureOf(rect);
        now = Clock::now() - started;
        if (seen != picture) {
            picture = seen;
            changed = now;
        } else if (picture != 0 && now - changed > kSettled) {
            return FirstPicture{changed, sizeOf(vela::toRect(rect))};
        }
        ::Sleep(1);
    }
    return std::nullopt;
}

void end(const Program& program)
{
    if (const HWND window = shownWindow(program.id))
        ::PostMessageW(window, WM_CLOSE, 0, 0);
    if (::WaitForSingleObject(program.process.get(), kCloseWait) != WAIT_OBJECT_0)
        ::TerminateProcess(program.process.get(), 1);
    ::WaitForSingleObject(program.process.get(), kCloseWait);
}

bool measure(const std::wstring& command, Screen& screen)
{
    const auto started = Clock::now();
    const std::optional<Program> program = start(command);
    if (!program) {
        std::fprintf(stderr, "cannot start %ls\n", command.c_str());
        return false;
    }
    const std::optional<FirstPicture> picture = watch(*program, started, screen);
    end(*program);
    if (!picture) {
        std::fprintf(stderr, "no finished picture of %ls\n", command.c_str());
        return false;
    }
    std::printf("%.1f %ld %ld  ", picture->after.count(), static_cast<long>(picture->size.width),
                static_cast<long>(picture->size.height));
    return true;
}

} // namespace

int wmain(int count, wchar_t** arguments)
{
    if (count < 3)
        return 2;
    // A desktop on which nobody has a window is taken down by Wine, and every program would start it anew.
    ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    Screen screen;
    for (long round = std::wcstol(arguments[1], nullptr, 10); round > 0; --round) {
        for (int i = 2; i < count; ++i) {
            if (!measure(arguments[i], screen))
                return 1;
        }
        std::printf("\n");
        std::fflush(stdout);
    }
    return 0;
}
