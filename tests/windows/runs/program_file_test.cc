// tavrwipe.exe as a file: what it needs, what it weighs, what it says of itself,
// and that it does not tell where it was built.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "basic/text.h"
#include "tests/machine/program_run.h"
#include "tests/windows/runs/machine_files.h"

namespace tavr::testing {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t kLargest = 3 << 20;

fs::path program(const char* build) {
  const char* const folder = std::getenv(build);
  return fs::path(folder == nullptr ? "" : folder) / "tavrwipe.exe";
}

std::string bytesOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::string headers() {
  return runProgram("/usr/bin/x86_64-w64-mingw32-objdump",
                    {"-p", program("TAVR_WINDOWS_BUILD").string()}, fs::temp_directory_path())
      .output;
}

// Another library is looked for in the program's own folder first, before the
// program has said that it must not be. Those of the lists and of the file dialog
// are none of these: an unattended start would spend much of its time on them.
TEST(ProgramFile, NeedsOnlyLibrariesThatWindowsTakesFromItsOwnFolder) {
  const std::set<std::string> of_windows = {
      "ADVAPI32.DLL", "GDI32.DLL",    "GDIPLUS.DLL", "KERNEL32.DLL", "MSVCRT.DLL",
      "OLE32.DLL",    "OLEAUT32.DLL", "SHELL32.DLL", "USER32.DLL",
  };
  std::set<std::string> needed;
  for (const std::string& line : linesOf(headers())) {
    constexpr std::string_view kName = "DLL Name: ";
    const std::size_t at = line.find(kName);
    if (at != std::string::npos) needed.insert(UCase(Trim(line.substr(at + kName.size()))));
  }
  EXPECT_TRUE(needed.contains("KERNEL32.DLL"));
  for (const std::string& name : needed) EXPECT_TRUE(of_windows.contains(name)) << name;
}

TEST(ProgramFile, OpensNoConsole) { EXPECT_NE(headers().find("(Windows GUI)"), std::string::npos); }

TEST(ProgramFile, IsUnderThreeMegabytes) {
  EXPECT_LT(fs::file_size(program("TAVR_WINDOWS_BUILD")), kLargest);
}

TEST(ProgramFile, AsksForWhatItNeedsOfTheSystem) {
  const std::string bytes = bytesOf(program("TAVR_WINDOWS_BUILD"));
  for (const char* text :
       {"level=\"highestAvailable\"", "PerMonitorV2", ">UTF-8</activeCodePage>",
        "Microsoft.Windows.Common-Controls", "{35138b9a-5d96-4fbd-8e2d-a2440225f93a}",
        "{4a2f28e3-53b9-4441-ba9c-d69d4a4a6e38}", "{1f676c76-80e1-4239-95bb-83d0f6d0da78}",
        "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}"}) {
    EXPECT_NE(bytes.find(text), std::string::npos) << text;
  }
}

TEST(ProgramFile, SaysWhatItIs) {
  const std::string bytes = bytesOf(program("TAVR_WINDOWS_BUILD"));
  for (const char* text : {"VS_VERSION_INFO", "FileDescription", "Tavr Wipe", "tavrwipe.exe"}) {
    std::string units;  // the texts of a version are in UTF-16
    for (const char* at = text; *at != '\0'; ++at) units.append({*at, '\0'});
    EXPECT_NE(bytes.find(units), std::string::npos) << text;
  }
}

// The first picture of the icon's file, by what the file says of its size and place.
TEST(ProgramFile, CarriesItsIcon) {
  constexpr std::size_t kSize = 14;
  constexpr std::size_t kPlace = 18;
  const std::string file = bytesOf(TAVR_SOURCE_DIR "/resources/tavrwipe.ico");
  ASSERT_GT(file.size(), kPlace + 4);
  const auto number = [&file](std::size_t at) {
    std::size_t value = 0;
    for (std::size_t i = 4; i-- > 0;) value = value << 8 | static_cast<unsigned char>(file[at + i]);
    return value;
  };
  ASSERT_LT(number(kPlace), file.size());
  const std::string picture = file.substr(number(kPlace), number(kSize));
  ASSERT_FALSE(picture.empty());
  EXPECT_NE(bytesOf(program("TAVR_WINDOWS_BUILD")).find(picture), std::string::npos);
}

TEST(ProgramFile, HasTheSameBytesWhenBuiltInAnotherFolder) {
  const std::string bytes = bytesOf(program("TAVR_WINDOWS_BUILD"));
  ASSERT_FALSE(bytes.empty());
  EXPECT_TRUE(bytes == bytesOf(program("TAVR_WINDOWS_BUILD_AGAIN")));
}

TEST(ProgramFile, TellsNothingOfTheFolderWhereItWasBuilt) {
  const std::string bytes = bytesOf(program("TAVR_WINDOWS_BUILD"));
  EXPECT_EQ(bytes.find(TAVR_SOURCE_DIR), std::string::npos);
}

}  // namespace

}  // namespace tavr::testing
