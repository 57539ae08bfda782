#pragma once

#include <array>
#include <stdexcept>

namespace coilrun {

/// A table of fixed size whose slots are numbered from `First`: `Walls(1)` is the first wall. A
/// number outside the table is a broken invariant and throws `std::out_of_range`.
template <typename T, int Size, int First = 1>
class Table {
 public:
  T& operator()(int number) { return slots_[Index(number)]; }
  const T& operator()(int number) const { return slots_[Index(number)]; }

  auto begin() { return slots_.begin(); }
  auto end() { return slots_.end(); }
  auto begin() const { return slots_.begin(); }
  auto end() const { return slots_.end(); }

  static constexpr bool Holds(int number) { return number >= First && number <= kLast; }

  static constexpr int kFirst = First;
  static constexpr int kLast = First + Size - 1;
  static constexpr int kSize = Size;

 private:
  static constexpr std::size_t Index(int number) {
    if (!Holds(number)) throw std::out_of_range("table slot");
    return static_cast<std::size_t>(number - First);
  }

  std::array<T, static_cast<std::size_t>(Size)> slots_{};
};

}  // namespace coilrun
