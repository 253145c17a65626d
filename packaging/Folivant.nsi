; The installer. Made by pack.sh, which defines VERSION, STAGE (the folder with the program's files), OUTPUT and FILES (a
; folder with install.nsh and files.lst, both made from STAGE).
;
;   Folivant-VERSION-setup.exe [/S] [/CurrentUser | /AllUsers] [/FolderEntry | /NoFolderEntry] [/D=FOLDER]
;   Uninstall.exe [/S] [/DeleteSettings]
;
; /S shows nothing. /D comes last and takes no quotes. Without a scope the installed copy is renewed where it is, and a
; first installation is for the current user alone, without elevation. Status 0: done, 1: cancelled or without the rights,
; 2: Folivant is running or a file cannot be written. The uninstaller's own start copies it elsewhere and ends with 0 at
; once; whoever wants to wait for the end gives it _?=FOLDER as its last argument, and deletes Uninstall.exe then. Both pass
; /Elevated to themselves when they start again as an administrator.
;
; Functions keep the registers of their callers.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS all

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include nsDialogs.nsh
!include Sections.nsh

Name "Folivant"
OutFile "${OUTPUT}"
BrandingText "Folivant ${VERSION}"
SetDateSave on
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Folivant"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Folivant set-up"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" ""

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Folivant"
!define CLASSES "Software\Classes"
!define SETTINGS_KEY "Software\Folivant 3.0"
; The shell's own drop handler for programs. It hands over names beyond the ANSI code page, which the one for scripts
; does not; that it prefers 8.3 names does no harm, as Folivant looks up the long names.
!define DROP_HANDLER "{86C86720-42A0-1069-A2E8-08002B30309D}"

Var Scope        ; "user" or "all"
Var GivenFolder  ; that of /D, which is no longer among the parameters
Var ForAll       ; the radio button
Var DropSettings ; the uninstaller's check box, then its state

!define MUI_ICON "..\src\res\pictures\folivant.ico"
!define MUI_UNICON "..\src\res\pictures\folivant.ico"
!define MUI_ABORTWARNING
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_FINISHPAGE_RUN "$INSTDIR\Folivant.exe"

!insertmacro MUI_PAGE_WELCOME
Page custom ScopePage ScopePageLeave
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH

!insertmacro MUI_UNPAGE_CONFIRM
UninstPage custom un.SettingsPage un.SettingsPageLeave
!insertmacro MUI_UNPAGE_INSTFILES

!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Dutch"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "Spanish"
!insertmacro MUI_LANGUAGE "Italian"
!insertmacro MUI_LANGUAGE "Portuguese"
!insertmacro MUI_LANGUAGE "Polish"
!insertmacro MUI_LANGUAGE "Russian"
!include texts.nsh

; ---------------------------------------------------------------------------------------------------------------------
; Shared by installer and uninstaller

!macro SharedFunctions un
; Deletes what $INSTDIR\files.lst names: one file a line, folders with a "\" at their end after what they hold. The list
; of the installed version is the one that counts, so an upgrade leaves nothing of its predecessor behind.
Function ${un}DeleteListedFiles
  Push $0
  Push $1
  Push $2
  ClearErrors
  FileOpen $0 "$INSTDIR\files.lst" r
  ${IfNot} ${Errors}
    ${Do}
      FileRead $0 $1
      ${If} ${Errors}
        ${ExitDo}
      ${EndIf}
      ${${un}TrimNewLines} $1 $1
      StrCpy $2 $1 1 -1
      ${If} $2 == "\"
        RMDir "$INSTDIR\$1"
      ${ElseIf} $1 != ""
        Delete "$INSTDIR\$1"
      ${EndIf}
      ClearErrors
    ${Loop}
    FileClose $0
    Delete "$INSTDIR\files.lst"
  ${EndIf}
  Pop $2
  Pop $1
  Pop $0
FunctionEnd

