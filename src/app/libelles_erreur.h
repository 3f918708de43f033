#pragma once
#include <string>

// The wording of run-time errors.

struct Contexte_erreur {
    int          numero = 0;
    std::wstring texte;        // the system's message
    std::wstring commande;     // Commande_en_cours
    std::wstring fichier;      // Fichier_courant in capitals, empty when no file is current
    std::wstring source;       // SOURCE path
    std::wstring destination;  // DESTINATION path
    std::wstring editeur;
    std::wstring visualiseur;
    std::wstring unite;                    // drive that the message names, "C:"
    bool         disquette       = false;  // the destination is a diskette drive (error 61)
    bool         mode_repertoire = false;
};

enum class Genre_message { avertissement, question_disquette, rapport };

struct Message_erreur {
    Genre_message genre = Genre_message::avertissement;
    std::wstring  titre;
    std::wstring  texte;  // lines joined by character 13 alone

    bool operator==(const Message_erreur &) const = default;
};

Message_erreur Libelle_erreur(const Contexte_erreur & contexte);
