#pragma once
#include <string>

// Puts a text on the clipboard; false when another program holds it or memory is short. What was there is lost only for the text.
bool Copier_au_presse_papiers(const std::wstring & texte);
