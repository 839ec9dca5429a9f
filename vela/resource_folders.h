// Where the process finds its skins, and what belongs to them.
#pragma once

#include <string>
#include <vector>

namespace vela {

struct ResourceFolders {
    // In order: what is found first wins, so that a user's own skins can stand before those of the program.
    std::vector<std::wstring> skins;
    // Its font files become known to this process alone; empty: there are none.
    std::wstring fonts;
    // To which the paths of bitmaps in skins are relative; empty: surfaces have none.
    std::wstring bitmaps;
};

// To be called once, at the start: skins, fonts and bitmaps are read when they are first asked for.
void setResourceFolders(ResourceFolders folders);

// It is an error to ask before they are set. A debug build stops; otherwise there are no folders.
const ResourceFolders& resourceFolders();

} // namespace vela
