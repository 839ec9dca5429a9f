#include "app/run/running_app.h"

#include "tests/app/recording_effects.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace setup {
namespace {

using test::Calls;
using test::RecordingEffects;
using ::testing::ElementsAreArray;

const std::wstring kPost = L"post 34649";

struct Row {
    const char* name;
    bool windowless;
    bool deaf;
    std::wstring failingCall;
    Calls calls; // after the list of processes
    Calls log;
};

TEST(RunningApp, IsAskedToCloseAndTerminatedOnlyWhenItStays)
{
    const std::wstring closed = L"close running application: ok (17)";
    const std::wstring terminated = L"terminate running application: ok (17)";
    const Row rows[] = {
        {"polite", false, false, L"", {L"open 17", kPost, L"wait 5000"}, {closed}},
        {"deaf",
         false,
         true,
         L"",
         {L"open 17", kPost, L"wait 5000", L"reopen 17", L"terminate", L"wait 1500"},
         {terminated}},
        {"windowless",
         true,
         false,
         L"",
         {L"open 17", kPost, L"reopen 17", L"terminate", L"wait 1500"},
         {terminated}},
        {"not to be opened",
         false,
         false,
         L"open",
         {L"open 17"},
         {L"open running application: failed, error 5 (17)"}},
        {"not to be waited for", false, false, L"wait", {L"open 17", kPost, L"wait 5000"}, {closed}},
        {"not to be opened again",
         true,
         false,
         L"reopen",
         {L"open 17", kPost, L"reopen 17"},
         {L"terminate running application: failed, error 5 (17)"}},
        {"not to be terminated",
         true,
         false,
         L"terminate",
         {L"open 17", kPost, L"reopen 17", L"terminate"},
         {L"terminate running application: failed, error 5 (17)"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        RecordingEffects effects;
        effects.processes = {{17, L"Tamber.exe"}};
        effects.windowless = row.windowless;
        effects.deaf = row.deaf;
        effects.failingCall = row.failingCall;
        effects.failure = 5;
        closeRunningApp(effects);
        Calls expected{L"processes"};
        expected.insert(expected.end(), row.calls.begin(), row.calls.end());
        EXPECT_THAT(effects.calls, ElementsAreArray(expected));
        EXPECT_THAT(effects.log, ElementsAreArray(row.log));
    }
}

TEST(RunningApp, IsKnownByItsFileNameAndHandledInOrder)
{
    RecordingEffects effects;
    effects.processes = {{4, L"System"},           {4242, L"Tamber.exe"}, {30, L"tamber.EXE"},
                         {31, L"TamberSetup.exe"}, {32, L"MyTamber.exe"}, {20, L"Tamber.exe"}};
    closeRunningApp(effects);
    EXPECT_THAT(effects.calls, ElementsAreArray(Calls{L"processes", L"open 30", kPost, L"wait 5000",
                                                      L"open 20", kPost, L"wait 5000"}));
}

} // namespace
} // namespace setup
