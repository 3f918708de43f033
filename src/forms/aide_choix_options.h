#pragma once

// Help texts of the options window; each begins with two blanks.
// clang-format off

inline constexpr const wchar_t * aide_options_programmes =
    L"  Ces deux champs indiquent les programmes qui ouvrent vos fichiers. Si un programme n'est ni dans le répertoire de Windows "
    L"ni dans celui de KORVANE, indiquez son chemin complet.";
inline constexpr const wchar_t * aide_options_éditeur =
    L"  Ce champ indique le programme appelé par le bouton 'Éditer', ou par un double clic sur un fichier de la liste SOURCE qui "
    L"n'est pas un programme. S'il est vide, NOTEPAD.EXE est retenu.";
inline constexpr const wchar_t * aide_options_visualiseur =
    L"  Ce champ indique le programme appelé par le bouton 'Visualiser' ; il doit se trouver dans le répertoire de Windows ou dans "
    L"celui de KORVANE. S'il est vide, PELMIRA.EXE est retenu.";
inline constexpr const wchar_t * aide_options_commandes =
    L"  Ces cases règlent ce que KORVANE demande avant d'agir, son démarrage, son aide et ce que montrent les listes de fichiers.";
inline constexpr const wchar_t * aide_options_confirmation =
    L"  Si cette case est cochée, KORVANE demande une confirmation à l'appui de chaque bouton de commande. L'effacement en demande "
    L"toujours une.";
inline constexpr const wchar_t * aide_options_remplacement =
    L"  Si cette case est cochée, KORVANE demande une confirmation avant de copier sur un fichier qui existe dans DESTINATION. "
    L"Quand DESTINATION est aussi SOURCE, un nouveau nom est demandé.";
inline constexpr const wchar_t * aide_options_iconisé =
    L"  Si cette case est cochée, la fenêtre de KORVANE est réduite en icône à son démarrage.";
inline constexpr const wchar_t * aide_options_aide =
    L"  Si cette case est cochée, la touche F1 et le point d'interrogation ouvrent le fichier d'aide ; sinon ils montrent ou "
    L"cachent cette aide contextuelle.";
inline constexpr const wchar_t * aide_options_cachés =
    L"  Si cette case est cochée, les deux listes montrent aussi les fichiers qui ont l'attribut 'Caché'. Ce choix agit "
    L"immédiatement et jusqu'à la fin de KORVANE ; il n'est pas enregistré.";
inline constexpr const wchar_t * aide_options_répertoire =
    L"  Ce cadre indique le répertoire ouvert au démarrage dans les listes SOURCE et DESTINATION :\r\n"
    L"  - 'Racine du disque' : le premier répertoire du disque ;\r\n"
    L"  - 'Répertoire courant' : celui où KORVANE est lancé, en principe celui de Windows ;\r\n"
    L"  - 'Choisi' : celui dont vous saisissez le chemin.";
inline constexpr const wchar_t * aide_options_racine =
    L"  Les deux listes de répertoires s'ouvrent au démarrage sur la racine du disque.";
inline constexpr const wchar_t * aide_options_courant =
    L"  Les deux listes de répertoires s'ouvrent au démarrage sur le répertoire courant, en principe celui de Windows.";
inline constexpr const wchar_t * aide_options_choisi =
    L"  Les deux listes de répertoires s'ouvrent au démarrage sur le répertoire saisi dans le champ ci-dessous.";
inline constexpr const wchar_t * aide_options_répert_choisi =
    L"  Ce champ indique le chemin complet du répertoire ouvert au démarrage, par exemple D:\\TRAVAIL, quand 'Choisi' est coché. "
    L"S'il est vide, le répertoire courant est retenu.";
inline constexpr const wchar_t * aide_options_couleur =
    L"  La couleur des cadres de la fenêtre principale se choisit par la barre, de gris à l'extrême gauche à sept autres couleurs.";
inline constexpr const wchar_t * aide_options_choix_couleur =
    L"  Déplacez le curseur de cette barre pour choisir la couleur des cadres de la fenêtre principale : l'exemple la montre. Les "
    L"touches fléchées font de même.";
inline constexpr const wchar_t * aide_options_exemple =
    L"  Cet exemple montre un cadre de la fenêtre principale dans la couleur choisie par la barre.";
inline constexpr const wchar_t * aide_options_windows =
    L"  Ces quatre boutons donnent un accès direct au panneau de configuration de Windows.";
inline constexpr const wchar_t * aide_options_bureau =
    L"  Ce bouton ouvre les réglages du bureau de Windows.";
inline constexpr const wchar_t * aide_options_couleurs =
    L"  Ce bouton ouvre les réglages des couleurs de Windows.";
inline constexpr const wchar_t * aide_options_date_heure =
    L"  Ce bouton ouvre les réglages de la date et de l'heure de Windows.";
inline constexpr const wchar_t * aide_options_imprimantes =
    L"  Ce bouton ouvre les réglages des imprimantes de Windows.";
inline constexpr const wchar_t * aide_options_ok =
    L"  Ce bouton enregistre les options et ferme la fenêtre. La couleur, les programmes, les confirmations et l'aide s'appliquent "
    L"immédiatement ; le reste, au prochain démarrage.";
inline constexpr const wchar_t * aide_options_annule =
    L"  Ce bouton ferme la fenêtre sans enregistrer les options ; le choix de lister les fichiers cachés reste appliqué.";
inline constexpr const wchar_t * aide_fenetre_options =
    L"  La fenêtre des options règle le fonctionnement de KORVANE. Placez le pointeur sur un élément pour savoir à quoi il sert. "
    L"La touche Entrée enregistre, la touche Echap abandonne.";

// clang-format on
