#include "app/dialogs/progress_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace setup {
namespace {

using ::testing::ElementsAre;

TEST(ProgressCycle, FillsAndBeginsAnew)
{
    std::vector<std::int32_t> values{kFirstProgress};
    while (values.size() < 16)
        values.push_back(nextProgress(values.back()));
    EXPECT_THAT(values, ElementsAre(8, 15, 22, 29, 36, 43, 50, 57, 64, 71, 78, 85, 92, 18, 25, 32));
}

} // namespace
} // namespace setup
