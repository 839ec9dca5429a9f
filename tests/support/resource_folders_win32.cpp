// The resource folders of the Windows tests. They are set before the first test runs; a test that wants
// something in one of them makes it.
#include "vela/resource_folders.h"

namespace vela::testing {
namespace {

[[maybe_unused]] const bool kAreSet = [] {
    const std::wstring build = L"" TAMBER_BINARY_DIR;
    setResourceFolders({.skins = {build + L"\\skins"}, .fonts = build + L"\\private-fonts", .bitmaps = {}});
    return true;
}();

} // namespace
} // namespace vela::testing
