// The showcase as a program: the window, the skins it can show, and the watched file behind one of them.
#pragma once

#include "tools/showcase/arguments.h"
#include "tools/showcase/commands.h"
#include "tools/showcase/file_watch.h"
#include "tools/showcase/showcase_window_win32.h"
#include "tools/showcase/skin_shelf.h"

#include "vela/controls/widgets/designed_popup.h"

#include <string>
#include <vector>

namespace showcase {

class LiveShowcase {
public:
    // `bitmapFolder` is where the pictures of the catalogue's skins lie.
    LiveShowcase(const Arguments& arguments, std::vector<vela::SkinDefinition> catalogue,
                 std::wstring bitmapFolder);
    LiveShowcase(const LiveShowcase&) = delete;
    LiveShowcase& operator=(const LiveShowcase&) = delete;
    ~LiveShowcase() = default;

    // False when Windows refuses the window; it is shown otherwise.
    bool open();

    ShowcaseWindow& window() noexcept { return window_; }
    const SkinShelf& shelf() const noexcept { return shelf_; }
    // Where the lint's lines stand; closed while there is nothing to say.
    const vela::DesignedPopup& notice() const noexcept { return *notice_; }

private:
    bool onMessage(unsigned message, std::uintptr_t wParam);
    void onCommandEvent(vela::CommandEvent& event);
    bool onKey(std::uint32_t key);
    void perform(Command command);
    void watch();
    void readNow();
    void takeOver(const std::optional<std::string>& bytes, const FileStamp& stamp);
    void show();
    void showPageAt(std::size_t index);
    void tell(std::wstring_view variant, std::wstring title, std::wstring text);
    void tellFindings();
    void placeNotice();

    Arguments arguments_;
    std::wstring bitmapFolder_;
    SkinShelf shelf_;
    FileWatch fileWatch_;
    ShowcaseWindow window_;
    vela::DesignedPopup* notice_ = nullptr; // the window's
    std::size_t page_ = 0;
};

} // namespace showcase
