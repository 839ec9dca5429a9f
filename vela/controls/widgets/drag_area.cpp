#include "vela/controls/widgets/drag_area.h"

#include "vela/controls/tree/command_event.h"

#include <utility>

namespace vela {

void DragArea::setSender(std::wstring id, std::wstring text)
{
    senderId_ = std::move(id);
    text_ = std::move(text);
}

bool DragArea::mouseButton(const MouseEvent& event)
{
    if (event.action != MouseAction::Press || event.button != MouseButton::Left || !window() ||
        !isVisible() || !isEnabled() || !containsLocal(event.position))
        return false;
    CommandEvent command;
    command.controlId = senderId_;
    command.action = event.clicks == 2 && !doubleClickAction_.empty() ? doubleClickAction_ : L"drag";
    command.text = text_;
    raise(command);
    return true;
}

} // namespace vela
