<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
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
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Made by %1</source>
        <comment>%1 is the maker&apos;s name</comment>
        <translation>Realizzato da %1</translation>
    </message>
</context>
<context>
    <name>AccessManager</name>
    <message>
        <source>Not a web address: %1</source>
        <translation>Indirizzo web non valido: %1</translation>
    </message>
    <message>
        <source>%1 asked for a pause and can be asked again in %2 s.</source>
        <comment>%1 is a host name</comment>
        <translation>%1 ha chiesto una pausa e potrà essere interrogato di nuovo tra %2 s.</translation>
    </message>
    <message>
        <source>The proxy wants a log-in of a kind that is not known here.</source>
        <translation>Il proxy richiede un tipo di accesso non supportato.</translation>
    </message>
    <message>
        <source>The proxy asks for a log-in for some pages only, which is not supported.</source>
        <translation>Il proxy chiede l’accesso solo per alcune pagine, il che non è supportato.</translation>
    </message>
</context>
<context>
    <name>AddDialogs</name>
    <message>
        <source>Select file(s) to add</source>
        <translation>Seleziona i file da aggiungere</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>File audio</translation>
    </message>
    <message>
        <source>Select folder to add</source>
        <translation>Seleziona la cartella da aggiungere</translation>
    </message>
</context>
<context>
    <name>AudioPreview</name>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>No preview: the Qt module QtMultimedia is missing (package qml-module-qtmultimedia).</source>
        <translation>Ascolto non disponibile: manca il modulo Qt QtMultimedia (pacchetto qml-module-qtmultimedia).</translation>
    </message>
    <message>
        <source>This file cannot be played here.</source>
        <translation>Impossibile riprodurre questo file.</translation>
    </message>
</context>
<context>
    <name>ConsentBar</name>
    <message>
        <source>May usage events be sent to the maker? Those about searches name artist and title.</source>
        <translation>Inviare dati di utilizzo allo sviluppatore? Per le ricerche contengono artista e titolo.</translation>
    </message>
    <message>
        <source>What is sent?</source>
        <translation>Che cosa viene inviato?</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Mostra un esempio di dati di utilizzo</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>Yes, send usage events</source>
        <translation>Sì, invia i dati di utilizzo</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>No, send nothing</source>
        <translation>No, non inviare nulla</translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message numerus="yes">
        <source>Selected %n files</source>
        <translation>
            <numerusform>%n file selezionato</numerusform>
            <numerusform>%n file selezionati</numerusform>
        </translation>
    </message>
    <message>
        <source>No file is selected</source>
        <translation>Nessun file selezionato</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Exit and install</source>
        <translation>Esci e installa</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>Aggiornamento di %1</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Avanzamento dello scaricamento</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Scaricamento dell’aggiornamento...</translation>
    </message>
    <message>
        <source>Ready to install...</source>
        <translation>Pronto per l’installazione...</translation>
    </message>
    <message>
        <source>%1 MB of %2 MB</source>
        <translation>%1 MB di %2 MB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Installing...</source>
        <translation>Installazione...</translation>
    </message>
</context>
<context>
    <name>EditableField</name>
    <message>
        <source>&lt;empty&gt;</source>
        <translation>&lt;vuoto&gt;</translation>
    </message>
    <message>
        <source>Enter to apply</source>
        <translation>Invio per applicare</translation>
    </message>
    <message>
        <source>not saved yet (Ctrl+S saves)</source>
        <translation>non ancora salvato (Ctrl+S salva)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>All files here have lyrics and are hidden</source>
        <translation>Tutti i file hanno il testo e sono nascosti</translation>
    </message>
    <message>
        <source>Drop music files or folders here</source>
        <translation>Trascina qui file musicali o cartelle</translation>
    </message>
    <message>
        <source>Add files...</source>
        <translation>Aggiungi file...</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>Aggiungi cartella...</translation>
    </message>
</context>
<context>
    <name>ExitWidget</name>
    <message>
        <source>Do you want to quit anyway?</source>
        <translation>Uscire comunque?</translation>
    </message>
    <message numerus="yes">
        <source>Search for %n songs is currently in progress.</source>
        <translation>
            <numerusform>È in corso la ricerca per %n brano.</numerusform>
            <numerusform>È in corso la ricerca per %n brani.</numerusform>
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
        <translation>Senza titolo</translation>
    </message>
    <message>
        <source>No artist</source>
        <translation>Senza artista</translation>
    </message>
    <message>
        <source>Show in the file manager</source>
        <translation>Mostra nel gestore dei file</translation>
    </message>
