// How platform/win32/win32_std_reg_prov.h calls the methods of the registry
// provider, and what it makes of their answers: names and kinds of values as the
// provider of Windows has them.
#include "platform/win32/win32_std_reg_prov.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/windows/fake_wmi.h"

namespace tavr::win32 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using windows_test::FakeObject;
using windows_test::FakeServices;

constexpr std::uint32_t kLocalMachine = 0x80000002;
constexpr std::string_view kKey = "SYSTEM\\Key";
const std::vector<std::string> kPending{"\\??\\C:\\\xC3\xA4", "", "\\??\\C:\\b", ""};

class Win32StdRegProvTest : public ::testing::Test {
 protected:
  Win32StdRegProvTest() {
    auto* const provider = new FakeObject;
    provider->methods = {L"GetExpandedStringValue", L"GetMultiStringValue", L"SetMultiStringValue",
                         L"CreateKey"};
    ComPointer<IWbemServices> services;
    *services.out() = services_ = new FakeServices;
    ComPointer<IWbemClassObject> owned;
    *owned.out() = class_ = provider;
    provider_ = std::make_unique<Win32StdRegProv>(locator_.context32(), std::move(services),
                                                  std::move(owned), "StdRegProv");
    *answer_.out() = services_->answer = new FakeObject;
    returns(0);
  }

  void answer(const wchar_t* name, Variant& value) { answer_->Put(name, 0, value.get(), 0); }
  void returns(std::int32_t number) {
    Variant value(number);
    answer(L"ReturnValue", value);
  }
  std::vector<std::wstring> parameters() {
    std::vector<std::wstring> names;
    for (const auto& [name, value] : services_->in->values()) names.push_back(name);
    return names;
  }
  VARTYPE kindOf(const wchar_t* name) { return services_->in->values().at(name).vt; }
  template <typename Value>
  Value parameter(const wchar_t* name) {
    Variant copy;
    Value value{};
    services_->in->Get(name, 0, copy.out(), nullptr, nullptr);
    EXPECT_TRUE(copy.read(value));
    return value;
  }
  void expectCall(const wchar_t* method) {
    EXPECT_EQ(services_->path, L"StdRegProv");
    EXPECT_EQ(services_->method, method);
    EXPECT_NE(services_->context, nullptr) << "which asks for the provider of 32 bits";
    EXPECT_EQ(kindOf(L"hDefKey"), VT_I4);
    EXPECT_EQ(parameter<std::uint32_t>(L"hDefKey"), kLocalMachine);
    EXPECT_EQ(parameter<std::string>(L"sSubKeyName"), kKey);
  }

  WmiLocator locator_;  // left last: COM is entered through it
  FakeServices* services_ = nullptr;
  FakeObject* class_ = nullptr;
  ComPointer<IWbemClassObject> answer_;
  std::unique_ptr<Win32StdRegProv> provider_;
};

TEST_F(Win32StdRegProvTest, ATextIsAskedForByItsMethodAndNames) {
  Variant text("expanded");
  answer(L"sValue", text);
  std::string out;
  EXPECT_EQ(provider_->getExpandedStringValue(kLocalMachine, kKey, "name", out), kSuccess);
  EXPECT_EQ(out, "expanded");
  expectCall(L"GetExpandedStringValue");
  EXPECT_THAT(parameters(), ElementsAre(L"hDefKey", L"sSubKeyName", L"sValueName"));
  EXPECT_EQ(parameter<std::string>(L"sValueName"), "name");
}

TEST_F(Win32StdRegProvTest, StringsAreAskedForByTheirMethodAndNames) {
  Variant strings(kPending);
  answer(L"sValue", strings);
  std::vector<std::string> out{"left over"};
  EXPECT_EQ(provider_->getMultiStringValue(kLocalMachine, kKey, "name", out), kSuccess);
  EXPECT_EQ(out, kPending) << "with the empty ones";
  expectCall(L"GetMultiStringValue");
  EXPECT_THAT(parameters(), ElementsAre(L"hDefKey", L"sSubKeyName", L"sValueName"));
}

