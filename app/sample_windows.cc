// The files of Windows and of the program itself, and the bytes of every trace.
#include "app/sample_traces.h"

namespace tavr::sample {
namespace {

using enum Content;
using enum Wanted;

constexpr std::string_view kSketchBoard =
    "Sketch Board\nA reader of the forum\nRecent drawings and undo files of Sketch Board.\n"
    "files\n"
    "file=%USERPROFILE%\\AppData\\Roaming\\Sketch Board\\recent.xml,1\n"
    "folder=%USERPROFILE%\\AppData\\Roaming\\Sketch Board\\undo, **0\n"
    "registry\n"
    "HKEY_CURRENT_USER\\Software\\Sketch Board\\Recent,3\n";

constexpr std::string_view kMediaBox =
    "Media Box\nA reader of the forum\nThe play list of Media Box.\n"
    "files\n"
    "file=%USERPROFILE%\\AppData\\Roaming\\Media Box\\lastplayed.m3u,1\n"
    "registry\n"
    "HKEY_CURRENT_USER\\Software\\Media Box,LastFile,4\n";

constexpr Trace kUser[] = {
    {"AppData/Roaming/Microsoft/Windows/Recent/letter.lnk", kShortcut, kAlways, 300},
    {"AppData/Roaming/Microsoft/Windows/Recent/holiday.lnk", kShortcut, kAlways, 310},
    {"AppData/Local/Temp/setup-7f21.tmp", kNoise, kAlways, 600},
    {"AppData/Local/Temp/msi/install.log", kNoise, kAlways, 240},
    {"Documents/letter.txt", kText, kAlways, 0, "Dear Jo,\n\nthe keys are with the neighbour.\n"},
    {"Pictures/holiday.png", kPicture, kAlways, 1200},
    {"AppData/Roaming/Sketch Board/recent.xml", kNoise, kMore, 150},
    {"AppData/Roaming/Sketch Board/undo/1.dat", kNoise, kMore, 90},
    {"AppData/Roaming/Sketch Board/palette.xml", kNoise, kMore, 130},
    {"AppData/Roaming/Media Box/lastplayed.m3u", kNoise, kMore, 60},
    {"AppData/Roaming/Microsoft/Windows/Recent/AutomaticDestinations/"
     "5f7b5f1e01b83767.automaticDestinations-ms",
     kNoise, kMore, 420},
    {"AppData/Local/Microsoft/Windows/History/readme.txt", kNoise, kMore, 20},
    {"Documents/My Login Data.txt", kText, kMore, 0, "The router's password is on its back.\n"},
    {"Documents/Cookies.recipe", kText, kMore, 0, "200 g butter, 400 g flour, 180 g sugar.\n"},
    {"Documents/Taxes/2025.xlsx", kNoise, kMore, 900},
    {"Pictures/History of our house.png", kPicture, kMore, 800},
};

constexpr Trace kRecycleBin[] = {
    {"$R4T8ZQA.txt", kText, kAlways, 0, "Shopping: bread, tea, batteries.\n"},
    {"$RX0P2LM.png", kPicture, kMore, 700},
};

constexpr Trace kProgramData[] = {
    {"Microsoft/Search/Data/Applications/Windows/GatherLogs/SystemIndex/SystemIndex.1.log", kNoise,
     kAlways, 260},
    {"Microsoft/Search/Data/Applications/Windows/edb.jtx", kNoise, kMore, 300},
};

constexpr Trace kProgram[] = {
    {"plugins/Sketch Board.tv", kText, kAlways, 0, kSketchBoard},
    {"plugins/Media Box.tv", kText, kAlways, 0, kMediaBox},
    {"slectplg.cln", kText, kAlways, 0, "Sketch Board\n"},
};

constexpr TraceGroup kGroups[] = {
    {"C/Users/user", kUser},
    {"C/$Recycle.Bin/S-1-5-21-2113004051-1874906722-903312647-1001", kRecycleBin},
    {"C/ProgramData", kProgramData},
    {"C/Program Files/Tavr Wipe", kProgram},
};

std::string_view headOf(Content content) {
  using namespace std::string_view_literals;
  switch (content) {
    case kDatabase:
      return "SQLite format 3\0\x10\0\x02\x02\0\x40\x20\x20"sv;
    case kPicture:
      return "\x89PNG\r\n\x1A\n\0\0\0\rIHDR"sv;
    case kShortcut:
      return "L\0\0\0\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46"sv;
    case kJson:
      return "{\"profile\":{\"name\":\"Person 1\"},\"token\":\""sv;
    case kNoise:
    case kText:
      break;
  }
  return {};
}

std::string withWindowsLines(std::string_view text) {
  std::string out;
  for (const char c : text) {
    if (c == '\n') out += '\r';
    out += c;
  }
  return out;
}

}  // namespace

std::span<const TraceGroup> windowsTraces() { return kGroups; }

std::string contentOf(const Trace& trace, Dice& dice) {
  if (trace.content == kText) return withWindowsLines(trace.text);
  constexpr std::string_view kTail = "\"}";
  const bool json = trace.content == kJson;
  std::string bytes(headOf(trace.content));
  while (bytes.size() + (json ? kTail.size() : 0) < trace.size) {
    const std::uint64_t number = dice.next();
    bytes += json ? "0123456789abcdef"[number & 15] : static_cast<char>(number);
  }
  if (json) bytes += kTail;
  return bytes;
}

}  // namespace tavr::sample
