; The installer's own texts; those of its standard pages come with NSIS.
!macro Texts language
  !define L "${LANG_${language}}"
!macroend
!macro EndTexts
  !undef L
!macroend

!insertmacro Texts ENGLISH
LangString IsRunning ${L} "Folivant is running. Close it and try again."
LangString AdministratorOnly ${L} "Only an administrator can do this for all users."
LangString ScopeTitle ${L} "Who will use Folivant?"
LangString ScopeQuestion ${L} "Installing for all users requires administrator rights."
LangString ScopeUser ${L} "Only &me"
LangString ScopeAll ${L} "&All users of this computer"
LangString ProgramHint ${L} "The program, its languages and the manual."
LangString ListWith ${L} "List with Folivant"
LangString ListWithHint ${L} "Adds this entry to the shortcut menu of folders and drives."
LangString FilterFile ${L} "Folivant filter file"
LangString SettingsTitle ${L} "Settings"
LangString SettingsQuestion ${L} "Your settings can be kept for a later installation."
LangString SettingsToo ${L} "&Delete my settings too"
!insertmacro EndTexts

!insertmacro Texts DUTCH
LangString IsRunning ${L} "Folivant is actief. Sluit het programma en probeer het opnieuw."
LangString AdministratorOnly ${L} "Alleen een beheerder kan dit voor alle gebruikers doen."
LangString ScopeTitle ${L} "Wie gaat Folivant gebruiken?"
LangString ScopeQuestion ${L} "Installatie voor alle gebruikers vereist beheerdersrechten."
LangString ScopeUser ${L} "Alleen &ik"
LangString ScopeAll ${L} "&Alle gebruikers van deze computer"
LangString ProgramHint ${L} "Het programma, de talen en de handleiding."
LangString ListWith ${L} "Lijst maken met Folivant"
LangString ListWithHint ${L} "Voegt deze opdracht toe aan het snelmenu van mappen en stations."
LangString FilterFile ${L} "Folivant-filterbestand"
LangString SettingsTitle ${L} "Instellingen"
LangString SettingsQuestion ${L} "Uw instellingen kunnen bewaard blijven voor een latere installatie."
LangString SettingsToo ${L} "Ook mijn instellingen &verwijderen"
!insertmacro EndTexts

!insertmacro Texts GERMAN
LangString IsRunning ${L} "Folivant läuft noch. Beenden Sie das Programm und versuchen Sie es erneut."
LangString AdministratorOnly ${L} "Nur ein Administrator kann dies für alle Benutzer tun."
LangString ScopeTitle ${L} "Wer wird Folivant benutzen?"
LangString ScopeQuestion ${L} "Die Installation für alle Benutzer erfordert Administratorrechte."
LangString ScopeUser ${L} "Nur &ich"
LangString ScopeAll ${L} "&Alle Benutzer dieses Computers"
LangString ProgramHint ${L} "Das Programm, seine Sprachen und das Handbuch."
LangString ListWith ${L} "Mit Folivant auflisten"
LangString ListWithHint ${L} "Fügt diesen Eintrag dem Kontextmenü von Ordnern und Laufwerken hinzu."
LangString FilterFile ${L} "Folivant-Filterdatei"
LangString SettingsTitle ${L} "Einstellungen"
LangString SettingsQuestion ${L} "Ihre Einstellungen können für eine spätere Installation erhalten bleiben."
LangString SettingsToo ${L} "Auch meine Einstellungen &löschen"
!insertmacro EndTexts

!insertmacro Texts FRENCH
LangString IsRunning ${L} "Folivant est en cours d'exécution. Fermez-le puis réessayez."
LangString AdministratorOnly ${L} "Seul un administrateur peut effectuer cette opération pour tous les utilisateurs."
LangString ScopeTitle ${L} "Qui utilisera Folivant ?"
LangString ScopeQuestion ${L} "L'installation pour tous les utilisateurs nécessite des droits d'administrateur."
LangString ScopeUser ${L} "&Moi seulement"
LangString ScopeAll ${L} "&Tous les utilisateurs de cet ordinateur"
LangString ProgramHint ${L} "Le programme, ses langues et le manuel."
LangString ListWith ${L} "Lister avec Folivant"
LangString ListWithHint ${L} "Ajoute cette commande au menu contextuel des dossiers et des lecteurs."
LangString FilterFile ${L} "Fichier de filtre Folivant"
LangString SettingsTitle ${L} "Paramètres"
LangString SettingsQuestion ${L} "Vos paramètres peuvent être conservés pour une installation ultérieure."
LangString SettingsToo ${L} "&Supprimer aussi mes paramètres"
!insertmacro EndTexts

