<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
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
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Made by %1</source>
        <comment>%1 is the maker&apos;s name</comment>
        <translation>Entwickelt von %1</translation>
    </message>
</context>
<context>
    <name>AccessManager</name>
    <message>
        <source>Not a web address: %1</source>
        <translation>Keine Webadresse: %1</translation>
    </message>
    <message>
        <source>%1 asked for a pause and can be asked again in %2 s.</source>
        <comment>%1 is a host name</comment>
        <translation>%1 bittet um eine Pause und kann in %2 s wieder angefragt werden.</translation>
    </message>
    <message>
        <source>The proxy wants a log-in of a kind that is not known here.</source>
        <translation>Der Proxy verlangt ein Anmeldeverfahren, das nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>The proxy asks for a log-in for some pages only, which is not supported.</source>
        <translation>Der Proxy verlangt nur für manche Seiten eine Anmeldung; das wird nicht unterstützt.</translation>
    </message>
</context>
<context>
    <name>AddDialogs</name>
    <message>
        <source>Select file(s) to add</source>
        <translation>Dateien zum Hinzufügen auswählen</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Audiodateien</translation>
    </message>
    <message>
        <source>Select folder to add</source>
        <translation>Ordner zum Hinzufügen auswählen</translation>
    </message>
</context>
<context>
    <name>AudioPreview</name>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>No preview: the Qt module QtMultimedia is missing (package qml-module-qtmultimedia).</source>
        <translation>Keine Hörprobe: Das Qt-Modul QtMultimedia fehlt (Paket qml-module-qtmultimedia).</translation>
    </message>
    <message>
        <source>This file cannot be played here.</source>
        <translation>Diese Datei kann hier nicht wiedergegeben werden.</translation>
    </message>
</context>
<context>
    <name>ConsentBar</name>
    <message>
        <source>May usage events be sent to the maker? Those about searches name artist and title.</source>
        <translation>Dürfen Nutzungsdaten an den Hersteller gesendet werden? Bei Suchen enthalten sie Interpret und Titel.</translation>
    </message>
    <message>
        <source>What is sent?</source>
        <translation>Was wird gesendet?</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Beispiel für Nutzungsdaten anzeigen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Yes, send usage events</source>
        <translation>Ja, Nutzungsdaten senden</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>No, send nothing</source>
        <translation>Nein, nichts senden</translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message numerus="yes">
        <source>Selected %n files</source>
        <translation>
            <numerusform>%n Datei ausgewählt</numerusform>
            <numerusform>%n Dateien ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>No file is selected</source>
        <translation>Keine Datei ausgewählt</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Exit and install</source>
        <translation>Beenden und installieren</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>%1 wird aktualisiert</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Fortschritt des Downloads</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Aktualisierung wird heruntergeladen...</translation>
    </message>
    <message>
        <source>Ready to install...</source>
        <translation>Bereit zur Installation...</translation>
    </message>
    <message>
        <source>%1 MB of %2 MB</source>
        <translation>%1 MB von %2 MB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Installing...</source>
        <translation>Wird installiert...</translation>
    </message>
</context>
<context>
    <name>EditableField</name>
    <message>
        <source>&lt;empty&gt;</source>
        <translation>&lt;leer&gt;</translation>
    </message>
    <message>
        <source>Enter to apply</source>
        <translation>Mit Enter übernehmen</translation>
    </message>
    <message>
        <source>not saved yet (Ctrl+S saves)</source>
        <translation>noch nicht gespeichert (Strg+S speichert)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>All files here have lyrics and are hidden</source>
        <translation>Alle Dateien haben Songtexte und sind ausgeblendet</translation>
    </message>
    <message>
        <source>Drop music files or folders here</source>
        <translation>Musikdateien oder Ordner hier ablegen</translation>
    </message>
    <message>
        <source>Add files...</source>
        <translation>Dateien hinzufügen ...</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>Ordner hinzufügen ...</translation>
    </message>
</context>
<context>
    <name>ExitWidget</name>
    <message>
        <source>Do you want to quit anyway?</source>
        <translation>Möchten Sie das Programm trotzdem beenden?</translation>
    </message>
    <message numerus="yes">
        <source>Search for %n songs is currently in progress.</source>
        <translation>
            <numerusform>Die Suche für %n Song läuft noch.</numerusform>
            <numerusform>Die Suche für %n Songs läuft noch.</numerusform>
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
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>No artist</source>
        <translation>Ohne Interpret</translation>
    </message>
    <message>
        <source>Show in the file manager</source>
        <translation>In der Dateiverwaltung anzeigen</translation>
    </message>
