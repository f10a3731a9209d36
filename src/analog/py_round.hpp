// round(x, ndigits) as the host rounds a float: the exact binary value to the
// nearest decimal of ndigits places, ties to even, read back as a double.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace orv {

inline double roundPlaces(double x, int ndigits) {
  char text[400];
  std::snprintf(text, sizeof text, "%.*f", ndigits, x);
  return std::strtod(text, nullptr);
}

}  // namespace orv
