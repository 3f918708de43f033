#pragma once

// Help texts of the main window; each begins with two blanks.
// clang-format off

// Help that opens with the context help; the "?" button shows it again.
inline constexpr const wchar_t * texte_introduction =
    L"  Vous avez activé l'aide du gestionnaire de fichiers en cliquant sur le point d'interrogation ou par appui sur la "
    L"touche F1, il suffit de cliquer à nouveau sur ce point d'interrogation ou appuyer sur la touche F1 pour arrêter "
    L"l'aide contextuelle. Les informations seront affichées en plaçant le pointeur de souris sur la liste, le champ ou le "
    L"bouton dont vous désirez être informé.";
inline constexpr const wchar_t * aide_titre_srce =
    L"  Le cadre 'SOURCE' montre les fichiers auxquels s'appliquent les commandes : choisissez "
    L"l'unité, le répertoire puis le(s) fichier(s).";
inline constexpr const wchar_t * aide_chemin_srce =
    L"  Ce champ indique le chemin complet du répertoire 'SOURCE'. Vous pouvez y saisir un autre "
    L"chemin ou seulement le nom d'un répertoire, qui sera alors recherché sur tout le disque ; "
    L"validez par la touche Entrée.";
inline constexpr const wchar_t * aide_unité_srce =
    L"  Cette liste permet de choisir l'unité 'SOURCE' : disquette, disque ou unité de réseau. "
    L"Appuyez sur la touche Entrée pour relire l'unité affichée.";
inline constexpr const wchar_t * aide_sélection_fichiers =
    L"  Ce champ limite les deux listes aux fichiers dont le nom répond à un modèle : '*' remplace "
    L"une suite de caractères, '?' un seul. Séparez plusieurs modèles par ';'. La liste déroulante "
    L"propose vos sélections enregistrées.";
inline constexpr const wchar_t * aide_répertoire_srce =
    L"  Cette liste montre les répertoires depuis la racine de l'unité 'SOURCE' ; cliquez sur l'un "
    L"d'eux, ou appuyez sur la touche Entrée, pour l'ouvrir. Cliquez sur la racine après avoir "
    L"changé de disquette.";
inline constexpr const wchar_t * aide_fichier_srce =
    L"  Cette liste montre les fichiers du répertoire 'SOURCE'. Cliquez sur un fichier pour le "
    L"sélectionner ; avec la touche Ctrl, vous en ajoutez un, avec la touche Maj, vous étendez la "
    L"sélection. Un double clic ouvre le fichier, la touche Suppr l'efface.";
inline constexpr const wchar_t * aide_fichier_sél =
    L"  Cette liste montre les fichiers trouvés sur tout le disque et retenus pour la prochaine "
    L"commande. Le bouton 'Quitter' ramène à la liste du répertoire 'SOURCE'.";
inline constexpr const wchar_t * aide_copier =
    L"  Ce bouton permet de COPIER le(s) fichier(s) sélectionné(s) de 'SOURCE' dans le répertoire "
    L"'DESTINATION'. Si les deux répertoires sont identiques, un nouveau nom est demandé pour chaque "
    L"copie.";
inline constexpr const wchar_t * aide_créer =
    L"  Ce bouton permet de CREER un répertoire sous le répertoire 'SOURCE'.";
inline constexpr const wchar_t * aide_déplacer =
    L"  Ce bouton permet de DEPLACER le(s) fichier(s) sélectionné(s) de 'SOURCE' vers le répertoire "
    L"'DESTINATION' : ils n'existent plus ensuite que dans celui-ci.";
inline constexpr const wchar_t * aide_effacer =
    L"  Ce bouton permet d'EFFACER le(s) fichier(s) sélectionné(s) de 'SOURCE'. Tant que la "
    L"corbeille est utilisée, vous pouvez les récupérer ; sur une disquette, ils sont perdus.";
inline constexpr const wchar_t * aide_supprimer =
    L"  Ce bouton permet de SUPPRIMER le répertoire 'SOURCE'. Il ne doit plus contenir de "
    L"sous-répertoire.";
inline constexpr const wchar_t * aide_renommer =
    L"  Ce bouton permet de RENOMMER le(s) fichier(s) sélectionné(s) de 'SOURCE' ou, en mode "
    L"répertoire, le répertoire 'SOURCE' lui-même.";
inline constexpr const wchar_t * aide_editer =
    L"  Ce bouton permet de modifier le(s) fichier(s) sélectionné(s) avec l'éditeur choisi dans les "
    L"options.";
inline constexpr const wchar_t * aide_visualiser =
    L"  Ce bouton permet de consulter le(s) fichier(s) sélectionné(s) avec le visualiseur choisi "
    L"dans les options.";
inline constexpr const wchar_t * aide_exécuter =
    L"  Ce bouton permet de lancer le programme sélectionné (extension COM, EXE, BAT ou PIF) après "
    L"saisie de ses paramètres éventuels.";
inline constexpr const wchar_t * aide_imprimer =
    L"  Ce bouton permet d'imprimer le(s) fichier(s) texte sélectionné(s) sur l'imprimante par "
    L"défaut.";
