// The About box: name, years, and links to the maker's pages and to the
// translation tool. Its controls alone; what they do is put in by
// config/small_forms_code.h.
#pragma once

#include <array>
#include <span>

#include "forms/chameleon_button.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace tavr {

/// A place for every control of frmabout.
std::span<const ControlDesign> frmaboutDesign();

struct frmabout : Form {
  explicit frmabout(Events& events);

  Label Label222;  ///< Label222(1), the title
  Label Label1;    ///< the product's name
  Label Label3;    ///< the years
  /// The links: [3] web site, [2] plug-ins, [1] support, [0] translation tool.
  std::array<Label, 4> Label2;
  ChameleonButton chameleonButton1;  ///< closes; in the colour of the form
};

}  // namespace tavr
