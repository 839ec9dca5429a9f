// Running copies of the application, whose files the installer could not replace.
#pragma once

#include "app/effects/setup_effects.h"

namespace setup {

// The window message that the application takes, at any of its unowned top-level windows, as a request to
// shut down cleanly.
inline constexpr std::uint32_t kCloseRequest = 0x8759;

// Waits for one process and kills nothing. Returns at once for 0, for the setup itself and for a process that
// cannot be opened.
void waitForProcessExit(SetupEffects& effects, std::uint32_t id, std::uint32_t milliseconds);

// Asks every running copy to close, waits a bounded time and terminates what is left. Never fails: a file
// still held shows in the exit code of the installer run that follows.
void closeRunningApp(SetupEffects& effects);

} // namespace setup
