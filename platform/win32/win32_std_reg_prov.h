// WMI's registry provider, called through its methods.
#pragma once

#include "platform/registry.h"
#include "platform/win32/wmi_session.h"

namespace tavr::win32 {

class Win32StdRegProv final : public StdRegProv {
 public:
  /// Null: there is no class of this name, or WMI refuses.
  static std::unique_ptr<Win32StdRegProv> bind(WmiLocator& locator, const WmiMoniker& moniker);

  /// The provider's class in a namespace that is connected; every call goes with the
  /// context.
  Win32StdRegProv(ComPointer<IWbemContext> context, ComPointer<IWbemServices> services,
                  ComPointer<IWbemClassObject> provider, std::string_view class_name);

  Status getExpandedStringValue(std::uint32_t root, std::string_view key, std::string_view name,
                                std::string& out) override;
  Status getMultiStringValue(std::uint32_t root, std::string_view key, std::string_view name,
                             std::vector<std::string>& out) override;
  Status setMultiStringValue(std::uint32_t root, std::string_view key, std::string_view name,
                             const std::vector<std::string>& strings) override;
  Status createKey(std::uint32_t root, std::string_view key) override;

 private:
  // The parameters of a method, root and key filled in. Null: no such method.
  ComPointer<IWbemClassObject> parameters(const wchar_t* method, std::uint32_t root,
                                          std::string_view key);
  // Calls the method; the answer's ReturnValue, or the failure of the call.
  Status call(const wchar_t* method, const ComPointer<IWbemClassObject>& in,
              ComPointer<IWbemClassObject>& answer);

  ComPointer<IWbemContext> context_;
  ComPointer<IWbemServices> services_;
  ComPointer<IWbemClassObject> class_;
  BasicString class_name_;
};

}  // namespace tavr::win32
