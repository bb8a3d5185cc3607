// CreateFile in the ways a program opens a file, and the file that is open.
#pragma once

#include "platform/files.h"
#include "platform/win32/win32_path.h"

namespace tavr::win32 {

/// Others may go on reading and writing the file, but not delete it.
OpenedFile openFile(const NativePath& path, OpenMode mode);

}  // namespace tavr::win32
