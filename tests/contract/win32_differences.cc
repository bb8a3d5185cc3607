#include "tests/contract/win32_differences.h"

#include <windows.h>

namespace tavr::contract {

namespace {

struct Difference {
  std::string_view test;
  std::string_view reason;
};

// As of Wine 8.0.
constexpr std::string_view kNoProviderMethod =
    "Wine's StdRegProv has neither GetExpandedStringValue nor the two of multi-strings";
constexpr std::string_view kModeBits =
    "Wine keeps a file's list as the mode bits of the host and makes its entries up from them";

constexpr Difference kDifferences[] = {
    {"EnvironmentContract.AnUnknownReferenceStays",
     "Wine copies an unknown reference with its last \"%\", which then begins no other"},
    {"FileAccess.TheEntriesOfOthersStayBefore", kModeBits},
    {"FileAccess.TheUserHasTwoEntriesForAFolder", kModeBits},
    {"FilesContract.ABackslashBehindAFileIsAnInvalidName",
     "Wine finds no path there for GetFileAttributes: error 3"},
    {"FilesContract.SettingAttributesSetsAndClears",
     "Wine cannot hide a file that it has just made read-only"},
    {"FilesSearchContract.AFileInAFoldersPlaceIs267AndHasNoSubfolders",
     "Wine finds an invalid name there: error 123"},
    {"FilesSearchContract.APatternThatEndsInADotWantsNoExtension",
     "Wine drops the dot behind a pattern as behind a name"},
    {"IniContract.ACommentIsNoKey", "Wine finds the key \";k\" in a comment"},
    {"IniContract.WritingKeepsEveryOtherLine", "Wine drops blank lines as it writes"},
    {"ProcessesContract.AQueryThatCannotBeReadFails",
     "Wine answers a query about nothing with nothing"},
    {"ProcessesContract.AQuoteInAQueryIsEscaped", "Wine's queries know no escaped quote"},
    {"RegistryContract.SubkeysEnumerateInUpperCasedOrder",
     "Wine orders keys by lower-cased names, which differs for the signs between Z and a"},
    {"ShellContract.EmptyingTakesEveryItemReadOnlyOnesToo",
     "Wine leaves read-only items in the recycle bin"},
    {"ShellContract.WhatIsNoProgramDoesNotStart", "Wine has a program named Start"},
    {"StdRegProvContract.ALongTextIsReadWhole", kNoProviderMethod},
    {"StdRegProvContract.BothKindsOfTextAreReadWithReferencesExpanded", kNoProviderMethod},
    {"StdRegProvContract.EmptyStringsAreKept", kNoProviderMethod},
    {"StdRegProvContract.NStringsAndTheClosingNulGiveNEntries", kNoProviderMethod},
    {"StdRegProvContract.StringsAreStoredWithTheirNulsAndTheClosingOne", kNoProviderMethod},
    {"StdRegProvContract.WritingNeedsTheKey", kNoProviderMethod},
    {"StdRegProvContract.WrittenStringsReadBackWithTheEmptyOnes", kNoProviderMethod},
};

}  // namespace

bool onWine() {
  const HMODULE ntdll = GetModuleHandleW(L"ntdll.dll");
  return ntdll != nullptr && GetProcAddress(ntdll, "wine_get_version") != nullptr;
}

std::string wineDifference(std::string_view test) {
  if (!onWine()) return {};
  for (const Difference& difference : kDifferences) {
    if (difference.test == test) return std::string(difference.reason);
  }
  return {};
}

}  // namespace tavr::contract
