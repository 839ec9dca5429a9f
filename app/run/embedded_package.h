// The application's installer package, from inside this program to a file that nobody can change.
#pragma once

#include "app/effects/setup_effects.h"

namespace setup {

// Writes the package file; else false with the sentence for the user.
bool extractEmbeddedPackage(SetupEffects& effects, const std::wstring& package, std::wstring& message);

// Writes the package file and keeps others from changing it, or fails with the sentence for the user.
vela::Outcome<std::unique_ptr<PackagePin>, std::wstring> preparePackage(SetupEffects& effects,
                                                                        const std::wstring& package);

} // namespace setup
