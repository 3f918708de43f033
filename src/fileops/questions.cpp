#include "fileops/questions.h"

#include "platform/nombres.h"

namespace {

constexpr std::uint64_t octets_par_disquette = 1'458'000;

const std::wstring continuer = L"\rVoulez-vous continuer ?";

}  // namespace

std::wstring Question_commande(const std::wstring & commande, const std::wstring & fichier,
                               const std::wstring & source, const std::wstring & destination) {
    std::wstring texte =
        L"Vous allez " + commande + L" le fichier '" + fichier + L"' du répertoire\r" + source;
    if (!destination.empty()) texte += L"\rvers le répertoire\r" + destination;
    return texte + L"\rConfirmez-vous cette commande ?";
}

std::wstring Question_remplacement(const std::wstring & fichier_capitales,
                                   const std::wstring & destination_capitales) {
    return L"Le fichier " + fichier_capitales + L"\rexiste déjà dans le répertoire\r" +
           destination_capitales + L"\rvoulez-vous le remplacer ?";
}

std::wstring Question_nom_copie(const std::wstring & fichier_capitales) {
    return L"Vous allez copier un fichier dans son propre répertoire,\rentrez le nom de copie du fichier " +
           fichier_capitales;
}

std::wstring Question_disquettes(std::int64_t nombre) {
    return L"L'ensemble des fichiers sélectionnés vont être copiés sur" + Avec_signe(nombre) +
           L" disquettes de 1,44 Mo." + continuer;
}

std::wstring Question_place(const std::wstring & unite_capitales) {
    return L"L'ensemble des fichiers sélectionnés ne peut être copiés sur " + unite_capitales +
           L" , à moins qu'il y ait des fichiers en remplacement." + continuer;
}

std::wstring Libelle_en_cours(const std::wstring & commande, const std::wstring & fichier_capitales) {
    // Without its last letter the infinitive reads as the present: COPIER, COPIE.
    const std::wstring verbe = commande.substr(0, commande.empty() ? 0 : commande.size() - 1);
    return L" " + verbe + L" le fichier " + fichier_capitales + L" ";
}

bool Tient(std::uint64_t total, double libres_ko) { return static_cast<double>(total) / 1000.0 < libres_ko; }

std::int64_t Disquettes(std::uint64_t total) {
    const std::uint64_t pleines = total / octets_par_disquette;
    // With one half added, anything over whole diskettes rounds up to the next, and whole diskettes are a tie.
    const bool          egalite = total % octets_par_disquette == 0;
    const std::uint64_t nombre  = egalite ? pleines + pleines % 2 : pleines + 1;
    return static_cast<std::int64_t>(nombre);
}
