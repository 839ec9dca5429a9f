// A theme made ready for derivation: its roles resolved to colours that can be read on what they lie on. One
// is made per style sheet; builders only read it.
#pragma once

#include "vela/theme/color/contrast.h"
#include "vela/theme/derive/mode_traits.h"
#include "vela/theme/records/control_styles.h"
#include "vela/theme/records/theme.h"

namespace vela::derive {

// What a part lies on: the colour it is mixed with and every tone it has to stand out from.
struct Backdrop {
    Color fill = 0;
    Tones tones;
};

enum class Hue : std::uint8_t { Neutral, Accent, Success, Warning, Danger };
inline constexpr int kHueCount = 5;

// The fills of the large level surfaces that controls lie on. They stay near each other, so that one border
// colour stands out from all of them.
struct ContainerFills {
    Color panel = 0;
    Color glass = 0;
    Color card = 0;
    Color raisedCard = 0;
    Color dashboard = 0;
};

class DeriveContext {
public:
    explicit DeriveContext(const Theme& theme);

    const Theme& theme;
    const ModeTraits& mode;
    bool materials; // applied in this mode and switched on
    float textAim;  // the ratios aimed at leave room for what a material adds
    float solidAim; // of text on faces in a strong colour
    float markAim;
    bool dark = false;

    ContainerFills containerFills;
    Backdrop backdrop;    // of controls: every container
    Color headerFill = 0; // of the title bar

    PerState<Color> control = {}; // the fills of a standard control

    Color text = 0;
    Color strongText = 0;
    Color mutedText = 0;
    Color disabledText = 0;
    Color edge = 0; // the border of a control
    Color hotEdge = 0;
    Color quietEdge = 0; // the border of a disabled control
    Color hairline = 0;  // separators and the edges of panels
    Color focus = 0;     // focus rings

    Color solid(Hue hue) const noexcept { return solids_[static_cast<int>(hue)]; } // fills and marks
    Color inkOf(Hue hue) const noexcept
    {
        return inks_[static_cast<int>(hue)];
    } // text and marks on the backdrop

    // The fill of a large surface: readable under its shading.
    Color containerFill(Color wanted) const noexcept;
    // The fill of a surface at that elevation, readable under its shading and clearly different from the
    // fills of the other states.
    Color stateFill(Color wanted, Elevation elevation, std::initializer_list<Color> others) const noexcept;
    // The same for parts that keep one text colour in all states: as much of the way from the base to the
    // wanted colour as the ink can still be read on.
    Color fillUnder(Color ink, Color base, Color wanted, Elevation elevation,
                    std::initializer_list<Color> others) const noexcept
    {
        return fillUnder(ink, base, wanted, elevation, others, textAim);
    }
    Color fillUnder(Color ink, Color base, Color wanted, Elevation elevation,
                    std::initializer_list<Color> others, float aim) const noexcept;
    // A mark whose every tone stands out from what it lies on: thumbs, rails, badges, progress.
    Color markFill(Color wanted, const Tones& on, Elevation elevation,
                   std::initializer_list<Color> others = {}) const noexcept;
    // The ink for parts that keep one text colour in all states: it leaves room for their fills to differ.
    Color inkUnder(std::initializer_list<Color> wanted, const Tones& on) const noexcept;
    Tones shades(Color fill, Elevation elevation) const noexcept;
    // A part of the way from the backdrop to what is most unlike it: the fill of a highlighted row or a quiet
    // button.
    Color veil(const Backdrop& on, float amount) const noexcept;
    // The first of the wanted colours that can be read on the backdrop, else the first one nudged.
    Color readable(std::initializer_list<Color> wanted, const Tones& on) const noexcept;
    // The palette's strongest colour on a coloured face.
    Color inkOn(const Tones& on) const noexcept;
    Color mark(Color wanted, const Tones& on) const noexcept;
    // Text of a disabled control: legible, and clearly fainter than the normal text.
    Color faint(Color normal, const Tones& on) const noexcept;

private:
    // The ratio to aim at where that one is the rule: above it by what a material or relief takes.
    float withRoom(float ratio, float materialRoom) const noexcept;
    void resolveHues();
    void resolveContainers();
    void resolveInks();
    void resolveControl();

    Color solids_[kHueCount] = {};
    Color inks_[kHueCount] = {};
};

// At most that visual distance away from a colour, in the direction of another.
Color towards(Color from, Color to, float distance) noexcept;

} // namespace vela::derive
