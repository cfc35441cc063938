<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
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
        <translation>Feito por %1</translation>
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
        <translation>%1 pediu uma pausa e poderá ser consultado novamente em %2 s.</translation>
    </message>
    <message>
        <source>The proxy wants a log-in of a kind that is not known here.</source>
        <translation>O proxy exige um tipo de autenticação não compatível.</translation>
    </message>
    <message>
        <source>The proxy asks for a log-in for some pages only, which is not supported.</source>
        <translation>O proxy pede login apenas para algumas páginas, o que não é suportado.</translation>
    </message>
</context>
<context>
    <name>AddDialogs</name>
    <message>
        <source>Select file(s) to add</source>
        <translation>Selecionar arquivos para adicionar</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Arquivos de áudio</translation>
    </message>
    <message>
        <source>Select folder to add</source>
        <translation>Selecionar pasta para adicionar</translation>
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
        <translation>Não é possível reproduzir: o módulo QtMultimedia do Qt não está instalado (pacote qml-module-qtmultimedia).</translation>
    </message>
    <message>
        <source>This file cannot be played here.</source>
        <translation>Não é possível reproduzir este arquivo aqui.</translation>
    </message>
</context>
<context>
    <name>ConsentBar</name>
    <message>
        <source>May usage events be sent to the maker? Those about searches name artist and title.</source>
        <translation>Enviar eventos de uso ao desenvolvedor? Os das pesquisas incluem o artista e o título.</translation>
    </message>
    <message>
        <source>What is sent?</source>
        <translation>O que é enviado?</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Mostrar um exemplo de evento de uso</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>Yes, send usage events</source>
        <translation>Sim, enviar eventos de uso</translation>
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
            <numerusform>%n arquivo selecionado</numerusform>
            <numerusform>%n arquivos selecionados</numerusform>
        </translation>
    </message>
    <message>
        <source>No file is selected</source>
        <translation>Nenhum arquivo selecionado</translation>
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
        <translation>Progresso do download</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Baixando atualização...</translation>
    </message>
    <message>
        <source>Ready to install...</source>
        <translation>Pronto para instalar...</translation>
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
        <translation>&lt;vazio&gt;</translation>
    </message>
    <message>
        <source>Enter to apply</source>
        <translation>Enter para aplicar</translation>
    </message>
    <message>
        <source>not saved yet (Ctrl+S saves)</source>
        <translation>ainda não foi salvo (Ctrl+S salva)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>All files here have lyrics and are hidden</source>
        <translation>Todos os arquivos têm letra e estão ocultos</translation>
    </message>
    <message>
        <source>Drop music files or folders here</source>
        <translation>Solte aqui arquivos ou pastas de música</translation>
    </message>
    <message>
        <source>Add files...</source>
        <translation>Adicionar arquivos...</translation>
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
        <translation>Deseja sair mesmo assim?</translation>
    </message>
    <message numerus="yes">
        <source>Search for %n songs is currently in progress.</source>
        <translation>
            <numerusform>A letra de %n música está sendo pesquisada.</numerusform>
            <numerusform>As letras de %n músicas estão sendo pesquisadas.</numerusform>
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
        <translation>Mostrar no gerenciador de arquivos</translation>
    </message>
