#include "platform/fichiers.h"
#include "services/banc.h"

namespace {

class Identite : public Banc {};

void Meme_date(const std::wstring & de, const std::wstring & a) {
    WIN32_FILE_ATTRIBUTE_DATA lues;
    GetFileAttributesExW(de.c_str(), GetFileExInfoStandard, &lues);
    const HANDLE h = CreateFileW(a.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    SetFileTime(h, nullptr, nullptr, &lues.ftLastWriteTime);
    CloseHandle(h);
}

// Another route to a directory, through another drive letter: one made for the occasion, or that of the whole disk on systems
// that have one.
struct Autre_route {
    explicit Autre_route(const std::wstring & repertoire) {
        using Nom_du_disque = char *(CDECL *)(const wchar_t *);
        const auto lire     = reinterpret_cast<Nom_du_disque>(reinterpret_cast<void *>(
            GetProcAddress(GetModuleHandleW(L"kernel32"), "wine_get_unix_file_name")));
        if (lire != nullptr) {
            chemin = L"z:";
            for (const char * c = lire(repertoire.c_str()); *c != '\0'; ++c)
                chemin += *c == '/' ? L'\\' : static_cast<wchar_t>(*c);
        } else {
            EXPECT_TRUE(DefineDosDeviceW(0, L"S:", repertoire.c_str())) << GetLastError();
            chemin = L"s:";
        }
    }
    ~Autre_route() {
        if (chemin == L"s:") DefineDosDeviceW(DDD_REMOVE_DEFINITION, L"S:", nullptr);
    }
    std::wstring chemin;
};

TEST_F(Identite, une_autre_orthographe_est_le_meme_fichier) {
    const std::wstring fichier = Fichier(L"Note.txt");
    EXPECT_TRUE(Meme_fichier(fichier, fichier));
    EXPECT_TRUE(Meme_fichier(fichier, Chemin(L"NOTE.TXT")));
    EXPECT_TRUE(Meme_fichier(fichier, Chemin(L".\\note.txt")));
}

TEST_F(Identite, un_fichier_en_lecture_seule_se_reconnait) {
    const std::wstring fichier = Fichier(L"Protege.txt");
    Regler_attributs(fichier, FILE_ATTRIBUTE_READONLY);
    EXPECT_TRUE(Meme_fichier(fichier, Chemin(L"PROTEGE.TXT")));
}

TEST_F(Identite, un_lien_dur_est_le_meme_fichier) {
    const std::wstring fichier = Fichier(L"un");
    ASSERT_TRUE(CreateHardLinkW(Chemin(L"deux").c_str(), fichier.c_str(), nullptr));
    EXPECT_TRUE(Meme_fichier(fichier, Chemin(L"deux")));
}

TEST_F(Identite, deux_fichiers_pareils_ne_sont_pas_le_meme) {
    const std::wstring un   = Fichier(L"un");
    const std::wstring deux = Fichier(L"deux");
    Meme_date(un, deux);
    EXPECT_FALSE(Meme_fichier(un, deux));
}

TEST_F(Identite, par_une_autre_unite_c_est_le_meme_fichier) {
    const std::wstring fichier = Fichier(L"un");
    const std::wstring protege = Fichier(L"protege");
    Fichier(L"autre");
    Regler_attributs(protege, FILE_ATTRIBUTE_READONLY);
    Repertoire(L"sous");
    const Autre_route  route(Racine());
    const std::wstring ailleurs = route.chemin + L"\\";
    ASSERT_TRUE(Fichier_existe(ailleurs + L"un"));
    EXPECT_TRUE(Meme_fichier(fichier, ailleurs + L"UN"));
    EXPECT_TRUE(Meme_fichier(ailleurs + L"protege", protege));
    EXPECT_FALSE(Meme_fichier(fichier, ailleurs + L"autre"));
    EXPECT_TRUE(Meme_repertoire(Racine(), ailleurs));
    EXPECT_TRUE(Meme_repertoire(Chemin(L"sous"), ailleurs + L"sous"));
    EXPECT_FALSE(Meme_repertoire(Racine(), ailleurs + L"sous"));
}

TEST_F(Identite, le_repertoire_courant_se_reconnait) {
    Repertoire(L"Courant");
    Repertoire(L"Autre");
    Changer_repertoire(Chemin(L"Courant"));
    EXPECT_TRUE(Meme_repertoire(Chemin(L"COURANT"), Chemin(L"Courant\\")));
    EXPECT_FALSE(Meme_repertoire(Chemin(L"Courant"), Chemin(L"Autre")));
}

TEST_F(Identite, un_fichier_tenu_ouvert_se_reconnait) {
    const std::wstring fichier = Fichier(L"tenu");
    const HANDLE       h =
        CreateFileW(fichier.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_TRUE(Meme_fichier(fichier, Chemin(L"TENU")));
    CloseHandle(h);
}

TEST_F(Identite, ce_qui_ne_s_ouvre_pas_n_est_pas_le_meme) {
    const std::wstring fichier = Fichier(L"un");
    EXPECT_FALSE(Meme_fichier(fichier, Chemin(L"absent")));
    EXPECT_FALSE(Meme_fichier(Chemin(L"absent"), Chemin(L"absent")));
    EXPECT_FALSE(Meme_fichier(Racine(), Racine()));
    EXPECT_FALSE(Meme_repertoire(fichier, fichier));
    EXPECT_FALSE(Meme_fichier(L"", L""));
}

TEST_F(Identite, la_sonde_laisse_le_fichier_libre) {
    const std::wstring fichier = Fichier(L"un");
    Meme_fichier(fichier, Chemin(L"UN"));
    EXPECT_TRUE(DeleteFileW(fichier.c_str()));
}

ESSAI_UNITE(D, deux_disques_ne_partagent_aucun_fichier) {
    const std::wstring ici = Fichier(L"jumeau");
    Poser(L"d:\\jumeau", "contenu");
    Meme_date(ici, L"d:\\jumeau");
    EXPECT_FALSE(Meme_fichier(ici, L"d:\\jumeau"));
    EXPECT_FALSE(Meme_repertoire(L"c:\\", L"d:\\"));
    DeleteFileW(L"d:\\jumeau");
}

}  // namespace
