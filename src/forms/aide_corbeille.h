#pragma once

// Help texts of the recycle bin's window; each begins with two blanks.
// clang-format off

inline constexpr const wchar_t * aide_fichier_effacé =
    L"  Cette liste montre les fichiers de la corbeille, du plus anciennement effacé au plus récent. Cliquez sur un fichier pour "
    L"le sélectionner ; avec la touche Ctrl, vous en ajoutez un, avec la touche Maj, vous étendez la sélection. Un double clic "
    L"sur un fichier équivaut à l'appui du bouton 'Récupérer'.";
inline constexpr const wchar_t * aide_récupérer =
    L"  Ce bouton permet de RECUPERER le(s) fichier(s) sélectionné(s) : chacun retrouve son nom dans le répertoire où il a été "
    L"effacé. La touche Entrée fait de même dans la liste.";
inline constexpr const wchar_t * aide_corbeille_limites =
    L"  La corbeille a une seule limite : sa taille ou la durée de conservation des fichiers. Sans limite, elle n'est pas "
    L"utilisée et les fichiers effacés sont perdus.";
inline constexpr const wchar_t * aide_corbeille_taille =
    L"  Ce champ indique la taille maximale de la corbeille (1 à 9999, exprimée en Kilo-octets de 1024 caractères) ; quand elle "
    L"est dépassée, les fichiers les plus anciennement effacés sont perdus. Si les deux champs sont remplis, seule la taille est "
    L"retenue.";
inline constexpr const wchar_t * aide_corbeille_temps =
    L"  Ce champ indique la durée de conservation des fichiers dans la corbeille : nombre de jours calendaires (1 à 999). "
    L"Passé ce temps, ils sont perdus ; le dernier fichier effacé est toujours conservé.";
inline constexpr const wchar_t * aide_corbeille_fin =
    L"  Ce bouton enregistre la limite saisie, l'applique aux fichiers de la corbeille et ferme la fenêtre. Si les deux champs "
    L"sont vides, la corbeille est supprimée après confirmation. Pendant une récupération, il l'arrête.";
inline constexpr const wchar_t * aide_fenetre_corbeille =
    L"  La fenêtre de la corbeille permet de récupérer des fichiers effacés et de choisir la limite de la corbeille : de 1 à "
    L"9999 Kilo-octets, ou de 1 à 999 jours. La touche Echap la ferme sans changer cette limite.";
// Before the directory of the index, when it is not that of the system.
inline constexpr const wchar_t * aide_index_ailleurs =
    L" Le répertoire du système n'étant pas accessible en écriture, la liste des fichiers effacés est conservée dans ";

// clang-format on
