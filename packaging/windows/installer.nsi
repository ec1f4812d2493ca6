; The installer: makensis -DNAME=... -DVENDOR=... -DVERSION=... -DSTAGE=FOLDER -DSETUP=ryx-setup.exe -DSIGN=COMMAND
; -DICON=... -DLICENSE=... -DCOMPRESSION=... -DOUT=... installer.nsi
;
;   /S      says nothing and asks nothing
;   /FORCE  installs over a newer version
;
; It installs into one place, which only administrators may write; what stands there is the product's alone. With an
; exit code that is not 0 nothing has been changed.
!define NEWER_INSTALLED 21
!define OTHER_PACKAGE 22
!define NOT_WRITTEN 23 ; and what ryx-setup says: 20, in use; 23
!define NOT_ALONE 24

!define PRODUCT_KEY "Software\${VENDOR}\${NAME}"
!define EVENT_KEY "SYSTEM\CurrentControlSet\Services\EventLog\Application\${NAME}"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"

Target amd64-unicode
Name "${NAME}"
OutFile "${OUT}"
RequestExecutionLevel admin
ManifestDPIAware true
BrandingText "${VENDOR}"
SetCompressor ${COMPRESSION}
VIProductVersion "${VERSION}"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${NAME} installer"
VIAddVersionKey "CompanyName" "${VENDOR}"
VIAddVersionKey "LegalCopyright" "Copyright (c) ${VENDOR}"
!uninstfinalize '"${SIGN}" "%1"' = 0

!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh
!include WordFunc.nsh
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!insertmacro MUI_PAGE_LICENSE "${LICENSE}"
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!include installer-texts.nsh

Var turn

!macro GiveTurn
    ${If} $turn != ""
        FileClose $turn
        Delete "$INSTDIR.lock"
    ${EndIf}
!macroend

!macro Fail text code
    !insertmacro GiveTurn
    MessageBox MB_OK|MB_ICONSTOP "${text}" /SD IDOK
    SetErrorLevel ${code}
    Quit
!macroend

; One at a time: two would take each other's new files for waste. The turn ends with this process at the latest.
!macro TakeTurn
    ClearErrors
    FileOpen $turn "$INSTDIR.lock" w
    ${If} ${Errors}
        StrCpy $turn ""
        !insertmacro Fail $(NotAlone) ${NOT_ALONE}
    ${EndIf}
!macroend

; Lets ryx-setup do its work on the installed product; its exit code is in $0 then.
!macro RunSetup arguments
    InitPluginsDir
    SetOutPath "$PLUGINSDIR"
    File "/oname=ryx-setup.exe" "${SETUP}"
    nsExec::ExecToLog '"$PLUGINSDIR\ryx-setup.exe" ${arguments}'
    Pop $0
    SetOutPath "$TEMP" ; the folder of plug-ins could not be removed at the end
    ${If} $0 == "error" ; it could not even be started
        StrCpy $0 ${NOT_WRITTEN}
    ${EndIf}
!macroend

; Whatever the command line says about the place.
!macro KnowPlaces
    SetRegView 64
    SetShellVarContext all
    StrCpy $INSTDIR "$PROGRAMFILES64\${NAME}"
!macroend

Function .onInit
    !insertmacro KnowPlaces
    ReadRegStr $0 HKLM "${PRODUCT_KEY}" "Package"
    ${If} $0 == "msi"
        !insertmacro Fail $(OtherPackage) ${OTHER_PACKAGE}
    ${EndIf}
    ReadRegStr $0 HKLM "${PRODUCT_KEY}" "Version"
    ${VersionCompare} "$0" "${VERSION}" $1
    ${GetParameters} $2
    ClearErrors
    ${GetOptions} $2 "/FORCE" $3
    ${If} ${Errors}
    ${AndIf} $1 = 1
        !insertmacro Fail $(NewerInstalled) ${NEWER_INSTALLED}
    ${EndIf}
FunctionEnd

; Everything is written beside the installed product first, which goes on running meanwhile.
Section
    !insertmacro TakeTurn
    RMDir /r "$INSTDIR.new"
    ClearErrors
    SetOverwrite try
    SetOutPath "$INSTDIR.new"
    File /r "${STAGE}/*"
    WriteUninstaller "$INSTDIR.new\Uninstall.exe"
    ${If} ${Errors}
        SetOutPath "$TEMP"
        RMDir /r "$INSTDIR.new"
        !insertmacro Fail $(NotWritten) ${NOT_WRITTEN}
    ${EndIf}
    !insertmacro RunSetup 'share "$APPDATA\${NAME}"' ; of all users
    ${If} $0 != 0
        RMDir /r "$INSTDIR.new"
        !insertmacro Fail $(NotWritten) $0
    ${EndIf}
    !insertmacro RunSetup 'replace "$INSTDIR" "$INSTDIR.new"'
    ${If} $0 != 0
        RMDir /r "$INSTDIR.new"
        !insertmacro Fail $(InUse) $0
    ${EndIf}

    SetOutPath "$WINDIR" ; where the program starts in: not in a folder that is to be replaced some day
    CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\velmora-ryx.exe"
    WriteRegStr HKLM "${PRODUCT_KEY}" "Package" "exe"
    WriteRegStr HKLM "${PRODUCT_KEY}" "Version" "${VERSION}"
    WriteRegExpandStr HKLM "${EVENT_KEY}" "EventMessageFile" "%SystemRoot%\System32\EventCreate.exe"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "${NAME}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\velmora-ryx.exe"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "Publisher" "${VENDOR}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
    WriteRegStr HKLM "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "EstimatedSize" $0
    !insertmacro GiveTurn
SectionEnd

; When a file could not be unpacked, as on a full disk.
Function .onInstFailed
    SetOutPath "$TEMP"
    RMDir /r "$INSTDIR.new"
    !insertmacro GiveTurn
    SetErrorLevel ${NOT_WRITTEN}
FunctionEnd

Function un.onInit
    !insertmacro KnowPlaces
FunctionEnd

Section un.Install
    !insertmacro TakeTurn
    !insertmacro RunSetup 'end "$INSTDIR"'
    ${If} $0 != 0
        !insertmacro Fail $(InUse) $0
    ${EndIf}
    RMDir /r "$INSTDIR" ; but for the uninstaller, when it does not run in a copy of itself
    RMDir /r "$INSTDIR.old"
    RMDir /r "$INSTDIR.new"
    Delete "$SMPROGRAMS\${NAME}.lnk"
    DeleteRegKey HKLM "${UNINSTALL_KEY}"
    DeleteRegKey HKLM "${EVENT_KEY}"
    DeleteRegKey HKLM "${PRODUCT_KEY}"
    DeleteRegKey /ifempty HKLM "Software\${VENDOR}"
    !insertmacro GiveTurn
SectionEnd
