// Sees every text and mark that the toolkit draws while it is there, and can keep them from being painted:
// this program links it in the place of the toolkit's own texts and icons.
#pragma once

#include "tools/dialog_check/ink.h"

namespace dialog_check {

class PaintWitness {
public:
    enum class Ink : std::uint8_t { Painted, LeftOut };

    // At most one at a time.
    explicit PaintWitness(Ink ink);
    ~PaintWitness();
    PaintWitness(const PaintWitness&) = delete;
    PaintWitness& operator=(const PaintWitness&) = delete;

    const std::vector<dialog_check::Ink>& inks() const noexcept { return inks_; }

    // For the functions that stand before the renderer's. True when the ink is to be painted.
    static bool see(dialog_check::Ink ink);

private:
    Ink ink_;
    std::vector<dialog_check::Ink> inks_;
};

} // namespace dialog_check
