#include "coupures/actes.h"
#include "coupures/interception.h"
#include "services/banc.h"
#include "services/scene.h"

#include <algorithm>
#include <cstdio>
#include <ostream>
#include <stdexcept>

using namespace Interception;

namespace {

constexpr std::uint32_t archive = FILE_ATTRIBUTE_ARCHIVE;
constexpr std::uint32_t systeme = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_SYSTEM;
constexpr std::uint32_t cache   = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN;

constexpr unsigned morts_voulues = 500;

struct Cas {
    const char *    nom;
    const wchar_t * acte;
    void (*monter)(Scene &);
    bool (*acheve)(const Scene &);  // what is true when the act raised no error
    bool (*entier)(const Scene &);  // when nothing was in its way; null for `acheve`
};

void PrintTo(const Cas & cas, std::ostream * sortie) { *sortie << cas.nom; }

std::wstring Repertoire_de(const std::wstring & nom) { return nom.substr(0, nom.rfind(L'\\') + 1); }

bool Absent(const Scene & scene, const std::wstring & nom) { return !Present(scene.Racine() + L"\\" + nom); }

// --- what each act finds ---

void Monter_deux_repertoires(Scene & scene) {
    scene.Poser(L"un\\RAPPORT.DOC", 1200);
    scene.Poser(L"un\\nom avec blancs.txt", 33, cache);
    scene.Poser(L"un\\systeme.dat", 5000, systeme);
    scene.Poser(L"un\\vide", 0);
    scene.Poser(L"deux\\RAPPORT.DOC", 700);
    scene.Poser(L"deux\\Ωμέγα 文件.txt", 90);
    scene.Poser(L"deux\\reste.txt", 10);
}

void Monter_effacement(Scene & scene) {
    scene.Ligne("ceci n'est pas une fiche\r\n", true);
    scene.Ranger(L"un\\ancien.txt", 400, Coupures::aujourdhui - 3);
    scene.Ligne("\r\n", true);
    scene.Ranger(L"deux\\ancien.txt", 40, Coupures::aujourdhui, systeme);
    scene.Ligne("crb et puis rien\r\n", true);
    Monter_deux_repertoires(scene);
}

void Monter_seance(Scene & scene) {
    scene.Ranger(L"un\\ancien.txt", 400, Coupures::aujourdhui - 3).sort = Scene::Sort::perissable;
    scene.Ligne("ceci n'est pas une fiche\r\n", true);
    scene.Ranger(L"deux\\ancien.txt", 40, Coupures::aujourdhui, systeme);
    Monter_deux_repertoires(scene);
}

bool Seance_finie(const Scene & scene) {
    return Absent(scene, L"un\\RAPPORT.DOC") && Absent(scene, L"deux\\RAPPORT.DOC") &&
           !Absent(scene, L"un\\systeme.dat");
}

bool Efface(const Scene & scene) {
    return std::ranges::all_of(scene.Fichiers(), [&](const Scene::Fichier & f) {
        return f.nom == L"deux\\reste.txt" || Absent(scene, f.nom);
    });
}

void Monter_ailleurs(Scene & scene) {
    scene.Index_dans({L"absent\\absent", L"index\\KORVANE"});
    scene.Sans_index();
    scene.Poser(L"un\\RAPPORT.DOC", 1200);
    scene.Poser(L"deux\\RAPPORT.DOC", 700, cache);
}

void Monter_corbeille(Scene & scene, std::size_t perissables) {
    const wchar_t * noms[] = {L"un\\a.txt", L"deux\\a.txt", L"un\\b c.txt", L"deux\\b.dat", L"un\\z.txt"};
    scene.Ligne("premiere ligne, pas une fiche\r\n", true);
    for (std::size_t i = 0; i < std::size(noms); ++i) {
        Scene::Fichier & fichier = scene.Ranger(noms[i], 1500 + i, Coupures::aujourdhui - (i < 3 ? 11 : 10),
                                                i == 1 ? systeme : archive);
        if (i < perissables) fichier.sort = Scene::Sort::perissable;
        if (i == 1) scene.Ligne("au milieu : c:\\rien\r\n", true);
    }
    scene.Poser(L"un\\voisin.txt", 20);
}

// 7,510 bytes against 4 KB: three files go.
void Monter_purge(Scene & scene) { Monter_corbeille(scene, 3); }
void Monter_restauration(Scene & scene) { Monter_corbeille(scene, 0); }
void Monter_destruction(Scene & scene) {
    for (const wchar_t * nom : {L"un\\a.txt", L"deux\\b.txt", L"un\\c.txt"}) {
        scene.Ranger(nom, 300, Coupures::aujourdhui).sort = Scene::Sort::perissable;
    }
    scene.Poser(L"un\\voisin.txt", 20);
}

// What cannot be destroyed or removed stays, without a word; with nothing in the way, it goes.
bool Sans_un_mot(const Scene &) { return true; }
bool Purge_faite(const Scene & scene) {
    const std::string index = Contenu(scene.Racine() + L"\\index\\KORVANE.CRB");
    return std::ranges::all_of(scene.Fichiers(), [&](const Scene::Fichier & f) {
        const std::string code(f.code.begin(), f.code.end());
        const bool        reste = f.sort == Scene::Sort::garder && !f.code.empty();
        return f.code.empty() || (Absent(scene, Repertoire_de(f.nom) + f.code) != reste &&
                                  (index.find(code) != std::string::npos) == reste);
    });
}
bool Reecriture_otee(const Scene & scene) {
    return Absent(scene, L"index\\KORVANE.NEW") &&
           Contenu(scene.Racine() + L"\\index\\KORVANE.CRB").find("crb45000.777") == std::string::npos;
}
bool Restaure(const Scene & scene) {
    return !Absent(scene, L"un\\a.txt") && !Absent(scene, L"un\\b c.txt") && !Absent(scene, L"deux\\b.dat");
}
bool Detruit(const Scene & scene) {
    return Absent(scene, L"index\\KORVANE.CRB") && Absent(scene, L"un\\crb45000.001");
}

// A rewriting that was cut, and a record that was torn.
void Monter_reecriture_inachevee(Scene & scene) {
    Monter_corbeille(scene, 0);
    const std::string complet = scene.Lignes();
    scene.Index_est(L"index\\KORVANE.NEW", complet.substr(0, complet.size() / 2));
    scene.Ligne("crb45000.777 00001", false);
}

// The index was being replaced when it went: the new one is complete.
void Monter_index_parti(Scene & scene) {
    Monter_corbeille(scene, 0);
    scene.Index_est(L"index\\KORVANE.NEW", scene.Lignes());
    scene.Sans_index();
}

// The last record is whole but for its line end.
void Monter_fin_de_ligne_absente(Scene & scene) {
    Monter_corbeille(scene, 0);
    const std::string complet = scene.Lignes();
    scene.Index_est(L"index\\KORVANE.CRB", complet.substr(0, complet.size() - 2));
    scene.Sans_index();
}

void Monter_renommage(Scene & scene) {
    scene.Poser(L"un\\RAPPORT.DOC", 1200).autre      = L"un\\Rapport final.doc";
    scene.Poser(L"un\\systeme.dat", 50, cache).autre = L"un\\autre.dat";
    scene.Poser(L"deux\\RAPPORT.DOC", 700).autre     = L"deux\\rapport.doc";
    scene.Poser(L"un\\reste.txt", 10);
}
bool Renomme(const Scene & scene) {
    return !Absent(scene, L"un\\Rapport final.doc") && !Absent(scene, L"un\\autre.dat");
}

void Monter_repertoire(Scene & scene) {
    scene.Poser(L"un\\RAPPORT.DOC", 1200).autre    = L"trois\\RAPPORT.DOC";
    scene.Poser(L"un\\cache.txt", 50, cache).autre = L"trois\\cache.txt";
    scene.Poser(L"deux\\reste.txt", 10);
    scene.Ranger(L"un\\premier.txt", 400, Coupures::aujourdhui - 3).autre = L"trois\\premier.txt";
    scene.Ligne("ceci n'est pas une fiche\r\n", true);
    scene.Ranger(L"deux\\ancien.txt", 40, Coupures::aujourdhui - 2, systeme);
    scene.Ranger(L"un\\dernier.txt", 0, Coupures::aujourdhui, cache).autre = L"trois\\dernier.txt";
}
bool Repertoire_renomme(const Scene & scene) {
    return Absent(scene, L"un") && !Absent(scene, L"trois\\RAPPORT.DOC");
}

void Monter_suppression(Scene & scene) {
    for (const wchar_t * nom : {L"deux\\a.txt", L"deux\\b.txt", L"deux\\c.txt"}) {
        scene.Poser(nom, 300).sort = Scene::Sort::perissable;
    }
    scene.Poser(L"un\\voisin.txt", 20);
    scene.Ranger(L"un\\ancien.txt", 400, Coupures::aujourdhui);
}
bool Supprime(const Scene & scene) { return Absent(scene, L"deux"); }

bool Ouvert(const Scene & scene) { return Absent(scene, L"index\\KORVANE.NEW"); }

const Cas cas_connus[] = {
    {"effacer", L"effacer", Monter_effacement, Efface, nullptr},
    {"effacer_ailleurs", L"effacer_ailleurs", Monter_ailleurs, Efface, nullptr},
    {"purger_par_temps", L"purger_par_temps", Monter_purge, Sans_un_mot, Purge_faite},
    {"purger_par_taille", L"purger_par_taille", Monter_purge, Sans_un_mot, Purge_faite},
    {"restaurer", L"restaurer", Monter_restauration, Restaure, nullptr},
    {"seance", L"seance", Monter_seance, Seance_finie, nullptr},
    {"detruire", L"detruire", Monter_destruction, Detruit, nullptr},
    {"ouvrir_reecriture", L"ouvrir", Monter_reecriture_inachevee, Sans_un_mot, Reecriture_otee},
    {"ouvrir_index_parti", L"ouvrir", Monter_index_parti, Ouvert, nullptr},
    {"ouvrir_fin_absente", L"ouvrir", Monter_fin_de_ligne_absente, Ouvert, nullptr},
    {"renommer", L"renommer", Monter_renommage, Renomme, nullptr},
    {"renommer_repertoire", L"renommer_repertoire", Monter_repertoire, Repertoire_renomme, nullptr},
    {"supprimer", L"supprimer", Monter_suppression, Supprime, nullptr}};

// --- running ---

std::wstring Repertoire_du_programme() {
    wchar_t chemin[32768];
    GetModuleFileNameW(nullptr, chemin, 32768);
    return std::wstring(chemin).substr(0, std::wstring_view(chemin).rfind(L'\\'));
}

// The exit code of the program that cuts itself.
DWORD Lancer_coupeur(const Cas & cas, const std::wstring & racine, const wchar_t * mode, unsigned rang) {
    const std::wstring programme = Repertoire_du_programme() + L"\\coupeur.exe";
    std::wstring ligne = L"\"" + programme + L"\" " + cas.acte + L" \"" + racine + L"\" " + mode + L" " +
                         std::to_wstring(rang);
    STARTUPINFOW depart{};
    depart.cb = sizeof depart;
    PROCESS_INFORMATION processus{};
    // A start is now and then refused under Wine, and succeeds the next time.
    for (int essai = 0; !CreateProcessW(programme.c_str(), ligne.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                        nullptr, &depart, &processus);
         ++essai) {
        if (essai == 3) throw std::runtime_error("coupeur.exe " + std::to_string(GetLastError()));
        Sleep(50);
    }
    DWORD code = WAIT_TIMEOUT;
    WaitForSingleObject(processus.hProcess, 30000);
    GetExitCodeProcess(processus.hProcess, &code);
    CloseHandle(processus.hThread);
    CloseHandle(processus.hProcess);
    return code;
}

const wchar_t * Mode(Effet effet) {
    if (effet == Effet::mourir_avant) return L"avant";
    return effet == Effet::mourir_pendant ? L"pendant" : L"apres";
}

std::string Texte(const std::vector<std::string> & defauts) {
    std::string texte;
    for (const std::string & defaut : defauts) texte += "\n  " + defaut;
    return texte;
}

// Under orders that ask nothing: what the new start flushes is not waited for.
std::vector<std::string> Redemarrer(const Scene & scene) {
    std::vector<std::string> defauts;
    Jouer({}, Fin::fil, [&] { defauts = scene.Redemarrer(); });
    return defauts;
}

// What an act did under an order, here in this process.
struct Essai {
    Constat constat;
    int     erreur = 0;  // number raised, 0 for none
};

Essai Essayer(const Cas & cas, const std::wstring & racine, const Consigne & consigne, Fin fin = Fin::fil) {
    Essai essai;
    essai.constat = Jouer(consigne, fin, [&] {
        essai.erreur = Numero_leve([&] { Coupures::Trouver_acte(cas.acte).faire(racine); });
    });
    return essai;
}

}  // namespace

