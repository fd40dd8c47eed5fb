; The setup program. It is for one user and asks for no administrator. Neither it nor the uninstaller replaces or deletes
; a file that the user has made or changed; only programs, manual and licences are always those of setup. The macros of ${FILES} list the files (list_files.py).
;
; Both are silent with /S. They end with 2 where they cannot do it, as while the program runs.

Target amd64-unicode
ManifestDPIAware true
ManifestSupportedOS Win10
RequestExecutionLevel user
SetCompressor /SOLID lzma
SetDateSave off
AllowSkipFiles off

Name Halvenmoor
OutFile "${SETUP}"
BrandingText "Halvenmoor ${VERSION}"
!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Halvenmoor"
InstallDir "$LOCALAPPDATA\Programs\Halvenmoor"
InstallDirRegKey HKCU "${KEY}" InstallLocation

VIProductVersion "${VERSION}.0.0"
VIAddVersionKey ProductName Halvenmoor
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileDescription "Halvenmoor Setup"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey CompanyName "The Halvenmoor developers"
VIAddVersionKey LegalCopyright "MIT licence"

!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh
!include WinVer.nsh

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${NSISDIR}/Contrib/Graphics/Wizard/nsis3-grey.bmp"
!define MUI_DIRECTORYPAGE_TEXT_TOP "Your camera files and exports will be in this folder, too."
!define MUI_FINISHPAGE_RUN "$INSTDIR\halvenmoor.exe"
!define MUI_UNCONFIRMPAGE_TEXT_TOP "Halvenmoor will be removed. Files that you have made or changed stay where they are."
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

!macro AddFile source path
    File "/oname=$INSTDIR\${path}" "${source}"
!macroend

!macro AddIfAbsent source path
    ${IfNot} ${FileExists} "$INSTDIR\${path}"
        !insertmacro AddFile "${source}" "${path}"
    ${EndIf}
!macroend

!macro RemoveIfUnchanged source path
    File "/oname=$PLUGINSDIR\original" "${source}"
    StrCpy $0 "$INSTDIR\${path}"
    Call un.RemoveIfUnchanged
!macroend

!include "${FILES}"

; The file of a program that runs cannot be opened to write.
!macro EnsureClosed program
    ${DoWhile} ${FileExists} "$INSTDIR\${program}"
        ClearErrors
        FileOpen $0 "$INSTDIR\${program}" a
        ${IfNot} ${Errors}
            FileClose $0
            ${Break}
        ${EndIf}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Halvenmoor is running. Please close it first." \
            /SD IDCANCEL IDRETRY +3
        SetErrorLevel 2
        Quit
    ${Loop}
!macroend

Function .onInit
    ${IfNot} ${AtLeastWin10}
        MessageBox MB_OK|MB_ICONSTOP "Halvenmoor needs Windows 10 or 11." /SD IDOK
        SetErrorLevel 2
        Quit
    ${EndIf}
FunctionEnd

