#include "vela/controls/widgets/designed_popup.h"

#include "vela/controls/widgets/text_services.h"
#include "vela/controls/widgets/working_style.h"
#include "vela/mul_div.h"
#include "vela/render/paint/paint.h"
#include "vela/text.h"
#include "vela/theme/records/style_sheet.h"
#include "vela/toolkit_texts.h"

#include <algorithm>
#include <utility>

namespace vela {

namespace {

// 96-DPI pixels.
constexpr Size kCloseButton{32, 28};
constexpr std::int32_t kCloseMargin = 8;
constexpr std::int32_t kTitleGap = 14;
constexpr std::int32_t kBandGap = 16;

constexpr struct {
    std::wstring_view text;
    Icon icon;
} kNamedIcons[] = {{L"i", Icon::Info}, {L"!", Icon::Warning}, {L"X", Icon::Failure}};

// Closes its popup before it says so: whoever hears of it may destroy both.
class PopupCloseButton final : public ThemedButton {
public:
    explicit PopupCloseButton(DesignedPopup& popup)
        : ThemedButton(popup.id() + L".close", {}, L""), popup_(popup)
    {
        setAction(L"close");
        setIcon(Icon::Close);
        setHint(toolkitTexts().close);
    }
    void activate() override
    {
        if (!isEnabled())
            return;
        popup_.setOpen(false);
        ThemedButton::activate();
    }

private:
    DesignedPopup& popup_;
};

} // namespace

DesignedPopup::DesignedPopup(std::wstring id, Rect bounds)
    : Control(std::move(id), bounds), header_(this->id() + L".header", {}),
      close_(std::make_unique<PopupCloseButton>(*this))
{
    header_.setSender(this->id(), title_);
    addChild(header_);
    addChild(*close_);
    layoutChildren();
}

DesignedPopup::~DesignedPopup() = default;

bool DesignedPopup::applyStyle(const StyleSheet& styles)
{
    changeReach([&] {
        designStyle_ = styles.find<PopupStyle>(styleKey());
        style_ = workingStyle(designStyle_, dpi());
        shadow_ = style_.showShadow ? CastShadow(style_.surface, style_.surface.shadow,
                                                 {style_.shadowOffsetX, style_.shadowOffsetY})
                                    : CastShadow();
        layoutChildren();
    });
    return true;
}

void DesignedPopup::onStyleApplied()
{
    styleButtons();
    layoutChildren();
}

void DesignedPopup::styleButtons()
{
    close_->setStyle(designStyle_.closeButton);
    for (std::size_t i = 0; i < buttons_.size(); ++i)
        buttons_[i]->setStyle(actions_[i].primary ? designStyle_.primaryAction
                                                  : designStyle_.secondaryAction);
}

const BitmapSkin* DesignedPopup::attachedImage() const
{
    return style_.surface.image ? &*style_.surface.image : nullptr;
}

void DesignedPopup::setPart(std::wstring& part, std::wstring text)
{
    if (part != text)
        changeReach([&] { part = std::move(text); });
}

void DesignedPopup::setTitle(std::wstring title)
{
    setPart(title_, std::move(title));
    header_.setSender(id(), title_);
}

void DesignedPopup::setIconText(std::wstring text) { setPart(iconText_, std::move(text)); }

void DesignedPopup::setMessage(std::wstring message) { setPart(message_, std::move(message)); }

void DesignedPopup::setActions(std::vector<PopupAction> actions)
{
    for (const auto& button : buttons_)
        removeChild(*button);
    buttons_.clear();
    actions_ = std::move(actions);
    for (std::size_t i = 0; i < actions_.size(); ++i) {
        PopupAction& action = actions_[i];
        if (action.id.empty())
            action.id = id() + L".action." + decimalText(i);
        buttons_.push_back(std::make_unique<ThemedButton>(action.id, Rect{}, action.label));
        addChild(*buttons_.back());
    }
    styleButtons();
    layoutChildren();
}

void DesignedPopup::setClosable(bool closable) { close_->setVisible(closable); }

void DesignedPopup::setContentColumn(std::int32_t left, std::int32_t right)
{
    changeReach([&] {
        column_ = {left, right};
        layoutChildren();
    });
}

std::int32_t DesignedPopup::missingHeight() const
{
    constexpr std::int32_t kScales[] = {96, 120, 144, 168, 192, 216, 240, 288};
    const Size room{mulDiv(messageRect().width, kDesignDpi, dpi()),
                    mulDiv(messageRect().height, kDesignDpi, dpi())};
    std::int32_t missing = 0;
    for (const std::int32_t scale : kScales) {
        const std::int32_t text =
            measureText(message_, designStyle_.messageText, scale, scaledLength(room.width, scale));
        // One more than the quotient, for what rounding takes from the room.
        missing = std::max(missing,
                           text / scale * kDesignDpi + text % scale * kDesignDpi / scale + 1 - room.height);
    }
    return missing;
}

void DesignedPopup::setFramed(bool framed) { setFlag(framed_, framed); }

void DesignedPopup::setOpen(bool open)
{
    open_ = open;
    setVisible(open);
}

// A caption that is wider than the style's button gets the room it needs.
void DesignedPopup::layoutChildren()
{
    header_.setBounds({0, 0, std::max(bounds().width, 0), style_.headerHeight});
    const Size close{scaled(kCloseButton.width), scaled(kCloseButton.height)};
    const Rect header = headerRoom();
    close_->setBounds({header.x + header.width - scaled(kCloseMargin) - close.width,
                       header.y + scaled(kCloseMargin), close.width, close.height});
    const Insets row = around(&SurfaceGeometry::actionRowInsets);
    std::int32_t right = contentRight() - row.right;
    const std::int32_t top = bounds().height - style_.paddingY - style_.actionHeight - row.bottom;
    for (auto button = buttons_.rbegin(); button != buttons_.rend(); ++button) {
        (*button)->setMinimumSize({0, 0});
        const std::int32_t width = std::max(style_.actionWidth, (*button)->minimumSize().width);
        (*button)->setBounds({right - width, top, width, style_.actionHeight});
        right -= width + style_.actionGap;
    }
}

std::int32_t DesignedPopup::contentLeft() const noexcept
{
    return column_ ? scaled(column_->left) : style_.paddingX;
}

std::int32_t DesignedPopup::contentRight() const noexcept
{
    return bounds().width - (column_ ? scaled(column_->right) : style_.paddingX);
}

Insets DesignedPopup::around(Insets SurfaceGeometry::*part) const noexcept
{
    return insetsOf(style_.surface, part);
}

Rect DesignedPopup::headerRoom() const noexcept
{
    return insetBy({0, 0, std::max(bounds().width, 0), style_.headerHeight},
                   around(&SurfaceGeometry::headerInsets));
}

Rect DesignedPopup::iconRect() const noexcept
{
    const Rect header = headerRoom();
    const std::int32_t left = column_ ? (contentLeft() - style_.iconSize) / 2 : style_.paddingX;
    return {header.x + left, header.y + (header.height - style_.iconSize) / 2, style_.iconSize,
            style_.iconSize};
}

std::int32_t DesignedPopup::titleLeft() const noexcept
{
    const bool behindIcon = !column_ && !iconText_.empty();
    return behindIcon ? style_.paddingX + style_.iconSize + scaled(kTitleGap) : contentLeft();
}

// Inside the popup's border, which it would cover.
Rect DesignedPopup::headerRect() const noexcept
{
    const SurfaceStyle& around = style_.surface;
    const std::int32_t line = around.showOutline ? around.outlineWidth : around.drawBorder ? 1 : 0;
    const std::int32_t edge = framed_ ? line : 0;
    return {edge, edge, std::max(bounds().width - 2 * edge, 0), std::max(style_.headerHeight - edge, 0)};
}

Rect DesignedPopup::messageRect() const noexcept
{
    // A header that is seen as a band ends where it ends; one without a background of its own already keeps
    // away.
    const bool band = style_.header.drawFill || style_.header.drawBorder;
    const std::int32_t top = style_.headerHeight + (band ? scaled(kBandGap) : 0);
    return insetBy({contentLeft(), top, contentRight() - contentLeft(),
                    bounds().height - top - style_.paddingY - footerHeight()},
                   around(&SurfaceGeometry::textInsets));
}

std::int32_t DesignedPopup::footerHeight() const noexcept
{
    const Insets row = around(&SurfaceGeometry::actionRowInsets);
    return buttons_.empty() ? 0 : style_.actionHeight + 2 * style_.paddingY + row.top + row.bottom;
}

// The strip would fill the round or cut corners of a frame.
Rect DesignedPopup::footerRect() const noexcept
{
    const std::int32_t height = framed_ ? 0 : footerHeight();
    return {0, bounds().height - height, bounds().width, height};
}

void DesignedPopup::paintBackground(HDC dc, const Rect& box) const
{
    SurfaceStyle background = style_.surface;
    if (!framed_) {
        background.shape = ShapeKind::Rect;
        background.drawBorder = background.showOutline = background.showShadow = background.showGlow = false;
    }
    paintControlSurface(dc, box, background);
    paintSurface(dc, movedBy(headerRect(), {box.x, box.y}), style_.header);
    const Rect footer = movedBy(footerRect(), {box.x, box.y});
    if (isEmpty(footer))
        return;
    paintSurface(dc, footer, style_.footer);
    fillShape(dc, {footer.x, footer.y, footer.width, scaled(1)}, ShapeKind::Rect, style_.footer.border);
}

void DesignedPopup::visitSurfaces(const SurfaceVisitor& visit) const
{
    // Without a frame nothing of it lies outside.
    if (framed_) {
        visit({shadow_.surface(), localBounds()});
        visit({style_.surface, localBounds()});
    }
    visit({style_.header, headerRect()});
    visit({style_.footer, footerRect()});
    if (!iconText_.empty())
        visit({style_.icon, iconRect()});
}

void DesignedPopup::paintHeaderIcon(HDC dc, Point at) const
{
    const Rect icon = movedBy(iconRect(), at);
    paintControlSurface(dc, icon, style_.icon);
    const auto* const row = std::find_if(std::begin(kNamedIcons), std::end(kNamedIcons),
                                         [this](const auto& known) { return known.text == iconText_; });
    const std::int32_t side = icon.width * 9 / 16;
    const Rect inner{icon.x + (icon.width - side) / 2, icon.y + (icon.height - side) / 2, side, side};
    if (row != std::end(kNamedIcons))
        paintIcon(dc, row->icon, inner, dpi(), style_.iconText.color);
    else
        drawText(dc, icon, iconText_, style_.iconText, dpi(), {.align = TextAlign::Center});
}

void DesignedPopup::paint(HDC dc, Point origin)
{
    const Rect box = movedBy(bounds(), origin);
    const Point at{box.x, box.y};
    if (framed_)
        shadow_.paint(dc, *this, box);
    paintBackground(dc, box);
    if (!iconText_.empty())
        paintHeaderIcon(dc, at);
    const Rect header = headerRoom();
    const std::int32_t left = header.x + titleLeft();
    const std::int32_t titleRight =
        close_->isVisible() ? close_->bounds().x : std::min(contentRight(), header.x + header.width);
    const Rect title{left, header.y, std::max(titleRight - left, 0), header.height};
    drawText(dc, movedBy(title, at), title_, style_.titleText, dpi());
    drawText(dc, movedBy(messageRect(), at), message_, style_.messageText, dpi(), {.wrap = TextWrap::Words});
    for (Control* child : visibleChildren())
        child->paint(dc, at);
}

bool DesignedPopup::keyPressed(const KeyEvent& event)
{
    constexpr KeyModifiers kControl{.control = true};
    if (event.key != L'C' || event.modifiers != kControl)
        return moveAlongActions(event);
    if (TextServices* const services = window() ? window()->textServices() : nullptr)
        services->setClipboardText(copiedText());
    return true;
}

// As the system's message boxes are copied: parts between lines of hyphens, the actions on one line.
std::wstring DesignedPopup::copiedText() const
{
    const std::wstring line = L"---------------------------\r\n";
    std::wstring text = line + title_ + L"\r\n" + line;
    for (const wchar_t c : message_)
        c == L'\n' ? text += L"\r\n" : text += c;
    text += L"\r\n" + line;
    for (const PopupAction& action : actions_)
        text += action.label + L"   ";
    return actions_.empty() ? text : text + L"\r\n" + line;
}

// To the ends of the row and no further.
bool DesignedPopup::moveAlongActions(const KeyEvent& event)
{
    const bool back = event.key == kKeyLeft || event.key == kKeyUp;
    const bool forth = event.key == kKeyRight || event.key == kKeyDown;
    if ((!back && !forth) || event.modifiers != KeyModifiers{} || !window())
        return false;
    const auto current =
        std::find_if(buttons_.begin(), buttons_.end(), [](const auto& button) { return button->hasFocus(); });
    if (current == buttons_.end())
        return false;
    const auto usable = [](const auto& button) { return button->isVisible() && button->isEnabled(); };
    if (forth) {
        const auto next = std::find_if(current + 1, buttons_.end(), usable);
        if (next != buttons_.end())
            window()->focusControl(next->get());
    } else {
        const auto next = std::find_if(std::make_reverse_iterator(current), buttons_.rend(), usable);
        if (next != buttons_.rend())
            window()->focusControl(next->get());
    }
    return true;
}

AccessibleInfo DesignedPopup::accessibleInfo() const
{
    AccessibleInfo info = Control::accessibleInfo();
    info.role = AccessibleRole::Dialog;
    info.value = message_;
    return info;
}

Control* DesignedPopup::dialogControl(DialogRole role) const
{
    if (role == DialogRole::Cancel)
        return close_->isVisible() && close_->isEnabled() ? close_.get() : nullptr;
    const auto primary = std::find_if(actions_.begin(), actions_.end(),
                                      [](const PopupAction& action) { return action.primary; });
    if (buttons_.empty())
        return nullptr;
    const auto index = primary == actions_.end() ? 0 : primary - actions_.begin();
    return buttons_[static_cast<std::size_t>(index)].get();
}

} // namespace vela
