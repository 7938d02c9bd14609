#include <iostream>

#include "script/program.h"

int main(int argc, char** argv) {
  return script::RunProgram({argv + 1, argv + argc}, std::cin, std::cout, std::cerr);
}
