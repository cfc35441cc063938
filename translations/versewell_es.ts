<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
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
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Made by %1</source>
        <comment>%1 is the maker&apos;s name</comment>
        <translation>Creado por %1</translation>
    </message>
</context>
<context>
    <name>AccessManager</name>
    <message>
        <source>Not a web address: %1</source>
        <translation>No es una dirección web: %1</translation>
    </message>
    <message>
        <source>%1 asked for a pause and can be asked again in %2 s.</source>
        <comment>%1 is a host name</comment>
        <translation>%1 ha pedido una pausa; se podrá volver a consultar dentro de %2 s.</translation>
    </message>
    <message>
        <source>The proxy wants a log-in of a kind that is not known here.</source>
        <translation>El proxy requiere un tipo de autenticación no compatible.</translation>
    </message>
    <message>
        <source>The proxy asks for a log-in for some pages only, which is not supported.</source>
        <translation>El proxy pide iniciar sesión solo para algunas páginas, lo que no se admite.</translation>
    </message>
</context>
<context>
    <name>AddDialogs</name>
    <message>
        <source>Select file(s) to add</source>
        <translation>Seleccionar archivos para añadir</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Archivos de audio</translation>
    </message>
    <message>
        <source>Select folder to add</source>
        <translation>Seleccionar una carpeta para añadir</translation>
    </message>
</context>
<context>
    <name>AudioPreview</name>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>No preview: the Qt module QtMultimedia is missing (package qml-module-qtmultimedia).</source>
        <translation>No se puede reproducir: falta el módulo de Qt QtMultimedia (paquete qml-module-qtmultimedia).</translation>
    </message>
    <message>
        <source>This file cannot be played here.</source>
        <translation>Este archivo no se puede reproducir aquí.</translation>
    </message>
</context>
<context>
    <name>ConsentBar</name>
    <message>
        <source>May usage events be sent to the maker? Those about searches name artist and title.</source>
        <translation>¿Enviar eventos de uso al desarrollador? Los de las búsquedas incluyen el artista y el título.</translation>
    </message>
    <message>
        <source>What is sent?</source>
        <translation>¿Qué se envía?</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Mostrar un ejemplo de evento de uso</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Yes, send usage events</source>
        <translation>Sí, enviar eventos de uso</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>No, send nothing</source>
        <translation>No, no enviar nada</translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message numerus="yes">
        <source>Selected %n files</source>
        <translation>
            <numerusform>%n archivo seleccionado</numerusform>
            <numerusform>%n archivos seleccionados</numerusform>
        </translation>
    </message>
    <message>
        <source>No file is selected</source>
        <translation>Ningún archivo seleccionado</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Exit and install</source>
        <translation>Salir e instalar</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>Actualización de %1</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Progreso de la descarga</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Descargando actualización...</translation>
    </message>
    <message>
        <source>Ready to install...</source>
        <translation>Todo listo para instalar...</translation>
    </message>
    <message>
        <source>%1 MB of %2 MB</source>
        <translation>%1 MB de %2 MB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Installing...</source>
        <translation>Instalando...</translation>
    </message>
</context>
<context>
    <name>EditableField</name>
    <message>
        <source>&lt;empty&gt;</source>
        <translation>&lt;vacío&gt;</translation>
    </message>
    <message>
        <source>Enter to apply</source>
        <translation>Intro para aplicar</translation>
    </message>
    <message>
        <source>not saved yet (Ctrl+S saves)</source>
        <translation>aún sin guardar (Ctrl+S guarda)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>All files here have lyrics and are hidden</source>
        <translation>Todos los archivos tienen letra y están ocultos</translation>
    </message>
    <message>
        <source>Drop music files or folders here</source>
        <translation>Soltar aquí archivos o carpetas de música</translation>
    </message>
    <message>
        <source>Add files...</source>
        <translation>Añadir archivos...</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>Añadir una carpeta...</translation>
    </message>
