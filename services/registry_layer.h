// The registry as the program's procedures see it: routines that name the root
// by a short text ("HKCU") or by the path of an existing file (an INI file
// then), answer with a Windows error number, and fill a list box of the main
// form. None of them shows anything.
//
// Track data is addressed in the 64-bit view (mask 0x2013F), the program's own
// settings (fGetString, fSaveString, fReadValue) in the view of a 32-bit
// process.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "forms/controls.h"
#include "platform/machine.h"

namespace tavr {

/// Status of a routine whose root text is unknown.
inline constexpr Status kUnknownRoot = 99;

/// Root codes beyond the four roots.
inline constexpr std::uint32_t kFileRoot = 1;
inline constexpr std::uint32_t kNoRoot = 0;

/// What fReadValue reads: text for kind "S", a truth value for "B", a number
/// for "D".
using ReadValue = std::variant<std::string, bool, std::int32_t>;

/// What GetRegistryValue yields: nothing (the default is missing too), a
/// number, a text, or bytes.
struct ByteArray {
  std::string bytes;
  bool operator==(const ByteArray&) const = default;
};
using RegistryVariant = std::variant<std::monostate, std::int32_t, std::string, ByteArray>;

class RegistryLayer {
 public:
  /// The list boxes are the main form's; one caller uses them at a time.
  /// `grant_failed`, the form's too where it is given, holds how the last grant of
  /// access went.
  RegistryLayer(Machine& machine, TextList& list12, TextList& list20, TextBox& text2,
                bool* grant_failed = nullptr)
      : machine_(machine),
        List12_(list12),
        List20_(list20),
        Text2_(text2),
        grant_failed_(grant_failed) {}

  /// The root code of a root text; kFileRoot for the path of a file.
  std::uint32_t fHiveCode(std::string_view root) const;

  /// Subkey names into List12; `packed` grows by them, each with a NUL.
  Status fEnumKey(std::string_view root, std::string_view key, std::string& packed);
  Status fEnumKey(std::string_view root, std::string_view key);

  /// Value names into List20 (b), List12 (c) or Text2; `packed` grows by
  /// name=data entries, each with a NUL.
  Status fEnumValueb(std::string_view root, std::string_view key, std::string& packed);
  Status fEnumValueb(std::string_view root, std::string_view key);
  Status fEnumValuec(std::string_view root, std::string_view key, std::string& packed);
  Status fEnumValuec(std::string_view root, std::string_view key);
  Status fEnumValue(std::string_view root, std::string_view key, std::string& packed);

  /// A missing key or value counts as deleted (0).
  Status fDeleteKey(std::string_view root, std::string_view parent, std::string_view name) const;
  Status fDeleteValue(std::string_view root, std::string_view key, std::string_view name) const;

  /// `kind` is "S", "B" or "D" in any case; every failure leaves the default.
  Status fReadValue(std::string_view root, std::string_view key, std::string_view name,
                    std::string_view kind, const ReadValue& fallback, ReadValue& out) const;

  /// Raises 1001 for a value type that it does not know.
  RegistryVariant GetRegistryValue(Root root, std::string_view key, std::string_view name,
                                   const RegistryVariant& fallback = {}) const;

  /// A setting as text. Appends to `out` for a REG_DWORD, leaves it for a type
  /// that is neither text nor number, and empties it on failure.
  bool fGetString(Root root, std::string_view key, std::string_view name, std::string& out) const;
  /// The setting alone, "" when it cannot be read.
  std::string setting(std::string_view key, std::string_view name) const;

  /// Writes a setting; a failure is ignored.
  void saveSetting(std::string_view key, std::string_view name, std::string_view text) const {
    fSaveString(Root::kLocalMachine, key, name, text);
  }

  bool fSaveString(Root root, std::string_view key, std::string_view name,
                   std::string_view text) const;

 private:
  using AddName = void (RegistryLayer::*)(std::string_view name);
  Status enumValues(std::string_view root, std::string_view key, std::string& packed,
                    AddName destination);
  Status appendValue(RegistryKey& key, std::uint32_t type, std::uint32_t size, std::string& name,
                     std::string& packed) const;
  void grant(Root root, std::string_view key) const;
  void addToList12(std::string_view name);
  void addToList20(std::string_view name);
  void addToText2(std::string_view name);
  Status readFromFile(std::string_view file, std::string_view section, std::string_view name,
                      std::string_view kind, const ReadValue& fallback, ReadValue& out) const;

  Machine& machine_;
  TextList& List12_;
  TextList& List20_;
  TextBox& Text2_;
  bool* grant_failed_;
};

/// The code module's copy of fHiveCode, which serves the settings form: it
/// knows "HKDD" and "HKCC" and gives them no root, without looking for files
/// of these names.
std::uint32_t moduleHiveCode(Machine& machine, std::string_view root);

}  // namespace tavr
