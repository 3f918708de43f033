#include "platform/droits.h"

#include "platform/fichiers.h"
#include "platform/windows.h"

namespace {
std::vector<std::byte> Lire(const std::wstring & fichier) {
    const std::wstring forme  = Forme_longue(fichier);
    DWORD              taille = 0;
    GetFileSecurityW(forme.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &taille);
    std::vector<std::byte> descripteur(taille);
    const bool             lu = taille != 0 && GetFileSecurityW(forme.c_str(), DACL_SECURITY_INFORMATION,
                                                                descripteur.data(), taille, &taille);
    if (!lu) descripteur.clear();
    return descripteur;
}
}  // namespace

Droits::Droits(const std::wstring & fichier) : descripteur_(Lire(fichier)) {}

void Droits::Rendre(const std::wstring & fichier) const {
    if (descripteur_.empty() || Lire(fichier) == descripteur_) return;
    std::vector<std::byte>      descripteur = descripteur_;
    SECURITY_DESCRIPTOR_CONTROL controle    = 0;
    DWORD                       revision    = 0;
    // Rights that come from the directory go on following it.
    if (GetSecurityDescriptorControl(descripteur.data(), &controle, &revision) &&
        (controle & SE_DACL_AUTO_INHERITED) != 0)
        SetSecurityDescriptorControl(descripteur.data(), SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ);
    SetFileSecurityW(Forme_longue(fichier).c_str(), DACL_SECURITY_INFORMATION, descripteur.data());
}