</context>
<context>
    <name>ExitWidget</name>
    <message>
        <source>Do you want to quit anyway?</source>
        <translation>¿Salir de todos modos?</translation>
    </message>
    <message numerus="yes">
        <source>Search for %n songs is currently in progress.</source>
        <translation>
            <numerusform>Se está buscando la letra de %n canción.</numerusform>
            <numerusform>Se están buscando las letras de %n canciones.</numerusform>
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
        <translation>Sin título</translation>
    </message>
    <message>
        <source>No artist</source>
        <translation>Sin artista</translation>
    </message>
    <message>
        <source>Show in the file manager</source>
        <translation>Mostrar en el gestor de archivos</translation>
    </message>
</context>
<context>
    <name>LimitedReply</name>
    <message>
        <source>The server refuses to answer (HTTP %1).</source>
        <translation>El servidor se niega a responder (HTTP %1).</translation>
    </message>
    <message>
        <source>The server has no such page (HTTP %1).</source>
        <translation>La página no existe en el servidor (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is asked too often (HTTP %1).</source>
        <translation>El servidor recibe demasiadas peticiones (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is out of order (HTTP %1).</source>
        <translation>El servidor está fuera de servicio (HTTP %1).</translation>
    </message>
    <message>
        <source>The server cannot answer the request (HTTP %1).</source>
        <translation>El servidor no puede responder a la petición (HTTP %1).</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>Se canceló la petición.</translation>
    </message>
    <message>
        <source>The server has been silent for %1 seconds.</source>
        <translation>El servidor lleva %1 segundos sin responder.</translation>
    </message>
    <message>
        <source>The server took longer than %1 seconds.</source>
        <translation>El servidor tardó más de %1 segundos.</translation>
    </message>
    <message>
        <source>The answer is packed in a way that is not known here.</source>
        <translation>La respuesta usa un formato de compresión desconocido.</translation>
    </message>
    <message>
        <source>The answer arrived damaged.</source>
        <translation>La respuesta llegó dañada.</translation>
    </message>
    <message>
        <source>The connection broke before the whole answer had arrived.</source>
        <translation>La conexión se cortó antes de que llegara toda la respuesta.</translation>
    </message>
    <message>
        <source>The answer is larger than %1.</source>
        <translation>La respuesta ocupa más de %1.</translation>
    </message>
    <message>
        <source>The site&apos;s certificate is not trusted.</source>
        <translation>El certificado del sitio no es de confianza.</translation>
    </message>
    <message>
        <source>No secure connection to the site could be made.</source>
        <translation>No se pudo establecer una conexión segura con el sitio.</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message numerus="yes">
        <source>Scanning folder(s) for music files (found %n)</source>
        <translation>
            <numerusform>Buscando archivos de música (%n encontrado)</numerusform>
            <numerusform>Buscando archivos de música (%n encontrados)</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message numerus="yes">
        <source>Hidden %n file(s) with lyrics</source>
        <translation>
            <numerusform>%n archivo con letra oculto</numerusform>
            <numerusform>%n archivos con letra ocultos</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Show hidden files</source>
        <translation>Mostrar los archivos ocultos</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove hidden files from the list</source>
        <translation>Quitar de la lista los archivos ocultos</translation>
    </message>
</context>
<context>
    <name>LyricsEditGuard</name>
    <message>
        <source>The lyrics of “%1” have been changed.</source>
        <comment>%1 is the title of a song</comment>
        <translation>La letra de «%1» se ha modificado.</translation>
    </message>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>¿Guardar los cambios?</translation>
    </message>
</context>
<context>
    <name>LyricsItem</name>
    <message>
        <source>This lyrics for:</source>
        <translation>Letra de:</translation>
    </message>
    <message>
        <source>“%1” – “%2”</source>
        <comment>artist and title</comment>
        <translation>«%1» – «%2»</translation>
    </message>
    <message>
        <source>These lyrics are very long; their beginning is shown.</source>
        <translation>La letra es muy larga; solo se muestra el principio.</translation>
    </message>
</context>
<context>
    <name>LyricsProvider</name>
    <message>
        <source>%1 redirects to something that is not a web page.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 redirige a algo que no es una página web.</translation>
    </message>
    <message>
        <source>%1 redirects too often.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 redirige demasiadas veces.</translation>
    </message>
    <message>
        <source>%1 gave a page that holds no lyrics.</source>
        <translation>%1 devolvió una página sin letra.</translation>
    </message>
</context>
<context>
    <name>LyricsSearch</name>
    <message>
        <source>The artist or title is too long to search for.</source>
        <translation>El artista o el título son demasiado largos para buscarlos.</translation>
    </message>
</context>
<context>
    <name>LyricsText</name>
    <message>
        <source>Lyrics</source>
        <translation>Letra</translation>
    </message>
</context>
<context>
    <name>LyricsToolbar</name>
    <message>
        <source>Edit lyrics (F2)</source>
        <translation>Editar la letra (F2)</translation>
    </message>
    <message>
        <source>Save lyrics (Ctrl+S)</source>
        <translation>Guardar la letra (Ctrl+S)</translation>
    </message>
    <message>
        <source>Cancel editing (Esc)</source>
        <translation>Cancelar la edición (Esc)</translation>
    </message>
    <message>
        <source>Force to search lyrics (Ctrl+R)</source>
        <translation>Forzar la búsqueda de la letra (Ctrl+R)</translation>
    </message>
    <message>
        <source>Copy lyrics to clipboard</source>
        <translation>Copiar la letra al portapapeles</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Buscar la letra con %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Texto más pequeño</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Texto más grande</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Add file</source>
        <translation>Añadir archivo</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>Hide file(s) with lyrics</source>
        <translation>Ocultar archivos con letra</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Remove with lyrics</source>
        <translation>Quitar archivos con letra</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Vaciar la lista</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Quitar seleccionados</translation>
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
        <translation>Salir</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Exportar la letra a un archivo TXT</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Check for updates...</source>
        <translation>Buscar actualizaciones...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>A&amp;yuda</translation>
    </message>
</context>
<context>
    <name>MusixMatchProvider</name>
    <message>
        <source>%1 leads from one list of songs to the next.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 remite de una lista de canciones a otra.</translation>
    </message>
    <message>
        <source>%1 gave a page that is too intricate to read.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 devolvió una página demasiado compleja para leerla.</translation>
    </message>
</context>
<context>
    <name>PlaybackSlider</name>
    <message>
        <source>Position in the song</source>
        <translation>Posición en la canción</translation>
    </message>
</context>
<context>
    <name>Proxy</name>
    <message>
        <source>The proxy does not take the connection.</source>
        <translation>El proxy no acepta la conexión.</translation>
    </message>
    <message>
        <source>The proxy closed the connection.</source>
        <translation>El proxy cerró la conexión.</translation>
    </message>
    <message>
        <source>The proxy was not found.</source>
        <translation>No se encontró el proxy.</translation>
    </message>
    <message>
        <source>The proxy did not answer in time.</source>
        <translation>El proxy no respondió a tiempo.</translation>
    </message>
    <message>
        <source>The proxy refuses the user name or the password.</source>
        <translation>El proxy rechaza el nombre de usuario o la contraseña.</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>El proxy no funciona.</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Host not found</source>
        <translation>No se encontró el servidor</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Conexión rechazada</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Se agotó el tiempo de espera de la conexión</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>Se agotó el tiempo de espera de la operación de red</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Red inaccesible</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>El servidor remoto cerró la conexión</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Aumentar</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Disminuir</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Buscar en:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Carpeta superior</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Crear una carpeta</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vista de lista</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vista detallada</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nombre de archivo:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Archivos de tipo:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Carpeta:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Elegir</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
No se encontró el archivo.
Comprobar que el nombre es correcto.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
No se encontró la carpeta.
Comprobar que el nombre es correcto.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Archivo %1</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Lugares recientes</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Mostrar: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Cambia&amp;r nombre</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostrar archivos &amp;ocultos</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nueva carpeta</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nueva carpeta</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>¿Seguro que quieres eliminar «%1»?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>«%1» está protegido contra escritura.
¿Eliminarlo de todos modos?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>No se pudo eliminar la carpeta.</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Ir atrás</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Ir adelante</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Ir a la carpeta superior</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Crear una carpeta nueva</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Cambiar a la vista de lista</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Cambiar a la vista detallada</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lista de lugares y marcadores</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Fecha de modificación</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
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
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>C&amp;errar</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Cerrar sin guardar</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Host %1 not found</source>
        <translation>No se encontró el servidor %1</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Conexión rechazada</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Conexión cerrada</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Network unreachable</source>
        <translation>Red inaccesible</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>Servidor inaccesible</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Se agotó el tiempo de espera de la conexión</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Conexión rechazada</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation>Error al transferir %1; el servidor respondió: %2</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
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
        <translation>Mayús</translation>
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
        <translation>Supr</translation>
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
        <translation>El tiempo de vida del paquete (TTL) expiró</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiar la dirección del &amp;enlace</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>ReadFailure</name>
    <message>
        <source>this is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>the file is damaged: its tags have no end</source>
        <translation>el archivo está dañado: sus etiquetas no tienen final</translation>
    </message>
    <message>
        <source>the file is damaged: its tags do not fit in memory</source>
        <translation>el archivo está dañado: sus etiquetas no caben en la memoria</translation>
    </message>
    <message>
        <source>the disk reported an error while the file was read</source>
        <translation>el disco dio un error al leer el archivo</translation>
    </message>
    <message>
        <source>the file is damaged: reading its tags ended in a crash</source>
        <translation>el archivo está dañado: el lector de etiquetas se cerró de forma inesperada</translation>
    </message>
    <message>
        <source>reading the tags of the file took too long</source>
        <translation>la lectura de las etiquetas del archivo tardó demasiado</translation>
    </message>
    <message>
        <source>reading the tags of the file gave nonsense</source>
        <translation>la lectura de las etiquetas del archivo dio datos sin sentido</translation>
    </message>
    <message>
        <source>the helper program that reads tags could not be started</source>
        <translation>no se pudo iniciar el programa auxiliar que lee las etiquetas</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>OpenGL settings</source>
        <translation>Configuración de OpenGL</translation>
    </message>
    <message>
        <source>Select the method of OpenGL usage:</source>
        <translation>Seleccionar cómo se usa OpenGL:</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Detección automática</translation>
    </message>
    <message>
        <source>OpenGL ES 2.0</source>
        <translation>OpenGL ES 2.0</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Por software</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>OpenGL de escritorio</translation>
    </message>
    <message>
        <source>Clear all settings</source>
        <translation>Borrar toda la configuración</translation>
    </message>
    <message>
        <source>Clear settings</source>
        <translation>Borrar la configuración</translation>
    </message>
    <message>
        <source>All settings will be removed and returned to default values. Are you sure?</source>
        <translation>Se borrará toda la configuración y se restaurarán los valores predeterminados. ¿Continuar?</translation>
    </message>
    <message>
        <source>All settings were cleared. The program starts anew after OK.</source>
        <translation>Se ha borrado toda la configuración. El programa se reiniciará al pulsar Aceptar.</translation>
    </message>
    <message>
        <source>The settings cannot be cleared: their file cannot be written.</source>
        <translation>No se puede borrar la configuración: no se puede escribir en su archivo.</translation>
    </message>
</context>
<context>
    <name>SceneWidget</name>
    <message>
        <source>The Qt module %1 is missing (package %2).</source>
        <translation>Falta el módulo de Qt %1 (paquete %2).</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>Restart is required to apply changes</source>
        <translation>Es necesario reiniciar para aplicar los cambios</translation>
    </message>
    <message>
        <source>Font size for lyrics:</source>
        <translation>Tamaño del texto de las letras:</translation>
    </message>
    <message>
        <source>Search in browser with:</source>
        <translation>Buscar en el navegador con:</translation>
    </message>
    <message>
        <source>insert a blank line at the beginning of lyrics</source>
        <translation>Insertar una línea en blanco al principio de la letra</translation>
    </message>
    <message>
        <source>save files list on quit</source>
        <translation>Guardar la lista de archivos al salir</translation>
    </message>
    <message>
        <source>export lyrics to a TXT file automatically</source>
        <translation>Exportar la letra a un archivo TXT automáticamente</translation>
    </message>
    <message>
        <source>look for new versions automatically</source>
        <translation>Buscar versiones nuevas automáticamente</translation>
    </message>
    <message>
        <source>send usage events, with artists and titles</source>
        <translation>Enviar eventos de uso, con artistas y títulos</translation>
    </message>
    <message>
        <source>Example...</source>
        <translation>Ejemplo...</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Mostrar un ejemplo de evento de uso</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Proxy:</source>
        <translation>Proxy:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Puerto:</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Autenticación</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Usuario:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Sitios</translation>
    </message>
    <message>
        <source>Search order</source>
        <translation>Orden de búsqueda</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Switched off by DO_NOT_TRACK</source>
        <translation>Desactivado por DO_NOT_TRACK</translation>
    </message>
    <message>
        <source>No proxy is used.</source>
        <translation>No se usa ningún proxy.</translation>
    </message>
    <message>
        <source>No address: no proxy is used.</source>
        <translation>Falta la dirección: no se usa ningún proxy.</translation>
    </message>
    <message>
        <source>The proxy is being tested...</source>
        <translation>Probando el proxy...</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>El proxy no funciona.</translation>
    </message>
    <message>
        <source>No error within %1 seconds.</source>
        <translation>Ningún error en %1 segundos.</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>El proxy funciona.</translation>
    </message>
    <message>
        <source>Not tested yet.</source>
        <translation>Aún sin probar.</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Desactivar</translation>
    </message>
    <message>
        <source>Warning!!! You have disabled all sources.</source>
        <translation>¡Atención! Todos los sitios están desactivados.</translation>
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
        <translation>Título:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
</context>
<context>
    <name>SongList</name>
    <message>
        <source>Songs</source>
        <translation>Canciones</translation>
    </message>
</context>
<context>
    <name>SongMenu</name>
    <message>
        <source>Force to search lyrics</source>
        <translation>Forzar la búsqueda de la letra</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Exportar la letra a un archivo TXT</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Quitar seleccionados</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Quitar todos</translation>
    </message>
    <message>
        <source>Copy file&apos;s path to clipboard</source>
        <translation>Copiar la ruta del archivo al portapapeles</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Buscar la letra con %1</translation>
    </message>
</context>
<context>
    <name>SongState</name>
    <message>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>has lyrics</source>
        <translation>con letra</translation>
    </message>
    <message>
        <source>no lyrics</source>
        <translation>sin letra</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>Este archivo no se puede leer.</translation>
    </message>
    <message>
        <source>no names</source>
        <translation>faltan datos</translation>
    </message>
    <message>
        <source>queued</source>
        <translation>en cola</translation>
    </message>
    <message>
        <source>searching...</source>
        <translation>buscando...</translation>
    </message>
    <message>
        <source>saving...</source>
        <translation>guardando...</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>error</translation>
    </message>
    <message>
        <source>no lyrics found</source>
        <translation>letra no encontrada</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>sin guardar</translation>
    </message>
    <message>
        <source>search failed</source>
        <translation>búsqueda fallida</translation>
    </message>
    <message>
        <source>in queue to search...</source>
        <translation>en cola para la búsqueda...</translation>
    </message>
    <message>
        <source>saving the lyrics...</source>
        <translation>guardando la letra...</translation>
    </message>
    <message>
        <source>A search needs an artist and a title.</source>
        <translation>Para buscar se necesitan un artista y un título.</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>%1 is the reason</comment>
        <translation>Sin guardar: %1</translation>
    </message>
</context>
<context>
    <name>SplitterHandle</name>
    <message>
        <source>Width of the list</source>
        <translation>Ancho de la lista</translation>
    </message>
</context>
<context>
    <name>StateLine</name>
    <message>
        <source>search for lyrics</source>
        <translation>buscar la letra</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Progress of the searches</source>
        <translation>Progreso de las búsquedas</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n left...</source>
        <translation>
            <numerusform>Buscando... queda %n...</numerusform>
            <numerusform>Buscando... quedan %n...</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings file is damaged. What could be read is used, but no copy could be made.</source>
        <translation>El archivo de configuración está dañado. Se usa lo que se pudo leer, pero no se pudo hacer una copia.</translation>
    </message>
    <message>
        <source>The settings file was damaged. What could be read is kept; the damaged file is now %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>El archivo de configuración estaba dañado. Se conserva lo que se pudo leer; el archivo dañado es ahora %1</translation>
    </message>
    <message>
        <source>The settings cannot be read or stored; changes last for this run only.</source>
        <translation>No se puede leer ni guardar la configuración; los cambios solo durarán hasta que se cierre el programa.</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since their names are damaged or too long: %n</source>
        <translation>
            <numerusform>Archivos omitidos porque su nombre está dañado o es demasiado largo: %n</numerusform>
            <numerusform>Archivos omitidos porque su nombre está dañado o es demasiado largo: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The list is full. Files left out: %n</source>
        <translation>
            <numerusform>La lista está llena. Archivos omitidos: %n</numerusform>
            <numerusform>La lista está llena. Archivos omitidos: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The last save was cut off. Songs that are again as they were before it: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>El último guardado se interrumpió. Canciones devueltas a su estado anterior: %1</translation>
    </message>
    <message>
        <source>Copies from before a save that was cut off: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Copias anteriores a un guardado interrumpido: %1</translation>
    </message>
    <message>
        <source>A save was cut off, and these songs cannot be reached to undo it; it is tried again at each start: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Un guardado se interrumpió y no se puede deshacer porque no hay acceso a estas canciones; se volverá a intentar en cada inicio: %1</translation>
    </message>
    <message numerus="yes">
        <source>Songs that could not be written: %n (%1)</source>
        <comment>%1 is the reason</comment>
        <translation>
            <numerusform>No se pudo guardar %n canción (%1)</numerusform>
            <numerusform>No se pudieron guardar %n canciones (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics could not be written to %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>No se pudo guardar la letra en %1</translation>
    </message>
    <message>
        <source>There are no lyrics to export</source>
        <translation>No hay letras que exportar</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Whole copies of these songs: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Copias íntegras de estas canciones: %1</translation>
    </message>
    <message>
        <source>A save was cut off. Songs that are still being restored: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Un guardado se interrumpió. Canciones que aún se están restaurando: %1</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs could not be exported</source>
        <translation>
            <numerusform>No se pudo exportar la letra de %n canción</numerusform>
            <numerusform>No se pudieron exportar las letras de %n canciones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Lyrics exported to %n text files</source>
        <translation>
            <numerusform>Letra exportada a %n archivo de texto</numerusform>
            <numerusform>Letras exportadas a %n archivos de texto</numerusform>
        </translation>
    </message>
    <message>
        <source>Lyrics exported to one text file</source>
        <translation>Letra exportada a un archivo de texto</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since they are missing or of a kind that is not supported: %n</source>
        <translation>
            <numerusform>Archivos omitidos porque no existen o su tipo no es compatible: %n</numerusform>
            <numerusform>Archivos omitidos porque no existen o su tipo no es compatible: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>the file is no longer there</source>
        <translation>el archivo ya no está en su lugar</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>el archivo es de solo lectura</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>no se puede abrir el archivo</translation>
    </message>
    <message>
        <source>no audio was found in the file</source>
        <translation>no se encontró audio en el archivo</translation>
    </message>
    <message>
        <source>files of this format cannot hold lyrics</source>
        <translation>los archivos de este formato no admiten letras</translation>
    </message>
    <message>
        <source>the file is damaged, or built in an unusual way</source>
        <translation>el archivo está dañado o tiene una estructura poco habitual</translation>
    </message>
    <message>
        <source>there is not enough room on the disk</source>
        <translation>no hay suficiente espacio en el disco</translation>
    </message>
    <message>
        <source>the file would become too large</source>
        <translation>el archivo sería demasiado grande</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>el disco da un error</translation>
    </message>
    <message>
        <source>other entries of its tags would be lost</source>
        <translation>se perderían otros datos de sus etiquetas</translation>
    </message>
    <message>
        <source>the audio would not stay as it is</source>
        <translation>el audio resultaría alterado</translation>
    </message>
    <message>
        <source>another program has changed the file</source>
        <translation>otro programa modificó el archivo</translation>
    </message>
    <message>
        <source>the disk failed; the file will be restored at the next start</source>
        <translation>el disco falló; el archivo se restaurará en el próximo inicio del programa</translation>
    </message>
    <message>
        <source>the file could not be saved</source>
        <translation>no se pudo guardar el archivo</translation>
    </message>
    <message>
        <source>an earlier save of the file was cut off and is not undone yet</source>
        <translation>un guardado anterior del archivo se interrumpió y aún no se ha deshecho</translation>
    </message>
</context>
<context>
    <name>UnsavedLyricsGuard</name>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>¿Guardar los cambios?</translation>
    </message>
    <message>
        <source>The changed artist or title of one song is not in its file yet.</source>
        <translation>El artista o el título modificado de una canción aún no está guardado en el archivo.</translation>
    </message>
    <message numerus="yes">
        <source>The changed artist or title of %n songs is not in their files yet.</source>
        <translation>
            <numerusform>El artista o el título modificado de %n canción aún no está guardado en el archivo.</numerusform>
            <numerusform>Los artistas o títulos modificados de %n canciones aún no están guardados en los archivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics of one song are not in its file and stand in the list only.</source>
        <translation>La letra de una canción no está guardada en el archivo, solo en la lista.</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs are not in their files and stand in the list only.</source>
        <translation>
            <numerusform>La letra de %n canción no está guardada en el archivo, solo en la lista.</numerusform>
            <numerusform>Las letras de %n canciones no están guardadas en los archivos, solo en la lista.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” could not be saved: %2</source>
        <comment>%1 is the title of a song, %2 the reason</comment>
        <translation>No se pudo guardar «%1»: %2</translation>
    </message>
    <message>
        <source>it is still being written</source>
        <translation>todavía se está escribiendo</translation>
    </message>
    <message>
        <source>The deleted lyrics of one song are still in its file.</source>
        <translation>La letra borrada de una canción sigue en el archivo.</translation>
    </message>
    <message numerus="yes">
        <source>The deleted lyrics of %n songs are still in their files.</source>
        <translation>
            <numerusform>La letra borrada de %n canción sigue en el archivo.</numerusform>
            <numerusform>Las letras borradas de %n canciones siguen en los archivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>%1 is the title of a song</comment>
        <translation>«%1»</translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <comment>other songs</comment>
        <translation>
            <numerusform>... y %n más</numerusform>
            <numerusform>... y %n más</numerusform>
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
        <translation>Título: %1</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Download update</source>
        <comment>Action text</comment>
        <translation>Descargar actualización</translation>
    </message>
    <message>
        <source>Cancel downloading</source>
        <comment>Action text</comment>
        <translation>Cancelar descarga</translation>
    </message>
    <message>
        <source>Exit and install update</source>
        <comment>Action text</comment>
        <translation>Salir e instalar actualización</translation>
    </message>
    <message>
        <source>The server redirects to something that is not a web page.</source>
        <translation>El servidor redirige a algo que no es una página web.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>El servidor redirige demasiadas veces.</translation>
    </message>
    <message>
        <source>This build of the program knows no site to ask.</source>
        <translation>Esta compilación del programa no tiene ningún sitio que consultar.</translation>
    </message>
    <message>
        <source>Can&apos;t check for update: %1</source>
        <translation>No se pueden buscar actualizaciones: %1</translation>
    </message>
    <message>
        <source>Failed to parse version information data.</source>
        <comment>Updater error message</comment>
        <translation>No se pudo interpretar la información de versión.</translation>
    </message>
    <message>
        <source>Can&apos;t get update: %1</source>
        <translation>No se puede obtener la actualización: %1</translation>
    </message>
    <message>
        <source>The address of the setup file is not one that can be used.</source>
        <translation>La dirección del archivo de instalación no es válida.</translation>
    </message>
    <message>
        <source>The setup file has another size than the server said.</source>
        <translation>El tamaño del archivo de instalación no es el que indicó el servidor.</translation>
    </message>
    <message>
        <source>The server sent something else than the setup file.</source>
        <translation>El servidor envió algo distinto del archivo de instalación.</translation>
    </message>
    <message>
        <source>The setup file is larger than it should be.</source>
        <translation>El archivo de instalación es más grande de lo previsto.</translation>
    </message>
    <message>
        <source>The server did not send the whole setup file.</source>
        <translation>El servidor no envió el archivo de instalación completo.</translation>
    </message>
    <message>
        <source>Can&apos;t open file: %1</source>
        <translation>No se puede abrir el archivo: %1</translation>
    </message>
    <message>
        <source>Can&apos;t install update</source>
        <translation>No se puede instalar la actualización</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message numerus="yes">
        <source>%n years</source>
        <translation>
            <numerusform>%n año</numerusform>
            <numerusform>%n años</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n months</source>
        <translation>
            <numerusform>%n mes</numerusform>
            <numerusform>%n meses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n día</numerusform>
            <numerusform>%n días</numerusform>
        </translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>Remind later</source>
        <translation>Recordar más tarde</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Instalar actualización</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>A new version of &lt;b&gt;%appName&lt;/b&gt; is available!</source>
        <translation>¡Hay una versión nueva de &lt;b&gt;%appName&lt;/b&gt;!</translation>
    </message>
    <message>
        <source>%appName &lt;b&gt;%newVersion&lt;/b&gt; is available - you have &lt;b&gt;%oldVersion&lt;/b&gt;. Would you like to download it now?</source>
        <translation>%appName &lt;b&gt;%newVersion&lt;/b&gt; está disponible; la versión instalada es la &lt;b&gt;%oldVersion&lt;/b&gt;. ¿Descargar la nueva ahora?</translation>
    </message>
    <message>
        <source>Your version was released more than &lt;b&gt;%releasePeriod&lt;/b&gt; ago.</source>
        <translation>La versión instalada se publicó hace más de &lt;b&gt;%releasePeriod&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Since then, &lt;b&gt;%numUpdates&lt;/b&gt; versions have been released.</source>
        <translation>Versiones publicadas desde entonces: &lt;b&gt;%numUpdates&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Release notes:</source>
        <translation>Notas de la versión:</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas de la versión</translation>
    </message>
</context>
<context>
    <name>UpdateFolder</name>
    <message>
        <source>The folder %1 cannot be used.</source>
        <translation>No se puede usar la carpeta %1.</translation>
    </message>
</context>
<context>
    <name>UpdateInfoDialog</name>
    <message>
        <source>Update</source>
        <comment>noun, title of dialog about &apos;checking for updates&apos;</comment>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>Buscando actualizaciones...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>You have the latest version.</source>
        <translation>Está instalada la última versión.</translation>
    </message>
    <message>
        <source>Failed to update</source>
        <translation>No se pudo actualizar</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>UsageExample</name>
    <message>
        <source>Example of a usage event</source>
        <translation>Ejemplo de evento de uso</translation>
    </message>
    <message>
        <source>(random, made when you say yes)</source>
        <translation>(aleatorio, se crea al responder que sí)</translation>
    </message>
    <message>
        <source>This is sent whenever a search for a song begins; the song is made up here. The start and the end of the program, an update, clicks on the maker&apos;s pages and a window that cannot be drawn are reported in the same way, without names of songs.</source>
        <translation>Esto se envía cada vez que empieza la búsqueda de una canción; la canción de aquí es inventada. El inicio y el cierre del programa, una actualización, los clics en las páginas del desarrollador y una ventana que no se puede dibujar se comunican del mismo modo, sin nombres de canciones.</translation>
    </message>
</context>
<context>
    <name>WritesWait</name>
    <message>
        <source>It goes on by itself when this is done.</source>
        <translation>Continúa por sí solo cuando termina.</translation>
    </message>
    <message>
        <source>Changes are still being written into the songs.</source>
        <translation>Todavía se están escribiendo cambios en las canciones.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Songs and lyrics</source>
        <translation>Canciones y letras</translation>
    </message>
    <message>
        <source>The window could not be built.</source>
        <translation>No se pudo crear la ventana.</translation>
    </message>
    <message>
        <source>The changes to one song were kept as a text file in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>Los cambios de una canción se conservaron como archivo de texto en %1</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs were kept as text files in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>
            <numerusform>Los cambios de %n canción se conservaron como archivo de texto en %1</numerusform>
            <numerusform>Los cambios de %n canciones se conservaron como archivos de texto en %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The changes to one song could be kept nowhere: copy them from the details now.</source>
        <translation>Los cambios de una canción no se pudieron conservar en ningún sitio: hay que copiarlos ahora desde el panel de la derecha.</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs could be kept nowhere: copy them from the details now.</source>
        <translation>
            <numerusform>Los cambios de %n canción no se pudieron conservar en ningún sitio: hay que copiarlos ahora desde el panel de la derecha.</numerusform>
            <numerusform>Los cambios de %n canciones no se pudieron conservar en ningún sitio: hay que copiarlos ahora desde el panel de la derecha.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not all changes could be written into the songs.</source>
        <translation>No todos los cambios se pudieron escribir en las canciones.</translation>
    </message>
</context>
</TS>
