; The installer. The maker passes VERSION, OUT (the file to write), FOLDER (what is to be installed)
; and REMOVALS (a list of Delete and RMDir, one for each file and folder in it).
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel admin ; the word list goes to C:\, the program to Program Files
ManifestDPIAware true

!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh

!define WORD_LIST "C:\Lexicon.txt"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Quorvel2"
!define LIST_IS_OURS "WordListInstalled"

Name "Quorvel2"
OutFile "${OUT}"
InstallDir "$PROGRAMFILES64\Quorvel2"
InstallDirRegKey HKLM "${ENTRY}" "InstallLocation"
BrandingText "Quorvel2 ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Quorvel2"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Installs Quorvel2"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "Under the MIT licence"

!define MUI_ICON "..\quorvel2.ico"
!define MUI_UNICON "..\quorvel2.ico"
!define MUI_WELCOMEPAGE_TEXT "This puts Quorvel2 ${VERSION} on your computer, for everybody who uses \
it, and its word list at ${WORD_LIST}.$\r$\n$\r$\nIt needs an administrator, since only an \
administrator may write there. The game itself needs none."
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_TEXT "Quorvel2 is in the start menu, and $\"How to Play$\" beside it."
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; What the installer and the uninstaller share. The names of the latter's functions start with "un.".
!macro SHARED UN
Function ${UN}NeedAdministrator
    SetShellVarContext all
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 != "Admin"
        MessageBox MB_OK|MB_ICONSTOP "This needs an administrator." /SD IDOK
        SetErrorLevel 740 ; "elevation required", as Windows counts
        Quit
    ${EndIf}
FunctionEnd

; Leaves in $0 whether the list at C:\ is the one that came with the program: "same" or "other".
Function ${UN}CompareLists
    StrCpy $0 "other"
    FileOpen $1 "${WORD_LIST}" r
    FileOpen $2 "$INSTDIR\Lexicon.txt" r
    ${If} $1 != ""
    ${AndIf} $2 != ""
        ${Do}
            FileRead $1 $3
            FileRead $2 $4
            ${If} "$3" S!= "$4"
                ${Break}
            ${ElseIf} "$3" == "" ; the end of both
                StrCpy $0 "same"
                ${Break}
            ${EndIf}
        ${Loop}
    ${EndIf}
    FileClose $1
    FileClose $2
FunctionEnd
!macroend
!insertmacro SHARED ""
!insertmacro SHARED "un."

Function .onInit
    Call NeedAdministrator
FunctionEnd

Function un.onInit
    Call un.NeedAdministrator
FunctionEnd

Function PutWordList
    ${If} ${FileExists} "${WORD_LIST}"
        Call CompareLists
        ${If} $0 == "same"
            Return
        ${EndIf}
        MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "There is another word list at \
${WORD_LIST}. Replace it by the list of this version?" /SD IDNO IDYES replace
        Return
    replace:
    ${EndIf}
    ClearErrors
    CopyFiles /SILENT "$INSTDIR\Lexicon.txt" "${WORD_LIST}"
    ${If} ${Errors}
        MessageBox MB_OK|MB_ICONSTOP "${WORD_LIST} cannot be written." /SD IDOK
        SetErrorLevel 5 ; "access denied"
        Return
    ${EndIf}
    WriteRegDWORD HKLM "${ENTRY}" "${LIST_IS_OURS}" 1
FunctionEnd

Section
    ; What an earlier version has put there goes, but for the word list.
    ${If} ${FileExists} "$INSTDIR\uninstall.exe"
        ExecWait '"$INSTDIR\uninstall.exe" /S /KEEPLIST _?=$INSTDIR' $0
        ${If} $0 != 0
            MessageBox MB_OK|MB_ICONSTOP "Quorvel2 is open. Close it, then install it." /SD IDOK
            SetErrorLevel 32 ; "in use"
            Quit
        ${EndIf}
    ${EndIf}

    SetOutPath "$INSTDIR"
    File /r "${FOLDER}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    Call PutWordList

    CreateDirectory "$SMPROGRAMS\Quorvel2"
    CreateShortcut "$SMPROGRAMS\Quorvel2\Quorvel2.lnk" "$INSTDIR\quorvel2.exe"
    CreateShortcut "$SMPROGRAMS\Quorvel2\How to Play.lnk" "$INSTDIR\how-to-play\index.html"

    WriteRegStr HKLM "${ENTRY}" "DisplayName" "Quorvel2"
    WriteRegStr HKLM "${ENTRY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${ENTRY}" "DisplayIcon" "$INSTDIR\quorvel2.exe"
    WriteRegStr HKLM "${ENTRY}" "Publisher" "Quorvel2 maintainers"
    WriteRegStr HKLM "${ENTRY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${ENTRY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKLM "${ENTRY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKLM "${ENTRY}" "NoModify" 1
    WriteRegDWORD HKLM "${ENTRY}" "NoRepair" 1
SectionEnd

Section "Uninstall"
    ClearErrors
    Delete "$INSTDIR\quorvel2.exe" ; first, since it cannot go while the game is open
    ${If} ${Errors}
        MessageBox MB_OK|MB_ICONSTOP "Quorvel2 is open. Close it, then remove it." /SD IDOK
        SetErrorLevel 32 ; "in use"
        Quit
    ${EndIf}

    ${GetParameters} $5
    ClearErrors
    ${GetOptions} $5 "/KEEPLIST" $6
    ${If} ${Errors} ; no such option
        ReadRegDWORD $7 HKLM "${ENTRY}" "${LIST_IS_OURS}"
        Call un.CompareLists
        ${If} $7 == 1
        ${AndIf} $0 == "same"
            Delete "${WORD_LIST}"
        ${EndIf}
        DeleteRegKey HKLM "${ENTRY}"
    ${EndIf}

    !include "${REMOVALS}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Quorvel2\Quorvel2.lnk"
    Delete "$SMPROGRAMS\Quorvel2\How to Play.lnk"
    RMDir "$SMPROGRAMS\Quorvel2"
SectionEnd
