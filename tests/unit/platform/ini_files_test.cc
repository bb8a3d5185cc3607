#include "platform/folder/ini_files.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <utility>

namespace tavr::folder {
namespace {

// Files in memory, of which the profile services need only open().
class MemoryFiles : public Files {
 public:
  std::map<std::string, std::string, std::less<>> texts;
  Status open_fails = kSuccess;
  Status output_fails = kSuccess;
  int outputs = 0;

  OpenedFile open(std::string_view path, OpenMode mode) override {
    if (open_fails != kSuccess) return {open_fails, nullptr};
    if (mode == OpenMode::kInput) {
      const auto found = texts.find(path);
      if (found == texts.end()) return {kFileNotFound, nullptr};
      return {kSuccess, std::make_unique<MemoryFile>(found->second)};
    }
    EXPECT_EQ(mode, OpenMode::kOutput);
    if (output_fails != kSuccess) return {output_fails, nullptr};
    ++outputs;
    std::string& text = texts[std::string(path)];
    text.clear();
    return {kSuccess, std::make_unique<MemoryFile>(text)};
  }

  Status find(std::string_view, std::vector<FoundFile>&) override { return kNotSupported; }
  Status findFirst(std::string_view, FoundFile&) override { return kNotSupported; }
  void listFolder(std::string_view, std::string_view, FolderListing&) override {}
  Status attributes(std::string_view, std::uint32_t&) override { return kNotSupported; }
  Status setAttributes(std::string_view, std::uint32_t) override { return kNotSupported; }
  Status remove(std::string_view) override { return kNotSupported; }
  Status copy(std::string_view, std::string_view) override { return kNotSupported; }
  bool canOpen(std::string_view) override { return false; }
  Status setCurrentDirectory(std::string_view) override { return kNotSupported; }
  Status subfolders(std::string_view, std::vector<std::string>&) override { return kNotSupported; }
  Status security(std::string_view /*path*/, SecurityDescriptor& /*out*/) override {
    return kNotSupported;
  }
  Status setSecurity(std::string_view /*path*/, const SecurityDescriptor& /*descriptor*/) override {
    return kNotSupported;
  }

 private:
  class MemoryFile : public OpenFile {
   public:
    explicit MemoryFile(std::string& text) : text_(text) {}
    std::uint64_t length() override { return text_.size(); }
    Status read(std::uint64_t offset, std::size_t size, std::string& out) override {
      out = text_.substr(offset, size);
      return kSuccess;
    }
    Status write(std::uint64_t offset, std::string_view bytes) override {
      text_.replace(offset, bytes.size(), bytes);
      return kSuccess;
    }

   private:
    std::string& text_;
  };
};

constexpr std::string_view kFile = "C:\\x.ini";

class IniFilesTest : public ::testing::Test {
 protected:
  void text(std::string_view content) { files_.texts[std::string(kFile)] = content; }
  std::string text() { return files_.texts[std::string(kFile)]; }
  std::string get(std::string_view section, std::string_view key, std::uint32_t capacity = 255) {
    return ini_.getString(section, key, "none", capacity, kFile);
  }
  std::int32_t number(std::string_view key) { return ini_.getInt("s", key, -7, kFile); }
  std::string section(std::uint32_t capacity) { return ini_.getSection("s", capacity, kFile); }
  Status set(std::string_view section, std::string_view key, std::string_view value) {
    return ini_.writeString(section, key, value, kFile);
  }

