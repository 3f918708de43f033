#include "app/libelles_erreur.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

Contexte_erreur contexte(int numero) {
    Contexte_erreur c;
    c.numero      = numero;
    c.texte       = L"Le périphérique ne répond pas.";
    c.commande    = L"COPIER";
    c.fichier     = L"ÉTÉ.TXT";
    c.source      = L"c:\\travail";
    c.destination = L"d:\\copies";
    c.editeur     = L"NOTEPAD.EXE";
    c.visualiseur = L"PELMIRA.EXE";
    c.unite       = L"C:";
    return c;
}

const std::wstring protege = L"Disquette protégée en écriture\rou fichier verrouillé.";

// A warning: everything but the number is as in `contexte`.
void verifier_avertissement(const Contexte_erreur & c, const std::wstring & texte) {
    const Message_erreur attendu{Genre_message::avertissement, L"Gestionnaire de fichiers", texte};
    const Message_erreur recu = Libelle_erreur(c);
    EXPECT_EQ(recu, attendu) << c.numero << ": " << testing::PrintToString(recu.texte);
}

}  // namespace

TEST(Libelles_erreur, chaque_numero_a_son_message) {
    struct Cas {
        int          numero;
        std::wstring texte;
    };
    const std::vector<Cas> table = {
        {5, L"Fichier non exécutable :ÉTÉ.TXT\r"
            L"seuls les programmes avec les extensions COM, EXE, BAT ou PIF sont exécutables."},
        {53, L"Un nom de fichier comporte un caractère invalide ou bien le fichier ÉTÉ.TXT est introuvable "
             L"ou les "
             L"attributs 'Système/Caché' sont présents."},
        {61, L"Disque C: plein :\ropération abandonnée."},
        {64, L"Nom incorrect."},
        {68, L"Support absent ou erreur d'accès sur C:"},
        {71, L"Support absent ou erreur d'accès sur C:"},
        {70, L"Disquette protégée en écriture\rou fichier verrouillé."},
        {75, L"Le fichier ÉTÉ.TXTest protégé contre l'écriture :\rmodifiez son attribut et relancez "
             L"l'opération."},
        {76, L"Chemin d'accès introuvable\rou support absent."},
        {380, L"Caractère de sélection invalide."},
    };
    for (const Cas & cas : table) verifier_avertissement(contexte(cas.numero), cas.texte);
}

TEST(Libelles_erreur, renommer_et_supprimer_un_fichier_introuvable_parlent_de_protection) {
    for (const wchar_t * commande : {L"RENOMMER", L"SUPPRIMER"}) {
        Contexte_erreur c = contexte(53);
        c.commande        = commande;
        verifier_avertissement(c, protege);
    }
}

TEST(Libelles_erreur, renommer_vers_un_chemin_introuvable_parle_de_protection_et_non_supprimer) {
    Contexte_erreur c = contexte(76);
    c.commande        = L"RENOMMER";
    verifier_avertissement(c, protege);
    c.commande = L"SUPPRIMER";
    verifier_avertissement(c, L"Chemin d'accès introuvable\rou support absent.");
}

TEST(Libelles_erreur, une_disquette_pleine_demande_la_suivante) {
    Contexte_erreur c = contexte(61);
    c.unite           = L"A:";
    c.disquette       = true;
    const Message_erreur attendu{Genre_message::question_disquette, L"Gestionnaire de fichiers",
                                 L"Disquette dans A: pleine :\rinsérez la disquette suivante."};
    EXPECT_EQ(Libelle_erreur(c), attendu);
}

TEST(Libelles_erreur, un_acces_refuse_sans_fichier_courant_rappelle_la_corbeille) {
    Contexte_erreur c = contexte(75);
    c.fichier.clear();
    verifier_avertissement(
        c, L"Un ou plusieurs fichiers cachés et protégés contre l'effacement existent dans ce "
           L"répertoire et appartiennent peut-être à la corbeille :\r"
           L"récupérez ceux-ci et relancez l'opération.");
}

TEST(Libelles_erreur, tout_autre_numero_donne_le_rapport) {
    for (const int numero :
         {0, 1, 6, 7, 13, 52, 54, 57, 58, 60, 62, 63, 65, 67, 69, 72, 73, 74, 77, 100, 379, 381, -1}) {
        const Message_erreur attendu{Genre_message::rapport, L"Erreur détectée par KORVANE",
                                     L"Veuillez noter et transmettre à l'auteur. Merci\r\r"
                                     L"Le périphérique ne répond pas. (code = " +
                                         std::to_wstring(numero) +
                                         L")\r"
                                         L"Commande: COPIER (fichier)\r"
                                         L"Source: c:\\travail\r"
                                         L"Destination: d:\\copies\r"
                                         L"Editeur: NOTEPAD.EXE\r"
                                         L"Visualiseur: PELMIRA.EXE"};
        EXPECT_EQ(Libelle_erreur(contexte(numero)), attendu) << numero;
    }
}

TEST(Libelles_erreur, le_rapport_dit_si_un_repertoire_etait_traite) {
    Contexte_erreur c  = contexte(57);
    c.commande         = L"CREER";
    c.mode_repertoire  = true;
    const auto message = Libelle_erreur(c).texte;
    EXPECT_NE(message.find(L"\rCommande: CREER (répertoire)\rSource: "), message.npos);
    EXPECT_EQ(message.find(L"(fichier)"), message.npos);
}
