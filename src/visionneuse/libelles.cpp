#include "visionneuse/libelles.h"

#include "platform/chemins.h"
#include "platform/numeros.h"

namespace {
std::wstring_view Raison(int numero) {
    switch (numero) {
    case Numero::fichier_introuvable: return L"Ce fichier n'existe pas (ou n'existe plus).";
    case Numero::chemin_introuvable: return L"Le répertoire de ce fichier n'existe pas.";
    case Numero::permission_refusee:
        return L"L'accès à ce fichier est refusé, ou un autre programme s'en réserve l'usage.";
    case Numero::acces_fichier: return L"C'est un répertoire : il n'y a pas de texte à montrer.";
    case Numero::disque_non_pret: return L"L'unité n'est pas prête : il n'y a pas de disque.";
    case Numero::unite_absente: return L"Cette unité n'existe pas, ou n'est plus accessible.";
    case Numero::nom_incorrect: return L"Ce nom ne peut pas être celui d'un fichier.";
    case Numero::canal_incorrect: return L"Ce n'est pas un fichier sur un disque.";
    case Numero::memoire: return L"Il n'y a pas assez de mémoire.";
    default: return L"La lecture de ce fichier a échoué.";
    }
}

unsigned Pour_cent(std::uint64_t position, std::uint64_t longueur) {
    if (longueur == 0 || position >= longueur) return 100;
    return static_cast<unsigned>(static_cast<double>(position) / static_cast<double>(longueur) * 100);
}
}  // namespace

std::wstring Libelle_panne(int numero, std::wstring_view chemin, std::wstring_view texte) {
    std::wstring libelle(chemin);
    if (!libelle.empty()) libelle += L"\n\n";
    libelle += Raison(numero);
    if (!texte.empty()) {
        libelle += L"\n(";
        libelle += texte;
        libelle += L")";
    }
    return libelle;
}

std::wstring Libelle_position(const Compte_lignes & compte, std::uint64_t position, std::uint64_t longueur) {
    std::wstring libelle;
    if (!compte.courante.empty()) libelle = L"Ligne " + compte.courante;
    if (!compte.courante.empty() && !compte.total.empty()) libelle += L" sur " + compte.total;
    if (!libelle.empty()) libelle += L" - ";
    return libelle + std::to_wstring(Pour_cent(position, longueur)) + L" %";
}

std::wstring Titre_fenetre(std::wstring_view chemin) {
    std::wstring titre(Nom_du_chemin(chemin));
    if (!titre.empty()) titre += L" - ";
    return titre + L"Visionneuse";
}
