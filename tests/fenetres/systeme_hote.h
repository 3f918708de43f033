#pragma once
#include <string>

// What Windows cannot do to its own files: names and rights that only the system underneath can make, and directories too big
// to be filled from here in a reasonable time.
//
// Runs a line of the host's shell in a directory, and waits for its end; false when it failed.
bool Sur_hote(const std::wstring & repertoire, const std::wstring & commande);
