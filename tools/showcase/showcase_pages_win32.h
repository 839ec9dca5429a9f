// All pages of the showcase: the toolkit's controls, and the setup's own windows as their code makes them.
#pragma once

#include "tools/showcase_content/content.h"

#include <span>

namespace showcase {

std::span<const Page> pages() noexcept;

} // namespace showcase
