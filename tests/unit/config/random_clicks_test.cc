// Random clicks on the two settings forms: whatever a person presses, in
// whatever order, what is stored is what the forms show.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "basic/number.h"
#include "basic/text.h"
#include "config/form2_code.h"
#include "config/form3_code.h"
#include "services/settings_keys.h"
#include "tests/support/fake_form_host.h"
#include "tests/support/reach.h"

namespace tavr {
namespace {

using testing::FormStage;
using testing::inReach;
using testing::kProgramFolder;
using testing::Place;
using testing::placesOf;
using testing::TestMachine;

constexpr unsigned kSequences = 500;
constexpr int kClicks = 200;

const std::set<std::string> kLeaving = {"Form2.chameleonButton4", "Form2.chameleonButton32",
                                        "Form3.chameleonButton19", "Form3.chameleonButton32"};

/// One machine with both forms open, clicked at random. The machine is never
/// saved: what is asked is what its registry answers.
class Sequence {
 public:
  explicit Sequence(unsigned seed) : dice_(seed) {
    machine_.file(std::string(kProgramFolder) + "\\plugins\\alpha.tv", "A\r\nB\r\nC\r\n")
        .file(std::string(kProgramFolder) + "\\plugins\\beta.tv", "A\r\nB\r\nC\r\n")
        .ini(below(2) == 0 ? "[answers]\ndefault=yes\n" : "");
    storeAtRandom("tavr wipe\\option\\win", 55);
    storeAtRandom("tavr wipe\\option\\option", 6);
    stage_ = std::make_unique<FormStage>(machine_);
    form2_ = std::make_unique<Form2Code>(stage_->context);
    form3_ = std::make_unique<Form3Code>(stage_->context);
    form2_->Form_Load();
    form3_->Form_Load();
    first_ = storedBoxes();
    places_ = placesOf(form2_->form);
    for (const Place& place : placesOf(form3_->form)) places_.push_back(place);
  }

  void click(std::set<std::string>& clicked) {
    std::vector<const Place*> reach;
    for (const Place& place : places_) {
      if (inReach(place) && !kLeaving.contains(place.name)) reach.push_back(&place);
    }
    const Place& place = *reach.at(below(reach.size()));
    clicked.insert(place.name);
    use(*place.control);
    if (place.name == "Form3.chameleonButton9") {
      general_ = {form3_->form.Combo1.text(), form3_->form.Combo2.text()};
    }
    if (place.name == "Form3.chameleonButton5") schedule_ = shownSchedule();
  }

  void expectWhatTheFormsShow() {
    expectBoxes(form2_->form.Check1, settings::kSelectionKey);
    expectBoxes(form3_->form.Check1, settings::kOptionsKey);
    expectOutOfReachUntouched();
    EXPECT_EQ(stored(settings::kMainKey, "secure_value"), general_.at(0));
    EXPECT_EQ(stored(settings::kMainKey, "key"), general_.at(1));
    EXPECT_EQ(stored(settings::kTimerKey, "option"), schedule_.at(0));
    EXPECT_EQ(stored(settings::kTimerKey, "value"), schedule_.at(1));
    EXPECT_EQ(stored(settings::kMainKey, "homepage"), "<none>");
    expectPlugIns();
    expectLogOnTask();
    const auto on = [](const OptionButton* option) { return option->value(); };
    EXPECT_LE(std::ranges::count_if(form3_->form.options(), on), 1);
    EXPECT_THAT(stage_->host.calls, ::testing::Each("message"));
  }

  // What is stored is all there is: forms that are opened anew show it.
  void expectTheSameAtTheNextOpening() {
    Form2Code second(stage_->context);
    second.Form_Load();
    for (std::size_t i = 0; i < second.form.Check1.size(); ++i) {
      EXPECT_EQ(second.form.Check1.at(i).value(), form2_->form.Check1.at(i).value()) << i;
    }
    Form3Code third(stage_->context);
    third.Form_Load();
    for (std::size_t i = 0; i < third.form.Check1.size(); ++i) {
      EXPECT_EQ(third.form.Check1.at(i).value(), form3_->form.Check1.at(i).value()) << i;
    }
  }

 private:
  std::size_t below(std::size_t count) { return dice_() % count; }

  // Off, on, or never stored.
  void storeAtRandom(std::string_view key, int boxes) {
    for (int i = 0; i < boxes; ++i) {
      const std::size_t side = below(3);
      if (side < 2) machine_.setting(key, numberText(i), side == 0 ? "0" : "1");
    }
  }

  void use(Control& control) {
    if (auto* const combo = dynamic_cast<ComboBox*>(&control)) {
      return combo->setText(combo->items.at(below(combo->items.size())));
    }
    if (auto* const bar = dynamic_cast<ScrollBar*>(&control)) {
      return bar->setValue(static_cast<int>(below(static_cast<std::size_t>(bar->max)) + 1));
    }
    if (auto* const list = dynamic_cast<ListView*>(&control)) {
      return list->count() == 0 ? void() : useRow(*list);
    }
    if (control.design.kind == ControlKind::kTextBox) {
      return control.type(" " + numberText(static_cast<double>(below(400))) + " ");
    }
    control.press();
  }

