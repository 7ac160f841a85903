#ifndef TESSALY_APP_PLACED_WINDOW_H_
#define TESSALY_APP_PLACED_WINDOW_H_

namespace tessaly {

enum class WindowMeasure { Height, Left, Top, Width };

// A window's current place on the screen, measure by measure, in twips.
class PlacedWindow {
public:
  PlacedWindow() = default;
  PlacedWindow(const PlacedWindow&) = delete;
  PlacedWindow& operator=(const PlacedWindow&) = delete;
  virtual ~PlacedWindow() = default;

  [[nodiscard]] virtual float Measure(WindowMeasure measure) const = 0;
  // What the window then measures may differ: it keeps its smallest size, and stands on pixels.
  virtual void SetMeasure(WindowMeasure measure, float twips) = 0;
};

}  // namespace tessaly

#endif  // TESSALY_APP_PLACED_WINDOW_H_
