#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

class Liste;

// The state that the parts of the program share, each item under its own name.
struct Variables {
    // The command or step in progress: title of its prompts, label of its error reports.
    std::wstring Commande_en_cours;
    int          Reponse       = 0;      // last answer: 6 yes, 7 no, 2 cancel, or 1 to 3 of Choix_bouton
    bool         Garde         = false;  // a command, a search or the start-up is in progress
    bool         Arret_demande = false;

    // The walk through the selection.
    const Liste * Liste_courante = nullptr;
    int           Index_courant  = 0;
    bool          Fichier_trouve = false;
    std::wstring  Fichier_courant;  // bare name, empty when none
    std::wstring  Chemin_source;
    std::wstring  Chemin_cible;
    std::size_t   Nombre_selection = 0;  // files counted for the message line
    int Index_a_reprendre = -1;  // entry that alone is selected when the command has ended; -1 for none

    // What the main window shows.
    bool         Mode_repertoire  = false;
    bool         Mode_resultats   = false;  // search results instead of the SOURCE files
    bool         Tout_selectionne = false;
    double       Espace_libre_ko  = 0;  // of the DESTINATION drive, units of 1000 bytes
    std::wstring Texte_chemin;          // carries a path into Raccourcir_chemin and back
    // Directories were made, renamed or removed: the disk tree of the search and the DESTINATION list are to
    // be read again.
    bool Arborescence_perimee = false;
    bool Destination_perimee  = false;

    unsigned Tache = 0;  // identifier of the last program started

    // Help.
    bool         Aide_active = false;
    std::wstring Texte_aide;
    std::wstring Fichier_aide;  // help file that F1 opens; empty for none

    // Settings.
    std::wstring Fichier_ini;
    std::wstring Prefixe_fichiers;  // program's directory and "\KORVANE.", to which an extension is added
    std::wstring Unite_programme;   // "C:"
    std::size_t  Longueur_lue = 0;  // characters that the last profile read returned
    std::wstring Editeur;
    std::wstring Visualiseur;
    bool         Confirme_commande     = false;
    bool         Confirme_remplacement = true;
    std::wstring Option_aide;
    std::wstring Option_iconise;
    std::wstring Option_couleur;
    std::wstring Repertoire_initial;
    double       Bordure         = 0;  // BorderWidth of WIN.INI
    int          Largeur_fenetre = 0;  // twips that the main window is held at
    int          Hauteur_fenetre = 0;

    // Recycle bin.
    bool         Corbeille_active       = false;
    bool         Limites_corbeille_lues = false;  // false: a locked file gave the defaults instead
    std::wstring Texte_taille_corbeille;
    std::wstring Texte_temps_corbeille;
    int          Taille_corbeille = 0;  // kilobytes, 0 for no limit
    std::int16_t Temps_corbeille  = 0;  // days, 0 for no limit
    std::int32_t Total_corbeille  = 0;  // bytes
    // A limit that is no number from 1 to 9999 (999 for days): the bin is in use and nothing is purged.
    bool         Limite_corbeille_incorrecte = false;
    std::wstring Chemin_corbeille;     // directory of the index and "\\KORVANE.", empty while none is open
    std::int16_t Mode_effacement = 0;  // 0 not chosen yet, 1 ask for each file, -1 ask no more
    std::int32_t Date_du_jour    = 0;  // day serial number, taken once an erase or a purge

    // Path entry and search.
    std::wstring Nom_cherche;                 // directory looked up on the whole drive
    std::wstring Modele_cherche;              // normalised pattern of the files searched for
    std::size_t  Nombre_trouves     = 0;      // files carried from the search results to the SOURCE pane
    bool         Recherche_en_cours = false;  // asked for, its window not shown yet
    bool         Recherche_annulee  = false;
    bool         Recherche_faite    = false;
};

inline Variables variables;

// Usual title of the main window's boxes.
inline constexpr const wchar_t * titre_gestionnaire = L"Gestionnaire de fichiers";
