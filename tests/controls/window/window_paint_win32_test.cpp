// A window painted piece by piece, as its damage comes, looks as one that is painted whole.
#include "vela/controls/window/window.h"

#include "tests/support/canvas_gdi.h"
#include "tests/support/test_window_win32.h"
#include "vela/controls/widgets/check_box.h"
#include "vela/controls/widgets/designed_popup.h"
#include "vela/controls/widgets/progress_bar.h"
#include "vela/controls/widgets/text_input.h"
#include "vela/controls/widgets/themed_button.h"
#include "vela/render/paint/paint.h"
#include "vela/theme/fields/fields.h"
#include "vela/theme/records/style_sheet.h"

#include <gtest/gtest.h>

#include <new>
#include <random>

namespace vela {
namespace {

using testing::Canvas;
using testing::Desktop;
using testing::TestWindow;
using Picture = std::vector<Pixel>;

constexpr WindowStyle kPopup{WS_POPUP, 0};
constexpr Size kClient{240, 180};

class Dice {
public:
    explicit Dice(unsigned seed) : random_(seed) {}
    std::int32_t between(std::int32_t least, std::int32_t most)
    {
        return least + static_cast<std::int32_t>(random_() % static_cast<unsigned>(most - least + 1));
    }
    bool in(std::int32_t times) { return between(1, times) == 1; }
    std::uint8_t byte() { return static_cast<std::uint8_t>(between(0, 255)); }
    Color color() { return hexColor(static_cast<std::uint32_t>(between(0, 0xFFFFFF))); }
    template <class Word>
    Word word(Word last)
    {
        return static_cast<Word>(between(0, static_cast<int>(last)));
    }
    Rect rect()
    {
        const std::int32_t x = between(-20, kClient.width - 10);
        const std::int32_t y = between(-20, kClient.height - 10);
        return {x, y, between(1, 110), between(1, 70)};
    }

private:
    std::minstd_rand random_;
};

SurfaceStyle randomSurface(Dice& dice)
{
    SurfaceStyle style;
    style.shape = dice.in(3) ? ShapeKind::Rect : dice.word(ShapeKind::SlantLeft);
    for (Color* const color :
         {&style.fill, &style.border, &style.shadow, &style.glow, &style.outline, &style.noise,
          &style.gradientStart, &style.gradientMid, &style.gradientEnd, &style.innerShadowColor})
        *color = dice.color();
    for (std::uint8_t* const opacity : {&style.opacity, &style.shadowOpacity, &style.glowOpacity,
                                        &style.noiseOpacity, &style.innerShadow, &style.materialDepth})
        *opacity = dice.byte();
    for (bool* const flag :
         {&style.drawBorder, &style.showInnerShadow, &style.showOutline, &style.useGradient,
          &style.useGradientMid, &style.useNoise, &style.showShadow, &style.showGlow})
        *flag = dice.in(2);
    style.drawFill = !dice.in(4);
    style.gradientKind = dice.word(GradientKind::Conic);
    style.gradientDirection = dice.word(GradientDirection::DiagonalUpReverse);
    style.shadowOffsetX = dice.between(-9, 9);
    style.shadowOffsetY = dice.between(-9, 14);
    style.glowRadius = dice.between(1, 20);
    style.outlineWidth = dice.between(1, 4);
    style.innerShadowSize = dice.between(1, 9);
    style.noiseSeed = dice.byte();
    return style;
}

void randomise(void* record, const FieldTable& table, Dice& dice)
{
    for (const Field& field : table.fields) {
        if ((field.kind != FieldKind::Record && field.kind != FieldKind::States) || isShapedOnly(field))
            continue;
        const FieldTable& inner = tableOf(field);
        const std::size_t count = field.kind == FieldKind::States ? kVisualStateCount : 1;
        for (std::size_t i = 0; i < count; ++i) {
            std::byte* const place = static_cast<std::byte*>(record) + field.offset + i * inner.recordSize;
            if (&inner == &Fields<SurfaceStyle>::kTable)
                *reinterpret_cast<SurfaceStyle*>(place) = randomSurface(dice);
            else
                randomise(place, inner, dice);
        }
    }
}

template <class Record>
void randomise(StyleSheet& sheet, Dice& dice)
{
    randomise(&sheet.table<Record>().defaultRecord(), Fields<Record>::kTable, dice);
}

StyleSheet randomSheet(Dice& dice)
{
    StyleSheet sheet;
    randomise<ButtonStyle>(sheet, dice);
    randomise<CheckBoxStyle>(sheet, dice);
    randomise<PanelStyle>(sheet, dice);
    randomise<PopupStyle>(sheet, dice);
    randomise<ProgressBarStyle>(sheet, dice);
    randomise<TextInputStyle>(sheet, dice);
    // What a window stands on leaves nothing of what was there before.
    SurfaceStyle& ground = sheet.table<PanelStyle>().ensure(kWindowVariant).surface;
    ground = randomSurface(dice);
    ground.shape = ShapeKind::Rect;
    ground.drawFill = true;
    ground.opacity = 255;
    return sheet;
}

struct Cover : Control {
    using Control::Control;
    void paint(HDC dc, Point origin) override
    {
        fillShape(dc, movedBy(bounds(), origin), ShapeKind::Rect, hexColor(0xFF00FF));
    }
};

class WindowPaintTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        window.setCustomFrame(true);
        ASSERT_TRUE(window.create(::GetModuleHandleW(nullptr), L"Okno", kClient, kPopup));
        ::ShowWindow(window.handle(), SW_SHOWNOACTIVATE);
        testing::drainMessages();
        // The pointer must not change anything meanwhile.
        ::EnableWindow(window.handle(), FALSE);
    }

