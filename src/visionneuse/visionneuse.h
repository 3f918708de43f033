#pragma once
#include <string_view>

// Runs the viewer with the arguments of a command line, the program's name left out; returns the exit code.
int Lancer_visionneuse(std::wstring_view arguments);
