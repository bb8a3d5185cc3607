// GDI+, which reads and draws picture files.
#pragma once

#include <windows.h>

#include <objidl.h>

// gdiplus.h expects min and max without a namespace.
#include <algorithm>
namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus

#include <gdiplus.h>

namespace tavr::win32 {

/// It is there from the first call on, to the end of the process.
void startGdiPlus();

}  // namespace tavr::win32
