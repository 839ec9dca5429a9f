#include "vela/controls/widgets/pressable.h"

namespace vela {

bool Pressable::mouseButton(const MouseEvent& event)
{
    if (event.button != MouseButton::Left || !isVisible() || !isEnabled())
        return false;
    if (event.action == MouseAction::Press && containsLocal(event.position)) {
        armed_ = true;
        setPressed(true);
        if (window()) {
            window()->captureMouse(this);
            window()->focusControl(this);
        }
        return true;
    }
    if (event.action != MouseAction::Release || !armed_)
        return false;
    const bool inside = containsLocal(event.position);
    disarm();
    // Last: the handler may destroy this control.
    if (inside)
        activate();
    return true;
}

void Pressable::mouseDragged(Point position) { setPressed(armed_ && containsLocal(position)); }

void Pressable::mouseCaptureLost()
{
    armed_ = false;
    setPressed(false);
}

void Pressable::disarm()
{
    mouseCaptureLost();
    if (window())
        window()->captureMouse(nullptr);
}

bool Pressable::keyPressed(const KeyEvent& event)
{
    const bool activates = event.key == kKeySpace || event.key == kKeyReturn;
    if (!activates || event.modifiers != KeyModifiers{} || !isEnabled())
        return false;
    // A held key must not toggle back and forth or press a button again and again.
    if (!event.repeated)
        activate();
    return true;
}

} // namespace vela
