// The main window as a person handles it: minimised to the notification area
// or out of sight, brought back by the tray icon or the hot key, and closed by
// one of three roads.
#pragma once

#include <cstdint>

#include "engine/program.h"

namespace tavr {

/// WM_HOTKEY.
inline constexpr std::uint32_t kHotKeyMessage = 0x312;

/// Sets the window state; a change raises Form_Resize.
void setWindowState(Program& program, WindowState state);
/// A minimised window hides; without the stealth option the tray icon comes.
void Form_Resize(Program& program);
/// The first activation, and every later one: the shadow, unless the process
/// was started with arguments.
void Form_Activate(Program& program);

/// The tray icon's way back.
void restoreFromTray(Program& program);

/// Releases the hot keys and restores the window procedure.
void Command5_Click(Program& program);
/// Looks up where the settings button stands on the screen.
void Command6_Click(Program& program);
/// With the stealth option and a key: installs the hot key's window procedure
/// and registers ALT with the first character of the key.
void installHotKey(Program& program);
/// The window procedure while a hot key is installed. Whatever it does, the
/// message then goes on to the procedure before it. Nothing while it is not.
void hotKeyProcedure(Program& program, std::uint32_t message, int id);

/// The window's system close, and what comes after it when it does not end the
/// process.
void closeWindow(Program& program);
void Form_QueryUnload(Program& program);
/// Whether the closing starts a run, which belongs to the silent start.
bool runsOnExit(Program& program);
void Form_Terminate(Program& program);
/// The window's own close button: the tray icon stays, and the run on exit is
/// a Test.
void chameleonButton11_Click(Program& program);

/// Puts the handlers of the window in.
void connectWindow(Program& program);

}  // namespace tavr
