#include "fileops/resume.h"

#include <gtest/gtest.h>

TEST(Resume, un_repertoire_vide_le_dit) {
    EXPECT_EQ(Resume_repertoire(L"c:\\vide", 0, L"0"),
              L"Le répertoire c:\\vide\rne contient pas de fichier.");
}

TEST(Resume, un_fichier_est_au_singulier) {
    EXPECT_EQ(Resume_repertoire(L"c:\\", 1, L"0"),
              L"Le répertoire c:\\\rcontient 1 fichier\rtotalisant  0 octets.");
}

TEST(Resume, plusieurs_fichiers_sont_au_pluriel_et_leur_total_est_donne_tel_quel) {
    EXPECT_EQ(Resume_repertoire(L"C:\\DOCS", 2, L"3,345"),
              L"Le répertoire C:\\DOCS\rcontient 2 fichiers\rtotalisant  3,345 octets.");
    EXPECT_EQ(Resume_repertoire(L"C:\\DOCS", 100000, L"6 000 000 246"),
              L"Le répertoire C:\\DOCS\rcontient 100000 fichiers\rtotalisant  6 000 000 246 octets.");
}
