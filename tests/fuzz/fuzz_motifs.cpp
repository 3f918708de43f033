#include "platform/motifs.h"

#include "fuzz/exiger.h"
#include "fuzz/texte_libre.h"

namespace {

wchar_t plier(wchar_t c) { return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c; }

}  // namespace

// A pattern and a name: whatever they hold, what is true of every pattern stays true.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * donnees, std::size_t taille) {
    const auto [motif, nom] = En_deux(Texte_libre(donnees, taille));
    const Motifs motifs(motif, plier);
    const bool   accepte = motifs.Accepte(nom);
    Exiger(!motifs.Tout() || accepte);

    // One pattern more never refuses what a pattern accepted (no pattern at all accepts everything), and a name
    // without wildcard or point matches itself.
    const bool aucun = motif.find_first_not_of(L" \t;") == motif.npos;
    Exiger(aucun || !accepte || Motifs(motif + L";zz", plier).Accepte(nom));
    Exiger(Motifs(motif + L";*", plier).Accepte(nom));
    const bool litteral = !nom.empty() && nom.find_first_of(L"*?.;<>\" \t") == nom.npos;
    Exiger(!litteral || Motifs(nom, plier).Accepte(nom));
    if (Motifs::Valide(motif)) Exiger(motif.find_first_of(L"\\/:\"<>|") == motif.npos);
    return 0;
}
