#include "platform/win32/com.h"

#include "platform/win32/wide.h"

namespace tavr::win32 {

namespace {

constexpr VARTYPE kTexts = VT_ARRAY | VT_BSTR;

std::string textOf(BSTR text) { return narrow({text, SysStringLen(text)}); }

// The elements of an array while they are locked in place.
class LockedTexts {
 public:
  explicit LockedTexts(SAFEARRAY* array) : array_(array) {
    void* start = nullptr;
    if (SUCCEEDED(SafeArrayAccessData(array, &start))) texts_ = static_cast<BSTR*>(start);
  }
  ~LockedTexts() {
    if (texts_ != nullptr) SafeArrayUnaccessData(array_);
  }
  LockedTexts(const LockedTexts&) = delete;
  LockedTexts& operator=(const LockedTexts&) = delete;

  BSTR* get() const { return texts_; }

 private:
  SAFEARRAY* array_;
  BSTR* texts_ = nullptr;
};

}  // namespace

BasicString::BasicString(std::string_view text) : text_(SysAllocString(wide(text).c_str())) {}

Variant::Variant(std::int32_t number) {
  VariantInit(&value_);
  value_.vt = VT_I4;
  value_.lVal = number;
}

Variant::Variant(std::string_view text) {
  VariantInit(&value_);
  value_.vt = VT_BSTR;
  value_.bstrVal = SysAllocString(wide(text).c_str());
}

Variant::Variant(const std::vector<std::string>& texts) {
  VariantInit(&value_);
  SAFEARRAY* const array = SafeArrayCreateVector(VT_BSTR, 0, static_cast<ULONG>(texts.size()));
  if (array == nullptr) return;
  value_.vt = kTexts;
  value_.parray = array;
  const LockedTexts elements(array);
  for (std::size_t i = 0; elements.get() != nullptr && i < texts.size(); ++i) {
    elements.get()[i] = SysAllocString(wide(texts[i]).c_str());
  }
}

bool Variant::read(std::uint32_t& number) const {
  if (value_.vt != VT_I4 && value_.vt != VT_UI4) return false;
  number = value_.ulVal;
  return true;
}

bool Variant::read(std::string& text) const {
  if (value_.vt != VT_BSTR) return false;
  text = textOf(value_.bstrVal);
  return true;
}

bool Variant::read(std::vector<std::string>& texts) const {
  if (value_.vt != kTexts) return false;
  LONG first = 0;
  LONG last = -1;
  if (FAILED(SafeArrayGetLBound(value_.parray, 1, &first)) ||
      FAILED(SafeArrayGetUBound(value_.parray, 1, &last))) {
    return false;
  }
  const LockedTexts elements(value_.parray);
  texts.clear();
  for (LONG i = 0; elements.get() != nullptr && i <= last - first; ++i) {
    texts.push_back(textOf(elements.get()[i]));
  }
  return elements.get() != nullptr || last < first;
}

}  // namespace tavr::win32
