<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT">
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
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Made by %1</source>
        <comment>%1 is the maker&apos;s name</comment>
        <translation>Criado por %1</translation>
    </message>
</context>
<context>
    <name>AccessManager</name>
    <message>
        <source>Not a web address: %1</source>
        <translation>Não é um endereço web: %1</translation>
    </message>
    <message>
        <source>%1 asked for a pause and can be asked again in %2 s.</source>
        <comment>%1 is a host name</comment>
        <translation>%1 pediu uma pausa e poderá voltar a ser consultado dentro de %2 s.</translation>
    </message>
    <message>
        <source>The proxy wants a log-in of a kind that is not known here.</source>
        <translation>O proxy exige um tipo de autenticação não suportado.</translation>
    </message>
    <message>
        <source>The proxy asks for a log-in for some pages only, which is not supported.</source>
        <translation>O proxy pede autenticação apenas para algumas páginas, o que não é suportado.</translation>
    </message>
</context>
<context>
    <name>AddDialogs</name>
    <message>
        <source>Select file(s) to add</source>
        <translation>Selecionar ficheiros a adicionar</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Ficheiros de áudio</translation>
    </message>
    <message>
        <source>Select folder to add</source>
        <translation>Selecionar pasta a adicionar</translation>
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
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>No preview: the Qt module QtMultimedia is missing (package qml-module-qtmultimedia).</source>
        <translation>Não é possível reproduzir: falta o módulo QtMultimedia do Qt (pacote qml-module-qtmultimedia).</translation>
    </message>
    <message>
        <source>This file cannot be played here.</source>
        <translation>Não é possível reproduzir este ficheiro aqui.</translation>
    </message>
</context>
<context>
    <name>ConsentBar</name>
    <message>
        <source>May usage events be sent to the maker? Those about searches name artist and title.</source>
        <translation>Enviar eventos de utilização ao programador? Os das pesquisas incluem o artista e o título.</translation>
    </message>
    <message>
        <source>What is sent?</source>
        <translation>O que é enviado?</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Mostrar um exemplo de evento de utilização</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>Yes, send usage events</source>
        <translation>Sim, enviar eventos de utilização</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>No, send nothing</source>
        <translation>Não, não enviar nada</translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message numerus="yes">
        <source>Selected %n files</source>
        <translation>
            <numerusform>%n ficheiro selecionado</numerusform>
            <numerusform>%n ficheiros selecionados</numerusform>
        </translation>
    </message>
    <message>
        <source>No file is selected</source>
        <translation>Nenhum ficheiro selecionado</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Exit and install</source>
        <translation>Sair e instalar</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>Atualização do %1</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Progresso da transferência</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>A transferir atualização...</translation>
    </message>
    <message>
        <source>Ready to install...</source>
        <translation>Pronto a instalar...</translation>
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
        <translation>A instalar...</translation>
    </message>
</context>
<context>
    <name>EditableField</name>
    <message>
        <source>&lt;empty&gt;</source>
        <translation>&lt;vazio&gt;</translation>
    </message>
    <message>
        <source>Enter to apply</source>
        <translation>Enter para aplicar</translation>
    </message>
    <message>
        <source>not saved yet (Ctrl+S saves)</source>
        <translation>ainda por guardar (Ctrl+S guarda)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>All files here have lyrics and are hidden</source>
        <translation>Todos os ficheiros têm letra e estão ocultos</translation>
    </message>
    <message>
        <source>Drop music files or folders here</source>
        <translation>Largar aqui ficheiros ou pastas de música</translation>
    </message>
    <message>
        <source>Add files...</source>
        <translation>Adicionar ficheiros...</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>Adicionar uma pasta...</translation>
    </message>
</context>
<context>
    <name>ExitWidget</name>
    <message>
        <source>Do you want to quit anyway?</source>
        <translation>Sair mesmo assim?</translation>
    </message>
    <message numerus="yes">
        <source>Search for %n songs is currently in progress.</source>
        <translation>
            <numerusform>Está a ser pesquisada a letra de %n música.</numerusform>
            <numerusform>Estão a ser pesquisadas as letras de %n músicas.</numerusform>
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
        <translation>Sem título</translation>
    </message>
    <message>
        <source>No artist</source>
        <translation>Sem artista</translation>
    </message>
    <message>
        <source>Show in the file manager</source>
        <translation>Mostrar no gestor de ficheiros</translation>
    </message>
