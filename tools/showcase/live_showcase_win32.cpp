#include "tools/showcase/live_showcase_win32.h"

#include "tools/showcase/showcase_pages_win32.h"
#include "tools/skin_lint/accepted.h"

#include "vela/render/bitmaps/surface_bitmaps.h"
#include "vela/theme/document/utf8.h"
#include "vela/theme/fields/record_scale.h"
#include "vela/theme/skins/skin_files.h"
#include "vela/theme/skins/skin_host_win32.h"
#include "vela/theme/skins/style_sections.h"
#include "vela/theme/skins/system_skins.h"

#include <algorithm>
#include <memory>

#include <windows.h>

namespace showcase {

using vela::CommandEvent;

namespace {

constexpr UINT_PTR kWatchTimer = 7001;
constexpr std::wstring_view kNoticeId = L"notice";
constexpr std::size_t kMostLines = 12;

// 96-DPI pixels.
constexpr std::int32_t kNoticeMargin = 24;
constexpr std::int32_t kNoticeHeader = 64;
constexpr std::int32_t kNoticeLine = 21;
constexpr std::int32_t kNoticeFoot = 28;

FileStamp stampOf(const std::wstring& path)
{
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data))
        return {};
    const auto joined = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; };
    return {true, joined(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime),
            joined(data.nFileSizeHigh, data.nFileSizeLow)};
}

std::optional<std::string> readBytes(const std::wstring& path)
{
    return vela::WindowsSkinHost().readFile(path, vela::kMaxSkinFileSize);
}

std::size_t nameStart(const std::wstring& path) noexcept { return path.find_last_of(L"\\/:") + 1; }

std::wstring folderOf(const std::wstring& path)
{
    const std::size_t name = nameStart(path);
    return name == 0 ? L"." : path.substr(0, name - 1);
}

std::string fileNameOf(const std::wstring& path) { return vela::lint::toUtf8(path.substr(nameStart(path))); }

// As many lines as the notice has room for; the last one says how many there would be more.
std::wstring shownLines(const std::vector<std::wstring>& lines)
{
    std::wstring text;
    const std::size_t shown = lines.size() > kMostLines ? kMostLines - 1 : lines.size();
    for (std::size_t i = 0; i < shown; ++i)
        text.append(i == 0 ? L"" : L"\n").append(lines[i]);
    if (shown < lines.size())
        text.append(L"\nand ").append(std::to_wstring(lines.size() - shown)).append(L" more");
    return text;
}

vela::KeyModifiers modifiersNow() noexcept
{
    const auto down = [](int key) { return ::GetKeyState(key) < 0; };
    return {down(VK_CONTROL), down(VK_SHIFT), down(VK_MENU)};
}

bool takesArrows(const vela::Control* focused)
{
    return focused && (focused->showsTextCursor() ||
                       dynamic_cast<const vela::DesignedPopup*>(focused->container()) != nullptr);
}

} // namespace

LiveShowcase::LiveShowcase(const Arguments& arguments, std::vector<vela::SkinDefinition> catalogue,
                           std::wstring bitmapFolder)
    : arguments_(arguments), bitmapFolder_(std::move(bitmapFolder)),
      shelf_(fileNameOf(arguments.file), std::move(catalogue))
{
}

bool LiveShowcase::open()
{
    // Who names a DPI wants that one, on however small a screen.
    window_.setShrinkToFit(arguments_.dpi == 0);
    if (!window_.open())
        return false;
    window_.titleBar().addHeaderAction(1, L"\u2039").setHint(L"The skin before (Left)");
    window_.titleBar().addHeaderAction(2, L"\u203A").setHint(L"The next skin (Right)");
    window_.setMessageHook([this](HWND, unsigned message, std::uintptr_t wParam, std::intptr_t,
                                  std::intptr_t&) { return onMessage(message, wParam); });
    window_.subscribe(L"", [this](CommandEvent& event) { onCommandEvent(event); });
    placeNotice();
    if (arguments_.dpi != 0)
        window_.changeDpi(arguments_.dpi);
    readNow();
    if (!arguments_.file.empty())
        ::SetTimer(window_.handle(), kWatchTimer, FileWatch::kPeriod, nullptr);
    if (!arguments_.skinId.empty() && !shelf_.choose(arguments_.skinId))
        tell(L"danger", L"There is no skin \"" + arguments_.skinId + L"\"",
             L"Right and Left show those there are.");
    show();
    ::ShowWindow(window_.handle(), SW_SHOWNORMAL);
    return true;
}

bool LiveShowcase::onMessage(unsigned message, std::uintptr_t wParam)
{
    if (message == WM_TIMER && wParam == kWatchTimer) {
        watch();
        return true;
    }
    return message == WM_KEYDOWN && onKey(static_cast<std::uint32_t>(wParam));
}

void LiveShowcase::onCommandEvent(CommandEvent& event)
{
    constexpr struct {
        std::wstring_view action;
        Command command;
    } kHeaderActions[] = {{L"header-action-1", Command::PreviousSkin},
                          {L"header-action-2", Command::NextSkin}};
    const auto* const row =
        std::find_if(std::begin(kHeaderActions), std::end(kHeaderActions),
                     [&event](const auto& known) { return known.action == event.action; });
    if (row != std::end(kHeaderActions))
        perform(row->command);
    // The notice closes itself, and says so with the word that closes a window.
    else if (event.control && event.control->container() != notice_)
        window_.performChromeAction(event.action);
}