Section
    !insertmacro EnsureClosed halvenmoor.exe
    !insertmacro EnsureClosed halvenmoor-batch.exe

    ${DirState} "$INSTDIR" $0
    ${If} $0 = 1 ; it has files, and none of them come from here
    ${AndIfNot} ${FileExists} "$INSTDIR\demo\*.*"
    ${AndIfNot} ${FileExists} "$INSTDIR\asc\*.*"
        MessageBox MB_OK|MB_ICONSTOP "There are other files in $INSTDIR. Please choose a folder of its own." /SD IDOK
        SetErrorLevel 2
        Quit
    ${EndIf}

    ; An older version goes first, with what the user has not changed of it.
    InitPluginsDir
    ${If} ${FileExists} "$INSTDIR\uninstall.exe"
        CopyFiles /SILENT "$INSTDIR\uninstall.exe" "$PLUGINSDIR\uninstall.exe"
        ExecWait '"$PLUGINSDIR\uninstall.exe" /S /UPDATE _?=$INSTDIR'
    ${EndIf}

    SetOutPath "$INSTDIR"
    ${IfNot} ${FileExists} "$INSTDIR\demo\asc_demo\*.*" ; else an example that the user has renamed would come back
        CreateDirectory "$INSTDIR\demo\asc_demo"
        !insertmacro AddExamples
    ${EndIf}
    !insertmacro AddFolders
    !insertmacro AddProgramFiles
    !insertmacro AddUserFiles

    CreateDirectory "$SMPROGRAMS\Halvenmoor"
    CreateShortCut "$SMPROGRAMS\Halvenmoor\Halvenmoor.lnk" "$INSTDIR\halvenmoor.exe"
    CreateShortCut "$SMPROGRAMS\Halvenmoor\Halvenmoor Files.lnk" "$INSTDIR"
    CreateShortCut "$SMPROGRAMS\Halvenmoor\Halvenmoor Manual.lnk" "$INSTDIR\manual.html"

    WriteUninstaller "$INSTDIR\uninstall.exe"
    WriteRegStr HKCU "${KEY}" DisplayName Halvenmoor
    WriteRegStr HKCU "${KEY}" DisplayVersion "${VERSION}"
    WriteRegStr HKCU "${KEY}" DisplayIcon "$INSTDIR\halvenmoor.exe"
    WriteRegStr HKCU "${KEY}" Publisher "The Halvenmoor developers"
    WriteRegStr HKCU "${KEY}" InstallLocation "$INSTDIR"
    WriteRegStr HKCU "${KEY}" UninstallString '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${KEY}" EstimatedSize ${KILOBYTES}
    WriteRegDWORD HKCU "${KEY}" NoModify 1
    WriteRegDWORD HKCU "${KEY}" NoRepair 1
SectionEnd

; Deletes the file $0 if it has the bytes of $PLUGINSDIR\original.
Function un.RemoveIfUnchanged
    ${IfNot} ${FileExists} "$0"
        Return
    ${EndIf}
    ClearErrors
    FileOpen $1 "$0" r
    FileOpen $2 "$PLUGINSDIR\original" r
    ${If} ${Errors} ; what cannot be read is not known to be unchanged
        Return
    ${EndIf}
    ${Do}
        FileReadByte $1 $3
        FileReadByte $2 $4 ; empty at the end
        ${If} $3 != $4
        ${OrIf} $4 == ""
            ${Break}
        ${EndIf}
    ${Loop}
    FileClose $1
    FileClose $2
    ${If} $3 == $4
        Delete "$0"
    ${Else}
        DetailPrint "Yours, so it stays: $0"
    ${EndIf}
FunctionEnd

Section Uninstall
    !insertmacro EnsureClosed halvenmoor.exe
    !insertmacro EnsureClosed halvenmoor-batch.exe
    InitPluginsDir
    !insertmacro RemoveProgramFiles
    !insertmacro RemoveUserFiles

    ClearErrors
    ${GetParameters} $0
    ${GetOptions} $0 "/UPDATE" $1
    ${IfNot} ${Errors}
        Return
    ${EndIf}

    !insertmacro RemoveExamples
    Delete "$INSTDIR\uninstall.exe"
    SetOutPath "$TEMP" ; a folder in use cannot be removed
    !insertmacro RemoveFolders ; those that are empty
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Halvenmoor\Halvenmoor.lnk"
    Delete "$SMPROGRAMS\Halvenmoor\Halvenmoor Files.lnk"
    Delete "$SMPROGRAMS\Halvenmoor\Halvenmoor Manual.lnk"
    RMDir "$SMPROGRAMS\Halvenmoor"
    DeleteRegKey HKCU "${KEY}"
    ${If} ${FileExists} "$INSTDIR\*.*"
        MessageBox MB_OK|MB_ICONINFORMATION "Files that you have made or changed are still in $INSTDIR." /SD IDOK
    ${EndIf}
SectionEnd
