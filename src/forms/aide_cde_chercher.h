#pragma once

// Help texts of the search request; each begins with two blanks.
// clang-format off

inline constexpr const wchar_t * aide_cde_chercher =
    L"  Cette fenêtre vous permet d'indiquer le(s) fichier(s) à rechercher sur tout le disque 'SOURCE' et, si vous le "
    L"désirez, ceux qui ne doivent pas apparaître dans le résultat.";
inline constexpr const wchar_t * aide_cde_message =
    L"  Cette ligne rappelle l'unité sur laquelle portera la recherche : celle du cadre 'SOURCE'.";
inline constexpr const wchar_t * aide_fichiers_cherchés =
    L"  Ce champ permet de saisir le modèle ou le type de fichiers recherchés. Vous pouvez utiliser les caractères '*' "
    L"et '?' et omettre '*' s'il est seul devant le point ou omettre '.*' à la suite du nom de fichier. Exemples : "
    L"'.bat' est équivalent à '*.bat' ou '*.BAT',  'ms*' est équivalent à 'ms*.*'.\r"
    L"Pour rechercher des fichiers sans extension, saisissez par exemple '*.' ou plus simplement '.'";
inline constexpr const wchar_t * aide_fichiers_exclus =
    L"  Ce champ permet de saisir le modèle ou le type de fichiers qui ne doivent pas apparaître dans le résultat de la "
    L"recherche. Voir l'aide sur 'Chercher le(s) fichier(s)' pour l'utilisation des caractères génériques.";
inline constexpr const wchar_t * aide_cde_ok =
    L"  Ce bouton permet de commencer la recherche. Si le champ 'Chercher le(s) fichier(s)' est vide, la fenêtre se "
    L"ferme sans rien chercher.";
inline constexpr const wchar_t * aide_cde_annule =
    L"  Ce bouton permet de fermer la fenêtre sans rien chercher. Les modèles saisis seront proposés à nouveau la "
    L"prochaine fois.";
