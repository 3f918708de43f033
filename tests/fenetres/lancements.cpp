#include "fenetres/lancements.h"

using namespace Pilote;

void Lancements::Installer_a_cote(std::initializer_list<const wchar_t *> noms) const {
    for (const wchar_t * nom : noms) Installer_enregistreur(dossier / (std::wstring(L"programme\\") + nom));
}

void Lancements::Commander(const std::wstring & bouton, std::initializer_list<std::wstring> fichiers) {
    Choisir(fichiers);
    Cliquer(bouton);
}

void Lancements::Confirmer(const std::wstring & commande, const std::wstring & fichier, unsigned style,
                           int reponse) {
    Attendre_boite(gestionnaire,
                   L"Vous allez " + commande + L" le fichier '" + fichier + L"' du répertoire\r" + source +
                       L"\rConfirmez-vous cette commande ?",
                   style, reponse);
}

void Lancements::Attendre_parametres(const std::wstring & fichier, const wchar_t * texte,
                                     const std::wstring & bouton) {
    Attendre_saisie(L"EXECUTER",
                    L"Entrez le(s) paramètre(s) (si nécessaire) pour " + Capitales(fichier) +
                        L"\r\rRépertoire actuel :\r" + Capitales(source),
                    L" ", texte, bouton);
}

void Lancements::Attendre_introuvable(const std::wstring & fichier_capitales) {
    Attendre_avertissement(L"Un nom de fichier comporte un caractère invalide ou bien le fichier " +
                           fichier_capitales +
                           L" est introuvable ou les attributs 'Système/Caché' sont présents.");
}

std::vector<std::wstring> Lancements::Lignes(std::size_t nombre) const {
    std::vector<std::wstring> lignes;
    for (const Lance & lance : Attendre_lances(nombre)) {
        EXPECT_EQ(Utf8(Capitales(lance.repertoire)), Utf8(Capitales(source)));
        EXPECT_EQ(lance.etat, SW_SHOWNORMAL);
        lignes.push_back(lance.ligne);
    }
    return lignes;
}

std::string Lancements::Attendre_trace(const std::wstring & fichier) {
    std::string trace;
    // The interpreter opens the file, then writes.
    EXPECT_TRUE(Attendre([&] {
        trace = Existe(fichier) ? Lire_fichier(fichier) : "";
        return trace.ends_with("\r\n");
    })) << Utf8(fichier)
        << ": " << trace;
    return trace;
}
