; Facetta's installer for 64-bit Windows, made by scripts/package, which defines
;   VERSION  such as 1.1.0
;   STAGE    the folder with the files to install
;   ART      the folder with icon.ico and side.bmp
;   OUTPUT   the installer to write
;
; Interactive: the user ticks the host's installations that are to have the plug-in, or names a folder.
; Silent: /S installs in every installation that was found, or with /D=FOLDER in FOLDER alone; what has
; been installed before is replaced where it lies. Exit status: 0 done, 1 cancelled, 2 nothing done (no
; folder to install in, one that cannot be written, or a file that a running host holds).
;
; All that is remembered of an installation is its folder, a value under FOLDERS; the uninstaller removes
; our own files there, then its entry in the system's list of programs and itself.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
RequestExecutionLevel admin

!include MUI2.nsh
!include nsDialogs.nsh
!include LogicLib.nsh
!include FileFunc.nsh

!define VENDOR "Norvane Graphics"
!define PRODUCT "Facetta"
!define MANUAL "Facetta User Manual.pdf"
!define SETTINGS "Software\${VENDOR}\${PRODUCT}"
!define FOLDERS "${SETTINGS}\Folders"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${PRODUCT}"
!define HOST "Adobe Illustrator"
!define HOST_PROGRAM "Illustrator.exe"
!define NOTHING_DONE 2
!define MOST_FOLDERS 8 ; rows that the page has room for

Name "${PRODUCT} ${VERSION}"
OutFile "${OUTPUT}"
BrandingText "${PRODUCT} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${PRODUCT}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "${PRODUCT} ${VERSION} Setup"
VIAddVersionKey LegalCopyright "The Facetta authors"

; Empty unless the command line has /D=: then the one folder to install in.
InstallDir ""

Var Count     ; folders offered, at most MOST_FOLDERS; $PLUGINSDIR\folders.ini names them
Var Found     ; a folder that has been found, on its way into the list
Var Done      ; folders installed in
Var Path      ; of one row

!define MUI_ABORTWARNING
!define MUI_ICON "${ART}\icon.ico"
!define MUI_UNICON "${ART}\icon.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${ART}\side.bmp"
!define MUI_WELCOMEFINISHPAGE_BITMAP_STRETCH AspectFitHeight
!define MUI_WELCOMEPAGE_TEXT "Facetta gives ${HOST} symmetry: draw one wedge, and the whole rosette stands there.$\r$\n$\r$\nPlease close ${HOST} before you go on. Your drawings and settings stay as they are."
!define MUI_FINISHPAGE_TEXT "Start ${HOST} and choose the tool, or Window > Facetta Panel.$\r$\n$\r$\nHelp > Norvane Graphics > Help... opens the manual."
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${STAGE}\LICENSE.txt"
Page custom showFolders takeFolders
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; ---- The folders that are offered

!macro readRow N
    ReadINIStr $Path "$PLUGINSDIR\folders.ini" folders "${N}"
!macroend

; Adds the folder in $Found once, whatever its case and however it ends.
Function offer
    Push $0
    Push $1
    ${If} $Found == ""
    ${OrIf} $Count >= ${MOST_FOLDERS}
        Goto done
    ${EndIf}
    StrCpy $0 0
    ${While} $0 < $Count
        IntOp $0 $0 + 1
        ReadINIStr $1 "$PLUGINSDIR\folders.ini" folders $0
        ${If} $1 == $Found
            Goto done
        ${EndIf}
    ${EndWhile}
    IntOp $Count $Count + 1
    WriteINIStr "$PLUGINSDIR\folders.ini" folders $Count $Found
done:
    Pop $1
    Pop $0
FunctionEnd

; Offers the plug-ins folder of the host whose program or folder, or one within it, $Found names: it
; lies beside the program or in a folder above it.
Function offerHost
    Push $0
    StrCpy $0 $Found
    ${While} $0 != ""
        ${If} ${FileExists} "$0\Plug-ins\*.*"
            StrCpy $Found "$0\Plug-ins\${PRODUCT}"
            Call offer
            ${Break}
        ${EndIf}
        ${GetParent} $0 $0
    ${EndWhile}
    Pop $0