</context>
<context>
    <name>LimitedReply</name>
    <message>
        <source>The server refuses to answer (HTTP %1).</source>
        <translation>Il server rifiuta di rispondere (HTTP %1).</translation>
    </message>
    <message>
        <source>The server has no such page (HTTP %1).</source>
        <translation>Questa pagina non esiste sul server (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is asked too often (HTTP %1).</source>
        <translation>Il server riceve troppe richieste (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is out of order (HTTP %1).</source>
        <translation>Il server è fuori servizio (HTTP %1).</translation>
    </message>
    <message>
        <source>The server cannot answer the request (HTTP %1).</source>
        <translation>Il server non può rispondere alla richiesta (HTTP %1).</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>La richiesta è stata annullata.</translation>
    </message>
    <message>
        <source>The server has been silent for %1 seconds.</source>
        <translation>Il server non risponde da %1 secondi.</translation>
    </message>
    <message>
        <source>The server took longer than %1 seconds.</source>
        <translation>Il server ha impiegato più di %1 secondi per rispondere.</translation>
    </message>
    <message>
        <source>The answer is packed in a way that is not known here.</source>
        <translation>La risposta è compressa con un metodo sconosciuto.</translation>
    </message>
    <message>
        <source>The answer arrived damaged.</source>
        <translation>La risposta è arrivata danneggiata.</translation>
    </message>
    <message>
        <source>The connection broke before the whole answer had arrived.</source>
        <translation>La connessione si è interrotta prima della fine della risposta.</translation>
    </message>
    <message>
        <source>The answer is larger than %1.</source>
        <translation>La risposta supera %1.</translation>
    </message>
    <message>
        <source>The site&apos;s certificate is not trusted.</source>
        <translation>Il certificato del sito non è attendibile.</translation>
    </message>
    <message>
        <source>No secure connection to the site could be made.</source>
        <translation>Impossibile stabilire una connessione sicura con il sito.</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message numerus="yes">
        <source>Scanning folder(s) for music files (found %n)</source>
        <translation>
            <numerusform>Ricerca di file musicali (%n trovato)</numerusform>
            <numerusform>Ricerca di file musicali (%n trovati)</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message numerus="yes">
        <source>Hidden %n file(s) with lyrics</source>
        <translation>
            <numerusform>%n file con testo nascosto</numerusform>
            <numerusform>%n file con testo nascosti</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Show hidden files</source>
        <translation>Mostra i file nascosti</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Remove hidden files from the list</source>
        <translation>Rimuovi i file nascosti dall’elenco</translation>
    </message>
</context>
<context>
    <name>LyricsEditGuard</name>
    <message>
        <source>The lyrics of “%1” have been changed.</source>
        <comment>%1 is the title of a song</comment>
        <translation>Il testo di «%1» è stato modificato.</translation>
    </message>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Salvare le modifiche?</translation>
    </message>
</context>
<context>
    <name>LyricsItem</name>
    <message>
        <source>This lyrics for:</source>
        <translation>Testo di:</translation>
    </message>
    <message>
        <source>“%1” – “%2”</source>
        <comment>artist and title</comment>
        <translation>«%1» – «%2»</translation>
    </message>
    <message>
        <source>These lyrics are very long; their beginning is shown.</source>
        <translation>Questo testo è molto lungo; ne viene mostrato solo l’inizio.</translation>
    </message>
</context>
<context>
    <name>LyricsProvider</name>
    <message>
        <source>%1 redirects to something that is not a web page.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 reindirizza a qualcosa che non è una pagina web.</translation>
    </message>
    <message>
        <source>%1 redirects too often.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 reindirizza troppe volte.</translation>
    </message>
    <message>
        <source>%1 gave a page that holds no lyrics.</source>
        <translation>La pagina inviata da %1 non contiene alcun testo.</translation>
    </message>
</context>
<context>
    <name>LyricsSearch</name>
    <message>
        <source>The artist or title is too long to search for.</source>
        <translation>L’artista o il titolo è troppo lungo per la ricerca.</translation>
    </message>
</context>
<context>
    <name>LyricsText</name>
    <message>
        <source>Lyrics</source>
        <translation>Testo</translation>
    </message>
</context>
<context>
    <name>LyricsToolbar</name>
    <message>
        <source>Edit lyrics (F2)</source>
        <translation>Modifica testo (F2)</translation>
    </message>
    <message>
        <source>Save lyrics (Ctrl+S)</source>
        <translation>Salva testo (Ctrl+S)</translation>
    </message>
    <message>
        <source>Cancel editing (Esc)</source>
        <translation>Annulla modifica (Esc)</translation>
    </message>
    <message>
        <source>Force to search lyrics (Ctrl+R)</source>
        <translation>Forza la ricerca del testo (Ctrl+R)</translation>
    </message>
    <message>
        <source>Copy lyrics to clipboard</source>
        <translation>Copia il testo negli appunti</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Cerca il testo con %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Caratteri più piccoli</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Caratteri più grandi</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Add file</source>
        <translation>Aggiungi file</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Aggiungi cartella</translation>
    </message>
    <message>
        <source>Hide file(s) with lyrics</source>
        <translation>Nascondi file con testo</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Remove with lyrics</source>
        <translation>Rimuovi file con testo</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Svuota elenco</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Rimuovi selezionati</translation>
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
        <translation>Esci</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sito web</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Esporta testo in un file TXT</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Barra degli strumenti</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Check for updates...</source>
        <translation>Controlla aggiornamenti...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Aiuto</translation>
    </message>
</context>
<context>
    <name>MusixMatchProvider</name>
    <message>
        <source>%1 leads from one list of songs to the next.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 rimanda da un elenco di brani all’altro.</translation>
    </message>
    <message>
        <source>%1 gave a page that is too intricate to read.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>La pagina inviata da %1 è troppo complessa per essere letta.</translation>
    </message>
</context>
<context>
    <name>PlaybackSlider</name>
    <message>
        <source>Position in the song</source>
        <translation>Posizione nel brano</translation>
    </message>
</context>
<context>
    <name>Proxy</name>
    <message>
        <source>The proxy does not take the connection.</source>
        <translation>Il proxy non accetta la connessione.</translation>
    </message>
    <message>
        <source>The proxy closed the connection.</source>
        <translation>Il proxy ha chiuso la connessione.</translation>
    </message>
    <message>
        <source>The proxy was not found.</source>
        <translation>Il proxy non è stato trovato.</translation>
    </message>
    <message>
        <source>The proxy did not answer in time.</source>
        <translation>Il proxy non ha risposto in tempo.</translation>
    </message>
    <message>
        <source>The proxy refuses the user name or the password.</source>
        <translation>Il proxy rifiuta il nome utente o la password.</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>Il proxy non funziona.</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Host not found</source>
        <translation>Host non trovato</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Connessione rifiutata</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Tempo di connessione scaduto</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>Tempo scaduto per l’operazione sul socket</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Rete non raggiungibile</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>L’host remoto ha chiuso la connessione</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Seleziona tutto</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Aumenta</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuisci</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Posizione:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Cartella superiore</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Crea nuova cartella</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vista a elenco</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vista dettagliata</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nome del file:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Tipo di file:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Cartella:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Apri</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Scegli</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Cartelle</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
File non trovato.
Verificare che il nome del file sia corretto.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Cartella non trovata.
Verificare che il nome della cartella sia corretto.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>File %1</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Posizioni recenti</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Mostra: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rinomina</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;limina</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostra file na&amp;scosti</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nuova cartella</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nuova cartella</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Eliminare davvero “%1”?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1” è protetto da scrittura.
Eliminarlo comunque?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Impossibile eliminare la cartella.</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Torna indietro</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Vai avanti</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Vai alla cartella superiore</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Crea una nuova cartella</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Passa alla vista a elenco</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Passa alla vista dettagliata</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra laterale</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Elenco di posizioni e segnalibri</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Data di modifica</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Type</source>
        <comment>All other platforms</comment>
        <translation>Tipo</translation>
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
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Chiudi senza salvare</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Host %1 not found</source>
        <translation>Host %1 non trovato</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Connessione rifiutata</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Connessione chiusa</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Network unreachable</source>
        <translation>Rete non raggiungibile</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>Host non raggiungibile</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Tempo di connessione scaduto</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Connessione rifiutata</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation>Errore nel trasferimento di %1 – risposta del server: %2</translation>
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
        <translation>Salva</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Scarta</translation>
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
        <translation>Maiusc</translation>
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
        <translation>Canc</translation>
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
        <translation>Durata del pacchetto (TTL) scaduta</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copia indirizzo del co&amp;llegamento</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
</context>
<context>
    <name>ReadFailure</name>
    <message>
        <source>this is not a regular file</source>
        <translation>non è un file regolare</translation>
    </message>
    <message>
        <source>the file is damaged: its tags have no end</source>
        <translation>il file è danneggiato: i suoi tag non hanno fine</translation>
    </message>
    <message>
        <source>the file is damaged: its tags do not fit in memory</source>
        <translation>il file è danneggiato: i suoi tag non entrano in memoria</translation>
    </message>
    <message>
        <source>the disk reported an error while the file was read</source>
        <translation>il disco ha segnalato un errore durante la lettura del file</translation>
    </message>
    <message>
        <source>the file is damaged: reading its tags ended in a crash</source>
        <translation>il file è danneggiato: la lettura dei suoi tag ha causato un arresto anomalo</translation>
    </message>
    <message>
        <source>reading the tags of the file took too long</source>
        <translation>la lettura dei tag del file ha richiesto troppo tempo</translation>
    </message>
    <message>
        <source>reading the tags of the file gave nonsense</source>
        <translation>la lettura dei tag del file ha dato un risultato privo di senso</translation>
    </message>
    <message>
        <source>the helper program that reads tags could not be started</source>
        <translation>impossibile avviare il programma ausiliario che legge i tag</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>OpenGL settings</source>
        <translation>Impostazioni OpenGL</translation>
    </message>
    <message>
        <source>Select the method of OpenGL usage:</source>
        <translation>Seleziona la modalità d’uso di OpenGL:</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Rilevamento automatico</translation>
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
        <translation>Cancella tutte le impostazioni</translation>
    </message>
    <message>
        <source>Clear settings</source>
        <translation>Cancella impostazioni</translation>
    </message>
    <message>
        <source>All settings will be removed and returned to default values. Are you sure?</source>
        <translation>Tutte le impostazioni verranno cancellate e riportate ai valori predefiniti. Continuare?</translation>
    </message>
    <message>
        <source>All settings were cleared. The program starts anew after OK.</source>
        <translation>Tutte le impostazioni sono state cancellate. Dopo «OK» il programma verrà riavviato.</translation>
    </message>
    <message>
        <source>The settings cannot be cleared: their file cannot be written.</source>
        <translation>Impossibile cancellare le impostazioni: il file delle impostazioni non è scrivibile.</translation>
    </message>
</context>
<context>
    <name>SceneWidget</name>
    <message>
        <source>The Qt module %1 is missing (package %2).</source>
        <translation>Manca il modulo Qt %1 (pacchetto %2).</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Lingua:</translation>
    </message>
    <message>
        <source>Restart is required to apply changes</source>
        <translation>Per applicare le modifiche è necessario riavviare</translation>
    </message>
    <message>
        <source>Font size for lyrics:</source>
        <translation>Dimensione carattere dei testi:</translation>
    </message>
    <message>
        <source>Search in browser with:</source>
        <translation>Cerca nel browser con:</translation>
    </message>
    <message>
        <source>insert a blank line at the beginning of lyrics</source>
        <translation>Inserisci una riga vuota all’inizio dei testi</translation>
    </message>
    <message>
        <source>save files list on quit</source>
        <translation>Salva l’elenco dei file all’uscita</translation>
    </message>
    <message>
        <source>export lyrics to a TXT file automatically</source>
        <translation>Esporta automaticamente i testi in un file TXT</translation>
    </message>
    <message>
        <source>look for new versions automatically</source>
        <translation>Cerca automaticamente nuove versioni</translation>
    </message>
    <message>
        <source>send usage events, with artists and titles</source>
        <translation>Invia dati di utilizzo, con artisti e titoli</translation>
    </message>
    <message>
        <source>Example...</source>
        <translation>Esempio...</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Mostra un esempio di dati di utilizzo</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>Proxy:</source>
        <translation>Proxy:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Indirizzo:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Autenticazione</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nome utente:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Siti</translation>
    </message>
    <message>
        <source>Search order</source>
        <translation>Ordine di ricerca</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Sposta giù</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Attiva</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatica</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Switched off by DO_NOT_TRACK</source>
        <translation>Disattivato da DO_NOT_TRACK</translation>
    </message>
    <message>
        <source>No proxy is used.</source>
        <translation>Nessun proxy in uso.</translation>
    </message>
    <message>
        <source>No address: no proxy is used.</source>
        <translation>Nessun indirizzo: nessun proxy in uso.</translation>
    </message>
    <message>
        <source>The proxy is being tested...</source>
        <translation>Verifica del proxy in corso...</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>Il proxy non funziona.</translation>
    </message>
    <message>
        <source>No error within %1 seconds.</source>
        <translation>Nessun errore in %1 secondi.</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Il proxy funziona.</translation>
    </message>
    <message>
        <source>Not tested yet.</source>
        <translation>Non ancora verificato.</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Disattiva</translation>
    </message>
    <message>
        <source>Warning!!! You have disabled all sources.</source>
        <translation>Attenzione! Tutti i siti sono disattivati.</translation>
    </message>
</context>
<context>
    <name>SongDetails</name>
    <message>
        <source>Artist:</source>
        <translation>Artista:</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titolo:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
</context>
<context>
    <name>SongList</name>
    <message>
        <source>Songs</source>
        <translation>Brani</translation>
    </message>
</context>
<context>
    <name>SongMenu</name>
    <message>
        <source>Force to search lyrics</source>
        <translation>Forza la ricerca del testo</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Esporta testo in un file TXT</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Rimuovi selezionati</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Rimuovi tutti</translation>
    </message>
    <message>
        <source>Copy file&apos;s path to clipboard</source>
        <translation>Copia il percorso del file negli appunti</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Cerca il testo con %1</translation>
    </message>
</context>
<context>
    <name>SongState</name>
    <message>
        <source>cannot be read</source>
        <translation>illeggibile</translation>
    </message>
    <message>
        <source>has lyrics</source>
        <translation>con testo</translation>
    </message>
    <message>
        <source>no lyrics</source>
        <translation>senza testo</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>Questo file è illeggibile.</translation>
    </message>
    <message>
        <source>no names</source>
        <translation>dati mancanti</translation>
    </message>
    <message>
        <source>queued</source>
        <translation>in coda</translation>
    </message>
    <message>
        <source>searching...</source>
        <translation>ricerca in corso...</translation>
    </message>
    <message>
        <source>saving...</source>
        <translation>salvataggio...</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>non riuscito</translation>
    </message>
    <message>
        <source>no lyrics found</source>
        <translation>testo non trovato</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>non salvato</translation>
    </message>
    <message>
        <source>search failed</source>
        <translation>ricerca non riuscita</translation>
    </message>
    <message>
        <source>in queue to search...</source>
        <translation>in coda per la ricerca...</translation>
    </message>
    <message>
        <source>saving the lyrics...</source>
        <translation>salvataggio del testo...</translation>
    </message>
    <message>
        <source>A search needs an artist and a title.</source>
        <translation>Per la ricerca servono artista e titolo.</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>%1 is the reason</comment>
        <translation>Non salvato: %1</translation>
    </message>
</context>
<context>
    <name>SplitterHandle</name>
    <message>
        <source>Width of the list</source>
        <translation>Larghezza dell’elenco</translation>
    </message>
</context>
<context>
    <name>StateLine</name>
    <message>
        <source>search for lyrics</source>
        <translation>cerca il testo</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Progress of the searches</source>
        <translation>Avanzamento delle ricerche</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n left...</source>
        <translation>
            <numerusform>Ricerca in corso... %n rimanente...</numerusform>
            <numerusform>Ricerca in corso... %n rimanenti...</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings file is damaged. What could be read is used, but no copy could be made.</source>
        <translation>Il file delle impostazioni è danneggiato. Viene usato ciò che è stato possibile leggere, ma non è stato possibile crearne una copia.</translation>
    </message>
    <message>
        <source>The settings file was damaged. What could be read is kept; the damaged file is now %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Il file delle impostazioni era danneggiato. Ciò che è stato possibile leggere è conservato; il file danneggiato è ora %1</translation>
    </message>
    <message>
        <source>The settings cannot be read or stored; changes last for this run only.</source>
        <translation>Impossibile leggere o salvare le impostazioni; le modifiche valgono solo per questa sessione.</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since their names are damaged or too long: %n</source>
        <translation>
            <numerusform>Escluso perché il nome è danneggiato o troppo lungo: %n file</numerusform>
            <numerusform>Esclusi perché il nome è danneggiato o troppo lungo: %n file</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The list is full. Files left out: %n</source>
        <translation>
            <numerusform>L’elenco è pieno. Escluso: %n file</numerusform>
            <numerusform>L’elenco è pieno. Esclusi: %n file</numerusform>
        </translation>
    </message>
    <message>
        <source>The last save was cut off. Songs that are again as they were before it: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>L’ultimo salvataggio è stato interrotto. Brani riportati allo stato precedente: %1</translation>
    </message>
    <message>
        <source>Copies from before a save that was cut off: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Copie precedenti a un salvataggio interrotto: %1</translation>
    </message>
    <message>
        <source>A save was cut off, and these songs cannot be reached to undo it; it is tried again at each start: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Un salvataggio è stato interrotto e non può essere annullato perché questi brani non sono raggiungibili; si riproverà a ogni avvio: %1</translation>
    </message>
    <message numerus="yes">
        <source>Songs that could not be written: %n (%1)</source>
        <comment>%1 is the reason</comment>
        <translation>
            <numerusform>Non salvato: %n brano (%1)</numerusform>
            <numerusform>Non salvati: %n brani (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics could not be written to %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Impossibile scrivere il testo in %1</translation>
    </message>
    <message>
        <source>There are no lyrics to export</source>
        <translation>Non ci sono testi da esportare</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Whole copies of these songs: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Copie integre di questi brani: %1</translation>
    </message>
    <message>
        <source>A save was cut off. Songs that are still being restored: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Un salvataggio è stato interrotto. Brani ancora in fase di ripristino: %1</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs could not be exported</source>
        <translation>
            <numerusform>Impossibile esportare il testo di %n brano</numerusform>
            <numerusform>Impossibile esportare i testi di %n brani</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Lyrics exported to %n text files</source>
        <translation>
            <numerusform>Testo esportato in %n file TXT</numerusform>
            <numerusform>Testi esportati in %n file TXT</numerusform>
        </translation>
    </message>
    <message>
        <source>Lyrics exported to one text file</source>
        <translation>Testo esportato in un file TXT</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since they are missing or of a kind that is not supported: %n</source>
        <translation>
            <numerusform>Escluso perché mancante o di un tipo non supportato: %n file</numerusform>
            <numerusform>Esclusi perché mancanti o di un tipo non supportato: %n file</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>the file is no longer there</source>
        <translation>il file non esiste più</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>non è un file regolare</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>il file è in sola lettura</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>impossibile aprire il file</translation>
    </message>
    <message>
        <source>no audio was found in the file</source>
        <translation>nel file non è stato trovato alcun contenuto audio</translation>
    </message>
    <message>
        <source>files of this format cannot hold lyrics</source>
        <translation>i file di questo formato non possono contenere testi</translation>
    </message>
    <message>
        <source>the file is damaged, or built in an unusual way</source>
        <translation>il file è danneggiato o ha una struttura insolita</translation>
    </message>
    <message>
        <source>there is not enough room on the disk</source>
        <translation>spazio su disco insufficiente</translation>
    </message>
    <message>
        <source>the file would become too large</source>
        <translation>il file diventerebbe troppo grande</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>il disco segnala un errore</translation>
    </message>
    <message>
        <source>other entries of its tags would be lost</source>
        <translation>altri campi dei suoi tag andrebbero persi</translation>
    </message>
    <message>
        <source>the audio would not stay as it is</source>
        <translation>il contenuto audio non rimarrebbe intatto</translation>
    </message>
    <message>
        <source>another program has changed the file</source>
        <translation>un altro programma ha modificato il file</translation>
    </message>
    <message>
        <source>the disk failed; the file will be restored at the next start</source>
        <translation>errore del disco; il file verrà ripristinato al prossimo avvio</translation>
    </message>
    <message>
        <source>the file could not be saved</source>
        <translation>impossibile salvare il file</translation>
    </message>
    <message>
        <source>an earlier save of the file was cut off and is not undone yet</source>
        <translation>un salvataggio precedente del file è stato interrotto e non è ancora annullato</translation>
    </message>
</context>
<context>
    <name>UnsavedLyricsGuard</name>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Salvare le modifiche?</translation>
    </message>
    <message>
        <source>The changed artist or title of one song is not in its file yet.</source>
        <translation>L’artista o il titolo modificato di un brano non è ancora salvato nel file.</translation>
    </message>
    <message numerus="yes">
        <source>The changed artist or title of %n songs is not in their files yet.</source>
        <translation>
            <numerusform>L’artista o il titolo modificato di %n brano non è ancora salvato nel file.</numerusform>
            <numerusform>Gli artisti o i titoli modificati di %n brani non sono ancora salvati nei file.</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics of one song are not in its file and stand in the list only.</source>
        <translation>Il testo di un brano non è salvato nel file e si trova solo nell’elenco.</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs are not in their files and stand in the list only.</source>
        <translation>
            <numerusform>Il testo di %n brano non è salvato nel file e si trova solo nell’elenco.</numerusform>
            <numerusform>I testi di %n brani non sono salvati nei file e si trovano solo nell’elenco.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” could not be saved: %2</source>
        <comment>%1 is the title of a song, %2 the reason</comment>
        <translation>Impossibile salvare “%1”: %2</translation>
    </message>
    <message>
        <source>it is still being written</source>
        <translation>la scrittura è ancora in corso</translation>
    </message>
    <message>
        <source>The deleted lyrics of one song are still in its file.</source>
        <translation>Il testo eliminato di un brano è ancora nel file.</translation>
    </message>
    <message numerus="yes">
        <source>The deleted lyrics of %n songs are still in their files.</source>
        <translation>
            <numerusform>Il testo eliminato di %n brano è ancora nel file.</numerusform>
            <numerusform>I testi eliminati di %n brani sono ancora nei file.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>%1 is the title of a song</comment>
        <translation>“%1”</translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <comment>other songs</comment>
        <translation>
            <numerusform>... e %n altro</numerusform>
            <numerusform>... e altri %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnsavedTexts</name>
    <message>
        <source>Artist: %1</source>
        <translation>Artista: %1</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translation>Titolo: %1</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Download update</source>
        <comment>Action text</comment>
        <translation>Scarica aggiornamento</translation>
    </message>
    <message>
        <source>Cancel downloading</source>
        <comment>Action text</comment>
        <translation>Annulla scaricamento</translation>
    </message>
    <message>
        <source>Exit and install update</source>
        <comment>Action text</comment>
        <translation>Esci e installa aggiornamento</translation>
    </message>
    <message>
        <source>The server redirects to something that is not a web page.</source>
        <translation>Il server reindirizza a qualcosa che non è una pagina web.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Il server reindirizza troppe volte.</translation>
    </message>
    <message>
        <source>This build of the program knows no site to ask.</source>
        <translation>Questa versione del programma non conosce alcun sito da interrogare.</translation>
    </message>
    <message>
        <source>Can&apos;t check for update: %1</source>
        <translation>Impossibile cercare aggiornamenti: %1</translation>
    </message>
    <message>
        <source>Failed to parse version information data.</source>
        <comment>Updater error message</comment>
        <translation>Impossibile interpretare le informazioni sulla versione.</translation>
    </message>
    <message>
        <source>Can&apos;t get update: %1</source>
        <translation>Impossibile scaricare l’aggiornamento: %1</translation>
    </message>
    <message>
        <source>The address of the setup file is not one that can be used.</source>
        <translation>L’indirizzo del file di installazione non è utilizzabile.</translation>
    </message>
    <message>
        <source>The setup file has another size than the server said.</source>
        <translation>Le dimensioni del file di installazione sono diverse da quelle indicate dal server.</translation>
    </message>
    <message>
        <source>The server sent something else than the setup file.</source>
        <translation>Il server ha inviato qualcosa di diverso dal file di installazione.</translation>
    </message>
    <message>
        <source>The setup file is larger than it should be.</source>
        <translation>Il file di installazione è più grande del previsto.</translation>
    </message>
    <message>
        <source>The server did not send the whole setup file.</source>
        <translation>Il server non ha inviato tutto il file di installazione.</translation>
    </message>
    <message>
        <source>Can&apos;t open file: %1</source>
        <translation>Impossibile aprire il file: %1</translation>
    </message>
    <message>
        <source>Can&apos;t install update</source>
        <translation>Impossibile installare l’aggiornamento</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message numerus="yes">
        <source>%n years</source>
        <translation>
            <numerusform>%n anno</numerusform>
            <numerusform>%n anni</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n months</source>
        <translation>
            <numerusform>%n mese</numerusform>
            <numerusform>%n mesi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n giorno</numerusform>
            <numerusform>%n giorni</numerusform>
        </translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Salta questa versione</translation>
    </message>
    <message>
        <source>Remind later</source>
        <translation>Ricorda più tardi</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Installa aggiornamento</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>Aggiornamento disponibile!</translation>
    </message>
    <message>
        <source>A new version of &lt;b&gt;%appName&lt;/b&gt; is available!</source>
        <translation>È disponibile una nuova versione di &lt;b&gt;%appName&lt;/b&gt;!</translation>
    </message>
    <message>
        <source>%appName &lt;b&gt;%newVersion&lt;/b&gt; is available - you have &lt;b&gt;%oldVersion&lt;/b&gt;. Would you like to download it now?</source>
        <translation>È disponibile %appName &lt;b&gt;%newVersion&lt;/b&gt; – la versione installata è &lt;b&gt;%oldVersion&lt;/b&gt;. Scaricarla ora?</translation>
    </message>
    <message>
        <source>Your version was released more than &lt;b&gt;%releasePeriod&lt;/b&gt; ago.</source>
        <translation>La versione installata è uscita più di &lt;b&gt;%releasePeriod&lt;/b&gt; fa.</translation>
    </message>
    <message>
        <source>Since then, &lt;b&gt;%numUpdates&lt;/b&gt; versions have been released.</source>
        <translation>Da allora sono uscite &lt;b&gt;%numUpdates&lt;/b&gt; versioni.</translation>
    </message>
    <message>
        <source>Release notes:</source>
        <translation>Novità:</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Novità</translation>
    </message>
</context>
<context>
    <name>UpdateFolder</name>
    <message>
        <source>The folder %1 cannot be used.</source>
        <translation>Impossibile usare la cartella %1.</translation>
    </message>
</context>
<context>
    <name>UpdateInfoDialog</name>
    <message>
        <source>Update</source>
        <comment>noun, title of dialog about &apos;checking for updates&apos;</comment>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>Ricerca di aggiornamenti...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>You have the latest version.</source>
        <translation>È già installata l’ultima versione.</translation>
    </message>
    <message>
        <source>Failed to update</source>
        <translation>Aggiornamento non riuscito</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>UsageExample</name>
    <message>
        <source>Example of a usage event</source>
        <translation>Esempio di dati di utilizzo</translation>
    </message>
    <message>
        <source>(random, made when you say yes)</source>
        <translation>(casuale, creato al momento del consenso)</translation>
    </message>
    <message>
        <source>This is sent whenever a search for a song begins; the song is made up here. The start and the end of the program, an update, clicks on the maker&apos;s pages and a window that cannot be drawn are reported in the same way, without names of songs.</source>
        <translation>Questo viene inviato ogni volta che inizia la ricerca di un brano; il brano qui è inventato. L’avvio e la chiusura del programma, un aggiornamento, i clic sulle pagine dello sviluppatore e una finestra che non può essere disegnata vengono segnalati allo stesso modo, senza nomi di brani.</translation>
    </message>
</context>
<context>
    <name>WritesWait</name>
    <message>
        <source>It goes on by itself when this is done.</source>
        <translation>Poi si prosegue da sé.</translation>
    </message>
    <message>
        <source>Changes are still being written into the songs.</source>
        <translation>Le modifiche si stanno ancora scrivendo nei brani.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Songs and lyrics</source>
        <translation>Brani e testi</translation>
    </message>
    <message>
        <source>The window could not be built.</source>
        <translation>Impossibile creare la finestra.</translation>
    </message>
    <message>
        <source>The changes to one song were kept as a text file in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>Le modifiche a un brano sono state conservate come file di testo in %1</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs were kept as text files in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>
            <numerusform>Le modifiche a %n brano sono state conservate come file di testo in %1</numerusform>
            <numerusform>Le modifiche a %n brani sono state conservate come file di testo in %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The changes to one song could be kept nowhere: copy them from the details now.</source>
        <translation>Le modifiche a un brano non si sono potute conservare da nessuna parte: copiarle ora dal pannello a destra.</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs could be kept nowhere: copy them from the details now.</source>
        <translation>
            <numerusform>Le modifiche a %n brano non si sono potute conservare da nessuna parte: copiarle ora dal pannello a destra.</numerusform>
            <numerusform>Le modifiche a %n brani non si sono potute conservare da nessuna parte: copiarle ora dal pannello a destra.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not all changes could be written into the songs.</source>
        <translation>Non tutte le modifiche si sono potute scrivere nei brani.</translation>
    </message>
</context>
</TS>