bool LiveShowcase::onKey(std::uint32_t key)
{
    vela::KeyEvent event;
    event.key = key;
    event.modifiers = modifiersNow();
    const std::optional<Command> command = commandFor(event, takesArrows(window_.focusedControl()));
    if (command)
        perform(*command);
    return command.has_value();
}

void LiveShowcase::perform(Command command)
{
    const std::size_t pageCount = pages().size();
    switch (command) {
    case Command::NextSkin:
    case Command::PreviousSkin: shelf_.step(command == Command::NextSkin ? 1 : -1); return show();
    case Command::NextPage: return showPageAt((page_ + 1) % pageCount);
    case Command::PreviousPage: return showPageAt((page_ + pageCount - 1) % pageCount);
    case Command::Reload: readNow(); return show();
    case Command::Larger:
    case Command::Smaller:
        window_.setShrinkToFit(false);
        window_.changeDpi(steppedDpi(window_.dpi(), command == Command::Larger));
        return show();
    case Command::MonitorDpi:
        window_.changeDpi(static_cast<std::int32_t>(::GetDpiForWindow(window_.handle())));
        return show();
    case Command::Help: tell(L"default", L"Keys", commandHelp()); return show();
    }
}

void LiveShowcase::watch()
{
    const FileStamp stamp = stampOf(arguments_.file);
    if (!fileWatch_.tick(stamp))
        return;
    const std::optional<std::string> bytes = readBytes(arguments_.file);
    // Its writer still holds it: the next tick tries again.
    if (!bytes && stamp.exists)
        return;
    takeOver(bytes, stamp);
    show();
}

void LiveShowcase::takeOver(const std::optional<std::string>& bytes, const FileStamp& stamp)
{
    fileWatch_.markRead(stamp);
    shelf_.read(bytes);
    tellFindings();
}

void LiveShowcase::readNow()
{
    if (arguments_.file.empty())
        return;
    const FileStamp stamp = stampOf(arguments_.file);
    takeOver(readBytes(arguments_.file), stamp);
}

void LiveShowcase::show()
{
    // Also when the folder is the same: its pictures may have changed.
    vela::setBitmapFolder(shelf_.showsFile() ? folderOf(arguments_.file) : bitmapFolder_);
    const vela::SkinDefinition& skin = shelf_.skin();
    std::wstring title = skin.name.empty() ? skin.id : skin.name;
    title.append(L"  (").append(std::to_wstring(shelf_.index() + 1));
    title.append(L" of ").append(std::to_wstring(shelf_.skins().size())).append(L")  ");
    title.append(std::to_wstring(window_.dpi())).append(L" DPI");
    if (shelf_.showsFile() && !shelf_.isCurrent())
        title.append(L"  as it last was in order");
    ::SetWindowTextW(window_.handle(), title.c_str());
    window_.titleBar().setTitle(std::move(title));
    window_.setStyleSource([this] {
        return std::make_shared<const vela::StyleSheet>(styleSheetFor(shelf_.skin(), vela::systemSkinHost()));
    });
}

void LiveShowcase::showPageAt(std::size_t index)
{
    page_ = index;
    showPage(window_.root(), pages()[index]);
    // Over the page again, which was added last.
    window_.root().add(window_.root().remove(*notice_));
    show();
}

void LiveShowcase::placeNotice()
{
    using vela::Anchors;
    const vela::Rect place{kNoticeMargin, kClientSize.height - kNoticeMargin - 1,
                           kClientSize.width - 2 * kNoticeMargin, 1};
    notice_ =
        &window_.root().addControl(std::make_unique<vela::DesignedPopup>(std::wstring(kNoticeId), place));
    notice_->setAnchors(Anchors::Left | Anchors::Right | Anchors::Bottom);
    notice_->setOpen(false);
}

void LiveShowcase::tell(std::wstring_view variant, std::wstring title, std::wstring text)
{
    const auto lines = static_cast<std::int32_t>(std::count(text.begin(), text.end(), L'\n') + 1);
    const std::int32_t height =
        vela::scaledLength(kNoticeHeader + lines * kNoticeLine + kNoticeFoot, window_.dpi());
    const vela::Rect& now = notice_->bounds();
    notice_->setBounds({now.x, now.y + now.height - height, now.width, height});
    notice_->setStyleKey(std::wstring(variant));
    notice_->setTitle(std::move(title));
    notice_->setMessage(std::move(text));
    notice_->setOpen(true);
}

void LiveShowcase::tellFindings()
{
    const std::wstring file = vela::decodeUtf8(fileNameOf(arguments_.file));
    if (!shelf_.isCurrent())
        tell(L"danger", file + L" is not in order; this is the last good look", shownLines(shelf_.lines()));
    else if (!shelf_.lines().empty())
        tell(L"default", file + L": " + std::to_wstring(shelf_.lines().size()) + L" to think about",
             shownLines(shelf_.lines()));
    else
        notice_->setOpen(false);
}

} // namespace showcase
