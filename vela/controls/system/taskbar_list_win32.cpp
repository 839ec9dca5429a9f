#include "vela/controls/system/taskbar_list_win32.h"

#include <algorithm>
#include <iterator>

namespace vela {

namespace {

struct StateRow {
    TaskbarProgress state;
    TBPFLAG flag;
    bool measured;
};
constexpr StateRow kStates[] = {
    {TaskbarProgress::None, TBPF_NOPROGRESS, false},
    {TaskbarProgress::Indeterminate, TBPF_INDETERMINATE, false},
    {TaskbarProgress::Running, TBPF_NORMAL, true},
    {TaskbarProgress::Paused, TBPF_PAUSED, true},
    {TaskbarProgress::Failed, TBPF_ERROR, true},
};

} // namespace

TaskbarList::TaskbarList() noexcept
{
    const HRESULT made = ::CoCreateInstance(__uuidof(::TaskbarList), nullptr, CLSCTX_INPROC_SERVER,
                                            __uuidof(ITaskbarList3), list_.putVoid());
    if (FAILED(made) || FAILED(list_->HrInit()))
        list_.reset();
}

void TaskbarList::show(HWND window, const TaskbarStatus& status) noexcept
{
    const auto* const row = std::ranges::find(kStates, status.state, &StateRow::state);
    if (!list_ || row == std::end(kStates))
        return;
    // The value first: with it the button turns to ordinary progress.
    if (row->measured)
        list_->SetProgressValue(window, static_cast<ULONGLONG>(status.percent), 100);
    list_->SetProgressState(window, row->flag);
}

} // namespace vela