; For what takes an administrator: returns when this process is one. Otherwise the program on the stack is started as one,
; with the parameters on top of it, and this process waits and ends with the same status. Sets the error flag when the user,
; or the account, does not have it so.
Function ${un}BecomeAdministrator
  System::Store "Sr1r0"
  UserInfo::GetAccountType
  Pop $2
  ClearErrors
  ${If} $2 != "Admin"
    ${GetParameters} $2
    ClearErrors
    ${GetOptions} $2 "/Elevated" $3
    ${IfNot} ${Errors} ; not one even now: Windows asks nobody when its account control is off
      MessageBox MB_OK|MB_ICONSTOP "$(AdministratorOnly)" /SD IDOK
      SetErrors
    ${Else}
      ; A SHELLEXECUTEINFO: no message, no other thread, and the process' handle comes back.
      System::Call '*(i 112, i 0x540, p $HWNDPARENT, w "runas", w r0, w r1, p 0, p 1, p, p, p, p, p, p, p)p.r2'
      System::Call 'shell32::ShellExecuteExW(p r2)i.r3'
      ${If} $3 <> 0
        HideWindow
        System::Call '*$2(i, i, p, p, p, p, p, p, p, p, p, p, p, p, p.r3)'
        System::Call 'kernel32::WaitForSingleObject(p r3, i -1)'
        System::Call 'kernel32::GetExitCodeProcess(p r3, *i.r4)'
        SetErrorLevel $4
        Quit
      ${EndIf}
      System::Free $2
      SetErrors
    ${EndIf}
  ${EndIf}
  System::Store L
FunctionEnd

; A program that runs keeps its file locked: better to say so than to leave half of it.
Function ${un}WaitUntilClosed
  Push $0
  ${DoWhile} ${FileExists} "$INSTDIR\Folivant.exe"
    ClearErrors
    FileOpen $0 "$INSTDIR\Folivant.exe" a
    ${IfNot} ${Errors}
      FileClose $0
      ${ExitDo}
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(IsRunning)" /SD IDCANCEL IDRETRY again
    SetErrorLevel 2
    Abort
    again:
  ${Loop}
  Pop $0
FunctionEnd

Function ${un}TellShell
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)' ; associations changed
FunctionEnd
!macroend

; TextFunc's trimming, in both halves
!include TextFunc.nsh
!insertmacro TrimNewLines
!insertmacro un.TrimNewLines
!insertmacro SharedFunctions ""
!insertmacro SharedFunctions "un."

; ---------------------------------------------------------------------------------------------------------------------
; Installer

Function UseScopeFolder
  ${If} $Scope == "all"
    SetShellVarContext all
  ${Else}
    SetShellVarContext current
  ${EndIf}
  StrCpy $INSTDIR $GivenFolder
  ${If} $INSTDIR == ""
    ReadRegStr $INSTDIR SHCTX "${UNINSTALL_KEY}" "InstallLocation"
  ${EndIf}
  ${If} $INSTDIR != ""
    Return
  ${EndIf}
  ${If} $Scope == "all"
    StrCpy $INSTDIR "$PROGRAMFILES64\Folivant"
  ${Else}
    StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Folivant"
  ${EndIf}
FunctionEnd

; Sets the error flag when the scope is for all users and this user may not change their folders.
Function CheckScope
  Push $0
  ClearErrors
  ${If} $Scope == "all"
    ${GetParameters} $0
    StrCpy $0 "$0 /AllUsers /Elevated"
    ${If} $GivenFolder != ""
      StrCpy $0 "$0 /D=$GivenFolder"
    ${EndIf}
    Push $EXEPATH
    Push $0
    Call BecomeAdministrator
  ${EndIf}
  Pop $0
FunctionEnd

Function ChooseScope
  Push $0
  Push $1
  StrCpy $Scope "user"
  ReadRegStr $0 HKLM "${UNINSTALL_KEY}" "InstallLocation"
  ReadRegStr $1 HKCU "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $0 != ""
  ${AndIf} $1 == ""
    StrCpy $Scope "all"
  ${EndIf}
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/CurrentUser" $1
  ${IfNot} ${Errors}
    StrCpy $Scope "user"
  ${EndIf}
  ClearErrors
  ${GetOptions} $0 "/AllUsers" $1
  ${IfNot} ${Errors}
    StrCpy $Scope "all"
  ${EndIf}
  Pop $1
  Pop $0
FunctionEnd

