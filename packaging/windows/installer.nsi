; The installer for one user, who needs no administrator.
; Defined from outside: VERSION, LISTS (what list_files.py writes), ICON, USER_PATH, OUTPUT.
Target amd64-unicode
ManifestDPIAware true
ManifestLongPathAware true
ManifestSupportedOS all
RequestExecutionLevel user
SetCompressor /SOLID lzma
AllowSkipFiles off
; Two builds are the same to the byte.
SetDateSave off

!include "MUI2.nsh"
!include "WinMessages.nsh"
!include "${LISTS}"

Name "Linewright ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Linewright"
InstallDirRegKey HKCU "Software\Linewright" "InstallDir"
VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey "CompanyName" "Linewright"
VIAddVersionKey "ProductName" "Linewright"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Linewright setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "Linewright"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Linewright"
!define FONTS "Software\Microsoft\Windows NT\CurrentVersion\Fonts"
!define FONT_FOLDER "$LOCALAPPDATA\Microsoft\Windows\Fonts"
!define SHORTCUT "$SMPROGRAMS\Linewright.lnk"
!define IN_USE "Some files are in use. Close the programs that use Linewright or its fonts, and try again."

!macro Stop SENTENCE
  MessageBox MB_OK|MB_ICONSTOP "${SENTENCE}" /SD IDOK
  SetErrorLevel 2
  Quit
!macroend

!macro ChangePath WHAT
  InitPluginsDir
  File "/oname=$PLUGINSDIR\user-path.exe" "${USER_PATH}"
  nsExec::Exec '"$PLUGINSDIR\user-path.exe" ${WHAT} "$INSTDIR\bin"'
  Pop $0
  ${If} $0 != 0
    DetailPrint "PATH is as it was: it could not be changed"
  ${EndIf}
!macroend

; As `linewright fonts install` does it.
!macro InstallFont FILE FAMILY
  CopyFiles /SILENT "$INSTDIR\share\linewright\fonts\${FILE}" "${FONT_FOLDER}\${FILE}"
  WriteRegStr HKCU "${FONTS}" "${FAMILY} (TrueType)" "${FONT_FOLDER}\${FILE}"
  System::Call 'gdi32::AddFontResourceW(w "${FONT_FOLDER}\${FILE}")'
!macroend

; In three steps: the second is the one whose errors count.
!macro ReleaseFont FILE FAMILY
  System::Call 'gdi32::RemoveFontResourceW(w "${FONT_FOLDER}\${FILE}")'
!macroend
!macro DeleteFont FILE FAMILY
  Delete "${FONT_FOLDER}\${FILE}"
!macroend
!macro ForgetFont FILE FAMILY
  DeleteRegValue HKCU "${FONTS}" "${FAMILY} (TrueType)"
!macroend

!macro AnnounceFonts
  SendMessage ${HWND_BROADCAST} ${WM_FONTCHANGE} 0 0 /TIMEOUT=1000
!macroend

; What an older one installed goes first, wherever it lies: not all of it need be in this one.
Function RemoveOlder
  ReadRegStr $1 HKCU "Software\Linewright" "InstallDir"
  ${If} $1 != ""
  ${AndIf} ${FileExists} "$1\uninstall.exe"
    ExecWait '"$1\uninstall.exe" /S _?=$1' $0
    ${If} $0 != 0
      !insertmacro Stop "The older Linewright in $1 cannot be taken away. ${IN_USE}"
    ${EndIf}
    Delete "$1\uninstall.exe"
    RMDir "$1"
  ${EndIf}
FunctionEnd

Section "Linewright"
  Call RemoveOlder
  ClearErrors
  !insertmacro InstallFiles
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateDirectory "${FONT_FOLDER}"
  !insertmacro EachFont InstallFont
  ${If} ${Errors}
    !insertmacro Stop "Linewright cannot be written to $INSTDIR. ${IN_USE}"
  ${EndIf}
  !insertmacro AnnounceFonts
  SetOutPath "$DOCUMENTS"
  CreateShortcut "${SHORTCUT}" "$SYSDIR\cmd.exe" '/k ""$INSTDIR\bin\linewright.exe" --help"' "$INSTDIR\bin\linewright.exe"
  WriteRegStr HKCU "Software\Linewright" "InstallDir" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Linewright"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\bin\linewright.exe"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "Linewright"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" ${KILOBYTES}
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
  !insertmacro ChangePath add
SectionEnd

; Takes away what was installed and nothing that anybody else put there.
Section "Uninstall"
  SetOutPath "$TEMP"
  !insertmacro EachFont ReleaseFont
  ClearErrors
  !insertmacro RemoveFiles
  !insertmacro EachFont DeleteFont
  ${If} ${Errors}
    !insertmacro Stop "${IN_USE}"
  ${EndIf}
  !insertmacro EachFont ForgetFont
  RMDir "${FONT_FOLDER}"
  !insertmacro AnnounceFonts
  !insertmacro ChangePath remove
  Delete "${SHORTCUT}"
  DeleteRegKey HKCU "${UNINSTALL}"
  DeleteRegValue HKCU "Software\Linewright" "InstallDir"
  DeleteRegKey /ifempty HKCU "Software\Linewright"
  Delete "$INSTDIR\uninstall.exe"
  !insertmacro RemoveFolders
SectionEnd