!insertmacro Texts SPANISH
LangString IsRunning ${L} "Folivant se está ejecutando. Ciérrelo e inténtelo de nuevo."
LangString AdministratorOnly ${L} "Solo un administrador puede hacer esto para todos los usuarios."
LangString ScopeTitle ${L} "¿Quién usará Folivant?"
LangString ScopeQuestion ${L} "La instalación para todos los usuarios requiere permisos de administrador."
LangString ScopeUser ${L} "Solo &yo"
LangString ScopeAll ${L} "&Todos los usuarios de este equipo"
LangString ProgramHint ${L} "El programa, sus idiomas y el manual."
LangString ListWith ${L} "Listar con Folivant"
LangString ListWithHint ${L} "Añade esta opción al menú contextual de carpetas y unidades."
LangString FilterFile ${L} "Archivo de filtro de Folivant"
LangString SettingsTitle ${L} "Configuración"
LangString SettingsQuestion ${L} "Su configuración puede conservarse para una instalación posterior."
LangString SettingsToo ${L} "&Eliminar también mi configuración"
!insertmacro EndTexts

!insertmacro Texts ITALIAN
LangString IsRunning ${L} "Folivant è in esecuzione. Chiuderlo e riprovare."
LangString AdministratorOnly ${L} "Solo un amministratore può farlo per tutti gli utenti."
LangString ScopeTitle ${L} "Chi userà Folivant?"
LangString ScopeQuestion ${L} "L'installazione per tutti gli utenti richiede diritti di amministratore."
LangString ScopeUser ${L} "Solo &io"
LangString ScopeAll ${L} "&Tutti gli utenti di questo computer"
LangString ProgramHint ${L} "Il programma, le lingue e il manuale."
LangString ListWith ${L} "Elenca con Folivant"
LangString ListWithHint ${L} "Aggiunge questo comando al menu di scelta rapida di cartelle e unità."
LangString FilterFile ${L} "File di filtro di Folivant"
LangString SettingsTitle ${L} "Impostazioni"
LangString SettingsQuestion ${L} "Le impostazioni possono essere mantenute per un'installazione futura."
LangString SettingsToo ${L} "&Elimina anche le mie impostazioni"
!insertmacro EndTexts

!insertmacro Texts PORTUGUESE
LangString IsRunning ${L} "O Folivant está em execução. Feche-o e tente de novo."
LangString AdministratorOnly ${L} "Só um administrador pode fazer isto para todos os utilizadores."
LangString ScopeTitle ${L} "Quem vai usar o Folivant?"
LangString ScopeQuestion ${L} "A instalação para todos os utilizadores requer direitos de administrador."
LangString ScopeUser ${L} "Só &eu"
LangString ScopeAll ${L} "&Todos os utilizadores deste computador"
LangString ProgramHint ${L} "O programa, os idiomas e o manual."
LangString ListWith ${L} "Listar com o Folivant"
LangString ListWithHint ${L} "Adiciona este comando ao menu de contexto de pastas e unidades."
LangString FilterFile ${L} "Ficheiro de filtro do Folivant"
LangString SettingsTitle ${L} "Definições"
LangString SettingsQuestion ${L} "As suas definições podem ser mantidas para uma instalação posterior."
LangString SettingsToo ${L} "&Eliminar também as minhas definições"
!insertmacro EndTexts

!insertmacro Texts POLISH
LangString IsRunning ${L} "Program Folivant jest uruchomiony. Zamknij go i spróbuj ponownie."
LangString AdministratorOnly ${L} "Tylko administrator może to zrobić dla wszystkich użytkowników."
LangString ScopeTitle ${L} "Kto będzie używać programu Folivant?"
LangString ScopeQuestion ${L} "Instalacja dla wszystkich użytkowników wymaga uprawnień administratora."
LangString ScopeUser ${L} "Tylko &ja"
LangString ScopeAll ${L} "&Wszyscy użytkownicy tego komputera"
LangString ProgramHint ${L} "Program, jego języki i podręcznik."
LangString ListWith ${L} "Utwórz listę w programie Folivant"
LangString ListWithHint ${L} "Dodaje to polecenie do menu kontekstowego folderów i dysków."
LangString FilterFile ${L} "Plik filtru programu Folivant"
LangString SettingsTitle ${L} "Ustawienia"
LangString SettingsQuestion ${L} "Ustawienia można zachować na potrzeby późniejszej instalacji."
LangString SettingsToo ${L} "&Usuń także moje ustawienia"
!insertmacro EndTexts

!insertmacro Texts RUSSIAN
LangString IsRunning ${L} "Программа Folivant запущена. Закройте её и повторите попытку."
LangString AdministratorOnly ${L} "Только администратор может сделать это для всех пользователей."
LangString ScopeTitle ${L} "Кто будет пользоваться Folivant?"
LangString ScopeQuestion ${L} "Для установки для всех пользователей нужны права администратора."
LangString ScopeUser ${L} "Только &я"
LangString ScopeAll ${L} "&Все пользователи этого компьютера"
LangString ProgramHint ${L} "Программа, языки и руководство."
LangString ListWith ${L} "Создать список в Folivant"
LangString ListWithHint ${L} "Добавляет эту команду в контекстное меню папок и дисков."
LangString FilterFile ${L} "Файл фильтра Folivant"
LangString SettingsTitle ${L} "Параметры"
LangString SettingsQuestion ${L} "Параметры можно сохранить для последующей установки."
LangString SettingsToo ${L} "&Удалить также мои параметры"
!insertmacro EndTexts
