#pragma once
#include <string>
#include <vector>

// Searches the SOURCE drive for what the search request holds, in front of the main window, and lets the user choose among
// the files found. Returns the full paths chosen; none when the search was cancelled, failed or found nothing.
std::vector<std::wstring> Chercher_fichiers();
