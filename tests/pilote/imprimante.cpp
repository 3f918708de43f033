#include "pilote/imprimante.h"

#include "pilote/attente.h"
#include "platform/windows.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <winspool.h>

namespace Pilote {

namespace {

wchar_t nom_imprimante[] = L"Imprimante d'essai";
wchar_t nom_pilote[]     = L"PostScript d'essai";
wchar_t pilote[]         = L"wineps.drv";

// As little as a driver must know: one sheet, one resolution, one font.
const char * const description = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "ESSAI.PPD"
*Manufacturer: "Essai"
*Product: "(Essai)"
*PSVersion: "(3010.000) 0"
*ModelName: "Essai"
*ShortNickName: "Essai"
*NickName: "Essai"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*TTRasterizer: Type42
*FileSystem: False
*DefaultResolution: 300dpi
*Resolution 300dpi: ""
*OpenUI *PageSize: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*DefaultPageRegion: A4
*PageRegion A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "0 0 595 842"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*DefaultFont: Courier
*Font Courier: Standard "(002.004S)" Standard ROM
)ppd";

// The end of a document waits for it. A job is seen only when it is whole, with its text beside it.
const char * const reception = R"sh(cd "$(dirname "$0")" || exit 1
cat >recu
while [ -e retenue ]; do sleep 0.02; done
[ -e panne ] && exit 1
n=$(printf %04d $(($(ls | grep -c '\.ps$') + 1)))
ps2pdf recu recu.pdf && pdftotext -layout recu.pdf "$n.txt" && pdftotext -bbox recu.pdf "$n.xml" && mv recu "$n.ps"
)sh";

[[noreturn]] void Echouer(const char * quoi) {
    throw std::runtime_error(std::string(quoi) + " : " + std::to_string(GetLastError()));
}

std::string Chemin_hote(const std::wstring & chemin) {
    using Traduction       = char *(CDECL *)(const wchar_t *);
    const HMODULE systeme  = GetModuleHandleW(L"kernel32.dll");
    const auto    traduire = reinterpret_cast<Traduction>(
        reinterpret_cast<void *>(GetProcAddress(systeme, "wine_get_unix_file_name")));
    if (!traduire) throw std::runtime_error("aucune imprimante d'essai hors de Wine");
    char *            hote = traduire(chemin.c_str());
    const std::string resultat(hote);
    HeapFree(GetProcessHeap(), 0, hote);
    return resultat;
}

std::wstring De_la_page(const std::string & octets) {
    std::wstring texte(octets.size(), L'\0');
    texte.resize(
        static_cast<std::size_t>(MultiByteToWideChar(1252, 0, octets.data(), static_cast<int>(octets.size()),
                                                     texte.data(), static_cast<int>(texte.size()))));
    return texte;
}

// "%%Title: (...)", where "\351" is a letter and "\(" a parenthesis.
std::wstring Titre(const std::string & postscript) {
    const std::string debut = "%%Title: ";
    std::size_t       i     = postscript.find(debut);
    if (i == std::string::npos) return L"(sans titre)";
    i += debut.size();
    std::string titre = postscript.substr(i, postscript.find_first_of("\r\n", i) - i);
    if (titre.starts_with('(') && titre.ends_with(')')) titre = titre.substr(1, titre.size() - 2);
    std::string octets;
    for (std::size_t c = 0; c < titre.size(); ++c) {
        const bool code =
            titre[c] == '\\' && c + 3 < titre.size() && titre[c + 1] >= '0' && titre[c + 1] <= '3';
        if (code) {
            octets += static_cast<char>(std::stoi(titre.substr(c + 1, 3), nullptr, 8));
            c += 3;
        } else if (titre[c] != '\\' || ++c < titre.size()) {
            octets += titre[c];
        }
    }
    return De_la_page(octets);
}

std::vector<std::string> Pages(const std::string & texte) {
    std::vector<std::string> pages;
    std::size_t              debut = 0;
    for (std::size_t fin = texte.find('\f'); fin != std::string::npos; fin = texte.find('\f', debut)) {
        pages.push_back(texte.substr(debut, fin - debut));
        debut = fin + 1;
    }
    return pages;
}

