// A machine with doubles of a test in the places of some of its services.
#pragma once

#include <type_traits>

#include "platform/machine.h"

namespace tavr::testing {

template <class Service, class Double>
void takePlace(Service*& service, Double& own) {
  if constexpr (std::is_base_of_v<Service, Double>) service = &own;
}

template <class Service, class... Doubles>
Service& oneOf(Service& service, Doubles&... doubles) {
  Service* found = &service;
  (takePlace(found, doubles), ...);
  return *found;
}

template <class Double, class... Services>
constexpr bool isOneOf = (std::is_base_of_v<Services, Double> || ...);

template <class Double>
constexpr bool isService =
    isOneOf<Double, Registry, Wmi, IniFiles, Files, Processes, UrlCache, Shell, EventLogService,
            ParentLink, Clock, Locale, Events, Dialogs, Environment, Desktop, Accounts>;

/// The same machine with each double in the place of the service that it is. The
/// doubles outlive the users of what is returned.
template <class... Doubles>
Machine machineWith(const Machine& m, Doubles&... doubles) {
  static_assert((isService<Doubles> && ...), "a double of no service would change nothing");
  return {oneOf(m.registry, doubles...),  oneOf(m.wmi, doubles...),
          oneOf(m.ini, doubles...),       oneOf(m.files, doubles...),
          oneOf(m.processes, doubles...), oneOf(m.url_cache, doubles...),
          oneOf(m.shell, doubles...),     oneOf(m.event_log, doubles...),
          oneOf(m.parent, doubles...),    oneOf(m.clock, doubles...),
          oneOf(m.locale, doubles...),    oneOf(m.events, doubles...),
          oneOf(m.dialogs, doubles...),   oneOf(m.environment, doubles...),
          oneOf(m.desktop, doubles...),   oneOf(m.accounts, doubles...)};
}

}  // namespace tavr::testing
