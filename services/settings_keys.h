// Keys and values of the program's own settings, all under HKEY_LOCAL_MACHINE
// unless said otherwise. The spellings differ between readers, as Windows
// treats them alike; each stands here once in the form its callers use.
#pragma once

#include <string_view>

namespace tavr::settings {

inline constexpr std::string_view kMainKey = "software\\tavrwork\\Tavr Wipe";
inline constexpr std::string_view kMainKeyOfCache = "software\\Tavrwork\\tavr wipe";
// One level deeper, and nothing writes it: the cache test reads here.
inline constexpr std::string_view kMainKeyOfCacheTest = "software\\Tavrwork\\tavr wipe\\Tavr wipe";
inline constexpr std::string_view kOptionsKey = "software\\tavrwork\\Tavr wipe\\option\\option";
inline constexpr std::string_view kOptionsKeyOfCache =
    "software\\Tavrwork\\tavr wipe\\option\\option";
inline constexpr std::string_view kSelectionKey = "Software\\Tavrwork\\tavr wipe\\option\\win";
inline constexpr std::string_view kLiveKey = "software\\tavrwork\\Tavr Brightbox Deluxe\\real";
inline constexpr std::string_view kLiveFiguresKey =
    "software\\tavrwork\\Tavr Brightbox Deluxe\\real\\";
inline constexpr std::string_view kStatisticsKey =
    "software\\tavrwork\\Tavr Brightbox Deluxe\\statics\\tracks";
inline constexpr std::string_view kWizardStatisticsKey =
    "software\\tavrwork\\Tavr Brightbox Deluxe\\wizard\\statics\\tracks";
inline constexpr std::string_view kLookKey = "SOFTWARE\\tavrwork\\tavrwork brightbox";
inline constexpr std::string_view kTimerKey = "software\\tavrwork\\Tavr Wipe\\timer";
// Of the browser, under HKEY_CURRENT_USER.
inline constexpr std::string_view kBrowserKey = "software\\microsoft\\internet explorer\\main\\";
inline constexpr std::string_view kStartPage = "Start Page";
inline constexpr std::string_view kWindowTitle = "window title";
// Where earlier installations entered themselves; only cleared.
inline constexpr std::string_view kRunKeyOfNt =
    "Software\\Microsoft\\windows nt\\currentversion\\run";
inline constexpr std::string_view kRunKey = "Software\\Microsoft\\windows\\currentversion\\run";
inline constexpr std::string_view kRunValue = "Tavr Wipe";
inline constexpr std::string_view kLanguageKey = "SOFTWARE\\tavrwork\\tavrwork brightbox\\tavrwipe";
inline constexpr std::string_view kOptionKeyOfNote = "software\\tavrwork\\tavr wipe\\option\\";

// "firsttime": whether the program has been started before.
inline constexpr std::string_view kFirstTimeKey = "software\\tavrwork\\tavr wipe\\option";

}  // namespace tavr::settings
