// The application in its install folder: is it the one this setup carries, and starting it.
#pragma once

#include "app/effects/setup_effects.h"

namespace setup {

// True when the file carries exactly the setup's own version; else false with the sentence for the user.
bool verifyInstalledVersion(SetupEffects& effects, const std::wstring& exePath, std::wstring& message);

// Starts it hidden, to prepare its local tools. An application that does not start is no failed install.
void startInBackground(SetupEffects& effects, const std::wstring& exePath);

// Starts it visibly; false when it is not of the setup's version or did not start.
bool launchInstalledApp(SetupEffects& effects, const std::wstring& installDir);

} // namespace setup