    Picture shown() const
    {
        const Canvas copy(kClient);
        const HDC screen = ::GetDC(window.handle());
        ::BitBlt(copy.dc(), 0, 0, kClient.width, kClient.height, screen, 0, 0, SRCCOPY);
        ::ReleaseDC(window.handle(), screen);
        return copy.pixels();
    }
    void update() { ::UpdateWindow(window.handle()); }
    Picture shownAfterUpdate()
    {
        update();
        return shown();
    }
    Picture paintedWhole()
    {
        ::InvalidateRect(window.handle(), nullptr, FALSE);
        return shownAfterUpdate();
    }
    void damage(const Rect& rect, bool bySystem)
    {
        const RECT damaged = toRECT(rect);
        if (bySystem)
            ::InvalidateRect(window.handle(), &damaged, FALSE);
        else
            window.invalidateClient(rect, InvalidationReason::State);
    }
    // Everything is hidden first; nothing of it comes back but by the pieces.
    Picture paintedInPieces(Dice& dice)
    {
        auto& cover = window.root().addControl(
            std::make_unique<Cover>(L"cover", Rect{0, 0, kClient.width, kClient.height}));
        paintedWhole();
        window.root().remove(cover);
        ::ValidateRect(window.handle(), nullptr);
        std::vector<Rect> tiles;
        for (std::int32_t y = 0; y < kClient.height;) {
            const std::int32_t height = dice.between(20, 90);
            for (std::int32_t x = 0; x < kClient.width;) {
                const std::int32_t width = dice.between(20, 120);
                tiles.push_back(intersection({x, y, width, height}, window.clientRect()));
                x += width;
            }
            y += height;
        }
        while (!tiles.empty()) {
            for (std::int32_t count = dice.between(1, 3); count > 0 && !tiles.empty(); --count) {
                const auto which = tiles.begin() + dice.between(0, static_cast<int>(tiles.size()) - 1);
                damage(*which, dice.in(2));
                tiles.erase(which);
            }
            update();
        }
        return shown();
    }

    void addSome(Panel& panel, Dice& dice, int most);
    void changeSomething(Dice& dice);

    TestWindow window;
    std::vector<Control*> controls;
};

