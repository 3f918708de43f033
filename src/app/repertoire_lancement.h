#pragma once
#include <string>

// The directory to start a command in, as the system can make it current: itself, or the disk's short name for it where it is too
// long for that. Empty when there is none, and the user has been told: the command would run in another directory.
std::wstring Repertoire_de_lancement(const std::wstring & repertoire);
