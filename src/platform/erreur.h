#pragma once
#include "platform/numeros.h"

#include <cstdint>
#include <exception>
#include <functional>
#include <string>

// The one exception of the run-time services.
struct Erreur_execution : std::exception {
    Erreur_execution(int numero_erreur, std::uint32_t code, std::wstring chemin_concerne)
        : numero(numero_erreur), code_systeme(code), chemin(std::move(chemin_concerne)) {}

    // The system's message for the code, in the user's language, without a trailing line end.
    std::wstring Texte() const;
    const char * what() const noexcept override { return "Erreur_execution"; }

    int           numero;
    std::uint32_t code_systeme;  // GetLastError value, 0 when the service itself refused
    std::wstring  chemin;        // the path concerned, may be empty
};

// Throws for the calling thread's last system error, which is read before anything else runs.
[[noreturn]] void Lever_derniere_erreur(Acte acte, const std::wstring & chemin);
// Throws for a code kept from an earlier call.
[[noreturn]] void Lever_code(std::uint32_t code, Acte acte, const std::wstring & chemin);

// Runs a step that treats one failure in silence: true when nothing was thrown. For what must go on whatever
// a drive does.
bool Tenter(const std::function<void()> & corps);
