#include "platform/aide.h"

#include "platform/windows.h"

bool Ouvrir_aide(const std::wstring & fichier) {
    return WinHelpW(GetActiveWindow(), fichier.c_str(), HELP_CONTENTS, 0) != FALSE;
}
