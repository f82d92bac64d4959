; SPDX-License-Identifier: MIT
; The installer: for all users or for one (/AllUsers, /CurrentUser), with /S in silence. packaging/windows/package calls it.
Unicode true
Target amd64-unicode
ManifestDPIAware true
ManifestLongPathAware true
SetCompressor /SOLID lzma
Name "HelvixStudio"
OutFile "${OUTPUT}"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\HelvixStudio"
!define PROJECT_CLASS "HelvixStudio.Project"

!define MULTIUSER_MUI
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR "HelvixStudio"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_USE_PROGRAMFILES64
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!insertmacro MUI_PAGE_LICENSE "${LICENCE}"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\HelvixStudio.exe"
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"

LangString projectType ${LANG_ENGLISH} "HelvixStudio project"
LangString projectType ${LANG_GERMAN} "HelvixStudio-Projekt"
LangString inUse ${LANG_ENGLISH} "HelvixStudio, hxrecipe or an add-in of theirs is running from $INSTDIR. Please close it first."
LangString inUse ${LANG_GERMAN} "HelvixStudio, hxrecipe oder ein Add-in davon läuft aus $INSTDIR. Bitte beenden Sie es zuerst."
LangString notRegistered ${LANG_ENGLISH} "The add-ins could not be entered for other studios, or removed there."
LangString notRegistered ${LANG_GERMAN} "Die Add-ins ließen sich für andere Studios nicht eintragen oder dort nicht entfernen."

VIProductVersion "${VERSION}.0.0"
VIAddVersionKey "ProductName" "HelvixStudio"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Installs HelvixStudio ${VERSION}"
VIAddVersionKey "LegalCopyright" ""

; A program that runs cannot be written.
!macro REQUIRE_CLOSED FILE
  ${If} ${FileExists} "$INSTDIR\${FILE}"
    ClearErrors
    FileOpen $0 "$INSTDIR\${FILE}" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONSTOP "$(inUse)" /SD IDOK
      SetErrorLevel 2
      Quit
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend
!macro REQUIRE_ALL_CLOSED
  !insertmacro REQUIRE_CLOSED "HelvixStudio.exe"
  !insertmacro REQUIRE_CLOSED "hxrecipe.exe"
  !insertmacro REQUIRE_CLOSED "HXRecipeEditor.dll"
  !insertmacro REQUIRE_CLOSED "HXProjectReport.dll"
!macroend

; An add-in for other studios; ACTION is empty or /u.
!macro REGISTER ACTION FILE
  ${If} $MultiUser.InstallMode == "AllUsers"
    ExecWait '"$SYSDIR\regsvr32.exe" /s ${ACTION} "$INSTDIR\${FILE}"' $0
  ${Else}
    ExecWait '"$SYSDIR\regsvr32.exe" /s ${ACTION} /n /i:user "$INSTDIR\${FILE}"' $0
  ${EndIf}
  ${If} $0 != 0
    MessageBox MB_OK|MB_ICONEXCLAMATION "$(notRegistered)" /SD IDOK
    SetErrorLevel 3
  ${EndIf}
!macroend
!macro REGISTER_ALL ACTION
  !insertmacro REGISTER "${ACTION}" "HXRecipeEditor.dll"
  !insertmacro REGISTER "${ACTION}" "HXProjectReport.dll"
!macroend

!macro REFRESH_ICONS
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Function .onInit
  !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

Section
  !insertmacro REQUIRE_ALL_CLOSED
  ; What an older version brought and this one does not, goes with it.
  ${If} ${FileExists} "$INSTDIR\uninstall.exe"
    ExecWait '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode _?=$INSTDIR'
  ${EndIf}
  SetOutPath "$INSTDIR"
  File /r "${SOURCE}/*"
  !insertmacro REGISTER_ALL ""
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\HelvixStudio.lnk" "$INSTDIR\HelvixStudio.exe"

  WriteRegStr SHCTX "Software\Classes\${PROJECT_CLASS}" "" "$(projectType)"
  WriteRegStr SHCTX "Software\Classes\${PROJECT_CLASS}\DefaultIcon" "" "$INSTDIR\HelvixStudio.exe,1"
  WriteRegStr SHCTX "Software\Classes\${PROJECT_CLASS}\shell\open\command" "" '"$INSTDIR\HelvixStudio.exe" "%1"'
  WriteRegStr SHCTX "Software\Classes\.hxs\OpenWithProgids" "${PROJECT_CLASS}" ""
  ReadRegStr $0 SHCTX "Software\Classes\.hxs" ""
  ${If} $0 == ""
    WriteRegStr SHCTX "Software\Classes\.hxs" "" "${PROJECT_CLASS}"
  ${EndIf}

  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "HelvixStudio"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\HelvixStudio.exe"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode /S'
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" $0
  !insertmacro REFRESH_ICONS
SectionEnd

Section Uninstall
  !insertmacro REQUIRE_ALL_CLOSED
  !insertmacro REGISTER_ALL "/u"
  !include "${REMOVAL}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\HelvixStudio.lnk"

  DeleteRegKey SHCTX "Software\Classes\${PROJECT_CLASS}"
  ReadRegStr $0 SHCTX "Software\Classes\.hxs" ""
  ${If} $0 == "${PROJECT_CLASS}"
    DeleteRegValue SHCTX "Software\Classes\.hxs" ""
  ${EndIf}
  DeleteRegValue SHCTX "Software\Classes\.hxs\OpenWithProgids" "${PROJECT_CLASS}"
  DeleteRegKey /ifnosubkeys /ifnovalues SHCTX "Software\Classes\.hxs\OpenWithProgids"
  DeleteRegKey /ifnosubkeys /ifnovalues SHCTX "Software\Classes\.hxs"
  DeleteRegKey SHCTX "${UNINSTALL_KEY}"
  !insertmacro REFRESH_ICONS
SectionEnd
