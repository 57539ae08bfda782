#include "game/driver.h"

#include <utility>

#include "game/ai.h"

namespace coilrun {

Dir ClassicDriver::Choose(State& state, int snake) {
  return AIChoose(state, snake);
}

Drivers::Drivers() {
  const auto classic = std::make_shared<ClassicDriver>();
  for (std::shared_ptr<Driver>& slot : slots_) slot = classic;
}

void Drivers::Give(int snake, std::shared_ptr<Driver> driver) {
  slots_(snake) = std::move(driver);
}

}  // namespace coilrun
