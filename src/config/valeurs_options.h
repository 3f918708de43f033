#pragma once
#include <string>
#include <string_view>

// Between what the controls of the options hold and the texts of the settings file.

// What is written for a program: `defaut` when the first 12 characters of the field are all blanks, or there is nothing but quotes
// in it, otherwise its text without the blanks around it.
std::wstring Programme_ecrit(std::wstring_view champ, const wchar_t * defaut);

const wchar_t * Oui_non(bool oui);

// Where the directory lists open at the start.
enum class Depart { racine, courant, choisi };

// Of a value of the file, in any case: anything but the two words is a chosen path.
Depart Depart_lu(std::wstring_view valeur);
// What is written: a chosen path without blanks or quotes around it; an empty one is the current directory.
std::wstring Depart_ecrit(Depart depart, std::wstring_view champ);
