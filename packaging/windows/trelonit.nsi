; The installer: for the user alone, without rights, or for all users of the machine; "/S" asks
; nothing, "/AllUsers" and "/CurrentUser" choose. packaging/windows/pack calls makensis with
; VERSION, STAGE (what is installed), FILES (the list of it), ICON, LICENCE and RESULT.
Target amd64-unicode
ManifestDPIAware true
SetCompressor /SOLID lzma
Name "Trelonit"
BrandingText "Trelonit ${VERSION}"
OutFile "${RESULT}"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Trelonit"
!define PATH_KEY "Software\Microsoft\Windows\CurrentVersion\App Paths\trelonit.exe"
!define PROJECT_TYPE "Trelonit.Project"
; Who had the projects before.
!define EARLIER_TYPE "Trelonit_earlier"

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_DEFAULT_CURRENTUSER
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR "Trelonit"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODE_FUNCTION KeepOffUserFiles
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\bin\trelonit.exe"
!define MUI_FINISHPAGE_NOAUTOCLOSE
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${LICENCE}"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Russian"
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_RESERVEFILE_LANGDLL

LangString ProgramPart ${LANG_RUSSIAN} "Программа"
LangString ProgramPart ${LANG_ENGLISH} "Program"
LangString DesktopPart ${LANG_RUSSIAN} "Значок на рабочем столе"
LangString DesktopPart ${LANG_ENGLISH} "Desktop shortcut"
LangString ProjectsPart ${LANG_RUSSIAN} "Открывать проекты (.tsav)"
LangString ProjectsPart ${LANG_ENGLISH} "Open projects (.tsav)"
LangString ProjectName ${LANG_RUSSIAN} "Проект фермы Trelonit"
LangString ProjectName ${LANG_ENGLISH} "Trelonit truss project"
LangString StillRuns ${LANG_RUSSIAN} "Trelonit запущена. Закройте ее и повторите."
LangString StillRuns ${LANG_ENGLISH} "Trelonit is running. Close it and try again."

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=${LANG_RUSSIAN} "ProductName" "Trelonit"
VIAddVersionKey /LANG=${LANG_RUSSIAN} "FileDescription" "Установка Trelonit"
VIAddVersionKey /LANG=${LANG_RUSSIAN} "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_RUSSIAN} "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_RUSSIAN} "LegalCopyright" "MIT"

; The folder that the mode of installation offers a user is the one where the program keeps the
; user's catalogue and recovery copies.
Function KeepOffUserFiles
  ${If} $MultiUser.InstallMode == "CurrentUser"
  ${AndIf} $INSTDIR == "$LOCALAPPDATA\Trelonit"
    StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Trelonit"
  ${EndIf}
FunctionEnd

; A running program cannot be written to.
!macro WaitForEnd
  again:
    ${If} ${FileExists} "$INSTDIR\bin\trelonit.exe"
      ClearErrors
      FileOpen $0 "$INSTDIR\bin\trelonit.exe" a
      ${If} ${Errors}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(StillRuns)" /SD IDCANCEL IDRETRY again
        SetErrorLevel 2
        Quit
      ${EndIf}
      FileClose $0
    ${EndIf}
!macroend

!macro TellExplorer
  System::Call "shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)"
!macroend

Function .onInit
  !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

Section "$(ProgramPart)" Program
  SectionIn RO
  !insertmacro WaitForEnd
  ; Files of an earlier version that this one has no more.
  ${If} ${FileExists} "$INSTDIR\uninstall.exe"
    ExecWait '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode _?=$INSTDIR'
  ${EndIf}
  SetOutPath "$INSTDIR"
  File /r "${STAGE}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"

  ; Its dialogs begin among the user's documents; for all users there is no such folder.
  SetOutPath "$INSTDIR\bin"
  ${If} $MultiUser.InstallMode == "CurrentUser"
    SetOutPath "$DOCUMENTS"
  ${EndIf}
  CreateShortcut "$SMPROGRAMS\Trelonit.lnk" "$INSTDIR\bin\trelonit.exe"
  SetOutPath "$INSTDIR"

  WriteRegStr SHCTX "${PATH_KEY}" "" "$INSTDIR\bin\trelonit.exe"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "Trelonit"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\bin\trelonit.exe,0"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "Trelonit contributors"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" \
    '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" \
    '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode /S'
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" $0
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section "$(DesktopPart)" Desktop
  SetOutPath "$INSTDIR\bin"
  ${If} $MultiUser.InstallMode == "CurrentUser"
    SetOutPath "$DOCUMENTS"
  ${EndIf}
  CreateShortcut "$DESKTOP\Trelonit.lnk" "$INSTDIR\bin\trelonit.exe"
  SetOutPath "$INSTDIR"
SectionEnd

Section "$(ProjectsPart)" Projects
  ReadRegStr $0 SHCTX "Software\Classes\.tsav" ""
  ${If} $0 != ""
  ${AndIf} $0 != "${PROJECT_TYPE}"
    WriteRegStr SHCTX "Software\Classes\.tsav" "${EARLIER_TYPE}" $0
  ${EndIf}
  WriteRegStr SHCTX "Software\Classes\.tsav" "" "${PROJECT_TYPE}"
  WriteRegStr SHCTX "Software\Classes\${PROJECT_TYPE}" "" "$(ProjectName)"
  WriteRegStr SHCTX "Software\Classes\${PROJECT_TYPE}\DefaultIcon" "" "$INSTDIR\bin\trelonit.exe,0"
  WriteRegStr SHCTX "Software\Classes\${PROJECT_TYPE}\shell\open\command" "" \
    '"$INSTDIR\bin\trelonit.exe" "%1"'
  !insertmacro TellExplorer
SectionEnd

Section "Uninstall"
  !insertmacro WaitForEnd
  ; File by file: what the user has put beside them stays.
  !include "${FILES}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  ${If} $MultiUser.InstallMode == "CurrentUser"
    ; Only where no other program is left in it.
    RMDir "$LOCALAPPDATA\Programs"
  ${EndIf}
  Delete "$SMPROGRAMS\Trelonit.lnk"
  Delete "$DESKTOP\Trelonit.lnk"

  ReadRegStr $0 SHCTX "Software\Classes\.tsav" ""
  ${If} $0 == "${PROJECT_TYPE}"
    ReadRegStr $1 SHCTX "Software\Classes\.tsav" "${EARLIER_TYPE}"
    DeleteRegValue SHCTX "Software\Classes\.tsav" "${EARLIER_TYPE}"
    ${If} $1 == ""
      DeleteRegValue SHCTX "Software\Classes\.tsav" ""
      DeleteRegKey /ifempty SHCTX "Software\Classes\.tsav"
    ${Else}
      WriteRegStr SHCTX "Software\Classes\.tsav" "" $1
    ${EndIf}
  ${EndIf}
  DeleteRegKey SHCTX "Software\Classes\${PROJECT_TYPE}"
  DeleteRegKey SHCTX "${PATH_KEY}"
  DeleteRegKey SHCTX "${UNINSTALL_KEY}"
  !insertmacro TellExplorer
SectionEnd
