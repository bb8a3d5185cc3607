// Owners of what COM gives and takes.
#pragma once

#include <windows.h>
// After windows.h, which they need.
#include <objbase.h>
#include <oleauto.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tavr::win32 {

/// COM on this thread, which pumps messages, until destroyed.
class ComApartment {
 public:
  // A thread that has COM of the other kind can be used as it is.
  ComApartment() : entered_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
  ~ComApartment() {
    if (entered_) CoUninitialize();
  }
  ComApartment(const ComApartment&) = delete;
  ComApartment& operator=(const ComApartment&) = delete;

 private:
  bool entered_;
};

/// One reference to an object.
template <class Interface>
class ComPointer {
 public:
  ComPointer() = default;
  ~ComPointer() { reset(); }
  ComPointer(ComPointer&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComPointer& operator=(ComPointer&& other) noexcept {
    if (this != &other) {
      reset();
      object_ = std::exchange(other.object_, nullptr);
    }
    return *this;
  }

  Interface* get() const { return object_; }
  Interface* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  /// For a call that hands an object out.
  Interface** out() {
    reset();
    return &object_;
  }
  void** outAny() { return reinterpret_cast<void**>(out()); }

 private:
  void reset() {
    if (Interface* const object = std::exchange(object_, nullptr)) object->Release();
  }
  Interface* object_ = nullptr;
};

/// A text for a call that wants a BSTR; ends at its first NUL.
class BasicString {
 public:
  explicit BasicString(std::string_view text);
  explicit BasicString(const wchar_t* text) : text_(SysAllocString(text)) {}
  ~BasicString() { SysFreeString(text_); }
  BasicString(const BasicString&) = delete;
  BasicString& operator=(const BasicString&) = delete;

  BSTR get() const { return text_; }

 private:
  BSTR text_;
};

/// A VARIANT of the kinds that are used here.
class Variant {
 public:
  Variant() { VariantInit(&value_); }
  explicit Variant(std::int32_t number);
  explicit Variant(std::string_view text);
  /// An array of texts; empty texts are elements like any other.
  explicit Variant(const std::vector<std::string>& texts);
  ~Variant() { VariantClear(&value_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;

  VARIANT* get() { return &value_; }
  /// For a call that fills it.
  VARIANT* out() {
    VariantClear(&value_);
    return &value_;
  }

  /// Each false when it holds something else.
  bool read(std::uint32_t& number) const;
  bool read(std::string& text) const;
  bool read(std::vector<std::string>& texts) const;
  bool isNull() const { return value_.vt == VT_NULL || value_.vt == VT_EMPTY; }

 private:
  VARIANT value_;
};

}  // namespace tavr::win32
