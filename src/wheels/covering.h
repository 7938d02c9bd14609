#pragma once

namespace wheels {

// How many ways there are to choose k of n things; 0 when k is below 0 or above n.
long Choose(int n, int k);

}  // namespace wheels
