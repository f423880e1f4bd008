#pragma once

#include <array>
#include <bit>

/// Where the first and the second of two neighbouring pixels lie in the 64-bit word that is read
/// from or written to them at once.
inline constexpr std::array<int, 2> kPixelShift =
    std::endian::native == std::endian::little ? std::array{0, 32} : std::array{32, 0};
