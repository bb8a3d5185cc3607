#include "platform/win32/win32_wmi.h"

#include "platform/win32/win32_std_reg_prov.h"
#include "platform/win32/wmi_session.h"

namespace tavr::win32 {

namespace {

constexpr LONG kForever = -1;  // WBEM_INFINITE, which is unsigned

// Reads the property of every answer. False: the query failed, which may show
// only at the first answer.
bool readIds(IEnumWbemClassObject* answers, std::vector<std::uint32_t>& ids) {
  for (;;) {
    ComPointer<IWbemClassObject> answer;
    ULONG count = 0;
    const HRESULT result = answers->Next(kForever, 1, answer.out(), &count);
    if (FAILED(result)) return false;
    if (result != WBEM_S_NO_ERROR || count == 0) return true;
    Variant value;
    std::uint32_t id = 0;
    if (FAILED(answer->Get(L"processid", 0, value.out(), nullptr, nullptr)) || !value.read(id)) {
      return false;
    }
    ids.push_back(id);
  }
}

}  // namespace

Win32Wmi::Win32Wmi() : locator_(std::make_unique<WmiLocator>()) {}
Win32Wmi::~Win32Wmi() = default;

std::unique_ptr<StdRegProv> Win32Wmi::bindRegistryProvider(std::string_view moniker) {
  const auto parsed = parseWmiMoniker(moniker);
  return parsed ? Win32StdRegProv::bind(*locator_, *parsed) : nullptr;
}

bool Win32Wmi::queryProcessIds(std::string_view query, std::vector<std::uint32_t>& ids) {
  ids.clear();
  const auto parsed = parseWmiMoniker("winmgmts:");
  const ComPointer<IWbemServices> services = locator_->connect(parsed->name_space, nullptr);
  if (!services) return false;
  const BasicString language(L"WQL");
  const BasicString text(query);
  ComPointer<IEnumWbemClassObject> answers;
  if (FAILED(services->ExecQuery(language.get(), text.get(),
                                 WBEM_FLAG_FORWARD_ONLY | WBEM_FLAG_RETURN_IMMEDIATELY, nullptr,
                                 answers.out())) ||
      !answers) {
    return false;
  }
  impersonate(answers.get());
  return readIds(answers.get(), ids) || !ids.empty();
}

}  // namespace tavr::win32
