#include "platform/lecture.h"

#include "platform/erreur.h"
#include "platform/ouverture.h"
#include "platform/poignee.h"
#include "platform/textes.h"

#include <algorithm>

namespace {
constexpr std::size_t taille_lecture = std::size_t{64} * 1024;
// No coding takes more for one character.
constexpr std::size_t octets_par_caractere = 4;

std::wstring De_utf8_tolerant(std::string_view octets) {
    if (octets.empty()) return {};
    const int    taille = static_cast<int>(octets.size());
    const int    besoin = MultiByteToWideChar(CP_UTF8, 0, octets.data(), taille, nullptr, 0);
    std::wstring texte(static_cast<std::size_t>(besoin), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, octets.data(), taille, texte.data(), besoin);
    return texte;
}

std::wstring De_utf16(std::string_view octets, bool grand) {
    std::wstring texte;
    for (std::size_t i = 0; i + 1 < octets.size(); i += 2) {
        const auto premier = static_cast<unsigned char>(octets[i]);
        const auto second  = static_cast<unsigned char>(octets[i + 1]);
        texte += static_cast<wchar_t>(grand ? premier << 8 | second : second << 8 | premier);
    }
    return texte;
}
}  // namespace

std::wstring Decoder(std::string_view octets, Codage codage) {
    switch (codage) {
    case Codage::utf8: return De_utf8_tolerant(octets);
    case Codage::utf16_petit: return De_utf16(octets, false);
    case Codage::utf16_grand: return De_utf16(octets, true);
    default: return De_ansi(octets);
    }
}

Lecture::Lecture(const std::wstring & chemin, std::size_t caracteres)
    : chemin_(chemin), coupe_(Codage::ansi, 0), retenus_(caracteres * octets_par_caractere) {
    const DWORD partage = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    fichier_.Remplacer(CreateFileW(Forme_de_fichier(chemin).c_str(), GENERIC_READ, partage, nullptr,
                                   OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!fichier_.Valide()) Lever_ouverture(chemin);
    LARGE_INTEGER taille;
    if (!GetFileSizeEx(fichier_.Valeur(), &taille)) Lever_derniere_erreur(Acte::lire, chemin);
    longueur_ = static_cast<std::uint64_t>(taille.QuadPart);
}

Lecture::Avancee Lecture::Avancer() {
    if (coupe_.Complete()) coupe_.Suivante();
    if (reste_.empty() && !Remplir()) {
        if (!coupe_.Entamee() || terminee_) return Avancee::fin;
        terminee_ = true;  // a last line without an end is a line
        return Avancee::ligne;
    }
    reste_.remove_prefix(coupe_.Prendre(reste_));
    return coupe_.Complete() ? Avancee::ligne : Avancee::bloc;
}

bool Lecture::Remplir() {
    const bool debut = lus_ == 0;
    tampon_.resize(static_cast<std::size_t>(std::min<std::uint64_t>(longueur_ - lus_, taille_lecture)));
    DWORD lus = 0;
    if (!tampon_.empty() &&
        !ReadFile(fichier_.Valeur(), tampon_.data(), static_cast<DWORD>(tampon_.size()), &lus, nullptr))
        Lever_derniere_erreur(Acte::lire, chemin_);
    // A file cut short meanwhile ends where it ends.
    if (lus == 0) return false;
    lus_ += lus;
    reste_ = {tampon_.data(), lus};
    if (debut) {
        const Marque_codage marque = Reconnaitre_codage(reste_);
        codage_                    = marque.codage;
        coupe_                     = Coupe_lignes(codage_, retenus_);
        reste_.remove_prefix(marque.octets);
    }
    return true;
}
