#include "platform/win32/win32_std_reg_prov.h"

#include <utility>

namespace tavr::win32 {

namespace {

constexpr auto kNoSuchMethod = static_cast<Status>(WBEM_E_METHOD_NOT_IMPLEMENTED);
constexpr auto kNotThisType = static_cast<Status>(WBEM_E_TYPE_MISMATCH);

void put(const ComPointer<IWbemClassObject>& in, const wchar_t* name, Variant& value) {
  if (in) in->Put(name, 0, value.get(), 0);
}

void putText(const ComPointer<IWbemClassObject>& in, const wchar_t* name, std::string_view text) {
  Variant value(text);
  put(in, name, value);
}

}  // namespace

Win32StdRegProv::Win32StdRegProv(ComPointer<IWbemContext> context,
                                 ComPointer<IWbemServices> services,
                                 ComPointer<IWbemClassObject> provider, std::string_view class_name)
    : context_(std::move(context)),
      services_(std::move(services)),
      class_(std::move(provider)),
      class_name_(class_name) {}

std::unique_ptr<Win32StdRegProv> Win32StdRegProv::bind(WmiLocator& locator,
                                                       const WmiMoniker& moniker) {
  ComPointer<IWbemContext> context = locator.context32();
  if (!context) return nullptr;
  ComPointer<IWbemServices> services = locator.connect(moniker.name_space, context.get());
  if (!services) return nullptr;
  const BasicString name(moniker.class_name);
  ComPointer<IWbemClassObject> provider;
  if (FAILED(services->GetObject(name.get(), 0, context.get(), provider.out(), nullptr)) ||
      !provider) {
    return nullptr;
  }
  return std::make_unique<Win32StdRegProv>(std::move(context), std::move(services),
                                           std::move(provider), moniker.class_name);
}

ComPointer<IWbemClassObject> Win32StdRegProv::parameters(const wchar_t* method, std::uint32_t root,
                                                         std::string_view key) {
  ComPointer<IWbemClassObject> definition;
  ComPointer<IWbemClassObject> in;
  if (FAILED(class_->GetMethod(method, 0, definition.out(), nullptr)) || !definition ||
      FAILED(definition->SpawnInstance(0, in.out()))) {
    return {};
  }
  Variant root_number(static_cast<std::int32_t>(root));
  put(in, L"hDefKey", root_number);
  putText(in, L"sSubKeyName", key);
  return in;
}

Status Win32StdRegProv::call(const wchar_t* method, const ComPointer<IWbemClassObject>& in,
                             ComPointer<IWbemClassObject>& answer) {
  if (!in) return kNoSuchMethod;
  const BasicString name(method);
  const HRESULT result = services_->ExecMethod(class_name_.get(), name.get(), 0, context_.get(),
                                               in.get(), answer.out(), nullptr);
  if (FAILED(result)) return static_cast<Status>(result);
  Variant value;
  Status status = kNotThisType;
  if (!answer || FAILED(answer->Get(L"ReturnValue", 0, value.out(), nullptr, nullptr)) ||
      !value.read(status)) {
    return kNotThisType;
  }
  return status;
}

Status Win32StdRegProv::getExpandedStringValue(std::uint32_t root, std::string_view key,
                                               std::string_view name, std::string& out) {
  constexpr const wchar_t* kMethod = L"GetExpandedStringValue";
  out.clear();
  const ComPointer<IWbemClassObject> in = parameters(kMethod, root, key);
  putText(in, L"sValueName", name);
  ComPointer<IWbemClassObject> answer;
  if (const Status status = call(kMethod, in, answer)) return status;
  Variant value;
  answer->Get(L"sValue", 0, value.out(), nullptr, nullptr);
  return value.read(out) ? kSuccess : kNotThisType;
}

Status Win32StdRegProv::getMultiStringValue(std::uint32_t root, std::string_view key,
                                            std::string_view name, std::vector<std::string>& out) {
  constexpr const wchar_t* kMethod = L"GetMultiStringValue";
  out.clear();
  const ComPointer<IWbemClassObject> in = parameters(kMethod, root, key);
  putText(in, L"sValueName", name);
  ComPointer<IWbemClassObject> answer;
  if (const Status status = call(kMethod, in, answer)) return status;
  Variant value;
  answer->Get(L"sValue", 0, value.out(), nullptr, nullptr);
  // Without a string there is no array.
  return value.isNull() || value.read(out) ? kSuccess : kNotThisType;
}

Status Win32StdRegProv::setMultiStringValue(std::uint32_t root, std::string_view key,
                                            std::string_view name,
                                            const std::vector<std::string>& strings) {
  constexpr const wchar_t* kMethod = L"SetMultiStringValue";
  const ComPointer<IWbemClassObject> in = parameters(kMethod, root, key);
  putText(in, L"sValueName", name);
  Variant value(strings);
  put(in, L"sValue", value);
  ComPointer<IWbemClassObject> answer;
  return call(kMethod, in, answer);
}

Status Win32StdRegProv::createKey(std::uint32_t root, std::string_view key) {
  constexpr const wchar_t* kMethod = L"CreateKey";
  ComPointer<IWbemClassObject> answer;
  return call(kMethod, parameters(kMethod, root, key), answer);
}

}  // namespace tavr::win32
