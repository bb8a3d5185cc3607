#include "tracks/dialogs.h"

#include <string>

#include "basic/number.h"
#include "basic/text.h"
#include "tracks/primitives.h"

namespace tavr::dialogs {

namespace {

// One track found, counted in all three places.
void countOne(TrackContext& context, double& total) {
  addTo(context.form.txtregcount, 1);
  total += 1;
  context.form.trackcount += 1;
}

// Values directly under the keys. The body runs once even on an empty list, and
// then reports and deletes the default value.
void valuesUnderKeys(TrackContext& context, const RowForm& row, double& total) {
  Form1& form = context.form;
  grantKey(context, kOpenSave);
  if (context.registry.fEnumValueb("HKCU", kLastVisited) != kSuccess) {
    context.registry.fEnumValueb("HKCU", kOpenSave);
  }
  const std::string mesg = LangText(context, "035");
  int i = 0;
  do {
    context.machine.events.doEvents();
    context.registry.fDeleteValue("HKCU", kOpenSave, form.List20.at(i));
    context.registry.fDeleteValue("HKCU", kLastVisited, form.List20.at(i));
    showRow(context, row, {mesg, form.List20.at(i)});
    countOne(context, total);
    ++i;
  } while (i <= form.List20.count() - 1);
  // Stated beside the loop that always counts one; it is never met.
  if (total == 0) setCount(context, "0");
  rowTail(context);
}

// One subkey: each value is deleted in both keys, reported or not; binary
// values, whose read gives no text, go without a row.
void valuesOfSubkey(TrackContext& context, const RowForm& row, const std::string& first,
                    const std::string& second, double& total) {
  Form1& form = context.form;
  const std::string mesg = LangText(context, "175");
  int i = 0;
  do {
    context.machine.events.doEvents();
    std::string data;
    context.registry.fGetString(Root::kCurrentUser, first, form.List20.at(i), data);
    if (Trim(data).empty()) {
      context.registry.fGetString(Root::kCurrentUser, second, form.List20.at(i), data);
    }
    if (!Trim(data).empty()) {
      showRow(context, row, {mesg, data});
      countOne(context, total);
    }
    context.registry.fDeleteValue("HKCU", second, form.List20.at(i));
    context.registry.fDeleteValue("HKCU", first, form.List20.at(i));
    ++i;
  } while (i <= form.List20.count() - 1);
}

void valuesUnderSubkeys(TrackContext& context, const RowForm& row, std::string_view key,
                        double& total) {
  Form1& form = context.form;
  if (context.registry.fEnumKey("HKCU", key) != kSuccess) {
    context.registry.fEnumKey("HKCU", kOpenSave);
  }
  int j = 0;
  do {
    context.machine.events.doEvents();
    const std::string first = std::string(key) + "\\" + form.List12.at(j);
    const std::string second = std::string(kOpenSave) + "\\" + form.List12.at(j);
    if (context.registry.fEnumValueb("HKCU", first) != kSuccess) {
      context.registry.fEnumValueb("HKCU", second);
    }
    valuesOfSubkey(context, row, first, second, total);
    ++j;
  } while (j <= form.List12.count() - 1);
}

}  // namespace

void c5(TrackContext& context, const Procedure& self) {
  double total = 0;
  valuesUnderKeys(context, self.rows[0], total);
  valuesUnderSubkeys(context, self.rows[1], kLastVisitedLegacy, total);
  valuesUnderSubkeys(context, self.rows[1], kOpenSavePidl, total);
  rowTail(context);
}

void t5(TrackContext& context, const Procedure& self) {
  Form1& form = context.form;
  double total = 0;
  const auto show = [&](const RowForm& row, int i) {
    showRow(context, row, {form.List20.at(i)});
    countOne(context, total);
    setCount(context, numberText(context.form.trackcount));
  };
  if (context.registry.fEnumValueb("HKCU", kOpenSave) != kSuccess) {
    context.registry.fEnumKey("HKCU", kOpenSavePidl);  // into the other list
  }
  int i = 0;
  do {
    context.machine.events.doEvents();
    show(self.rows[0], i);
    ++i;
  } while (i <= form.List20.count() - 1);
  if (total == 0) setCount(context, "0");
  rowTail(context);
  if (context.registry.fEnumKey("HKCU", kOpenSave) != kSuccess) {
    context.registry.fEnumKey("HKCU", kOpenSaveNt);
  }
  int j = 0;
  do {
    context.machine.events.doEvents();
    const std::string subkey = std::string(kOpenSave) + "\\" + form.List12.at(j);
    if (context.registry.fEnumValueb("HKCU", subkey) != kSuccess) {
      context.registry.fEnumValueb("HKCU", subkey);
    }
    i = 0;
    do {
      context.machine.events.doEvents();
      if (!Trim(form.List20.at(i)).empty()) show(self.rows[1], i);
      ++i;
    } while (i <= form.List20.count() - 1);
    ++j;
  } while (j <= form.List12.count() - 1);
  if (total == 0) setCount(context, "0");
  rowTail(context);
}

}  // namespace tavr::dialogs