</context>
<context>
    <name>LimitedReply</name>
    <message>
        <source>The server refuses to answer (HTTP %1).</source>
        <translation>O servidor se recusa a responder (HTTP %1).</translation>
    </message>
    <message>
        <source>The server has no such page (HTTP %1).</source>
        <translation>A página não existe no servidor (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is asked too often (HTTP %1).</source>
        <translation>O servidor está recebendo requisições demais (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is out of order (HTTP %1).</source>
        <translation>O servidor está fora do ar (HTTP %1).</translation>
    </message>
    <message>
        <source>The server cannot answer the request (HTTP %1).</source>
        <translation>O servidor não consegue atender à requisição (HTTP %1).</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>A requisição foi cancelada.</translation>
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
        <translation>A resposta usa um formato de compactação desconhecido.</translation>
    </message>
    <message>
        <source>The answer arrived damaged.</source>
        <translation>A resposta chegou danificada.</translation>
    </message>
    <message>
        <source>The connection broke before the whole answer had arrived.</source>
        <translation>A conexão caiu antes que toda a resposta chegasse.</translation>
    </message>
    <message>
        <source>The answer is larger than %1.</source>
        <translation>A resposta tem mais de %1.</translation>
    </message>
    <message>
        <source>The site&apos;s certificate is not trusted.</source>
        <translation>O certificado do site não é confiável.</translation>
    </message>
    <message>
        <source>No secure connection to the site could be made.</source>
        <translation>Não foi possível estabelecer uma conexão segura com o site.</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message numerus="yes">
        <source>Scanning folder(s) for music files (found %n)</source>
        <translation>
            <numerusform>Procurando arquivos de música (%n encontrado)</numerusform>
            <numerusform>Procurando arquivos de música (%n encontrados)</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message numerus="yes">
        <source>Hidden %n file(s) with lyrics</source>
        <translation>
            <numerusform>%n arquivo com letra oculto</numerusform>
            <numerusform>%n arquivos com letra ocultos</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Show hidden files</source>
        <translation>Mostrar arquivos ocultos</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Remove hidden files from the list</source>
        <translation>Remover os arquivos ocultos da lista</translation>
    </message>
</context>
<context>
    <name>LyricsEditGuard</name>
    <message>
        <source>The lyrics of “%1” have been changed.</source>
        <comment>%1 is the title of a song</comment>
        <translation>A letra de “%1” foi alterada.</translation>
    </message>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Deseja salvar as alterações?</translation>
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
        <translation>“%1” – “%2”</translation>
    </message>
    <message>
        <source>These lyrics are very long; their beginning is shown.</source>
        <translation>A letra é muito longa; só o começo é exibido.</translation>
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
        <translation>%1 redireciona vezes demais.</translation>
    </message>
    <message>
        <source>%1 gave a page that holds no lyrics.</source>
        <translation>%1 retornou uma página sem letra.</translation>
    </message>
</context>
<context>
    <name>LyricsSearch</name>
    <message>
        <source>The artist or title is too long to search for.</source>
        <translation>O artista ou o título é longo demais para ser pesquisado.</translation>
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
        <translation>Salvar letra (Ctrl+S)</translation>
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
        <translation>Texto menor</translation>
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
        <translation>Adicionar arquivo</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Adicionar pasta</translation>
    </message>
    <message>
        <source>Hide file(s) with lyrics</source>
        <translation>Ocultar arquivos com letra</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Remove with lyrics</source>
        <translation>Remover arquivos com letra</translation>
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
        <translation>Sobre</translation>
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
        <translation>Exportar letra para arquivo TXT</translation>
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
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>E&amp;xibir</translation>
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
        <translation>%1 leva de uma lista de músicas a outra.</translation>
    </message>
    <message>
        <source>%1 gave a page that is too intricate to read.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 retornou uma página complexa demais para ser lida.</translation>
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
        <translation>O proxy não aceita a conexão.</translation>
    </message>
    <message>
        <source>The proxy closed the connection.</source>
        <translation>O proxy encerrou a conexão.</translation>
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
        <translation>O proxy recusa o nome de usuário ou a senha.</translation>
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
        <translation>Conexão recusada</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Tempo limite da conexão esgotado</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>Tempo limite da operação de rede esgotado</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Rede inacessível</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>O servidor remoto encerrou a conexão</translation>
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
        <translation>Voltar</translation>
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
        <translation>Exibição em lista</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Exibição detalhada</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nome do arquivo:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Arquivos do tipo:</translation>
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
Arquivo não encontrado.
Verifique se o nome do arquivo está correto.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Pasta não encontrada.
Verifique se o nome da pasta está correto.</translation>
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
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Arquivo %1</translation>
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
        <translation>&amp;Renomear</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;xcluir</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostrar arquivos &amp;ocultos</translation>
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
        <translation>Tem certeza de que deseja excluir “%1”?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1” está protegido contra gravação.
Deseja excluir mesmo assim?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Não foi possível excluir a pasta.</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Ir para trás</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Ir para frente</translation>
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
        <translation>Mudar para a exibição em lista</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Mudar para a exibição detalhada</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lista de locais e favoritos</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
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
        <translation>&amp;Salvar</translation>
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
        <translation>Fechar sem salvar</translation>
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
        <translation>Conexão recusada</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Conexão encerrada</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Recor&amp;tar</translation>
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
        <translation>Excluir</translation>
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
        <translation>Tempo limite da conexão esgotado</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Conexão recusada</translation>
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
        <translation>Salvar</translation>
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
        <translation>Copiar endereço do &amp;link</translation>
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
        <translation>não é um arquivo comum</translation>
    </message>
    <message>
        <source>the file is damaged: its tags have no end</source>
        <translation>o arquivo está danificado: suas etiquetas não têm fim</translation>
    </message>
    <message>
        <source>the file is damaged: its tags do not fit in memory</source>
        <translation>o arquivo está danificado: suas etiquetas não cabem na memória</translation>
    </message>
    <message>
        <source>the disk reported an error while the file was read</source>
        <translation>o disco relatou um erro durante a leitura do arquivo</translation>
    </message>
    <message>
        <source>the file is damaged: reading its tags ended in a crash</source>
        <translation>o arquivo está danificado: o leitor de etiquetas fechou inesperadamente</translation>
    </message>
    <message>
        <source>reading the tags of the file took too long</source>
        <translation>a leitura das etiquetas do arquivo demorou demais</translation>
    </message>
    <message>
        <source>reading the tags of the file gave nonsense</source>
        <translation>a leitura das etiquetas do arquivo retornou dados sem sentido</translation>
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
        <translation>Configurações do OpenGL</translation>
    </message>
    <message>
        <source>Select the method of OpenGL usage:</source>
        <translation>Selecione como usar o OpenGL:</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Detecção automática</translation>
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
        <translation>OpenGL para desktop</translation>
    </message>
    <message>
        <source>Clear all settings</source>
        <translation>Limpar todas as configurações</translation>
    </message>
    <message>
        <source>Clear settings</source>
        <translation>Limpar configurações</translation>
    </message>
    <message>
        <source>All settings will be removed and returned to default values. Are you sure?</source>
        <translation>Todas as configurações serão removidas e os valores padrão serão restaurados. Deseja continuar?</translation>
    </message>
    <message>
        <source>All settings were cleared. The program starts anew after OK.</source>
        <translation>Todas as configurações foram removidas. O programa será reiniciado após o OK.</translation>
    </message>
    <message>
        <source>The settings cannot be cleared: their file cannot be written.</source>
        <translation>Não é possível limpar as configurações: o arquivo delas não pode ser gravado.</translation>
    </message>
</context>
<context>
    <name>SceneWidget</name>
    <message>
        <source>The Qt module %1 is missing (package %2).</source>
        <translation>O módulo %1 do Qt não está instalado (pacote %2).</translation>
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
        <translation>Salvar a lista de arquivos ao sair</translation>
    </message>
    <message>
        <source>export lyrics to a TXT file automatically</source>
        <translation>Exportar a letra para um arquivo TXT automaticamente</translation>
    </message>
    <message>
        <source>look for new versions automatically</source>
        <translation>Procurar novas versões automaticamente</translation>
    </message>
    <message>
        <source>send usage events, with artists and titles</source>
        <translation>Enviar eventos de uso, com artistas e títulos</translation>
    </message>
    <message>
        <source>Example...</source>
        <translation>Exemplo...</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Mostrar um exemplo de evento de uso</translation>
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
        <translation>Usuário:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
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
        <translation>Nenhum proxy é usado.</translation>
    </message>
    <message>
        <source>No address: no proxy is used.</source>
        <translation>Sem endereço: nenhum proxy é usado.</translation>
    </message>
    <message>
        <source>The proxy is being tested...</source>
        <translation>Testando o proxy...</translation>
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
        <translation>Exportar letra para arquivo TXT</translation>
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
        <translation>Copiar caminho do arquivo para a área de transferência</translation>
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
        <translation>Não é possível ler este arquivo.</translation>
    </message>
    <message>
        <source>no names</source>
        <translation>faltam dados</translation>
    </message>
    <message>
        <source>queued</source>
        <translation>na fila</translation>
    </message>
    <message>
        <source>searching...</source>
        <translation>pesquisando...</translation>
    </message>
    <message>
        <source>saving...</source>
        <translation>salvando...</translation>
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
        <translation>não foi salva</translation>
    </message>
    <message>
        <source>search failed</source>
        <translation>falha na pesquisa</translation>
    </message>
    <message>
        <source>in queue to search...</source>
        <translation>na fila de pesquisa...</translation>
    </message>
    <message>
        <source>saving the lyrics...</source>
        <translation>salvando a letra...</translation>
    </message>
    <message>
        <source>A search needs an artist and a title.</source>
        <translation>A pesquisa precisa de um artista e de um título.</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>%1 is the reason</comment>
        <translation>Não foi salva: %1</translation>
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
            <numerusform>Pesquisando... resta %n...</numerusform>
            <numerusform>Pesquisando... restam %n...</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings file is damaged. What could be read is used, but no copy could be made.</source>
        <translation>O arquivo de configurações está danificado. O que pôde ser lido está em uso, mas não foi possível fazer uma cópia.</translation>
    </message>
    <message>
        <source>The settings file was damaged. What could be read is kept; the damaged file is now %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>O arquivo de configurações estava danificado. O que pôde ser lido foi mantido; o arquivo danificado agora é %1</translation>
    </message>
    <message>
        <source>The settings cannot be read or stored; changes last for this run only.</source>
        <translation>Não é possível ler nem salvar as configurações; as alterações só valem até o programa ser fechado.</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since their names are damaged or too long: %n</source>
        <translation>
            <numerusform>Arquivos ignorados por terem nome danificado ou longo demais: %n</numerusform>
            <numerusform>Arquivos ignorados por terem nome danificado ou longo demais: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The list is full. Files left out: %n</source>
        <translation>
            <numerusform>A lista está cheia. Arquivos ignorados: %n</numerusform>
            <numerusform>A lista está cheia. Arquivos ignorados: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The last save was cut off. Songs that are again as they were before it: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>O último salvamento foi interrompido. Músicas que voltaram ao estado anterior: %1</translation>
    </message>
    <message>
        <source>Copies from before a save that was cut off: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Cópias anteriores a um salvamento interrompido: %1</translation>
    </message>
    <message>
        <source>A save was cut off, and these songs cannot be reached to undo it; it is tried again at each start: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Um salvamento foi interrompido e não pode ser desfeito porque estas músicas estão inacessíveis; haverá uma nova tentativa a cada início: %1</translation>
    </message>
    <message numerus="yes">
        <source>Songs that could not be written: %n (%1)</source>
        <comment>%1 is the reason</comment>
        <translation>
            <numerusform>Não foi possível salvar %n música (%1)</numerusform>
            <numerusform>Não foi possível salvar %n músicas (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics could not be written to %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Não foi possível gravar a letra em %1</translation>
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
        <translation>Um salvamento foi interrompido. Músicas que ainda estão sendo restauradas: %1</translation>
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
            <numerusform>Letra exportada para %n arquivo de texto</numerusform>
            <numerusform>Letras exportadas para %n arquivos de texto</numerusform>
        </translation>
    </message>
    <message>
        <source>Lyrics exported to one text file</source>
        <translation>Letra exportada para um arquivo de texto</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since they are missing or of a kind that is not supported: %n</source>
        <translation>
            <numerusform>Arquivos ignorados por não existirem ou serem de um tipo não suportado: %n</numerusform>
            <numerusform>Arquivos ignorados por não existirem ou serem de um tipo não suportado: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>the file is no longer there</source>
        <translation>o arquivo não está mais no lugar</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>não é um arquivo comum</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>o arquivo é somente leitura</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>não é possível abrir o arquivo</translation>
    </message>
    <message>
        <source>no audio was found in the file</source>
        <translation>nenhum áudio foi encontrado no arquivo</translation>
    </message>
    <message>
        <source>files of this format cannot hold lyrics</source>
        <translation>arquivos deste formato não podem conter letras</translation>
    </message>
    <message>
        <source>the file is damaged, or built in an unusual way</source>
        <translation>o arquivo está danificado ou tem uma estrutura incomum</translation>
    </message>
    <message>
        <source>there is not enough room on the disk</source>
        <translation>não há espaço suficiente no disco</translation>
    </message>
    <message>
        <source>the file would become too large</source>
        <translation>o arquivo ficaria grande demais</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>o disco relata um erro</translation>
    </message>
    <message>
        <source>other entries of its tags would be lost</source>
        <translation>outros dados das etiquetas seriam perdidos</translation>
    </message>
    <message>
        <source>the audio would not stay as it is</source>
        <translation>o áudio seria alterado</translation>
    </message>
    <message>
        <source>another program has changed the file</source>
        <translation>outro programa alterou o arquivo</translation>
    </message>
    <message>
        <source>the disk failed; the file will be restored at the next start</source>
        <translation>o disco falhou; o arquivo será restaurado na próxima vez que o programa iniciar</translation>
    </message>
    <message>
        <source>the file could not be saved</source>
        <translation>não foi possível salvar o arquivo</translation>
    </message>
    <message>
        <source>an earlier save of the file was cut off and is not undone yet</source>
        <translation>um salvamento anterior do arquivo foi interrompido e ainda não foi desfeito</translation>
    </message>
</context>
<context>
    <name>UnsavedLyricsGuard</name>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Deseja salvar as alterações?</translation>
    </message>
    <message>
        <source>The changed artist or title of one song is not in its file yet.</source>
        <translation>O artista ou o título alterado de uma música ainda não está salvo no arquivo.</translation>
    </message>
    <message numerus="yes">
        <source>The changed artist or title of %n songs is not in their files yet.</source>
        <translation>
            <numerusform>O artista ou o título alterado de %n música ainda não está salvo no arquivo.</numerusform>
            <numerusform>Os artistas ou títulos alterados de %n músicas ainda não estão salvos nos arquivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics of one song are not in its file and stand in the list only.</source>
        <translation>A letra de uma música não está salva no arquivo, só na lista.</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs are not in their files and stand in the list only.</source>
        <translation>
            <numerusform>A letra de %n música não está salva no arquivo, só na lista.</numerusform>
            <numerusform>As letras de %n músicas não estão salvas nos arquivos, só na lista.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” could not be saved: %2</source>
        <comment>%1 is the title of a song, %2 the reason</comment>
        <translation>Não foi possível salvar “%1”: %2</translation>
    </message>
    <message>
        <source>it is still being written</source>
        <translation>ainda está sendo gravada</translation>
    </message>
    <message>
        <source>The deleted lyrics of one song are still in its file.</source>
        <translation>A letra excluída de uma música ainda está no arquivo.</translation>
    </message>
    <message numerus="yes">
        <source>The deleted lyrics of %n songs are still in their files.</source>
        <translation>
            <numerusform>A letra excluída de %n música ainda está no arquivo.</numerusform>
            <numerusform>As letras excluídas de %n músicas ainda estão nos arquivos.</numerusform>
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
        <translation>Baixar atualização</translation>
    </message>
    <message>
        <source>Cancel downloading</source>
        <comment>Action text</comment>
        <translation>Cancelar download</translation>
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
        <translation>O servidor redireciona vezes demais.</translation>
    </message>
    <message>
        <source>This build of the program knows no site to ask.</source>
        <translation>Esta compilação do programa não tem um site para consultar.</translation>
    </message>
    <message>
        <source>Can&apos;t check for update: %1</source>
        <translation>Não é possível procurar atualizações: %1</translation>
    </message>
    <message>
        <source>Failed to parse version information data.</source>
        <comment>Updater error message</comment>
        <translation>Falha ao interpretar as informações de versão.</translation>
    </message>
    <message>
        <source>Can&apos;t get update: %1</source>
        <translation>Não é possível obter a atualização: %1</translation>
    </message>
    <message>
        <source>The address of the setup file is not one that can be used.</source>
        <translation>O endereço do arquivo de instalação não é válido.</translation>
    </message>
    <message>
        <source>The setup file has another size than the server said.</source>
        <translation>O tamanho do arquivo de instalação não é o que o servidor informou.</translation>
    </message>
    <message>
        <source>The server sent something else than the setup file.</source>
        <translation>O servidor enviou algo que não é o arquivo de instalação.</translation>
    </message>
    <message>
        <source>The setup file is larger than it should be.</source>
        <translation>O arquivo de instalação é maior do que deveria.</translation>
    </message>
    <message>
        <source>The server did not send the whole setup file.</source>
        <translation>O servidor não enviou o arquivo de instalação completo.</translation>
    </message>
    <message>
        <source>Can&apos;t open file: %1</source>
        <translation>Não é possível abrir o arquivo: %1</translation>
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
        <translation>O %appName &lt;b&gt;%newVersion&lt;/b&gt; está disponível; a versão instalada é a &lt;b&gt;%oldVersion&lt;/b&gt;. Deseja baixar a nova agora?</translation>
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
        <translation>Procurando atualizações...</translation>
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
        <translation>Exemplo de evento de uso</translation>
    </message>
    <message>
        <source>(random, made when you say yes)</source>
        <translation>(aleatório, criado quando você aceita)</translation>
    </message>
    <message>
        <source>This is sent whenever a search for a song begins; the song is made up here. The start and the end of the program, an update, clicks on the maker&apos;s pages and a window that cannot be drawn are reported in the same way, without names of songs.</source>
        <translation>Isto é enviado sempre que começa a pesquisa de uma música; a música aqui é inventada. O início e o fim do programa, uma atualização, os cliques nas páginas do desenvolvedor e uma janela que não pode ser desenhada são informados da mesma forma, sem nomes de músicas.</translation>
    </message>
</context>
<context>
    <name>WritesWait</name>
    <message>
        <source>It goes on by itself when this is done.</source>
        <translation>Depois disso, tudo continua sozinho.</translation>
    </message>
    <message>
        <source>Changes are still being written into the songs.</source>
        <translation>Ainda há alterações sendo gravadas nas músicas.</translation>
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
        <translation>As alterações de uma música foram guardadas como arquivo de texto em %1</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs were kept as text files in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>
            <numerusform>As alterações de %n música foram guardadas como arquivo de texto em %1</numerusform>
            <numerusform>As alterações de %n músicas foram guardadas como arquivos de texto em %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The changes to one song could be kept nowhere: copy them from the details now.</source>
        <translation>As alterações de uma música não puderam ser guardadas em lugar nenhum: copie-as agora do painel à direita.</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs could be kept nowhere: copy them from the details now.</source>
        <translation>
            <numerusform>As alterações de %n música não puderam ser guardadas em lugar nenhum: copie-as agora do painel à direita.</numerusform>
            <numerusform>As alterações de %n músicas não puderam ser guardadas em lugar nenhum: copie-as agora do painel à direita.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not all changes could be written into the songs.</source>
        <translation>Nem todas as alterações puderam ser gravadas nas músicas.</translation>
    </message>
</context>
</TS>
