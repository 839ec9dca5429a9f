#include "tools/showcase/live_showcase_win32.h"

#include "tests/support/test_window_win32.h"
#include "tools/showcase_content/content.h"
#include "vela/render/bitmaps/surface_bitmaps.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace showcase {
namespace {

using vela::testing::drainMessages;
using vela::testing::drainUntil;

// A skin file that is written while the showcase watches it.
class LiveShowcaseTest : public ::testing::Test {
protected:
    ~LiveShowcaseTest() override
    {
        vela::setBitmapFolder({});
        std::error_code ignored;
        std::filesystem::remove(file, ignored);
    }

    void write(const std::string& text) const { std::ofstream(file, std::ios::binary) << text; }
    static std::string skinWith(const std::string& panel)
    {
        return R"({"id": "harbour", "name": "Harbour", "surface_mode": "flat-2d", "shapes": {"panel": "rectangle"},
                   "theme": {"panel": ")" +
               panel + R"("}})";
    }
    Arguments arguments() const { return {{}, file.wstring(), 96}; }

    // Between the rows of the page nothing stands but the panel itself.
    static vela::Pixel ground(LiveShowcase& live)
    {
        const auto picture = live.window().picture();
        return picture->pixels().row(kTitleBarHeight + 8)[12] & 0xFFFFFF;
    }
    static std::wstring notice(const LiveShowcase& live) { return live.notice().accessibleInfo().value; }
    // Two ticks and a repaint, a second at most where nothing else runs; tests run beside others.
    static constexpr DWORD kSoon = 3000;

    std::filesystem::path file = std::filesystem::temp_directory_path() /
                                 ("showcase-" + std::to_string(::GetCurrentProcessId()) + ".json");
};

TEST_F(LiveShowcaseTest, AChangedFileIsShownWithinASecondAndAWrongOneKeepsTheLook)
{
    write(skinWith("#102030"));
    LiveShowcase live(arguments(), {}, {});
    live.window().setQuitOnDestroy(false);
    ASSERT_TRUE(live.open());
    const vela::Pixel first = ground(live);
    EXPECT_FALSE(live.notice().isOpen());

    write(skinWith("#704020"));
    EXPECT_TRUE(
        drainUntil(kSoon, [&] { return live.shelf().skin().theme.panel != vela::hexColor(0x102030); }));
    const vela::Pixel second = ground(live);
    EXPECT_NE(second, first);
    EXPECT_FALSE(live.notice().isOpen());

    write(skinWith("#20FF"));
    EXPECT_TRUE(drainUntil(kSoon, [&] { return live.notice().isOpen(); }));
    EXPECT_NE(notice(live).find(L"error: \"#20FF\" is not a colour"), std::wstring::npos);
    EXPECT_EQ(ground(live), second);

    std::filesystem::remove(file);
    EXPECT_TRUE(
        drainUntil(kSoon, [&] { return notice(live).find(L"cannot be read") != std::wstring::npos; }));
    EXPECT_EQ(ground(live), second);

    write(skinWith("#102030"));
    EXPECT_TRUE(drainUntil(kSoon, [&] { return !live.notice().isOpen(); }));
    EXPECT_EQ(ground(live), first);
}

TEST_F(LiveShowcaseTest, AFileThatItsWriterHoldsIsTriedAgain)
{
    write(skinWith("#102030"));
    LiveShowcase live(arguments(), {}, {});
    live.window().setQuitOnDestroy(false);
    ASSERT_TRUE(live.open());
    const vela::Pixel first = ground(live);
    const HANDLE held = ::CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, TRUNCATE_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    const std::string text = skinWith("#704020");
    DWORD written = 0;
    ::WriteFile(held, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    drainMessages(1000);
    EXPECT_EQ(ground(live), first);
    ::CloseHandle(held);
    EXPECT_TRUE(drainUntil(kSoon, [&] { return ground(live) != first; }));
    EXPECT_FALSE(live.notice().isOpen());
}

TEST_F(LiveShowcaseTest, KeysAndButtonsSwitchSkinPageAndScale)
{
    write(R"([{"id": "one"}, {"id": "two"}])");
    LiveShowcase live(arguments(), {}, {});
    live.window().setQuitOnDestroy(false);
    ASSERT_TRUE(live.open());
    const auto press = [&live](WPARAM key) { ::SendMessageW(live.window().handle(), WM_KEYDOWN, key, 0); };
    press(VK_RIGHT);
    EXPECT_EQ(live.shelf().skin().id, L"two");
    static_cast<vela::ThemedButton*>(findControl(live.window().root(), L"chrome-header-action-1"))
        ->activate();
    EXPECT_EQ(live.shelf().skin().id, L"one");
    live.window().focusControl(findControl(live.window().root(), L"live.input"));
    press(VK_RIGHT);
    EXPECT_EQ(live.shelf().skin().id, L"one") << "the arrow is the field's";
    press(VK_NEXT);
    press(VK_F1);
    EXPECT_TRUE(live.notice().isOpen());
    static_cast<vela::ThemedButton*>(findControl(live.window().root(), L"notice.close"))->activate();
    drainMessages();
    EXPECT_FALSE(live.notice().isOpen());
    EXPECT_TRUE(live.window().isAlive()) << "the notice was closed, not the window";
    live.window().changeDpi(192);
    EXPECT_EQ(live.window().picture()->size().width, 2 * kClientSize.width);
}

} // namespace
} // namespace showcase