</context>
<context>
    <name>LimitedReply</name>
    <message>
        <source>The server refuses to answer (HTTP %1).</source>
        <translation>O servidor recusa-se a responder (HTTP %1).</translation>
    </message>
    <message>
        <source>The server has no such page (HTTP %1).</source>
        <translation>A página não existe no servidor (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is asked too often (HTTP %1).</source>
        <translation>O servidor está a receber demasiados pedidos (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is out of order (HTTP %1).</source>
        <translation>O servidor está fora de serviço (HTTP %1).</translation>
    </message>
    <message>
        <source>The server cannot answer the request (HTTP %1).</source>
        <translation>O servidor não consegue responder ao pedido (HTTP %1).</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>O pedido foi cancelado.</translation>
    </message>
    <message>
        <source>The server has been silent for %1 seconds.</source>
        <translation>O servidor está há %1 segundos sem responder.</translation>
    </message>
    <message>
        <source>The server took longer than %1 seconds.</source>
        <translation>O servidor demorou mais de %1 segundos.</translation>
    </message>
    <message>
        <source>The answer is packed in a way that is not known here.</source>
        <translation>A resposta usa um formato de compressão desconhecido.</translation>
    </message>
    <message>
        <source>The answer arrived damaged.</source>
        <translation>A resposta chegou danificada.</translation>
    </message>
    <message>
        <source>The connection broke before the whole answer had arrived.</source>
        <translation>A ligação caiu antes de chegar toda a resposta.</translation>
    </message>
    <message>
        <source>The answer is larger than %1.</source>
        <translation>A resposta tem mais de %1.</translation>
    </message>
    <message>
        <source>The site&apos;s certificate is not trusted.</source>
        <translation>O certificado do site não é de confiança.</translation>
    </message>
    <message>
        <source>No secure connection to the site could be made.</source>
        <translation>Não foi possível estabelecer uma ligação segura ao site.</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message numerus="yes">
        <source>Scanning folder(s) for music files (found %n)</source>
        <translation>
            <numerusform>A procurar ficheiros de música (%n encontrado)</numerusform>
            <numerusform>A procurar ficheiros de música (%n encontrados)</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message numerus="yes">
        <source>Hidden %n file(s) with lyrics</source>
        <translation>
            <numerusform>%n ficheiro com letra oculto</numerusform>
            <numerusform>%n ficheiros com letra ocultos</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Show hidden files</source>
        <translation>Mostrar ficheiros ocultos</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Remove hidden files from the list</source>
        <translation>Remover da lista os ficheiros ocultos</translation>
    </message>
</context>
<context>
    <name>LyricsEditGuard</name>
    <message>
        <source>The lyrics of “%1” have been changed.</source>
        <comment>%1 is the title of a song</comment>
        <translation>A letra de «%1» foi alterada.</translation>
    </message>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Guardar as alterações?</translation>
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
        <translation>A letra é muito longa; só é mostrado o início.</translation>
    </message>
</context>
<context>
    <name>LyricsProvider</name>
    <message>
        <source>%1 redirects to something that is not a web page.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 redireciona para algo que não é uma página web.</translation>
    </message>
    <message>
        <source>%1 redirects too often.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 redireciona demasiadas vezes.</translation>
    </message>
    <message>
        <source>%1 gave a page that holds no lyrics.</source>
        <translation>%1 devolveu uma página sem letra.</translation>
    </message>
</context>
<context>
    <name>LyricsSearch</name>
    <message>
        <source>The artist or title is too long to search for.</source>
        <translation>O artista ou o título é demasiado longo para ser pesquisado.</translation>
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
        <translation>Editar letra (F2)</translation>
    </message>
    <message>
        <source>Save lyrics (Ctrl+S)</source>
        <translation>Guardar letra (Ctrl+S)</translation>
    </message>
    <message>
        <source>Cancel editing (Esc)</source>
        <translation>Cancelar edição (Esc)</translation>
    </message>
    <message>
        <source>Force to search lyrics (Ctrl+R)</source>
        <translation>Forçar a pesquisa da letra (Ctrl+R)</translation>
    </message>
    <message>
        <source>Copy lyrics to clipboard</source>
        <translation>Copiar letra para a área de transferência</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Pesquisar letra com %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Texto mais pequeno</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Texto maior</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Add file</source>
        <translation>Adicionar ficheiro</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Adicionar pasta</translation>
    </message>
    <message>
        <source>Hide file(s) with lyrics</source>
        <translation>Ocultar ficheiros com letra</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Remove with lyrics</source>
        <translation>Remover ficheiros com letra</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Limpar lista</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Remover selecionados</translation>
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
        <translation>Sair</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Exportar letra para ficheiro TXT</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Ferramentas</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Check for updates...</source>
        <translation>Procurar atualizações...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Ficheiro</translation>
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
        <translation>Aj&amp;uda</translation>
    </message>
</context>
<context>
    <name>MusixMatchProvider</name>
    <message>
        <source>%1 leads from one list of songs to the next.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 remete de uma lista de músicas para outra.</translation>
    </message>
    <message>
        <source>%1 gave a page that is too intricate to read.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 devolveu uma página demasiado complexa para ser lida.</translation>
    </message>
</context>
<context>
    <name>PlaybackSlider</name>
    <message>
        <source>Position in the song</source>
        <translation>Posição na música</translation>
    </message>
</context>
<context>
    <name>Proxy</name>
    <message>
        <source>The proxy does not take the connection.</source>
        <translation>O proxy não aceita a ligação.</translation>
    </message>
    <message>
        <source>The proxy closed the connection.</source>
        <translation>O proxy terminou a ligação.</translation>
    </message>
    <message>
        <source>The proxy was not found.</source>
        <translation>O proxy não foi encontrado.</translation>
    </message>
    <message>
        <source>The proxy did not answer in time.</source>
        <translation>O proxy não respondeu a tempo.</translation>
    </message>
    <message>
        <source>The proxy refuses the user name or the password.</source>
        <translation>O proxy recusa o nome de utilizador ou a palavra-passe.</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>O proxy não funciona.</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Host not found</source>
        <translation>Servidor não encontrado</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Ligação recusada</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>O tempo limite da ligação esgotou-se</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>O tempo limite da operação de rede esgotou-se</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Rede inacessível</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>O servidor remoto terminou a ligação</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Selecionar tudo</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Aumentar</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuir</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Procurar em:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Recuar</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Pasta superior</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Criar nova pasta</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vista de lista</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vista detalhada</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nome do ficheiro:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Ficheiros do tipo:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Pasta:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Escolher</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Ficheiro não encontrado.
Verificar se o nome do ficheiro está correto.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Pasta não encontrada.
Verificar se o nome da pasta está correto.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Ficheiro %1</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Locais recentes</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Mostrar: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Muda&amp;r o nome</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostrar ficheiros &amp;ocultos</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nova pasta</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nova pasta</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Tem a certeza de que quer eliminar “%1”?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1” está protegido contra escrita.
Eliminar mesmo assim?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Não foi possível eliminar a pasta.</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Ir para trás</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Ir para a frente</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Ir para a pasta superior</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Criar uma nova pasta</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Mudar para a vista de lista</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Mudar para a vista detalhada</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lista de locais e marcadores</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Ficheiros</translation>
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
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Data de modificação</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
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
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Fechar sem guardar</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Host %1 not found</source>
        <translation>Servidor %1 não encontrado</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Ligação recusada</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Ligação terminada</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Anular</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
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
        <translation>Co&amp;lar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Network unreachable</source>
        <translation>Rede inacessível</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>Servidor inacessível</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>O tempo limite da ligação esgotou-se</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Ligação recusada</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation>Erro ao transferir %1; o servidor respondeu: %2</translation>
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
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
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
        <translation>O tempo de vida do pacote (TTL) expirou</translation>
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
        <translation>Copiar endereço da &amp;ligação</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
</context>
<context>
    <name>ReadFailure</name>
    <message>
        <source>this is not a regular file</source>
        <translation>não é um ficheiro normal</translation>
    </message>
    <message>
        <source>the file is damaged: its tags have no end</source>
        <translation>o ficheiro está danificado: as suas etiquetas não têm fim</translation>
    </message>
    <message>
        <source>the file is damaged: its tags do not fit in memory</source>
        <translation>o ficheiro está danificado: as suas etiquetas não cabem na memória</translation>
    </message>
    <message>
        <source>the disk reported an error while the file was read</source>
        <translation>o disco comunicou um erro durante a leitura do ficheiro</translation>
    </message>
    <message>
        <source>the file is damaged: reading its tags ended in a crash</source>
        <translation>o ficheiro está danificado: o leitor de etiquetas terminou inesperadamente</translation>
    </message>
    <message>
        <source>reading the tags of the file took too long</source>
        <translation>a leitura das etiquetas do ficheiro demorou demasiado</translation>
    </message>
    <message>
        <source>reading the tags of the file gave nonsense</source>
        <translation>a leitura das etiquetas do ficheiro devolveu dados sem sentido</translation>
    </message>
    <message>
        <source>the helper program that reads tags could not be started</source>
        <translation>não foi possível iniciar o programa auxiliar que lê as etiquetas</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>OpenGL settings</source>
        <translation>Definições do OpenGL</translation>
    </message>
    <message>
        <source>Select the method of OpenGL usage:</source>
        <translation>Selecionar como usar o OpenGL:</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Deteção automática</translation>
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
        <translation>OpenGL de desktop</translation>
    </message>
    <message>
        <source>Clear all settings</source>
        <translation>Limpar todas as definições</translation>
    </message>
    <message>
        <source>Clear settings</source>
        <translation>Limpar definições</translation>
    </message>
    <message>
        <source>All settings will be removed and returned to default values. Are you sure?</source>
        <translation>Todas as definições serão removidas e os valores predefinidos serão repostos. Continuar?</translation>
    </message>
    <message>
        <source>All settings were cleared. The program starts anew after OK.</source>
        <translation>Todas as definições foram removidas. O programa será reiniciado após o OK.</translation>
    </message>
    <message>
        <source>The settings cannot be cleared: their file cannot be written.</source>
        <translation>Não é possível limpar as definições: não é possível escrever no respetivo ficheiro.</translation>
    </message>
</context>
<context>
    <name>SceneWidget</name>
    <message>
        <source>The Qt module %1 is missing (package %2).</source>
        <translation>Falta o módulo %1 do Qt (pacote %2).</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>Restart is required to apply changes</source>
        <translation>É necessário reiniciar para aplicar as alterações</translation>
    </message>
    <message>
        <source>Font size for lyrics:</source>
        <translation>Tamanho do texto das letras:</translation>
    </message>
    <message>
        <source>Search in browser with:</source>
        <translation>Pesquisar no navegador com:</translation>
    </message>
    <message>
        <source>insert a blank line at the beginning of lyrics</source>
        <translation>Inserir uma linha em branco no início da letra</translation>
    </message>
    <message>
        <source>save files list on quit</source>
        <translation>Guardar a lista de ficheiros ao sair</translation>
    </message>
    <message>
        <source>export lyrics to a TXT file automatically</source>
        <translation>Exportar a letra para um ficheiro TXT automaticamente</translation>
    </message>
    <message>
        <source>look for new versions automatically</source>
        <translation>Procurar novas versões automaticamente</translation>
    </message>
    <message>
        <source>send usage events, with artists and titles</source>
        <translation>Enviar eventos de utilização, com artistas e títulos</translation>
    </message>
    <message>
        <source>Example...</source>
        <translation>Exemplo...</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Mostrar um exemplo de evento de utilização</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>Proxy:</source>
        <translation>Proxy:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Endereço:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Autenticação</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Utilizador:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Palavra-passe:</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Sites</translation>
    </message>
    <message>
        <source>Search order</source>
        <translation>Ordem de pesquisa</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Mover para cima</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Mover para baixo</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Ativar</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Switched off by DO_NOT_TRACK</source>
        <translation>Desativado por DO_NOT_TRACK</translation>
    </message>
    <message>
        <source>No proxy is used.</source>
        <translation>Não é usado nenhum proxy.</translation>
    </message>
    <message>
        <source>No address: no proxy is used.</source>
        <translation>Sem endereço: não é usado nenhum proxy.</translation>
    </message>
    <message>
        <source>The proxy is being tested...</source>
        <translation>A testar o proxy...</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>O proxy não funciona.</translation>
    </message>
    <message>
        <source>No error within %1 seconds.</source>
        <translation>Nenhum erro em %1 segundos.</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>O proxy funciona.</translation>
    </message>
    <message>
        <source>Not tested yet.</source>
        <translation>Ainda não testado.</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Desativar</translation>
    </message>
    <message>
        <source>Warning!!! You have disabled all sources.</source>
        <translation>Atenção! Todos os sites estão desativados.</translation>
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
        <translation>Músicas</translation>
    </message>
</context>
<context>
    <name>SongMenu</name>
    <message>
        <source>Force to search lyrics</source>
        <translation>Forçar a pesquisa da letra</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Exportar letra para ficheiro TXT</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Remover selecionados</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Remover todos</translation>
    </message>
    <message>
        <source>Copy file&apos;s path to clipboard</source>
        <translation>Copiar caminho do ficheiro para a área de transferência</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Pesquisar letra com %1</translation>
    </message>
</context>
<context>
    <name>SongState</name>
    <message>
        <source>cannot be read</source>
        <translation>ilegível</translation>
    </message>
    <message>
        <source>has lyrics</source>
        <translation>com letra</translation>
    </message>
    <message>
        <source>no lyrics</source>
        <translation>sem letra</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>Não é possível ler este ficheiro.</translation>
    </message>
    <message>
        <source>no names</source>
        <translation>faltam dados</translation>
    </message>
    <message>
        <source>queued</source>
        <translation>em fila</translation>
    </message>
    <message>
        <source>searching...</source>
        <translation>a pesquisar...</translation>
    </message>
    <message>
        <source>saving...</source>
        <translation>a guardar...</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>falhou</translation>
    </message>
    <message>
        <source>no lyrics found</source>
        <translation>letra não encontrada</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>por guardar</translation>
    </message>
    <message>
        <source>search failed</source>
        <translation>falha na pesquisa</translation>
    </message>
    <message>
        <source>in queue to search...</source>
        <translation>em fila para pesquisa...</translation>
    </message>
    <message>
        <source>saving the lyrics...</source>
        <translation>a guardar a letra...</translation>
    </message>
    <message>
        <source>A search needs an artist and a title.</source>
        <translation>A pesquisa precisa de um artista e de um título.</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>%1 is the reason</comment>
        <translation>Por guardar: %1</translation>
    </message>
</context>
<context>
    <name>SplitterHandle</name>
    <message>
        <source>Width of the list</source>
        <translation>Largura da lista</translation>
    </message>
</context>
<context>
    <name>StateLine</name>
    <message>
        <source>search for lyrics</source>
        <translation>pesquisar letra</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Progress of the searches</source>
        <translation>Progresso das pesquisas</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n left...</source>
        <translation>
            <numerusform>A pesquisar... falta %n...</numerusform>
            <numerusform>A pesquisar... faltam %n...</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings file is damaged. What could be read is used, but no copy could be made.</source>
        <translation>O ficheiro de definições está danificado. O que foi possível ler está em uso, mas não foi possível fazer uma cópia.</translation>
    </message>
    <message>
        <source>The settings file was damaged. What could be read is kept; the damaged file is now %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>O ficheiro de definições estava danificado. O que foi possível ler foi mantido; o ficheiro danificado é agora %1</translation>
    </message>
    <message>
        <source>The settings cannot be read or stored; changes last for this run only.</source>
        <translation>Não é possível ler nem guardar as definições; as alterações só duram até o programa ser fechado.</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since their names are damaged or too long: %n</source>
        <translation>
            <numerusform>Ficheiros ignorados por terem o nome danificado ou demasiado longo: %n</numerusform>
            <numerusform>Ficheiros ignorados por terem o nome danificado ou demasiado longo: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The list is full. Files left out: %n</source>
        <translation>
            <numerusform>A lista está cheia. Ficheiros ignorados: %n</numerusform>
            <numerusform>A lista está cheia. Ficheiros ignorados: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The last save was cut off. Songs that are again as they were before it: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>A última gravação foi interrompida. Músicas que voltaram ao estado anterior: %1</translation>
    </message>
    <message>
        <source>Copies from before a save that was cut off: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Cópias anteriores a uma gravação interrompida: %1</translation>
    </message>
    <message>
        <source>A save was cut off, and these songs cannot be reached to undo it; it is tried again at each start: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Uma gravação foi interrompida e não pode ser anulada porque estas músicas estão inacessíveis; haverá uma nova tentativa em cada arranque: %1</translation>
    </message>
    <message numerus="yes">
        <source>Songs that could not be written: %n (%1)</source>
        <comment>%1 is the reason</comment>
        <translation>
            <numerusform>Não foi possível guardar %n música (%1)</numerusform>
            <numerusform>Não foi possível guardar %n músicas (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics could not be written to %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Não foi possível escrever a letra em %1</translation>
    </message>
    <message>
        <source>There are no lyrics to export</source>
        <translation>Não há letras para exportar</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Whole copies of these songs: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Cópias íntegras destas músicas: %1</translation>
    </message>
    <message>
        <source>A save was cut off. Songs that are still being restored: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Uma gravação foi interrompida. Músicas ainda a ser restauradas: %1</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs could not be exported</source>
        <translation>
            <numerusform>Não foi possível exportar a letra de %n música</numerusform>
            <numerusform>Não foi possível exportar as letras de %n músicas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Lyrics exported to %n text files</source>
        <translation>
            <numerusform>Letra exportada para %n ficheiro de texto</numerusform>
            <numerusform>Letras exportadas para %n ficheiros de texto</numerusform>
        </translation>
    </message>
    <message>
        <source>Lyrics exported to one text file</source>
        <translation>Letra exportada para um ficheiro de texto</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since they are missing or of a kind that is not supported: %n</source>
        <translation>
            <numerusform>Ficheiros ignorados por não existirem ou serem de um tipo não suportado: %n</numerusform>
            <numerusform>Ficheiros ignorados por não existirem ou serem de um tipo não suportado: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>the file is no longer there</source>
        <translation>o ficheiro já não está no seu lugar</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>não é um ficheiro normal</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>o ficheiro é só de leitura</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>não é possível abrir o ficheiro</translation>
    </message>
    <message>
        <source>no audio was found in the file</source>
        <translation>não foi encontrado áudio no ficheiro</translation>
    </message>
    <message>
        <source>files of this format cannot hold lyrics</source>
        <translation>os ficheiros deste formato não podem conter letras</translation>
    </message>
    <message>
        <source>the file is damaged, or built in an unusual way</source>
        <translation>o ficheiro está danificado ou tem uma estrutura invulgar</translation>
    </message>
    <message>
        <source>there is not enough room on the disk</source>
        <translation>não há espaço suficiente no disco</translation>
    </message>
    <message>
        <source>the file would become too large</source>
        <translation>o ficheiro ficaria demasiado grande</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>o disco comunica um erro</translation>
    </message>
    <message>
        <source>other entries of its tags would be lost</source>
        <translation>perder-se-iam outros dados das etiquetas</translation>
    </message>
    <message>
        <source>the audio would not stay as it is</source>
        <translation>o áudio seria alterado</translation>
    </message>
    <message>
        <source>another program has changed the file</source>
        <translation>outro programa alterou o ficheiro</translation>
    </message>
    <message>
        <source>the disk failed; the file will be restored at the next start</source>
        <translation>o disco falhou; o ficheiro será restaurado no próximo arranque do programa</translation>
    </message>
    <message>
        <source>the file could not be saved</source>
        <translation>não foi possível guardar o ficheiro</translation>
    </message>
    <message>
        <source>an earlier save of the file was cut off and is not undone yet</source>
        <translation>uma gravação anterior do ficheiro foi interrompida e ainda não foi anulada</translation>
    </message>
</context>
<context>
    <name>UnsavedLyricsGuard</name>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Guardar as alterações?</translation>
    </message>
    <message>
        <source>The changed artist or title of one song is not in its file yet.</source>
        <translation>O artista ou o título alterado de uma música ainda não está guardado no ficheiro.</translation>
    </message>
    <message numerus="yes">
        <source>The changed artist or title of %n songs is not in their files yet.</source>
        <translation>
            <numerusform>O artista ou o título alterado de %n música ainda não está guardado no ficheiro.</numerusform>
            <numerusform>Os artistas ou títulos alterados de %n músicas ainda não estão guardados nos ficheiros.</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics of one song are not in its file and stand in the list only.</source>
        <translation>A letra de uma música não está guardada no ficheiro, só na lista.</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs are not in their files and stand in the list only.</source>
        <translation>
            <numerusform>A letra de %n música não está guardada no ficheiro, só na lista.</numerusform>
            <numerusform>As letras de %n músicas não estão guardadas nos ficheiros, só na lista.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” could not be saved: %2</source>
        <comment>%1 is the title of a song, %2 the reason</comment>
        <translation>Não foi possível guardar “%1”: %2</translation>
    </message>
    <message>
        <source>it is still being written</source>
        <translation>ainda está a ser escrita</translation>
    </message>
    <message>
        <source>The deleted lyrics of one song are still in its file.</source>
        <translation>A letra eliminada de uma música ainda está no ficheiro.</translation>
    </message>
    <message numerus="yes">
        <source>The deleted lyrics of %n songs are still in their files.</source>
        <translation>
            <numerusform>A letra eliminada de %n música ainda está no ficheiro.</numerusform>
            <numerusform>As letras eliminadas de %n músicas ainda estão nos ficheiros.</numerusform>
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
            <numerusform>... e mais %n</numerusform>
            <numerusform>... e mais %n</numerusform>
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
        <translation>Transferir atualização</translation>
    </message>
    <message>
        <source>Cancel downloading</source>
        <comment>Action text</comment>
        <translation>Cancelar transferência</translation>
    </message>
    <message>
        <source>Exit and install update</source>
        <comment>Action text</comment>
        <translation>Sair e instalar atualização</translation>
    </message>
    <message>
        <source>The server redirects to something that is not a web page.</source>
        <translation>O servidor redireciona para algo que não é uma página web.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>O servidor redireciona demasiadas vezes.</translation>
    </message>
    <message>
        <source>This build of the program knows no site to ask.</source>
        <translation>Esta compilação do programa não tem nenhum site para consultar.</translation>
    </message>
    <message>
        <source>Can&apos;t check for update: %1</source>
        <translation>Não é possível procurar atualizações: %1</translation>
    </message>
    <message>
        <source>Failed to parse version information data.</source>
        <comment>Updater error message</comment>
        <translation>Não foi possível interpretar a informação da versão.</translation>
    </message>
    <message>
        <source>Can&apos;t get update: %1</source>
        <translation>Não é possível obter a atualização: %1</translation>
    </message>
    <message>
        <source>The address of the setup file is not one that can be used.</source>
        <translation>O endereço do ficheiro de instalação não é válido.</translation>
    </message>
    <message>
        <source>The setup file has another size than the server said.</source>
        <translation>O tamanho do ficheiro de instalação não é o indicado pelo servidor.</translation>
    </message>
    <message>
        <source>The server sent something else than the setup file.</source>
        <translation>O servidor enviou algo que não é o ficheiro de instalação.</translation>
    </message>
    <message>
        <source>The setup file is larger than it should be.</source>
        <translation>O ficheiro de instalação é maior do que devia.</translation>
    </message>
    <message>
        <source>The server did not send the whole setup file.</source>
        <translation>O servidor não enviou o ficheiro de instalação completo.</translation>
    </message>
    <message>
        <source>Can&apos;t open file: %1</source>
        <translation>Não é possível abrir o ficheiro: %1</translation>
    </message>
    <message>
        <source>Can&apos;t install update</source>
        <translation>Não é possível instalar a atualização</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message numerus="yes">
        <source>%n years</source>
        <translation>
            <numerusform>%n ano</numerusform>
            <numerusform>%n anos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n months</source>
        <translation>
            <numerusform>%n mês</numerusform>
            <numerusform>%n meses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n dia</numerusform>
            <numerusform>%n dias</numerusform>
        </translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Ignorar esta versão</translation>
    </message>
    <message>
        <source>Remind later</source>
        <translation>Lembrar mais tarde</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Instalar atualização</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>Atualização disponível</translation>
    </message>
    <message>
        <source>A new version of &lt;b&gt;%appName&lt;/b&gt; is available!</source>
        <translation>Há uma nova versão do &lt;b&gt;%appName&lt;/b&gt;!</translation>
    </message>
    <message>
        <source>%appName &lt;b&gt;%newVersion&lt;/b&gt; is available - you have &lt;b&gt;%oldVersion&lt;/b&gt;. Would you like to download it now?</source>
        <translation>O %appName &lt;b&gt;%newVersion&lt;/b&gt; está disponível; a versão instalada é a &lt;b&gt;%oldVersion&lt;/b&gt;. Transferir a nova agora?</translation>
    </message>
    <message>
        <source>Your version was released more than &lt;b&gt;%releasePeriod&lt;/b&gt; ago.</source>
        <translation>A versão instalada foi lançada há mais de &lt;b&gt;%releasePeriod&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Since then, &lt;b&gt;%numUpdates&lt;/b&gt; versions have been released.</source>
        <translation>Versões lançadas desde então: &lt;b&gt;%numUpdates&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Release notes:</source>
        <translation>Notas da versão:</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas da versão</translation>
    </message>
</context>
<context>
    <name>UpdateFolder</name>
    <message>
        <source>The folder %1 cannot be used.</source>
        <translation>Não é possível usar a pasta %1.</translation>
    </message>
</context>
<context>
    <name>UpdateInfoDialog</name>
    <message>
        <source>Update</source>
        <comment>noun, title of dialog about &apos;checking for updates&apos;</comment>
        <translation>Atualização</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>A procurar atualizações...</translation>
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
        <translation>A versão instalada é a mais recente.</translation>
    </message>
    <message>
        <source>Failed to update</source>
        <translation>Não foi possível atualizar</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Atualização</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>UsageExample</name>
    <message>
        <source>Example of a usage event</source>
        <translation>Exemplo de evento de utilização</translation>
    </message>
    <message>
        <source>(random, made when you say yes)</source>
        <translation>(aleatório, criado ao responder que sim)</translation>
    </message>
    <message>
        <source>This is sent whenever a search for a song begins; the song is made up here. The start and the end of the program, an update, clicks on the maker&apos;s pages and a window that cannot be drawn are reported in the same way, without names of songs.</source>
        <translation>Isto é enviado sempre que começa a pesquisa de uma música; a música aqui é inventada. O início e o fim do programa, uma atualização, os cliques nas páginas do programador e uma janela que não pode ser desenhada são comunicados da mesma forma, sem nomes de músicas.</translation>
    </message>
</context>
<context>
    <name>WritesWait</name>
    <message>
        <source>It goes on by itself when this is done.</source>
        <translation>Depois disso, continua por si.</translation>
    </message>
    <message>
        <source>Changes are still being written into the songs.</source>
        <translation>Ainda há alterações a ser escritas nas músicas.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Songs and lyrics</source>
        <translation>Músicas e letras</translation>
    </message>
    <message>
        <source>The window could not be built.</source>
        <translation>Não foi possível criar a janela.</translation>
    </message>
    <message>
        <source>The changes to one song were kept as a text file in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>As alterações a uma música foram conservadas como ficheiro de texto em %1</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs were kept as text files in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>
            <numerusform>As alterações a %n música foram conservadas como ficheiro de texto em %1</numerusform>
            <numerusform>As alterações a %n músicas foram conservadas como ficheiros de texto em %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The changes to one song could be kept nowhere: copy them from the details now.</source>
        <translation>As alterações a uma música não puderam ser conservadas em lado nenhum: é preciso copiá-las agora do painel à direita.</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs could be kept nowhere: copy them from the details now.</source>
        <translation>
            <numerusform>As alterações a %n música não puderam ser conservadas em lado nenhum: é preciso copiá-las agora do painel à direita.</numerusform>
            <numerusform>As alterações a %n músicas não puderam ser conservadas em lado nenhum: é preciso copiá-las agora do painel à direita.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not all changes could be written into the songs.</source>
        <translation>Nem todas as alterações puderam ser escritas nas músicas.</translation>
    </message>
</context>
</TS>
