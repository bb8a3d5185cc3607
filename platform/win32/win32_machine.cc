#include "platform/win32/win32_machine.h"

#include "platform/win32/win32_accounts.h"
#include "platform/win32/win32_clock.h"
#include "platform/win32/win32_desktop.h"
#include "platform/win32/win32_dialogs.h"
#include "platform/win32/win32_environment.h"
#include "platform/win32/win32_event_log.h"
#include "platform/win32/win32_events.h"
#include "platform/win32/win32_files.h"
#include "platform/win32/win32_ini.h"
#include "platform/win32/win32_parent_link.h"
#include "platform/win32/win32_processes.h"
#include "platform/win32/win32_registry.h"
#include "platform/win32/win32_shell.h"
#include "platform/win32/win32_url_cache.h"
#include "platform/win32/win32_wmi.h"

namespace tavr::win32 {

struct Win32Machine::Services {
  Win32Registry registry;
  Win32Wmi wmi;
  Win32IniFiles ini;
  Win32Files files;
  Win32Processes processes;
  Win32UrlCache url_cache;
  Win32Shell shell;
  Win32EventLog event_log;
  Win32ParentLink parent;
  Win32Clock clock;
  Win32Locale locale;
  Win32Events events;
  Win32Dialogs dialogs{&events};
  Win32Environment environment;
  Win32Desktop desktop{&events};
  Win32Accounts accounts;
};

Win32Machine::Win32Machine()
    : services_(std::make_unique<Services>()),
      machine_(std::make_unique<Machine>(Machine{
          services_->registry, services_->wmi, services_->ini, services_->files,
          services_->processes, services_->url_cache, services_->shell, services_->event_log,
          services_->parent, services_->clock, services_->locale, services_->events,
          services_->dialogs, services_->environment, services_->desktop, services_->accounts})) {}

Win32Machine::~Win32Machine() = default;

Win32Events& Win32Machine::events() { return services_->events; }
Win32Desktop& Win32Machine::desktop() { return services_->desktop; }

}  // namespace tavr::win32
