// Shows what the toolkit and the shared windows offer, one at a time, for the tests. The main window's buttons open them: Copier
// the three-button question, Déplacer the text prompt, Renommer the file-open dialog, Info a window of plain controls.
//
// Arguments read "name=value": journal (a file that takes a line of UTF-8 for each event), message, bouton1 to bouton3, icone,
// titre, defaut, invite, saisie, filtre. The main window stands at 1500, 1500 twips until it is moved.
#include "app/dialogue.h"
#include "app/fenetres.h"
#include "app/settings.h"
#include "forms/dialogue.h"
#include "forms/gestion_fichiers.h"
#include "platform/nombres.h"
#include "platform/windows.h"
#include "toolkit/application.h"
#include "toolkit/boites.h"
#include "toolkit/minuterie.h"

#include <map>
#include <shellapi.h>

namespace {

std::map<std::wstring, std::wstring> arguments;

void Noter(const std::wstring & ligne) {
    HANDLE    journal = CreateFileW(arguments[L"journal"].c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr,
                                    OPEN_ALWAYS, 0, nullptr);
    char      octets[2048];
    const int longueur =
        WideCharToMultiByte(CP_UTF8, 0, (ligne + L"\n").c_str(), -1, octets, sizeof octets, nullptr, nullptr);
    DWORD ecrits = 0;
    if (longueur > 1) WriteFile(journal, octets, static_cast<DWORD>(longueur - 1), &ecrits, nullptr);
    CloseHandle(journal);
}

struct Vitrine : Fenetre {
    Vitrine() : Fenetre(L"Vitrine", L"Vitrine", 6000, 4200, Bordure::dialogue) {}

    // clang-format off
    Case_a_cocher     Case     {*this, {L"Case",      240,  240, 2400, 300, L"Cas&e"}};
    Bouton_option     Option0  {*this, {L"Option(0)", 240,  660, 2400, 300, L"&Un"}, true};
    Bouton_option     Option1  {*this, {L"Option(1)", 240,  960, 2400, 300, L"&Deux"}};
    Bouton_option     Option2  {*this, {L"Option(2)", 240, 1260, 2400, 300, L"&Trois"}};
    Bouton_option     Autre0   {*this, {L"Autre(0)", 3000,  660, 2400, 300, L"Rouge"}, true};
    Bouton_option     Autre1   {*this, {L"Autre(1)", 3000,  960, 2400, 300, L"Vert"}};
    Barre_defilement  Barre    {*this, {L"Barre",     240, 1740, 5400, 255}};
    Champ_texte       Champ    {*this, {L"Champ",     240, 2160, 2400, 330}};
    Etiquette         Compteur {*this, {L"Compteur", 3000, 2160, 2400, 330, L"0"}};
    Jauge_progression Jauge    {*this, {L"Jauge",     240, 2640, 5400, 330}};
    Bouton_commande   Inactif  {*this, {L"Inactif",   240, 3600, 1560, 360, L"&Inactif"}};
    Bouton_commande   OK       {*this, {L"OK",       2100, 3600, 1560, 360, L"OK"}};
    Bouton_commande   Annuler  {*this, {L"Annuler",  3960, 3600, 1560, 360, L"Annuler"}};
    // clang-format on
    Minuterie Horloge;
    int       coups = 0;

    void Fermer(const wchar_t * comment) {
        Hide();
        Noter(comment);
    }
};

void Brancher_controles(Vitrine & v) {
    const auto noter_etat = [](const std::wstring & nom, bool etat) {
        Noter(nom + (etat ? L" oui" : L" non"));
    };
    v.Case.Click = [&v, noter_etat] { noter_etat(L"case", v.Case.Value()); };
    for (Bouton_option * option : {&v.Option0, &v.Option1, &v.Option2, &v.Autre0, &v.Autre1}) {
        option->Click = [option, noter_etat] { noter_etat(option->Nom(), option->Value()); };
    }
    v.Barre.Bornes(0, 15);
    v.Barre.Change = [&v] {
        Noter(L"barre " + std::to_wstring(v.Barre.Value()));
        v.Jauge.Value(v.Barre.Value() * 100.0 / 15);
        v.Jauge.Caption(std::to_wstring(v.Barre.Value()));
    };
    v.Barre.Scroll    = [] { Noter(L"defilement"); };
    v.Champ.Change    = [&v] { Noter(L"champ " + v.Champ.Text()); };
    v.Champ.GotFocus  = [] { Noter(L"champ entre"); };
    v.Champ.LostFocus = [] { Noter(L"champ sort"); };
    v.Horloge.Interval(100);
    v.Horloge.Timer = [&v] {
        v.Compteur.Caption(std::to_wstring(++v.coups));
        if (v.coups == 5) v.Horloge.Enabled(false);
    };
    v.OK.Brancher([&v] { v.Fermer(L"ok"); });
    v.Annuler.Brancher([&v] { v.Fermer(L"annuler"); });
    v.Defaut(v.OK);
    v.Annulation(v.Annuler);
}

void Montrer_controles(Gestion_Fichiers & f) {
    Vitrine v;
    Brancher_controles(v);
    v.Move(f.Left() + 1500, f.Top() + 1500);
    v.Horloge.Enabled(true);
    v.Show_modal(f);
}

int Poser_question() {
    return Choix_bouton(arguments[L"message"], arguments[L"bouton1"], arguments[L"bouton2"],
                        arguments[L"bouton3"], arguments[L"icone"], arguments[L"titre"],
                        static_cast<int>(Valeur(arguments[L"defaut"])));
}

void Brancher_boutons(Gestion_Fichiers & f) {
    f.Copier.Brancher([] { Noter(L"choix " + std::to_wstring(Poser_question())); });
    f.Déplacer.Brancher([] {
        const std::wstring lu =
            Demander_texte(arguments[L"invite"], arguments[L"titre"], arguments[L"saisie"]);
        Noter(L"saisie [" + lu + L"]");
    });
    f.Renommer.Brancher([] {
        Noter(L"fichier [" + Choisir_fichier(arguments[L"titre"], arguments[L"filtre"]) + L"]");
        wchar_t repertoire[1024];
        if (GetCurrentDirectoryW(1024, repertoire)) Noter(std::wstring(L"repertoire ") + repertoire);
    });
    f.Info.Brancher([&f] { Montrer_controles(f); });
    f.QueryUnload = [](bool &, Fermeture) {};
}

void Lire_arguments() {
    int        nombre = 0;
    wchar_t ** liste  = CommandLineToArgvW(GetCommandLineW(), &nombre);
    for (int i = 1; i < nombre; ++i) {
        const std::wstring argument = liste[i];
        const std::size_t  egal     = argument.find(L'=');
        if (egal != std::wstring::npos) arguments[argument.substr(0, egal)] = argument.substr(egal + 1);
    }
    LocalFree(liste);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    SetProcessDPIAware();
    Application::Initialiser();
    Lire_arguments();
    Lire_bordure();
    Gestion_Fichiers principale;
    Dialogue         dialogue;
    fenetres.principale = &principale;
    fenetres.dialogue   = &dialogue;
    Brancher_dialogue(dialogue);
    Brancher_boutons(principale);
    principale.Move(1500, 1500);
    principale.Show();
    return Application::Boucler();
}
