// What Form52 does: it lists the browser's cookies or typed addresses and keeps
// a list of those to hold on to, in cookies.tvr or url.tvr in the program's
// folder. No run reads these files: the list is stored and no more.
#pragma once

#include <string>
#include <string_view>

#include "config/form_host.h"
#include "forms/form52.h"
#include "services/registry_layer.h"

namespace tavr {

class Form52Code {
 public:
  /// Puts the handlers in; reads nothing.
  explicit Form52Code(FormContext& context);
  Form52Code(const Form52Code&) = delete;
  Form52Code& operator=(const Form52Code&) = delete;

  Form52 form;

  void Form_Load();

  /// What the opener does once the form is up: the heading of the left list,
  /// then the mode, which fills both lists.
  void open(std::string_view heading, std::string_view mode);

 private:
  void Text1_Change();
  void Command1_Click();
  void command2_Click();
  void Dir1_Change();
  void setDir1(std::string_view path);
  void readCookiesFolder();
  void readKept(std::string_view name);
  void writeKept(std::string_view name);
  void addSelected();
  void deleteSelected();
  void refresh();
  void ok();

  FormContext& context_;
  // The form enumerates values with a copy of the routine that has its own text
  // box; the lists of the other enumerators stay empty.
  TextList no_list12_;
  TextList no_list20_;
  RegistryLayer enumerator_;
};

}  // namespace tavr