FunctionEnd

; Every text value of every key below ROOT may name a place in the host's folder; those that do not
; lead to no plug-ins folder.
!macro searchKeys ROOT
    StrCpy $0 0
    ${Do}
        EnumRegKey $1 HKLM "${ROOT}" $0
        ${If} $1 == ""
            ${Break}
        ${EndIf}
        StrCpy $2 0
        ${Do}
            ClearErrors
            EnumRegValue $3 HKLM "${ROOT}\$1" $2
            ${If} ${Errors}
                ${Break}
            ${EndIf}
            ReadRegStr $Found HKLM "${ROOT}\$1" $3
            Call offerHost
            IntOp $2 $2 + 1
        ${Loop}
        IntOp $0 $0 + 1
    ${Loop}
!macroend

; What has been installed before comes first, then what the registry names, then the usual places.
Function findFolders
    StrCpy $Count 0
    StrCpy $0 0
    ${Do}
        ClearErrors
        EnumRegValue $1 HKLM "${FOLDERS}" $0
        ${If} $1 == ""
            ${Break}
        ${EndIf}
        ${If} ${FileExists} "$1\*.*"
            StrCpy $Found $1
            Call offer
        ${EndIf}
        IntOp $0 $0 + 1
    ${Loop}
    !insertmacro searchKeys "Software\Adobe\Illustrator"
    !insertmacro searchKeys "Software\Adobe\Adobe Illustrator"
    ReadRegStr $Found HKLM "Software\Microsoft\Windows\CurrentVersion\App Paths\${HOST_PROGRAM}" ""
    Call offerHost
    FindFirst $0 $1 "$PROGRAMFILES64\Adobe\${HOST}*"
    ${DoWhile} $1 != ""
        StrCpy $Found "$PROGRAMFILES64\Adobe\$1"
        Call offerHost
        FindNext $0 $1
    ${Loop}
    FindClose $0
    ClearErrors
FunctionEnd

; ---- The page with the folders: a box to tick for each, and a field for another

Var Dialog
Var Other
Var Control

Function showFolders
    !insertmacro MUI_HEADER_TEXT "Where Facetta Goes" "Choose the installations of ${HOST} that are to have the plug-in."
    nsDialogs::Create 1018
    Pop $Dialog
    StrCpy $0 0
    ${While} $0 < $Count
        IntOp $1 $0 * 13
        IntOp $0 $0 + 1
        !insertmacro readRow $0
        ${NSD_CreateCheckBox} 0 $1u 100% 12u $Path
        Pop $Control
        ${NSD_Check} $Control
        WriteINIStr "$PLUGINSDIR\folders.ini" boxes $0 $Control
    ${EndWhile}
    ${If} $Count = 0
        ${NSD_CreateLabel} 0 0 100% 12u "No installation was found. Please name its plug-ins folder."
        Pop $Control
    ${EndIf}
    ${NSD_CreateLabel} 0 112u 100% 10u "&Another folder:"
    Pop $Control
    ${NSD_CreateText} 0 123u 78% 13u ""
    Pop $Other
    ${NSD_CreateButton} 80% 122u 20% 15u "&Browse..."
    Pop $Control
    ${NSD_OnClick} $Control browse
    nsDialogs::Show
FunctionEnd

Function browse
    Pop $Control
    nsDialogs::SelectFolderDialog "The folder of plug-ins that Facetta goes into" "$PROGRAMFILES64"
    Pop $Path
    ${If} $Path != error
        ${NSD_SetText} $Other "$Path\${PRODUCT}"
    ${EndIf}
FunctionEnd

