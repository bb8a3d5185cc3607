#include "platform/win32/wmi_session.h"

#include "basic/text.h"

namespace tavr::win32 {

namespace {

constexpr std::string_view kScheme = "winmgmts:";
constexpr std::string_view kDefaultNamespace = "root\\cimv2";
constexpr std::int32_t kProviderBits = 32;

}  // namespace

std::optional<WmiMoniker> parseWmiMoniker(std::string_view moniker) {
  if (!sameText(moniker.substr(0, kScheme.size()), kScheme)) return std::nullopt;
  moniker.remove_prefix(kScheme.size());
  if (moniker.starts_with('{')) {
    const std::size_t end = moniker.find('}');
    if (end == std::string_view::npos) return std::nullopt;
    moniker.remove_prefix(end + 1);
    if (moniker.starts_with('!')) moniker.remove_prefix(1);
  }
  WmiMoniker parsed{std::string(kDefaultNamespace), ""};
  if (!moniker.starts_with("\\\\")) {
    parsed.class_name = moniker;
    return parsed;
  }
  const std::size_t colon = moniker.find(':');
  parsed.name_space = moniker.substr(0, colon);
  if (colon != std::string_view::npos) parsed.class_name = moniker.substr(colon + 1);
  return parsed;
}

ComPointer<IWbemServices> WmiLocator::connect(std::string_view name_space, IWbemContext* context) {
  if (!apartment_) apartment_.emplace();
  ComPointer<IWbemServices> services;
  if (!locator_ && FAILED(CoCreateInstance(CLSID_WbemLocator, nullptr, CLSCTX_INPROC_SERVER,
                                           IID_IWbemLocator, locator_.outAny()))) {
    return services;
  }
  const BasicString path(name_space);
  if (FAILED(locator_->ConnectServer(path.get(), nullptr, nullptr, nullptr, 0, nullptr, context,
                                     services.out()))) {
    return {};
  }
  impersonate(services.get());
  return services;
}

ComPointer<IWbemContext> WmiLocator::context32() {
  if (!apartment_) apartment_.emplace();
  ComPointer<IWbemContext> context;
  if (FAILED(CoCreateInstance(CLSID_WbemContext, nullptr, CLSCTX_INPROC_SERVER, IID_IWbemContext,
                              context.outAny()))) {
    return {};
  }
  Variant bits(kProviderBits);
  if (FAILED(context->SetValue(L"__ProviderArchitecture", 0, bits.get()))) return {};
  return context;
}

void impersonate(IUnknown* object) {
  CoSetProxyBlanket(object, RPC_C_AUTHN_WINNT, RPC_C_AUTHZ_NONE, nullptr, RPC_C_AUTHN_LEVEL_CALL,
                    RPC_C_IMP_LEVEL_IMPERSONATE, nullptr, EOAC_NONE);
}

}  // namespace tavr::win32
