#pragma once

// Help texts of the search results; each begins with two blanks.
// clang-format off

inline constexpr const wchar_t * aide_cherche_fichier =
    L"  Cette fenêtre vous permet de sélectionner le(s) fichier(s) recherché(s) sur le(la) disque(tte) 'SOURCE' pour "
    L"lui(leur) appliquer une commande. La première recherche sera plus longue que les suivantes pour mémoriser "
    L"l'arborescence du disque courant.";
inline constexpr const wchar_t * aide_recherche =
    L"  Cette ligne rappelle le modèle des fichiers recherchés.";
inline constexpr const wchar_t * aide_mess_infos =
    L"  Cette ligne indique le répertoire examiné pendant la lecture de l'arborescence du disque, puis le nombre de "
    L"fichiers trouvés.";
inline constexpr const wchar_t * aide_liste_sél =
    L"  Cette liste montre le chemin complet de chaque fichier trouvé. La recherche terminée, cliquez sur un fichier pour "
    L"le sélectionner ; avec la touche Ctrl, vous en ajoutez un, avec la touche Maj, vous étendez la sélection.";
inline constexpr const wchar_t * aide_recherche_ok =
    L"  Ce bouton permet de retenir le(s) fichier(s) sélectionné(s) : la fenêtre principale les montre dans le cadre "
    L"'SOURCE' et leur applique la prochaine commande.";
inline constexpr const wchar_t * aide_recherche_annule =
    L"  Ce bouton, comme la touche Echap, permet d'arrêter la recherche, ou de fermer la fenêtre sans rien retenir lorsqu'elle est terminée.";
