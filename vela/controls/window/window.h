// A top-level window of the toolkit: it owns the tree of controls, shows it through a back buffer and takes
// the system's messages into it. The object outlives its window; without one its operations do nothing. All
// of it belongs to the thread that created the window.
#pragma once

#include "vela/controls/tree/command_handlers.h"
#include "vela/controls/tree/control_host.h"
#include "vela/controls/window/window_state.h"

#include <cstdint>
#include <memory>
#include <string>

namespace vela {

// What `create` takes from Windows' own vocabulary.
struct WindowStyle {
    std::uint32_t style = 0;    // WS_
    std::uint32_t extended = 0; // WS_EX_
};

// The panel that a window's background is, for skins whose panels have a shape that no window could have.
inline constexpr std::wstring_view kWindowVariant = L"window";

class Window : public ControlHost {
public:
    using MessageHook = WindowState::MessageHook;
    using StyleSource = WindowState::StyleSource;

    Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    ~Window() override;

    // The client size is in 96-DPI pixels and grows with the monitor that shows the window: the owner's, or
    // the one under the pointer. False when Windows refuses; then there is no handle.
    bool create(HINSTANCE instance, std::wstring title, Size client, WindowStyle style, HWND owner = nullptr);
    void destroy();

    HWND handle() const noexcept { return state_.handle; }
    std::int32_t dpi() const noexcept { return state_.dpi; }
    Panel& root() noexcept { return state_.root; }
    const std::wstring& title() const noexcept { return state_.title; }

    // Before `create`. A custom frame has no standard non-client area; its resize band lies inside the client
    // edge, in 96-DPI pixels, and 0 means that the frame cannot be dragged.
    void setCustomFrame(bool custom) noexcept { state_.customFrame = custom; }
    void setResizeBorder(std::int32_t pixels) noexcept { state_.resizeBorder = pixels; }
    // Before `create`. Where the client area does not fit the work area at the monitor's DPI, everything is
    // drawn at a smaller scale until it does; `dpi` is that scale.
    void setShrinkToFit(bool shrinks) noexcept { state_.shrinkToFit = shrinks; }
    // Before `create`. Everything is drawn at this DPI, whatever the monitor's is.
    void setFixedScale(std::int32_t dpi) noexcept { state_.fixedScale = dpi; }
    void setQuitOnDestroy(bool quits) noexcept { state_.quitOnDestroy = quits; }
    void setCloseOnDeactivate(bool closes) noexcept { state_.closeOnDeactivate = closes; }
    void setTooltipDelay(std::uint32_t milliseconds) noexcept { state_.tooltipDelay = milliseconds; }
    void setDiagnostics(bool on) noexcept { state_.diagnostics = on; }
    void setMessageHook(MessageHook hook) { state_.messageHook = std::move(hook); }
    bool isInSizeMove() const noexcept { return state_.inSizeMove; }
    const DebugOverlay& debugOverlay() const noexcept { return state_.debugOverlay; }

    // Gives every control of the tree its record at the window's DPI, and the root the panel surface; held
    // for a later change of DPI. Controls added afterwards need another call.
    void applyStyles(std::shared_ptr<const StyleSheet> styles);
    // Asked at once, and again when the user switches between light and dark or to high contrast.
    void setStyleSource(StyleSource source);

    // A handler for one action, or, with an empty action, for all.
    CommandHandlers::Subscription subscribe(std::wstring action, CommandHandlers::Handler handler);
    void unsubscribe(CommandHandlers::Subscription subscription);

    // Carries out what a title bar asks for by the action's name; false for an action that is none of the
    // title bar's.
    bool performChromeAction(std::wstring_view action);

    // As long as there is a reason the user's session does not end and Windows shows the reason; an empty one
    // lets it end. Like the progress below it may be given before `create`.
    void setShutdownBlockReason(std::wstring reason);
    // The percentage is of use while work is running, paused or failed.
    void setTaskbarProgress(TaskbarProgress state, std::int32_t percent = 0);
    // Flashes the taskbar button until the user comes to the window; nothing when that is in front already.
    void requestAttention();

    // Lays the tree out for the client area as it is.
    void layoutTree();
    // The smallest client area in which the tree fits, and the window around it, no larger than the work
    // area.
    Size minimumClientSize() const;
    Size minimumTrackSize() const;

    bool isAlive() const override;
    Rect clientRect() const override;
    void invalidateClient(const Rect& rect, InvalidationReason reason) override;
    void dispatchCommand(CommandEvent& event) override { commands_.dispatch(event); }
    void captureMouse(Control* control) override;
    const Control* focusedControl() const override;
    void focusControl(Control* control) override { state_.input.focus(control); }
    bool showsFocus() const override { return state_.input.showsFocus(); }
    void controlDetached(Control& control) override;
    TextServices* textServices() override;
    bool isMaximised() const override { return state_.maximised; }
    bool diagnosticsEnabled() const override { return state_.diagnostics; }
    void writeDiagnostic(std::wstring_view line) override;

protected:
    virtual void onCreated() {}
    virtual void onDestroyed() {}
    // What leaves the process: the system's screen clip, and the two things a taskbar button can show.
    virtual void openScreenClip();
    virtual void showTaskbarStatus(const TaskbarStatus& status);
    virtual void flashTaskbarButton();

private:
    class Native; // the side that talks to Windows

    WindowState state_;
    CommandHandlers commands_;
    std::unique_ptr<Native> native_;
};

} // namespace vela
