// A theme made ready for derivation: its roles resolved to colours that can be read on what they lie on. One
// is made per style sheet; builders only read it.
//
// It is a contrast solver. What is searched for is always the colour nearest to the one that the palette
// offers which reaches a target ratio on its backdrop: that colour itself, else a lighter or darker one, in
// the last resort black or white. Text and fill depend on each other, so the order is fixed. First come the
// fills of containers, moved off the middle tones on which no text can be read; then text, edges and marks,
// each for all containers together; then the fills of a control's states, each of which must also differ from
// those before it. A part that has a text for each state finds its fills first (stateFill) and then a text
// for each (readable, strongestText). A part with one text for all states finds the text first (sharedText,
// with room to spare) and then the fills on which it can still be read (fillBehind).
//
// The targets lie above the ratios that are asked for (contrast.h), because what is painted is not the plain
// fill: a material's light and texture, or the light on carved surfaces, take away some contrast. They differ
// because what lies beneath does: text stands on small faces, marks lie on large surfaces whose glow lifts
// the dark ones, and faces in a strong colour are made of the glossiest material.
#pragma once

#include "vela/theme/color/contrast.h"
#include "vela/theme/derive/mode_traits.h"
#include "vela/theme/records/control_styles.h"
#include "vela/theme/records/theme.h"

namespace vela::derive {

// What a part lies on: the colour it is mixed with and every tone it has to stand out from.
struct Backdrop {
    Color fill = 0;
    ToneRange tones;
};

// What a part tells by its colour.
enum class Intent : std::uint8_t { Neutral, Accent, Success, Warning, Danger };
inline constexpr int kIntentCount = 5;

// The fills of the large level surfaces that controls lie on. They stay near each other, so that one border
// colour stands out from all of them.
struct ContainerFills {
    Color panel = 0;
    Color glass = 0;
    Color card = 0;
    Color raisedCard = 0;
    Color dashboard = 0;
};

class Context {
public:
    explicit Context(const Theme& theme);

    const Theme& theme;
    const ModeTraits& mode;
    bool materials;        // applied in this mode and switched on
    float textTarget;      // the contrast ratios that are searched for
    float solidTextTarget; // of text on faces in a strong colour
    float markTarget;
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

    // For fills and marks.
    Color solidColor(Intent intent) const noexcept { return solidColors_[static_cast<int>(intent)]; }
    // For text and marks on the backdrop.
    Color textColor(Intent intent) const noexcept { return textColors_[static_cast<int>(intent)]; }

    // The fill of a large surface: readable under its shading.
    Color containerFill(Color wanted) const noexcept;
    // The fill of a surface at that elevation, readable under its shading and clearly different from the
    // fills of the other states.
    Color stateFill(Color wanted, Elevation elevation, std::initializer_list<Color> others) const noexcept;
    // The same for parts that keep one text colour in all states: as much of the way from the base to the
    // wanted colour as the foreground can still be read on.
    Color fillBehind(Color foreground, Color base, Color wanted, Elevation elevation,
                     std::initializer_list<Color> others) const noexcept
    {
        return fillBehind(foreground, base, wanted, elevation, others, textTarget);
    }
    Color fillBehind(Color foreground, Color base, Color wanted, Elevation elevation,
                     std::initializer_list<Color> others, float target) const noexcept;
    // A mark whose every tone stands out from what it lies on: thumbs, rails, badges, progress.
    Color markFill(Color wanted, const ToneRange& on, Elevation elevation,
                   std::initializer_list<Color> others = {}) const noexcept;
    // The text of parts that keep one text colour in all states: it leaves room for their fills to differ.
    Color sharedText(std::initializer_list<Color> wanted, const ToneRange& on) const noexcept;
    // What the shading of an elevation makes of a fill.
    ToneRange shadedTones(Color fill, Elevation elevation) const noexcept;
    // A part of the way from the backdrop to what is most unlike it: the fill of a highlighted row or a quiet
    // button.
    Color overlay(const Backdrop& on, float amount) const noexcept;
    // The first of the wanted colours that can be read on the backdrop, else the first one nudged.
    Color readable(std::initializer_list<Color> wanted, const ToneRange& on) const noexcept;
    // The palette's strongest colour on a coloured face.
    Color strongestText(const ToneRange& on) const noexcept;
    // A border, an arrow or another mark.
    Color mark(Color wanted, const ToneRange& on) const noexcept;
    // Text of a disabled control: legible, and clearly fainter than the normal text.
    Color disabledTextOn(Color normal, const ToneRange& on) const noexcept;

private:
    // The ratio to search for where that one is asked for: above it by what a material or relief takes.
    float withHeadroom(float ratio, float materialHeadroom) const noexcept;
    void resolveSolidColors();
    void resolveContainers();
    void resolveTextColors();
    void resolveControl();

    Color solidColors_[kIntentCount] = {};
    Color textColors_[kIntentCount] = {};
};

// At most that visual distance away from a colour, in the direction of another.
Color towards(Color from, Color to, float distance) noexcept;

} // namespace vela::derive
