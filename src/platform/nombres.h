#pragma once
#include <cstdint>
#include <string>
#include <string_view>

// Texts of numbers. Separators are given by the caller, who knows the user's settings.

std::wstring Avec_signe(std::int64_t n);       // one blank before a number that is not negative: " 3"
double       Valeur(std::wstring_view texte);  // leading number: blanks, sign, digits, point; 0 without one
std::wstring Milliers(std::uint64_t n, std::wstring_view separateur);  // "#,##0"
std::wstring Chiffres(std::uint64_t n, unsigned au_moins);             // "0##": at least that many digits
bool         Est_oui(std::wstring_view valeur);  // first three characters are "oui", any case
