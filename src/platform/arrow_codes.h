#pragma once

namespace coilrun {

inline constexpr int kUpCode = 200;
inline constexpr int kLeftCode = 203;
inline constexpr int kRightCode = 205;
inline constexpr int kDownCode = 208;

}  // namespace coilrun
