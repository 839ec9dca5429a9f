#include "tools/showcase/file_watch.h"

#include <gtest/gtest.h>

namespace showcase {
namespace {

TEST(ShowcaseFileWatchTest, AFileIsReadOnceItHasChangedAndRested)
{
    FileWatch watch;
    const FileStamp first{true, 100, 10};
    watch.markRead(first);
    EXPECT_FALSE(watch.tick(first));
    EXPECT_FALSE(watch.tick(first));
    EXPECT_FALSE(watch.tick({true, 101, 0})) << "its writer has just emptied it";
    EXPECT_FALSE(watch.tick({true, 102, 12}));
    EXPECT_TRUE(watch.tick({true, 102, 12}));
    EXPECT_TRUE(watch.tick({true, 102, 12})) << "it could not be read and is tried again";
    watch.markRead({true, 102, 12});
    EXPECT_FALSE(watch.tick({true, 102, 12}));
    EXPECT_FALSE(watch.tick({})) << "gone, perhaps to be renamed";
    EXPECT_TRUE(watch.tick({}));
}

} // namespace
} // namespace showcase
