// The taskbar's buttons, through COM.
#pragma once

#include "vela/com_apartment_win32.h"
#include "vela/com_pointer_win32.h"
#include "vela/controls/system/taskbar_progress.h"

#include <shobjidl.h>

namespace vela {

// Does nothing where there is no taskbar. Belongs to the thread that made it.
class TaskbarList {
public:
    TaskbarList() noexcept;
    void show(HWND window, const TaskbarStatus& status) noexcept;

private:
    ComApartment apartment_; // first: it outlives the reference
    ComPointer<ITaskbarList3> list_;
};

} // namespace vela
