#include "services/access_list.h"

#include <utility>

namespace tavr {

namespace {

constexpr std::size_t kEntryHeaderSize = 4;
constexpr std::size_t kSidOffset = kEntryHeaderSize + 4;  // behind the mask
constexpr std::size_t kSidHeaderSize = 8;                 // revision, count, authority

void appendNumber(std::string& bytes, std::uint64_t number, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) bytes.push_back(static_cast<char>(number >> (8 * i)));
}

std::uint32_t numberAt(std::string_view bytes, std::size_t offset, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < size; ++i) {
    number |= std::uint32_t{static_cast<unsigned char>(bytes[offset + i])} << (8 * i);
  }
  return number;
}

}  // namespace

std::string everyoneSid() {
  // Revision 1, one sub-authority, authority 1, sub-authority 0.
  return std::string("\1\1\0\0\0\0\0\1\0\0\0\0", 12);
}

AccessEntry::AccessEntry(std::uint8_t type, std::uint8_t flags, std::uint32_t mask,
                         std::string_view sid) {
  appendNumber(bytes_, type, 1);
  appendNumber(bytes_, flags, 1);
  appendNumber(bytes_, kSidOffset + sid.size(), 2);
  appendNumber(bytes_, mask, 4);
  bytes_ += sid;
}

std::uint8_t AccessEntry::type() const { return static_cast<std::uint8_t>(bytes_[0]); }
std::uint8_t AccessEntry::flags() const { return static_cast<std::uint8_t>(bytes_[1]); }
std::uint32_t AccessEntry::mask() const { return numberAt(bytes_, kEntryHeaderSize, 4); }

std::string_view AccessEntry::sid() const {
  const std::string_view rest = std::string_view(bytes_).substr(kSidOffset);
  if (rest.size() < kSidHeaderSize) return rest;
  // Its second byte counts the sub-authorities; conditions may stand behind them.
  return rest.substr(0, kSidHeaderSize + std::size_t{4} * numberAt(rest, 1, 1));
}

AccessList::AccessList(std::string_view bytes) : size_(bytes.size()) {
  if (bytes.size() < kHeaderSize) return;
  revision_ = static_cast<std::uint8_t>(bytes[0]);
  std::size_t offset = kHeaderSize;
  for (std::uint32_t left = numberAt(bytes, 4, 2); left > 0; --left) {
    if (bytes.size() - offset < kSidOffset) return;
    const std::size_t size = numberAt(bytes, offset + 2, 2);
    if (size < kSidOffset || size > bytes.size() - offset) return;
    entries_.emplace_back(bytes.substr(offset, size));
    offset += size;
  }
}

std::size_t AccessList::bytesInUse() const {
  std::size_t size = kHeaderSize;
  for (const AccessEntry& entry : entries_) size += entry.bytes().size();
  return size;
}

bool AccessList::add(AccessEntry entry) {
  if (size_ > kLongest || bytesInUse() + entry.bytes().size() > size_) return false;
  entries_.push_back(std::move(entry));
  return true;
}

std::string AccessList::bytes() const {
  std::string bytes;
  appendNumber(bytes, revision_, 1);
  appendNumber(bytes, 0, 1);
  appendNumber(bytes, size_, 2);
  appendNumber(bytes, entries_.size(), 2);
  appendNumber(bytes, 0, 2);
  for (const AccessEntry& entry : entries_) bytes += entry.bytes();
  bytes.resize(size_, '\0');
  return bytes;
}

}  // namespace tavr
