// Makes, proves and improves the delivered wheels.

#include <iostream>

#include "tools/wheels/program.h"

int main(int argc, char** argv) {
  return wheels::tool::RunProgram({argv + 1, argv + argc}, std::cout, std::cerr);
}
