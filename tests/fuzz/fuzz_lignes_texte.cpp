#include "texte/lignes.h"

#include "fuzz/exiger.h"

#include <cstdint>
#include <string>

namespace {
// The lines joined by their count and lengths, whatever the blocks.
std::string Trace(std::string_view texte, std::size_t bloc, Codage codage) {
    std::string  trace;
    Coupe_lignes coupe(codage, 16);
    const auto   noter = [&] {
        Exiger(coupe.Octets().size() <= 16 && coupe.Octets().size() <= coupe.Longueur());
        trace.append(coupe.Octets()).append("|").append(std::to_string(coupe.Longueur())).append("\n");
        coupe.Suivante();
    };
    while (!texte.empty()) {
        const std::size_t pris = coupe.Prendre(texte.substr(0, bloc));
        Exiger(pris > 0);
        texte.remove_prefix(pris);
        if (coupe.Complete()) noter();
    }
    if (coupe.Entamee()) noter();
    return trace;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * octets, std::size_t taille) {
    const std::string_view texte(reinterpret_cast<const char *>(octets), taille);
    const Marque_codage    marque = Reconnaitre_codage(texte);
    const std::string_view suite  = texte.substr(marque.octets);
    Exiger(Trace(suite, 1, marque.codage) == Trace(suite, 4096, marque.codage));
    std::wstring large;
    for (const char c : suite) large += static_cast<wchar_t>(static_cast<unsigned char>(c));
    for (const Morceau & morceau : Morceaux_imprimables(large)) {
        Exiger(morceau.nouvelle_page || morceau.ligne.has_value());
        if (morceau.ligne) Exiger(morceau.ligne->size() <= caracteres_imprimes * 8);
    }
    return 0;
}
