#include "vela/render/gdi/paint_context.h"

namespace vela {
namespace {

// Bindings end in the reverse order of their beginning, so each one only knows the one before.
const PaintContextBinding* latest = nullptr;

} // namespace

const PaintContext& paintContext(HDC dc) noexcept
{
    static constexpr PaintContext kUnbound;
    const PaintContextBinding* binding = latest;
    while (binding && binding->dc_ != dc)
        binding = binding->outer_;
    return binding ? binding->context_ : kUnbound;
}

PaintContextBinding::PaintContextBinding(HDC dc, const PaintContext& context) noexcept
    : dc_(dc), context_(context), outer_(latest)
{
    latest = this;
}

PaintContextBinding::~PaintContextBinding() { latest = outer_; }

} // namespace vela
