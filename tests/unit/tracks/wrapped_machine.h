// The event pump and the registry of a machine, wrapped: an action at the nth
// pump, and the registry calls in their order. Both hand everything on.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/events.h"
#include "platform/registry.h"

namespace tavr::testing {

/// Runs an action at the nth doEvents and hands everything on.
class ActingEvents : public Events {
 public:
  explicit ActingEvents(Events& inner) : inner_(inner) {}

  void actAt(int nth, std::function<void()> action) {
    at_ = pumps + nth;
    action_ = std::move(action);
  }
  void doEvents() override {
    if (++pumps == at_) action_();
    inner_.doEvents();
  }
  void wait(std::uint32_t milliseconds) override {
    waited += milliseconds;
    inner_.wait(milliseconds);
  }
  TimerId startTimer(std::uint32_t interval_ms, std::function<void()> on_tick) override {
    return inner_.startTimer(interval_ms, std::move(on_tick));
  }
  void stopTimer(TimerId id) override { inner_.stopTimer(id); }

  int pumps = 0;
  std::uint32_t waited = 0;

 private:
  Events& inner_;
  int at_ = 0;
  std::function<void()> action_;
};

using RegistryCalls = std::vector<std::string>;

/// Notes what is done to an open key: "keys P", "values P" (an enumeration's
/// start), "read P:name", "value P:name" and "key P\name" (deletions).
class RecordingKey : public RegistryKey {
 public:
  RecordingKey(std::unique_ptr<RegistryKey> inner, std::string path, RegistryCalls& calls)
      : inner_(std::move(inner)), path_(std::move(path)), calls_(calls) {}

  Status enumKey(std::uint32_t index, std::string& name) override {
    if (index == 0) calls_.push_back("keys " + path_);
    return inner_->enumKey(index, name);
  }
  Status enumValue(std::uint32_t index, std::string& name, std::uint32_t& type,
                   std::uint32_t& size) override {
    if (index == 0) calls_.push_back("values " + path_);
    return inner_->enumValue(index, name, type, size);
  }
  Status queryValue(std::string_view name, std::uint32_t capacity, RegistryData& out) override {
    calls_.push_back("read " + path_ + ":" + std::string(name));
    return inner_->queryValue(name, capacity, out);
  }
  Status setValue(std::string_view name, std::uint32_t type, std::string_view data) override {
    return inner_->setValue(name, type, data);
  }
  Status deleteValue(std::string_view name) override {
    calls_.push_back("value " + path_ + ":" + std::string(name));
    return inner_->deleteValue(name);
  }
  Status deleteKey(std::string_view subkey) override {
    calls_.push_back("key " + path_ + "\\" + std::string(subkey));
    return inner_->deleteKey(subkey);
  }
  Status security(SecurityDescriptor& out) override { return inner_->security(out); }
  Status setSecurity(const SecurityDescriptor& descriptor) override {
    return inner_->setSecurity(descriptor);
  }

 private:
  std::unique_ptr<RegistryKey> inner_;
  std::string path_;
  RegistryCalls& calls_;
};

/// Notes grants ("grant P"), opens in vain ("missing P") and, through the keys,
/// everything else. Paths stand as the caller wrote them.
class RecordingRegistry : public Registry {
 public:
  explicit RecordingRegistry(Registry& inner) : inner_(inner) {}

  OpenedKey open(Root root, std::string_view path, std::uint32_t access) override {
    constexpr std::uint32_t kToGrant = 0x6013F;
    const std::string name = rootName(root) + std::string(path);
    OpenedKey opened = inner_.open(root, path, access);
    if (access == kToGrant) {
      calls.push_back("grant " + name);
    } else if (opened.status != kSuccess) {
      calls.push_back("missing " + name);
    }
    if (opened.key) {
      opened.key = std::make_unique<RecordingKey>(std::move(opened.key), name, calls);
    }
    return opened;
  }
  OpenedKey create(Root root, std::string_view path, std::string_view key_class,
                   std::uint32_t access) override {
    return inner_.create(root, path, key_class, access);
  }
  Status deleteKey(Root root, std::string_view path) override {
    calls.push_back("key " + rootName(root) + std::string(path));
    return inner_.deleteKey(root, path);
  }

  RegistryCalls calls;

 private:
  // HKCU is the rule and goes without a name.
  static std::string rootName(Root root) {
    if (root == Root::kLocalMachine) return "HKLM:";
    if (root == Root::kUsers) return "HKU:";
    if (root == Root::kClassesRoot) return "HKCR:";
    return "";
  }

  Registry& inner_;
};

}  // namespace tavr::testing