TEST_F(Win32StdRegProvTest, StringsAreHandedOverAsAnArrayOfTexts) {
  EXPECT_EQ(provider_->setMultiStringValue(kLocalMachine, kKey, "name", kPending), kSuccess);
  expectCall(L"SetMultiStringValue");
  EXPECT_THAT(parameters(), ElementsAre(L"hDefKey", L"sSubKeyName", L"sValue", L"sValueName"));
  EXPECT_EQ(kindOf(L"sValue"), VT_ARRAY | VT_BSTR);
  EXPECT_EQ(parameter<std::vector<std::string>>(L"sValue"), kPending);
  EXPECT_EQ(provider_->setMultiStringValue(kLocalMachine, kKey, "name", {}), kSuccess);
  EXPECT_EQ(kindOf(L"sValue"), VT_ARRAY | VT_BSTR) << "no strings are an empty array";
}

TEST_F(Win32StdRegProvTest, AKeyIsMadeByItsPathAlone) {
  EXPECT_EQ(provider_->createKey(kLocalMachine, kKey), kSuccess);
  expectCall(L"CreateKey");
  EXPECT_THAT(parameters(), ElementsAre(L"hDefKey", L"sSubKeyName"));
}

TEST_F(Win32StdRegProvTest, NoStringsAreNoArray) {
  std::vector<std::string> out{"left over"};
  Variant nothing;
  nothing.get()->vt = VT_NULL;
  answer(L"sValue", nothing);
  EXPECT_EQ(provider_->getMultiStringValue(kLocalMachine, kKey, "name", out), kSuccess);
  EXPECT_THAT(out, IsEmpty());
}

TEST_F(Win32StdRegProvTest, TheMethodsNumberIsTheAnswer) {
  returns(2);
  Variant text("not to be read");
  answer(L"sValue", text);
  std::string out = "left over";
  EXPECT_EQ(provider_->getExpandedStringValue(kLocalMachine, kKey, "name", out), 2U);
  EXPECT_EQ(out, "");
  std::vector<std::string> strings{"left over"};
  EXPECT_EQ(provider_->getMultiStringValue(kLocalMachine, kKey, "name", strings), 2U);
  EXPECT_THAT(strings, IsEmpty());
  EXPECT_EQ(provider_->setMultiStringValue(kLocalMachine, kKey, "name", {"a"}), 2U);
  EXPECT_EQ(provider_->createKey(kLocalMachine, kKey), 2U);
}

TEST_F(Win32StdRegProvTest, AnAnswerOfAnotherKindIsNone) {
  Variant number(5);
  answer(L"sValue", number);
  std::string out;
  std::vector<std::string> strings;
  EXPECT_NE(provider_->getExpandedStringValue(kLocalMachine, kKey, "name", out), kSuccess);
  EXPECT_NE(provider_->getMultiStringValue(kLocalMachine, kKey, "name", strings), kSuccess);
}

TEST_F(Win32StdRegProvTest, ACallThatFailsTellsItsFailure) {
  services_->result = static_cast<HRESULT>(WBEM_E_ACCESS_DENIED);
  EXPECT_EQ(provider_->createKey(kLocalMachine, kKey), static_cast<Status>(WBEM_E_ACCESS_DENIED));
  services_->result = S_OK;
  services_->answer = nullptr;
  EXPECT_NE(provider_->createKey(kLocalMachine, kKey), kSuccess) << "no answer";
}

TEST_F(Win32StdRegProvTest, AMethodThatTheProviderLacksIsNotCalled) {
  class_->methods.clear();
  std::string out = "left over";
  EXPECT_NE(provider_->getExpandedStringValue(kLocalMachine, kKey, "name", out), kSuccess);
  EXPECT_EQ(out, "");
  EXPECT_NE(provider_->createKey(kLocalMachine, kKey), kSuccess);
  EXPECT_EQ(services_->calls, 0);
}

}  // namespace
}  // namespace tavr::win32
