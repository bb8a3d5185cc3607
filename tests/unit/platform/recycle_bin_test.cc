#include "platform/folder/recycle_bin.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/folder/folder_files.h"
#include "tests/unit/platform/folder_fixture.h"

namespace tavr::folder {
namespace {

class RecycleBinTest : public FolderFixture {
 protected:
  void expectBin(std::int64_t size, std::int64_t items) {
    std::int64_t found_size = -1;
    std::int64_t found_items = -1;
    EXPECT_EQ(bin_.query(found_size, found_items), kSuccess);
    EXPECT_EQ(found_size, size);
    EXPECT_EQ(found_items, items);
  }

  FolderTree tree_{machine().string(), "C:\\App"};
  Faults faults_;
  RecycleBin bin_{tree_, {"c:\\$recycle.bin\\s-1\\$RHELD.txt"}, faults_};
};

TEST_F(RecycleBinTest, AMachineWithoutABinHasNoItems) {
  expectBin(0, 0);
  EXPECT_EQ(bin_.empty(), kSuccess);
}

TEST_F(RecycleBinTest, CountsItemsAndBytesOnEveryDrive) {
  file("C/$Recycle.Bin/S-1/$RAAAA.txt", "12345");
  file("C/$Recycle.Bin/S-1/$IAAAA.txt", "record");
  file("C/$Recycle.Bin/S-1/desktop.ini", "ini");
  file("C/$Recycle.Bin/S-2/$RBBBB/deep/er/f", "1234567");
  file("C/$Recycle.Bin/S-2/$RBBBB/g", "1");
  file("D/$RECYCLE.BIN/S-1/$rcccc", "12");
  file("C/elsewhere/$Recycle.Bin/S-1/$RDDDD", "not this");
  expectBin(15, 3);
  expectBin(15, 3);
}

TEST_F(RecycleBinTest, EmptyingRemovesItemsAndTheirRecordsAlone) {
  file("C/$Recycle.Bin/S-1/$RAAAA.txt", "12345");
  file("C/$Recycle.Bin/S-1/$IAAAA.txt", "record");
  file("C/$Recycle.Bin/S-1/desktop.ini", "ini");
  file("C/$Recycle.Bin/S-1/$Xother", "x");
  file("C/$Recycle.Bin/S-2/$RBBBB/deep/er/f", "1234567");
  file("D/$RECYCLE.BIN/S-1/$rcccc", "12");
  file("D/$RECYCLE.BIN/S-1/$icccc", "12");
  EXPECT_EQ(bin_.empty(), kSuccess);
  EXPECT_FALSE(exists("C/$Recycle.Bin/S-1/$RAAAA.txt"));
  EXPECT_FALSE(exists("C/$Recycle.Bin/S-1/$IAAAA.txt"));
  EXPECT_FALSE(exists("C/$Recycle.Bin/S-2/$RBBBB"));
  EXPECT_FALSE(exists("D/$RECYCLE.BIN/S-1/$rcccc"));
  EXPECT_FALSE(exists("D/$RECYCLE.BIN/S-1/$icccc"));
  EXPECT_TRUE(exists("C/$Recycle.Bin/S-1/desktop.ini"));
  EXPECT_TRUE(exists("C/$Recycle.Bin/S-1/$Xother"));
  EXPECT_TRUE(exists("C/$Recycle.Bin/S-2"));
  expectBin(0, 0);
}

TEST_F(RecycleBinTest, ReadOnlyItemsGoToo) {
  file("C/$Recycle.Bin/S-1/$Rro/f");
  readOnly("C/$Recycle.Bin/S-1/$Rro/f");
  ::chmod(host("C/$Recycle.Bin/S-1/$Rro").c_str(), 0555);
  file("C/$Recycle.Bin/S-1/$Rfile");
  readOnly("C/$Recycle.Bin/S-1/$Rfile");
  EXPECT_EQ(bin_.empty(), kSuccess);
  expectBin(0, 0);
}

TEST_F(RecycleBinTest, LockedFilesStay) {
  file("C/$Recycle.Bin/S-1/$RHeld.txt", "123");
  file("C/$Recycle.Bin/S-1/$Rfree.txt", "12");
  EXPECT_EQ(bin_.empty(), kSuccess);
  EXPECT_TRUE(exists("C/$Recycle.Bin/S-1/$RHeld.txt"));
  expectBin(3, 1);
}

TEST_F(RecycleBinTest, LinksAreRemovedAndNeverFollowed) {
  file("C/data/keep", "123456");
  link("C/$Recycle.Bin/S-1/$Rlink", "../../data");
  link("C/$Recycle.Bin/S-1/$Rfolder/inner", "../../../data");
  file("C/$Recycle.Bin/S-1/$Rfolder/f", "12");
  expectBin(2, 2);
  EXPECT_EQ(bin_.empty(), kSuccess);
  EXPECT_TRUE(exists("C/data/keep"));
  EXPECT_FALSE(exists("C/$Recycle.Bin/S-1/$Rlink"));
  EXPECT_FALSE(exists("C/$Recycle.Bin/S-1/$Rfolder"));
}

TEST_F(RecycleBinTest, LockedFilesStayByTheirOtherNamesToo) {
  file("C/$Recycle.Bin/S-1/$RHeld.txt", "123");
  link("C/$Recycle.Bin/S-1/$Rlink", "$RHeld.txt");
  folder("C/$Recycle.Bin/S-1/$Rfolder");
  std::filesystem::create_hard_link(host("C/$Recycle.Bin/S-1/$RHeld.txt"),
                                    host("C/$Recycle.Bin/S-1/$Rfolder/twin"));
  link("D/$Recycle.Bin", "../C/$Recycle.Bin");
  file("C/$Recycle.Bin/S-1/$Rfolder/free");
  RecycleBin bin(tree_, {"C:\\$Recycle.Bin\\S-1\\$RHeld.txt"}, faults_);
  EXPECT_EQ(bin.empty(), kSuccess);
  EXPECT_TRUE(exists("C/$Recycle.Bin/S-1/$RHeld.txt"));
  EXPECT_TRUE(exists("C/$Recycle.Bin/S-1/$Rfolder/twin"));
  EXPECT_FALSE(exists("C/$Recycle.Bin/S-1/$Rfolder/free"));
  EXPECT_FALSE(exists("C/$Recycle.Bin/S-1/$Rlink")) << "the link itself is nobody's";
}

TEST_F(RecycleBinTest, AFolderGoesWithAllThatLinuxKeepsInIt) {
  const auto before = outsideState();
  const std::string item = "C/$Recycle.Bin/S-1/$Rfolder";
  for (const char* name : {"a:b", "dot.", "blank ", "q?", "s*", "back\\slash", "tab\tx", "\xFF"}) {
    file(item + "/deep/" + name);
  }
  file(item + "/odd./inner");
  ASSERT_EQ(::mkfifo(host(item + "/pipe").c_str(), 0600), 0);
  link(item + "/out", outside());
  link(item + "/deep/outfile", outside() / "secret.txt");
  link(item + "/dangling", "none");
  EXPECT_EQ(bin_.empty(), kSuccess);
  EXPECT_FALSE(exists(item));
  EXPECT_EQ(outsideState(), before);
}

TEST_F(RecycleBinTest, AnItemThatIsALinkGoesWhereverItLeads) {
  const auto before = outsideState();
  link("C/$Recycle.Bin/S-1/$Rout", outside());
  link("C/$Recycle.Bin/S-1/$Rfile", outside() / "secret.txt");
  link("C/$Recycle.Bin/S-1/$Iout", "/nowhere");
  link("C/$Recycle.Bin/S-1/other", outside());
  expectBin(0, 0);
  EXPECT_EQ(bin_.empty(), kSuccess);
  EXPECT_FALSE(exists("C/$Recycle.Bin/S-1/$Rout"));
  EXPECT_FALSE(exists("C/$Recycle.Bin/S-1/$Rfile"));
  EXPECT_FALSE(exists("C/$Recycle.Bin/S-1/$Iout"));
  EXPECT_TRUE(exists("C/$Recycle.Bin/S-1/other"));
  EXPECT_EQ(outsideState(), before);
}

TEST_F(RecycleBinTest, NothingOutsideIsCountedOrRemoved) {
  std::ofstream(outside() / "$Rsecret") << "secret";
  std::filesystem::create_directories(outside() / "S-1");
  std::ofstream(outside() / "S-1/$Rsecret") << "secret";
  const auto before = outsideState();
  link("C/$Recycle.Bin/S-out", outside());
  link("C/$Recycle.Bin/S-1/$Rout", outside());
  link("C/$Recycle.Bin/S-1/$Rin", outside() / "$Rsecret");
  link("C/$Recycle.Bin/S-1/$Rfolder/inner", outside());
  link("D/$Recycle.Bin", outside());
  link("E", outside());
  expectBin(0, 1);
  EXPECT_EQ(bin_.empty(), kSuccess);
  EXPECT_EQ(outsideState(), before);
}

TEST_F(RecycleBinTest, FilesRemovedWithTheirFolderAreGoneForTheFilesToo) {
  file("C/$Recycle.Bin/S-1/$Rfolder/f");
  FolderFiles files(tree_, {}, faults_);
  std::uint32_t bits = 0;
  EXPECT_EQ(files.attributes("C:\\$Recycle.Bin\\S-1\\$Rfolder\\f", bits), kSuccess);
  EXPECT_EQ(bin_.empty(), kSuccess);
  EXPECT_EQ(files.attributes("C:\\$Recycle.Bin\\S-1\\$Rfolder\\f", bits), kPathNotFound);
}

TEST_F(RecycleBinTest, FaultsAnswerInPlaceOfBothOperations) {
  file("C/$Recycle.Bin/S-1/$Ra", "12345");
  faults_.add("SHQueryRecycleBin", 1, 5);
  faults_.add("SHEmptyRecycleBin", 0, 5);
  std::int64_t size = -1;
  std::int64_t items = -1;
  EXPECT_EQ(bin_.query(size, items), 5u);
  EXPECT_EQ(items, 0);
  EXPECT_EQ(bin_.empty(), 5u);
  expectBin(5, 1);
}

}  // namespace
}  // namespace tavr::folder
