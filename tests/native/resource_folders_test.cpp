// Of the native tests only: those for Windows set the folders at their start, as every program does.
#include "vela/resource_folders.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(ResourceFolders, AreSetOnceBeforeAnybodyAsks)
{
    EXPECT_DEATH(resourceFolders(), "made");
    setResourceFolders({.skins = {L"own", L"ours"}, .fonts = L"fonts", .bitmaps = L"own"});
    EXPECT_EQ(resourceFolders().skins, (std::vector<std::wstring>{L"own", L"ours"}));
    EXPECT_EQ(resourceFolders().fonts, L"fonts");
    EXPECT_EQ(resourceFolders().bitmaps, L"own");
    EXPECT_DEATH(setResourceFolders({}), "made");
}

} // namespace
} // namespace vela
