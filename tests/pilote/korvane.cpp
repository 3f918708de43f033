#include "pilote/korvane.h"

#include <algorithm>
#include <cwchar>
#include <cwctype>

using namespace Pilote;

namespace {

const std::wstring nom_principale = L"Gestion_Fichiers";

std::wstring Executable_essaye() {
    const std::wstring donne = Environnement(L"KORVANE_EXE");
    return donne.empty() ? Repertoire_essais() + L"\\KORVANE.EXE" : donne;
}

bool Meme_texte(const std::wstring & a, const std::wstring & b) {
    return _wcsicmp(a.c_str(), b.c_str()) == 0;
}

// "c:\a\b" -> "c:\", "a", "b".
std::vector<std::wstring> Etapes(const std::wstring & chemin) {
    std::vector<std::wstring> etapes{chemin.substr(0, 3)};
    std::wstring              reste = chemin.size() > 3 ? chemin.substr(3) : L"";
    while (!reste.empty()) {
        const std::size_t barre = reste.find(L'\\');
        etapes.push_back(reste.substr(0, barre));
        reste = barre == std::wstring::npos ? L"" : reste.substr(barre + 1);
    }
    return etapes;
}

}  // namespace

Korvane::Korvane() { Preparer(); }

Korvane::Korvane(const std::wstring & chemin) : dossier(chemin) { Preparer(); }

Korvane::~Korvane() { Fermer(); }

void Korvane::Preparer() {
    Creer_dossier(source);
    Creer_dossier(destination);
    Regler(L"Options", L"Iconisé", L"Oui");
    Regler(L"Options", L"Répertoire", dossier.Chemin());
}

void Korvane::Regler(const std::wstring & section, const std::wstring & cle, const std::wstring & valeur) {
    const auto meme   = [&](const Reglage & r) { return r.section == section && r.cle == cle; };
    const auto ancien = std::find_if(reglages_.begin(), reglages_.end(), meme);
    if (ancien != reglages_.end())
        ancien->valeur = valeur;
    else
        reglages_.push_back({section, cle, valeur});
}

void Korvane::Ne_pas_regler(const std::wstring & section, const std::wstring & cle) {
    std::erase_if(reglages_, [&](const Reglage & r) { return r.section == section && r.cle == cle; });
}

void Korvane::Ecrire_reglages() const {
    std::vector<std::wstring> sections;
    for (const Reglage & reglage : reglages_) {
        if (std::find(sections.begin(), sections.end(), reglage.section) == sections.end())
            sections.push_back(reglage.section);
    }
    std::wstring texte;
    for (const std::wstring & section : sections) {
        texte += L"[" + section + L"]\r\n";
        for (const Reglage & reglage : reglages_) {
            if (reglage.section == section) texte += reglage.cle + L"=" + reglage.valeur + L"\r\n";
        }
    }
    Creer_fichier(Fichier_ini(), Page_systeme(texte));
}

// The executable is linked, not copied: each test costs one directory entry.
void Korvane::Installer() const {
    const std::wstring executable = dossier / L"programme\\KORVANE.EXE";
    Creer_dossier(dossier / L"programme");
    if (Existe(executable) || Lier(Executable_essaye(), executable)) return;
    if (!CopyFileW(Executable_essaye().c_str(), executable.c_str(), TRUE)) {
        throw std::runtime_error("installer " + Utf8(Executable_essaye()) + " : " +
                                 std::to_string(GetLastError()));
    }
}

void Korvane::Demarrer() {
    Installer();
    Ecrire_reglages();
    Ecarter_pointeur();
    programme = std::make_unique<Programme>(dossier / L"programme\\KORVANE.EXE", L"", dossier / L"programme");
}

void Korvane::Attendre_pret() {
    const auto pret = [this] { return Principale() && !Fenetre(L"Apropos") && !Sablier(); };
    ASSERT_TRUE(Attendre([&] { return pret() || !programme->Vivant() || Boite_visible(programme->Numero()); },
                         20000));
    if (!pret()) {
        if (HWND boite = Boite_visible(programme->Numero())) FAIL() << "au démarrage : " << Lire_boite(boite);
        FAIL() << "le programme s'est arrêté, code " << programme->Code_de_fin();
    }
    const HWND principale = Principale();
    if (IsIconic(principale)) PostMessageW(principale, WM_SYSCOMMAND, SC_RESTORE, 0);
    EXIGER(!IsIconic(principale));
    SetForegroundWindow(principale);
    ATTENDRE(GetForegroundWindow() == principale);
    ATTENDRE(Focus(principale) != nullptr);
    Reposer(principale);
}

void Korvane::Lancer() {
    Demarrer();
    Attendre_pret();
}

void Korvane::Lancer_dans_les_dossiers() {
    Lancer();
    if (HasFatalFailure()) return;
    Ouvrir(L"srce", source);
    Ouvrir(L"dest", destination);
}

void Korvane::Fermer() { programme.reset(); }

void Korvane::Creer_source(const std::wstring & nom, std::uint64_t taille, std::uint32_t graine) {
    Creer_fichier_graine(Source(nom), taille, graine);
}

