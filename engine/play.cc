#include "engine/play.h"

#include <charconv>

#include "basic/text.h"
#include "forms/controls.h"
#include "forms/list_view.h"
#include "forms/result_list.h"

namespace tavr {

namespace {

// A line that cannot be carried out, and one whose expectation is not met.
struct WrongLine {
  std::string what;
};
struct NotAsExpected {
  std::string what;
};

// The first word of a text; the text keeps what stands behind it.
std::string_view takeWord(std::string_view& text) {
  text = LTrim(text);
  const std::size_t end = text.find(' ');
  const std::string_view word = text.substr(0, end);
  text = end == text.npos ? std::string_view() : Trim(text.substr(end));
  return word;
}

Control& target(const PlayActions& actions, std::string_view name) {
  const std::size_t point = name.find('.');
  if (point == name.npos) throw WrongLine{"no control: " + std::string(name)};
  Form* const form = actions.form(name.substr(0, point));
  if (form == nullptr) throw WrongLine{"no such form is open: " + std::string(name)};
  Control* const control = form->find(name.substr(point + 1));
  if (control == nullptr) throw WrongLine{"no such control: " + std::string(name)};
  return *control;
}

int rowNumber(std::string_view text, int count) {
  int row = 0;
  const auto end = std::from_chars(text.data(), text.data() + text.size(), row);
  if (end.ec != std::errc() || end.ptr != text.data() + text.size() || row < 1 || row > count) {
    throw WrongLine{"no such row: " + std::string(text)};
  }
  return row;
}

void clickRow(Control& control, std::string_view row) {
  if (auto* list = dynamic_cast<ListView*>(&control)) {
    list->selected = rowNumber(row, list->count());
    if (list->onItemClick) list->onItemClick(list->selected);
  } else if (auto* box = dynamic_cast<ListBox*>(&control)) {
    ListBox::Row& chosen = box->rows[static_cast<std::size_t>(rowNumber(row, box->count())) - 1];
    chosen.selected = !chosen.selected;
  } else {
    throw WrongLine{"has no rows"};
  }
}

void check(Control& control, std::string_view row) {
  auto* const list = dynamic_cast<ListView*>(&control);
  if (list == nullptr) return control.press();
  const int number = rowNumber(row, list->count());
  ListRow& item = list->item(number);
  item.checked = !item.checked;
  if (list->onItemCheck) list->onItemCheck(number);
}

// "10s", "250ms" or "5m" in milliseconds.
std::uint32_t duration(std::string_view text) {
  std::uint32_t number = 0;
  const auto end = std::from_chars(text.data(), text.data() + text.size(), number);
  const std::string_view unit(end.ptr,
                              static_cast<std::size_t>(text.data() + text.size() - end.ptr));
  if (end.ec == std::errc() && unit == "ms") return number;
  if (end.ec == std::errc() && unit == "s") return number * 1000;
  if (end.ec == std::errc() && unit == "m") return number * 60000;
  throw WrongLine{"no time such as 10s: " + std::string(text)};
}

void show(Control& control, std::FILE* out) {
  const auto print = [out](std::string_view line) {
    std::fprintf(out, "%.*s\n", static_cast<int>(line.size()), line.data());
  };
  if (auto* const list = dynamic_cast<ListView*>(&control)) {
    for (int i = 1; i <= list->count(); ++i) {
      ListRow& row = list->item(i);
      print((row.checked ? "* " : "  ") + row.text + " | " + row.subItem(1).text + " | " +
            row.subItem(2).text);
    }
  } else if (const auto* results = dynamic_cast<ResultList*>(&control)) {
    for (std::size_t i = 1; i <= results->count(); ++i) print(results->text(i));
  } else if (const auto* box = dynamic_cast<ListBox*>(&control)) {
    for (const ListBox::Row& row : box->rows) print((row.selected ? "* " : "  ") + row.text);
  } else {
    print(control.shown());
  }
}

void onControl(std::string_view action, std::string_view rest, const PlayActions& actions,
               std::FILE* out) {
  Control& control = target(actions, takeWord(rest));
  if (action == "click") return rest.empty() ? control.press() : clickRow(control, rest);
  if (action == "check") return check(control, rest);
  if (action == "type") return control.type(rest);
  if (action == "show") return show(control, out);
  if (action == "tick") {
    auto* const timer = dynamic_cast<FormTimer*>(&control);
    if (timer == nullptr) throw WrongLine{"is no timer"};
    return timer->tick();
  }
  const std::string found = control.shown();
  if (found != rest) {
    throw NotAsExpected{"expected \"" + std::string(rest) + "\", found \"" + found + "\""};
  }
}

void playLine(std::string_view line, const PlayActions& actions, std::FILE* out) {
  const std::string_view action = takeWord(line);
  for (const std::string_view known : {"click", "check", "type", "show", "tick", "expect"}) {
    if (action == known) return onControl(action, line, actions, out);
  }
  if (action == "wait") return actions.wait(duration(line));
  if (action == "hotkey") return actions.hotkey();
  if (action == "minimise") return actions.minimise();
  if (action == "close") return actions.close();
  if (action == "choose") return actions.choose(line);
  throw WrongLine{"unknown action: " + std::string(action)};
}

}  // namespace

PlayResult play(std::string_view script, const PlayActions& actions, std::FILE* out,
                std::string& message) {
  int number = 0;
  while (!script.empty()) {
    const std::size_t end = script.find('\n');
    std::string_view line = script.substr(0, end);
    script = end == script.npos ? std::string_view() : script.substr(end + 1);
    ++number;
    if (line.ends_with('\r')) line.remove_suffix(1);
    line = Trim(line);
    if (line.empty() || line.starts_with('#')) continue;
    try {
      playLine(line, actions, out);
    } catch (const WrongLine& wrong) {
      message = std::to_string(number) + ": " + wrong.what;
      return PlayResult::kWrongLine;
    } catch (const NotAsExpected& failed) {
      message = std::to_string(number) + ": " + failed.what;
      return PlayResult::kExpectFailed;
    }
  }
  return PlayResult::kDone;
}

}  // namespace tavr