void WindowPaintTest::addSome(Panel& panel, Dice& dice, int most)
{
    for (int count = dice.between(1, most); count > 0; --count) {
        const Rect at = dice.rect();
        Control* added = nullptr;
        switch (dice.between(0, 6)) {
        case 0: {
            auto& inner = panel.addControl(std::make_unique<Panel>(L"panel", at));
            inner.setSurface(randomSurface(dice));
            addSome(inner, dice, 2);
            added = &inner;
            break;
        }
        case 1: added = panel.add(std::make_unique<CheckBox>(L"check", at, L"Volba")); break;
        case 2: added = panel.add(std::make_unique<ProgressBar>(L"progress", at)); break;
        case 3: added = panel.add(std::make_unique<TextInput>(L"field", at, L"C:\\Slozka")); break;
        case 4: {
            auto& popup = panel.addControl(std::make_unique<DesignedPopup>(L"popup", at));
            popup.setActions({{L"Ano", L"yes", true}});
            popup.setIconText(L"!");
            popup.setFramed(dice.in(2));
            added = &popup;
            break;
        }
        default: added = panel.add(std::make_unique<ThemedButton>(L"button", at, L"OK")); break;
        }
        controls.push_back(added);
    }
}

void WindowPaintTest::changeSomething(Dice& dice)
{
    Control& control =
        *controls[static_cast<std::size_t>(dice.between(0, static_cast<int>(controls.size()) - 1))];
    switch (dice.between(0, 5)) {
    case 0: return control.setHot(!control.isHot());
    case 1: return control.setPressed(!control.isPressed());
    case 2: return control.setEnabled(!control.isEnabled());
    case 3: return control.setVisible(!control.isVisible());
    case 4: return control.setBounds(dice.rect());
    default:
        if (auto* const bar = dynamic_cast<ProgressBar*>(&control))
            bar->setValue(dice.between(0, 100));
        else if (auto* const button = dynamic_cast<ThemedButton*>(&control))
            button->setStyle(randomSheet(dice).find<ButtonStyle>({}));
        else if (auto* const check = dynamic_cast<CheckBox*>(&control))
            check->setChecked(!check->isChecked());
        return;
    }
}

// Where two pictures differ, and by how much at the most; nothing where they are the same.
std::string difference(const Picture& a, const Picture& b)
{
    Rect where;
    int most = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const auto at = static_cast<std::int32_t>(i);
        if (a[i] != b[i])
            where = around(where, {at % kClient.width, at / kClient.width, 1, 1});
        for (int shift = 0; shift < 24; shift += 8)
            most = std::max(most, std::abs(static_cast<int>(a[i] >> shift & 255) -
                                           static_cast<int>(b[i] >> shift & 255)));
    }
    if (isEmpty(where))
        return {};
    return "by " + std::to_string(most) + " within x " + std::to_string(where.x) + " y " +
           std::to_string(where.y) + " w " + std::to_string(where.width) + " h " +
           std::to_string(where.height);
}

TEST_F(WindowPaintTest, PiecesAndChangesComeToTheWholePicture)
{
    constexpr unsigned kScenes = 200;
    for (unsigned scene = 0; scene < kScenes; ++scene) {
        Dice dice(scene + 1);
        addSome(window.root(), dice, 7);
        window.applyStyles(std::make_shared<StyleSheet>(randomSheet(dice)));
        const Picture whole = paintedWhole();
        EXPECT_EQ(difference(whole, paintedInPieces(dice)), "") << "scene " << scene;
        for (int change = 0; change < 3; ++change) {
            changeSomething(dice);
            const Picture changed = shownAfterUpdate();
            EXPECT_EQ(difference(changed, paintedWhole()), "") << "scene " << scene << " change " << change;
        }
        controls.clear();
        while (!window.root().children().empty())
            window.root().remove(*window.root().children().back());
        if (HasFailure() && scene > 60)
            break;
    }
}

