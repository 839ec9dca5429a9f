#include "vela/controls/tree/damage.h"

#include "vela/controls/tree/control.h"
#include "vela/render/layers/paint_plan.h"

#include <algorithm>

namespace vela {

Rect reachOf(const PaintedSurface& surface)
{
    const Rect all = paintsAround(surface.style)
                         ? around(paintedBounds(surface.style, surface.rect), surface.rect)
                         : surface.rect;
    return surface.clip ? intersection(all, *surface.clip) : all;
}

namespace {

// A surface that paints around itself, as much of both as can be seen in its window.
struct Halo {
    Rect surface;
    Rect reach;
};

class Halos {
public:
    void collect(const Control& control, const Rect& clip)
    {
        if (!control.isVisible())
            return;
        const Rect rect = control.windowRect().value_or(Rect{});
        const Rect inside = control.isContainer() ? intersection(clip, rect) : clip;
        if (isEmpty(inside))
            return;
        at_ = {rect.x, rect.y};
        clip_ = inside;
        control.visitSurfaces([this](const PaintedSurface& surface) { add(surface); });
        for (const Control* child : control.children())
            collect(*child, inside);
    }

    std::vector<Halo> take() { return std::move(found_); }

private:
    void add(const PaintedSurface& surface)
    {
        if (!surface.isShown || !paintsAround(surface.style))
            return;
        const Rect clip = surface.clip ? intersection(movedBy(*surface.clip, at_), clip_) : clip_;
        const Rect own = intersection(movedBy(surface.rect, at_), clip);
        const Rect reach = intersection(movedBy(reachOf(surface), at_), clip);
        // One that is wholly clipped away is not painted at all.
        if (!isEmpty(own) && reach != own)
            found_.push_back({own, reach});
    }

    Point at_;
    Rect clip_;
    std::vector<Halo> found_;
};

} // namespace

std::vector<Rect> grownDamage(const Control& root, std::vector<Rect> damage)
{
    Halos all;
    all.collect(root, root.windowRect().value_or(Rect{}));
    std::vector<Halo> waiting = all.take();
    const auto meets = [&damage](const Rect& rect) {
        return std::any_of(damage.begin(), damage.end(),
                           [&rect](const Rect& part) { return !isEmpty(intersection(part, rect)); });
    };
    for (bool grew = !waiting.empty(); grew;) {
        grew = false;
        std::erase_if(waiting, [&](const Halo& halo) {
            const bool isPainted = meets(halo.surface);
            if (isPainted || !meets(halo.reach))
                return isPainted;
            damage.push_back(halo.surface);
            return grew = true;
        });
    }
    return damage;
}

} // namespace vela