class Coupures_corbeille : public Banc, public testing::WithParamInterface<Cas> {
protected:
    Coupures_corbeille() : scene(Racine()) { GetParam().monter(scene); }

    static void TearDownTestSuite() {
        const std::string & filtre = testing::GTEST_FLAG(filter);
        const bool          tous   = filtre == "*" || filtre == "Actes/Coupures*";
        EXPECT_TRUE(!tous || morts_ >= morts_voulues) << morts_;
        std::printf("coupures : %u runs, %u losses (processus tués %u, courant coupé %u, fautes %u)\n",
                    morts_ + courants_ + fautes_, pertes_, morts_, courants_, fautes_);
    }

    // The number of calls that the act makes when nothing goes wrong, and their names.
    Constat Compter(bool lectures) {
        scene.Installer();
        const Essai essai = Essayer(GetParam(), Racine(), {Effet::compter, 0, 0, lectures});
        EXPECT_EQ(0, essai.erreur);
        EXPECT_TRUE((GetParam().entier != nullptr ? GetParam().entier : GetParam().acheve)(scene));
        EXPECT_EQ("", Texte(Redemarrer(scene)));
        return essai.constat;
    }
    void Comparer(const std::string & quoi) {
        const std::vector<std::string> defauts = Redemarrer(scene);
        EXPECT_TRUE(defauts.empty()) << quoi << Texte(defauts);
        pertes_ += !defauts.empty();
    }

