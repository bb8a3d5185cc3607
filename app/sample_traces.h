// What a person's machine gathers in its files: the traces of ten browsers and
// of Windows as they lie on a disk today, and the files beside them that no
// cleaner may touch.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "app/sample_tree.h"

namespace tavr::sample {

enum class Content : std::uint8_t {
  kDatabase,  ///< an SQLite file
  kJson,      ///< a settings file of a browser
  kPicture,   ///< a PNG
  kShortcut,  ///< a .lnk
  kNoise,     ///< bytes without a form
  kText,      ///< `text` as it stands, LF written as CR LF
};

enum class Wanted : std::uint8_t {
  kAlways,
  kMore,  ///< only when the machine is to have more files
};

struct Trace {
  std::string_view path;  // below the group's folder
  Content content = Content::kNoise;
  Wanted wanted = Wanted::kAlways;
  std::uint32_t size = 0;      // bytes; kText: ignored
  std::string_view text = {};  // kText
};

struct TraceGroup {
  std::string_view folder;  // below the machine folder
  std::span<const Trace> traces;
};

std::span<const TraceGroup> browserTraces();
std::span<const TraceGroup> windowsTraces();

/// The bytes of one trace.
std::string contentOf(const Trace& trace, Dice& dice);

/// The whole believable machine with `files` files in all; never fewer than the
/// fixed ones.
void writeMachine(SampleTree& tree, std::size_t files);

/// Puts the program's language files from the folder `from` where the program
/// looks for them. They come on top of the machine's files.
void copyLanguages(SampleTree& tree, const std::string& from);

/// A machine that holds `files` cache files of Chrome and nothing else, for
/// measuring. Its own two text files come on top.
void writeChromeCacheMachine(SampleTree& tree, std::size_t files);

}  // namespace tavr::sample
