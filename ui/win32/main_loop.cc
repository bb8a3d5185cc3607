#include "ui/win32/main_loop.h"

namespace tavr::win32 {

namespace {

constexpr std::uint64_t kSyncInterval = 30;  // ms; a person sees no difference
constexpr std::uint32_t kIdleWait = 250;     // ms; a message ends the sleep in it

bool quitAsked() {
  MSG message;
  return PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE) != FALSE;
}

}  // namespace

MainLoop::MainLoop(Program& program, Win32Events& events, Win32Desktop& desktop)
    : program_(program),
      events_(events),
      desktop_(desktop),
      windows_(program, actions_),
      tray_(program, desktop, actions_) {
  desktop_.setWindow(windows_.mainWindow());
  events_.setMessageFilter([this](MSG& message) { return filter(message); });
  events_.setAfterMessages([this] { afterMessages(); });
}

MainLoop::~MainLoop() {
  events_.setMessageFilter(nullptr);
  events_.setAfterMessages(nullptr);
  desktop_.setWindow(nullptr);
}

bool MainLoop::filter(const MSG& message) {
  if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
  FormWindow* const form = FormWindow::of(message.hwnd);
  return form && form->serveKey(message);
}

// Called at every look into the message queue, in a run once a millisecond.
void MainLoop::afterMessages() {
  const bool acted = !actions_.empty();
  actions_.drain();
  if (acted || GetTickCount64() - last_sync_ >= kSyncInterval) sync();
}

void MainLoop::sync() {
  windows_.sync();
  tray_.sync(windows_.rightToLeft());
  last_sync_ = GetTickCount64();
}

void MainLoop::run() {
  windows_.mainLoaded();
  while (!quitAsked()) {
    sync();
    // The windows of closed forms are gone, and no handler of theirs is at work.
    program_.desk.freeUnloaded();
    events_.wait(kIdleWait);
  }
}

}  // namespace tavr::win32
