// What the control tree asks of the window that shows it. The window implements it; tests record it.
#pragma once

#include "vela/geometry.h"

#include <cstdint>
#include <string_view>

namespace vela {

class Control;
class TextServices;
struct CommandEvent;

// What has changed: how something looks, or where it is. Both are painted alike; programs that read a window
// out to its user will be told of each in its own way.
enum class InvalidationReason : std::uint8_t { State = 8, Geometry = 16 };

class ControlHost {
public:
    ControlHost() = default;
    ControlHost(const ControlHost&) = delete;
    ControlHost& operator=(const ControlHost&) = delete;
    virtual ~ControlHost() = default;

    // False once the window is gone: then nothing is invalidated any more.
    virtual bool isAlive() const = 0;
    virtual Rect clientRect() const = 0;

    // Client pixels, without erasing.
    virtual void invalidateClient(const Rect& rect, InvalidationReason reason) = 0;

    // Offers the event to the handlers subscribed at the window.
    virtual void dispatchCommand(CommandEvent& event) = 0;

    // The control that gets every mouse event until the release; null gives the mouse free.
    virtual void captureMouse(Control* control) = 0;

    virtual const Control* focusedControl() const = 0;
    virtual void focusControl(Control* control) = 0;
    // True once the keyboard was used: only then is the focus shown.
    virtual bool showsFocus() const = 0;

    // The control is about to go: no pointer to it may be kept.
    virtual void controlDetached(Control& control) = 0;

    // Null where the system offers none: then a field edits without clipboard and menu.
    virtual TextServices* textServices() { return nullptr; }

    virtual bool isMaximised() const { return false; }

    virtual bool diagnosticsEnabled() const = 0;
    virtual void writeDiagnostic(std::wstring_view line) = 0;
};

} // namespace vela
