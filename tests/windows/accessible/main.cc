// Runs the tests, or is the program that a test of another process asks.
#include <gmock/gmock.h>

#include <string_view>

#include "tests/windows/accessible/shown_program.h"

namespace {

// Until the one who started it ends it.
[[noreturn]] void serve() {
  constexpr DWORD kInterval = 10;  // ms
  tavr::win32::testing::ShownProgram shown;
  for (;;) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, kInterval, QS_ALLINPUT);
    shown.pump();
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count > 1 && std::string_view(arguments[1]) == "--serve") serve();
  ::testing::InitGoogleMock(&count, arguments);
  return RUN_ALL_TESTS();
}
