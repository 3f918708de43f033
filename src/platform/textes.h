#pragma once
#include <cstdint>
#include <string>
#include <string_view>

// Conversions and formats that follow the user's settings.

std::string  En_ansi(std::wstring_view texte);  // system ANSI code page, "?" for what it cannot hold
std::wstring De_ansi(std::string_view octets);
bool         Tient_en_ansi(std::wstring_view texte);  // true when the round trip is exact

std::wstring Majuscules(std::wstring_view texte);  // the system's rules for the user's language
std::wstring Minuscules(std::wstring_view texte);
wchar_t      Majuscule(wchar_t caractere);  // one character, the file system's folding (CharUpperW)
// Orders names as lists show them: without regard to case, a letter with an accent beside the letter; < 0, 0, > 0.
// 0 only for names that differ by case alone.
int Comparer_sans_casse(std::wstring_view a, std::wstring_view b);

// Each character as that order sees it first: texts that differ after it are in the order of their characters.
void Plier_pour_ordre(std::wstring & texte);

// "#,##0" with the user's thousands separator, as set at the moment of the call.
std::wstring Format_milliers(std::uint64_t n);
// "dd/mm/yy" with the user's date separator, "h:mm" with the time separator. The moment is a FILETIME, in UTC, shown local.
std::wstring Format_date(std::uint64_t moment);
std::wstring Format_heure(std::uint64_t moment);
