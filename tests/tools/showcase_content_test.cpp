#include "tools/showcase_content/content.h"

#include "tests/controls/tree/fake_window.h"
#include "vela/controls/tree/focus_order.h"
#include "vela/controls/tree/input_router.h"
#include "vela/controls/widgets/text_input.h"
#include "vela/controls/widgets/themed_button.h"
#include "vela/theme/checks/derived_variants.h"
#include "vela/theme/skins/skin_catalog.h"
#include "vela/theme/skins/style_sections.h"

#include <functional>
#include <gtest/gtest.h>
#include <set>

namespace showcase {
namespace {

using vela::Control;
using vela::ThemedButton;
using vela::VisualState;

// A window as large as the showcase asks for, with its first page.
struct ShownShowcase {
    ShownShowcase() { addShowcase(window.root); }

    void forEach(const std::function<void(Control&)>& visit) { walk(window.root, visit); }
    static void walk(Control& control, const std::function<void(Control&)>& visit)
    {
        visit(control);
        for (Control* child : control.children())
            walk(*child, visit);
    }

    vela::FakeWindow window{kClientSize};
};

TEST(ShowcaseContentTest, EveryButtonVariantIsShownInEveryStateAndFocused)
{
    ShownShowcase shown;
    std::set<std::pair<std::wstring, VisualState>> states;
    std::set<std::wstring> focused;
    shown.forEach([&](Control& control) {
        const auto* const button = dynamic_cast<const ThemedButton*>(&control);
        if (!button || button->styleKey().empty())
            return;
        states.insert({button->styleKey(), button->visualState()});
        if (button->hasFocus())
            focused.insert(button->styleKey());
    });
    for (const std::wstring_view variant : vela::derivedVariants(vela::ControlKind::Button)) {
        for (int state = 0; state < vela::kVisualStateCount; ++state)
            EXPECT_TRUE(states.contains({std::wstring(variant), static_cast<VisualState>(state)}));
        EXPECT_TRUE(focused.contains(std::wstring(variant)));
    }
}

TEST(ShowcaseContentTest, NoInputReachesAnExhibit)
{
    ShownShowcase shown;
    const auto statesNow = [&] {
        std::vector<std::pair<bool, bool>> states;
        shown.forEach([&](Control& control) { states.emplace_back(control.isHot(), control.isPressed()); });
        return states;
    };
    const auto before = statesNow();
    Control* const exhibit = findControl(shown.window.root, L"button.default.normal");
    ASSERT_NE(exhibit, nullptr);
    const vela::Rect at = exhibit->windowRect().value();
    vela::InputRouter router(shown.window.root);
    router.mouseMoved({at.x + 5, at.y + 5});
    EXPECT_FALSE(router.mouseButton({.position = {at.x + 5, at.y + 5}, .modifiers = {}}));
    router.pointerLeft();
    EXPECT_EQ(statesNow(), before);
    for (const Control* reached : vela::focusOrder(shown.window.root))
        EXPECT_EQ(reached->id().substr(0, 5), L"live.") << "the keyboard reaches an exhibit";
}

// Looks too: a skin's larger fonts must not push one exhibit over another.
TEST(ShowcaseContentTest, NothingStandsOverAnythingElseOrOutsideThePage)
{
    ShownShowcase shown;
    const vela::StyleSheet styles = buildStyleSheet(vela::builtInSkin());
    shown.forEach([&](Control& control) { control.applyStyle(styles); });
    shown.forEach([&](Control& container) {
        if (!container.isContainer())
            return;
        const auto& children = container.children();
        for (std::size_t i = 0; i < children.size(); ++i) {
            const vela::Rect& rect = children[i]->bounds();
            EXPECT_EQ(intersection(rect, container.localBounds()), rect);
            for (std::size_t j = 0; j < i && !children[i]->isContainer() && !children[j]->isContainer(); ++j)
                EXPECT_TRUE(isEmpty(intersection(rect, children[j]->bounds())));
        }
    });
}

TEST(ShowcaseContentTest, APageTakesThePlaceOfAnother)
{
    ShownShowcase shown;
    const std::size_t children = shown.window.root.children().size();
    const Page other{L"other", [](vela::Panel& page) {
                         page.add(std::make_unique<ThemedButton>(L"lone", vela::Rect{0, 0, 10, 10}, L""));
                     }};
    showPage(shown.window.root, other);
    EXPECT_EQ(shown.window.root.children().size(), children);
    EXPECT_NE(findControl(shown.window.root, L"lone"), nullptr);
    EXPECT_EQ(findControl(shown.window.root, L"live.primary"), nullptr);
}

} // namespace
} // namespace showcase
