#include "engine/program.h"

#include "basic/number.h"
#include "engine/commands.h"
#include "engine/counters.h"
#include "engine/runs.h"
#include "engine/start.h"
#include "engine/task_table.h"
#include "engine/window.h"

namespace tavr {

namespace {

PlugInControls plugInControls(Form1& form) {
  return {form.View1, form.File1, form.Text3, form.List4,  form.List5, form.List6,
          form.List7, form.List8, form.List9, form.List10, form.List11};
}

}  // namespace

Program::Program(Machine& on)
    : machine(on),
      form(on),
      message(on.events),
      numbers(on),
      registry(on, form.List12, form.List20, form.Text2, &form.grant_failed),
      deletion(on, form, numbers),
      cache(on, form),
      tracks{on, form, registry, deletion, cache, call_stack},
      plug_ins(on, numbers, registry, plugInControls(form)),
      parent_totals(on),
      directory_search(on),
      language(on, registry),
      desk(*this) {
  form.Text4.onChange = [this] { Text4_Change(*this); };
  form.Text5.onChange = [this] { Text5_Change(*this); };
  form.Text15.onChange = [this] { Text15_Change(*this); };
  form.txtfilecount.onChange = [this] { txtfilecount_Change(*this); };
  form.Timer2.onTick = [this] { Timer2_Timer(*this); };
  form.Timer1.onTick = [this] { desk.scheduleTick(); };
  connectCommands(*this);
  connectWindow(*this);
}

}  // namespace tavr
