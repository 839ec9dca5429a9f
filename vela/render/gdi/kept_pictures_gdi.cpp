#include "vela/render/gdi/kept_pictures_gdi.h"

namespace vela {
namespace {

bool kept = true;

} // namespace

void setPicturesKept(bool on) noexcept { kept = on; }

bool arePicturesKept() noexcept { return kept; }

} // namespace vela