void Korvane::Creer_destination(const std::wstring & nom, std::uint64_t taille, std::uint32_t graine) {
    Creer_fichier_graine(Destination(nom), taille, graine);
}

HWND Korvane::Principale() const { return Fenetre(nom_principale); }

HWND Korvane::Fenetre(const std::wstring & nom) const {
    return programme ? Fenetre_nommee(programme->Numero(), nom) : nullptr;
}

HWND Korvane::Controle(const std::wstring & nom) const { return Controle(nom_principale, nom); }

HWND Korvane::Controle(const std::wstring & fenetre, const std::wstring & nom) const {
    const HWND controle = Controle_nomme(Fenetre(fenetre), nom);
    EXPECT_NE(controle, nullptr) << Utf8(fenetre) << " n'a pas de contrôle " << Utf8(nom);
    return controle;
}

bool Korvane::A_le_focus(const std::wstring & controle) const { return Nom_du_focus() == controle; }

// The editable part of a combo box has the focus in its place.
std::wstring Korvane::Nom_du_focus() const {
    const HWND         focus = Focus(Principale());
    const std::wstring nom   = Nom(focus);
    return nom.empty() && focus ? Nom(GetParent(focus)) : nom;
}

std::vector<std::wstring> Korvane::Choisies(const std::wstring & liste) const {
    return Selection(Controle(liste));
}

void Korvane::Cliquer(const std::wstring & controle) {
    const HWND fenetre = Controle(controle);
    EXPECT_TRUE(Visible(fenetre) && Active(fenetre)) << Utf8(controle) << " ne peut être cliqué";
    Pilote::Cliquer(fenetre);
    Reposer(fenetre);
}

void Korvane::Survoler(const std::wstring & controle) {
    Pointer(Controle(controle));
    Reposer(Principale());
}

void Korvane::Cliquer_entree(const std::wstring & liste, const std::wstring & entree) {
    const HWND fenetre = Controle(liste);
    const int  rang    = Rang_entree(fenetre, entree);
    ASSERT_GE(rang, 0) << Utf8(liste) << " ne contient pas " << Utf8(entree);
    Pilote::Cliquer(Point_entree(fenetre, rang));
    Reposer(fenetre);
}

void Korvane::Double_cliquer_entree(const std::wstring & liste, const std::wstring & entree) {
    const HWND fenetre = Controle(liste);
    const int  rang    = Rang_entree(fenetre, entree);
    ASSERT_GE(rang, 0) << Utf8(liste) << " ne contient pas " << Utf8(entree);
    Double_cliquer(Point_entree(fenetre, rang));
    Reposer(fenetre);
}

void Korvane::Choisir(std::initializer_list<std::wstring> fichiers) {
    const HWND  liste   = Controle(L"Fichier_srce");
    std::size_t choisis = 0;
    for (const std::wstring & fichier : fichiers) {
        const int rang = Rang_entree(liste, fichier);
        ASSERT_GE(rang, 0) << "Fichier_srce ne contient pas " << Utf8(fichier);
        const POINT point = Point_entree(liste, rang);
        if (choisis == 0)
            Pilote::Cliquer(point);
        else
            Cliquer_avec(VK_CONTROL, point, liste);
        ++choisis;
        EXIGER(static_cast<std::size_t>(Nombre_selection(liste)) == choisis);
    }
}

void Korvane::Choisir_unite(const std::wstring & liste, wchar_t lettre) {
    const HWND combinee = Controle(liste);
    const auto commence = [&](int rang) {
        return std::towlower(Entree(combinee, rang).front()) == std::towlower(lettre);
    };
    int       rang   = 0;
    const int nombre = Nombre_entrees(combinee);
    while (rang < nombre && !commence(rang)) ++rang;
    ASSERT_LT(rang, nombre) << Utf8(liste) << " n'a pas l'unité " << static_cast<char>(lettre);
    Pilote::Cliquer(combinee);
    EXIGER(Deroulee(combinee) && Liste_deroulee(combinee));
    Pilote::Cliquer(Point_entree(Liste_deroulee(combinee), rang));
    ATTENDRE(!Deroulee(combinee));
    Reposer(combinee);
}

void Korvane::Ouvrir(const std::wstring & cote, const std::wstring & repertoire) {
    const std::wstring chemin = L"Chemin_" + cote;
    const std::wstring liste  = L"Répertoire_" + cote;
    if (Lire(chemin).empty() || std::towlower(Lire(chemin).front()) != std::towlower(repertoire.front())) {
        Choisir_unite(L"Unité_" + cote, repertoire.front());
    }
    const auto  voulu  = Etapes(repertoire);
    const auto  ouvert = Etapes(Lire(chemin));
    std::size_t commun = 0;
    while (commun < voulu.size() && commun < ouvert.size() && Meme_texte(voulu[commun], ouvert[commun]))
        ++commun;
    ASSERT_GE(commun, 1u) << Utf8(Lire(chemin)) << " n'est pas sur l'unité de " << Utf8(repertoire);
    std::wstring atteint = voulu[0];
    for (std::size_t i = 0; i < voulu.size(); ++i) {
        if (i > 0) atteint += (i > 1 ? L"\\" : L"") + voulu[i];
        // The directories on the way stand first in the list, in their order; then those inside the open one.
        const bool ancetre = i + 1 == commun && commun < ouvert.size();
        if (i < commun && !ancetre) continue;
        const HWND fenetre = Controle(liste);
        int        rang    = static_cast<int>(i);
        while (!ancetre && rang < Nombre_entrees(fenetre) && !Meme_texte(Entree(fenetre, rang), voulu[i]))
            ++rang;
        ASSERT_LT(rang, Nombre_entrees(fenetre)) << Utf8(liste) << " n'a pas " << Utf8(voulu[i]);
        Pilote::Cliquer(Point_entree(fenetre, rang));
        EXIGER(Meme_texte(Lire(chemin), atteint));
    }
    Reposer(Principale());
}

