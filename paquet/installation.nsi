; Installer of KORVANE, made by package.sh:
;   makensis -INPUTCHARSET UTF8 -NOCD -DVERSION=1.0.0 -DFICHIERS=directory -DICONE=korvane.ico -DSORTIE=setup.exe installation.nsi
;
; Silent: setup.exe /S [/D=directory]; desinstaller-KORVANE.exe /S. Status 0 when all is done, another one when a file is in use, is
; somebody else's or could not be written or removed: then what was installed before is still there, or can still be uninstalled.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
; A file that cannot be written ends the installation: half an upgrade must not pass for a whole one.
AllowSkipFiles off
ManifestDPIAware true

; For the user who installs, without administrator's rights: the program keeps KORVANE.INI beside itself, and Program Files is
; closed to it there.
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\KORVANE"
InstallDirRegKey HKCU "Software\KORVANE" "Dossier"

!define DESINSTALLATION "Software\Microsoft\Windows\CurrentVersion\Uninstall\KORVANE"

Name "KORVANE"
OutFile "${SORTIE}"
BrandingText "KORVANE ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1036 "ProductName" "KORVANE"
VIAddVersionKey /LANG=1036 "FileDescription" "Installation de KORVANE, gestionnaire de fichiers"
VIAddVersionKey /LANG=1036 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1036 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=1036 "CompanyName" "KORVANE"
VIAddVersionKey /LANG=1036 "LegalCopyright" "KORVANE"

!include "LogicLib.nsh"
!include "MUI2.nsh"
!define MUI_ICON "${ICONE}"
!define MUI_UNICON "${ICONE}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\KORVANE.EXE"
!define MUI_FINISHPAGE_SHOWREADME "$INSTDIR\LISEZMOI.TXT"
!define MUI_FINISHPAGE_SHOWREADME_NOTCHECKED
!define MUI_UNCONFIRMPAGE_TEXT_TOP "KORVANE va être retiré de cet ordinateur. Les fichiers effacés dans sa corbeille restent dans leurs \
répertoires, sous leurs noms codés : récupérez d'abord ceux dont vous avez besoin."
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "French"

; Every file of the program, in the order in which they are replaced.
!macro POUR_CHAQUE_FICHIER ACTION
  !insertmacro ${ACTION} "KORVANE.EXE"
  !insertmacro ${ACTION} "PELMIRA.EXE"
  !insertmacro ${ACTION} "KORVANE.HLP"
  !insertmacro ${ACTION} "KORVANE.CHM"
  !insertmacro ${ACTION} "LISEZMOI.TXT"
!macroend

; A program that runs, or a manual that is open, keeps its file: nothing is touched before all of them are free. $R0 is the first
; file that is not. Opening makes a missing file, so only those that exist are tried.
!macro EXAMINER NOM
  ${If} $R0 == ""
  ${AndIf} ${FileExists} "$INSTDIR\${NOM}"
    ClearErrors
    FileOpen $R1 "$INSTDIR\${NOM}" a
    ${If} ${Errors}
      StrCpy $R0 "${NOM}"
    ${Else}
      FileClose $R1
    ${EndIf}
  ${EndIf}
!macroend

!macro ATTENDRE_FICHIERS_LIBRES
  ${Do}
    StrCpy $R0 ""
    !insertmacro POUR_CHAQUE_FICHIER EXAMINER
    ${If} $R0 == ""
      ${ExitDo}
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$INSTDIR\$R0 est utilisé ou protégé : fermez KORVANE, PELMIRA et le manuel, puis \
recommencez." /SD IDCANCEL IDRETRY +3
    SetErrorLevel 1
    Abort
  ${Loop}
!macroend

!macro RENONCER TEXTE
  MessageBox MB_OK|MB_ICONSTOP "${TEXTE}" /SD IDOK
  SetErrorLevel 1
  Abort
!macroend

!macro COPIER NOM
  ClearErrors
  File "${FICHIERS}\${NOM}"
  ${If} ${Errors}
    !insertmacro RENONCER "$INSTDIR\${NOM} ne peut pas être écrit : KORVANE n'est pas installé."
  ${EndIf}
!macroend

!macro RETIRER NOM
  ClearErrors
  Delete "$INSTDIR\${NOM}"
  ; Some file systems answer before they know.
  ${If} ${Errors}
  ${OrIf} ${FileExists} "$INSTDIR\${NOM}"
    !insertmacro RENONCER "$INSTDIR\${NOM} ne peut pas être retiré. Fermez ce qui l'utilise et désinstallez à nouveau."
  ${EndIf}
!macroend

