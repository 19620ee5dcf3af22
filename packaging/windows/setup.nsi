; The setup program for Windows. Both places are those where Windows and the saver look: the list of
; savers shows what is in System32, and the data set is in the Windows directory.
; makensis -DVERSION=... -DCONTENTS=FOLDER -DOUTPUT=FILE setup.nsi
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
!include MUI2.nsh

!define SAVER "$SYSDIR\quazo.scr"
!define DATA "$WINDIR\###quazo!_data###"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\quazo"
!define DESKTOP "Control Panel\Desktop"

Name "quazo!"
OutFile "${OUTPUT}"
InstallDir "$PROGRAMFILES64\quazo"
RequestExecutionLevel admin
ManifestDPIAware true
BrandingText "quazo! ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "quazo!"
VIAddVersionKey FileDescription "quazo! setup"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey LegalCopyright "MIT License"

!define MUI_ICON quazo.ico
!define MUI_UNICON quazo.ico
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "Make it the current screen saver"
!define MUI_FINISHPAGE_RUN_FUNCTION MakeCurrent
!insertmacro MUI_PAGE_LICENSE "${CONTENTS}\licences\quazo.txt"
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

Function MakeCurrent
  WriteRegStr HKCU "${DESKTOP}" "SCRNSAVE.EXE" "${SAVER}"
  WriteRegStr HKCU "${DESKTOP}" "ScreenSaveActive" "1"
FunctionEnd

Section
  SetOutPath "$SYSDIR"
  File "${CONTENTS}\quazo.scr"
  RMDir /r "${DATA}" ; what another version left
  SetOutPath "${DATA}"
  File "${CONTENTS}\###quazo!_data###\*"
  SetOutPath "$INSTDIR"
  File "${CONTENTS}\README.txt"
  File /r "${CONTENTS}\licences"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayName" "quazo! screen saver"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayIcon" "${SAVER}"
  WriteRegStr HKLM "${UNINSTALL}" "Publisher" "the quazo! authors"
  WriteRegStr HKLM "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKLM "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKLM "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKLM "${UNINSTALL}" "NoRepair" 1
SectionEnd

Section Uninstall
  ReadRegStr $0 HKCU "${DESKTOP}" "SCRNSAVE.EXE"
  StrCmp $0 "${SAVER}" 0 +2 ; without regard to case
    DeleteRegValue HKCU "${DESKTOP}" "SCRNSAVE.EXE"
  Delete /REBOOTOK "${SAVER}"
  RMDir /r "${DATA}"
  RMDir /r "$INSTDIR\licences"
  Delete "$INSTDIR\README.txt"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  DeleteRegKey HKLM "${UNINSTALL}"
SectionEnd
