#include "tests/windows/drawing/system_colors.h"

// The place in the import table by which this program calls the system; on i686 its
// name has the bytes of the arguments.
#ifdef __i386__
extern "C" void* import_place __asm__("__imp__SystemParametersInfoW@16");
#else
extern "C" void* import_place __asm__("__imp_SystemParametersInfoW");
#endif

namespace tavr::win32::testing {

namespace {

using Question = BOOL(WINAPI*)(UINT, UINT, void*, UINT);

Question system_answer = nullptr;
bool high_contrast = false;

BOOL WINAPI answer(UINT what, UINT number, void* data, UINT how) {
  if (what != SPI_GETHIGHCONTRAST) return system_answer(what, number, data, how);
  static_cast<HIGHCONTRASTW*>(data)->dwFlags = high_contrast ? HCF_HIGHCONTRASTON : 0;
  return TRUE;
}

void setImport(Question question) {
  DWORD before = 0;
  VirtualProtect(&import_place, sizeof(void*), PAGE_READWRITE, &before);
  import_place = reinterpret_cast<void*>(question);
  VirtualProtect(&import_place, sizeof(void*), before, &before);
}

}  // namespace

SystemColors::SystemColors() {
  for (std::size_t i = 0; i < before_.size(); ++i) before_[i] = GetSysColor(kContrastPlaces[i]);
  system_answer = reinterpret_cast<Question>(import_place);
  setImport(&answer);
}

SystemColors::~SystemColors() {
  setHighContrast(false);
  setContrastColors(false);
  setImport(system_answer);
}

void SystemColors::setHighContrast(bool on) { high_contrast = on; }

void SystemColors::setContrastColors(bool on) {
  SetSysColors(static_cast<int>(kContrastPlaces.size()), kContrastPlaces.data(),
               on ? kContrastColors.data() : before_.data());
}

}  // namespace tavr::win32::testing