Function .onInit
  SetRegView 64
  StrCpy $GivenFolder $INSTDIR
  Call ChooseScope
  Call CheckScope
  ${If} ${Errors}
    SetErrorLevel 1
    Quit
  ${EndIf}
  Call UseScopeFolder
  Call ChooseFolderEntry
FunctionEnd

Function ScopePage
  !insertmacro MUI_HEADER_TEXT "$(ScopeTitle)" "$(ScopeQuestion)"
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateRadioButton} 10u 20u 280u 12u "$(ScopeUser)"
  Pop $1
  ${NSD_CreateRadioButton} 10u 40u 280u 12u "$(ScopeAll)"
  Pop $ForAll
  ${If} $Scope == "all"
    ${NSD_Check} $ForAll
    ${NSD_SetFocus} $ForAll
  ${Else}
    ${NSD_Check} $1
    ${NSD_SetFocus} $1
  ${EndIf}
  nsDialogs::Show
FunctionEnd

Function ScopePageLeave
  StrCpy $R0 $Scope
  ${NSD_GetState} $ForAll $0
  ${If} $0 == ${BST_CHECKED}
    StrCpy $Scope "all"
  ${Else}
    StrCpy $Scope "user"
  ${EndIf}
  ${If} $Scope == $R0
    Return
  ${EndIf}
  Call CheckScope
  ${If} ${Errors}
    StrCpy $Scope $R0
    Abort
  ${EndIf}
  Call UseScopeFolder
FunctionEnd

Section "Folivant" Program
  SectionIn RO
  Call WaitUntilClosed
  Call DeleteListedFiles
  !include "${FILES}/install.nsh"
  SetOutPath "$INSTDIR"
  File "${FILES}/files.lst"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateShortCut "$SMPROGRAMS\Folivant.lnk" "$INSTDIR\Folivant.exe"

  ; The drop target in the Send To folder. %2 is the first of the sent items; without quotes of our own, as the shell
  ; may or may not keep those of a name with blanks, and Folivant takes the rest of its line as one name either way.
  WriteRegStr SHCTX "${CLASSES}\.s2f" "" "Folivant.SendTo"
  WriteRegStr SHCTX "${CLASSES}\Folivant.SendTo" "" "Folivant"
  WriteRegStr SHCTX "${CLASSES}\Folivant.SendTo" "NeverShowExt" ""
  WriteRegStr SHCTX "${CLASSES}\Folivant.SendTo\DefaultIcon" "" "$INSTDIR\Folivant.exe,0"
  WriteRegStr SHCTX "${CLASSES}\Folivant.SendTo\shell\open\command" "" '"$INSTDIR\Folivant.exe" %2'
  WriteRegStr SHCTX "${CLASSES}\Folivant.SendTo\shellex\DropHandler" "" "${DROP_HANDLER}"

  WriteRegStr SHCTX "${CLASSES}\.fvf" "" "Folivant.FilterFile"
  WriteRegStr SHCTX "${CLASSES}\Folivant.FilterFile" "" "$(FilterFile)"
  WriteRegStr SHCTX "${CLASSES}\Folivant.FilterFile\DefaultIcon" "" "$INSTDIR\Folivant.exe,0"
  WriteRegStr SHCTX "${CLASSES}\Folivant.FilterFile\shell\open\command" "" '"$INSTDIR\Folivant.exe" /f "%1"'

  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "Folivant"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\Folivant.exe,0"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "Folivant"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

!macro FolderEntry action class
  !if ${action} == "write"
    WriteRegStr SHCTX "${CLASSES}\${class}\shell\Folivant" "" "$(ListWith)"
    WriteRegStr SHCTX "${CLASSES}\${class}\shell\Folivant" "Icon" "$INSTDIR\Folivant.exe,0"
    WriteRegStr SHCTX "${CLASSES}\${class}\shell\Folivant\command" "" '"$INSTDIR\Folivant.exe" "%1"'
  !else
    DeleteRegKey SHCTX "${CLASSES}\${class}\shell\Folivant"
  !endif
!macroend

Section /o "$(ListWith)" FolderEntry
  !insertmacro FolderEntry "write" "Directory"
  !insertmacro FolderEntry "write" "Drive"
SectionEnd