// The words of a page are given as <word xMin="42.5" yMin=...>.
void Lire_etendue(const std::string & mots, Travail & travail) {
    const auto nombre = [&mots](std::size_t mot, const char * nom) {
        const std::size_t place = mots.find(nom, mot);
        return std::strtod(mots.c_str() + place + std::strlen(nom) + 2, nullptr);
    };
    travail.gauche = travail.haut = 1e6;
    for (std::size_t mot = mots.find("<word "); mot != std::string::npos;
         mot             = mots.find("<word ", mot + 1)) {
        travail.gauche = std::min(travail.gauche, nombre(mot, "xMin"));
        travail.haut   = std::min(travail.haut, nombre(mot, "yMin"));
        travail.droite = std::max(travail.droite, nombre(mot, "xMax"));
        travail.bas    = std::max(travail.bas, nombre(mot, "yMax"));
    }
}

}  // namespace

// Always the same place: the system may go on with the port that a former printer of that name had.
Imprimante_essai::Imprimante_essai() : dossier_(L"C:\\essais imprimante") {
    Creer_fichier(dossier_ / L"essai.ppd", description);
    Creer_fichier(dossier_ / L"reception.sh", reception);
    Installer_pilote();
    Installer();
}

Imprimante_essai::~Imprimante_essai() {
    WriteProfileStringW(L"windows", L"device", nullptr);
    HANDLE            imprimante = nullptr;
    PRINTER_DEFAULTSW droits{nullptr, nullptr, PRINTER_ALL_ACCESS};
    if (!OpenPrinterW(nom_imprimante, &imprimante, &droits)) return;
    DeletePrinter(imprimante);
    ClosePrinter(imprimante);
}

void Imprimante_essai::Installer_pilote() const {
    std::wstring   ppd    = dossier_ / L"essai.ppd";
    wchar_t        brut[] = L"RAW";
    DRIVER_INFO_3W infos{};
    infos.cVersion         = 3;
    infos.pName            = nom_pilote;
    infos.pDriverPath      = pilote;
    infos.pConfigFile      = pilote;
    infos.pDataFile        = ppd.data();
    infos.pDefaultDataType = brut;
    if (!AddPrinterDriverExW(nullptr, 3, reinterpret_cast<BYTE *>(&infos),
                             APD_COPY_NEW_FILES | APD_COPY_FROM_DIRECTORY))
        Echouer("pilote d'imprimante");
}

void Imprimante_essai::Installer() const {
    std::wstring    port         = Large("|sh '" + Chemin_hote(dossier_ / L"reception.sh") + "'");
    wchar_t         brut[]       = L"RAW";
    wchar_t         processeur[] = L"WinPrint";
    wchar_t         vide[]       = L"";
    PRINTER_INFO_2W infos{};
    infos.pPrinterName    = nom_imprimante;
    infos.pPortName       = port.data();
    infos.pDriverName     = nom_pilote;
    infos.pPrintProcessor = processeur;
    infos.pDatatype       = brut;
    infos.pShareName = infos.pComment = infos.pLocation = infos.pSepFile = infos.pParameters = vide;
    const HANDLE imprimante = AddPrinterW(nullptr, 2, reinterpret_cast<BYTE *>(&infos));
    if (!imprimante) Echouer("imprimante");
    ClosePrinter(imprimante);
    if (!SetDefaultPrinterW(nom_imprimante)) Echouer("imprimante par défaut");
}

void Imprimante_essai::Marquer(const std::wstring & nom, bool present) const {
    if (present)
        Creer_fichier(dossier_ / nom, "");
    else
        Effacer(dossier_ / nom);
}

bool Imprimante_essai::Retient() const { return Existe(dossier_ / L"retenue") && Existe(dossier_ / L"recu"); }

std::vector<Travail> Imprimante_essai::Travaux() const {
    std::vector<Travail> travaux;
    for (const std::wstring & nom : Noms(dossier_.Chemin())) {
        if (!nom.ends_with(L".ps")) continue;
        const std::wstring racine = dossier_ / nom.substr(0, nom.size() - 3);
        Travail            travail;
        travail.titre = Titre(Lire_fichier(dossier_ / nom));
        travail.pages = Pages(Lire_fichier(racine + L".txt"));
        Lire_etendue(Lire_fichier(racine + L".xml"), travail);
        travaux.push_back(std::move(travail));
    }
    return travaux;
}

std::size_t Imprimante_essai::Nombre() const {
    const auto noms = Noms(dossier_.Chemin());
    return static_cast<std::size_t>(std::count_if(
        noms.begin(), noms.end(), [](const std::wstring & nom) { return nom.ends_with(L".ps"); }));
}

}  // namespace Pilote
