#pragma once

namespace coilrun {

/// Turns a controller's stick into one arrow key at a time: the direction it leans to most.
class Stick {
 public:
  /// Takes the lean (-32768 to 32767, y downwards) and gives the scan code of the arrow, 0 for
  /// none. An arrow is let go nearer to the middle than it was taken, so a trembling hand steers
  /// steadily.
  int Lean(int x, int y);

 private:
  int arrow_ = 0;
};

}  // namespace coilrun
