#include "app/window_reach.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

namespace {

constexpr int kTitleHeight = 30;
// As much of the title as a hand with a mouse finds.
constexpr QSize kGrip(100, 10);

bool CanBeGrabbed(const QRect& title, const QRect& screen) {
  const QRect visible = title.intersected(screen);
  return visible.width() >= std::min(kGrip.width(), title.width()) &&
         visible.height() >= kGrip.height();
}

double Distance(const QRect& title, const QRect& screen) {
  const QPoint from = title.center();
  const QPoint to(std::clamp(from.x(), screen.left(), screen.right()),
                  std::clamp(from.y(), screen.top(), screen.bottom()));
  return std::hypot(from.x() - static_cast<double>(to.x()), from.y() - static_cast<double>(to.y()));
}

QRect MovedInto(const QRect& screen, const QRect& window) {
  const QSize size = window.size().boundedTo(screen.size() - QSize(0, kTitleHeight));
  const int lastLeft = screen.left() + screen.width() - size.width();
  const int lastTop = screen.top() + screen.height() - kTitleHeight - size.height();
  return {QPoint(std::clamp(window.left(), screen.left(), lastLeft),
                 std::clamp(window.top(), screen.top(), lastTop)),
          size};
}

}  // namespace

QRect WithinReach(const QRect& window, const QList<QRect>& screens) {
  const QRect title(window.topLeft(), QSize(window.width(), kTitleHeight));
  const bool reachable = std::ranges::any_of(
      screens, [&](const QRect& screen) { return CanBeGrabbed(title, screen); });
  if (reachable || screens.isEmpty()) {
    return window;
  }
  return MovedInto(*std::ranges::min_element(
                       screens, {}, [&](const QRect& screen) { return Distance(title, screen); }),
                   window);
}

}  // namespace tessaly