; Keeps the rows that are ticked, and the other folder.
Function takeFolders
    StrCpy $0 0
    StrCpy $1 $Count
    StrCpy $Count 0
    ${While} $0 < $1
        IntOp $0 $0 + 1
        ReadINIStr $Control "$PLUGINSDIR\folders.ini" boxes $0
        ${NSD_GetState} $Control $2
        !insertmacro readRow $0
        DeleteINIStr "$PLUGINSDIR\folders.ini" folders $0
        ${If} $2 = ${BST_CHECKED}
            StrCpy $Found $Path
            Call offer
        ${EndIf}
    ${EndWhile}
    ${NSD_GetText} $Other $Found
    Call offer
    ${If} $Count = 0
        MessageBox MB_OK|MB_ICONEXCLAMATION "Please choose an installation, or name another folder."
        Call findFolders
        Abort
    ${EndIf}
FunctionEnd

; ---- Hosts that run

; Asks until no process is called HOST_PROGRAM, or the user gives up: a host that runs holds the old
; library, and does not find the new one before its next start. A silent run does not ask: it goes on,
; and fails where a file is held.
!macro askToCloseHost PREFIX
Function ${PREFIX}hostRuns ; $R0 = 1 when it does
    StrCpy $R0 0
    ; A snapshot of all processes; PROCESSENTRY32W has 568 bytes, the name at 44.
    System::Call 'kernel32::CreateToolhelp32Snapshot(i 2, i 0) p .R1'
    System::Alloc 568
    Pop $R2
    System::Call '*$R2(i 568)'
    System::Call 'kernel32::Process32FirstW(p R1, p R2) i .R3'
    ${While} $R3 <> 0
        System::Call '*$R2(i, i, i, p, i, i, i, i, i, &w260 .R4)'
        ${If} $R4 == "${HOST_PROGRAM}"
            StrCpy $R0 1
            ${Break}
        ${EndIf}
        System::Call 'kernel32::Process32NextW(p R1, p R2) i .R3'
    ${EndWhile}
    System::Free $R2
    System::Call 'kernel32::CloseHandle(p R1)'
FunctionEnd

Function ${PREFIX}askToCloseHost
    IfSilent done
again:
    Call ${PREFIX}hostRuns
    ${If} $R0 = 1
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${HOST} is running. Please save your work and close it." IDRETRY again
        Abort
    ${EndIf}
done:
FunctionEnd
!macroend
!insertmacro askToCloseHost ""
!insertmacro askToCloseHost "un."

; ---- Installing

Function .onInit
    SetRegView 64
    SetShellVarContext all
    InitPluginsDir
    ${If} $INSTDIR != ""
        StrCpy $Count 0
        StrCpy $Found $INSTDIR
        Call offer
    ${Else}
        Call findFolders
    ${EndIf}
    StrCpy $INSTDIR "$PROGRAMFILES64\${VENDOR}\${PRODUCT}" ; of the uninstaller
FunctionEnd

; The library goes last: a host never finds one without what belongs beside it. It is moved into its
; place, so that it is there whole or not at all.
Function installInPath
    ClearErrors
    SetOutPath $Path
    ${If} ${Errors}
        Return
    ${EndIf}
    SetOverwrite try
    File "${STAGE}\${MANUAL}"
    File "${STAGE}\LICENSE.txt"
    File "${STAGE}\README.txt"
    SetOutPath "$Path\Examples"
    File "${STAGE}\Examples\*.svg"
    SetOutPath $Path
    File "/oname=Facetta.new" "${STAGE}\Facetta.aip"
    ${If} ${Errors}
        Delete "$Path\Facetta.new"
        SetErrors
        Return
    ${EndIf}
    System::Call 'kernel32::MoveFileExW(w "$Path\Facetta.new", w "$Path\Facetta.aip", i 9) i .r0'
    ${If} $0 = 0
        Delete "$Path\Facetta.new"
        SetErrors
        Return
    ${EndIf}
    WriteRegStr HKLM "${FOLDERS}" $Path ${VERSION}
    IntOp $Done $Done + 1
FunctionEnd

