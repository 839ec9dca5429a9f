#include "vela/controls/tree/accessible_tree.h"

#include "tests/controls/tree/fake_window.h"
#include "vela/controls/widgets/chrome_title_bar.h"
#include "vela/controls/widgets/designed_popup.h"

#include <gtest/gtest.h>

namespace vela {
namespace {

TEST(AccessibleTreeTest, ADialogIsToldAsATreeOfWhatIsShown)
{
    FakeWindow window({690, 420});
    window.root.addControl(
        std::make_unique<ChromeTitleBar>(L"chrome", Rect{0, 0, 690, 40}, L"Tamber Setup", Theme()));
    auto& popup = window.root.addControl(std::make_unique<DesignedPopup>(L"p", Rect{0, 40, 690, 380}));
    popup.setTitle(L"Nainstalovano");
    popup.setMessage(L"Tamber je pripraven.");
    popup.setActions({{L"Zavrit", L"", true}});
    window.root.addControl(std::make_unique<ThemedButton>(L"hidden", Rect{0, 0, 9, 9}, L"X"))
        .setVisible(false);
    auto& group = window.root.addControl(std::make_unique<Panel>(L"group", Rect{0, 0, 50, 50}));
    group.addControl(std::make_unique<ThemedButton>(L"inner", Rect{0, 0, 9, 9}, L"Uvnitr"));

    struct Told {
        AccessibleRole role;
        std::wstring name;
        std::size_t children;
        bool operator==(const Told&) const = default;
    };
    std::vector<Told> told;
    const auto tell = [&told](const auto& self, const AccessibleNode& node) -> void {
        told.push_back({node.info.role, node.info.name, node.children.size()});
        for (const AccessibleNode& child : node.children)
            self(self, child);
    };
    tell(tell, accessibleTree(window.root));
    const std::vector<Told> expected{{AccessibleRole::Pane, L"", 3},
                                     {AccessibleRole::TitleBar, L"Tamber Setup", 1},
                                     {AccessibleRole::PushButton, L"Zavrit", 0},
                                     {AccessibleRole::Dialog, L"Nainstalovano", 2},
                                     {AccessibleRole::PushButton, L"Zavrit", 0},
                                     {AccessibleRole::PushButton, L"Zavrit", 0},
                                     {AccessibleRole::PushButton, L"Uvnitr", 0}};
    EXPECT_EQ(told, expected);
}

} // namespace
} // namespace vela
