#pragma once
#include <string>
#include <string_view>
#include <vector>

// Splits a profile section's key list: names each followed by NUL; an empty name ends the list.
std::vector<std::wstring> Decouper_cles(std::wstring_view liste);
