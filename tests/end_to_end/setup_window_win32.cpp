#include "tests/end_to_end/setup_window_win32.h"

#include "app/dialogs/choice_dialog.h"
#include "app/dialogs/notice_dialog.h"
#include "app/dialogs/progress_dialog.h"
#include "app/dialogs/setup_skins.h"
#include "tests/support/test_window_win32.h"
#include "tools/png_file_win32.h"
#include "vela/com_apartment_win32.h"
#include "vela/render/gdi/dib_gdi.h"
#include "vela/resource_folders.h"
#include "vela/theme/skins/style_sections.h"
#include "vela/theme/skins/system_skins.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <utility>

#include <gtest/gtest.h>

namespace end_to_end {
namespace {

using vela::testing::Desktop;

constexpr std::wstring_view kWindowClass = L"VelaDesignWindow";

setup::DialogHost planHost()
{
    static const auto sheet = [] {
        vela::setResourceFolders({.skins = {source(L"resources")}, .fonts = {}, .bitmaps = {}});
        return std::make_shared<const vela::StyleSheet>(
            vela::buildStyleSheet(vela::skinCatalog().find(setup::kSetupSkin)));
    }();
    return {::GetModuleHandleW(nullptr), [] { return sheet; }};
}

std::wstring classOf(HWND window)
{
    std::wstring name(256, L'\0');
    name.resize(static_cast<std::size_t>(::GetClassNameW(window, name.data(), 256)));
    return name;
}

HWND windowTitled(DWORD processId, std::wstring_view title)
{
    for (const HWND window : visibleWindows(processId)) {
        if (classOf(window) == kWindowClass && titleOf(window) == title)
            return window;
    }
    return nullptr;
}

std::string titlesOf(DWORD processId)
{
    std::string titles;
    for (const HWND window : visibleWindows(processId))
        titles += ::testing::PrintToString(titleOf(window)) + ' ';
    return titles;
}

vela::Size clientSize(HWND window)
{
    RECT client{};
    ::GetClientRect(window, &client);
    return {client.right, client.bottom};
}

std::wstring screenshotFolder()
{
    std::wstring folder = builtFile(L"..\\..\\screenshots");
    std::filesystem::create_directories(folder);
    return folder;
}

void typeCharacter(wchar_t character)
{
    constexpr int kShift = 1;
    const SHORT key = ::VkKeyScanW(character);
    if (HIBYTE(key) == 0)
        return press(LOBYTE(key));
    if (HIBYTE(key) == kShift)
        return press(LOBYTE(key), {VK_SHIFT});
    // The keyboard has no key for it.
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = character;
    input.ki.dwFlags = KEYEVENTF_UNICODE;
    ::SendInput(1, &input, sizeof input);
    input.ki.dwFlags |= KEYEVENTF_KEYUP;
    ::SendInput(1, &input, sizeof input);
}

} // namespace

std::wstring clipboardText()
{
    std::wstring text;
    if (!::OpenClipboard(nullptr))
        return text;
    if (const HANDLE data = ::GetClipboardData(CF_UNICODETEXT)) {
        if (const auto* const characters = static_cast<const wchar_t*>(::GlobalLock(data)))
            text = characters;
        ::GlobalUnlock(data);
    }
    ::CloseClipboard();
    return text;
}

DialogPlan::DialogPlan(setup::SetupDialog& dialog) : height_(dialog.designSize().height)
{
    dialog.root().setBounds({0, 0, dialog.designSize().width, height_});
    std::vector<vela::Control*> waiting{&dialog.root()};
    while (!waiting.empty()) {
        const vela::Control& control = *waiting.back();
        waiting.pop_back();
        if (control.isVisible())
            places_.emplace(control.id(), control.windowRect().value_or(vela::Rect{}));
        waiting.insert(waiting.end(), control.children().begin(), control.children().end());
    }
}

vela::Point DialogPlan::middleOf(std::wstring_view id, std::int32_t clientHeight) const
{
    const auto place = places_.find(id);
    if (place == places_.end()) {
        ADD_FAILURE() << "there is no " << ::testing::PrintToString(std::wstring(id));
        return {};
    }
    const vela::Rect& rect = place->second;
    const std::int32_t below = rect.y > height_ / 2 ? clientHeight - height_ : 0;
    return {rect.x + rect.width / 2, rect.y + rect.height / 2 + below};
}

const DialogPlan& installPlan()
{
    static const DialogPlan plan = [] {
        setup::ChoiceDialog dialog(planHost(), {});
        return DialogPlan(dialog);
    }();
    return plan;
}

const DialogPlan& installedPlan()
{
    static const DialogPlan plan = [] {
        setup::ChoiceDialog dialog(planHost(), {.installed = true, .choice = {}});
        return DialogPlan(dialog);
    }();
    return plan;
}

const DialogPlan& progressPlan()
{
    static const DialogPlan plan = [] {
        setup::ProgressDialog dialog(planHost(), L"", L"");
        return DialogPlan(dialog);
    }();
    return plan;
}

const DialogPlan& noticePlan()
{
    static const DialogPlan plan = [] {
        setup::NoticeDialog dialog(planHost(), {});
        return DialogPlan(dialog);
    }();
    return plan;
}

SetupWindow::SetupWindow(const Program& setup, std::wstring_view title, const DialogPlan& plan) : plan_(&plan)
{
    const bool came = eventually([&] {
        window_ = windowTitled(setup.id(), title);
        return window_ != nullptr || !setup.runs();
    });
    if (!came || !window_)
        throw std::runtime_error("no window " + ::testing::PrintToString(std::wstring(title)) + " but " +
                                 titlesOf(setup.id()));
    if (!eventually([this] { return ::GetForegroundWindow() == window_; }))
        throw std::runtime_error("behind " + ::testing::PrintToString(titleOf(::GetForegroundWindow())));
    // It answers once it has painted itself.
    ::SendMessageTimeoutW(window_, WM_NULL, 0, 0, SMTO_NORMAL, kPatienceMilliseconds, nullptr);
}

vela::Point SetupWindow::onScreen(std::wstring_view id) const
{
    const vela::Point middle = plan_->middleOf(id, clientSize(window_).height);
    POINT point{middle.x, middle.y};
    ::ClientToScreen(window_, &point);
    return {point.x, point.y};
}

void SetupWindow::pointAt(std::wstring_view id) const { Desktop::pointer(onScreen(id), 0); }

void SetupWindow::click(std::wstring_view id) const
{
    const vela::Point at = onScreen(id);
    Desktop::pointer(at, MOUSEEVENTF_LEFTDOWN);
    Desktop::pointer(at, MOUSEEVENTF_LEFTUP);
}

void press(WORD key, std::initializer_list<WORD> held)
{
    for (const WORD modifier : held)
        Desktop::keyHalf(modifier, true);
    Desktop::key(key);
    for (const WORD modifier : held)
        Desktop::keyHalf(modifier, false);
}

void type(std::wstring_view text) { std::for_each(text.begin(), text.end(), typeCharacter); }

std::vector<vela::Pixel> SetupWindow::picture() const
{
    RECT client{};
    ::GetClientRect(window_, &client);
    POINT corner{};
    ::ClientToScreen(window_, &corner);
    const vela::DibSurface copy({client.right, client.bottom});
    const HDC screen = ::GetDC(nullptr);
    ::BitBlt(copy.dc(), 0, 0, client.right, client.bottom, screen, corner.x, corner.y, SRCCOPY);
    ::ReleaseDC(nullptr, screen);
    const vela::PixelView pixels = copy.pixels();
    return {pixels.pixels, pixels.pixels + pixels.stride * pixels.size.height};
}

std::vector<vela::Pixel> SetupWindow::restingPicture() const
{
    constexpr int kRounds = 20;
    constexpr DWORD kRest = 100; // milliseconds
    std::vector<vela::Pixel> current = picture();
    std::vector<vela::Pixel> previous;
    // A window that is never at rest is taken as it is.
    for (int round = 0; round < kRounds && current != previous; ++round) {
        ::Sleep(kRest);
        previous = std::exchange(current, picture());
    }
    return current;
}

bool SetupWindow::hasDangerLook() const
{
    constexpr int kMuch = 200; // pixels
    const std::vector<vela::Pixel> pixels = restingPicture();
    return std::count_if(pixels.begin(), pixels.end(), [](vela::Pixel pixel) {
               const unsigned red = pixel >> 16 & 0xFF;
               return red > 128 && red > 2 * (pixel >> 8 & 0xFF) && red > 2 * (pixel & 0xFF);
           }) > kMuch;
}

void SetupWindow::savePicture(const std::wstring& name) const
{
    const vela::ComApartment apartment;
    std::vector<vela::Pixel> pixels = restingPicture();
    const vela::Size size = clientSize(window_);
    EXPECT_TRUE(
        tools::writePng(screenshotFolder() + L"\\" + name + L".png", {pixels.data(), size, size.width}));
}

} // namespace end_to_end
