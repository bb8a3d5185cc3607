// Asks for the twenty processes that a start asks for, and does nothing else: what
// of a start is the machine's way of loading WMI and of answering it.
#include <windows.h>
// Behind windows.h.
#include <wbemidl.h>

namespace {

constexpr LONG kForever = -1;  // WBEM_INFINITE, which is unsigned
constexpr int kQueries = 20;   // two for each of ten browsers

// False: the machine does not answer.
bool ask(IWbemServices* services) {
  const BSTR language = SysAllocString(L"WQL");
  const BSTR query = SysAllocString(L"Select * from Win32_Process WHERE Name = 'browser.exe'");
  IEnumWbemClassObject* answers = nullptr;
  const HRESULT status = services->ExecQuery(
      language, query, WBEM_FLAG_FORWARD_ONLY | WBEM_FLAG_RETURN_IMMEDIATELY, nullptr, &answers);
  SysFreeString(query);
  SysFreeString(language);
  if (FAILED(status)) return false;
  IWbemClassObject* answer = nullptr;
  ULONG count = 0;
  while (answers->Next(kForever, 1, &answer, &count) == WBEM_S_NO_ERROR) answer->Release();
  answers->Release();
  return true;
}

bool askAll() {
  IWbemLocator* locator = nullptr;
  if (FAILED(CoCreateInstance(CLSID_WbemLocator, nullptr, CLSCTX_INPROC_SERVER, IID_IWbemLocator,
                              reinterpret_cast<void**>(&locator)))) {
    return false;
  }
  const BSTR name = SysAllocString(L"root\\cimv2");
  bool answered = true;
  for (int i = 0; i < kQueries && answered; ++i) {
    IWbemServices* services = nullptr;
    answered = SUCCEEDED(locator->ConnectServer(name, nullptr, nullptr, nullptr, 0, nullptr,
                                                nullptr, &services)) &&
               ask(services);
    if (services != nullptr) services->Release();
  }
  SysFreeString(name);
  locator->Release();
  return answered;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
  const bool answered = askAll();
  CoUninitialize();
  return answered ? 0 : 1;
}