Section "-last"
  ${IfNot} ${SectionIsSelected} ${FolderEntry} ; given up on an upgrade
    !insertmacro FolderEntry "delete" "Directory"
    !insertmacro FolderEntry "delete" "Drive"
  ${EndIf}
  Call TellShell
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${Program} "$(ProgramHint)"
  !insertmacro MUI_DESCRIPTION_TEXT ${FolderEntry} "$(ListWithHint)"
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; As the switch says, else as it was installed before.
Function ChooseFolderEntry
  Push $0
  Push $1
  Push $2
  ReadRegStr $0 SHCTX "${CLASSES}\Directory\shell\Folivant\command" ""
  ${GetParameters} $1
  ClearErrors
  ${GetOptions} $1 "/FolderEntry" $2
  ${IfNot} ${Errors}
    StrCpy $0 "yes"
  ${EndIf}
  ClearErrors
  ${GetOptions} $1 "/NoFolderEntry" $2
  ${IfNot} ${Errors}
    StrCpy $0 ""
  ${EndIf}
  ${If} $0 != ""
    !insertmacro SelectSection ${FolderEntry}
  ${EndIf}
  Pop $2
  Pop $1
  Pop $0
FunctionEnd

; ---------------------------------------------------------------------------------------------------------------------
; Uninstaller

Function un.onInit
  SetRegView 64
  SetShellVarContext current
  StrCpy $DropSettings 0
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/DeleteSettings" $1
  ${IfNot} ${Errors}
    StrCpy $DropSettings 1
  ${EndIf}
  ReadRegStr $1 HKLM "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $1 != $INSTDIR
    Return
  ${EndIf}
  SetShellVarContext all
  StrCpy $0 "$0 /Elevated"
  ${If} $EXEDIR == $INSTDIR ; by one who waits for the end
    StrCpy $0 "$0 _?=$INSTDIR"
  ${EndIf}
  Push "$INSTDIR\Uninstall.exe"
  Push $0
  Call un.BecomeAdministrator
  ${If} ${Errors}
    SetErrorLevel 1
    Quit
  ${EndIf}
FunctionEnd

Function un.SettingsPage
  !insertmacro MUI_HEADER_TEXT "$(SettingsTitle)" "$(SettingsQuestion)"
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateCheckBox} 10u 20u 280u 12u "$(SettingsToo)"
  Pop $1
  StrCpy $R1 $1
  ${If} $DropSettings == 1
    ${NSD_Check} $1
  ${EndIf}
  nsDialogs::Show
FunctionEnd

Function un.SettingsPageLeave
  ${NSD_GetState} $R1 $DropSettings
FunctionEnd

Section "Uninstall"
  Call un.WaitUntilClosed
  ExecWait '"$INSTDIR\Folivant.exe" /deletesendto'
  Call un.DeleteListedFiles
  Delete "$SMPROGRAMS\Folivant.lnk"
  ; What runs leave in the folder for temporary files
  Delete "$TEMP\~fv00001.tmp"
  Delete "$TEMP\~fv00002.tmp"
  Delete "$TEMP\~fv00003.tmp"

  ; An extension that another program has taken over in the meantime stays with it.
  ReadRegStr $0 SHCTX "${CLASSES}\.s2f" ""
  ${If} $0 == "Folivant.SendTo"
    DeleteRegKey SHCTX "${CLASSES}\.s2f"
  ${EndIf}
  ReadRegStr $0 SHCTX "${CLASSES}\.fvf" ""
  ${If} $0 == "Folivant.FilterFile"
    DeleteRegKey SHCTX "${CLASSES}\.fvf"
  ${EndIf}
  DeleteRegKey SHCTX "${CLASSES}\Folivant.SendTo"
  DeleteRegKey SHCTX "${CLASSES}\Folivant.FilterFile"
  !insertmacro FolderEntry "delete" "Directory"
  !insertmacro FolderEntry "delete" "Drive"
  DeleteRegKey SHCTX "${UNINSTALL_KEY}"
  ${If} $DropSettings == 1
    DeleteRegKey HKCU "${SETTINGS_KEY}"
  ${EndIf}
  Call un.TellShell
  Delete "$INSTDIR\Uninstall.exe"
  RMDir "$INSTDIR"
SectionEnd