; In a directory that holds no KORVANE yet, a file of one of these names belongs to the user or to another program: it would be
; replaced now, and removed with KORVANE.
!macro RESPECTER NOM
  ${If} ${FileExists} "$INSTDIR\${NOM}"
    !insertmacro RENONCER "$INSTDIR contient déjà un fichier ${NOM} qui n'est pas celui de KORVANE : choisissez un autre répertoire."
  ${EndIf}
!macroend

!macro RESPECTER_FICHIERS_D_AUTRUI
  ReadRegStr $R2 HKCU "Software\KORVANE" "Dossier"
  ${If} $R2 != $INSTDIR
  ${AndIfNot} ${FileExists} "$INSTDIR\KORVANE.EXE"
    !insertmacro POUR_CHAQUE_FICHIER RESPECTER
  ${EndIf}
!macroend

Section "KORVANE"
  SetShellVarContext current
  !insertmacro RESPECTER_FICHIERS_D_AUTRUI
  !insertmacro ATTENDRE_FICHIERS_LIBRES
  ClearErrors
  SetOutPath "$INSTDIR"
  ${If} ${Errors}
    !insertmacro RENONCER "Le répertoire $INSTDIR ne peut pas être créé : KORVANE n'est pas installé."
  ${EndIf}
  !insertmacro POUR_CHAQUE_FICHIER COPIER
  ClearErrors
  WriteUninstaller "$INSTDIR\desinstaller-KORVANE.exe"
  ${If} ${Errors}
    !insertmacro RENONCER "$INSTDIR\desinstaller-KORVANE.exe ne peut pas être écrit : KORVANE n'est pas installé."
  ${EndIf}
  ClearErrors
  WriteRegStr HKCU "Software\KORVANE" "Dossier" "$INSTDIR"
  WriteRegStr HKCU "${DESINSTALLATION}" "DisplayName" "KORVANE, gestionnaire de fichiers"
  WriteRegStr HKCU "${DESINSTALLATION}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${DESINSTALLATION}" "DisplayIcon" "$INSTDIR\KORVANE.EXE"
  WriteRegStr HKCU "${DESINSTALLATION}" "Publisher" "KORVANE"
  WriteRegStr HKCU "${DESINSTALLATION}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${DESINSTALLATION}" "UninstallString" '"$INSTDIR\desinstaller-KORVANE.exe"'
  WriteRegStr HKCU "${DESINSTALLATION}" "QuietUninstallString" '"$INSTDIR\desinstaller-KORVANE.exe" /S'
  WriteRegDWORD HKCU "${DESINSTALLATION}" "EstimatedSize" ${TAILLE}
  WriteRegDWORD HKCU "${DESINSTALLATION}" "NoModify" 1
  WriteRegDWORD HKCU "${DESINSTALLATION}" "NoRepair" 1
  CreateShortCut "$SMPROGRAMS\KORVANE.lnk" "$INSTDIR\KORVANE.EXE" "" "$INSTDIR\KORVANE.EXE" 0 SW_SHOWNORMAL "" "Gestionnaire de fichiers"
  ${If} ${Errors}
    !insertmacro RENONCER "KORVANE est dans $INSTDIR, mais n'a pas pu être ajouté au menu Démarrer ou à la liste des applications."
  ${EndIf}
SectionEnd

; The settings are the user's: they stay unless asked otherwise, and the directory with them. So does whatever the user put there.
Section "Uninstall"
  SetShellVarContext current
  !insertmacro ATTENDRE_FICHIERS_LIBRES
  !insertmacro POUR_CHAQUE_FICHIER RETIRER
  ${If} ${FileExists} "$INSTDIR\KORVANE.INI"
    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "Voulez-vous aussi supprimer vos réglages (KORVANE.INI) ?" /SD IDNO IDNO +2
    Delete "$INSTDIR\KORVANE.INI"
  ${EndIf}
  ; Installed a second time elsewhere, KORVANE is in the menu and in the list from there.
  ReadRegStr $R2 HKCU "Software\KORVANE" "Dossier"
  ${If} $R2 == $INSTDIR
    ClearErrors
    Delete "$SMPROGRAMS\KORVANE.lnk"
    ${If} ${Errors}
    ${OrIf} ${FileExists} "$SMPROGRAMS\KORVANE.lnk"
      !insertmacro RENONCER "KORVANE ne peut pas être retiré du menu Démarrer. Désinstallez à nouveau."
    ${EndIf}
  ${EndIf}
  ; The uninstaller and its keys go last: until then it can be started again.
  Delete "$INSTDIR\desinstaller-KORVANE.exe"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  ${If} $R2 == $INSTDIR
    DeleteRegKey HKCU "${DESINSTALLATION}"
    DeleteRegKey HKCU "Software\KORVANE"
  ${EndIf}
SectionEnd
