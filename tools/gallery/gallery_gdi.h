// The sheets that the gallery draws, one function each.
#pragma once

#include "tools/gallery/sheet_gdi.h"
#include "vela/theme/records/style_sheet.h"
#include "vela/theme/skins/skin_document.h"

#include <functional>
#include <string>
#include <vector>

namespace gallery {

// Each returns whether its file could be written.
bool drawShapeSheet(const std::wstring& path);
bool drawGradientSheet(const std::wstring& path);
bool drawLayerSheet(const std::wstring& path);
bool drawIconSheet(const std::wstring& path);
bool drawTypeSheet(const std::wstring& path);
bool drawPresetSheet(const std::wstring& path);
bool drawNamedMaterialSheet(const std::wstring& path);

// The setup's first window in every skin, small and side by side.
bool drawFrontSheet(const std::wstring& path, const std::vector<vela::SkinDefinition>& skins);

// All control kinds of a skin with their variants and states.
bool drawSkinSheet(const std::wstring& path, const vela::SkinDefinition& skin);

// Takes a sheet's name and what draws it to a path.
using SheetList = std::function<void(const std::wstring& name,
                                     const std::function<bool(const std::wstring& path)>& drawSheet)>;

// The setup's own windows in every skin and state.
void drawDialogs(const std::vector<vela::SkinDefinition>& skins, const SheetList& draw);

} // namespace gallery
