// Paths as text: nothing here looks at a disk.
#pragma once

#include <string>
#include <string_view>

namespace setup {

// The folder that the user or caller meant: without white space around it and without trailing separators,
// the default folder when nothing is left. A drive root keeps its backslash. Applied twice it changes nothing
// more, apart from blanks that stood before a trailing separator.
std::wstring normalizeInstallFolder(std::wstring_view text);

// `folder` and `name` with exactly one separator between them; just the name when there is no folder.
std::wstring joinPath(std::wstring_view folder, std::wstring_view name);

// The folder that holds `path`; a drive root keeps its backslash, and a root or a bare name has none.
std::wstring parentFolder(std::wstring_view path);

// The folder to install into when the user picked `folder`: the product's own folder, in there unless it is
// the one already.
std::wstring pickedInstallFolder(std::wstring_view folder);

// The form of a full path that Windows takes at any length. Such a path must already be free of "." and ".."
// and of forward slashes, because Windows no longer looks for them in it.
std::wstring extendedPath(std::wstring_view fullPath);

} // namespace setup
