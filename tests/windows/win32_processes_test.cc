// What platform/win32/win32_processes.h meets beside what every machine has.
#include "platform/win32/win32_processes.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <string>

#include "tests/contract/win32_planting.h"
#include "tests/contract/win32_scratch.h"

namespace tavr::win32 {
namespace {

class Win32ProcessesTest : public ::testing::Test {
 protected:
  Win32ProcessesTest()
      : started_(contract::startSleeper(scratch_.path() + "\\tavr sleeper.exe")),
        process_(started_.handle) {}
  ~Win32ProcessesTest() override {
    TerminateProcess(process_.get(), 0);
    WaitForSingleObject(process_.get(), INFINITE);  // until then its image cannot be removed
  }

  // The process lets itself be opened with these rights, and with no others.
  void allow(DWORD rights) {
    alignas(DWORD) char room[256] = {};
    const auto list = reinterpret_cast<PACL>(room);
    ASSERT_TRUE(InitializeAcl(list, sizeof(room), ACL_REVISION));
    SID everyone = {SID_REVISION, 1, SECURITY_WORLD_SID_AUTHORITY, {SECURITY_WORLD_RID}};
    ASSERT_TRUE(rights == 0 || AddAccessAllowedAce(list, ACL_REVISION, rights, &everyone));
    SECURITY_DESCRIPTOR descriptor = {};
    ASSERT_TRUE(InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION));
    ASSERT_TRUE(SetSecurityDescriptorDacl(&descriptor, TRUE, list, FALSE));
    ASSERT_TRUE(SetKernelObjectSecurity(process_.get(), DACL_SECURITY_INFORMATION, &descriptor));
  }
  Status open(std::uint32_t access) { return Win32Processes().open(started_.id, access, opened_); }

  std::unique_ptr<Process> opened_;

 private:
  struct Close {
    void operator()(void* handle) const { CloseHandle(handle); }
  };
  contract::ScratchFolder scratch_{"TavrWin32Processes"};
  contract::RunningProcess started_;
  std::unique_ptr<void, Close> process_;

 protected:
  bool ends(DWORD milliseconds) const {
    return WaitForSingleObject(process_.get(), milliseconds) == WAIT_OBJECT_0;
  }
  DWORD exitCode() const {
    DWORD code = STILL_ACTIVE;
    GetExitCodeProcess(process_.get(), &code);
    return code;
  }
};

TEST_F(Win32ProcessesTest, AProcessThatMayNotBeOpenedIsRefused) {
  allow(0);
  EXPECT_EQ(open(PROCESS_TERMINATE), kAccessDenied);
  EXPECT_EQ(opened_, nullptr);
  EXPECT_FALSE(ends(0));
}

TEST_F(Win32ProcessesTest, TheRightToEndItIsEnough) {
  allow(PROCESS_TERMINATE);
  ASSERT_EQ(open(PROCESS_TERMINATE), kSuccess);
  EXPECT_EQ(opened_->terminate(7), kSuccess);
  EXPECT_TRUE(ends(10'000));
  EXPECT_EQ(exitCode(), 7U);
}

}  // namespace
}  // namespace tavr::win32
