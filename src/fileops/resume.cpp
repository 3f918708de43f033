#include "fileops/resume.h"

std::wstring Resume_repertoire(const std::wstring & repertoire, std::size_t nombre, std::wstring_view total) {
    const std::wstring debut = L"Le répertoire " + repertoire + L"\r";
    if (nombre == 0) return debut + L"ne contient pas de fichier.";
    return debut + L"contient " + std::to_wstring(nombre) + L" fichier" + (nombre > 1 ? L"s" : L"") +
           L"\rtotalisant  " + std::wstring(total) + L" octets.";
}
