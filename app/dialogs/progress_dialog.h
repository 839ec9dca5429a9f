// What the user sees while a run is under way. It cannot be closed until the run has ended.
#pragma once

#include "app/dialogs/setup_dialog.h"

#include "vela/controls/widgets/progress_bar.h"

namespace setup {

inline constexpr std::int32_t kFirstProgress = 8;

// The bar only shows that work goes on: it fills in steps and begins anew before it would be full.
constexpr std::int32_t nextProgress(std::int32_t percent) noexcept
{
    constexpr std::int32_t kStep = 7;
    constexpr std::int32_t kLast = 94;
    constexpr std::int32_t kAnew = 18;
    return percent + kStep > kLast ? kAnew : percent + kStep;
}

class ProgressDialog final : public SetupDialog {
public:
    ProgressDialog(DialogHost host, std::wstring_view title, std::wstring_view body);
    ProgressDialog(const ProgressDialog&) = delete;
    ProgressDialog& operator=(const ProgressDialog&) = delete;
    ~ProgressDialog() override;

    vela::ProgressBar& bar() noexcept { return *bar_; }
    void advance() { bar_->setValue(nextProgress(bar_->value())); }

private:
    vela::ProgressBar* bar_ = nullptr; // owned by the root
};

} // namespace setup
