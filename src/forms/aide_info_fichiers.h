#pragma once

// Help texts of the file information window; each begins with two blanks.
// clang-format off

inline constexpr const wchar_t * aide_infos_fichier =
    L"  Ces trois champs indiquent la taille du fichier, la date et l'heure de sa dernière modification.";
inline constexpr const wchar_t * aide_infos_taille =
    L"  Ce champ indique la taille du fichier en octets (un octet = un caractère), vous ne pouvez pas la modifier.";
inline constexpr const wchar_t * aide_infos_date =
    L"  Ce champ indique la date de la dernière modification du fichier, vous ne pouvez pas la modifier.";
inline constexpr const wchar_t * aide_infos_heure =
    L"  Ce champ indique l'heure de la dernière modification du fichier, vous ne pouvez pas la modifier.";
inline constexpr const wchar_t * aide_infos_attributs =
    L"  Ces quatre cases indiquent les attributs du fichier : cochez-les ou non pour les modifier, l'enregistrement vous sera "
    L"proposé avant de passer à un autre fichier ou de fermer la fenêtre.";
inline constexpr const wchar_t * aide_infos_caché =
    L"  Cette case indique, si elle est cochée, que le fichier ne sera pas visible dans les listes de fichiers (sauf si "
    L"l'option 'Lister les fichiers cachés' est validée).";
inline constexpr const wchar_t * aide_infos_lecture =
    L"  Cette case indique, si elle est cochée, que le fichier ne peut pas être modifié ou effacé, vous ne pouvez que le lire "
    L"ou l'exécuter.";
inline constexpr const wchar_t * aide_infos_modifié =
    L"  Cette case indique, si elle est cochée, que le fichier a été créé ou modifié après la dernière sauvegarde.";
inline constexpr const wchar_t * aide_infos_système =
    L"  Cette case indique, si elle est cochée, que le fichier est réservé au système.";
inline constexpr const wchar_t * aide_infos_précédent =
    L"  Ce bouton permet, lorsque plusieurs fichiers sont sélectionnés, de les consulter en remontant la liste. Arrivé au "
    L"premier fichier, vous passez au dernier et ainsi de suite.";
inline constexpr const wchar_t * aide_infos_suivant =
    L"  Ce bouton permet, lorsque plusieurs fichiers sont sélectionnés, de les consulter en descendant la liste. Arrivé au "
    L"dernier fichier, vous passez au premier et ainsi de suite.";
inline constexpr const wchar_t * aide_infos_fin =
    L"  Ce bouton ferme la fenêtre ; si vous avez modifié des attributs, leur enregistrement vous est d'abord proposé. La "
    L"touche Echap fait de même.";
inline constexpr const wchar_t * aide_fenetre_infos =
    L"  Cette fenêtre donne les informations sur le(s) fichier(s) sélectionné(s) : taille, date, heure et attributs. Seuls les "
    L"attributs peuvent être modifiés.";

// clang-format on
