#include "app/run/user_folders.h"

#include "tests/app/recording_effects.h"

#include <gtest/gtest.h>

namespace setup {
namespace {

using test::RecordingEffects;

TEST(UserFolders, FallBackToTheEnvironment)
{
    RecordingEffects effects;
    effects.folders = {{KnownFolder::LocalAppData, L"D:\\Local"}};
    EXPECT_EQ(userDataFolder(effects), L"D:\\Local\\Tamber");
    EXPECT_EQ(desktopShortcutPath(effects), L"%USERPROFILE%\\Desktop\\Tamber.lnk");
    effects.folders.clear();
    EXPECT_EQ(userDataFolder(effects), L"%LOCALAPPDATA%\\Tamber");
}

} // namespace
} // namespace setup
