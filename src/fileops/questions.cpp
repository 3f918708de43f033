#include "fileops/questions.h"

#include "platform/nombres.h"

namespace {

constexpr std::uint64_t octets_par_disquette = 1'458'000;

const std::wstring continuer = L"\rVoulez-vous continuer ?";
const std::wstring confirmer = L"\rConfirmez-vous cette commande ?";

}  // namespace

std::wstring Question_commande(const std::wstring & commande, const std::wstring & fichier,
                               const std::wstring & source, const std::wstring & destination) {
    std::wstring texte =
        L"Vous allez " + commande + L" le fichier '" + fichier + L"' du répertoire\r" + source;
    if (!destination.empty()) texte += L"\rvers le répertoire\r" + destination;
    return texte + confirmer;
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

std::wstring Question_trop_grand(const std::wstring & fichier_capitales) {
    return L"Attention ! La taille du fichier '" + fichier_capitales +
           L"' est plus grande que celle de la corbeille; son effacement entrainera la perte des fichiers "
           L"déjà "
           L"présent dans celle-ci.\rVoulez-vous agrandir la taille de la corbeille auparavant ?";
}

std::wstring Question_repertoire(const std::wstring & commande, const std::wstring & objet,
                                 const std::wstring & chemin_capitales) {
    return L"Vous allez " + commande + L"\r" + objet + chemin_capitales + L"\r" + confirmer;
}

std::wstring Refus_sous_repertoires(int nombre) {
    return L"Le répertoire contient " + Avec_signe(nombre) +
           L" sous-répertoire(s),\ril faut d'abord le(s) supprimer.";
}

std::wstring Question_nom_cree(const std::wstring & chemin_capitales) {
    return L"Entrez le nom du répertoire à créer sous :\r" + chemin_capitales;
}

std::wstring Question_nouveau_nom_fichier(const std::wstring & fichier_capitales) {
    return L"Entrez le nouveau nom du fichier " + fichier_capitales;
}

std::wstring Question_nouveau_nom_repertoire(const std::wstring & chemin_capitales) {
    return L"Entrez le nouveau nom du répertoire :\r" + chemin_capitales;
}

std::wstring Question_parametres(const std::wstring & fichier_capitales,
                                 const std::wstring & repertoire_capitales) {
    return L"Entrez le(s) paramètre(s) (si nécessaire) pour " + fichier_capitales +
           L"\r\rRépertoire actuel :\r" + repertoire_capitales;
}

std::wstring Libelle_en_cours(const std::wstring & commande, const std::wstring & fichier_capitales) {
    // Without its last letter the infinitive reads as the present: COPIER, COPIE.
    const std::wstring verbe = commande.substr(0, commande.empty() ? 0 : commande.size() - 1);
    return L" " + verbe + L" le fichier " + fichier_capitales + L" ";
}

bool Unite_avec_corbeille(std::wstring_view repertoire) {
    if (repertoire.size() < 2 || repertoire[1] != L':') return false;
    const auto lettre = static_cast<wchar_t>(repertoire.front() | 0x20);
    return lettre > L'b' && lettre <= L'z';
}

bool Tient(std::uint64_t total, double libres_ko) { return static_cast<double>(total) / 1000.0 < libres_ko; }

std::int64_t Disquettes(std::uint64_t total) {
    const std::uint64_t pleines = total / octets_par_disquette;
    // With one half added, anything over whole diskettes rounds up to the next, and whole diskettes are a tie.
    const bool          egalite = total % octets_par_disquette == 0;
    const std::uint64_t nombre  = egalite ? pleines + pleines % 2 : pleines + 1;
    return static_cast<std::int64_t>(nombre);
}
