<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
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
        <translation>Réalisé par %1</translation>
    </message>
</context>
<context>
    <name>AccessManager</name>
    <message>
        <source>Not a web address: %1</source>
        <translation>Adresse web non valide : %1</translation>
    </message>
    <message>
        <source>%1 asked for a pause and can be asked again in %2 s.</source>
        <comment>%1 is a host name</comment>
        <translation>%1 demande une pause et pourra de nouveau être interrogé dans %2 s.</translation>
    </message>
    <message>
        <source>The proxy wants a log-in of a kind that is not known here.</source>
        <translation>Le proxy exige un type d’authentification qui n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>The proxy asks for a log-in for some pages only, which is not supported.</source>
        <translation>Le proxy ne demande une identification que pour certaines pages, ce qui n’est pas pris en charge.</translation>
    </message>
</context>
<context>
    <name>AddDialogs</name>
    <message>
        <source>Select file(s) to add</source>
        <translation>Sélectionner les fichiers à ajouter</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Fichiers audio</translation>
    </message>
    <message>
        <source>Select folder to add</source>
        <translation>Sélectionner le dossier à ajouter</translation>
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
        <translation>Lecture</translation>
    </message>
    <message>
        <source>No preview: the Qt module QtMultimedia is missing (package qml-module-qtmultimedia).</source>
        <translation>Pas d’écoute possible : le module Qt QtMultimedia est absent (paquet qml-module-qtmultimedia).</translation>
    </message>
    <message>
        <source>This file cannot be played here.</source>
        <translation>Ce fichier ne peut pas être lu ici.</translation>
    </message>
</context>
<context>
    <name>ConsentBar</name>
    <message>
        <source>May usage events be sent to the maker? Those about searches name artist and title.</source>
        <translation>Autoriser l’envoi de données d’utilisation au développeur ? Pour les recherches, elles contiennent l’artiste et le titre.</translation>
    </message>
    <message>
        <source>What is sent?</source>
        <translation>Qu’est-ce qui est envoyé ?</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Afficher un exemple de données d’utilisation</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Yes, send usage events</source>
        <translation>Oui, envoyer les données d’utilisation</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>No, send nothing</source>
        <translation>Non, ne rien envoyer</translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message numerus="yes">
        <source>Selected %n files</source>
        <translation>
            <numerusform>%n fichier sélectionné</numerusform>
            <numerusform>%n fichiers sélectionnés</numerusform>
        </translation>
    </message>
    <message>
        <source>No file is selected</source>
        <translation>Aucun fichier sélectionné</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Exit and install</source>
        <translation>Quitter et installer</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>Mise à jour de %1</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Progression du téléchargement</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Téléchargement de la mise à jour...</translation>
    </message>
    <message>
        <source>Ready to install...</source>
        <translation>Prêt à installer...</translation>
    </message>
    <message>
        <source>%1 MB of %2 MB</source>
        <translation>%1 Mo sur %2 Mo</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>Installing...</source>
        <translation>Installation...</translation>
    </message>
</context>
<context>
    <name>EditableField</name>
    <message>
        <source>&lt;empty&gt;</source>
        <translation>&lt;vide&gt;</translation>
    </message>
    <message>
        <source>Enter to apply</source>
        <translation>Entrée pour appliquer</translation>
    </message>
    <message>
        <source>not saved yet (Ctrl+S saves)</source>
        <translation>pas encore enregistré (Ctrl+S enregistre)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>All files here have lyrics and are hidden</source>
        <translation>Tous les fichiers ont des paroles et sont masqués</translation>
    </message>
    <message>
        <source>Drop music files or folders here</source>
        <translation>Déposez ici des fichiers de musique ou des dossiers</translation>
    </message>
    <message>
        <source>Add files...</source>
        <translation>Ajouter des fichiers...</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>Ajouter un dossier...</translation>
    </message>
</context>
<context>
    <name>ExitWidget</name>
    <message>
        <source>Do you want to quit anyway?</source>
        <translation>Voulez-vous quitter quand même ?</translation>
    </message>
    <message numerus="yes">
        <source>Search for %n songs is currently in progress.</source>
        <translation>
            <numerusform>La recherche pour %n chanson est en cours.</numerusform>
            <numerusform>La recherche pour %n chansons est en cours.</numerusform>
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
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>No artist</source>
        <translation>Sans artiste</translation>
    </message>
    <message>
        <source>Show in the file manager</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
