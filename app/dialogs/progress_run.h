// A task on a thread of its own while the progress dialog is up.
#pragma once

#include "app/cli/setup_screens.h"
#include "app/dialogs/setup_dialog.h"

namespace setup {

// Returns the task's result after the task has ended and the dialog is gone, whatever ended the dialog. A
// task that throws gives the result of a run that broke off. Without a window or a thread the task runs on
// this one.
SetupActionResult runWithProgress(DialogHost host, std::wstring_view title, std::wstring_view body,
                                  const SetupTask& task);

} // namespace setup
