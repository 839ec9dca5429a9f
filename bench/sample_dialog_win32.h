// A dialog like those of the setup, as the benchmarks open it.
#pragma once

#include "vela/controls/designed_popup.h"
#include "vela/controls/dialog_window.h"

namespace bench {

inline constexpr vela::Size kSampleDialog{690, 420};

class SampleDialog : public vela::DialogWindow {
public:
    // Not shown yet.
    explicit SampleDialog(std::shared_ptr<const vela::StyleSheet> styles);
    SampleDialog(const SampleDialog&) = delete;
    SampleDialog& operator=(const SampleDialog&) = delete;
    ~SampleDialog() override { destroy(); }

    vela::DesignedPopup& popup() noexcept { return *popup_; }

private:
    vela::DesignedPopup* popup_ = nullptr;
};

} // namespace bench
