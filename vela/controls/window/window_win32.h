// The side of a window that talks to Windows: one handler for each message it takes part in.
#pragma once

#include "vela/controls/window/window.h"

#include "vela/controls/system/text_services_win32.h"
#include "vela/controls/tree/moving_lights.h"
#include "vela/controls/window/click_counter.h"
#include "vela/controls/window/window_diagnostics.h"
#include "vela/controls/window/window_geometry.h"
#include "vela/rect_win32.h"
#include "vela/render/gdi/dib_gdi.h"

#include <optional>
#include <vector>

#include <windows.h>

namespace vela {

inline constexpr wchar_t kWindowClass[] = L"VelaDesignWindow";
inline constexpr UINT_PTR kWindowTimer = 1201;
inline constexpr UINT kWindowTimerPeriod = 125; // milliseconds

// The monitor a window is on, or would open on, and what of it programs may cover.
struct MonitorAreas {
    Rect monitor;
    Rect work;
    std::int32_t dpi = 96;
};
MonitorAreas monitorAreas(HMONITOR monitor) noexcept;

class TaskbarList;
class TooltipWindow;

class Window::Native {
public:
    Native(Window& window, WindowState& state) noexcept;
    ~Native();
    Native(const Native&) = delete;
    Native& operator=(const Native&) = delete;

    bool create(HINSTANCE instance, Size client, WindowStyle style, HWND owner);
    // The window's corners, shadow and border, its shape where it is no plain rectangle, and its icons.
    void dressFrame();
    void applyShape();
    void loadIcons(HINSTANCE instance);
    void beginMove();
    void blockShutdown() const noexcept;
    void showTaskbarStatus(const TaskbarStatus& status);
    void refreshTaskbar();
    void captureMouse(bool capture);
    // Client pixels, painted when Windows next asks.
    void invalidate(const Rect& rect);
    void invalidateAll();
    void readClientSize();
    Size frameExtra() const noexcept;
    Rect workArea() const noexcept; // of the monitor that shows the window
    TextServices& textServices() noexcept;

private:
    // Messages (window_procedure_win32.cpp).
    static LRESULT CALLBACK procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    static bool registerClass(HINSTANCE instance) noexcept;
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT passOn(UINT message, WPARAM wParam, LPARAM lParam) const noexcept;

    // Life (window_lifecycle_win32.cpp).
    LRESULT onCreate();
    LRESULT onDestroy();
    LRESULT onActivate(WPARAM wParam, LPARAM lParam);
    LRESULT onActivateApp(WPARAM wParam, LPARAM lParam);
    LRESULT onFocus(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT onSettingChange(WPARAM wParam, LPARAM lParam);
    LRESULT onDisplayChange(WPARAM wParam, LPARAM lParam);
    LRESULT onSystemLook(UINT message, WPARAM wParam, LPARAM lParam);
    void deactivate();
    void restyle();
    void repaintText();

    // From tick to tick (window_timer_win32.cpp).
    LRESULT onTimer(WPARAM wParam, LPARAM lParam);
    void moveLights(std::uint32_t elapsed);
    void updateTooltip(std::uint64_t now);
    void dismissTooltip();

    // Frame (window_frame_win32.cpp).
    LRESULT onMove();
    LRESULT onSize(WPARAM wParam);
    LRESULT onSizeMove(bool inside) noexcept;
    LRESULT onMinMaxInfo(MINMAXINFO& info) const;
    LRESULT onNcHitTest(LPARAM lParam) const;
    LRESULT onNcDoubleClick(WPARAM wParam, LPARAM lParam) const;
    LRESULT onFrameMessage(UINT message, WPARAM wParam, LPARAM lParam) const noexcept;
    LRESULT onSizing(WPARAM edge, RECT& proposed) const;
    FrameFacts frameFacts(Point cursorScreen) const;

    // Scale (window_scale_win32.cpp).
    LRESULT onDpiChanged(WPARAM wParam, const RECT& suggested);
    std::int32_t scaleFor(const Rect& workArea, std::int32_t monitorDpi, Size frame) const noexcept;
    Rect rescaled(const Rect& place, std::int32_t scale);
    void refreshMetrics();

    // Desktop (window_desktop_win32.cpp).
    LRESULT onQueryEndSession(WPARAM wParam, LPARAM lParam) const;
    LRESULT onRegisteredMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void admitTaskbar() const noexcept;

    // Input (window_input_win32.cpp).
    LRESULT onMouseMove(LPARAM lParam);
    LRESULT onMouseLeave();
    void clearHover();
    LRESULT onMouseButton(UINT message, LPARAM lParam);
    LRESULT onMouseWheel(WPARAM wParam, LPARAM lParam);
    LRESULT onContextMenu(WPARAM wParam, LPARAM lParam);
    LRESULT onCaptureChanged(LPARAM lParam);
    LRESULT onSetCursor(WPARAM wParam, LPARAM lParam) const;
    LRESULT onKeyDown(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT onKeyUp(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT onCharacter(WPARAM wParam);
    LRESULT onImeComposition(UINT message, WPARAM wParam, LPARAM lParam) const;
    void pressDebugKey(const KeyEvent& event);

    // Painting (window_paint_gdi.cpp).
    void noteDamage(const Rect& rect) noexcept;
    LRESULT onShowWindow(WPARAM wParam, LPARAM lParam);
    LRESULT onPaint();
    LRESULT onPrintClient(HDC dc);
    void paintTree(HDC dc);
    bool fitBackBuffer();
    bool hasBackBuffer() const noexcept { return backBuffer_ && *backBuffer_; }
    bool paintBuffer(const std::vector<Rect>& parts);
    void paintAhead();

    Window& window_; // for what is public, and for what its subclasses make of a message
    WindowState& state_;
    Size designClient_;            // 96-DPI pixels, as given to `create`
    HMONITOR monitor_ = nullptr;   // that shows the window
    std::int32_t monitorDpi_ = 96; // of the standard frame and the icons
    std::optional<DibSurface> backBuffer_;
    bool allDamaged_ = true;      // until the next paint: nothing more can be damaged
    bool isPaintedAhead_ = false; // the back buffer holds the whole picture, but for the damage since
    Rect damage_;                 // around all since the last painting
    bool isDamageScattered_ = false;
    OwnedIcon smallIcon_;
    OwnedIcon largeIcon_;
    ClickCounter clicks_;
    std::unique_ptr<TooltipWindow> tooltip_;
    const Control* tooltipFor_ = nullptr; // compared, never used
    WindowsTextServices textServices_;
    std::optional<Point> pointerAtStart_; // on the screen, until it moves
    std::uint64_t lastTick_ = 0;
    MovingLights lights_;
    wchar_t highSurrogate_ = 0;
    std::unique_ptr<TaskbarList> taskbar_;
    bool hasTaskbarButton_ = false;
    bool minimised_ = false;
    bool shaped_ = false;
    bool trackingLeave_ = false;
    bool snapshotDown_ = false;
};

} // namespace vela