// Both glow under the pointer only.
TEST_F(WindowPaintTest, AGlowIsWholeWhileItLastsAndGoneAfterwards)
{
    StyleSheet sheet;
    for (const auto state : PerState<SurfaceStyle>::kMembers)
        sheet.table<ButtonStyle>().defaultRecord().surface.*state = SurfaceStyle();
    SurfaceStyle& hot = sheet.table<ButtonStyle>().defaultRecord().surface.hot;
    hot.showGlow = true;
    hot.glowRadius = 16;
    hot.glowOpacity = 255;
    Panel& panel = window.root().addControl(std::make_unique<Panel>(L"panel", Rect{20, 20, 160, 60}));
    auto& left = panel.addControl(std::make_unique<ThemedButton>(L"a", Rect{10, 20, 50, 20}, L"A"));
    auto& right = panel.addControl(std::make_unique<ThemedButton>(L"b", Rect{66, 20, 50, 20}, L"B"));
    window.applyStyles(std::make_shared<StyleSheet>(sheet));
    const Picture rest = paintedWhole();
    left.setHot(true);
    const Picture glowing = shownAfterUpdate();
    EXPECT_EQ(difference(glowing, paintedWhole()), "");
    EXPECT_NE(glowing[(20 + 8) * kClient.width + 40], rest[(20 + 8) * kClient.width + 40]); // above it
    EXPECT_EQ(glowing[(20 + 30) * kClient.width + 19],
              rest[(20 + 30) * kClient.width + 19]); // the panel ends
    right.setPressed(true);
    right.setPressed(false);
    EXPECT_EQ(difference(shownAfterUpdate(), glowing), "");
    left.setHot(false);
    EXPECT_EQ(difference(shownAfterUpdate(), rest), "");
}

// On a context that someone else has clipped.
TEST_F(WindowPaintTest, AskedForAPartItPaintsThatPartOfTheWhole)
{
    Dice dice(7);
    StyleSheet sheet = randomSheet(dice);
    SurfaceStyle& button = sheet.table<ButtonStyle>().defaultRecord().surface.normal;
    button.showGlow = true;
    button.glowRadius = 20;
    button.glowOpacity = 255;
    window.root().add(std::make_unique<ThemedButton>(L"a", Rect{60, 60, 50, 20}, L"A"));
    window.applyStyles(std::make_shared<StyleSheet>(sheet));
    const auto print = [this](HDC dc) {
        ::SendMessageW(window.handle(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT);
    };
    Canvas whole(kClient);
    print(whole.dc());
    Canvas pieces(kClient);
    for (std::int32_t y = 0; y < kClient.height; y += 30) {
        for (std::int32_t x = 0; x < kClient.width; x += 30) {
            const int saved = ::SaveDC(pieces.dc());
            ::IntersectClipRect(pieces.dc(), x, y, x + 30, y + 30);
            const Picture before = pieces.pixels();
            print(pieces.dc());
            EXPECT_EQ(united(pieces.changed(before), Rect{x, y, 30, 30}), (Rect{x, y, 30, 30}));
            ::RestoreDC(pieces.dc(), saved);
        }
    }
    EXPECT_EQ(difference(pieces.pixels(), whole.pixels()), "");
}

struct Failing : Control {
    using Control::Control;
    void paint(HDC dc, Point origin) override
    {
        clip = Desktop::clipBox(dc);
        const PaintClip inner(dc, {movedBy(bounds(), origin)});
        if (fails)
            throw std::bad_alloc();
    }
    Rect clip;
    bool fails = false;
};

TEST_F(WindowPaintTest, AWindowOutlivesAPaintingWithoutMemory)
{
    auto& failing = window.root().addControl(std::make_unique<Failing>(L"f", Rect{10, 10, 50, 50}));
    window.applyStyles(std::make_shared<StyleSheet>());
    const Picture before = paintedWhole();
    failing.fails = true;
    for (const Rect& part : {Rect{0, 0, 30, 30}, Rect{20, 20, 90, 40}}) {
        window.invalidateClient(part, InvalidationReason::State);
        update();
        EXPECT_EQ(failing.clip, part);
        EXPECT_FALSE(::GetUpdateRect(window.handle(), nullptr, FALSE));
    }
    Canvas printed(kClient);
    const Rect clip = Desktop::clipBox(printed.dc());
    EXPECT_EQ(::SendMessageW(window.handle(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(printed.dc()), 0), 0);
    EXPECT_EQ(Desktop::clipBox(printed.dc()), clip);
    ::SendMessageW(window.handle(), WM_SHOWWINDOW, TRUE, 0);
    failing.fails = false;
    EXPECT_EQ(difference(paintedWhole(), before), "");
    EXPECT_EQ(failing.clip, (Rect{0, 0, kClient.width, kClient.height}));
}

} // namespace
} // namespace vela
