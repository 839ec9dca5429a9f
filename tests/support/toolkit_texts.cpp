// The tests' controls speak as the product's do, from before the first of them is made.
#include "app/dialogs/toolkit_texts.h"

namespace {

[[maybe_unused]] const bool kGiven = [] {
    vela::setToolkitTexts(setup::kToolkitTexts);
    return true;
}();

} // namespace