</context>
<context>
    <name>LimitedReply</name>
    <message>
        <source>The server refuses to answer (HTTP %1).</source>
        <translation>Der Server verweigert die Antwort (HTTP %1).</translation>
    </message>
    <message>
        <source>The server has no such page (HTTP %1).</source>
        <translation>Der Server kennt diese Seite nicht (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is asked too often (HTTP %1).</source>
        <translation>Der Server erhält zu viele Anfragen (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is out of order (HTTP %1).</source>
        <translation>Auf dem Server liegt eine Störung vor (HTTP %1).</translation>
    </message>
    <message>
        <source>The server cannot answer the request (HTTP %1).</source>
        <translation>Der Server kann die Anfrage nicht beantworten (HTTP %1).</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>Die Anfrage wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The server has been silent for %1 seconds.</source>
        <translation>Der Server hat seit %1 Sekunden nichts gesendet.</translation>
    </message>
    <message>
        <source>The server took longer than %1 seconds.</source>
        <translation>Der Server hat länger als %1 Sekunden gebraucht.</translation>
    </message>
    <message>
        <source>The answer is packed in a way that is not known here.</source>
        <translation>Die Antwort ist mit einem unbekannten Verfahren komprimiert.</translation>
    </message>
    <message>
        <source>The answer arrived damaged.</source>
        <translation>Die Antwort ist beschädigt angekommen.</translation>
    </message>
    <message>
        <source>The connection broke before the whole answer had arrived.</source>
        <translation>Die Verbindung ist abgebrochen, bevor die ganze Antwort angekommen war.</translation>
    </message>
    <message>
        <source>The answer is larger than %1.</source>
        <translation>Die Antwort ist größer als %1.</translation>
    </message>
    <message>
        <source>The site&apos;s certificate is not trusted.</source>
        <translation>Dem Zertifikat der Website wird nicht vertraut.</translation>
    </message>
    <message>
        <source>No secure connection to the site could be made.</source>
        <translation>Es kam keine sichere Verbindung zur Website zustande.</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message numerus="yes">
        <source>Scanning folder(s) for music files (found %n)</source>
        <translation>
            <numerusform>Suche nach Musikdateien (%n gefunden)</numerusform>
            <numerusform>Suche nach Musikdateien (%n gefunden)</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message numerus="yes">
        <source>Hidden %n file(s) with lyrics</source>
        <translation>
            <numerusform>%n mit Songtext ausgeblendet</numerusform>
            <numerusform>%n mit Songtext ausgeblendet</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Show hidden files</source>
        <translation>Ausgeblendete Dateien anzeigen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove hidden files from the list</source>
        <translation>Ausgeblendete Dateien aus der Liste entfernen</translation>
    </message>
</context>
<context>
    <name>LyricsEditGuard</name>
    <message>
        <source>The lyrics of “%1” have been changed.</source>
        <comment>%1 is the title of a song</comment>
        <translation>Der Songtext von „%1“ wurde geändert.</translation>
    </message>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Möchten Sie die Änderungen speichern?</translation>
    </message>
</context>
<context>
    <name>LyricsItem</name>
    <message>
        <source>This lyrics for:</source>
        <translation>Songtext zu:</translation>
    </message>
    <message>
        <source>“%1” – “%2”</source>
        <comment>artist and title</comment>
        <translation>„%1“ – „%2“</translation>
    </message>
    <message>
        <source>These lyrics are very long; their beginning is shown.</source>
        <translation>Dieser Songtext ist sehr lang; nur der Anfang wird angezeigt.</translation>
    </message>
</context>
<context>
    <name>LyricsProvider</name>
    <message>
        <source>%1 redirects to something that is not a web page.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 leitet auf etwas um, das keine Webseite ist.</translation>
    </message>
    <message>
        <source>%1 redirects too often.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 leitet zu oft um.</translation>
    </message>
    <message>
        <source>%1 gave a page that holds no lyrics.</source>
        <translation>Die Seite von %1 enthält keinen Songtext.</translation>
    </message>
</context>
<context>
    <name>LyricsSearch</name>
    <message>
        <source>The artist or title is too long to search for.</source>
        <translation>Interpret oder Titel sind zu lang, um danach zu suchen.</translation>
    </message>
</context>
<context>
    <name>LyricsText</name>
    <message>
        <source>Lyrics</source>
        <translation>Songtext</translation>
    </message>
</context>
<context>
    <name>LyricsToolbar</name>
    <message>
        <source>Edit lyrics (F2)</source>
        <translation>Songtext bearbeiten (F2)</translation>
    </message>
    <message>
        <source>Save lyrics (Ctrl+S)</source>
        <translation>Songtext speichern (Strg+S)</translation>
    </message>
    <message>
        <source>Cancel editing (Esc)</source>
        <translation>Bearbeiten abbrechen (Esc)</translation>
    </message>
    <message>
        <source>Force to search lyrics (Ctrl+R)</source>
        <translation>Suche nach Songtext erzwingen (Strg+R)</translation>
    </message>
    <message>
        <source>Copy lyrics to clipboard</source>
        <translation>Songtext in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Songtext mit %1 suchen</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Kleinere Schrift</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Größere Schrift</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Add file</source>
        <translation>Datei hinzufügen</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Hide file(s) with lyrics</source>
        <translation>Dateien mit Songtext ausblenden</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Remove with lyrics</source>
        <translation>Dateien mit Songtext entfernen</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Auswahl entfernen</translation>
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
        <translation>Beenden</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Songtext als TXT-Datei exportieren</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Check for updates...</source>
        <translation>Nach Aktualisierungen suchen...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>MusixMatchProvider</name>
    <message>
        <source>%1 leads from one list of songs to the next.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 führt von einer Songliste nur zur nächsten.</translation>
    </message>
    <message>
        <source>%1 gave a page that is too intricate to read.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>Die Seite von %1 ist zu verschachtelt, um sie auszuwerten.</translation>
    </message>
</context>
<context>
    <name>PlaybackSlider</name>
    <message>
        <source>Position in the song</source>
        <translation>Position im Song</translation>
    </message>
</context>
<context>
    <name>Proxy</name>
    <message>
        <source>The proxy does not take the connection.</source>
        <translation>Der Proxy nimmt die Verbindung nicht an.</translation>
    </message>
    <message>
        <source>The proxy closed the connection.</source>
        <translation>Der Proxy hat die Verbindung geschlossen.</translation>
    </message>
    <message>
        <source>The proxy was not found.</source>
        <translation>Der Proxy wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The proxy did not answer in time.</source>
        <translation>Der Proxy hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The proxy refuses the user name or the password.</source>
        <translation>Der Proxy weist den Benutzernamen oder das Passwort zurück.</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>Der Proxy funktioniert nicht.</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Host not found</source>
        <translation>Rechner nicht gefunden</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Verbindung verweigert</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Zeitüberschreitung beim Verbindungsaufbau</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>Zeitüberschreitung bei der Socket-Operation</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Netzwerk nicht erreichbar</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>Die Gegenseite hat die Verbindung geschlossen</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Erhöhen</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Verringern</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Übergeordneter Ordner</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Neuen Ordner anlegen</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Listenansicht</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detailansicht</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Datei&amp;name:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Dateityp:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Auswählen</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Datei nicht gefunden.
Bitte prüfen Sie, ob der Dateiname stimmt.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Ordner nicht gefunden.
Bitte prüfen Sie, ob der Ordnername stimmt.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-Datei</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Zuletzt besucht</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Anzeigen: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>&amp;Versteckte Dateien anzeigen</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Neuer Ordner</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Möchten Sie „%1“ wirklich löschen?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>„%1“ ist schreibgeschützt.
Möchten Sie es trotzdem löschen?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Der Ordner konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Zurückgehen</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Vorgehen</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Zum übergeordneten Ordner gehen</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Einen neuen Ordner anlegen</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Zur Listenansicht wechseln</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Zur Detailansicht wechseln</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Liste der Orte und Lesezeichen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Änderungsdatum</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
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
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Schl&amp;ießen</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Ohne Speichern schließen</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Host %1 not found</source>
        <translation>Rechner %1 nicht gefunden</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Verbindung verweigert</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Verbindung geschlossen</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Network unreachable</source>
        <translation>Netzwerk nicht erreichbar</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>Rechner nicht erreichbar</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Zeitüberschreitung beim Verbindungsaufbau</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Verbindung verweigert</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation>Fehler bei der Übertragung von %1 – Antwort des Servers: %2</translation>
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
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
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
        <translation>Entf</translation>
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
        <translation>Lebenszeit des Pakets (TTL) abgelaufen</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Linkadresse kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>ReadFailure</name>
    <message>
        <source>this is not a regular file</source>
        <translation>dies ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>the file is damaged: its tags have no end</source>
        <translation>die Datei ist beschädigt: Tags ohne Ende</translation>
    </message>
    <message>
        <source>the file is damaged: its tags do not fit in memory</source>
        <translation>die Datei ist beschädigt: Tags zu groß für den Arbeitsspeicher</translation>
    </message>
    <message>
        <source>the disk reported an error while the file was read</source>
        <translation>beim Lesen der Datei hat der Datenträger einen Fehler gemeldet</translation>
    </message>
    <message>
        <source>the file is damaged: reading its tags ended in a crash</source>
        <translation>die Datei ist beschädigt: Absturz beim Lesen der Tags</translation>
    </message>
    <message>
        <source>reading the tags of the file took too long</source>
        <translation>das Lesen der Tags hat zu lange gedauert</translation>
    </message>
    <message>
        <source>reading the tags of the file gave nonsense</source>
        <translation>die gelesenen Tags ergeben keinen Sinn</translation>
    </message>
    <message>
        <source>the helper program that reads tags could not be started</source>
        <translation>das Hilfsprogramm zum Lesen der Tags konnte nicht gestartet werden</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>OpenGL settings</source>
        <translation>OpenGL-Einstellungen</translation>
    </message>
    <message>
        <source>Select the method of OpenGL usage:</source>
        <translation>Art der OpenGL-Nutzung auswählen:</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Automatische Erkennung</translation>
    </message>
    <message>
        <source>OpenGL ES 2.0</source>
        <translation>OpenGL ES 2.0</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>Clear all settings</source>
        <translation>Alle Einstellungen löschen</translation>
    </message>
    <message>
        <source>Clear settings</source>
        <translation>Einstellungen löschen</translation>
    </message>
    <message>
        <source>All settings will be removed and returned to default values. Are you sure?</source>
        <translation>Alle Einstellungen werden gelöscht und auf ihre Standardwerte zurückgesetzt. Sind Sie sicher?</translation>
    </message>
    <message>
        <source>All settings were cleared. The program starts anew after OK.</source>
        <translation>Alle Einstellungen wurden gelöscht. Nach „OK“ startet das Programm neu.</translation>
    </message>
    <message>
        <source>The settings cannot be cleared: their file cannot be written.</source>
        <translation>Die Einstellungen können nicht gelöscht werden: Die Einstellungsdatei ist nicht beschreibbar.</translation>
    </message>
</context>
<context>
    <name>SceneWidget</name>
    <message>
        <source>The Qt module %1 is missing (package %2).</source>
        <translation>Das Qt-Modul %1 fehlt (Paket %2).</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>Restart is required to apply changes</source>
        <translation>Änderungen werden nach einem Neustart wirksam</translation>
    </message>
    <message>
        <source>Font size for lyrics:</source>
        <translation>Schriftgröße der Songtexte:</translation>
    </message>
    <message>
        <source>Search in browser with:</source>
        <translation>Im Browser suchen mit:</translation>
    </message>
    <message>
        <source>insert a blank line at the beginning of lyrics</source>
        <translation>Leerzeile am Anfang von Songtexten einfügen</translation>
    </message>
    <message>
        <source>save files list on quit</source>
        <translation>Dateiliste beim Beenden speichern</translation>
    </message>
    <message>
        <source>export lyrics to a TXT file automatically</source>
        <translation>Songtexte automatisch als TXT-Datei exportieren</translation>
    </message>
    <message>
        <source>look for new versions automatically</source>
        <translation>Automatisch nach neuen Versionen suchen</translation>
    </message>
    <message>
        <source>send usage events, with artists and titles</source>
        <translation>Nutzungsdaten mit Interpreten und Titeln senden</translation>
    </message>
    <message>
        <source>Example...</source>
        <translation>Beispiel ...</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Beispiel für Nutzungsdaten anzeigen</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Proxy:</source>
        <translation>Proxy:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Authentifizierung</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Websites</translation>
    </message>
    <message>
        <source>Search order</source>
        <translation>Suchreihenfolge</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Switched off by DO_NOT_TRACK</source>
        <translation>Durch DO_NOT_TRACK abgeschaltet</translation>
    </message>
    <message>
        <source>No proxy is used.</source>
        <translation>Es wird kein Proxy verwendet.</translation>
    </message>
    <message>
        <source>No address: no proxy is used.</source>
        <translation>Keine Adresse: Es wird kein Proxy verwendet.</translation>
    </message>
    <message>
        <source>The proxy is being tested...</source>
        <translation>Der Proxy wird geprüft ...</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>Der Proxy funktioniert nicht.</translation>
    </message>
    <message>
        <source>No error within %1 seconds.</source>
        <translation>Kein Fehler innerhalb von %1 Sekunden.</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Der Proxy funktioniert.</translation>
    </message>
    <message>
        <source>Not tested yet.</source>
        <translation>Noch nicht geprüft.</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Deaktivieren</translation>
    </message>
    <message>
        <source>Warning!!! You have disabled all sources.</source>
        <translation>Achtung! Alle Websites sind deaktiviert.</translation>
    </message>
</context>
<context>
    <name>SongDetails</name>
    <message>
        <source>Artist:</source>
        <translation>Interpret:</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Interpret</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
</context>
<context>
    <name>SongList</name>
    <message>
        <source>Songs</source>
        <translation>Songs</translation>
    </message>
</context>
<context>
    <name>SongMenu</name>
    <message>
        <source>Force to search lyrics</source>
        <translation>Suche nach Songtext erzwingen</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Songtext als TXT-Datei exportieren</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Auswahl entfernen</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Copy file&apos;s path to clipboard</source>
        <translation>Dateipfad in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Songtext mit %1 suchen</translation>
    </message>
</context>
<context>
    <name>SongState</name>
    <message>
        <source>cannot be read</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>has lyrics</source>
        <translation>mit Songtext</translation>
    </message>
    <message>
        <source>no lyrics</source>
        <translation>ohne Songtext</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>Diese Datei ist nicht lesbar.</translation>
    </message>
    <message>
        <source>no names</source>
        <translation>Angaben fehlen</translation>
    </message>
    <message>
        <source>queued</source>
        <translation>in Warteschlange</translation>
    </message>
    <message>
        <source>searching...</source>
        <translation>Suche läuft ...</translation>
    </message>
    <message>
        <source>saving...</source>
        <translation>wird gespeichert ...</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>no lyrics found</source>
        <translation>kein Songtext gefunden</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>nicht gespeichert</translation>
    </message>
    <message>
        <source>search failed</source>
        <translation>Suche fehlgeschlagen</translation>
    </message>
    <message>
        <source>in queue to search...</source>
        <translation>wartet auf die Suche ...</translation>
    </message>
    <message>
        <source>saving the lyrics...</source>
        <translation>Songtext wird gespeichert ...</translation>
    </message>
    <message>
        <source>A search needs an artist and a title.</source>
        <translation>Für die Suche sind Interpret und Titel nötig.</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>%1 is the reason</comment>
        <translation>Nicht gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>SplitterHandle</name>
    <message>
        <source>Width of the list</source>
        <translation>Breite der Liste</translation>
    </message>
</context>
<context>
    <name>StateLine</name>
    <message>
        <source>search for lyrics</source>
        <translation>Songtext suchen</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Progress of the searches</source>
        <translation>Fortschritt der Suche</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n left...</source>
        <translation>
            <numerusform>Suche läuft ... noch %n ...</numerusform>
            <numerusform>Suche läuft ... noch %n ...</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings file is damaged. What could be read is used, but no copy could be made.</source>
        <translation>Die Einstellungsdatei ist beschädigt. Was lesbar war, wird verwendet, aber es konnte keine Kopie angelegt werden.</translation>
    </message>
    <message>
        <source>The settings file was damaged. What could be read is kept; the damaged file is now %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Die Einstellungsdatei war beschädigt. Was lesbar war, bleibt erhalten; die beschädigte Datei ist jetzt %1</translation>
    </message>
    <message>
        <source>The settings cannot be read or stored; changes last for this run only.</source>
        <translation>Die Einstellungen können weder gelesen noch gespeichert werden; Änderungen gelten nur bis zum Beenden.</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since their names are damaged or too long: %n</source>
        <translation>
            <numerusform>Ausgelassen, da der Name beschädigt oder zu lang ist: %n Datei</numerusform>
            <numerusform>Ausgelassen, da der Name beschädigt oder zu lang ist: %n Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The list is full. Files left out: %n</source>
        <translation>
            <numerusform>Die Liste ist voll. Ausgelassen: %n Datei</numerusform>
            <numerusform>Die Liste ist voll. Ausgelassen: %n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>The last save was cut off. Songs that are again as they were before it: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Der letzte Speichervorgang wurde unterbrochen. Songs wieder im vorherigen Zustand: %1</translation>
    </message>
    <message>
        <source>Copies from before a save that was cut off: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Kopien des Stands vor einem unterbrochenen Speichervorgang: %1</translation>
    </message>
    <message>
        <source>A save was cut off, and these songs cannot be reached to undo it; it is tried again at each start: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Ein Speichervorgang wurde unterbrochen und lässt sich nicht rückgängig machen, weil diese Songs nicht erreichbar sind; bei jedem Start wird es erneut versucht: %1</translation>
    </message>
    <message numerus="yes">
        <source>Songs that could not be written: %n (%1)</source>
        <comment>%1 is the reason</comment>
        <translation>
            <numerusform>Nicht gespeichert: %n Song (%1)</numerusform>
            <numerusform>Nicht gespeichert: %n Songs (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics could not be written to %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Der Songtext konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>There are no lyrics to export</source>
        <translation>Es gibt keinen Songtext zum Exportieren</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Whole copies of these songs: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Vollständige Kopien dieser Songs: %1</translation>
    </message>
    <message>
        <source>A save was cut off. Songs that are still being restored: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Ein Speichern wurde abgebrochen. Songs, die noch wiederhergestellt werden: %1</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs could not be exported</source>
        <translation>
            <numerusform>Der Songtext von %n Song konnte nicht exportiert werden</numerusform>
            <numerusform>Die Songtexte von %n Songs konnten nicht exportiert werden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Lyrics exported to %n text files</source>
        <translation>
            <numerusform>Songtext in %n Textdatei exportiert</numerusform>
            <numerusform>Songtexte in %n Textdateien exportiert</numerusform>
        </translation>
    </message>
    <message>
        <source>Lyrics exported to one text file</source>
        <translation>Songtext in eine Textdatei exportiert</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since they are missing or of a kind that is not supported: %n</source>
        <translation>
            <numerusform>Ausgelassen, da sie fehlt oder ihre Art nicht unterstützt wird: %n Datei</numerusform>
            <numerusform>Ausgelassen, da sie fehlen oder ihre Art nicht unterstützt wird: %n Dateien</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>the file is no longer there</source>
        <translation>die Datei ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>dies ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>die Datei lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>no audio was found in the file</source>
        <translation>die Datei enthält keine Audiodaten</translation>
    </message>
    <message>
        <source>files of this format cannot hold lyrics</source>
        <translation>Dateien dieses Formats können keine Songtexte enthalten</translation>
    </message>
    <message>
        <source>the file is damaged, or built in an unusual way</source>
        <translation>die Datei ist beschädigt oder ungewöhnlich aufgebaut</translation>
    </message>
    <message>
        <source>there is not enough room on the disk</source>
        <translation>auf dem Datenträger ist nicht genügend Platz</translation>
    </message>
    <message>
        <source>the file would become too large</source>
        <translation>die Datei würde zu groß</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>der Datenträger meldet einen Fehler</translation>
    </message>
    <message>
        <source>other entries of its tags would be lost</source>
        <translation>andere Einträge der Tags würden verloren gehen</translation>
    </message>
    <message>
        <source>the audio would not stay as it is</source>
        <translation>die Audiodaten würden verändert</translation>
    </message>
    <message>
        <source>another program has changed the file</source>
        <translation>ein anderes Programm hat die Datei geändert</translation>
    </message>
    <message>
        <source>the disk failed; the file will be restored at the next start</source>
        <translation>Datenträgerfehler; die Datei wird beim nächsten Start wiederhergestellt</translation>
    </message>
    <message>
        <source>the file could not be saved</source>
        <translation>die Datei konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>an earlier save of the file was cut off and is not undone yet</source>
        <translation>ein früheres Speichern der Datei wurde abgebrochen und ist noch nicht rückgängig gemacht</translation>
    </message>
</context>
<context>
    <name>UnsavedLyricsGuard</name>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Möchten Sie die Änderungen speichern?</translation>
    </message>
    <message>
        <source>The changed artist or title of one song is not in its file yet.</source>
        <translation>Der geänderte Interpret oder Titel eines Songs ist noch nicht in der Datei gespeichert.</translation>
    </message>
    <message numerus="yes">
        <source>The changed artist or title of %n songs is not in their files yet.</source>
        <translation>
            <numerusform>Der geänderte Interpret oder Titel von %n Song ist noch nicht in der Datei gespeichert.</numerusform>
            <numerusform>Die geänderten Interpreten oder Titel von %n Songs sind noch nicht in den Dateien gespeichert.</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics of one song are not in its file and stand in the list only.</source>
        <translation>Der Songtext eines Songs ist nicht in der Datei gespeichert und steht nur in der Liste.</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs are not in their files and stand in the list only.</source>
        <translation>
            <numerusform>Der Songtext von %n Song ist nicht in der Datei gespeichert und steht nur in der Liste.</numerusform>
            <numerusform>Die Songtexte von %n Songs sind nicht in den Dateien gespeichert und stehen nur in der Liste.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” could not be saved: %2</source>
        <comment>%1 is the title of a song, %2 the reason</comment>
        <translation>„%1“ konnte nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>it is still being written</source>
        <translation>der Song wird gerade noch geschrieben</translation>
    </message>
    <message>
        <source>The deleted lyrics of one song are still in its file.</source>
        <translation>Der gelöschte Songtext eines Songs steht noch in der Datei.</translation>
    </message>
    <message numerus="yes">
        <source>The deleted lyrics of %n songs are still in their files.</source>
        <translation>
            <numerusform>Der gelöschte Songtext von %n Song steht noch in der Datei.</numerusform>
            <numerusform>Die gelöschten Songtexte von %n Songs stehen noch in den Dateien.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>%1 is the title of a song</comment>
        <translation>„%1“</translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <comment>other songs</comment>
        <translation>
            <numerusform>... und %n weiterer</numerusform>
            <numerusform>... und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnsavedTexts</name>
    <message>
        <source>Artist: %1</source>
        <translation>Interpret: %1</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translation>Titel: %1</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Download update</source>
        <comment>Action text</comment>
        <translation>Aktualisierung herunterladen</translation>
    </message>
    <message>
        <source>Cancel downloading</source>
        <comment>Action text</comment>
        <translation>Herunterladen abbrechen</translation>
    </message>
    <message>
        <source>Exit and install update</source>
        <comment>Action text</comment>
        <translation>Beenden und Aktualisierung installieren</translation>
    </message>
    <message>
        <source>The server redirects to something that is not a web page.</source>
        <translation>Der Server leitet auf etwas um, das keine Webseite ist.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Der Server leitet zu oft um.</translation>
    </message>
    <message>
        <source>This build of the program knows no site to ask.</source>
        <translation>In dieser Programmversion ist keine Website für Aktualisierungen hinterlegt.</translation>
    </message>
    <message>
        <source>Can&apos;t check for update: %1</source>
        <translation>Suche nach Aktualisierungen nicht möglich: %1</translation>
    </message>
    <message>
        <source>Failed to parse version information data.</source>
        <comment>Updater error message</comment>
        <translation>Die Versionsinformationen konnten nicht ausgewertet werden.</translation>
    </message>
    <message>
        <source>Can&apos;t get update: %1</source>
        <translation>Aktualisierung kann nicht heruntergeladen werden: %1</translation>
    </message>
    <message>
        <source>The address of the setup file is not one that can be used.</source>
        <translation>Die Adresse der Installationsdatei ist nicht verwendbar.</translation>
    </message>
    <message>
        <source>The setup file has another size than the server said.</source>
        <translation>Die Installationsdatei hat eine andere Größe als vom Server angegeben.</translation>
    </message>
    <message>
        <source>The server sent something else than the setup file.</source>
        <translation>Der Server hat etwas anderes als die Installationsdatei gesendet.</translation>
    </message>
    <message>
        <source>The setup file is larger than it should be.</source>
        <translation>Die Installationsdatei ist größer, als sie sein sollte.</translation>
    </message>
    <message>
        <source>The server did not send the whole setup file.</source>
        <translation>Der Server hat die Installationsdatei nicht vollständig gesendet.</translation>
    </message>
    <message>
        <source>Can&apos;t open file: %1</source>
        <translation>Datei kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>Can&apos;t install update</source>
        <translation>Aktualisierung kann nicht installiert werden</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message numerus="yes">
        <source>%n years</source>
        <translation>
            <numerusform>%n Jahr</numerusform>
            <numerusform>%n Jahren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n months</source>
        <translation>
            <numerusform>%n Monat</numerusform>
            <numerusform>%n Monaten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n Tag</numerusform>
            <numerusform>%n Tagen</numerusform>
        </translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>Remind later</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Aktualisierung installieren</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>Aktualisierung verfügbar!</translation>
    </message>
    <message>
        <source>A new version of &lt;b&gt;%appName&lt;/b&gt; is available!</source>
        <translation>Eine neue Version von &lt;b&gt;%appName&lt;/b&gt; ist verfügbar!</translation>
    </message>
    <message>
        <source>%appName &lt;b&gt;%newVersion&lt;/b&gt; is available - you have &lt;b&gt;%oldVersion&lt;/b&gt;. Would you like to download it now?</source>
        <translation>%appName &lt;b&gt;%newVersion&lt;/b&gt; ist verfügbar – Sie haben &lt;b&gt;%oldVersion&lt;/b&gt;. Möchten Sie die neue Version jetzt herunterladen?</translation>
    </message>
    <message>
        <source>Your version was released more than &lt;b&gt;%releasePeriod&lt;/b&gt; ago.</source>
        <translation>Ihre Version ist vor mehr als &lt;b&gt;%releasePeriod&lt;/b&gt; erschienen.</translation>
    </message>
    <message>
        <source>Since then, &lt;b&gt;%numUpdates&lt;/b&gt; versions have been released.</source>
        <translation>Seitdem sind &lt;b&gt;%numUpdates&lt;/b&gt; Versionen erschienen.</translation>
    </message>
    <message>
        <source>Release notes:</source>
        <translation>Neuerungen:</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Neuerungen</translation>
    </message>
</context>
<context>
    <name>UpdateFolder</name>
    <message>
        <source>The folder %1 cannot be used.</source>
        <translation>Der Ordner %1 kann nicht verwendet werden.</translation>
    </message>
</context>
<context>
    <name>UpdateInfoDialog</name>
    <message>
        <source>Update</source>
        <comment>noun, title of dialog about &apos;checking for updates&apos;</comment>
        <translation>Aktualisierung</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>Es wird nach Aktualisierungen gesucht...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>You have the latest version.</source>
        <translation>Sie haben die neueste Version.</translation>
    </message>
    <message>
        <source>Failed to update</source>
        <translation>Aktualisierung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisierung</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>UsageExample</name>
    <message>
        <source>Example of a usage event</source>
        <translation>Beispiel für Nutzungsdaten</translation>
    </message>
    <message>
        <source>(random, made when you say yes)</source>
        <translation>(zufällig, wird erst bei Zustimmung erzeugt)</translation>
    </message>
    <message>
        <source>This is sent whenever a search for a song begins; the song is made up here. The start and the end of the program, an update, clicks on the maker&apos;s pages and a window that cannot be drawn are reported in the same way, without names of songs.</source>
        <translation>Das wird jedes Mal gesendet, wenn die Suche nach einem Song beginnt; der Song hier ist erfunden. Start und Ende des Programms, eine Aktualisierung, Klicks auf die Seiten des Herstellers und ein Fenster, das nicht gezeichnet werden kann, werden ebenso gemeldet, ohne Namen von Songs.</translation>
    </message>
</context>
<context>
    <name>WritesWait</name>
    <message>
        <source>It goes on by itself when this is done.</source>
        <translation>Danach geht es von selbst weiter.</translation>
    </message>
    <message>
        <source>Changes are still being written into the songs.</source>
        <translation>Änderungen werden noch in die Songs geschrieben.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Songs and lyrics</source>
        <translation>Songs und Songtexte</translation>
    </message>
    <message>
        <source>The window could not be built.</source>
        <translation>Das Fenster konnte nicht aufgebaut werden.</translation>
    </message>
    <message>
        <source>The changes to one song were kept as a text file in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>Die Änderungen an einem Song wurden als Textdatei aufbewahrt in %1</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs were kept as text files in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>
            <numerusform>Die Änderungen an %n Song wurden als Textdatei aufbewahrt in %1</numerusform>
            <numerusform>Die Änderungen an %n Songs wurden als Textdateien aufbewahrt in %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The changes to one song could be kept nowhere: copy them from the details now.</source>
        <translation>Die Änderungen an einem Song konnten nirgends aufbewahrt werden: Kopieren Sie sie jetzt aus dem Bereich rechts.</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs could be kept nowhere: copy them from the details now.</source>
        <translation>
            <numerusform>Die Änderungen an %n Song konnten nirgends aufbewahrt werden: Kopieren Sie sie jetzt aus dem Bereich rechts.</numerusform>
            <numerusform>Die Änderungen an %n Songs konnten nirgends aufbewahrt werden: Kopieren Sie sie jetzt aus dem Bereich rechts.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not all changes could be written into the songs.</source>
        <translation>Nicht alle Änderungen konnten in die Songs geschrieben werden.</translation>
    </message>
</context>
</TS>
