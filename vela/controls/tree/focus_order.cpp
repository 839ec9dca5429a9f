#include "vela/controls/tree/focus_order.h"

#include "vela/controls/tree/control.h"

#include <algorithm>

namespace vela {

namespace {

struct Candidate {
    Control* control;
    Rect rect;
};

void collect(Control& control, std::vector<Candidate>& found)
{
    if (!control.isVisible() || !control.isEnabled() || control.isCollapsed())
        return;
    if (control.acceptsFocus())
        found.push_back({&control, control.windowRect().value_or(control.bounds())});
    for (Control* child : control.children())
        collect(*child, found);
}

std::int64_t middleOf(const Rect& rect) noexcept { return std::int64_t{rect.y} + rect.height / 2; }

// The end of the line that starts at `first`, in candidates sorted by their middles.
auto lineEnd(std::vector<Candidate>::iterator first, std::vector<Candidate>::iterator last)
{
    const std::int64_t bottom = std::int64_t{first->rect.y} + first->rect.height;
    return std::find_if(first + 1, last, [bottom](const Candidate& c) { return middleOf(c.rect) >= bottom; });
}

} // namespace

std::vector<Control*> focusOrder(Control& root)
{
    std::vector<Candidate> found;
    collect(root, found);
    std::stable_sort(found.begin(), found.end(), [](const Candidate& a, const Candidate& b) {
        return middleOf(a.rect) < middleOf(b.rect);
    });
    for (auto line = found.begin(); line != found.end();) {
        const auto end = lineEnd(line, found.end());
        std::stable_sort(line, end,
                         [](const Candidate& a, const Candidate& b) { return a.rect.x < b.rect.x; });
        line = end;
    }
    std::vector<Control*> order(found.size());
    std::transform(found.begin(), found.end(), order.begin(), [](const Candidate& c) { return c.control; });
    return order;
}

Control* focusAfter(const std::vector<Control*>& order, const Control* current, FocusStep step)
{
    if (order.empty())
        return nullptr;
    const auto at = std::find(order.begin(), order.end(), current);
    if (step == FocusStep::Next)
        return at == order.end() || at + 1 == order.end() ? order.front() : *(at + 1);
    return at == order.end() || at == order.begin() ? order.back() : *(at - 1);
}

} // namespace vela