    Scene scene;

    static inline unsigned morts_ = 0, courants_ = 0, fautes_ = 0, pertes_ = 0;
};

// The ways to die at a call: half of a write is a state of its own.
std::vector<Effet> Morts_de(const std::string & appel) {
    if (appel == "WriteFile") return {Effet::mourir_avant, Effet::mourir_pendant, Effet::mourir_apres};
    return {Effet::mourir_avant, Effet::mourir_apres};
}

TEST_P(Coupures_corbeille, tue_a_chaque_appel_le_processus_ne_perd_rien) {
    const Constat entier = Compter(false);
    for (unsigned rang = 1; rang <= entier.appels; ++rang) {
        for (const Effet effet : Morts_de(entier.noms[rang - 1])) {
            scene.Installer();
            ASSERT_EQ(77u, Lancer_coupeur(GetParam(), Racine(), Mode(effet), rang)) << rang;
            Comparer(entier.noms[rang - 1] + ", mort à l'appel " + std::to_string(rang));
            ++morts_;
        }
    }
    scene.Installer();
    EXPECT_EQ(0u, Lancer_coupeur(GetParam(), Racine(), L"avant", entier.appels + 1));
}

TEST_P(Coupures_corbeille, le_courant_coupe_a_chaque_appel_ne_perd_rien) {
    const Constat entier = Compter(false);
    for (unsigned rang = 1; rang <= entier.appels; ++rang) {
        for (const Effet effet : Morts_de(entier.noms[rang - 1])) {
            bool en_suspens = true;
            for (const Fin fin : {Fin::courant, Fin::courant_zeros}) {
                if (!en_suspens) break;
                scene.Installer();
                const Essai essai = Essayer(GetParam(), Racine(), {effet, rang}, fin);
                ASSERT_TRUE(essai.constat.mort) << rang;
                en_suspens = essai.constat.en_suspens;
                Comparer(entier.noms[rang - 1] + ", coupure à l'appel " + std::to_string(rang) +
                         (fin == Fin::courant ? "" : ", zéros"));
                ++courants_;
            }
        }
    }
}

