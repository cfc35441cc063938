<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Facebook</source>
        <translation>Facebook</translation>
    </message>
    <message>
        <source>Twitter</source>
        <translation>Twitter</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>Made by %1</source>
        <comment>%1 is the maker&apos;s name</comment>
        <translation>Twórca: %1</translation>
    </message>
</context>
<context>
    <name>AccessManager</name>
    <message>
        <source>Not a web address: %1</source>
        <translation>To nie jest adres internetowy: %1</translation>
    </message>
    <message>
        <source>%1 asked for a pause and can be asked again in %2 s.</source>
        <comment>%1 is a host name</comment>
        <translation>%1 prosi o przerwę; kolejne zapytanie będzie możliwe za %2 s.</translation>
    </message>
    <message>
        <source>The proxy wants a log-in of a kind that is not known here.</source>
        <translation>Serwer proxy wymaga nieobsługiwanego sposobu uwierzytelniania.</translation>
    </message>
    <message>
        <source>The proxy asks for a log-in for some pages only, which is not supported.</source>
        <translation>Serwer pośredniczący wymaga logowania tylko przy niektórych stronach, co nie jest obsługiwane.</translation>
    </message>
</context>
<context>
    <name>AddDialogs</name>
    <message>
        <source>Select file(s) to add</source>
        <translation>Wybór plików do dodania</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Pliki dźwiękowe</translation>
    </message>
    <message>
        <source>Select folder to add</source>
        <translation>Wybór katalogu do dodania</translation>
    </message>
</context>
<context>
    <name>AudioPreview</name>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>No preview: the Qt module QtMultimedia is missing (package qml-module-qtmultimedia).</source>
        <translation>Odsłuch jest niedostępny: brakuje modułu QtMultimedia (pakiet qml-module-qtmultimedia).</translation>
    </message>
    <message>
        <source>This file cannot be played here.</source>
        <translation>Tego pliku nie można tutaj odtworzyć.</translation>
    </message>
</context>
<context>
    <name>ConsentBar</name>
    <message>
        <source>May usage events be sent to the maker? Those about searches name artist and title.</source>
        <translation>Czy wysyłać twórcy programu raporty o użytkowaniu? Raporty o wyszukiwaniach zawierają wykonawcę i tytuł.</translation>
    </message>
    <message>
        <source>What is sent?</source>
        <translation>Co jest wysyłane?</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Pokaż przykładowy raport o użytkowaniu</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>Yes, send usage events</source>
        <translation>Tak, wysyłaj raporty o użytkowaniu</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>No, send nothing</source>
        <translation>Nie, niczego nie wysyłaj</translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message numerus="yes">
        <source>Selected %n files</source>
        <translation>
            <numerusform>Zaznaczono %n plik</numerusform>
            <numerusform>Zaznaczono %n pliki</numerusform>
            <numerusform>Zaznaczono %n plików</numerusform>
        </translation>
    </message>
    <message>
        <source>No file is selected</source>
        <translation>Nie zaznaczono żadnego pliku</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Exit and install</source>
        <translation>Zakończ i zainstaluj</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>Aktualizacja %1</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Postęp pobierania</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Pobieranie aktualizacji...</translation>
    </message>
    <message>
        <source>Ready to install...</source>
        <translation>Gotowe do instalacji...</translation>
    </message>
    <message>
        <source>%1 MB of %2 MB</source>
        <translation>%1 MB z %2 MB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Installing...</source>
        <translation>Instalowanie...</translation>
    </message>
</context>
<context>
    <name>EditableField</name>
    <message>
        <source>&lt;empty&gt;</source>
        <translation>&lt;puste&gt;</translation>
    </message>
    <message>
        <source>Enter to apply</source>
        <translation>Enter, aby zastosować</translation>
    </message>
    <message>
        <source>not saved yet (Ctrl+S saves)</source>
        <translation>jeszcze nie zapisano (Ctrl+S zapisuje)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>All files here have lyrics and are hidden</source>
        <translation>Wszystkie pliki mają tekst i są ukryte</translation>
    </message>
    <message>
        <source>Drop music files or folders here</source>
        <translation>Przeciągnij tutaj pliki muzyczne lub katalogi</translation>
    </message>
    <message>
        <source>Add files...</source>
        <translation>Dodaj pliki...</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>Dodaj katalog...</translation>
    </message>
</context>
<context>
    <name>ExitWidget</name>
    <message>
        <source>Do you want to quit anyway?</source>
        <translation>Czy mimo to zakończyć program?</translation>
    </message>
    <message numerus="yes">
        <source>Search for %n songs is currently in progress.</source>
        <translation>
            <numerusform>Trwa wyszukiwanie tekstu dla %n utworu.</numerusform>
            <numerusform>Trwa wyszukiwanie tekstów dla %n utworów.</numerusform>
            <numerusform>Trwa wyszukiwanie tekstów dla %n utworów.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileItemDelegate</name>
    <message>
        <source>%1, %2, %3</source>
        <comment>title, artist and how the song stands</comment>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>No title</source>
        <translation>Brak tytułu</translation>
    </message>
    <message>
        <source>No artist</source>
        <translation>Brak wykonawcy</translation>
    </message>
    <message>
        <source>Show in the file manager</source>
        <translation>Pokaż w menedżerze plików</translation>
    </message>
