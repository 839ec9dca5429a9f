#include "app/dialogs/setup_skins.h"

#include "tests/app/recording_effects.h"

#include <gtest/gtest.h>

namespace setup {
namespace {

using test::Calls;
using test::RecordingEffects;

TEST(SetupSkins, TheOwnFolderIsWrittenAnewAndLeftOutWhenItCannotBe)
{
    const std::wstring beside = L"C:\\Downloads\\skins";
    const std::wstring own = L"D:\\Local\\Tamber\\setup-skins";
    const struct {
        std::wstring failingCall;
        std::vector<std::wstring> folders;
        Calls calls;
    } rows[] = {
        {L"", {beside, own}, {L"create " + own, L"skins " + own + L"\\00-vela-default-skins.json"}},
        {L"create", {beside}, {L"create " + own}},
        {L"skins", {beside}, {L"create " + own, L"skins " + own + L"\\00-vela-default-skins.json"}},
    };
    for (const auto& row : rows) {
        RecordingEffects effects;
        effects.folders = {{KnownFolder::LocalAppData, L"D:\\Local"}};
        effects.failingCall = row.failingCall;
        effects.failure = 5;
        EXPECT_EQ(prepareSkinFolders(effects), row.folders);
        EXPECT_EQ(effects.calls, row.calls);
        EXPECT_EQ(effects.log.empty(), row.failingCall.empty());
    }
}

} // namespace
} // namespace setup
