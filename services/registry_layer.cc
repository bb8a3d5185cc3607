#include "services/registry_layer.h"

#include "basic/number.h"
#include "basic/resume_next.h"
#include "basic/text.h"
#include "basic/utf.h"
#include "services/file_statements.h"

namespace tavr {

namespace {

// READ_CONTROL, the six key rights and the 64-bit view.
constexpr std::uint32_t kTrackAccess = 0x2013F;
constexpr std::uint32_t kQueryAccess = 0x1;
constexpr std::uint32_t kNameBuffer = 2048;
constexpr std::uint32_t kSectionBuffer = 8192;
constexpr std::uint32_t kIniBuffer = 255;
constexpr std::uint32_t kVariantBuffer = 1024;
constexpr int kUnsupportedType = 1001;

Root rootOf(std::uint32_t code) { return static_cast<Root>(code); }

// The end of every list: a NUL, and another for an empty one.
void closePacked(std::string& packed) {
  packed += '\0';
  if (packed.size() == 1) packed += '\0';
}

// A default as the text that an INI read takes it for.
std::string asText(const ReadValue& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? "True" : "False";
  return numberText(std::get<std::int32_t>(value));
}

Status missingIsSuccess(Status status) { return status == kFileNotFound ? kSuccess : status; }

// A file of that name makes the text a root, unless looking for it fails.
std::uint32_t fileCode(Machine& machine, std::string_view root) {
  return Dir(machine, root).empty() ? kNoRoot : kFileRoot;
}

}  // namespace

std::uint32_t RegistryLayer::fHiveCode(std::string_view root) const {
  const std::string name = UCase(root);
  if (name == "HKCU") return static_cast<std::uint32_t>(Root::kCurrentUser);
  if (name == "HKLM") return static_cast<std::uint32_t>(Root::kLocalMachine);
  if (name == "HKU") return static_cast<std::uint32_t>(Root::kUsers);
  if (name == "HKCR") return static_cast<std::uint32_t>(Root::kClassesRoot);
  return fileCode(machine_, root);
}

std::uint32_t moduleHiveCode(Machine& machine, std::string_view root) {
  const std::string name = UCase(root);
  if (name == "HKCU") return static_cast<std::uint32_t>(Root::kCurrentUser);
  if (name == "HKLM") return static_cast<std::uint32_t>(Root::kLocalMachine);
  if (name == "HKU") return static_cast<std::uint32_t>(Root::kUsers);
  if (name == "HKDD" || name == "HKCC") return kNoRoot;
  if (name == "HKCR") return static_cast<std::uint32_t>(Root::kClassesRoot);
  return fileCode(machine, root);
}

Status RegistryLayer::fEnumKey(std::string_view root, std::string_view key, std::string& packed) {
  List12_.clear();
  const std::uint32_t code = fHiveCode(root);
  if (code == kNoRoot) return kUnknownRoot;
  const OpenedKey opened = machine_.registry.open(rootOf(code), key, kTrackAccess);
  if (opened.status != kSuccess) return opened.status;
  std::string name;
  for (std::uint32_t index = 0; opened.key->enumKey(index, name) == kSuccess; ++index) {
    // The NUL behind the name guards its trailing blanks, not the leading ones.
    std::string trimmed(LTrim(name));
    trimmed += '\0';
    packed += trimmed;
    List12_.add(trimmed);
  }
  closePacked(packed);
  return kSuccess;
}

Status RegistryLayer::fEnumKey(std::string_view root, std::string_view key) {
  std::string packed;
  return fEnumKey(root, key, packed);
}

void RegistryLayer::addToList12(std::string_view name) {
  if (!Trim(name).empty()) List12_.add(name);
}

void RegistryLayer::addToList20(std::string_view name) {
  if (!Trim(name).empty()) List20_.add(name);
}

// Without a test on the name: the pass that ends the walk appends its blanks.
void RegistryLayer::addToText2(std::string_view name) {
  const std::string& before = Text2_.text();
  Text2_.setText(Trim(before).empty() ? std::string(name) : before + "," + std::string(name));
}

Status RegistryLayer::fEnumValueb(std::string_view root, std::string_view key,
                                  std::string& packed) {
  List20_.clear();
  return enumValues(root, key, packed, &RegistryLayer::addToList20);
}

Status RegistryLayer::fEnumValueb(std::string_view root, std::string_view key) {
  std::string packed;
  return fEnumValueb(root, key, packed);
}

Status RegistryLayer::fEnumValuec(std::string_view root, std::string_view key,
                                  std::string& packed) {
  List12_.clear();
  return enumValues(root, key, packed, &RegistryLayer::addToList12);
}

Status RegistryLayer::fEnumValuec(std::string_view root, std::string_view key) {
  std::string packed;
  return fEnumValuec(root, key, packed);
}

Status RegistryLayer::fEnumValue(std::string_view root, std::string_view key, std::string& packed) {
  return enumValues(root, key, packed, &RegistryLayer::addToText2);
}

Status RegistryLayer::enumValues(std::string_view root, std::string_view key, std::string& packed,
                                 AddName destination) {
  const std::uint32_t code = fHiveCode(root);
  if (code == kNoRoot) return kUnknownRoot;
  if (code == kFileRoot) {
    packed = machine_.ini.getSection(key, kSectionBuffer, root);
    packed.append(kSectionBuffer - utf16Length(packed), ' ');  // the rest of the buffer
    return kSuccess;
  }
  const OpenedKey opened = machine_.registry.open(rootOf(code), key, kTrackAccess);
  if (opened.status != kSuccess) return opened.status;
  for (std::uint32_t index = 0;; ++index) {
    std::string name;
    std::uint32_t type = kRegNone;
    std::uint32_t size = 0;
    if (opened.key->enumValue(index, name, type, size) != kSuccess) break;
    if (reaches(name, kNameBuffer)) break;  // longer than the name buffer: an error like any other
    const Status status = appendValue(*opened.key, type, size, name, packed);
    if (status != kSuccess) return status;
    (this->*destination)(name);
  }
  (this->*destination)(std::string(kNameBuffer, ' '));
  closePacked(packed);
  return kSuccess;
}

// Appends "name=data" for the types that are shown; the others keep the NUL
// behind their name, so that even an empty name is listed.
Status RegistryLayer::appendValue(RegistryKey& key, std::uint32_t type, std::uint32_t size,
                                  std::string& name, std::string& packed) const {
  RegistryData data;
  if (type == kRegSz) {
    const Status status = key.queryValue(name, size, data);
    if (status == kSuccess) packed += name + "=" + data.data;
    return status;
  }
  if (type == kRegDword || (type == kRegBinary && size < 3)) {
    const Status status = key.queryValue(name, size, data);
    // Read into a copy that is dropped: the data shown is always 0.
    if (status == kSuccess) (packed += name + "=0") += '\0';
    return status;
  }
  name += '\0';
  return kSuccess;
}

Status RegistryLayer::fDeleteKey(std::string_view root, std::string_view parent,
                                 std::string_view name) const {
  const std::uint32_t code = fHiveCode(root);
  if (code == kNoRoot) return kUnknownRoot;
  const OpenedKey opened = machine_.registry.open(rootOf(code), parent, kTrackAccess);
  if (opened.status != kSuccess) return missingIsSuccess(opened.status);
  return missingIsSuccess(opened.key->deleteKey(name));
}

Status RegistryLayer::fDeleteValue(std::string_view root, std::string_view key,
                                   std::string_view name) const {
  const std::uint32_t code = fHiveCode(root);
  if (code == kNoRoot) return kUnknownRoot;
  if (code == kFileRoot) {
    // The line stays in the file, with no value.
    machine_.ini.writeString(key, name, "", root);
    return kSuccess;
  }
  const OpenedKey opened = machine_.registry.open(rootOf(code), key, kTrackAccess);
  if (opened.status != kSuccess) return missingIsSuccess(opened.status);
  return missingIsSuccess(opened.key->deleteValue(name));
}

Status RegistryLayer::readFromFile(std::string_view file, std::string_view section,
                                   std::string_view name, std::string_view kind,
                                   const ReadValue& fallback, ReadValue& out) const {
  if (kind == "S") {
    out = machine_.ini.getString(section, name, asText(fallback), kIniBuffer, file);
  } else {
    machine_.ini.getInt(section, name, 0, file);  // read, and the answer dropped
  }
  return kSuccess;
}

Status RegistryLayer::fReadValue(std::string_view root, std::string_view key, std::string_view name,
                                 std::string_view kind, const ReadValue& fallback,
                                 ReadValue& out) const {
  out = fallback;
  const std::string letter = UCase(kind);
  const std::uint32_t code = fHiveCode(root);
  if (code == kNoRoot) return kUnknownRoot;
  if (code == kFileRoot) return readFromFile(root, key, name, letter, fallback, out);
  const OpenedKey opened = machine_.registry.open(rootOf(code), key, kQueryAccess);
  if (opened.status != kSuccess) return opened.status;
  RegistryData data;
  if (letter == "S") {
    Status status = opened.key->queryValue(name, 0, data);
    if (status == kMoreData) status = opened.key->queryValue(name, data.size, data);
    if (status != kSuccess) return status;
    if (data.size == 0) return kSuccess;  // nothing to cut: the default stays
    out = data.data.substr(0, data.data.size() - 1);
  } else if (letter == "B" || letter == "D") {
    const Status status = opened.key->queryValue(name, letter == "B" ? 2 : 32, data);
    // The value exists: its data went to a copy, and the number stays as it was.
    if (status == kSuccess || status == kMoreData) {
      out = letter == "B" ? ReadValue(false) : ReadValue(std::int32_t{0});
    }
    if (status != kSuccess) return status;
  }
  return kSuccess;
}

RegistryVariant RegistryLayer::GetRegistryValue(Root root, std::string_view key,
                                                std::string_view name,
                                                const RegistryVariant& fallback) const {
  const OpenedKey opened = machine_.registry.open(root, key, kTrackAccess);
  if (opened.status != kSuccess) return fallback;
  RegistryData data;
  Status status = opened.key->queryValue(name, kVariantBuffer, data);
  if (status == kMoreData) status = opened.key->queryValue(name, data.size, data);
  if (status != kSuccess) return fallback;
  switch (data.type) {
    case kRegDword: {
      std::uint32_t number = 0;
      for (std::size_t i = data.data.size(); i-- > 0;) {
        number = (number << 8) | static_cast<unsigned char>(data.data[i]);
      }
      return static_cast<std::int32_t>(number);
    }
    case kRegSz:
    case kRegNone:
      return data.data.substr(0, data.data.empty() ? 0 : data.data.size() - 1);
    case kRegBinary:
      return ByteArray{data.data};
    default:
      throw RuntimeError{kUnsupportedType, "Unsupported value type"};
  }
}

}  // namespace tavr
