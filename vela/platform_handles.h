// The handles of Windows' graphics and windows, declared exactly as the Windows headers declare them, for
// portable headers that must name one. Portable code passes them on and never looks inside.
#pragma once

struct HDC__;
struct HFONT__;
struct HINSTANCE__;
struct HMONITOR__;
struct HRGN__;
struct HWND__;

using HDC = HDC__*;
using HFONT = HFONT__*;
using HINSTANCE = HINSTANCE__*;
using HMONITOR = HMONITOR__*;
using HRGN = HRGN__*;
using HWND = HWND__*;
