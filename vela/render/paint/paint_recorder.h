// What controls paint with, where nothing can be painted: every call is noted with all its arguments, as long
// as a recorder lives. Text is measured as if every unit were 8 pixels wide and every line 16 high at 96 DPI.
#pragma once

#include "vela/render/paint/paint.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vela {

struct SurfaceCall {
    Rect rect;
    SurfaceStyle style;
    friend bool operator==(const SurfaceCall&, const SurfaceCall&) = default;
};

struct ControlSurfaceCall {
    Rect rect;
    SurfaceStyle style;
    friend bool operator==(const ControlSurfaceCall&, const ControlSurfaceCall&) = default;
};

struct ProgressFillCall {
    Rect track;
    SurfaceStyle fill;
    float end = 0;
    friend bool operator==(const ProgressFillCall&, const ProgressFillCall&) = default;
};

struct ShapeFillCall {
    Rect rect;
    ShapeKind kind = ShapeKind::Rect;
    Color color = 0;
    friend bool operator==(const ShapeFillCall&, const ShapeFillCall&) = default;
};

struct ShapeOutlineCall {
    Rect rect;
    ShapeKind kind = ShapeKind::Rect;
    Color color = 0;
    std::int32_t penWidth = 0;
    friend bool operator==(const ShapeOutlineCall&, const ShapeOutlineCall&) = default;
};

struct FocusRingCall {
    Rect rect;
    ShapeKind shape = ShapeKind::Rect;
    std::int32_t dpi = 0;
    Color color = 0;
    friend bool operator==(const FocusRingCall&, const FocusRingCall&) = default;
};

struct IconCall {
    Icon icon = Icon::Check;
    Rect box;
    std::int32_t dpi = 0;
    Color color = 0;
    friend bool operator==(const IconCall&, const IconCall&) = default;
};

struct ProgramIconCall {
    Rect box;
    friend bool operator==(const ProgramIconCall&, const ProgramIconCall&) = default;
};

struct TextCall {
    Rect rect;
    std::wstring text;
    FontSpec font;
    std::int32_t dpi = 0;
    TextLook look;
    friend bool operator==(const TextCall&, const TextCall&) = default;
};

struct UnclippedLineCall {
    Rect rect;
    std::wstring text;
    FontSpec font;
    std::int32_t dpi = 0;
    Color color = 0;
    friend bool operator==(const UnclippedLineCall&, const UnclippedLineCall&) = default;
};

// The clip lasts until a call with no rectangles.
struct ClipCall {
    std::vector<Rect> rects;
    friend bool operator==(const ClipCall&, const ClipCall&) = default;
};

using PaintCall =
    std::variant<SurfaceCall, ControlSurfaceCall, ProgressFillCall, ShapeFillCall, ShapeOutlineCall,
                 FocusRingCall, IconCall, ProgramIconCall, TextCall, UnclippedLineCall, ClipCall>;

// Records while it lives; one inside another takes the calls of its own time. Without one, painting is
// forgotten.
class PaintRecorder {
public:
    PaintRecorder() noexcept;
    ~PaintRecorder();
    PaintRecorder(const PaintRecorder&) = delete;
    PaintRecorder& operator=(const PaintRecorder&) = delete;

    const std::vector<PaintCall>& calls() const noexcept { return calls_; }

    // Those of one kind, in their order.
    template <typename Call>
    std::vector<Call> all() const
    {
        std::vector<Call> found;
        for (const PaintCall& call : calls_) {
            if (const Call* const wanted = std::get_if<Call>(&call))
                found.push_back(*wanted);
        }
        return found;
    }

    // For the functions of paint.h.
    static void note(PaintCall call);

private:
    std::vector<PaintCall> calls_;
    PaintRecorder* outer_;
};

// Where a call painted; none for a clip, which paints nothing.
std::optional<Rect> paintedRect(const PaintCall& call);

} // namespace vela
