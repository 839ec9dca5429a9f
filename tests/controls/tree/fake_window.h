// A window that only remembers what the control tree asked of it.
#pragma once

#include "vela/controls/tree/command_event.h"
#include "vela/controls/tree/control_host.h"
#include "vela/controls/tree/panel.h"

#include <string>
#include <vector>

namespace vela {

class FakeWindow : public ControlHost {
public:
    explicit FakeWindow(Size client) : root(L"root", {0, 0, client.width, client.height})
    {
        root.setMinimumSize({0, 0});
        root.attach(this);
    }
    ~FakeWindow() override { root.detach(); }

    bool isAlive() const override { return alive; }
    Rect clientRect() const override { return root.localBounds(); }
    void invalidateClient(const Rect& rect, InvalidationReason reason) override
    {
        invalidated.push_back(rect);
        reasons.push_back(reason);
    }
    void dispatchCommand(CommandEvent& event) override
    {
        commands.push_back(event);
        event.handled = handlesCommands;
    }
    void captureMouse(Control* control) override { captured = control; }
    const Control* focusedControl() const override { return focused; }
    void focusControl(Control* control) override { focused = control; }
    bool showsFocus() const override { return true; }
    void controlDetached(Control& control) override { detached.push_back(control.id()); }
    bool isMaximised() const override { return maximised; }
    bool diagnosticsEnabled() const override { return diagnostics; }
    void writeDiagnostic(std::wstring_view line) override { lines.emplace_back(line); }

    bool alive = true;
    bool maximised = false;
    bool diagnostics = false;
    bool handlesCommands = false;
    Control* captured = nullptr;
    Control* focused = nullptr;
    std::vector<Rect> invalidated;
    std::vector<InvalidationReason> reasons;
    std::vector<CommandEvent> commands;
    std::vector<std::wstring> detached;
    std::vector<std::wstring> lines;
    Panel root;
};

} // namespace vela
