// A registry provider of WMI in this process: it writes down how its methods are
// called, and answers what it is told to. Calls that the program never makes
// answer E_NOTIMPL.
#pragma once

#include <windows.h>
// After windows.h, which it needs.
#include <wbemcli.h>

#include <map>
#include <set>
#include <string>

#include "platform/win32/com.h"

namespace tavr::windows_test {

/// Counts its references; the last one ends it.
template <class Interface>
class Counted : public Interface {
 public:
  virtual ~Counted() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
    *out = nullptr;
    if (id != IID_IUnknown && id != __uuidof(Interface)) return E_NOINTERFACE;
    AddRef();
    *out = this;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 private:
  ULONG references_ = 1;
};

/// Named values: the class, the parameters of a method, or its answer.
class FakeObject final : public Counted<IWbemClassObject> {
 public:
  using Values = std::map<std::wstring, VARIANT>;

  FakeObject() = default;
  ~FakeObject() override {
    for (auto& [name, value] : values_) VariantClear(&value);
  }
  FakeObject(const FakeObject&) = delete;
  FakeObject& operator=(const FakeObject&) = delete;

  const Values& values() const { return values_; }
  /// Of the class: the methods that it has.
  std::set<std::wstring> methods;

  HRESULT STDMETHODCALLTYPE Get(LPCWSTR name, long, VARIANT* out, CIMTYPE*, long*) override {
    const auto found = values_.find(name);
    if (found == values_.end()) return static_cast<HRESULT>(WBEM_E_NOT_FOUND);
    VariantInit(out);
    return VariantCopy(out, &found->second);
  }
  HRESULT STDMETHODCALLTYPE Put(LPCWSTR name, long, VARIANT* value, CIMTYPE) override {
    VARIANT& place = values_.try_emplace(name).first->second;
    return VariantCopy(&place, value);
  }
  HRESULT STDMETHODCALLTYPE SpawnInstance(long, IWbemClassObject** out) override {
    *out = new FakeObject;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetMethod(LPCWSTR name, long, IWbemClassObject** in,
                                      IWbemClassObject** out) override {
    if (!methods.contains(name)) return static_cast<HRESULT>(WBEM_E_NOT_FOUND);
    if (in != nullptr) *in = new FakeObject;
    if (out != nullptr) *out = nullptr;
    return S_OK;
  }

  // clang-format off
  HRESULT STDMETHODCALLTYPE GetQualifierSet(IWbemQualifierSet**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Delete(LPCWSTR) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNames(LPCWSTR, long, VARIANT*, SAFEARRAY**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE BeginEnumeration(long) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Next(long, BSTR*, VARIANT*, CIMTYPE*, long*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EndEnumeration() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetPropertyQualifierSet(LPCWSTR, IWbemQualifierSet**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Clone(IWbemClassObject**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetObjectText(long, BSTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SpawnDerivedClass(long, IWbemClassObject**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE CompareTo(long, IWbemClassObject*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetPropertyOrigin(LPCWSTR, BSTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE InheritsFrom(LPCWSTR) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE PutMethod(LPCWSTR, long, IWbemClassObject*, IWbemClassObject*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DeleteMethod(LPCWSTR) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE BeginMethodEnumeration(long) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE NextMethod(long, BSTR*, IWbemClassObject**, IWbemClassObject**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EndMethodEnumeration() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMethodQualifierSet(LPCWSTR, IWbemQualifierSet**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMethodOrigin(LPCWSTR, BSTR*) override { return E_NOTIMPL; }
  // clang-format on

 private:
  Values values_;
};

/// A namespace whose methods are called one at a time.
class FakeServices final : public Counted<IWbemServices> {
 public:
  /// What the next call answers with; null: nothing.
  FakeObject* answer = nullptr;
  HRESULT result = S_OK;
  // The last call.
  std::wstring path;
  std::wstring method;
  IWbemContext* context = nullptr;
  FakeObject* in = nullptr;  // this holds a reference
  int calls = 0;

  ~FakeServices() override {
    if (in != nullptr) in->Release();
  }

  HRESULT STDMETHODCALLTYPE ExecMethod(const BSTR object, const BSTR name, long flags,
                                       IWbemContext* with, IWbemClassObject* parameters,
                                       IWbemClassObject** out, IWbemCallResult**) override {
    ++calls;
    path = object;
    method = name;
    context = with;
    if (in != nullptr) in->Release();
    in = static_cast<FakeObject*>(parameters);
    if (in != nullptr) in->AddRef();
    if (flags != 0) return static_cast<HRESULT>(WBEM_E_INVALID_PARAMETER);
    if (FAILED(result)) return result;
    if (answer != nullptr) answer->AddRef();
    *out = answer;
    return result;
  }

  // clang-format off
  HRESULT STDMETHODCALLTYPE OpenNamespace(const BSTR, LONG, IWbemContext*, IWbemServices**, IWbemCallResult**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE CancelAsyncCall(IWbemObjectSink*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE QueryObjectSink(LONG, IWbemObjectSink**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetObject(const BSTR, LONG, IWbemContext*, IWbemClassObject**, IWbemCallResult**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetObjectAsync(const BSTR, LONG, IWbemContext*, IWbemObjectSink*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE PutClass(IWbemClassObject*, LONG, IWbemContext*, IWbemCallResult**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE PutClassAsync(IWbemClassObject*, LONG, IWbemContext*, IWbemObjectSink*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DeleteClass(const BSTR, LONG, IWbemContext*, IWbemCallResult**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DeleteClassAsync(const BSTR, LONG, IWbemContext*, IWbemObjectSink*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE CreateClassEnum(const BSTR, LONG, IWbemContext*, IEnumWbemClassObject**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE CreateClassEnumAsync(const BSTR, LONG, IWbemContext*, IWbemObjectSink*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE PutInstance(IWbemClassObject*, LONG, IWbemContext*, IWbemCallResult**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE PutInstanceAsync(IWbemClassObject*, LONG, IWbemContext*, IWbemObjectSink*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DeleteInstance(const BSTR, LONG, IWbemContext*, IWbemCallResult**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DeleteInstanceAsync(const BSTR, LONG, IWbemContext*, IWbemObjectSink*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE CreateInstanceEnum(const BSTR, LONG, IWbemContext*, IEnumWbemClassObject**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE CreateInstanceEnumAsync(const BSTR, LONG, IWbemContext*, IWbemObjectSink*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE ExecQuery(const BSTR, const BSTR, LONG, IWbemContext*, IEnumWbemClassObject**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE ExecQueryAsync(const BSTR, const BSTR, LONG, IWbemContext*, IWbemObjectSink*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE ExecNotificationQuery(const BSTR, const BSTR, LONG, IWbemContext*, IEnumWbemClassObject**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE ExecNotificationQueryAsync(const BSTR, const BSTR, LONG, IWbemContext*, IWbemObjectSink*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE ExecMethodAsync(const BSTR, const BSTR, LONG, IWbemContext*, IWbemClassObject*, IWbemObjectSink*) override { return E_NOTIMPL; }
  // clang-format on
};

}  // namespace tavr::windows_test
