// The registry of the machine: open keys and the operations on them.
//
// Names compare without case; a trailing "\" in a path addresses the same key, a
// leading one fails with 161 under every root but HKEY_CLASSES_ROOT.
// Text crosses the seam as UTF-8, sizes of text count UTF-16 units. Where the access
// mask names no view (neither 0x100 nor 0x200) the platform adds the 32-bit view
// (0x200), in every build of the program: HKEY_LOCAL_MACHINE\SOFTWARE and the
// classes have two views, and the program's own settings live in the 32-bit one;
// elsewhere below HKEY_CURRENT_USER a view changes nothing. A mask with both views
// gives 87, and so does a key name of more than 255 units. A handle's rights are
// checked as Windows checks them (0x1 for reading and enumerating values, 0x2 for
// setting and deleting them, 0x8 for enumerating subkeys); a missing right gives 5.
// Making and deleting keys asks for no right of the handle.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/security.h"
#include "platform/win_error.h"

namespace tavr {

enum class Root : std::uint32_t {
  kClassesRoot = 0x80000000,
  kCurrentUser = 0x80000001,
  kLocalMachine = 0x80000002,
  kUsers = 0x80000003,
};

/// Value types of the registry that the program names.
inline constexpr std::uint32_t kRegNone = 0;
inline constexpr std::uint32_t kRegSz = 1;
inline constexpr std::uint32_t kRegExpandSz = 2;
inline constexpr std::uint32_t kRegBinary = 3;
inline constexpr std::uint32_t kRegDword = 4;
inline constexpr std::uint32_t kRegMultiSz = 7;

/// A value's data as read. For the text types (1, 2) `data` is UTF-8 and ends
/// in exactly one NUL, whether or not the stored value does; a text of no bytes
/// at all has data "" and size 0. For type 7 it is the strings, each with its
/// NUL, and the closing NUL ("" again for no bytes); for every other type the raw
/// bytes. `size` counts UTF-16 units for the text types, closing NUL included,
/// and stored bytes otherwise.
struct RegistryData {
  std::uint32_t type = kRegNone;
  std::uint32_t size = 0;
  std::string data;
};

/// An open key; destroying it closes it. A key whose node was deleted answers
/// every operation with 1018.
class RegistryKey {
 public:
  virtual ~RegistryKey() = default;

  /// RegEnumKey: the name of subkey `index` in the machine's order (upper-cased
  /// names); 259 behind the last.
  virtual Status enumKey(std::uint32_t index, std::string& name) = 0;

  /// RegEnumValue without a data buffer: name, type and data size of value
  /// `index`, as in RegistryData, in the order in which the values came; 259
  /// behind the last. The default value has name "".
  virtual Status enumValue(std::uint32_t index, std::string& name, std::uint32_t& type,
                           std::uint32_t& size) = 0;

  /// RegQueryValueEx into a buffer of `capacity` units. 2: no such value;
  /// 234: longer than the buffer, `out.type` and `out.size` are set, data is
  /// empty. `capacity` 0 asks for type and size (234 unless the value is empty).
  virtual Status queryValue(std::string_view name, std::uint32_t capacity, RegistryData& out) = 0;

  /// RegSetValueEx: creates or replaces; a replaced value keeps its name's case.
  /// Text data may end in a NUL or not; "" stores no bytes.
  virtual Status setValue(std::string_view name, std::uint32_t type, std::string_view data) = 0;

  /// RegDeleteValue. 2: no such value.
  virtual Status deleteValue(std::string_view name) = 0;

  /// RegDeleteKey on a subkey path, in the view of the handle; "" is the key itself.
  /// The key's values go with it. 2: no such key; 5: it has subkeys.
  virtual Status deleteKey(std::string_view subkey) = 0;

  /// RegGetKeySecurity of the access list. 5: opened without READ_CONTROL
  /// (0x20000); 50: this machine's keys have no lists.
  virtual Status security(SecurityDescriptor& out) = 0;

  /// RegSetKeySecurity of the access list. 5: opened without WRITE_DAC (0x40000);
  /// 50: this machine's keys have no lists.
  virtual Status setSecurity(const SecurityDescriptor& descriptor) = 0;
};

struct OpenedKey {
  Status status = kFileNotFound;
  std::unique_ptr<RegistryKey> key;  // set exactly when status is 0
};

class Registry {
 public:
  virtual ~Registry() = default;

  /// RegOpenKeyEx. 2: no such key; 6: `root` is none of the roots, which create
  /// and deleteKey answer likewise.
  virtual OpenedKey open(Root root, std::string_view path, std::uint32_t access) = 0;

  /// RegCreateKeyEx with option 0 and the class text `key_class`: opens the key
  /// and makes every missing key on the way.
  virtual OpenedKey create(Root root, std::string_view path, std::string_view key_class,
                           std::uint32_t access) = 0;

  /// RegDeleteKey directly below a root, always in the 64-bit view: there is no
  /// mask to name one. 2: no such key; 5: it has subkeys.
  virtual Status deleteKey(Root root, std::string_view path) = 0;
};

/// WMI's registry provider, bound. Its architecture is 32 bits on every
/// machine. A result other than 0 leaves the out parameter empty.
class StdRegProv {
 public:
  virtual ~StdRegProv() = default;

  /// Reads REG_SZ and REG_EXPAND_SZ, references expanded. Another type or a
  /// missing value gives a result other than 0.
  virtual Status getExpandedStringValue(std::uint32_t root, std::string_view key,
                                        std::string_view name, std::string& out) = 0;
  /// Reads REG_MULTI_SZ, empty strings kept; n strings and the closing NUL give
  /// n entries. Another type or a missing value gives a result other than 0.
  virtual Status getMultiStringValue(std::uint32_t root, std::string_view key,
                                     std::string_view name, std::vector<std::string>& out) = 0;
  /// Replaces the value. The key must exist (2 otherwise). n strings are stored
  /// as their text, each with its NUL, and the closing NUL.
  virtual Status setMultiStringValue(std::uint32_t root, std::string_view key,
                                     std::string_view name,
                                     const std::vector<std::string>& strings) = 0;
  /// Makes the key and every missing key above it; an existing one gives 0.
  virtual Status createKey(std::uint32_t root, std::string_view key) = 0;
};

}  // namespace tavr
