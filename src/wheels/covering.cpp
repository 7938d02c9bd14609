#include "wheels/covering.h"

namespace wheels {

long Choose(int n, int k) {
  if (k < 0 || k > n) return 0;
  long ways = 1;
  for (int i = 1; i <= k; ++i) ways = ways * (n - k + i) / i;
  return ways;
}

}  // namespace wheels
