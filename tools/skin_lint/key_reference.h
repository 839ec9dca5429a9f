// The reference of every key a skin may use, as Markdown, made from the descriptions by which skins are read.
#pragma once

#include <string>

namespace vela::lint {

std::string keyReference();

} // namespace vela::lint
