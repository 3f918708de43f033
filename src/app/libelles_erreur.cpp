#include "app/libelles_erreur.h"

#include "platform/numeros.h"

namespace {

using Contexte = Contexte_erreur;

const std::wstring titre_general = L"Gestionnaire de fichiers";
const std::wstring titre_rapport = L"Erreur détectée par KORVANE";
const std::wstring pied_rapport  = L"Veuillez noter et transmettre à l'auteur. Merci\r\r";
const std::wstring protege       = L"Disquette protégée en écriture\rou fichier verrouillé.";

Message_erreur avertissement(std::wstring texte) {
    return {Genre_message::avertissement, titre_general, std::move(texte)};
}

Message_erreur non_executable(const Contexte & c) {
    return avertissement(
        L"Fichier non exécutable :" + c.fichier +
        L"\rseuls les programmes avec les extensions COM, EXE, BAT ou PIF sont exécutables.");
}

Message_erreur introuvable(const Contexte & c) {
    // A rename or a removal finds its file, since it was listed: what is missing is the right to write.
    if (c.commande == L"RENOMMER" || c.commande == L"SUPPRIMER") return avertissement(protege);
    return avertissement(L"Un nom de fichier comporte un caractère invalide ou bien le fichier " + c.fichier +
                         L" est introuvable ou les attributs 'Système/Caché' sont présents.");
}

Message_erreur plein(const Contexte & c) {
    if (!c.disquette) return avertissement(L"Disque " + c.unite + L" plein :\ropération abandonnée.");
    return {Genre_message::question_disquette, titre_general,
            L"Disquette dans " + c.unite + L" pleine :\rinsérez la disquette suivante."};
}

Message_erreur acces(const Contexte & c) {
    if (c.fichier.empty()) {
        return avertissement(
            L"Un ou plusieurs fichiers cachés et protégés contre l'effacement existent dans ce "
            L"répertoire et appartiennent peut-être à la corbeille :\r"
            L"récupérez ceux-ci et relancez l'opération.");
    }
    return avertissement(L"Le fichier " + c.fichier +
                         L"est protégé contre l'écriture :\rmodifiez son attribut et relancez l'opération.");
}

Message_erreur chemin_absent(const Contexte & c) {
    if (c.commande == L"RENOMMER") return avertissement(protege);
    return avertissement(L"Chemin d'accès introuvable\rou support absent.");
}

Message_erreur rapport(const Contexte & c) {
    const std::wstring genre = c.mode_repertoire ? L" (répertoire)" : L" (fichier)";
    return {Genre_message::rapport, titre_rapport,
            pied_rapport + c.texte + L" (code = " + std::to_wstring(c.numero) + L")" +  //
                L"\rCommande: " + c.commande + genre +                                  //
                L"\rSource: " + c.source +                                              //
                L"\rDestination: " + c.destination +                                    //
                L"\rEditeur: " + c.editeur +                                            //
                L"\rVisualiseur: " + c.visualiseur};
}

}  // namespace

Message_erreur Libelle_erreur(const Contexte_erreur & contexte) {
    switch (contexte.numero) {
    case Numero::appel_incorrect: return non_executable(contexte);
    case Numero::fichier_introuvable: return introuvable(contexte);
    case Numero::disque_plein: return plein(contexte);
    case Numero::nom_incorrect: return avertissement(L"Nom incorrect.");
    case Numero::unite_absente:
    case Numero::disque_non_pret:
        return avertissement(L"Support absent ou erreur d'accès sur " + contexte.unite);
    case Numero::permission_refusee: return avertissement(protege);
    case Numero::acces_fichier: return acces(contexte);
    case Numero::chemin_introuvable: return chemin_absent(contexte);
    case Numero::valeur_incorrecte: return avertissement(L"Caractère de sélection invalide.");
    default: return rapport(contexte);
    }
}
