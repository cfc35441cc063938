<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Facebook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Twitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made by %1</source>
        <comment>%1 is the maker&apos;s name</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AccessManager</name>
    <message>
        <source>Not a web address: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 asked for a pause and can be asked again in %2 s.</source>
        <comment>%1 is a host name</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The proxy wants a log-in of a kind that is not known here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddDialogs</name>
    <message>
        <source>Select file(s) to add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select folder to add</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioPreview</name>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No preview: the Qt module QtMultimedia is missing (package qml-module-qtmultimedia).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file cannot be played here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConsentBar</name>
    <message>
        <source>May usage events be sent to the maker? Those about searches name artist and title.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is sent?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes, send usage events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No, send nothing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message numerus="yes">
        <source>Selected %n files</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>No file is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Artist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditableField</name>
    <message>
        <source>&lt;empty&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter to apply</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>All files here have lyrics and are hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop music files or folders here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExitWidget</name>
    <message>
        <source>Do you want to quit anyway?</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Search for %n songs is currently in progress.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileItemDelegate</name>
    <message>
        <source>%1, %2, %3</source>
        <comment>title, artist and how the song stands</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No artist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in the file manager</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LimitedReply</name>
    <message>
        <source>The server refuses to answer (HTTP %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server has no such page (HTTP %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server is asked too often (HTTP %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server is out of order (HTTP %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server cannot answer the request (HTTP %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server has been silent for %1 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server took longer than %1 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The answer is packed in a way that is not known here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The answer arrived damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection broke before the whole answer had arrived.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The answer is larger than %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message numerus="yes">
        <source>Scanning folder(s) for music files (found %n)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Hidden %n file(s) with lyrics</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show hidden files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove hidden files from the list</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LyricsEditGuard</name>
    <message>
        <source>The lyrics of “%1” have been changed.</source>
        <comment>%1 is the title of a song</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to save the changes?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LyricsItem</name>
    <message>
        <source>This lyrics for:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” – “%2”</source>
        <comment>artist and title</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These lyrics are very long; their beginning is shown.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LyricsProvider</name>
    <message>
        <source>%1 redirects to something that is not a web page.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 redirects too often.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 gave a page that holds no lyrics.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LyricsText</name>
    <message>
        <source>Lyrics</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LyricsToolbar</name>
    <message>
        <source>Edit lyrics (F2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save lyrics (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel editing (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force to search lyrics (Ctrl+R)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy lyrics to clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Add file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide file(s) with lyrics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove with lyrics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Facebook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Twitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MusixMatchProvider</name>
    <message>
        <source>%1 leads from one list of songs to the next.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 gave a page that is too intricate to read.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlaybackSlider</name>
    <message>
        <source>Position in the song</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Proxy</name>
    <message>
        <source>The proxy does not take the connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The proxy closed the connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The proxy was not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The proxy did not answer in time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The proxy refuses the user name or the password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Host not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Directories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Host %1 not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Network unreachable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReadFailure</name>
    <message>
        <source>this is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged: its tags have no end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged: its tags do not fit in memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk reported an error while the file was read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged: reading its tags ended in a crash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading the tags of the file took too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading the tags of the file gave nonsense</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the helper program that reads tags could not be started</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>OpenGL settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the method of OpenGL usage:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OpenGL ES 2.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Software</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear all settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All settings will be removed and returned to default values. Are you sure?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All settings were cleared. The program starts anew after OK.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings cannot be cleared: their file cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SceneWidget</name>
    <message>
        <source>The Qt module %1 is missing (package %2).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart is required to apply changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font size for lyrics:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search in browser with:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>insert a blank line at the beginning of lyrics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>save files list on quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>export lyrics to a TXT file automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>look for new versions automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>send usage events, with artists and titles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proxy:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switched off by DO_NOT_TRACK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No proxy is used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No address: no proxy is used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The proxy is being tested...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No error within %1 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not tested yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning!!! You have disabled all sources.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SongList</name>
    <message>
        <source>Songs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SongMenu</name>
    <message>
        <source>Force to search lyrics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy file&apos;s path to clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SongState</name>
    <message>
        <source>cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has lyrics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no lyrics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>queued</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>searching...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saving...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no lyrics found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>search failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in queue to search...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saving the lyrics...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A search needs an artist and a title.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SplitterHandle</name>
    <message>
        <source>Width of the list</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StateLine</name>
    <message>
        <source>search for lyrics</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Progress of the searches</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n left...</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The settings file is damaged. What could be read is used, but no copy could be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings file was damaged. What could be read is kept; the damaged file is now %1</source>
        <comment>%1 is the path of a file</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings cannot be read or stored; changes last for this run only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since their names are damaged or too long: %n</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The list is full. Files left out: %n</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The last save was cut off. Songs that are again as they were before it: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies from before a save that was cut off: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A save was cut off, and these songs cannot be reached to undo it; it is tried again at each start: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Songs that could not be written: %n (%1)</source>
        <comment>%1 is the reason</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n song(s) could not be exported</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics could not be written to %1</source>
        <comment>%1 is the path of a file</comment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Lyrics exported to %n text file(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>There are no lyrics to export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>the file is no longer there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no audio was found in the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>files of this format cannot hold lyrics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged, or built in an unusual way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is not enough room on the disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file would become too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>other entries of its tags would be lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the audio would not stay as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program has changed the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk failed; the file will be restored at the next start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file could not be saved</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UnsavedLyricsGuard</name>
    <message numerus="yes">
        <source>The lyrics of %n song(s) are not in the files and stand in the list only.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Do you want to give them up?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Download update</source>
        <comment>Action text</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel downloading</source>
        <comment>Action text</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit and install update</source>
        <comment>Action text</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server redirects to something that is not a web page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This build of the program knows no site to ask.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t check for update: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to parse version information data.</source>
        <comment>Updater error message</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t get update: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address of the setup file is not one that can be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The setup file has another size than the server said.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server sent something else than the setup file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The setup file is larger than it should be.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server did not send the whole setup file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t open file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t install update</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateFolder</name>
    <message>
        <source>The folder %1 cannot be used.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UsageExample</name>
    <message>
        <source>Example of a usage event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is sent whenever a search for a song begins; the song is made up here. The start and the end of the program, an update and clicks on the maker&apos;s pages are reported in the same way, without names of songs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(random, made when you say yes)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Songs and lyrics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The window could not be built.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
