#include "vela/controls/widgets/chrome_title_bar.h"

#include "vela/controls/widgets/working_style.h"
#include "vela/render/paint/paint.h"
#include "vela/text.h"
#include "vela/theme/records/style_sheet.h"
#include "vela/toolkit_texts.h"

#include <algorithm>
#include <utility>

namespace vela {

namespace {

// The keyboard reaches what a title bar offers through the system menu, so Tab passes it by.
class UnfocusedButton final : public ThemedButton {
public:
    using ThemedButton::ThemedButton;
    bool acceptsFocus() const override { return false; }
};

struct Caption {
    const wchar_t* id;
    const wchar_t* action;
    const wchar_t* ToolkitTexts::*hint;
    Icon icon;
};
constexpr Caption kCaptions[kCaptionButtonCount] = {
    {L"chrome-reset-size", L"reset-size", &ToolkitTexts::resetSize, Icon::ResetSize},
    {L"chrome-minimize", L"minimize", &ToolkitTexts::minimize, Icon::Minimize},
    {L"chrome-maximize", L"maximize", &ToolkitTexts::maximize, Icon::Maximize},
    {L"chrome-close", L"close", &ToolkitTexts::close, Icon::Close},
};

// What the button to maximise is while the window is maximised.
constexpr Caption kRestore{L"chrome-maximize", L"restore", &ToolkitTexts::restore, Icon::Restore};

// The close button is one of the others until the pointer comes.
ButtonStyle closeButtonStyle(const ChromeTitleBarStyle& style)
{
    ButtonStyle close = style.titleButton;
    const struct {
        VisualState state;
        const SurfaceStyle& surface;
        Color icon;
    } looks[] = {{VisualState::Hot, style.closeHotSurface, style.closeHotColor},
                 {VisualState::Pressed, style.closePressedSurface, style.closePressedColor}};
    for (const auto& [state, surface, icon] : looks) {
        close.surface[state] = surface;
        close.surface[state].shape = style.titleButton.surface[state].shape;
        close.text[state].color = icon;
    }
    return close;
}

} // namespace

ChromeTitleBar::ChromeTitleBar(std::wstring id, Rect bounds, std::wstring title, Theme theme)
    : Control(std::move(id), bounds), title_(std::move(title)), dragArea_(L"chrome-drag", {})
{
    // Until a style sheet is applied the theme alone gives the look.
    designStyle_.surface.fill = theme.header;
    designStyle_.titleText = std::move(theme.uiFont);
    style_ = designStyle_;
    addChild(dragArea_);
    for (int i = 0; i < kCaptionButtonCount; ++i) {
        auto& made = captions_[static_cast<std::size_t>(i)];
        made = std::make_unique<UnfocusedButton>(kCaptions[i].id, Rect{}, L"");
        made->setAction(kCaptions[i].action);
        made->setIcon(kCaptions[i].icon);
        made->setHint(toolkitTexts().*kCaptions[i].hint);
        made->setVisible(i == static_cast<int>(CaptionButton::Close));
        addChild(*made);
    }
    layoutChildren();
}

ChromeTitleBar::~ChromeTitleBar() = default;

bool ChromeTitleBar::applyStyle(const StyleSheet& styles)
{
    changeReach([&] {
        designStyle_ = styles.find<ChromeTitleBarStyle>(styleKey());
        style_ = workingStyle(designStyle_, dpi());
        layoutChildren();
    });
    return true;
}

void ChromeTitleBar::onStyleApplied()
{
    for (const auto& caption : captions_)
        caption->setStyle(designStyle_.titleButton);
    button(CaptionButton::Close).setStyle(closeButtonStyle(designStyle_));
    for (const auto& action : headerActions_)
        action->setStyle(designStyle_.titleButton);
}

const BitmapSkin* ChromeTitleBar::attachedImage() const
{
    return style_.surface.image ? &*style_.surface.image : nullptr;
}

void ChromeTitleBar::setTitle(std::wstring title)
{
    if (std::exchange(title_, std::move(title)) != title_)
        invalidate(InvalidationReason::State);
}

ThemedButton& ChromeTitleBar::button(CaptionButton which) noexcept
{
    return *captions_[static_cast<std::size_t>(which)];
}

void ChromeTitleBar::showButton(CaptionButton which, bool shown)
{
    button(which).setVisible(shown);
    showMaximisedState();
    layoutChildren();
}

ThemedButton& ChromeTitleBar::addHeaderAction(std::int32_t number, std::wstring caption)
{
    const std::wstring digits = decimalText(number);
    auto& made = headerActions_.emplace_back(
        std::make_unique<UnfocusedButton>(L"chrome-header-action-" + digits, Rect{}, std::move(caption)));
    made->setAction(L"header-action-" + digits);
    made->setStyle(designStyle_.titleButton);
    addChild(*made);
    layoutChildren();
    return *made;
}

// From the right edge inwards: caption buttons, a gap between the groups, header actions.
void ChromeTitleBar::layoutChildren()
{
    dragArea_.setBounds(localBounds());
    const Rect room = surfaceRoom(style_.surface, localBounds(), &SurfaceGeometry::childLayoutInsets);
    const Size size{style_.buttonWidth, std::min(style_.buttonHeight, room.height)};
    std::int32_t right = room.x + room.width - style_.rightMargin;
    const auto place = [&](ThemedButton& each, std::int32_t width, std::int32_t gap) {
        if (!each.isVisible())
            return;
        each.setBounds({right - width, room.y + style_.buttonTop, width, size.height});
        right -= width + gap;
    };
    for (auto caption = captions_.rbegin(); caption != captions_.rend(); ++caption)
        place(**caption, size.width, style_.buttonGap);
    if (!headerActions_.empty())
        right -= style_.headerActionGroupGap;
    for (auto action = headerActions_.rbegin(); action != headerActions_.rend(); ++action)
        place(**action, size.width, style_.headerActionGap);
    buttonsLeft_ = right;
}

void ChromeTitleBar::showMaximisedState()
{
    ThemedButton& maximise = button(CaptionButton::Maximize);
    const bool restores = window() && window()->isMaximised();
    const Caption& caption = restores ? kRestore : kCaptions[static_cast<int>(CaptionButton::Maximize)];
    maximise.setAction(caption.action);
    maximise.setIcon(caption.icon);
    maximise.setHint(toolkitTexts().*caption.hint);
    dragArea_.setDoubleClickAction(maximise.isVisible() ? caption.action : L"");
}

Rect ChromeTitleBar::titleRect() const noexcept
{
    const Rect room = contentBounds();
    const std::int32_t left = room.x + style_.titleLeft;
    return {left, room.y, std::max(std::min(buttonsLeft_, room.x + room.width) - left, 0), room.height};
}

Rect ChromeTitleBar::contentBounds() const
{
    return surfaceRoom(style_.surface, localBounds(), &SurfaceGeometry::textInsets);
}

void ChromeTitleBar::paint(HDC dc, Point origin)
{
    const Rect box = movedBy(bounds(), origin);
    paintSurface(dc, box, style_.surface);
    const std::int32_t side = style_.iconSize;
    const Rect title = movedBy(titleRect(), {box.x, box.y});
    paintProgramIcon(
        dc, {title.x - style_.titleLeft + style_.iconLeft, title.y + (title.height - side) / 2, side, side});
    drawText(dc, title, title_, style_.titleText, dpi());
    for (Control* child : visibleChildren())
        child->paint(dc, {box.x, box.y});
}

bool ChromeTitleBar::containsLocal(Point point) const
{
    return Control::containsLocal(point) &&
           isOnSurface(style_.surface, style_.shape, sizeOf(bounds()), point);
}

// The wheel and the context menu mean nothing here, but must not reach what lies under the bar.
bool ChromeTitleBar::mouseSecondary(const MouseEvent& event)
{
    return Control::mouseSecondary(event) ||
           (event.action == MouseAction::Wheel && containsLocal(event.position));
}

AccessibleInfo ChromeTitleBar::accessibleInfo() const
{
    AccessibleInfo info = Control::accessibleInfo();
    info.role = AccessibleRole::TitleBar;
    return info;
}

Control* ChromeTitleBar::dialogControl(DialogRole role) const
{
    const auto& close = captions_[static_cast<std::size_t>(CaptionButton::Close)];
    return role == DialogRole::Cancel && close->isVisible() && close->isEnabled() ? close.get() : nullptr;
}

} // namespace vela
