// Looks at every dialog of the setup in every skin, state and scale for what a user would stumble over: text
// that is cut, lies over other text or over a control's edge, does not stand out from its ground, and a focus
// that cannot be seen. Exit code 1 when there is anything.
//   dialog_check SKINS-DOCUMENT
#include "tools/dialog_check/paint_witness_gdi.h"
#include "tools/dialog_stage/dialog_stage_win32.h"

#include "app/dialogs/toolkit_texts.h"

#include "vela/mul_div.h"
#include "vela/render/surface/focus_ring.h"
#include "vela/resource_folders.h"
#include "vela/theme/document/json.h"
#include "vela/theme/document/utf8.h"
#include "vela/theme/skins/style_sections.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>

namespace {

using dialog_check::Box;
using dialog_check::Ink;
using dialog_check::PaintWitness;
using stage::Act;
using stage::DialogStage;
using vela::DibSurface;

constexpr std::int32_t kDpis[] = {96, 120, 144, 192, 240};

// Pixels cost far more than rectangles, and nothing about them changes from scale to scale but their size.
constexpr bool showsPixels(std::int32_t dpi, Act act) noexcept
{
    return dpi == 96 || (dpi == 192 && act == Act::Rest);
}

constexpr std::pair<Act, const wchar_t*> kActs[] = {
    {Act::Rest, L"at rest"}, {Act::Hot, L"hot"}, {Act::Pressed, L"pressed"}, {Act::Disabled, L"disabled"}};

class Check {
public:
    void look(const stage::Scene& scene, const vela::SkinDefinition& skin);
    int conclude() const;

private:
    void lookAtGeometry(DialogStage& stage);
    void lookAtPixels(DialogStage& stage);
    void lookAtFocus(DialogStage& stage);
    void judgeContrast(const std::vector<Ink>& inks, const std::vector<Box>& boxes, const DibSurface& with,
                       const DibSurface& without);
    void report(const std::wstring& finding)
    {
        ++findings_;
        std::printf("%ls: %ls\n", where_.c_str(), finding.c_str());
    }

