#pragma once
#include <string>

// Starts a command line in that directory, the SOURCE directory for an empty one; the program's own current directory is the same
// afterwards. Tache keeps the identifier. A batch file goes through the command interpreter: what would end the command there is
// escaped, so that one start never becomes two. Errors 53, 76, 5, 7, 64, 68, 71, 70.
void Lancer(const std::wstring & ligne, const std::wstring & repertoire = {});
