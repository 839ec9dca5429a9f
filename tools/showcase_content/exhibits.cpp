#include "tools/showcase_content/exhibits.h"

#include "vela/controls/tree/control_host.h"

namespace showcase {

using vela::Control;
using vela::Rect;

namespace {

Rect roomAround(const Rect& rect) noexcept
{
    return {rect.x - kStageRoom, rect.y - kStageRoom, rect.width + 2 * kStageRoom,
            rect.height + 2 * kStageRoom};
}

} // namespace

// The real window, but for the one answer about who has the focus.
class FocusStage::Host final : public vela::ControlHost {
public:
    explicit Host(const Control& focused) noexcept : focused_(focused) {}

    void setWindow(ControlHost* window) noexcept { window_ = window; }

    const Control* focusedControl() const override { return &focused_; }
    bool showsFocus() const override { return true; }

    bool isAlive() const override { return window_ && window_->isAlive(); }
    Rect clientRect() const override { return window_ ? window_->clientRect() : Rect{}; }
    void invalidateClient(const Rect& rect, vela::InvalidationReason reason) override
    {
        if (window_)
            window_->invalidateClient(rect, reason);
    }
    void dispatchCommand(vela::CommandEvent&) override {} // nothing here is ever pressed
    void captureMouse(Control*) override {}
    void focusControl(Control*) override {}
    void controlDetached(Control& control) override
    {
        if (window_)
            window_->controlDetached(control);
    }
    bool isMaximised() const override { return window_ && window_->isMaximised(); }
    bool diagnosticsEnabled() const override { return window_ && window_->diagnosticsEnabled(); }
    void writeDiagnostic(std::wstring_view line) override
    {
        if (window_)
            window_->writeDiagnostic(line);
    }

private:
    ControlHost* window_ = nullptr;
    const Control& focused_;
};

FocusStage::FocusStage(std::unique_ptr<Control> control, const Control& focused)
    : StillPanel(control->id() + L".stage", roomAround(control->bounds())),
      host_(std::make_unique<Host>(focused))
{
    const Rect at = control->bounds();
    control->setBounds({kStageRoom, kStageRoom, at.width, at.height});
    add(std::move(control));
}

FocusStage::~FocusStage() = default;

void FocusStage::attachToWindow()
{
    host_->setWindow(window());
    for (Control* child : children())
        child->attach(host_.get());
}

void FittedTitleBar::onStyleApplied()
{
    ChromeTitleBar::onStyleApplied();
    setBounds({bounds().x, bounds().y, bounds().width, preferredHeight()});
}

} // namespace showcase