</context>
<context>
    <name>LimitedReply</name>
    <message>
        <source>The server refuses to answer (HTTP %1).</source>
        <translation>Le serveur refuse de répondre (HTTP %1).</translation>
    </message>
    <message>
        <source>The server has no such page (HTTP %1).</source>
        <translation>Cette page n’existe pas sur le serveur (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is asked too often (HTTP %1).</source>
        <translation>Le serveur reçoit trop de requêtes (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is out of order (HTTP %1).</source>
        <translation>Le serveur est hors service (HTTP %1).</translation>
    </message>
    <message>
        <source>The server cannot answer the request (HTTP %1).</source>
        <translation>Le serveur ne peut pas répondre à la requête (HTTP %1).</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>La requête a été annulée.</translation>
    </message>
    <message>
        <source>The server has been silent for %1 seconds.</source>
        <translation>Le serveur ne répond plus depuis %1 secondes.</translation>
    </message>
    <message>
        <source>The server took longer than %1 seconds.</source>
        <translation>Le serveur a mis plus de %1 secondes à répondre.</translation>
    </message>
    <message>
        <source>The answer is packed in a way that is not known here.</source>
        <translation>La réponse est compressée par une méthode inconnue.</translation>
    </message>
    <message>
        <source>The answer arrived damaged.</source>
        <translation>La réponse est arrivée endommagée.</translation>
    </message>
    <message>
        <source>The connection broke before the whole answer had arrived.</source>
        <translation>La connexion a été interrompue avant la fin de la réponse.</translation>
    </message>
    <message>
        <source>The answer is larger than %1.</source>
        <translation>La réponse dépasse %1.</translation>
    </message>
    <message>
        <source>The site&apos;s certificate is not trusted.</source>
        <translation>Le certificat du site n’est pas approuvé.</translation>
    </message>
    <message>
        <source>No secure connection to the site could be made.</source>
        <translation>Aucune connexion sécurisée au site n’a pu être établie.</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message numerus="yes">
        <source>Scanning folder(s) for music files (found %n)</source>
        <translation>
            <numerusform>Recherche de fichiers audio (%n trouvé)</numerusform>
            <numerusform>Recherche de fichiers audio (%n trouvés)</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message numerus="yes">
        <source>Hidden %n file(s) with lyrics</source>
        <translation>
            <numerusform>%n fichier avec paroles masqué</numerusform>
            <numerusform>%n fichiers avec paroles masqués</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Show hidden files</source>
        <translation>Afficher les fichiers masqués</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove hidden files from the list</source>
        <translation>Retirer les fichiers masqués de la liste</translation>
    </message>
</context>
<context>
    <name>LyricsEditGuard</name>
    <message>
        <source>The lyrics of “%1” have been changed.</source>
        <comment>%1 is the title of a song</comment>
        <translation>Les paroles de « %1 » ont été modifiées.</translation>
    </message>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Voulez-vous enregistrer les modifications ?</translation>
    </message>
</context>
<context>
    <name>LyricsItem</name>
    <message>
        <source>This lyrics for:</source>
        <translation>Paroles de :</translation>
    </message>
    <message>
        <source>“%1” – “%2”</source>
        <comment>artist and title</comment>
        <translation>« %1 » – « %2 »</translation>
    </message>
    <message>
        <source>These lyrics are very long; their beginning is shown.</source>
        <translation>Ces paroles sont très longues ; seul le début est affiché.</translation>
    </message>
</context>
<context>
    <name>LyricsProvider</name>
    <message>
        <source>%1 redirects to something that is not a web page.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 redirige vers autre chose qu’une page web.</translation>
    </message>
    <message>
        <source>%1 redirects too often.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 redirige trop de fois.</translation>
    </message>
    <message>
        <source>%1 gave a page that holds no lyrics.</source>
        <translation>La page renvoyée par %1 ne contient pas de paroles.</translation>
    </message>
</context>
<context>
    <name>LyricsSearch</name>
    <message>
        <source>The artist or title is too long to search for.</source>
        <translation>L’artiste ou le titre est trop long pour une recherche.</translation>
    </message>
</context>
<context>
    <name>LyricsText</name>
    <message>
        <source>Lyrics</source>
        <translation>Paroles</translation>
    </message>
</context>
<context>
    <name>LyricsToolbar</name>
    <message>
        <source>Edit lyrics (F2)</source>
        <translation>Modifier les paroles (F2)</translation>
    </message>
    <message>
        <source>Save lyrics (Ctrl+S)</source>
        <translation>Enregistrer les paroles (Ctrl+S)</translation>
    </message>
    <message>
        <source>Cancel editing (Esc)</source>
        <translation>Annuler la modification (Échap)</translation>
    </message>
    <message>
        <source>Force to search lyrics (Ctrl+R)</source>
        <translation>Forcer la recherche des paroles (Ctrl+R)</translation>
    </message>
    <message>
        <source>Copy lyrics to clipboard</source>
        <translation>Copier les paroles dans le presse-papiers</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Rechercher les paroles avec %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Texte plus petit</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Texte plus grand</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Add file</source>
        <translation>Ajouter un fichier</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Hide file(s) with lyrics</source>
        <translation>Masquer les fichiers avec paroles</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Remove with lyrics</source>
        <translation>Retirer les fichiers avec paroles</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Vider la liste</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Retirer la sélection</translation>
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
        <translation>Quitter</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Exporter les paroles dans un fichier TXT</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Check for updates...</source>
        <translation>Rechercher des mises à jour...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>Aid&amp;e</translation>
    </message>
</context>
<context>
    <name>MusixMatchProvider</name>
    <message>
        <source>%1 leads from one list of songs to the next.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 renvoie d’une liste de chansons à une autre.</translation>
    </message>
    <message>
        <source>%1 gave a page that is too intricate to read.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>La page renvoyée par %1 est trop complexe pour être lue.</translation>
    </message>
</context>
<context>
    <name>PlaybackSlider</name>
    <message>
        <source>Position in the song</source>
        <translation>Position dans la chanson</translation>
    </message>
</context>
<context>
    <name>Proxy</name>
    <message>
        <source>The proxy does not take the connection.</source>
        <translation>Le proxy n’accepte pas la connexion.</translation>
    </message>
    <message>
        <source>The proxy closed the connection.</source>
        <translation>Le proxy a fermé la connexion.</translation>
    </message>
    <message>
        <source>The proxy was not found.</source>
        <translation>Le proxy est introuvable.</translation>
    </message>
    <message>
        <source>The proxy did not answer in time.</source>
        <translation>Le proxy n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>The proxy refuses the user name or the password.</source>
        <translation>Le proxy refuse le nom d’utilisateur ou le mot de passe.</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>Le proxy ne fonctionne pas.</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Host not found</source>
        <translation>Hôte introuvable</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Connexion refusée</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Délai de connexion dépassé</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>Délai de l’opération sur le socket dépassé</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Réseau inaccessible</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>L’hôte distant a fermé la connexion</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Augmenter</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuer</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Emplacement :</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Créer un nouveau dossier</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vue en liste</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vue détaillée</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nom du fichier :</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Type de fichiers :</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Dossier :</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Choisir</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Fichier introuvable.
Veuillez vérifier que le nom du fichier est correct.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Dossier introuvable.
Veuillez vérifier que le nom du dossier est correct.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Fichier %1</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Emplacements récents</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Afficher : </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Afficher les fichiers &amp;cachés</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nouveau dossier</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Voulez-vous vraiment supprimer « %1 » ?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>« %1 » est protégé en écriture.
Voulez-vous le supprimer quand même ?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Le dossier n’a pas pu être supprimé.</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Revenir en arrière</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Aller en avant</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Aller au dossier parent</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Créer un dossier</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Passer à l’affichage en liste</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Passer à l’affichage détaillé</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barre latérale</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Liste des emplacements et des favoris</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Date de modification</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Type</source>
        <comment>All other platforms</comment>
        <translation>Type</translation>
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
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Fermer sans enregistrer</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Host %1 not found</source>
        <translation>Hôte %1 introuvable</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Connexion refusée</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Connexion fermée</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Network unreachable</source>
        <translation>Réseau inaccessible</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>Hôte inaccessible</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Délai de connexion dépassé</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Connexion refusée</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation>Erreur lors du transfert de %1 – réponse du serveur : %2</translation>
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
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
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
        <translation>Maj</translation>
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
        <translation>Suppr</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
</context>
<context>
    <name>QSocks5SocketEngine</name>
    <message>
        <source>TTL expired</source>
        <translation>Durée de vie du paquet (TTL) expirée</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copier l’adresse du &amp;lien</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>ReadFailure</name>
    <message>
        <source>this is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>the file is damaged: its tags have no end</source>
        <translation>le fichier est endommagé : ses tags n’ont pas de fin</translation>
    </message>
    <message>
        <source>the file is damaged: its tags do not fit in memory</source>
        <translation>le fichier est endommagé : ses tags ne tiennent pas en mémoire</translation>
    </message>
    <message>
        <source>the disk reported an error while the file was read</source>
        <translation>le disque a signalé une erreur pendant la lecture du fichier</translation>
    </message>
    <message>
        <source>the file is damaged: reading its tags ended in a crash</source>
        <translation>le fichier est endommagé : la lecture de ses tags a provoqué un plantage</translation>
    </message>
    <message>
        <source>reading the tags of the file took too long</source>
        <translation>la lecture des tags du fichier a pris trop de temps</translation>
    </message>
    <message>
        <source>reading the tags of the file gave nonsense</source>
        <translation>la lecture des tags du fichier a donné un résultat incohérent</translation>
    </message>
    <message>
        <source>the helper program that reads tags could not be started</source>
        <translation>le programme auxiliaire qui lit les tags n’a pas pu démarrer</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>OpenGL settings</source>
        <translation>Paramètres OpenGL</translation>
    </message>
    <message>
        <source>Select the method of OpenGL usage:</source>
        <translation>Choisir le mode d’utilisation d’OpenGL :</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Détection automatique</translation>
    </message>
    <message>
        <source>OpenGL ES 2.0</source>
        <translation>OpenGL ES 2.0</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Rendu logiciel</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>OpenGL de bureau</translation>
    </message>
    <message>
        <source>Clear all settings</source>
        <translation>Effacer tous les paramètres</translation>
    </message>
    <message>
        <source>Clear settings</source>
        <translation>Effacer les paramètres</translation>
    </message>
    <message>
        <source>All settings will be removed and returned to default values. Are you sure?</source>
        <translation>Tous les paramètres seront effacés et rétablis à leur valeur par défaut. Voulez-vous continuer ?</translation>
    </message>
    <message>
        <source>All settings were cleared. The program starts anew after OK.</source>
        <translation>Tous les paramètres ont été effacés. Le programme redémarrera après « OK ».</translation>
    </message>
    <message>
        <source>The settings cannot be cleared: their file cannot be written.</source>
        <translation>Les paramètres ne peuvent pas être effacés : leur fichier n’est pas accessible en écriture.</translation>
    </message>
</context>
<context>
    <name>SceneWidget</name>
    <message>
        <source>The Qt module %1 is missing (package %2).</source>
        <translation>Le module Qt %1 est absent (paquet %2).</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Langue :</translation>
    </message>
    <message>
        <source>Restart is required to apply changes</source>
        <translation>Un redémarrage est nécessaire pour appliquer les modifications</translation>
    </message>
    <message>
        <source>Font size for lyrics:</source>
        <translation>Taille de la police des paroles :</translation>
    </message>
    <message>
        <source>Search in browser with:</source>
        <translation>Rechercher dans le navigateur avec :</translation>
    </message>
    <message>
        <source>insert a blank line at the beginning of lyrics</source>
        <translation>Insérer une ligne vide au début des paroles</translation>
    </message>
    <message>
        <source>save files list on quit</source>
        <translation>Enregistrer la liste des fichiers en quittant</translation>
    </message>
    <message>
        <source>export lyrics to a TXT file automatically</source>
        <translation>Exporter automatiquement les paroles dans un fichier TXT</translation>
    </message>
    <message>
        <source>look for new versions automatically</source>
        <translation>Rechercher automatiquement les nouvelles versions</translation>
    </message>
    <message>
        <source>send usage events, with artists and titles</source>
        <translation>Envoyer des données d’utilisation, avec artistes et titres</translation>
    </message>
    <message>
        <source>Example...</source>
        <translation>Exemple...</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Afficher un exemple de données d’utilisation</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Proxy:</source>
        <translation>Proxy :</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse :</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port :</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Authentification</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nom d’utilisateur :</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Sites</translation>
    </message>
    <message>
        <source>Search order</source>
        <translation>Ordre de recherche</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Switched off by DO_NOT_TRACK</source>
        <translation>Désactivé par DO_NOT_TRACK</translation>
    </message>
    <message>
        <source>No proxy is used.</source>
        <translation>Aucun proxy n’est utilisé.</translation>
    </message>
    <message>
        <source>No address: no proxy is used.</source>
        <translation>Pas d’adresse : aucun proxy n’est utilisé.</translation>
    </message>
    <message>
        <source>The proxy is being tested...</source>
        <translation>Test du proxy en cours...</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>Le proxy ne fonctionne pas.</translation>
    </message>
    <message>
        <source>No error within %1 seconds.</source>
        <translation>Aucune erreur au bout de %1 secondes.</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Le proxy fonctionne.</translation>
    </message>
    <message>
        <source>Not tested yet.</source>
        <translation>Pas encore testé.</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Désactiver</translation>
    </message>
    <message>
        <source>Warning!!! You have disabled all sources.</source>
        <translation>Attention ! Tous les sites sont désactivés.</translation>
    </message>
</context>
<context>
    <name>SongDetails</name>
    <message>
        <source>Artist:</source>
        <translation>Artiste :</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artiste</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titre :</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
</context>
<context>
    <name>SongList</name>
    <message>
        <source>Songs</source>
        <translation>Chansons</translation>
    </message>
</context>
<context>
    <name>SongMenu</name>
    <message>
        <source>Force to search lyrics</source>
        <translation>Forcer la recherche des paroles</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Exporter les paroles dans un fichier TXT</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Retirer la sélection</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Tout retirer</translation>
    </message>
    <message>
        <source>Copy file&apos;s path to clipboard</source>
        <translation>Copier le chemin du fichier dans le presse-papiers</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Rechercher les paroles avec %1</translation>
    </message>
</context>
<context>
    <name>SongState</name>
    <message>
        <source>cannot be read</source>
        <translation>illisible</translation>
    </message>
    <message>
        <source>has lyrics</source>
        <translation>avec paroles</translation>
    </message>
    <message>
        <source>no lyrics</source>
        <translation>sans paroles</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>Ce fichier est illisible.</translation>
    </message>
    <message>
        <source>no names</source>
        <translation>infos manquantes</translation>
    </message>
    <message>
        <source>queued</source>
        <translation>en attente</translation>
    </message>
    <message>
        <source>searching...</source>
        <translation>recherche...</translation>
    </message>
    <message>
        <source>saving...</source>
        <translation>enregistrement...</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>no lyrics found</source>
        <translation>paroles introuvables</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>non enregistrées</translation>
    </message>
    <message>
        <source>search failed</source>
        <translation>échec de la recherche</translation>
    </message>
    <message>
        <source>in queue to search...</source>
        <translation>en attente de recherche...</translation>
    </message>
    <message>
        <source>saving the lyrics...</source>
        <translation>enregistrement des paroles...</translation>
    </message>
    <message>
        <source>A search needs an artist and a title.</source>
        <translation>La recherche nécessite un artiste et un titre.</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>%1 is the reason</comment>
        <translation>Non enregistré : %1</translation>
    </message>
</context>
<context>
    <name>SplitterHandle</name>
    <message>
        <source>Width of the list</source>
        <translation>Largeur de la liste</translation>
    </message>
</context>
<context>
    <name>StateLine</name>
    <message>
        <source>search for lyrics</source>
        <translation>rechercher les paroles</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Progress of the searches</source>
        <translation>Progression des recherches</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n left...</source>
        <translation>
            <numerusform>Recherche en cours... %n restante...</numerusform>
            <numerusform>Recherche en cours... %n restantes...</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings file is damaged. What could be read is used, but no copy could be made.</source>
        <translation>Le fichier de paramètres est endommagé. Ce qui a pu être lu est utilisé, mais aucune copie n’a pu être créée.</translation>
    </message>
    <message>
        <source>The settings file was damaged. What could be read is kept; the damaged file is now %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Le fichier de paramètres était endommagé. Ce qui a pu être lu est conservé ; le fichier endommagé est désormais %1</translation>
    </message>
    <message>
        <source>The settings cannot be read or stored; changes last for this run only.</source>
        <translation>Les paramètres ne peuvent être ni lus ni enregistrés ; les modifications ne valent que pour cette session.</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since their names are damaged or too long: %n</source>
        <translation>
            <numerusform>Ignoré, car son nom est endommagé ou trop long : %n fichier</numerusform>
            <numerusform>Ignorés, car leur nom est endommagé ou trop long : %n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The list is full. Files left out: %n</source>
        <translation>
            <numerusform>La liste est pleine. Ignoré : %n fichier</numerusform>
            <numerusform>La liste est pleine. Ignorés : %n fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>The last save was cut off. Songs that are again as they were before it: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Le dernier enregistrement a été interrompu. Chansons rétablies dans leur état antérieur : %1</translation>
    </message>
    <message>
        <source>Copies from before a save that was cut off: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Copies antérieures à un enregistrement interrompu : %1</translation>
    </message>
    <message>
        <source>A save was cut off, and these songs cannot be reached to undo it; it is tried again at each start: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Un enregistrement a été interrompu et ne peut pas être annulé, car ces chansons sont inaccessibles ; une nouvelle tentative a lieu à chaque démarrage : %1</translation>
    </message>
    <message numerus="yes">
        <source>Songs that could not be written: %n (%1)</source>
        <comment>%1 is the reason</comment>
        <translation>
            <numerusform>Non enregistrée : %n chanson (%1)</numerusform>
            <numerusform>Non enregistrées : %n chansons (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics could not be written to %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Les paroles n’ont pas pu être écrites dans %1</translation>
    </message>
    <message>
        <source>There are no lyrics to export</source>
        <translation>Il n’y a pas de paroles à exporter</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Whole copies of these songs: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Copies complètes de ces chansons : %1</translation>
    </message>
    <message>
        <source>A save was cut off. Songs that are still being restored: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Un enregistrement a été interrompu. Chansons encore en cours de restauration : %1</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs could not be exported</source>
        <translation>
            <numerusform>Les paroles de %n chanson n’ont pas pu être exportées</numerusform>
            <numerusform>Les paroles de %n chansons n’ont pas pu être exportées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Lyrics exported to %n text files</source>
        <translation>
            <numerusform>Paroles exportées dans %n fichier texte</numerusform>
            <numerusform>Paroles exportées dans %n fichiers texte</numerusform>
        </translation>
    </message>
    <message>
        <source>Lyrics exported to one text file</source>
        <translation>Paroles exportées dans un fichier texte</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since they are missing or of a kind that is not supported: %n</source>
        <translation>
            <numerusform>Ignoré, car introuvable ou d’un type non pris en charge : %n fichier</numerusform>
            <numerusform>Ignorés, car introuvables ou d’un type non pris en charge : %n fichiers</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>the file is no longer there</source>
        <translation>le fichier n’existe plus</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>le fichier est en lecture seule</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>le fichier ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>no audio was found in the file</source>
        <translation>aucun contenu audio n’a été trouvé dans le fichier</translation>
    </message>
    <message>
        <source>files of this format cannot hold lyrics</source>
        <translation>les fichiers de ce format ne peuvent pas contenir de paroles</translation>
    </message>
    <message>
        <source>the file is damaged, or built in an unusual way</source>
        <translation>le fichier est endommagé ou sa structure est inhabituelle</translation>
    </message>
    <message>
        <source>there is not enough room on the disk</source>
        <translation>il n’y a pas assez d’espace sur le disque</translation>
    </message>
    <message>
        <source>the file would become too large</source>
        <translation>le fichier deviendrait trop volumineux</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>le disque signale une erreur</translation>
    </message>
    <message>
        <source>other entries of its tags would be lost</source>
        <translation>d’autres champs de ses tags seraient perdus</translation>
    </message>
    <message>
        <source>the audio would not stay as it is</source>
        <translation>le contenu audio ne resterait pas intact</translation>
    </message>
    <message>
        <source>another program has changed the file</source>
        <translation>un autre programme a modifié le fichier</translation>
    </message>
    <message>
        <source>the disk failed; the file will be restored at the next start</source>
        <translation>défaillance du disque ; le fichier sera restauré au prochain démarrage</translation>
    </message>
    <message>
        <source>the file could not be saved</source>
        <translation>le fichier n’a pas pu être enregistré</translation>
    </message>
    <message>
        <source>an earlier save of the file was cut off and is not undone yet</source>
        <translation>un enregistrement précédent du fichier a été interrompu et n’est pas encore annulé</translation>
    </message>
</context>
<context>
    <name>UnsavedLyricsGuard</name>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Voulez-vous enregistrer les modifications ?</translation>
    </message>
    <message>
        <source>The changed artist or title of one song is not in its file yet.</source>
        <translation>L’artiste ou le titre modifié d’une chanson n’est pas encore enregistré dans le fichier.</translation>
    </message>
    <message numerus="yes">
        <source>The changed artist or title of %n songs is not in their files yet.</source>
        <translation>
            <numerusform>L’artiste ou le titre modifié de %n chanson n’est pas encore enregistré dans le fichier.</numerusform>
            <numerusform>Les artistes ou titres modifiés de %n chansons ne sont pas encore enregistrés dans les fichiers.</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics of one song are not in its file and stand in the list only.</source>
        <translation>Les paroles d’une chanson ne sont pas enregistrées dans le fichier et ne figurent que dans la liste.</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs are not in their files and stand in the list only.</source>
        <translation>
            <numerusform>Les paroles de %n chanson ne sont pas enregistrées dans le fichier et ne figurent que dans la liste.</numerusform>
            <numerusform>Les paroles de %n chansons ne sont pas enregistrées dans les fichiers et ne figurent que dans la liste.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” could not be saved: %2</source>
        <comment>%1 is the title of a song, %2 the reason</comment>
        <translation>« %1 » n’a pas pu être enregistrée : %2</translation>
    </message>
    <message>
        <source>it is still being written</source>
        <translation>l’écriture est encore en cours</translation>
    </message>
    <message>
        <source>The deleted lyrics of one song are still in its file.</source>
        <translation>Les paroles supprimées d’une chanson sont encore dans le fichier.</translation>
    </message>
    <message numerus="yes">
        <source>The deleted lyrics of %n songs are still in their files.</source>
        <translation>
            <numerusform>Les paroles supprimées de %n chanson sont encore dans le fichier.</numerusform>
            <numerusform>Les paroles supprimées de %n chansons sont encore dans les fichiers.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>%1 is the title of a song</comment>
        <translation>« %1 »</translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <comment>other songs</comment>
        <translation>
            <numerusform>... et %n autre</numerusform>
            <numerusform>... et %n autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnsavedTexts</name>
    <message>
        <source>Artist: %1</source>
        <translation>Artiste : %1</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translation>Titre : %1</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Download update</source>
        <comment>Action text</comment>
        <translation>Télécharger la mise à jour</translation>
    </message>
    <message>
        <source>Cancel downloading</source>
        <comment>Action text</comment>
        <translation>Annuler le téléchargement</translation>
    </message>
    <message>
        <source>Exit and install update</source>
        <comment>Action text</comment>
        <translation>Quitter et installer la mise à jour</translation>
    </message>
    <message>
        <source>The server redirects to something that is not a web page.</source>
        <translation>Le serveur redirige vers autre chose qu’une page web.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Le serveur redirige trop de fois.</translation>
    </message>
    <message>
        <source>This build of the program knows no site to ask.</source>
        <translation>Cette version du programme ne connaît aucun site à interroger.</translation>
    </message>
    <message>
        <source>Can&apos;t check for update: %1</source>
        <translation>Impossible de rechercher une mise à jour : %1</translation>
    </message>
    <message>
        <source>Failed to parse version information data.</source>
        <comment>Updater error message</comment>
        <translation>Impossible d’analyser les informations de version.</translation>
    </message>
    <message>
        <source>Can&apos;t get update: %1</source>
        <translation>Impossible de télécharger la mise à jour : %1</translation>
    </message>
    <message>
        <source>The address of the setup file is not one that can be used.</source>
        <translation>L’adresse du fichier d’installation n’est pas utilisable.</translation>
    </message>
    <message>
        <source>The setup file has another size than the server said.</source>
        <translation>La taille du fichier d’installation diffère de celle annoncée par le serveur.</translation>
    </message>
    <message>
        <source>The server sent something else than the setup file.</source>
        <translation>Le serveur a envoyé autre chose que le fichier d’installation.</translation>
    </message>
    <message>
        <source>The setup file is larger than it should be.</source>
        <translation>Le fichier d’installation est plus volumineux que prévu.</translation>
    </message>
    <message>
        <source>The server did not send the whole setup file.</source>
        <translation>Le serveur n’a pas envoyé le fichier d’installation en entier.</translation>
    </message>
    <message>
        <source>Can&apos;t open file: %1</source>
        <translation>Impossible d’ouvrir le fichier : %1</translation>
    </message>
    <message>
        <source>Can&apos;t install update</source>
        <translation>Impossible d’installer la mise à jour</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message numerus="yes">
        <source>%n years</source>
        <translation>
            <numerusform>%n an</numerusform>
            <numerusform>%n ans</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n months</source>
        <translation>
            <numerusform>%n mois</numerusform>
            <numerusform>%n mois</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n jour</numerusform>
            <numerusform>%n jours</numerusform>
        </translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Remind later</source>
        <translation>Me le rappeler plus tard</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Installer la mise à jour</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>Mise à jour disponible !</translation>
    </message>
    <message>
        <source>A new version of &lt;b&gt;%appName&lt;/b&gt; is available!</source>
        <translation>Une nouvelle version de &lt;b&gt;%appName&lt;/b&gt; est disponible !</translation>
    </message>
    <message>
        <source>%appName &lt;b&gt;%newVersion&lt;/b&gt; is available - you have &lt;b&gt;%oldVersion&lt;/b&gt;. Would you like to download it now?</source>
        <translation>%appName &lt;b&gt;%newVersion&lt;/b&gt; est disponible – vous avez la version &lt;b&gt;%oldVersion&lt;/b&gt;. Voulez-vous la télécharger maintenant ?</translation>
    </message>
    <message>
        <source>Your version was released more than &lt;b&gt;%releasePeriod&lt;/b&gt; ago.</source>
        <translation>Votre version est sortie il y a plus de &lt;b&gt;%releasePeriod&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Since then, &lt;b&gt;%numUpdates&lt;/b&gt; versions have been released.</source>
        <translation>Depuis, &lt;b&gt;%numUpdates&lt;/b&gt; versions sont sorties.</translation>
    </message>
    <message>
        <source>Release notes:</source>
        <translation>Nouveautés :</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Nouveautés</translation>
    </message>
</context>
<context>
    <name>UpdateFolder</name>
    <message>
        <source>The folder %1 cannot be used.</source>
        <translation>Le dossier %1 ne peut pas être utilisé.</translation>
    </message>
</context>
<context>
    <name>UpdateInfoDialog</name>
    <message>
        <source>Update</source>
        <comment>noun, title of dialog about &apos;checking for updates&apos;</comment>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>Recherche de mises à jour...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>You have the latest version.</source>
        <translation>Vous avez la dernière version.</translation>
    </message>
    <message>
        <source>Failed to update</source>
        <translation>La mise à jour a échoué</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>UsageExample</name>
    <message>
        <source>Example of a usage event</source>
        <translation>Exemple de données d’utilisation</translation>
    </message>
    <message>
        <source>(random, made when you say yes)</source>
        <translation>(aléatoire, créé lorsque vous acceptez)</translation>
    </message>
    <message>
        <source>This is sent whenever a search for a song begins; the song is made up here. The start and the end of the program, an update, clicks on the maker&apos;s pages and a window that cannot be drawn are reported in the same way, without names of songs.</source>
        <translation>Ceci est envoyé chaque fois que la recherche d’une chanson commence ; la chanson est ici inventée. Le démarrage et la fermeture du programme, une mise à jour, les clics vers les pages du développeur et une fenêtre qui ne peut pas être affichée sont signalés de la même façon, sans nom de chanson.</translation>
    </message>
</context>
<context>
    <name>WritesWait</name>
    <message>
        <source>It goes on by itself when this is done.</source>
        <translation>La suite vient d’elle-même une fois que c’est terminé.</translation>
    </message>
    <message>
        <source>Changes are still being written into the songs.</source>
        <translation>Des modifications sont encore en cours d’écriture dans les chansons.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Songs and lyrics</source>
        <translation>Chansons et paroles</translation>
    </message>
    <message>
        <source>The window could not be built.</source>
        <translation>La fenêtre n’a pas pu être créée.</translation>
    </message>
    <message>
        <source>The changes to one song were kept as a text file in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>Les modifications d’une chanson ont été conservées dans un fichier texte dans %1</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs were kept as text files in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>
            <numerusform>Les modifications de %n chanson ont été conservées dans un fichier texte dans %1</numerusform>
            <numerusform>Les modifications de %n chansons ont été conservées dans des fichiers texte dans %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The changes to one song could be kept nowhere: copy them from the details now.</source>
        <translation>Les modifications d’une chanson n’ont pu être conservées nulle part : copiez-les maintenant depuis le volet de droite.</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs could be kept nowhere: copy them from the details now.</source>
        <translation>
            <numerusform>Les modifications de %n chanson n’ont pu être conservées nulle part : copiez-les maintenant depuis le volet de droite.</numerusform>
            <numerusform>Les modifications de %n chansons n’ont pu être conservées nulle part : copiez-les maintenant depuis le volet de droite.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not all changes could be written into the songs.</source>
        <translation>Certaines modifications n’ont pas pu être écrites dans les chansons.</translation>
    </message>
</context>
</TS>
