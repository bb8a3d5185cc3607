// What a moniker of WMI names, bound: one namespace of this computer.
#pragma once

#include <windows.h>
// After windows.h, which it needs.
#include <wbemcli.h>

#include <optional>
#include <string>
#include <string_view>

#include "platform/win32/com.h"

namespace tavr::win32 {

/// "winmgmts:{security}!\\server\namespace:class", of which every part behind
/// the colon may be missing.
struct WmiMoniker {
  std::string name_space;  ///< as ConnectServer takes it; the default one if none is named
  std::string class_name;
};

/// Nothing: the text is no such moniker.
std::optional<WmiMoniker> parseWmiMoniker(std::string_view moniker);

/// COM and the locator of WMI, entered at the first use and kept: each binding
/// then is a connection and no more.
class WmiLocator {
 public:
  /// The namespace, with the rights of the caller. Null: WMI is absent or refuses.
  ComPointer<IWbemServices> connect(std::string_view name_space, IWbemContext* context);

  /// A context that asks for providers of 32 bits.
  ComPointer<IWbemContext> context32();

 private:
  std::optional<ComApartment> apartment_;  // left last
  ComPointer<IWbemLocator> locator_;
};

/// Lets the object act with the rights of the caller. One of this process needs
/// none of it, so a refusal tells nothing.
void impersonate(IUnknown* object);

}  // namespace tavr::win32