void Korvane::Remplacer_texte(const std::wstring & champ, const std::wstring & texte) {
    const HWND fenetre = Controle(champ);
    Pilote::Cliquer(fenetre);
    ATTENDRE(A_le_focus(champ));
    Frapper(VK_HOME);
    Enfoncer(VK_SHIFT);
    Frapper(VK_END);
    Relever(VK_SHIFT);
    Taper(texte);
    ATTENDRE(Texte(fenetre) == texte);
}

void Korvane::Attendre_boite(const std::wstring & titre, const std::wstring & texte, unsigned style,
                             int reponse) {
    Attendre_boite(Boite{titre, texte, style}, reponse);
}

void Korvane::Attendre_boite(const Boite & attendue, int reponse) {
    const HWND boite = Attendre_boite_visible(programme->Numero(), 10000);
    ASSERT_NE(boite, nullptr) << "aucune boîte ; attendue : " << attendue;
    EXPECT_EQ(Lire_boite(boite), attendue);
    EXPECT_TRUE(Repondre_boite(boite, reponse)) << "la boîte n'a pas pris la réponse " << reponse;
    // The window behind it becomes active first, then gives the focus to one of its controls.
    Attendre(
        [] {
            const HWND devant = GetForegroundWindow();
            return devant == nullptr || Focus(devant) != devant;
        },
        300);
}

bool Korvane::Boite_absente() const { return !Boite_visible(programme->Numero()); }

void Korvane::Attendre_saisie(const std::wstring & titre, const std::wstring & invite,
                              const std::wstring & defaut, const wchar_t * texte,
                              const std::wstring & bouton) {
    ASSERT_TRUE(Attendre([this] { return Fenetre(L"Saisie") != nullptr; }, 10000))
        << "aucune saisie : " << Utf8(invite);
    const HWND saisie = Fenetre(L"Saisie");
    ATTENDRE(GetForegroundWindow() == saisie);
    EXPECT_EQ(Utf8(Texte(saisie)), Utf8(titre));
    EXPECT_EQ(Utf8(Texte(Controle(L"Saisie", L"Invite"))), Utf8(invite));
    const HWND champ = Controle(L"Saisie", L"Texte");
    EXPECT_EQ(Utf8(Texte(champ)), Utf8(defaut));
    ATTENDRE(Focus(saisie) == champ);
    // The default text is selected: what is typed takes its place.
    if (texte) {
        Taper(texte);
        ATTENDRE(Texte(champ) == texte);
    }
    Pilote::Cliquer(Controle(L"Saisie", bouton));
    ATTENDRE(!Visible(saisie) || GetForegroundWindow() != saisie);
}

void Korvane::Attendre_dialogue(const std::wstring & titre, const std::wstring & texte,
                                const std::vector<std::wstring> & boutons, int reponse) {
    ASSERT_TRUE(Attendre([this] { return Fenetre(L"Dialogue") != nullptr; }, 10000))
        << "aucun dialogue : " << Utf8(texte);
    const HWND dialogue = Fenetre(L"Dialogue");
    ATTENDRE(GetForegroundWindow() == dialogue);
    EXPECT_EQ(Utf8(Texte(dialogue)), Utf8(titre));
    EXPECT_EQ(Utf8(Texte(Controle(L"Dialogue", L"Texte"))), Utf8(texte));
    for (std::size_t i = 0; i < 3; ++i) {
        const HWND bouton = Controle(L"Dialogue", L"Bouton" + std::to_wstring(i + 1));
        EXPECT_EQ(Visible(bouton), i < boutons.size());
        const std::wstring attendu = i < boutons.size() ? boutons[i] : Texte(bouton);
        EXPECT_EQ(Utf8(Texte(bouton)), Utf8(attendu));
    }
    Pilote::Cliquer(Controle(L"Dialogue", L"Bouton" + std::to_wstring(reponse)));
    ATTENDRE(Fenetre(L"Dialogue") == nullptr);
}

// A click is on its way for some milliseconds: only then does the state of the window say anything.
void Korvane::Attendre_fin_commande(unsigned delai) {
    Reposer(Principale());
    EXPECT_TRUE(Attendre([this] { return !Sablier() && Active(Principale()) && Boite_absente(); }, delai))
        << "la commande ne finit pas";
    Reposer(Principale());
}