inline constexpr const wchar_t * aide_info =
    L"  Ce bouton permet de connaître et de modifier les informations du(des) fichier(s) "
    L"sélectionné(s) : taille, date, heure et attributs. Sans sélection, il totalise les fichiers du "
    L"répertoire 'SOURCE', quel que soit leur modèle, sans les fichiers cachés ou du système que les listes ne "
    L"montrent pas.";
inline constexpr const wchar_t * aide_chercher =
    L"  Ce bouton permet de rechercher des fichiers sur tout le disque 'SOURCE' pour leur appliquer "
    L"ensuite une commande.";
inline constexpr const wchar_t * aide_sélecte =
    L"  Ce bouton permet de sélectionner tous les fichiers de la liste 'SOURCE' ; un nouvel appui, "
    L"ou un clic dans la liste, revient à la sélection d'un fichier.";
inline constexpr const wchar_t * aide_mode =
    L"  Ce bouton permet de passer du mode fichier au mode répertoire et inversement. En mode "
    L"répertoire, vous pouvez créer, supprimer ou renommer un répertoire.";
inline constexpr const wchar_t * aide_titre_dest =
    L"  Le cadre 'DESTINATION' montre le répertoire qui reçoit les fichiers copiés ou déplacés.";
inline constexpr const wchar_t * aide_croiser =
    L"  Ce bouton permute les deux cadres : le répertoire 'SOURCE' devient 'DESTINATION' et "
    L"inversement.";
inline constexpr const wchar_t * aide_chemin_dest =
    L"  Ce champ indique le chemin complet du répertoire 'DESTINATION'. Vous pouvez y saisir un "
    L"autre chemin ou seulement le nom d'un répertoire, qui sera alors recherché sur tout le disque "
    L"; validez par la touche Entrée.";
inline constexpr const wchar_t * aide_unité_dest =
    L"  Cette liste permet de choisir l'unité 'DESTINATION' : disquette, disque ou unité de réseau. "
    L"Appuyez sur la touche Entrée pour relire l'unité affichée.";
inline constexpr const wchar_t * aide_espace_libre =
    L"  Ce nombre indique en temps réel la place restante (en Kilo-octets) sur l'unité "
    L"destinataire.Ceci permet de savoir, en le comparant avec le total affiché pour le(s) "
    L"fichier(s) sélectionné(s), si la copie du(des) fichier(s) sera acceptée.";
inline constexpr const wchar_t * aide_répertoire_dest =
    L"  Cette liste montre les répertoires depuis la racine de l'unité 'DESTINATION' ; cliquez sur "
    L"l'un d'eux, ou appuyez sur la touche Entrée, pour l'ouvrir. Cliquez sur la racine après avoir "
    L"changé de disquette.";
inline constexpr const wchar_t * aide_fichier_dest =
    L"  Cette liste montre les fichiers du répertoire 'DESTINATION' ; elle sert uniquement de "
    L"contrôle visuel.";
inline constexpr const wchar_t * aide_prompt =
    L"  Ce champ ouvre la ligne de commande : saisissez une commande, elle sera lancée dans le "
    L"répertoire 'SOURCE'.";
inline constexpr const wchar_t * aide_ligne_commande =
    L"  Cette ligne permet de saisir une commande, lancée par la touche Entrée dans le répertoire "
    L"'SOURCE'. La liste déroulante garde les 30 dernières.";
inline constexpr const wchar_t * aide_ligne_message =
    L"  Cette ligne indique le nombre de fichiers sélectionnés dans la liste 'SOURCE' et le total de "
    L"leurs tailles en octets.";
inline constexpr const wchar_t * aide_jauge =
    L"  Cette jauge indique la part du fichier déjà traitée.";
inline constexpr const wchar_t * aide_arret =
    L"  Ce bouton arrête la commande en cours après le fichier ou le bloc commencé.";
inline constexpr const wchar_t * aide_bouton =
    L"  Ces boutons exécutent les commandes indiquées sur ceux-ci avec une demande préalable de "
    L"confirmation si elle est paramètrée dans les options.";
inline constexpr const wchar_t * aide_bouton_suite =
    L"  Ce bouton affiche les sept boutons programmés suivants ; après les derniers, il revient aux "
    L"premiers.";
inline constexpr const wchar_t * aide_corbeille =
    L"  Ce bouton ouvre la corbeille pour récupérer des fichiers effacés ou en changer les limites.";
inline constexpr const wchar_t * aide_configurer =
    L"  Ce bouton permet de programmer les boutons, d'enregistrer des sélections et d'associer des "
    L"programmes aux extensions de fichiers.";
inline constexpr const wchar_t * aide_options =
    L"  Ce bouton permet de choisir l'éditeur, le visualiseur, les confirmations, le répertoire de "
    L"départ et la couleur des cadres.";
inline constexpr const wchar_t * aide_a_propos =
    L"  Ce bouton affiche le nom et la version du gestionnaire de fichiers.";
inline constexpr const wchar_t * aide_quitter =
    L"  Ce bouton termine le gestionnaire de fichiers après confirmation ou, après une recherche, "
    L"revient à la liste du répertoire 'SOURCE'.";

inline constexpr const wchar_t * aide_fenetre_principale =
    L"  La fenêtre de KORVANE montre deux cadres : 'SOURCE', où vous choisissez les fichiers, et 'DESTINATION', qui reçoit "
    L"les copies. Placez le pointeur de souris sur une liste, un champ ou un bouton pour en connaître l'usage.";

// clang-format on
