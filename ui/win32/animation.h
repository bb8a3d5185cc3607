// An animated picture from a file, as the one that moves while a run is under
// way. It shows nothing when there is neither the file nor one in the program.
#pragma once

#include <windows.h>

#include <memory>
#include <string_view>

namespace tavr::win32 {

class Animation {
 public:
  Animation();
  ~Animation();
  Animation(const Animation&) = delete;
  Animation& operator=(const Animation&) = delete;

  /// Takes the place of what was loaded, at its first frame; a running animation
  /// stops. A file that cannot be read is looked for under its name among the
  /// program's own data (RCDATA). False: it is not there either, and nothing is
  /// loaded.
  bool load(std::string_view file);

  int frames() const;          ///< 0: nothing is loaded
  int frame() const;           ///< the one that is shown, from 0
  int delay(int index) const;  ///< how long a frame stands, in ms
  SIZE size() const;

  /// Goes on frame by frame by a timer of `window`, whose client area is made
  /// invalid for each; starting anew changes nothing. It must be stopped before
  /// the window goes.
  void start(HWND window);
  void stop();
  bool running() const;
  /// To the next frame; after the last comes the first.
  void advance();

  /// The present frame, as large as fits into `area` undistorted, in its middle.
  void draw(HDC dc, const RECT& area) const;

 private:
  struct Pictures;
  std::unique_ptr<Pictures> pictures_;
  HWND window_ = nullptr;
};

}  // namespace tavr::win32