// The next start is cut as well, at each of its own calls.
TEST_P(Coupures_corbeille, le_courant_coupe_encore_au_depart_suivant_ne_perd_rien) {
    static const Cas   depart = {"depart", L"ouvrir", nullptr, nullptr, nullptr};
    const Constat      entier = Compter(false);
    const std::wstring acte   = GetParam().acte;
    if (acte == depart.acte || acte == L"effacer_ailleurs") return;  // starts of their own
    for (unsigned rang = 1; rang <= entier.appels; rang += 2) {
        for (unsigned suivant = 1;; ++suivant) {
            scene.Installer();
            Essayer(GetParam(), Racine(), {Effet::mourir_pendant, rang}, Fin::courant);
            const Essai essai = Essayer(depart, Racine(), {Effet::mourir_pendant, suivant}, Fin::courant);
            if (!essai.constat.mort) break;
            Comparer(entier.noms[rang - 1] + ", coupures aux appels " + std::to_string(rang) + " et " +
                     std::to_string(suivant));
            ++courants_;
        }
    }
}

// A call that fails alone, or with all that follow it; a disk that is full answers some writes with success.
struct Faute {
    Effet effet;
    DWORD code;
};

std::vector<Faute> Fautes_de(const std::string & appel) {
    static const std::vector<std::string> prennent_place = {"CreateFileW", "WriteFile", "FlushFileBuffers",
                                                            "SetEndOfFile", "CreateDirectoryW"};
    static const std::vector<std::string> modifient      = {"MoveFileExW", "RemoveDirectoryW", "DeleteFileW",
                                                            "SetFileAttributesW"};
    const auto parmi = [&appel](const auto & noms) { return std::ranges::find(noms, appel) != noms.end(); };
    if (appel == "CloseHandle" || appel == "FindClose") return {};
    std::vector<Faute> fautes = {{Effet::echouer, ERROR_ACCESS_DENIED}};
    if (parmi(prennent_place) || parmi(modifient)) {
        fautes.push_back({Effet::echouer, ERROR_DISK_FULL});
        fautes.push_back({Effet::echouer_ensuite, ERROR_ACCESS_DENIED});
    }
    if (parmi(prennent_place)) {
        fautes.push_back({Effet::echouer, ERROR_WRITE_FAULT});
        fautes.push_back({Effet::echouer_ensuite, ERROR_DISK_FULL});
    }
    if (appel == "WriteFile") fautes.push_back({Effet::ecrire_court, ERROR_DISK_FULL});
    return fautes;
}

TEST_P(Coupures_corbeille, une_faute_a_chaque_appel_est_dite_et_ne_perd_rien) {
    const Constat entier = Compter(true);
    for (unsigned rang = 1; rang <= entier.appels; ++rang) {
        for (const auto & [effet, code] : Fautes_de(entier.noms[rang - 1])) {
            scene.Installer();
            const Essai       essai = Essayer(GetParam(), Racine(), {effet, rang, code, true});
            const std::string quoi  = entier.noms[rang - 1] + ", appel " + std::to_string(rang) + ", code " +
                                     std::to_string(code) + (effet == Effet::echouer ? "" : ", ensuite") +
                                     ", erreur " + std::to_string(essai.erreur);
            ASSERT_TRUE(essai.constat.atteint) << quoi;
            if (essai.erreur == 0) {
                EXPECT_TRUE(GetParam().acheve(scene)) << quoi << " : inachevé sans un mot";
            }
            Comparer(quoi);
            ++fautes_;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Actes, Coupures_corbeille, testing::ValuesIn(cas_connus),
                         [](const testing::TestParamInfo<Cas> & parametre) {
                             return std::string(parametre.param.nom);
                         });
