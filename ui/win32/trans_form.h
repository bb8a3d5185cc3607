// Cuts a form to the shape of its picture, and lets a person drag the form by
// its ground. One stands on a form at most: where there are more, none works.
#pragma once

#include <windows.h>

#include <string_view>

#include "forms/property_bag.h"
#include "platform/dialogs.h"

namespace tavr::win32 {

class TransForm {
 public:
  static constexpr std::string_view kSeveralTitle = "Multiple TransForm Controls";
  static constexpr std::string_view kSeveralText =
      "Only one TransForm control is allowed or needed on a single form.\r\n"
      "All TransForm functionality will be disabled for this form.";

  /// It belongs to the form from here on, and must go before the form's window.
  TransForm(HWND form, Dialogs& dialogs);
  ~TransForm();
  TransForm(const TransForm&) = delete;
  TransForm& operator=(const TransForm&) = delete;

  std::int32_t MaskColor = 0xFF00FF;  ///< what of the picture is no part of the form
  bool Transparent = true;            ///< false: the form is its whole rectangle
  bool AutoDrag = true;

  void writeProperties(PropertyBag& bag) const;
  void readProperties(const PropertyBag& bag);

  /// The form is loaded, with all that stands on it: begins to work, or tells
  /// once that more than one is there.
  void load();
  bool working() const;

  /// The picture, one pixel of it a pixel of the form's client area. The caller
  /// keeps it until he sets another, or null for none.
  void setPicture(HBITMAP picture);

  /// Works the region out anew; the form's own events do so too.
  void Refresh();
  /// The window's own menu, at the mouse.
  void PopupSysMenu() const;

 private:
  static LRESULT CALLBACK formProcedure(HWND, UINT, WPARAM, LPARAM, UINT_PTR, DWORD_PTR);
  void startDrag() const;
  void shapeForm();

  HWND form_;
  Dialogs& dialogs_;
  HBITMAP picture_ = nullptr;
  bool working_ = false;
  bool shaping_ = false;  ///< setting a region raises the events that ask for it
};

/// The part of a picture that is not in the mask colour, a region of its own
/// that the caller destroys. Null for a picture that cannot be read.
HRGN regionOf(HBITMAP picture, COLORREF mask_color);

/// A picture of the size with round corners in the mask colour, for a form that
/// has none of its own. The caller destroys it.
HBITMAP roundedPicture(SIZE size, int radius, COLORREF mask_color);

}  // namespace tavr::win32
