// A drawing's outline of lines and curves, and how much of a pixel it covers.
// Its own rasteriser: what GDI+ calls smooth is jagged on some machines.
#pragma once

#include <vector>

namespace tavr::win32 {

struct Spot {
  double x = 0;
  double y = 0;
};

class Outline {
 public:
  void moveTo(Spot to);
  void lineTo(Spot to);
  void curveTo(Spot first, Spot second, Spot to);
  void close();

  bool empty() const { return drawn_.empty(); }
  Spot least() const { return least_; }
  Spot most() const { return most_; }

  /// How much of the pixel around `spot` lies inside, 0 to 1. An open part is
  /// taken as closed.
  double filledAt(Spot spot) const;
  /// How much of it a line of this width covers, with round ends and corners.
  double strokedAt(Spot spot, double width) const;

 private:
  struct Piece {
    Spot from;
    Spot to;
  };
  void add(Spot to);
  void reach(Spot spot);

  std::vector<Piece> drawn_;
  std::vector<Piece> closing_;  ///< what only filling closes
  Spot begin_;
  Spot here_;
  Spot least_{1e9, 1e9};
  Spot most_{-1e9, -1e9};
  bool open_ = false;
};

/// How much of the pixel around `spot` a box with round corners covers.
double roundBoxAt(Spot spot, Spot least, Spot most, double radius);

}  // namespace tavr::win32