  MemoryFiles files_;
  FolderIniFiles ini_{files_};
};

TEST_F(IniFilesTest, SectionAndKeyAreFoundWithoutCase) {
  text("[Other]\r\n175=no\r\n[Abc]\r\nKey=value\r\n");
  EXPECT_EQ(get("aBC", "KEY"), "value");
  EXPECT_EQ(get("abc", "175"), "none");
  EXPECT_EQ(get("ab", "key"), "none");
}

TEST_F(IniFilesTest, TheFirstSectionAndTheFirstKeyCount) {
  text("[s]\nk=1\nk=2\n[t]\nx=9\n[s]\nk=3\nx=4\n");
  EXPECT_EQ(get("s", "k"), "1");
  EXPECT_EQ(get("s", "x"), "none");
}

TEST_F(IniFilesTest, BlanksAroundKeyAndValueAreDropped) {
  text("  [ s ]  \r\n\t k \t=  a b \t\r\nempty=\r\nblank=   \r\n");
  EXPECT_EQ(get("s", "k"), "a b");
  EXPECT_EQ(get("s", "empty"), "");
  EXPECT_EQ(get("s", "blank"), "");
}

TEST_F(IniFilesTest, OnePairOfEnclosingQuotesIsDropped) {
  text("[s]\na=\" x \"\nb='y'\nc=\"\"z\"\"\nd=\"x\ne=\"\nf=\"x'\ng=a \"b\"\n");
  EXPECT_EQ(get("s", "a"), " x ");
  EXPECT_EQ(get("s", "b"), "y");
  EXPECT_EQ(get("s", "c"), "\"z\"");
  EXPECT_EQ(get("s", "d"), "\"x");
  EXPECT_EQ(get("s", "e"), "\"");
  EXPECT_EQ(get("s", "f"), "\"x'");
  EXPECT_EQ(get("s", "g"), "a \"b\"");
}

TEST_F(IniFilesTest, CommentsAreNoKeysAndValuesKeepTheirEqualSigns) {
  text("; [s]\n[s]\n;k=1\n ; k=2\nk=a=b;c\n=x\nno sign\n");
  EXPECT_EQ(get("s", "k"), "a=b;c");
  EXPECT_EQ(get("s", ";k"), "none");
  EXPECT_EQ(get("s", ""), "none");
  EXPECT_EQ(get("s", "no sign"), "none");
}

TEST_F(IniFilesTest, AByteOrderMarkAndAMissingLastLineEndAreTaken) {
  text("\xEF\xBB\xBF[s]\r\nk=v");
  EXPECT_EQ(get("s", "k"), "v");
}

TEST_F(IniFilesTest, AValueIsCutToOneCharacterLessThanTheBuffer) {
  text("[s]\nk=" + std::string(300, 'x') + "\nu=\xC3\xA4\xC3\xB6\xF0\x9F\x90\xBBz\n");
  EXPECT_EQ(get("s", "k"), std::string(254, 'x'));
  EXPECT_EQ(get("s", "u", 3), "\xC3\xA4\xC3\xB6");
  EXPECT_EQ(get("s", "u", 4), "\xC3\xA4\xC3\xB6");
  EXPECT_EQ(get("s", "u", 5), "\xC3\xA4\xC3\xB6\xF0\x9F\x90\xBB");
  EXPECT_EQ(get("s", "u", 1), "");
  EXPECT_EQ(get("s", "u", 0), "");
  EXPECT_EQ(get("s", "missing", 3), "no");
}

TEST_F(IniFilesTest, AFileThatIsMissingOrRefusesGivesTheFallback) {
  EXPECT_EQ(get("s", "k"), "none");
  EXPECT_EQ(number("k"), -7);
  EXPECT_EQ(section(99), "");
  text("[s]\nk=1\n");
  files_.open_fails = kAccessDenied;
  EXPECT_EQ(get("s", "k"), "none");
  EXPECT_EQ(number("k"), -7);
  EXPECT_EQ(section(99), "");
}

TEST_F(IniFilesTest, ANumberIsTheDigitsAtTheHeadOfTheValue) {
  text("[s]\na=12abc\nb= -5 \nc=+8\nd=x1\ne=\nf=\"3\"\ng=- 4\n");
  EXPECT_EQ(number("a"), 12);
  EXPECT_EQ(number("b"), -5);
  EXPECT_EQ(number("c"), 8);
  EXPECT_EQ(number("d"), 0);
  EXPECT_EQ(number("e"), 0);
  EXPECT_EQ(number("f"), 0);
  EXPECT_EQ(number("g"), 0);
  EXPECT_EQ(number("missing"), -7);
}

TEST_F(IniFilesTest, ASectionComesAsItsLinesWithoutComments) {
  text("[s]\r\n a = 1 \r\n;x=2\r\n\r\nb=\"q\"\r\nbare\r\n[t]\r\nc=3\r\n");
  EXPECT_EQ(section(99), std::string("a=1\0b=\"q\"\0bare\0\0", 16));
  EXPECT_EQ(ini_.getSection("none", 99, kFile), "");
}

TEST_F(IniFilesTest, ASectionThatIsTooLongIsCutBeforeTwoNuls) {
  text("[s]\na=1\nb=2\n");
  EXPECT_EQ(section(9), std::string("a=1\0b=2\0\0", 9));
  EXPECT_EQ(section(8), std::string("a=1\0b=\0\0", 8));
  EXPECT_EQ(section(2), std::string("\0\0", 2));
  EXPECT_EQ(section(1), "");
}

TEST_F(IniFilesTest, WritingReplacesTheValueAndNothingElse) {
  text("\xEF\xBB\xBF; head\n[S]\r\n Key = old ; x\r\nk2=2\n\n[t]\nkey=9");
  EXPECT_EQ(set("s", "KEY", "new"), kSuccess);
  EXPECT_EQ(text(), "\xEF\xBB\xBF; head\n[S]\r\n Key =new\r\nk2=2\n\n[t]\nkey=9");
  EXPECT_EQ(set("t", "key", ""), kSuccess);
  EXPECT_EQ(text(), "\xEF\xBB\xBF; head\n[S]\r\n Key =new\r\nk2=2\n\n[t]\nkey=");
}

TEST_F(IniFilesTest, AMissingKeyIsAddedBehindTheLastLineOfItsSection) {
  text("[s]\r\na=1\r\n\r\n[t]\r\nb=2");
  EXPECT_EQ(set("s", "n", "v"), kSuccess);
  EXPECT_EQ(text(), "[s]\r\na=1\r\nn=v\r\n\r\n[t]\r\nb=2");
  EXPECT_EQ(set("t", "n", "v"), kSuccess);
  EXPECT_EQ(text(), "[s]\r\na=1\r\nn=v\r\n\r\n[t]\r\nb=2\r\nn=v\r\n");
}

TEST_F(IniFilesTest, AMissingSectionOrFileIsMade) {
  EXPECT_EQ(set("s", "k", "v"), kSuccess);
  EXPECT_EQ(text(), "[s]\r\nk=v\r\n");
  EXPECT_EQ(set("t", "k", "v"), kSuccess);
  EXPECT_EQ(text(), "[s]\r\nk=v\r\n[t]\r\nk=v\r\n");
  text("\xEF\xBB\xBF[u]");
  EXPECT_EQ(set("u", "k", "v"), kSuccess);
  EXPECT_EQ(text(), "\xEF\xBB\xBF[u]\r\nk=v\r\n");
  text("\xEF\xBB\xBF");
  EXPECT_EQ(set("u", "k", "v"), kSuccess);
  EXPECT_EQ(text(), "\xEF\xBB\xBF[u]\r\nk=v\r\n");
}

TEST_F(IniFilesTest, ALineThatIsTheSameAlreadyIsNotWritten) {
  text("[s]\nk=v\n");
  EXPECT_EQ(set("s", "k", "v"), kSuccess);
  EXPECT_EQ(files_.outputs, 0);
}

TEST_F(IniFilesTest, AFileThatRefusesGivesItsError) {
  text("[s]\nk=v\n");
  files_.output_fails = kAccessDenied;
  EXPECT_EQ(set("s", "k", "new"), kAccessDenied);
  files_.open_fails = kSharingViolation;
  EXPECT_EQ(set("s", "k", "new"), kSharingViolation);
  EXPECT_EQ(text(), "[s]\nk=v\n");
}

}  // namespace
}  // namespace tavr::folder