    std::wstring where_;
    int findings_ = 0;
    int pictures_ = 0;
    std::size_t inks_ = 0;
    std::size_t focuses_ = 0;
    float leastRoom_ = 100; // the contrast reached over the one required, at its least
    std::wstring leastAt_;
};

std::vector<Box> boxesOf(const DialogStage& stage)
{
    std::vector<Box> boxes;
    for (const vela::Control* leaf : stage.leaves())
        boxes.push_back({leaf->id(), leaf->windowRect().value_or(vela::Rect{}), leaf->isEnabled(),
                         leaf->accessibleInfo().role != vela::AccessibleRole::StaticText});
    return boxes;
}

// On a picture as large as the dialog: how much of a scrolled text is seen depends on the clip.
std::vector<Ink> inksOf(DialogStage& stage)
{
    const DibSurface picture(vela::sizeOf(stage.dialog().clientRect()));
    const PaintWitness witness(PaintWitness::Ink::LeftOut);
    stage.dialog().root().paint(picture.dc(), {});
    return witness.inks();
}

std::unique_ptr<DibSurface> pictureOf(const DialogStage& stage, PaintWitness::Ink ink)
{
    const PaintWitness witness(ink);
    return stage.picture();
}

void Check::look(const stage::Scene& scene, const vela::SkinDefinition& skin)
{
    const auto styles = std::make_shared<const vela::StyleSheet>(vela::buildStyleSheet(skin));
    for (const std::int32_t dpi : kDpis) {
        for (const auto& [act, name] : kActs) {
            where_ =
                std::wstring(scene.name) + L", " + skin.id + L", " + std::to_wstring(dpi) + L" DPI, " + name;
            DialogStage stage(scene, styles);
            if (!stage)
                return report(L"no window");
            stage.scaleTo(dpi);
            stage.play(act);
            lookAtGeometry(stage);
            if (showsPixels(dpi, act))
                lookAtPixels(stage);
        }
    }
    where_ = std::wstring(scene.name) + L", " + skin.id + L", focus";
    DialogStage stage(scene, styles);
    if (stage)
        lookAtFocus(stage);
}

void Check::lookAtGeometry(DialogStage& stage)
{
    const std::vector<Ink> inks = inksOf(stage);
    inks_ += inks.size();
    for (const std::wstring& finding :
         geometryFindings(inks, boxesOf(stage), vela::sizeOf(stage.dialog().clientRect())))
        report(finding);
}

void Check::lookAtPixels(DialogStage& stage)
{
    const std::vector<Ink> inks = inksOf(stage);
    const auto with = pictureOf(stage, PaintWitness::Ink::Painted);
    const auto without = pictureOf(stage, PaintWitness::Ink::LeftOut);
    pictures_ += 2;
    judgeContrast(inks, boxesOf(stage), *with, *without);
}

void Check::judgeContrast(const std::vector<Ink>& inks, const std::vector<Box>& boxes, const DibSurface& with,
                          const DibSurface& without)
{
    for (const Ink& ink : inks) {
        const Box* const owner = ownerOf(ink, boxes);
        const float required = requiredContrast(ink, !owner || owner->enabled);
        const float reached = reachedContrast(ink, with.pixels(), without.pixels());
        if (reached < required) {
            wchar_t ratios[64];
            std::swprintf(ratios, std::size(ratios), L" has a contrast of %.2f, not %.1f",
                          static_cast<double>(reached), static_cast<double>(required));
            report(L"\"" + ink.text.substr(0, 32) + L"\"" + (owner ? L" of " + owner->id : L"") + ratios);
        }
        if (reached / required < leastRoom_) {
            leastRoom_ = reached / required;
            leastAt_ = where_ + L", " + ink.text.substr(0, 32);
        }
    }
}

void Check::lookAtFocus(DialogStage& stage)
{
    stage.scaleTo(vela::kDesignDpi);
    const auto rest = stage.picture();
    stage.play(Act::Focus);
    while (const vela::Control* const focused = stage.focusNext()) {
        const auto picture = stage.picture();
        ++pictures_;
        ++focuses_;
        const vela::Rect at = focused->windowRect().value_or(vela::Rect{});
        const vela::Rect ring =
            vela::focusRingBounds(vela::movedBy(focused->focusBounds(), {at.x, at.y}), vela::kDesignDpi);
        const std::size_t seen = dialog_check::strikingChanges(ring, rest->pixels(), picture->pixels());
        if (seen < dialog_check::leastFocusChange(ring))
            report(L"the focus on " + focused->id() + L" is hardly seen: " + std::to_wstring(seen) +
                   L" pixels, not " + std::to_wstring(dialog_check::leastFocusChange(ring)));
    }
}

int Check::conclude() const
{
    std::printf("%d pictures, %zu texts and marks, %zu focus stops, %d findings\n"
                "least contrast: %.2f times what is required (%ls)\n",
                pictures_, inks_, focuses_, findings_, static_cast<double>(leastRoom_), leastAt_.c_str());
    // A check that saw nothing has not passed.
    return findings_ > 0 || inks_ == 0 || focuses_ == 0;
}

std::vector<vela::SkinDefinition> readSkins(const wchar_t* path)
{
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    vela::JsonDocument document;
    document.read(vela::decodeUtf8(bytes));
    return vela::skinsFromDocument(document.root());
}

} // namespace

int wmain(int count, wchar_t** arguments)
{
    vela::setToolkitTexts(setup::kToolkitTexts);
    if (count != 2) {
        std::fputs("dialog_check SKINS-DOCUMENT\n", stderr);
        return 2;
    }
    vela::setResourceFolders({});
    Check check;
    for (const vela::SkinDefinition& skin : readSkins(arguments[1]))
        for (const stage::Scene& scene : stage::scenes())
            check.look(scene, skin);
    return check.conclude();
}
