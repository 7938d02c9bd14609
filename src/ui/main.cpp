#include "ui/app.h"

int main(int argc, char** argv) { return ui::RunProgram(argc, argv); }
