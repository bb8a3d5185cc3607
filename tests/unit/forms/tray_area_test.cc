#include "forms/tray_area.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tavr {
namespace {

class RecordedDesktop : public Desktop {
 public:
  ScreenSize screen() override { return {1920, 1080}; }
  bool registerHotKey(int, std::uint32_t, std::uint32_t) override { return true; }
  void unregisterHotKey(int) override {}
  void addTrayIcon(std::string_view tool_tip) override {
    calls.push_back("add " + std::string(tool_tip));
  }
  void changeTrayIcon(std::string_view tool_tip) override {
    calls.push_back("change " + std::string(tool_tip));
  }
  void removeTrayIcon() override { calls.push_back("remove"); }
  std::optional<std::string> chooseFile(std::string_view, std::string_view) override { return {}; }

  std::vector<std::string> calls;
};

using Calls = std::vector<std::string>;

TEST(TrayArea, StartsOutOfSight) {
  RecordedDesktop desktop;
  const TrayArea tray(desktop);
  EXPECT_FALSE(tray.visible());
  EXPECT_EQ(desktop.calls, Calls{});
}

TEST(TrayArea, OnlyANewValueAddsAndRemovesTheIcon) {
  RecordedDesktop desktop;
  TrayArea tray(desktop);
  tray.setVisible(false);
  tray.setVisible(true);
  tray.setVisible(true);
  tray.setVisible(false);
  tray.setVisible(false);
  EXPECT_EQ(desktop.calls, (Calls{"add ", "remove"}));
}

TEST(TrayArea, FlagsTellOfIconAndToolTip) {
  struct Row {
    const char* icon;
    const char* tip;
    std::uint32_t flags;
  };
  for (const Row& row : {Row{"", "", 1}, Row{"i", "", 3}, Row{"", "t", 5}, Row{"i", "t", 7}}) {
    RecordedDesktop desktop;
    TrayArea tray(desktop);
    tray.setIcon(row.icon);
    tray.setToolTip(row.tip);
    tray.setVisible(true);
    EXPECT_EQ(tray.record().flags, row.flags);
    EXPECT_EQ(tray.record().size, 88u);
    EXPECT_EQ(tray.record().callback_message, 512u);
    EXPECT_GE(tray.record().id, 1u);
    EXPECT_LE(tray.record().id, 65535u);
  }
}

TEST(TrayArea, ALongToolTipIsCutToTheFixedText) {
  RecordedDesktop desktop;
  TrayArea tray(desktop);
  tray.setToolTip(std::string(100, 'x'));
  tray.setVisible(true);
  EXPECT_EQ(tray.record().tip, std::string(63, 'x'));
}

TEST(TrayArea, ANewToolTipReachesTheShownIconOnly) {
  RecordedDesktop desktop;
  TrayArea tray(desktop);
  tray.setToolTip("one");
  EXPECT_EQ(desktop.calls, Calls{});
  tray.setVisible(true);
  tray.setToolTip("two");
  EXPECT_EQ(desktop.calls, (Calls{"add one", "change two"}));
}

TEST(TrayArea, WithoutAPictureTheIconHides) {
  RecordedDesktop desktop;
  TrayArea tray(desktop);
  tray.setVisible(true);
  tray.setIcon("other.ico");
  EXPECT_TRUE(tray.visible());
  // A change names only what is another.
  EXPECT_EQ(tray.record().flags, TrayArea::kFlagIcon);
  EXPECT_EQ(desktop.calls, (Calls{"add ", "change "}));
  tray.setIcon("");
  EXPECT_FALSE(tray.visible());
  EXPECT_EQ(desktop.calls.back(), "remove");
}

TEST(TrayArea, TakesItsIconAlongWhenItEnds) {
  RecordedDesktop desktop;
  {
    TrayArea tray(desktop);
    tray.setVisible(true);
  }
  EXPECT_EQ(desktop.calls.back(), "remove");
}

TEST(TrayArea, TurnsEachTrayMessageIntoItsEvent) {
  RecordedDesktop desktop;
  TrayArea tray(desktop);
  Calls events;
  tray.onMouseMoveOverIcon = [&] { events.push_back("move"); };
  tray.onMouseDown = [&](int button) { events.push_back("down " + std::to_string(button)); };
  tray.onMouseUp = [&](int button) { events.push_back("up " + std::to_string(button)); };
  tray.onDblClick = [&] { events.push_back("double"); };
  for (std::uint32_t message = 511; message <= 519; ++message) tray.message(message);
  EXPECT_EQ(events, (Calls{"move", "down 1", "up 1", "double", "down 2", "up 2", "double"}));
}

TEST(TrayArea, TakesTheSizeOfItsPictureOnce) {
  RecordedDesktop desktop;
  TrayArea tray(desktop);
  tray.firstShow(16, 18);
  tray.firstShow(40, 50);
  EXPECT_EQ(tray.box.width, 16);
  EXPECT_EQ(tray.box.height, 18);
}

TEST(TrayArea, APictureForAnIconOutOfSightWaitsForTheNextShow) {
  RecordedDesktop desktop;
  TrayArea tray(desktop);
  tray.setIcon("other.ico");
  EXPECT_EQ(desktop.calls, Calls{});
  tray.setVisible(true);
  EXPECT_EQ(tray.record().flags, 3u);
}

TEST(TrayArea, EveryShowTakesAnotherIdentifier) {
  RecordedDesktop desktop;
  TrayArea tray(desktop);
  tray.setVisible(true);
  const std::uint32_t first = tray.record().id;
  tray.setVisible(false);
  tray.setVisible(true);
  EXPECT_NE(tray.record().id, first);
}

TEST(TrayArea, StoresItsPropertiesUnderTheirNames) {
  RecordedDesktop desktop;
  TrayArea tray(desktop);
  PropertyBag bag;
  tray.writeProperties(bag);
  EXPECT_EQ(bag, (PropertyBag{{"Icon", ""}, {"ToolTip", ""}, {"Visible", "False"}}));
  tray.setIcon("i.ico");
  tray.setToolTip("tip");
  tray.setVisible(true);
  tray.writeProperties(bag);
  TrayArea other(desktop);
  other.readProperties(bag);
  EXPECT_EQ(other.icon(), "i.ico");
  EXPECT_EQ(other.toolTip(), "tip");
  EXPECT_TRUE(other.visible());
  other.readProperties({});
  EXPECT_FALSE(other.visible());
}

}  // namespace
}  // namespace tavr
