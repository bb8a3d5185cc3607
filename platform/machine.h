// A Windows machine: everything of it that the program talks to. There are two
// kinds, the machine the program runs on and one that is kept in a folder; the
// services above cannot tell which one they have. Handed by reference to what
// needs it; the owner (folder/machine_folder.h, win32/) outlives every user.
#pragma once

#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/environment.h"
#include "platform/event_log.h"
#include "platform/events.h"
#include "platform/files.h"
#include "platform/ini.h"
#include "platform/parent_link.h"
#include "platform/processes.h"
#include "platform/registry.h"
#include "platform/security.h"
#include "platform/shell.h"
#include "platform/url_cache.h"
#include "platform/wmi.h"

namespace tavr {

struct Machine {
  Registry& registry;
  Wmi& wmi;
  IniFiles& ini;
  Files& files;
  Processes& processes;
  UrlCache& url_cache;
  Shell& shell;
  EventLogService& event_log;
  ParentLink& parent;
  Clock& clock;
  Locale& locale;
  Events& events;
  Dialogs& dialogs;
  Environment& environment;
  Desktop& desktop;
  Accounts& accounts;
};

}  // namespace tavr
