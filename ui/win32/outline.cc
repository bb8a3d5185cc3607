#include "ui/win32/outline.h"

#include <algorithm>
#include <cmath>

namespace tavr::win32 {

namespace {

// An edge at this distance, inside counted below zero, covers so much of a pixel.
double covered(double distance) { return std::clamp(0.5 - distance, 0.0, 1.0); }

// Squared, as a root for every piece would take most of the time.
double squaredDistance(Spot spot, Spot from, Spot to) {
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const double length = dx * dx + dy * dy;
  const double along =
      length == 0
          ? 0
          : std::clamp(((spot.x - from.x) * dx + (spot.y - from.y) * dy) / length, 0.0, 1.0);
  const double x = spot.x - from.x - along * dx;
  const double y = spot.y - from.y - along * dy;
  return x * x + y * y;
}

// Whether a piece may come as near as that; most of them are far away.
bool mayReach(Spot spot, Spot from, Spot to, double near) {
  return std::min(from.x, to.x) - near <= spot.x && spot.x <= std::max(from.x, to.x) + near &&
         std::min(from.y, to.y) - near <= spot.y && spot.y <= std::max(from.y, to.y) + near;
}

// +1 or -1 for a piece that passes to the right of the spot, by its direction.
int windingOf(Spot spot, Spot from, Spot to) {
  if ((from.y <= spot.y) == (to.y <= spot.y)) return 0;
  const double x = from.x + (spot.y - from.y) / (to.y - from.y) * (to.x - from.x);
  if (x <= spot.x) return 0;
  return to.y > from.y ? 1 : -1;
}

}  // namespace

void Outline::reach(Spot spot) {
  least_ = {std::min(least_.x, spot.x), std::min(least_.y, spot.y)};
  most_ = {std::max(most_.x, spot.x), std::max(most_.y, spot.y)};
}

void Outline::add(Spot to) {
  drawn_.push_back({here_, to});
  reach(here_);
  reach(to);
  here_ = to;
  open_ = true;
}

void Outline::moveTo(Spot to) {
  if (open_) closing_.push_back({here_, begin_});
  begin_ = here_ = to;
  open_ = false;
}

void Outline::lineTo(Spot to) { add(to); }

void Outline::curveTo(Spot first, Spot second, Spot to) {
  constexpr int kPieces = 12;
  const Spot from = here_;
  for (int i = 1; i <= kPieces; ++i) {
    const double t = static_cast<double>(i) / kPieces;
    const double u = 1 - t;
    const double a = u * u * u;
    const double b = 3 * u * u * t;
    const double c = 3 * u * t * t;
    const double d = t * t * t;
    add({a * from.x + b * first.x + c * second.x + d * to.x,
         a * from.y + b * first.y + c * second.y + d * to.y});
  }
}

void Outline::close() {
  if (open_) add(begin_);
  open_ = false;
}

double Outline::filledAt(Spot spot) const {
  int winding = 0;
  constexpr double kNear = 1;  // beyond it a pixel is covered whole or not at all
  double nearest = kNear * kNear;
  const auto take = [&](const Piece& piece) {
    winding += windingOf(spot, piece.from, piece.to);
    if (!mayReach(spot, piece.from, piece.to, kNear)) return;
    nearest = std::min(nearest, squaredDistance(spot, piece.from, piece.to));
  };
  for (const Piece& piece : drawn_) take(piece);
  for (const Piece& piece : closing_) take(piece);
  if (open_) take({here_, begin_});
  return covered(winding != 0 ? -std::sqrt(nearest) : std::sqrt(nearest));
}

double Outline::strokedAt(Spot spot, double width) const {
  const double half = std::max(width, 1.0) / 2;
  const double near = half + 1;
  double nearest = near * near;
  for (const Piece& piece : drawn_) {
    if (!mayReach(spot, piece.from, piece.to, near)) continue;
    nearest = std::min(nearest, squaredDistance(spot, piece.from, piece.to));
  }
  // A line thinner than a pixel is paler, not narrower.
  return covered(std::sqrt(nearest) - half) * std::min(width, 1.0);
}

double roundBoxAt(Spot spot, Spot least, Spot most, double radius) {
  const double half_width = (most.x - least.x) / 2;
  const double half_height = (most.y - least.y) / 2;
  if (half_width <= 0 || half_height <= 0) return 0;
  const double corner = std::clamp(radius, 0.0, std::min(half_width, half_height));
  const double x = std::abs(spot.x - least.x - half_width) - half_width + corner;
  const double y = std::abs(spot.y - least.y - half_height) - half_height + corner;
  const double outside = std::hypot(std::max(x, 0.0), std::max(y, 0.0));
  return covered(outside + std::min(std::max(x, y), 0.0) - corner);
}

}  // namespace tavr::win32