  void useRow(ListView& list) {
    const int row = static_cast<int>(below(static_cast<std::size_t>(list.count()))) + 1;
    if (below(2) == 0) return list.onItemClick(row);
    list.item(row).checked = !list.item(row).checked;
    list.onItemCheck(row);
  }

  std::string stored(std::string_view key, std::string_view name) {
    return machine_.registryText(Root::kLocalMachine, key, name);
  }

  std::map<int, std::string> storedBoxes() {
    std::map<int, std::string> boxes;
    for (int i = 0; i < 55; ++i) boxes[i] = stored(settings::kSelectionKey, numberText(i));
    return boxes;
  }

  // A box that nobody has ever turned is off without a value.
  template <class Boxes>
  void expectBoxes(const Boxes& boxes, std::string_view key) {
    for (std::size_t i = 0; i < boxes.size(); ++i) {
      const std::string text = stored(key, std::to_string(i));
      EXPECT_EQ(text == "<none>" ? "0" : text, boxes.at(i).shown()) << key << " " << i;
    }
  }

  void expectOutOfReachUntouched() {
    const std::map<int, std::string> now = storedBoxes();
    for (int i = 0; i < 55; ++i) {
      const ControlDesign& design = form2_->form.Check1.at(static_cast<std::size_t>(i)).design;
      const bool reached =
          design.visible && (design.parent == "Frame9" || design.parent == "Frame2");
      if (reached) continue;
      EXPECT_EQ(now.at(i), first_.at(i)) << i;
    }
  }

  // Kind and interval as saving stores them: the start of Windows goes before.
  std::vector<std::string> shownSchedule() {
    Form3& form = form3_->form;
    if (form.Check1[4].value() == 1) return {"6", "0"};
    for (std::size_t i = 0; i < form.intervals().size(); ++i) {
      if (!form.options().at(i)->value()) continue;
      return {std::to_string(i + 1), std::string(Trim(form.intervals().at(i)->text()))};
    }
    return {"", ""};
  }

  void expectPlugIns() {
    ListView& list = form2_->form.View1;
    std::string ticked;
    for (int row = 1; row <= list.count(); ++row) {
      if (list.item(row).checked) ticked += list.item(row).text + "\r\n";
    }
    EXPECT_EQ(machine_.read(std::string(kProgramFolder) + "\\slectplg.cln"), ticked);
  }

  // The last thing asked of the task planner is what the box says.
  void expectLogOnTask() {
    const std::string log = machine_.readMachineFile("shell.log");
    const std::size_t last = log.rfind("schtasks /");
    const bool made = last != std::string::npos && log.compare(last, 16, "schtasks /create") == 0;
    EXPECT_EQ(made, form3_->form.Check1[4].value() == 1);
  }

  std::mt19937 dice_;
  TestMachine machine_;
  std::unique_ptr<FormStage> stage_;
  std::unique_ptr<Form2Code> form2_;
  std::unique_ptr<Form3Code> form3_;
  std::vector<Place> places_;
  std::map<int, std::string> first_;  // boxes as they were stored after the loading
  std::vector<std::string> general_ = {"<none>", "<none>"};
  std::vector<std::string> schedule_ = {"<none>", "<none>"};
};

TEST(RandomClicks, EndWithARegistryEqualToWhatTheFormsShow) {
  std::set<std::string> clicked;
  for (unsigned seed = 1; seed <= kSequences; ++seed) {
    SCOPED_TRACE(seed);
    Sequence sequence(seed);
    for (int i = 0; i < kClicks; ++i) sequence.click(clicked);
    sequence.expectWhatTheFormsShow();
    sequence.expectTheSameAtTheNextOpening();
    if (::testing::Test::HasFailure()) break;  // one sequence tells enough
  }
  for (const char* name :
       {"Form2.Check1(13)", "Form2.Check1(54)", "Form2.Check1(44)", "Form2.Check1(52)",
        "Form2.View1", "Form2.chameleonButton29", "Form2.Label2(14)", "Form3.Check1(1)",
        "Form3.Check1(3)", "Form3.Check1(4)", "Form3.Check1(5)", "Form3.Combo1", "Form3.VScroll5",
        "Form3.Text3", "Form3.Option4", "Form3.chameleonButton5", "Form3.chameleonButton9"}) {
    EXPECT_TRUE(clicked.contains(name)) << name;
  }
  for (const char* name : {"Form2.Check1(0)", "Form2.Toolbar1(1)", "Form2.chameleonButton6",
                           "Form3.Toolbar1(6)", "Form3.Text10", "Form3.Check1(2)"}) {
    EXPECT_FALSE(clicked.contains(name)) << name << " is out of reach";
  }
}

}  // namespace
}  // namespace tavr
