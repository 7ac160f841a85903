#include "app/first_size.h"

#include <QScreen>

namespace tessaly {

namespace {

constexpr double kPartOfScreen = 0.9;

}  // namespace

QSize FirstSizeOn(const QScreen& screen, const QSize& wish) {
  return wish.boundedTo(screen.availableSize() * kPartOfScreen);
}

}  // namespace tessaly
