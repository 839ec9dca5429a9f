// The files of a folder, as Windows enumerates them.
#pragma once

#include <string>
#include <vector>

namespace vela {

// Their names, in the file system's own order, without subfolders; none when the folder is missing.
std::vector<std::wstring> fileNamesIn(const std::wstring& folder);

} // namespace vela
