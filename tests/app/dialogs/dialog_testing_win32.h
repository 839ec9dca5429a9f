// Dialogs of the setup for tests: their host, and a user who acts as soon as a dialog is up.
#pragma once

#include "app/dialogs/setup_dialog.h"

#include "vela/theme/skins/skin_catalog.h"
#include "vela/theme/skins/style_sections.h"

#include <functional>
#include <string>
#include <utility>

#include <windows.h>

namespace setup::test {

inline DialogHost host()
{
    static const auto sheet =
        std::make_shared<const vela::StyleSheet>(vela::buildStyleSheet(vela::builtInSkin()));
    return {::GetModuleHandleW(nullptr), [] { return sheet; }};
}

inline std::wstring windowText(HWND window)
{
    std::wstring text(256, L'\0');
    text.resize(static_cast<std::size_t>(::GetWindowTextW(window, text.data(), 256)));
    return text;
}

// Runs `act` once, in the dialog's loop. To be called before the dialog is opened.
inline void whileShown(vela::Window& dialog, std::function<void()> act)
{
    dialog.setMessageHook(
        [act = std::move(act)](HWND window, unsigned message, std::uintptr_t, std::intptr_t, std::intptr_t&) {
            // A shown window is asked to paint; what is posted from there on finds the loop running.
            if (message == WM_SHOWWINDOW)
                ::PostMessageW(window, WM_APP, 0, 0);
            if (message != WM_APP)
                return false;
            const std::function<void()> once = act;
            once();
            return true;
        });
}

inline void postKey(const vela::Window& dialog, WPARAM key)
{
    ::PostMessageW(dialog.handle(), WM_KEYDOWN, key, 0);
    ::PostMessageW(dialog.handle(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

// Presses and releases the left button in the middle of the control.
inline void click(vela::Window& dialog, std::wstring_view id)
{
    const vela::Control* const control = vela::findControl(dialog.root(), id);
    const vela::Rect rect = control ? control->windowRect().value_or(vela::Rect{}) : vela::Rect{};
    const LPARAM at = MAKELPARAM(rect.x + std::min(rect.width / 2, 20), rect.y + rect.height / 2);
    ::PostMessageW(dialog.handle(), WM_LBUTTONDOWN, MK_LBUTTON, at);
    ::PostMessageW(dialog.handle(), WM_LBUTTONUP, 0, at);
}

inline bool swallowQuitRequest()
{
    MSG message{};
    return ::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE;
}

} // namespace setup::test
