// What moving lights cost a dialog that is just open: the share of one core that the process takes with them
// and with its lights at rest. Under Wine that is Wine's GDI as much as this program's own work.
// Usage: moving_light SKIN_FOLDER SKIN [SECONDS]
#include "app/dialogs/choice_dialog.h"
#include "app/dialogs/toolkit_texts.h"

#include "vela/render/materials/material_source_gdi.h"
#include "vela/resource_folders.h"
#include "vela/theme/skins/style_sections.h"
#include "vela/theme/skins/system_skins.h"

#include <cstdio>
#include <cstdlib>

#include <windows.h>

namespace {

double processSeconds()
{
    FILETIME created{};
    FILETIME ended{};
    FILETIME kernel{};
    FILETIME user{};
    ::GetProcessTimes(::GetCurrentProcess(), &created, &ended, &kernel, &user);
    const auto seconds = [](const FILETIME& time) {
        return static_cast<double>(static_cast<std::uint64_t>(time.dwHighDateTime) << 32 |
                                   time.dwLowDateTime) *
               1e-7;
    };
    return seconds(kernel) + seconds(user);
}

void pumpFor(DWORD milliseconds)
{
    const ULONGLONG end = ::GetTickCount64() + milliseconds;
    for (ULONGLONG now = ::GetTickCount64(); now < end; now = ::GetTickCount64()) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now), QS_ALLINPUT);
        MSG message{};
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
    }
}

void report(const char* name, DWORD seconds)
{
    constexpr DWORD kSettling = 3000;
    pumpFor(kSettling);
    const double before = processSeconds();
    const std::size_t rendered = vela::movingOverlaysRendered();
    pumpFor(seconds * 1000);
    std::printf("%-8s %6.2f %% of a core, %4.1f overlays a second\n", name,
                (processSeconds() - before) / seconds * 100,
                static_cast<double>(vela::movingOverlaysRendered() - rendered) / seconds);
}

void setAnimations(BOOL on)
{
    ::SystemParametersInfoW(SPI_SETCLIENTAREAANIMATION, 0, reinterpret_cast<void*>(static_cast<INT_PTR>(on)),
                            0);
}

} // namespace

int wmain(int count, wchar_t** arguments)
{
    if (count < 3)
        return 2;
    vela::setToolkitTexts(setup::kToolkitTexts);
    vela::setResourceFolders({.skins = {arguments[1]}, .fonts = {}, .bitmaps = {}});
    const DWORD seconds = count > 3 ? static_cast<DWORD>(std::wcstoul(arguments[3], nullptr, 10)) : 10;
    const auto styles =
        std::make_shared<vela::StyleSheet>(vela::buildStyleSheet(vela::skinCatalog().find(arguments[2])));
    setup::ChoiceDialog dialog({::GetModuleHandleW(nullptr), [&] { return styles; }}, {});
    dialog.open();
    ::ShowWindow(dialog.handle(), SW_SHOW);
    setAnimations(TRUE);
    report("moving", seconds);
    setAnimations(FALSE);
    report("at rest", seconds);
    setAnimations(TRUE);
    return 0;
}
