#pragma once

// Help texts of the configuration editor; each begins with two blanks.
// clang-format off

inline constexpr const wchar_t * aide_conf_boutons =
    L"  Ce bouton permet d'afficher tous les 'Boutons' existants avec leurs paramètres dans la liste.";
inline constexpr const wchar_t * aide_conf_sélections =
    L"  Ce bouton permet d'afficher toutes les 'Sélections' existantes avec leurs paramètres dans la liste.";
inline constexpr const wchar_t * aide_conf_associer =
    L"  Ce bouton permet d'afficher toutes les 'Associations' existantes dans la liste.";
inline constexpr const wchar_t * aide_conf_liste =
    L"  Cette liste permet de visualiser les 'Boutons', 'Sélections' ou 'Associations' enregistrées. Lorsque vous sélectionnez "
    L"une ligne dans cette liste, celle-ci est automatiquement recopiée dans le champ de saisie afin de la modifier ou de "
    L"l'effacer.";
inline constexpr const wchar_t * aide_conf_ligne =
    L"  Ce champ permet de saisir une ligne de configuration pour l'enregistrer dans la liste ou de modifier une ligne qui "
    L"vient d'être sélectionnée dans la liste.";
inline constexpr const wchar_t * aide_conf_parcourir =
    L"  Ce bouton permet de composer la ligne pour ensuite l'enregistrer dans la liste.";
inline constexpr const wchar_t * aide_conf_enregistrer =
    L"  Ce bouton permet d'ENREGISTRER la ligne qui vient d'être saisie ou modifiée, celle-ci sera effective au prochain "
    L"lancement de KORVANE.";
inline constexpr const wchar_t * aide_conf_effacer =
    L"  Ce bouton permet d'EFFACER une ligne sélectionnée dans la liste des 'Boutons', 'Sélections' ou 'Associations' "
    L"enregistrées; ceci ne sera effectif qu'au prochain lancement de KORVANE.";
inline constexpr const wchar_t * aide_conf_fin =
    L"  Ce bouton ferme la fenêtre ; les lignes ont déjà été enregistrées ou effacées une à une. La touche Echap fait de même.";
inline constexpr const wchar_t * aide_fenetre_conf =
    L"  Cette fenêtre permet de programmer les boutons, d'enregistrer des sélections et d'associer des programmes aux "
    L"extensions de fichiers. Une ligne se compose d'un nom, qui ne commence ni par ';' ni par '[', du signe '=' et d'une "
    L"valeur : nom du bouton=programme ou fichier, nom de la sélection=paramètres, extension (1 à 3 caractères)=programme.";

// clang-format on