Section
    Call askToCloseHost
    StrCpy $Done 0
    StrCpy $9 0
    ${While} $9 < $Count
        IntOp $9 $9 + 1
        !insertmacro readRow $9
    again:
        Call installInPath
        ${If} ${Errors}
            MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Facetta could not be written to$\r$\n$Path$\r$\nIs a program open that uses it, or does the folder belong to somebody else?" /SD IDCANCEL IDRETRY again
            SetErrorLevel ${NOTHING_DONE}
            ${Break}
        ${EndIf}
    ${EndWhile}
    SetOutPath $TEMP ; a folder that is the current one cannot be removed
    ${If} $Done = 0
        SetErrorLevel ${NOTHING_DONE}
        Abort "Nothing was installed."
    ${EndIf}
    SetOutPath $INSTDIR
    File "/oname=Facetta.ico" "${ART}\icon.ico"
    SetOutPath $TEMP
    WriteUninstaller "$INSTDIR\Uninstall.exe"
    WriteRegStr HKLM "${ENTRY}" DisplayName "${PRODUCT}"
    WriteRegStr HKLM "${ENTRY}" DisplayVersion "${VERSION}"
    WriteRegStr HKLM "${ENTRY}" DisplayIcon "$INSTDIR\Facetta.ico"
    WriteRegStr HKLM "${ENTRY}" Publisher "${VENDOR}"
    WriteRegStr HKLM "${ENTRY}" UninstallString '"$INSTDIR\Uninstall.exe"'
    WriteRegStr HKLM "${ENTRY}" QuietUninstallString '"$INSTDIR\Uninstall.exe" /S'
    WriteRegDWORD HKLM "${ENTRY}" NoModify 1
    WriteRegDWORD HKLM "${ENTRY}" NoRepair 1
    SectionGetSize 0 $0
    IntOp $0 $0 * $Done
    WriteRegDWORD HKLM "${ENTRY}" EstimatedSize $0
SectionEnd

; ---- Removing

Function un.onInit
    SetRegView 64
    SetShellVarContext all
FunctionEnd

!macro deleteExample NAME
    Delete "$Path\Examples\${NAME}.svg"
    Delete "$Path\Examples\${NAME}-wedge.svg"
!macroend

Section Uninstall
    Call un.askToCloseHost
    ; A folder whose library cannot be deleted stays remembered, and with it the uninstaller.
    StrCpy $9 0
    StrCpy $8 0
    ${Do}
        ClearErrors
        EnumRegValue $Path HKLM "${FOLDERS}" $9
        ${If} $Path == ""
            ${Break}
        ${EndIf}
        Delete "$Path\Facetta.aip"
        ${If} ${FileExists} "$Path\Facetta.aip"
            IntOp $9 $9 + 1
            StrCpy $8 1
        ${Else}
            Delete "$Path\${MANUAL}"
            Delete "$Path\LICENSE.txt"
            Delete "$Path\README.txt"
            !insertmacro deleteExample rosette
            !insertmacro deleteExample mandala
            !insertmacro deleteExample snowflake
            !insertmacro deleteExample leaves
            !insertmacro deleteExample tile
            !insertmacro deleteExample star
            RMDir "$Path\Examples"
            RMDir $Path ; only when it is empty: what else lies there is the user's
            DeleteRegValue HKLM "${FOLDERS}" $Path
        ${EndIf}
    ${Loop}
    ${If} $8 = 1
        SetErrorLevel ${NOTHING_DONE}
        Abort "A program that is open holds Facetta. Please close it and try again."
    ${EndIf}
    DeleteRegKey HKLM "${SETTINGS}"
    DeleteRegKey /ifempty HKLM "Software\${VENDOR}"
    DeleteRegKey HKLM "${ENTRY}"
    Delete "$INSTDIR\Facetta.ico"
    Delete "$INSTDIR\Uninstall.exe"
    RMDir $INSTDIR
    RMDir "$PROGRAMFILES64\${VENDOR}"
SectionEnd