</context>
<context>
    <name>LimitedReply</name>
    <message>
        <source>The server refuses to answer (HTTP %1).</source>
        <translation>Serwer odmawia odpowiedzi (HTTP %1).</translation>
    </message>
    <message>
        <source>The server has no such page (HTTP %1).</source>
        <translation>Na serwerze nie ma takiej strony (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is asked too often (HTTP %1).</source>
        <translation>Serwer otrzymuje zbyt wiele zapytań (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is out of order (HTTP %1).</source>
        <translation>Awaria serwera (HTTP %1).</translation>
    </message>
    <message>
        <source>The server cannot answer the request (HTTP %1).</source>
        <translation>Serwer nie może odpowiedzieć na żądanie (HTTP %1).</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>Żądanie zostało anulowane.</translation>
    </message>
    <message>
        <source>The server has been silent for %1 seconds.</source>
        <translation>Serwer nie odpowiada od %1 s.</translation>
    </message>
    <message>
        <source>The server took longer than %1 seconds.</source>
        <translation>Serwer odpowiadał dłużej niż %1 s.</translation>
    </message>
    <message>
        <source>The answer is packed in a way that is not known here.</source>
        <translation>Odpowiedź jest skompresowana w nieobsługiwany sposób.</translation>
    </message>
    <message>
        <source>The answer arrived damaged.</source>
        <translation>Odpowiedź dotarła uszkodzona.</translation>
    </message>
    <message>
        <source>The connection broke before the whole answer had arrived.</source>
        <translation>Połączenie zostało przerwane przed otrzymaniem całej odpowiedzi.</translation>
    </message>
    <message>
        <source>The answer is larger than %1.</source>
        <translation>Odpowiedź jest większa niż %1.</translation>
    </message>
    <message>
        <source>The site&apos;s certificate is not trusted.</source>
        <translation>Certyfikat serwisu nie jest zaufany.</translation>
    </message>
    <message>
        <source>No secure connection to the site could be made.</source>
        <translation>Nie udało się nawiązać bezpiecznego połączenia z serwisem.</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message numerus="yes">
        <source>Scanning folder(s) for music files (found %n)</source>
        <translation>
            <numerusform>Wyszukiwanie plików muzycznych w katalogach (znaleziono: %n)</numerusform>
            <numerusform>Wyszukiwanie plików muzycznych w katalogach (znaleziono: %n)</numerusform>
            <numerusform>Wyszukiwanie plików muzycznych w katalogach (znaleziono: %n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message numerus="yes">
        <source>Hidden %n file(s) with lyrics</source>
        <translation>
            <numerusform>Ukryto %n plik z tekstem</numerusform>
            <numerusform>Ukryto %n pliki z tekstem</numerusform>
            <numerusform>Ukryto %n plików z tekstem</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>Show hidden files</source>
        <translation>Pokaż ukryte pliki</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń z listy</translation>
    </message>
    <message>
        <source>Remove hidden files from the list</source>
        <translation>Usuń z listy ukryte pliki</translation>
    </message>
</context>
<context>
    <name>LyricsEditGuard</name>
    <message>
        <source>The lyrics of “%1” have been changed.</source>
        <comment>%1 is the title of a song</comment>
        <translation>Tekst utworu „%1” został zmieniony.</translation>
    </message>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Czy zapisać zmiany?</translation>
    </message>
</context>
<context>
    <name>LyricsItem</name>
    <message>
        <source>This lyrics for:</source>
        <translation>Tekst dla:</translation>
    </message>
    <message>
        <source>“%1” – “%2”</source>
        <comment>artist and title</comment>
        <translation>„%1” – „%2”</translation>
    </message>
    <message>
        <source>These lyrics are very long; their beginning is shown.</source>
        <translation>Ten tekst jest bardzo długi; pokazano tylko jego początek.</translation>
    </message>
</context>
<context>
    <name>LyricsProvider</name>
    <message>
        <source>%1 redirects to something that is not a web page.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>Serwis %1 przekierowuje pod adres, który nie jest stroną internetową.</translation>
    </message>
    <message>
        <source>%1 redirects too often.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>Serwis %1 przekierowuje zbyt wiele razy.</translation>
    </message>
    <message>
        <source>%1 gave a page that holds no lyrics.</source>
        <translation>Serwis %1 zwrócił stronę bez tekstu utworu.</translation>
    </message>
</context>
<context>
    <name>LyricsSearch</name>
    <message>
        <source>The artist or title is too long to search for.</source>
        <translation>Wykonawca lub tytuł są zbyt długie, aby ich szukać.</translation>
    </message>
</context>
<context>
    <name>LyricsText</name>
    <message>
        <source>Lyrics</source>
        <translation>Tekst utworu</translation>
    </message>
</context>
<context>
    <name>LyricsToolbar</name>
    <message>
        <source>Edit lyrics (F2)</source>
        <translation>Edytuj tekst (F2)</translation>
    </message>
    <message>
        <source>Save lyrics (Ctrl+S)</source>
        <translation>Zapisz tekst (Ctrl+S)</translation>
    </message>
    <message>
        <source>Cancel editing (Esc)</source>
        <translation>Anuluj edycję (Esc)</translation>
    </message>
    <message>
        <source>Force to search lyrics (Ctrl+R)</source>
        <translation>Wymuś wyszukanie tekstu (Ctrl+R)</translation>
    </message>
    <message>
        <source>Copy lyrics to clipboard</source>
        <translation>Kopiuj tekst do schowka</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Szukaj tekstu w %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Mniejsza czcionka</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Większa czcionka</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Add file</source>
        <translation>Dodaj plik</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Dodaj katalog</translation>
    </message>
    <message>
        <source>Hide file(s) with lyrics</source>
        <translation>Ukryj pliki z tekstem</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Zaznacz wszystkie</translation>
    </message>
    <message>
        <source>Remove with lyrics</source>
        <translation>Usuń z listy pliki z tekstem</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Wyczyść listę</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Usuń z listy zaznaczone</translation>
    </message>
    <message>
        <source>Facebook</source>
        <translation>Facebook</translation>
    </message>
    <message>
        <source>Twitter</source>
        <translation>Twitter</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Strona internetowa</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Eksportuj tekst do pliku TXT</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Narzędzia</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Check for updates...</source>
        <translation>Sprawdź aktualizacje...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Widok</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>Pomo&amp;c</translation>
    </message>
</context>
<context>
    <name>MusixMatchProvider</name>
    <message>
        <source>%1 leads from one list of songs to the next.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>Serwis %1 odsyła z jednej listy utworów do kolejnej.</translation>
    </message>
    <message>
        <source>%1 gave a page that is too intricate to read.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>Serwis %1 zwrócił stronę zbyt złożoną, by ją odczytać.</translation>
    </message>
</context>
<context>
    <name>PlaybackSlider</name>
    <message>
        <source>Position in the song</source>
        <translation>Pozycja w utworze</translation>
    </message>
</context>
<context>
    <name>Proxy</name>
    <message>
        <source>The proxy does not take the connection.</source>
        <translation>Serwer proxy nie przyjmuje połączenia.</translation>
    </message>
    <message>
        <source>The proxy closed the connection.</source>
        <translation>Serwer proxy zamknął połączenie.</translation>
    </message>
    <message>
        <source>The proxy was not found.</source>
        <translation>Nie znaleziono serwera proxy.</translation>
    </message>
    <message>
        <source>The proxy did not answer in time.</source>
        <translation>Serwer proxy nie odpowiedział na czas.</translation>
    </message>
    <message>
        <source>The proxy refuses the user name or the password.</source>
        <translation>Serwer proxy odrzuca nazwę użytkownika lub hasło.</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>Serwer proxy nie działa.</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Host not found</source>
        <translation>Nie znaleziono hosta</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Połączenie odrzucone</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Przekroczono czas oczekiwania na połączenie</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>Przekroczono czas operacji na gnieździe</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Sieć jest nieosiągalna</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>Zdalny host zamknął połączenie</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>Z&amp;aznacz wszystko</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>Z&amp;większ</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Z&amp;mniejsz</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Szukaj w:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Katalog nadrzędny</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Utwórz nowy katalog</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Widok listy</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Widok szczegółowy</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nazwa pliku:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Pliki typu:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Katalog:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Otwórz</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Wybierz</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Katalogi</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Nie znaleziono pliku.
Proszę sprawdzić, czy podano poprawną nazwę pliku.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Nie znaleziono katalogu.
Proszę sprawdzić, czy podano poprawną nazwę katalogu.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Dysk</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Plik %1</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Ostatnie miejsca</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Pokaż: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Z&amp;mień nazwę</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Pokaż u&amp;kryte pliki</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nowy katalog</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nowy katalog</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Czy na pewno usunąć „%1”?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>„%1” jest chroniony przed zapisem.
Czy mimo to usunąć?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Nie udało się usunąć katalogu.</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Przejdź wstecz</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Przejdź dalej</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Przejdź do katalogu nadrzędnego</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Utwórz nowy katalog</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Przełącz na widok listy</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Przełącz na widok szczegółowy</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Panel boczny</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lista miejsc i zakładek</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Data modyfikacji</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
    <message>
        <source>Type</source>
        <comment>All other platforms</comment>
        <translation>Typ</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Zapisz</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Za&amp;mknij</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Zamknij bez zapisywania</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Host %1 not found</source>
        <translation>Nie znaleziono hosta %1</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Połączenie odrzucone</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Połączenie zamknięte</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Wytnij</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Wk&amp;lej</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Network unreachable</source>
        <translation>Sieć jest nieosiągalna</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>Host jest nieosiągalny</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Przekroczono czas oczekiwania na połączenie</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Połączenie odrzucone</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation>Błąd podczas przesyłania %1 – odpowiedź serwera: %2</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Odrzuć</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
</context>
<context>
    <name>QSocks5SocketEngine</name>
    <message>
        <source>TTL expired</source>
        <translation>Upłynął czas życia pakietu (TTL)</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopiuj adres &amp;odnośnika</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
    </message>
</context>
<context>
    <name>ReadFailure</name>
    <message>
        <source>this is not a regular file</source>
        <translation>to nie jest zwykły plik</translation>
    </message>
    <message>
        <source>the file is damaged: its tags have no end</source>
        <translation>plik jest uszkodzony: jego znaczniki nie mają końca</translation>
    </message>
    <message>
        <source>the file is damaged: its tags do not fit in memory</source>
        <translation>plik jest uszkodzony: jego znaczniki nie mieszczą się w pamięci</translation>
    </message>
    <message>
        <source>the disk reported an error while the file was read</source>
        <translation>dysk zgłosił błąd podczas odczytu pliku</translation>
    </message>
    <message>
        <source>the file is damaged: reading its tags ended in a crash</source>
        <translation>plik jest uszkodzony: odczyt jego znaczników zakończył się awarią</translation>
    </message>
    <message>
        <source>reading the tags of the file took too long</source>
        <translation>odczyt znaczników pliku trwał zbyt długo</translation>
    </message>
    <message>
        <source>reading the tags of the file gave nonsense</source>
        <translation>odczyt znaczników pliku dał bezsensowny wynik</translation>
    </message>
    <message>
        <source>the helper program that reads tags could not be started</source>
        <translation>nie udało się uruchomić programu pomocniczego, który odczytuje znaczniki</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>OpenGL settings</source>
        <translation>Ustawienia OpenGL</translation>
    </message>
    <message>
        <source>Select the method of OpenGL usage:</source>
        <translation>Sposób używania OpenGL:</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Wykrywanie automatyczne</translation>
    </message>
    <message>
        <source>OpenGL ES 2.0</source>
        <translation>OpenGL ES 2.0</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Programowo</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Zwykły OpenGL</translation>
    </message>
    <message>
        <source>Clear all settings</source>
        <translation>Wyczyść wszystkie ustawienia</translation>
    </message>
    <message>
        <source>Clear settings</source>
        <translation>Wyczyść ustawienia</translation>
    </message>
    <message>
        <source>All settings will be removed and returned to default values. Are you sure?</source>
        <translation>Wszystkie ustawienia zostaną usunięte i powrócą do wartości domyślnych. Czy kontynuować?</translation>
    </message>
    <message>
        <source>All settings were cleared. The program starts anew after OK.</source>
        <translation>Wszystkie ustawienia zostały wyczyszczone. Po naciśnięciu „OK” program uruchomi się od nowa.</translation>
    </message>
    <message>
        <source>The settings cannot be cleared: their file cannot be written.</source>
        <translation>Nie można wyczyścić ustawień: nie da się zapisać ich pliku.</translation>
    </message>
</context>
<context>
    <name>SceneWidget</name>
    <message>
        <source>The Qt module %1 is missing (package %2).</source>
        <translation>Brakuje modułu Qt %1 (pakiet %2).</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Język:</translation>
    </message>
    <message>
        <source>Restart is required to apply changes</source>
        <translation>Zmiany zaczną obowiązywać po ponownym uruchomieniu</translation>
    </message>
    <message>
        <source>Font size for lyrics:</source>
        <translation>Rozmiar czcionki tekstu:</translation>
    </message>
    <message>
        <source>Search in browser with:</source>
        <translation>Szukaj w przeglądarce przez:</translation>
    </message>
    <message>
        <source>insert a blank line at the beginning of lyrics</source>
        <translation>Wstawiaj pusty wiersz na początku tekstu</translation>
    </message>
    <message>
        <source>save files list on quit</source>
        <translation>Zapisuj listę plików przy zamykaniu</translation>
    </message>
    <message>
        <source>export lyrics to a TXT file automatically</source>
        <translation>Automatycznie eksportuj tekst do pliku TXT</translation>
    </message>
    <message>
        <source>look for new versions automatically</source>
        <translation>Automatycznie sprawdzaj dostępność nowych wersji</translation>
    </message>
    <message>
        <source>send usage events, with artists and titles</source>
        <translation>Wysyłaj raporty o użytkowaniu z wykonawcami i tytułami</translation>
    </message>
    <message>
        <source>Example...</source>
        <translation>Przykład...</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Pokaż przykładowy raport o użytkowaniu</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieć</translation>
    </message>
    <message>
        <source>Proxy:</source>
        <translation>Proxy:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adres:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Uwierzytelnianie</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nazwa użytkownika:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Hasło:</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Serwisy</translation>
    </message>
    <message>
        <source>Search order</source>
        <translation>Kolejność wyszukiwania</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Przenieś w górę</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Przenieś w dół</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Włącz</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatycznie</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Switched off by DO_NOT_TRACK</source>
        <translation>Wyłączone przez DO_NOT_TRACK</translation>
    </message>
    <message>
        <source>No proxy is used.</source>
        <translation>Serwer proxy nie jest używany.</translation>
    </message>
    <message>
        <source>No address: no proxy is used.</source>
        <translation>Brak adresu: serwer proxy nie jest używany.</translation>
    </message>
    <message>
        <source>The proxy is being tested...</source>
        <translation>Sprawdzanie serwera proxy...</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>Serwer proxy nie działa.</translation>
    </message>
    <message>
        <source>No error within %1 seconds.</source>
        <translation>Brak błędów w ciągu %1 s.</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Serwer proxy działa.</translation>
    </message>
    <message>
        <source>Not tested yet.</source>
        <translation>Jeszcze nie sprawdzono.</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Wyłącz</translation>
    </message>
    <message>
        <source>Warning!!! You have disabled all sources.</source>
        <translation>Uwaga!!! Wszystkie źródła są wyłączone.</translation>
    </message>
</context>
<context>
    <name>SongDetails</name>
    <message>
        <source>Artist:</source>
        <translation>Wykonawca:</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Wykonawca</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Tytuł:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Tytuł</translation>
    </message>
</context>
<context>
    <name>SongList</name>
    <message>
        <source>Songs</source>
        <translation>Utwory</translation>
    </message>
</context>
<context>
    <name>SongMenu</name>
    <message>
        <source>Force to search lyrics</source>
        <translation>Wymuś wyszukanie tekstu</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Eksportuj tekst do pliku TXT</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Usuń z listy zaznaczone</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Usuń z listy wszystkie</translation>
    </message>
    <message>
        <source>Copy file&apos;s path to clipboard</source>
        <translation>Kopiuj ścieżkę pliku do schowka</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Szukaj tekstu w %1</translation>
    </message>
</context>
<context>
    <name>SongState</name>
    <message>
        <source>cannot be read</source>
        <translation>nie można odczytać</translation>
    </message>
    <message>
        <source>has lyrics</source>
        <translation>ma tekst</translation>
    </message>
    <message>
        <source>no lyrics</source>
        <translation>brak tekstu</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>Tego pliku nie można odczytać.</translation>
    </message>
    <message>
        <source>no names</source>
        <translation>brak danych</translation>
    </message>
    <message>
        <source>queued</source>
        <translation>w kolejce</translation>
    </message>
    <message>
        <source>searching...</source>
        <translation>wyszukiwanie...</translation>
    </message>
    <message>
        <source>saving...</source>
        <translation>zapisywanie...</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>niepowodzenie</translation>
    </message>
    <message>
        <source>no lyrics found</source>
        <translation>nie znaleziono tekstu</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>nie zapisano</translation>
    </message>
    <message>
        <source>search failed</source>
        <translation>błąd wyszukiwania</translation>
    </message>
    <message>
        <source>in queue to search...</source>
        <translation>w kolejce do wyszukania...</translation>
    </message>
    <message>
        <source>saving the lyrics...</source>
        <translation>zapisywanie tekstu...</translation>
    </message>
    <message>
        <source>A search needs an artist and a title.</source>
        <translation>Do wyszukania tekstu trzeba podać wykonawcę i tytuł.</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>%1 is the reason</comment>
        <translation>Nie zapisano: %1</translation>
    </message>
</context>
<context>
    <name>SplitterHandle</name>
    <message>
        <source>Width of the list</source>
        <translation>Szerokość listy</translation>
    </message>
</context>
<context>
    <name>StateLine</name>
    <message>
        <source>search for lyrics</source>
        <translation>wyszukaj tekst</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Progress of the searches</source>
        <translation>Postęp wyszukiwania</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n left...</source>
        <translation>
            <numerusform>Wyszukiwanie... Pozostało: %n...</numerusform>
            <numerusform>Wyszukiwanie... Pozostało: %n...</numerusform>
            <numerusform>Wyszukiwanie... Pozostało: %n...</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings file is damaged. What could be read is used, but no copy could be made.</source>
        <translation>Plik ustawień jest uszkodzony. Użyto tego, co udało się odczytać, ale nie udało się utworzyć kopii.</translation>
    </message>
    <message>
        <source>The settings file was damaged. What could be read is kept; the damaged file is now %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Plik ustawień był uszkodzony. Zachowano to, co udało się odczytać; uszkodzony plik jest teraz tutaj: %1</translation>
    </message>
    <message>
        <source>The settings cannot be read or stored; changes last for this run only.</source>
        <translation>Nie można odczytać ani zapisać ustawień; zmiany będą obowiązywać tylko do zamknięcia programu.</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since their names are damaged or too long: %n</source>
        <translation>
            <numerusform>Pliki pominięte z powodu uszkodzonych lub zbyt długich nazw: %n</numerusform>
            <numerusform>Pliki pominięte z powodu uszkodzonych lub zbyt długich nazw: %n</numerusform>
            <numerusform>Pliki pominięte z powodu uszkodzonych lub zbyt długich nazw: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The list is full. Files left out: %n</source>
        <translation>
            <numerusform>Lista jest pełna. Pominięte pliki: %n</numerusform>
            <numerusform>Lista jest pełna. Pominięte pliki: %n</numerusform>
            <numerusform>Lista jest pełna. Pominięte pliki: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The last save was cut off. Songs that are again as they were before it: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Ostatni zapis został przerwany. Utwory przywrócone do stanu sprzed niego: %1</translation>
    </message>
    <message>
        <source>Copies from before a save that was cut off: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Kopie sprzed przerwanego zapisu: %1</translation>
    </message>
    <message>
        <source>A save was cut off, and these songs cannot be reached to undo it; it is tried again at each start: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Zapis został przerwany, a utwory, w których należy go cofnąć, są niedostępne; kolejna próba nastąpi przy każdym uruchomieniu: %1</translation>
    </message>
    <message numerus="yes">
        <source>Songs that could not be written: %n (%1)</source>
        <comment>%1 is the reason</comment>
        <translation>
            <numerusform>Utwory, których nie udało się zapisać: %n (%1)</numerusform>
            <numerusform>Utwory, których nie udało się zapisać: %n (%1)</numerusform>
            <numerusform>Utwory, których nie udało się zapisać: %n (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics could not be written to %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Nie udało się zapisać tekstu do pliku %1</translation>
    </message>
    <message>
        <source>There are no lyrics to export</source>
        <translation>Brak tekstów do wyeksportowania</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Whole copies of these songs: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Nienaruszone kopie tych utworów: %1</translation>
    </message>
    <message>
        <source>A save was cut off. Songs that are still being restored: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Zapis został przerwany. Utwory, które są jeszcze przywracane: %1</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs could not be exported</source>
        <translation>
            <numerusform>Nie udało się wyeksportować tekstu %n utworu</numerusform>
            <numerusform>Nie udało się wyeksportować tekstów %n utworów</numerusform>
            <numerusform>Nie udało się wyeksportować tekstów %n utworów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Lyrics exported to %n text files</source>
        <translation>
            <numerusform>Wyeksportowano tekst do %n pliku tekstowego</numerusform>
            <numerusform>Wyeksportowano teksty do %n plików tekstowych</numerusform>
            <numerusform>Wyeksportowano teksty do %n plików tekstowych</numerusform>
        </translation>
    </message>
    <message>
        <source>Lyrics exported to one text file</source>
        <translation>Wyeksportowano tekst do jednego pliku tekstowego</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since they are missing or of a kind that is not supported: %n</source>
        <translation>
            <numerusform>Pliki pominięte, ponieważ nie istnieją lub ich typ nie jest obsługiwany: %n</numerusform>
            <numerusform>Pliki pominięte, ponieważ nie istnieją lub ich typ nie jest obsługiwany: %n</numerusform>
            <numerusform>Pliki pominięte, ponieważ nie istnieją lub ich typ nie jest obsługiwany: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>the file is no longer there</source>
        <translation>plik już nie istnieje</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>to nie jest zwykły plik</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>plik jest tylko do odczytu</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>nie można otworzyć pliku</translation>
    </message>
    <message>
        <source>no audio was found in the file</source>
        <translation>w pliku nie znaleziono dźwięku</translation>
    </message>
    <message>
        <source>files of this format cannot hold lyrics</source>
        <translation>pliki w tym formacie nie mogą zawierać tekstu</translation>
    </message>
    <message>
        <source>the file is damaged, or built in an unusual way</source>
        <translation>plik jest uszkodzony lub ma nietypową budowę</translation>
    </message>
    <message>
        <source>there is not enough room on the disk</source>
        <translation>za mało miejsca na dysku</translation>
    </message>
    <message>
        <source>the file would become too large</source>
        <translation>plik stałby się zbyt duży</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>dysk zgłasza błąd</translation>
    </message>
    <message>
        <source>other entries of its tags would be lost</source>
        <translation>inne wpisy znaczników zostałyby utracone</translation>
    </message>
    <message>
        <source>the audio would not stay as it is</source>
        <translation>dźwięk nie pozostałby bez zmian</translation>
    </message>
    <message>
        <source>another program has changed the file</source>
        <translation>inny program zmienił plik</translation>
    </message>
    <message>
        <source>the disk failed; the file will be restored at the next start</source>
        <translation>awaria dysku; plik zostanie przywrócony przy następnym uruchomieniu</translation>
    </message>
    <message>
        <source>the file could not be saved</source>
        <translation>nie udało się zapisać pliku</translation>
    </message>
    <message>
        <source>an earlier save of the file was cut off and is not undone yet</source>
        <translation>wcześniejszy zapis pliku został przerwany i nie jest jeszcze cofnięty</translation>
    </message>
</context>
<context>
    <name>UnsavedLyricsGuard</name>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Czy zapisać zmiany?</translation>
    </message>
    <message>
        <source>The changed artist or title of one song is not in its file yet.</source>
        <translation>Zmieniony wykonawca lub tytuł jednego utworu nie jest jeszcze zapisany w pliku.</translation>
    </message>
    <message numerus="yes">
        <source>The changed artist or title of %n songs is not in their files yet.</source>
        <translation>
            <numerusform>Zmieniony wykonawca lub tytuł %n utworu nie jest jeszcze zapisany w pliku.</numerusform>
            <numerusform>Zmienieni wykonawcy lub tytuły %n utworów nie są jeszcze zapisane w plikach.</numerusform>
            <numerusform>Zmienieni wykonawcy lub tytuły %n utworów nie są jeszcze zapisane w plikach.</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics of one song are not in its file and stand in the list only.</source>
        <translation>Tekst jednego utworu nie jest zapisany w pliku i znajduje się tylko na liście.</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs are not in their files and stand in the list only.</source>
        <translation>
            <numerusform>Tekst %n utworu nie jest zapisany w pliku i znajduje się tylko na liście.</numerusform>
            <numerusform>Teksty %n utworów nie są zapisane w plikach i znajdują się tylko na liście.</numerusform>
            <numerusform>Teksty %n utworów nie są zapisane w plikach i znajdują się tylko na liście.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” could not be saved: %2</source>
        <comment>%1 is the title of a song, %2 the reason</comment>
        <translation>Nie udało się zapisać utworu „%1”: %2</translation>
    </message>
    <message>
        <source>it is still being written</source>
        <translation>zapis jeszcze trwa</translation>
    </message>
    <message>
        <source>The deleted lyrics of one song are still in its file.</source>
        <translation>Usunięty tekst jednego utworu jest nadal w pliku.</translation>
    </message>
    <message numerus="yes">
        <source>The deleted lyrics of %n songs are still in their files.</source>
        <translation>
            <numerusform>Usunięty tekst %n utworu jest nadal w pliku.</numerusform>
            <numerusform>Usunięte teksty %n utworów są nadal w plikach.</numerusform>
            <numerusform>Usunięte teksty %n utworów są nadal w plikach.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>%1 is the title of a song</comment>
        <translation>„%1”</translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <comment>other songs</comment>
        <translation>
            <numerusform>... i jeszcze %n</numerusform>
            <numerusform>... i jeszcze %n</numerusform>
            <numerusform>... i jeszcze %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnsavedTexts</name>
    <message>
        <source>Artist: %1</source>
        <translation>Wykonawca: %1</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translation>Tytuł: %1</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Download update</source>
        <comment>Action text</comment>
        <translation>Pobierz aktualizację</translation>
    </message>
    <message>
        <source>Cancel downloading</source>
        <comment>Action text</comment>
        <translation>Anuluj pobieranie</translation>
    </message>
    <message>
        <source>Exit and install update</source>
        <comment>Action text</comment>
        <translation>Zakończ i zainstaluj aktualizację</translation>
    </message>
    <message>
        <source>The server redirects to something that is not a web page.</source>
        <translation>Serwer przekierowuje pod adres, który nie jest stroną internetową.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Serwer przekierowuje zbyt wiele razy.</translation>
    </message>
    <message>
        <source>This build of the program knows no site to ask.</source>
        <translation>W tej kompilacji programu nie podano strony do sprawdzania aktualizacji.</translation>
    </message>
    <message>
        <source>Can&apos;t check for update: %1</source>
        <translation>Nie można sprawdzić dostępności aktualizacji: %1</translation>
    </message>
    <message>
        <source>Failed to parse version information data.</source>
        <comment>Updater error message</comment>
        <translation>Nie udało się przetworzyć informacji o wersji.</translation>
    </message>
    <message>
        <source>Can&apos;t get update: %1</source>
        <translation>Nie można pobrać aktualizacji: %1</translation>
    </message>
    <message>
        <source>The address of the setup file is not one that can be used.</source>
        <translation>Adres pliku instalacyjnego nie nadaje się do użycia.</translation>
    </message>
    <message>
        <source>The setup file has another size than the server said.</source>
        <translation>Plik instalacyjny ma inny rozmiar, niż podał serwer.</translation>
    </message>
    <message>
        <source>The server sent something else than the setup file.</source>
        <translation>Serwer wysłał coś innego niż plik instalacyjny.</translation>
    </message>
    <message>
        <source>The setup file is larger than it should be.</source>
        <translation>Plik instalacyjny jest większy, niż powinien być.</translation>
    </message>
    <message>
        <source>The server did not send the whole setup file.</source>
        <translation>Serwer nie wysłał całego pliku instalacyjnego.</translation>
    </message>
    <message>
        <source>Can&apos;t open file: %1</source>
        <translation>Nie można otworzyć pliku: %1</translation>
    </message>
    <message>
        <source>Can&apos;t install update</source>
        <translation>Nie można zainstalować aktualizacji</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message numerus="yes">
        <source>%n years</source>
        <translation>
            <numerusform>%n rok</numerusform>
            <numerusform>%n lata</numerusform>
            <numerusform>%n lat</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n months</source>
        <translation>
            <numerusform>%n miesiąc</numerusform>
            <numerusform>%n miesiące</numerusform>
            <numerusform>%n miesięcy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n dzień</numerusform>
            <numerusform>%n dni</numerusform>
            <numerusform>%n dni</numerusform>
        </translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Pomiń tę wersję</translation>
    </message>
    <message>
        <source>Remind later</source>
        <translation>Przypomnij później</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Zainstaluj aktualizację</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>Dostępna aktualizacja!</translation>
    </message>
    <message>
        <source>A new version of &lt;b&gt;%appName&lt;/b&gt; is available!</source>
        <translation>Dostępna jest nowa wersja programu &lt;b&gt;%appName&lt;/b&gt;!</translation>
    </message>
    <message>
        <source>%appName &lt;b&gt;%newVersion&lt;/b&gt; is available - you have &lt;b&gt;%oldVersion&lt;/b&gt;. Would you like to download it now?</source>
        <translation>Dostępna jest wersja &lt;b&gt;%newVersion&lt;/b&gt; programu %appName – zainstalowana to &lt;b&gt;%oldVersion&lt;/b&gt;. Czy pobrać ją teraz?</translation>
    </message>
    <message>
        <source>Your version was released more than &lt;b&gt;%releasePeriod&lt;/b&gt; ago.</source>
        <translation>Używaną wersję wydano ponad &lt;b&gt;%releasePeriod&lt;/b&gt; temu.</translation>
    </message>
    <message>
        <source>Since then, &lt;b&gt;%numUpdates&lt;/b&gt; versions have been released.</source>
        <translation>Liczba wersji wydanych od tego czasu: &lt;b&gt;%numUpdates&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Release notes:</source>
        <translation>Informacje o wydaniu:</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Informacje o wydaniu</translation>
    </message>
</context>
<context>
    <name>UpdateFolder</name>
    <message>
        <source>The folder %1 cannot be used.</source>
        <translation>Nie można użyć katalogu %1.</translation>
    </message>
</context>
<context>
    <name>UpdateInfoDialog</name>
    <message>
        <source>Update</source>
        <comment>noun, title of dialog about &apos;checking for updates&apos;</comment>
        <translation>Aktualizacja</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>Sprawdzanie dostępności aktualizacji...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>You have the latest version.</source>
        <translation>Zainstalowana jest najnowsza wersja.</translation>
    </message>
    <message>
        <source>Failed to update</source>
        <translation>Nie udało się zaktualizować programu</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizacja</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>UsageExample</name>
    <message>
        <source>Example of a usage event</source>
        <translation>Przykładowy raport o użytkowaniu</translation>
    </message>
    <message>
        <source>(random, made when you say yes)</source>
        <translation>(losowy, tworzony po wyrażeniu zgody)</translation>
    </message>
    <message>
        <source>This is sent whenever a search for a song begins; the song is made up here. The start and the end of the program, an update, clicks on the maker&apos;s pages and a window that cannot be drawn are reported in the same way, without names of songs.</source>
        <translation>To jest wysyłane za każdym razem, gdy zaczyna się wyszukiwanie utworu; utwór podany tutaj jest zmyślony. Uruchomienie i zamknięcie programu, aktualizacja, kliknięcia prowadzące na strony twórcy oraz okno, którego nie można narysować, są zgłaszane w ten sam sposób, bez nazw utworów.</translation>
    </message>
</context>
<context>
    <name>WritesWait</name>
    <message>
        <source>It goes on by itself when this is done.</source>
        <translation>Potem wszystko potoczy się samo.</translation>
    </message>
    <message>
        <source>Changes are still being written into the songs.</source>
        <translation>Trwa jeszcze zapisywanie zmian w utworach.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Songs and lyrics</source>
        <translation>Utwory i teksty</translation>
    </message>
    <message>
        <source>The window could not be built.</source>
        <translation>Nie udało się utworzyć okna.</translation>
    </message>
    <message>
        <source>The changes to one song were kept as a text file in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>Zmiany w jednym utworze zachowano jako plik tekstowy w %1</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs were kept as text files in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>
            <numerusform>Zmiany w %n utworze zachowano jako plik tekstowy w %1</numerusform>
            <numerusform>Zmiany w %n utworach zachowano jako pliki tekstowe w %1</numerusform>
            <numerusform>Zmiany w %n utworach zachowano jako pliki tekstowe w %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The changes to one song could be kept nowhere: copy them from the details now.</source>
        <translation>Zmian w jednym utworze nie można nigdzie zachować: należy je teraz skopiować z panelu po prawej.</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs could be kept nowhere: copy them from the details now.</source>
        <translation>
            <numerusform>Zmian w %n utworze nie można nigdzie zachować: należy je teraz skopiować z panelu po prawej.</numerusform>
            <numerusform>Zmian w %n utworach nie można nigdzie zachować: należy je teraz skopiować z panelu po prawej.</numerusform>
            <numerusform>Zmian w %n utworach nie można nigdzie zachować: należy je teraz skopiować z panelu po prawej.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not all changes could be written into the songs.</source>
        <translation>Nie wszystkie zmiany udało się zapisać w utworach.</translation>
    </message>
</context>
</TS>
