// A machine whose keys, files and accounts have access lists: a model of what
// Windows keeps, laid over a machine that keeps none. Lists stand by the path as
// it is handed over; what has no list answers as an object without one.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "basic/text.h"
#include "platform/registry.h"
#include "platform/security.h"
#include "tests/support/forwarding_files.h"

namespace tavr::testing {

using Lists = std::map<std::string, SecurityDescriptor, std::less<>>;

class ListedAccounts : public Accounts {
 public:
  Status sidOf(std::string_view account, std::string& sid) override {
    ++lookups;
    const auto found = sids.find(account);
    if (found == sids.end()) return kNoneMapped;
    sid = found->second;
    return kSuccess;
  }

  std::map<std::string, std::string, std::less<>> sids;
  int lookups = 0;
};

class ListedFiles : public ForwardingFiles {
 public:
  using ForwardingFiles::ForwardingFiles;

  Status security(std::string_view path, SecurityDescriptor& out) override {
    const auto found = lists.find(path);
    out = found == lists.end() ? SecurityDescriptor{} : found->second;
    return read_status;
  }
  Status setSecurity(std::string_view path, const SecurityDescriptor& descriptor) override {
    ++written;
    if (refuses) return kAccessDenied;
    lists[std::string(path)] = descriptor;
    return kSuccess;
  }

  Lists lists;
  Status read_status = kSuccess;
  int written = 0;
  bool refuses = false;
};

class ListedRegistry : public Registry {
 public:
  explicit ListedRegistry(Registry& inner) : inner_(inner) {}

  OpenedKey open(Root root, std::string_view path, std::uint32_t access) override {
    OpenedKey opened = inner_.open(root, path, access);
    if (opened.key) {
      opened.key = std::make_unique<Key>(*this, std::move(opened.key), LCase(path));
    }
    return opened;
  }
  OpenedKey create(Root root, std::string_view path, std::string_view key_class,
                   std::uint32_t access) override {
    return inner_.create(root, path, key_class, access);
  }
  Status deleteKey(Root root, std::string_view path) override {
    return inner_.deleteKey(root, path);
  }

  Lists lists;  ///< by the lower-cased path
  Status read_status = kSuccess;
  Status write_status = kSuccess;

 private:
  class Key : public RegistryKey {
   public:
    Key(ListedRegistry& owner, std::unique_ptr<RegistryKey> inner, std::string path)
        : owner_(owner), inner_(std::move(inner)), path_(std::move(path)) {}

    Status enumKey(std::uint32_t index, std::string& name) override {
      return inner_->enumKey(index, name);
    }
    Status enumValue(std::uint32_t index, std::string& name, std::uint32_t& type,
                     std::uint32_t& size) override {
      return inner_->enumValue(index, name, type, size);
    }
    Status queryValue(std::string_view name, std::uint32_t capacity, RegistryData& out) override {
      return inner_->queryValue(name, capacity, out);
    }
    Status setValue(std::string_view name, std::uint32_t type, std::string_view data) override {
      return inner_->setValue(name, type, data);
    }
    Status deleteValue(std::string_view name) override { return inner_->deleteValue(name); }
    Status deleteKey(std::string_view subkey) override { return inner_->deleteKey(subkey); }
    Status security(SecurityDescriptor& out) override {
      out = owner_.lists[path_];
      return owner_.read_status;
    }
    Status setSecurity(const SecurityDescriptor& descriptor) override {
      if (owner_.write_status == kSuccess) owner_.lists[path_] = descriptor;
      return owner_.write_status;
    }

   private:
    ListedRegistry& owner_;
    std::unique_ptr<RegistryKey> inner_;
    std::string path_;
  };

  Registry& inner_;
};

}  // namespace tavr::testing
