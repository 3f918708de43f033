#pragma once
#include "platform/fichiers.h"
#include "toolkit/listes.h"

#include <string>
#include <vector>

// The drives present. `Drive` reads as its entry: "a:", "c: [LABEL]", "x: \\server\share".
class Liste_unites : public Liste_combinee {
public:
    Liste_unites(Fenetre & fenetre, const Place & place);

    std::wstring Drive() const { return drive_; }
    // Only the first character counts. Error 68 when absent. Change only when the drive really changes.
    void Drive(const std::wstring & unite);
    void Drive_sans_evenement(const std::wstring & unite);  // back to the drive of a path after a failure
    void Refresh() override;  // reads the drives again; the chosen one stays when it is still there

protected:
    void Choix_fait() override;
    void Notification(unsigned code) override;
    void Peripherique_change() override { Refresh(); }

private:
    int  Rang(wchar_t lettre) const;
    void Relire();

    std::vector<std::wstring> entrees_;
    std::wstring              drive_;
};

// The directories from the root down to the open one, then its subdirectories.
class Liste_repertoires : public Liste {
public:
    Liste_repertoires(Fenetre & fenetre, const Place & place);

    const std::wstring & Path() const { return path_; }  // no final "\" but for a root
    // Errors 76, 68, 70, 71: path and content stay. Change only when the directory really changes.
    void Path(const std::wstring & chemin);
    int  ListIndex() const override;  // -1: the open directory, -2 its parent ...; 0 and up: subdirectories
    void ListIndex(int index) override;  // moves the current entry, raises nothing
    int  ListCount() const;              // subdirectories
    std::wstring List(int index) const;  // full path
    void         Refresh() override;     // reads the disk again; raises nothing, throws as Path does

    // The files met while the directory was read; only a handler of Change finds them, so that they are not read twice.
    std::vector<Entree_repertoire> Prendre_fichiers() { return std::move(fichiers_); }

    std::function<void()> Change;

protected:
    void Notification(unsigned code) override;
    void Dessiner(const void * dessin) override;
    void Apres_message(unsigned message, std::uintptr_t mot, std::intptr_t large) override;

    int Retrait(int ligne) const override;

private:
    void        Montrer(int index);
    std::size_t Profondeur(int ligne) const;

    bool pressee_ = false;  // the mouse button went down in this list

    std::wstring                   path_;
    std::vector<std::wstring>      chaine_;            // root, ..., open directory
    std::vector<std::wstring>      sous_repertoires_;  // names
    std::vector<Entree_repertoire> fichiers_;
};

// The files of one directory that match a pattern.
class Liste_fichiers : public Liste {
public:
    Liste_fichiers(Fenetre & fenetre, const Place & place);

    const std::wstring & Path() const { return path_; }
    void                 Path(const std::wstring & chemin);  // raises PathChange when it differs
    const std::wstring & Pattern() const { return pattern_; }
    void                 Pattern(const std::wstring & motif);  // error 380 leaves the old one
    // Whether files with that attribute are shown; Normal: those with none of the four. Hidden and System are False at start.
    bool Hidden() const { return (exclus_ & Attribut::cache) == 0; }
    void Hidden(bool montrer) { Montrer_attribut(Attribut::cache, montrer); }
    bool System() const { return (exclus_ & Attribut::systeme) == 0; }
    void System(bool montrer) { Montrer_attribut(Attribut::systeme, montrer); }
    bool Archive() const { return (exclus_ & Attribut::modifie) == 0; }
    void Archive(bool montrer) { Montrer_attribut(Attribut::modifie, montrer); }
    bool ReadOnly() const { return (exclus_ & Attribut::lecture) == 0; }
    void ReadOnly(bool montrer) { Montrer_attribut(Attribut::lecture, montrer); }
    bool Normal() const { return normaux_; }
    void Normal(bool montrer);
    void Refresh()
        override;  // keeps path, selection of the names that still exist and the current entry; raises nothing
    // Directory and pattern at once, one reading of the disk; raises PathChange when the path differs.
    void Relire(const std::wstring & chemin, const std::wstring & motif);
    // Another directory, whose files have just been read.
    void Suivre(const std::wstring & chemin, std::vector<Entree_repertoire> fichiers);

    // The listing behind the list, in its order: names, sizes, dates and attributes as they were read.
    const std::vector<Entree_repertoire> & Entrees() const { return entrees_; }

    std::function<void()> PathChange;

private:
    std::vector<Entree_repertoire> Filtrer(std::vector<Entree_repertoire> entrees,
                                           const std::wstring &           motif) const;
    std::vector<Entree_repertoire> Lire(const std::wstring & chemin, const std::wstring & motif) const;
    void                           Montrer(std::vector<Entree_repertoire> entrees);
    void                           Montrer_attribut(std::uint32_t attribut, bool montrer);

    std::wstring                   path_;
    std::wstring                   pattern_ = L"*.*";
    std::uint32_t                  exclus_  = Attribut::cache | Attribut::systeme;
    bool                           normaux_ = true;
    std::vector<Entree_repertoire> entrees_;
};
