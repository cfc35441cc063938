<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>О программе</translation>
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
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Made by %1</source>
        <comment>%1 is the maker&apos;s name</comment>
        <translation>Разработчик: %1</translation>
    </message>
</context>
<context>
    <name>AccessManager</name>
    <message>
        <source>Not a web address: %1</source>
        <translation>Это не веб-адрес: %1</translation>
    </message>
    <message>
        <source>%1 asked for a pause and can be asked again in %2 s.</source>
        <comment>%1 is a host name</comment>
        <translation>%1 просит сделать паузу; следующий запрос возможен через %2 с.</translation>
    </message>
    <message>
        <source>The proxy wants a log-in of a kind that is not known here.</source>
        <translation>Прокси-сервер требует неподдерживаемый способ аутентификации.</translation>
    </message>
    <message>
        <source>The proxy asks for a log-in for some pages only, which is not supported.</source>
        <translation>Прокси-сервер требует вход только для некоторых страниц, это не поддерживается.</translation>
    </message>
</context>
<context>
    <name>AddDialogs</name>
    <message>
        <source>Select file(s) to add</source>
        <translation>Выбор файлов для добавления</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Аудиофайлы</translation>
    </message>
    <message>
        <source>Select folder to add</source>
        <translation>Выбор папки для добавления</translation>
    </message>
</context>
<context>
    <name>AudioPreview</name>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>No preview: the Qt module QtMultimedia is missing (package qml-module-qtmultimedia).</source>
        <translation>Прослушивание недоступно: отсутствует модуль QtMultimedia (пакет qml-module-qtmultimedia).</translation>
    </message>
    <message>
        <source>This file cannot be played here.</source>
        <translation>Этот файл нельзя воспроизвести здесь.</translation>
    </message>
</context>
<context>
    <name>ConsentBar</name>
    <message>
        <source>May usage events be sent to the maker? Those about searches name artist and title.</source>
        <translation>Отправлять разработчику отчёты об использовании? В отчётах о поиске указываются исполнитель и название.</translation>
    </message>
    <message>
        <source>What is sent?</source>
        <translation>Что отправляется?</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Показать пример отчёта об использовании</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>Yes, send usage events</source>
        <translation>Да, отправлять отчёты об использовании</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>No, send nothing</source>
        <translation>Нет, ничего не отправлять</translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message numerus="yes">
        <source>Selected %n files</source>
        <translation>
            <numerusform>Выбран %n файл</numerusform>
            <numerusform>Выбрано %n файла</numerusform>
            <numerusform>Выбрано %n файлов</numerusform>
        </translation>
    </message>
    <message>
        <source>No file is selected</source>
        <translation>Файл не выбран</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Exit and install</source>
        <translation>Выйти и установить</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>Обновление %1</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Ход загрузки</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Загрузка обновления...</translation>
    </message>
    <message>
        <source>Ready to install...</source>
        <translation>Готово к установке...</translation>
    </message>
    <message>
        <source>%1 MB of %2 MB</source>
        <translation>%1 МБ из %2 МБ</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>Installing...</source>
        <translation>Установка...</translation>
    </message>
</context>
<context>
    <name>EditableField</name>
    <message>
        <source>&lt;empty&gt;</source>
        <translation>&lt;пусто&gt;</translation>
    </message>
    <message>
        <source>Enter to apply</source>
        <translation>Enter — применить</translation>
    </message>
    <message>
        <source>not saved yet (Ctrl+S saves)</source>
        <translation>ещё не сохранено (Ctrl+S сохраняет)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>All files here have lyrics and are hidden</source>
        <translation>У всех файлов есть текст, и они скрыты</translation>
    </message>
    <message>
        <source>Drop music files or folders here</source>
        <translation>Сюда можно перетащить музыкальные файлы или папки</translation>
    </message>
    <message>
        <source>Add files...</source>
        <translation>Добавить файлы...</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>Добавить папку...</translation>
    </message>
</context>
<context>
    <name>ExitWidget</name>
    <message>
        <source>Do you want to quit anyway?</source>
        <translation>Всё равно выйти?</translation>
    </message>
    <message numerus="yes">
        <source>Search for %n songs is currently in progress.</source>
        <translation>
            <numerusform>Идёт поиск текста для %n песни.</numerusform>
            <numerusform>Идёт поиск текстов для %n песен.</numerusform>
            <numerusform>Идёт поиск текстов для %n песен.</numerusform>
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
        <translation>Без названия</translation>
    </message>
    <message>
        <source>No artist</source>
        <translation>Без исполнителя</translation>
    </message>
    <message>
        <source>Show in the file manager</source>
        <translation>Показать в файловом менеджере</translation>
    </message>
</context>
<context>
    <name>LimitedReply</name>
    <message>
        <source>The server refuses to answer (HTTP %1).</source>
        <translation>Сервер отказывается отвечать (HTTP %1).</translation>
    </message>
    <message>
        <source>The server has no such page (HTTP %1).</source>
        <translation>На сервере нет такой страницы (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is asked too often (HTTP %1).</source>
        <translation>Слишком частые запросы к серверу (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is out of order (HTTP %1).</source>
        <translation>Сбой на сервере (HTTP %1).</translation>
    </message>
    <message>
        <source>The server cannot answer the request (HTTP %1).</source>
        <translation>Сервер не может ответить на запрос (HTTP %1).</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>Запрос отменён.</translation>
    </message>
    <message>
        <source>The server has been silent for %1 seconds.</source>
        <translation>Сервер не отвечает уже %1 с.</translation>
    </message>
    <message>
        <source>The server took longer than %1 seconds.</source>
        <translation>Сервер отвечал дольше %1 с.</translation>
    </message>
    <message>
        <source>The answer is packed in a way that is not known here.</source>
        <translation>Ответ сжат неподдерживаемым способом.</translation>
    </message>
    <message>
        <source>The answer arrived damaged.</source>
        <translation>Ответ пришёл повреждённым.</translation>
    </message>
    <message>
        <source>The connection broke before the whole answer had arrived.</source>
        <translation>Соединение прервалось раньше, чем пришёл весь ответ.</translation>
    </message>
    <message>
        <source>The answer is larger than %1.</source>
        <translation>Размер ответа превышает %1.</translation>
    </message>
    <message>
        <source>The site&apos;s certificate is not trusted.</source>
        <translation>Сертификату сайта нельзя доверять.</translation>
    </message>
    <message>
        <source>No secure connection to the site could be made.</source>
        <translation>Не удалось установить защищённое соединение с сайтом.</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message numerus="yes">
        <source>Scanning folder(s) for music files (found %n)</source>
        <translation>
            <numerusform>Поиск музыкальных файлов в папках (найдено: %n)</numerusform>
            <numerusform>Поиск музыкальных файлов в папках (найдено: %n)</numerusform>
            <numerusform>Поиск музыкальных файлов в папках (найдено: %n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message numerus="yes">
        <source>Hidden %n file(s) with lyrics</source>
        <translation>
            <numerusform>Скрыт %n файл с текстом</numerusform>
            <numerusform>Скрыто %n файла с текстом</numerusform>
            <numerusform>Скрыто %n файлов с текстом</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Показать</translation>
    </message>
    <message>
        <source>Show hidden files</source>
        <translation>Показать скрытые файлы</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Remove hidden files from the list</source>
        <translation>Убрать скрытые файлы из списка</translation>
    </message>
</context>
<context>
    <name>LyricsEditGuard</name>
    <message>
        <source>The lyrics of “%1” have been changed.</source>
        <comment>%1 is the title of a song</comment>
        <translation>Текст песни «%1» изменён.</translation>
    </message>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Сохранить изменения?</translation>
    </message>
</context>
<context>
    <name>LyricsItem</name>
    <message>
        <source>This lyrics for:</source>
        <translation>Текст для:</translation>
    </message>
    <message>
        <source>“%1” – “%2”</source>
        <comment>artist and title</comment>
        <translation>«%1» — «%2»</translation>
    </message>
    <message>
        <source>These lyrics are very long; their beginning is shown.</source>
        <translation>Текст очень длинный; показано только его начало.</translation>
    </message>
</context>
<context>
    <name>LyricsProvider</name>
    <message>
        <source>%1 redirects to something that is not a web page.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>Сайт %1 перенаправляет туда, где нет веб-страницы.</translation>
    </message>
    <message>
        <source>%1 redirects too often.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>Сайт %1 перенаправляет слишком много раз.</translation>
    </message>
    <message>
        <source>%1 gave a page that holds no lyrics.</source>
        <translation>Сайт %1 выдал страницу без текста песни.</translation>
    </message>
</context>
<context>
    <name>LyricsSearch</name>
    <message>
        <source>The artist or title is too long to search for.</source>
        <translation>Исполнитель или название слишком длинные для поиска.</translation>
    </message>
</context>
<context>
    <name>LyricsText</name>
    <message>
        <source>Lyrics</source>
        <translation>Текст песни</translation>
    </message>
</context>
<context>
    <name>LyricsToolbar</name>
    <message>
        <source>Edit lyrics (F2)</source>
        <translation>Редактировать текст (F2)</translation>
    </message>
    <message>
        <source>Save lyrics (Ctrl+S)</source>
        <translation>Сохранить текст (Ctrl+S)</translation>
    </message>
    <message>
        <source>Cancel editing (Esc)</source>
        <translation>Отменить редактирование (Esc)</translation>
    </message>
    <message>
        <source>Force to search lyrics (Ctrl+R)</source>
        <translation>Принудительный поиск текста (Ctrl+R)</translation>
    </message>
    <message>
        <source>Copy lyrics to clipboard</source>
        <translation>Копировать текст в буфер обмена</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Искать текст в %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Уменьшить шрифт</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Увеличить шрифт</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Add file</source>
        <translation>Добавить файл</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <source>Hide file(s) with lyrics</source>
        <translation>Скрыть файлы с текстом</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Выбрать все</translation>
    </message>
    <message>
        <source>Remove with lyrics</source>
        <translation>Убрать файлы с текстом</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Очистить список</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Убрать выбранные</translation>
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
        <translation>Выйти</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Веб-сайт</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Экспортировать текст в файл TXT</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Инструменты</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Check for updates...</source>
        <translation>Проверить обновления...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Справка</translation>
    </message>
</context>
<context>
    <name>MusixMatchProvider</name>
    <message>
        <source>%1 leads from one list of songs to the next.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>Сайт %1 отсылает от одного списка песен к другому.</translation>
    </message>
    <message>
        <source>%1 gave a page that is too intricate to read.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>Сайт %1 выдал слишком сложную для разбора страницу.</translation>
    </message>
</context>
<context>
    <name>PlaybackSlider</name>
    <message>
        <source>Position in the song</source>
        <translation>Позиция в песне</translation>
    </message>
</context>
<context>
    <name>Proxy</name>
    <message>
        <source>The proxy does not take the connection.</source>
        <translation>Прокси-сервер не принимает соединение.</translation>
    </message>
    <message>
        <source>The proxy closed the connection.</source>
        <translation>Прокси-сервер закрыл соединение.</translation>
    </message>
    <message>
        <source>The proxy was not found.</source>
        <translation>Прокси-сервер не найден.</translation>
    </message>
    <message>
        <source>The proxy did not answer in time.</source>
        <translation>Прокси-сервер не ответил вовремя.</translation>
    </message>
    <message>
        <source>The proxy refuses the user name or the password.</source>
        <translation>Прокси-сервер не принимает имя пользователя или пароль.</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>Прокси-сервер не работает.</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Host not found</source>
        <translation>Узел не найден</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>В соединении отказано</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Время ожидания соединения истекло</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>Время операции с сокетом истекло</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Сеть недоступна</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>Удалённый узел закрыл соединение</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>В&amp;ыделить всё</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Увеличить</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>У&amp;меньшить</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Перейти к:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Вперёд</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Родительская папка</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Создать папку</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Список</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Подробный список</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Имя файла:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Тип файлов:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Папка:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Открыть</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Выбрать</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Папки</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Файл не найден.
Проверьте, правильно ли указано имя файла.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Папка не найдена.
Проверьте, правильно ли указано имя папки.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Диск</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Папка</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Файл %1</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Недавние места</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Показывать: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Пере&amp;именовать</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Показывать &amp;скрытые файлы</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Новая папка</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Новая папка</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Удалить «%1»?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>Объект «%1» защищён от записи.
Всё равно удалить его?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Не удалось удалить папку.</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Вернуться назад</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Перейти вперёд</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Перейти в родительскую папку</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Создать новую папку</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Переключиться на список</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Переключиться на подробный список</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Боковая панель</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Список мест и закладок</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Дата изменения</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Компьютер</translation>
    </message>
    <message>
        <source>Type</source>
        <comment>All other platforms</comment>
        <translation>Тип</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;ОК</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Сохранить</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>От&amp;мена</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Закрыть без сохранения</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Host %1 not found</source>
        <translation>Узел %1 не найден</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>В соединении отказано</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Соединение закрыто</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Вырезать</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Вст&amp;авить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Network unreachable</source>
        <translation>Сеть недоступна</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>Узел недоступен</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Время ожидания соединения истекло</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>В соединении отказано</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation>Ошибка при передаче %1 — ответ сервера: %2</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Не сохранять</translation>
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
        <translation>Время жизни пакета (TTL) истекло</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Копировать &amp;адрес ссылки</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
</context>
<context>
    <name>ReadFailure</name>
    <message>
        <source>this is not a regular file</source>
        <translation>это не обычный файл</translation>
    </message>
    <message>
        <source>the file is damaged: its tags have no end</source>
        <translation>файл повреждён: его теги не имеют конца</translation>
    </message>
    <message>
        <source>the file is damaged: its tags do not fit in memory</source>
        <translation>файл повреждён: его теги не помещаются в памяти</translation>
    </message>
    <message>
        <source>the disk reported an error while the file was read</source>
        <translation>диск сообщил об ошибке при чтении файла</translation>
    </message>
    <message>
        <source>the file is damaged: reading its tags ended in a crash</source>
        <translation>файл повреждён: чтение его тегов закончилось сбоем</translation>
    </message>
    <message>
        <source>reading the tags of the file took too long</source>
        <translation>чтение тегов файла заняло слишком много времени</translation>
    </message>
    <message>
        <source>reading the tags of the file gave nonsense</source>
        <translation>чтение тегов файла дало бессмысленный результат</translation>
    </message>
    <message>
        <source>the helper program that reads tags could not be started</source>
        <translation>не удалось запустить вспомогательную программу для чтения тегов</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>OpenGL settings</source>
        <translation>Настройки OpenGL</translation>
    </message>
    <message>
        <source>Select the method of OpenGL usage:</source>
        <translation>Способ использования OpenGL:</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Автоматическое определение</translation>
    </message>
    <message>
        <source>OpenGL ES 2.0</source>
        <translation>OpenGL ES 2.0</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Программно</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Обычный OpenGL</translation>
    </message>
    <message>
        <source>Clear all settings</source>
        <translation>Сбросить все настройки</translation>
    </message>
    <message>
        <source>Clear settings</source>
        <translation>Сброс настроек</translation>
    </message>
    <message>
        <source>All settings will be removed and returned to default values. Are you sure?</source>
        <translation>Все настройки будут удалены и вернутся к значениям по умолчанию. Продолжить?</translation>
    </message>
    <message>
        <source>All settings were cleared. The program starts anew after OK.</source>
        <translation>Все настройки сброшены. После нажатия «ОК» программа запустится заново.</translation>
    </message>
    <message>
        <source>The settings cannot be cleared: their file cannot be written.</source>
        <translation>Не удалось сбросить настройки: их файл недоступен для записи.</translation>
    </message>
</context>
<context>
    <name>SceneWidget</name>
    <message>
        <source>The Qt module %1 is missing (package %2).</source>
        <translation>Отсутствует модуль Qt %1 (пакет %2).</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Язык:</translation>
    </message>
    <message>
        <source>Restart is required to apply changes</source>
        <translation>Изменения вступят в силу после перезапуска</translation>
    </message>
    <message>
        <source>Font size for lyrics:</source>
        <translation>Размер шрифта текста:</translation>
    </message>
    <message>
        <source>Search in browser with:</source>
        <translation>Искать в браузере через:</translation>
    </message>
    <message>
        <source>insert a blank line at the beginning of lyrics</source>
        <translation>Вставлять пустую строку в начале текста</translation>
    </message>
    <message>
        <source>save files list on quit</source>
        <translation>Сохранять список файлов при выходе</translation>
    </message>
    <message>
        <source>export lyrics to a TXT file automatically</source>
        <translation>Автоматически экспортировать текст в файл TXT</translation>
    </message>
    <message>
        <source>look for new versions automatically</source>
        <translation>Автоматически проверять наличие новых версий</translation>
    </message>
    <message>
        <source>send usage events, with artists and titles</source>
        <translation>Отправлять отчёты об использовании с исполнителями и названиями</translation>
    </message>
    <message>
        <source>Example...</source>
        <translation>Пример...</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Показать пример отчёта об использовании</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Сеть</translation>
    </message>
    <message>
        <source>Proxy:</source>
        <translation>Прокси:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Адрес:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Порт:</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Аутентификация</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Имя пользователя:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Сайты</translation>
    </message>
    <message>
        <source>Search order</source>
        <translation>Порядок поиска</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Переместить выше</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Переместить ниже</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Включить</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Автоматически</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Switched off by DO_NOT_TRACK</source>
        <translation>Отключено переменной DO_NOT_TRACK</translation>
    </message>
    <message>
        <source>No proxy is used.</source>
        <translation>Прокси-сервер не используется.</translation>
    </message>
    <message>
        <source>No address: no proxy is used.</source>
        <translation>Нет адреса: прокси-сервер не используется.</translation>
    </message>
    <message>
        <source>The proxy is being tested...</source>
        <translation>Проверка прокси-сервера...</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>Прокси-сервер не работает.</translation>
    </message>
    <message>
        <source>No error within %1 seconds.</source>
        <translation>За %1 с ошибок не возникло.</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Прокси-сервер работает.</translation>
    </message>
    <message>
        <source>Not tested yet.</source>
        <translation>Ещё не проверено.</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Выключить</translation>
    </message>
    <message>
        <source>Warning!!! You have disabled all sources.</source>
        <translation>Внимание!!! Все источники отключены.</translation>
    </message>
</context>
<context>
    <name>SongDetails</name>
    <message>
        <source>Artist:</source>
        <translation>Исполнитель:</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Исполнитель</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Название:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Название</translation>
    </message>
</context>
<context>
    <name>SongList</name>
    <message>
        <source>Songs</source>
        <translation>Песни</translation>
    </message>
</context>
<context>
    <name>SongMenu</name>
    <message>
        <source>Force to search lyrics</source>
        <translation>Принудительный поиск текста</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Экспортировать текст в файл TXT</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Убрать выбранные</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Убрать все</translation>
    </message>
    <message>
        <source>Copy file&apos;s path to clipboard</source>
        <translation>Копировать путь к файлу в буфер обмена</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Искать текст в %1</translation>
    </message>
</context>
<context>
    <name>SongState</name>
    <message>
        <source>cannot be read</source>
        <translation>не читается</translation>
    </message>
    <message>
        <source>has lyrics</source>
        <translation>есть текст</translation>
    </message>
    <message>
        <source>no lyrics</source>
        <translation>нет текста</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>Этот файл не читается.</translation>
    </message>
    <message>
        <source>no names</source>
        <translation>нет данных</translation>
    </message>
    <message>
        <source>queued</source>
        <translation>в очереди</translation>
    </message>
    <message>
        <source>searching...</source>
        <translation>поиск...</translation>
    </message>
    <message>
        <source>saving...</source>
        <translation>сохранение...</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>сбой</translation>
    </message>
    <message>
        <source>no lyrics found</source>
        <translation>текст не найден</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>не сохранено</translation>
    </message>
    <message>
        <source>search failed</source>
        <translation>ошибка поиска</translation>
    </message>
    <message>
        <source>in queue to search...</source>
        <translation>в очереди на поиск...</translation>
    </message>
    <message>
        <source>saving the lyrics...</source>
        <translation>сохранение текста...</translation>
    </message>
    <message>
        <source>A search needs an artist and a title.</source>
        <translation>Для поиска нужны исполнитель и название.</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>%1 is the reason</comment>
        <translation>Не сохранено: %1</translation>
    </message>
</context>
<context>
    <name>SplitterHandle</name>
    <message>
        <source>Width of the list</source>
        <translation>Ширина списка</translation>
    </message>
</context>
<context>
    <name>StateLine</name>
    <message>
        <source>search for lyrics</source>
        <translation>найти текст</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Progress of the searches</source>
        <translation>Ход поиска</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n left...</source>
        <translation>
            <numerusform>Поиск... Осталось: %n...</numerusform>
            <numerusform>Поиск... Осталось: %n...</numerusform>
            <numerusform>Поиск... Осталось: %n...</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings file is damaged. What could be read is used, but no copy could be made.</source>
        <translation>Файл настроек повреждён. Используется то, что удалось прочитать, но создать копию не удалось.</translation>
    </message>
    <message>
        <source>The settings file was damaged. What could be read is kept; the damaged file is now %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Файл настроек был повреждён. Всё, что удалось прочитать, сохранено; повреждённый файл теперь здесь: %1</translation>
    </message>
    <message>
        <source>The settings cannot be read or stored; changes last for this run only.</source>
        <translation>Настройки не удаётся прочитать или сохранить; изменения действуют только до закрытия программы.</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since their names are damaged or too long: %n</source>
        <translation>
            <numerusform>Файлы, пропущенные из-за повреждённых или слишком длинных имён: %n</numerusform>
            <numerusform>Файлы, пропущенные из-за повреждённых или слишком длинных имён: %n</numerusform>
            <numerusform>Файлы, пропущенные из-за повреждённых или слишком длинных имён: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The list is full. Files left out: %n</source>
        <translation>
            <numerusform>Список заполнен. Пропущено файлов: %n</numerusform>
            <numerusform>Список заполнен. Пропущено файлов: %n</numerusform>
            <numerusform>Список заполнен. Пропущено файлов: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The last save was cut off. Songs that are again as they were before it: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Последнее сохранение было прервано. Песни, возвращённые в прежнее состояние: %1</translation>
    </message>
    <message>
        <source>Copies from before a save that was cut off: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Копии, сделанные до прерванного сохранения: %1</translation>
    </message>
    <message>
        <source>A save was cut off, and these songs cannot be reached to undo it; it is tried again at each start: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Сохранение было прервано, а песни, в которых его нужно отменить, недоступны; попытка повторяется при каждом запуске: %1</translation>
    </message>
    <message numerus="yes">
        <source>Songs that could not be written: %n (%1)</source>
        <comment>%1 is the reason</comment>
        <translation>
            <numerusform>Не удалось записать песен: %n (%1)</numerusform>
            <numerusform>Не удалось записать песен: %n (%1)</numerusform>
            <numerusform>Не удалось записать песен: %n (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics could not be written to %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Не удалось записать текст в файл %1</translation>
    </message>
    <message>
        <source>There are no lyrics to export</source>
        <translation>Нет текстов для экспорта</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Whole copies of these songs: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Целые копии этих песен: %1</translation>
    </message>
    <message>
        <source>A save was cut off. Songs that are still being restored: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Сохранение было прервано. Песни, которые ещё восстанавливаются: %1</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs could not be exported</source>
        <translation>
            <numerusform>Не удалось экспортировать текст %n песни</numerusform>
            <numerusform>Не удалось экспортировать тексты %n песен</numerusform>
            <numerusform>Не удалось экспортировать тексты %n песен</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Lyrics exported to %n text files</source>
        <translation>
            <numerusform>Текст экспортирован в %n файл TXT</numerusform>
            <numerusform>Тексты экспортированы в %n файла TXT</numerusform>
            <numerusform>Тексты экспортированы в %n файлов TXT</numerusform>
        </translation>
    </message>
    <message>
        <source>Lyrics exported to one text file</source>
        <translation>Текст экспортирован в один файл TXT</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since they are missing or of a kind that is not supported: %n</source>
        <translation>
            <numerusform>Файлы, пропущенные, так как их нет или их тип не поддерживается: %n</numerusform>
            <numerusform>Файлы, пропущенные, так как их нет или их тип не поддерживается: %n</numerusform>
            <numerusform>Файлы, пропущенные, так как их нет или их тип не поддерживается: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>the file is no longer there</source>
        <translation>файла больше нет</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>это не обычный файл</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>файл доступен только для чтения</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>не удаётся открыть файл</translation>
    </message>
    <message>
        <source>no audio was found in the file</source>
        <translation>в файле не найден звук</translation>
    </message>
    <message>
        <source>files of this format cannot hold lyrics</source>
        <translation>файлы этого формата не могут содержать текст</translation>
    </message>
    <message>
        <source>the file is damaged, or built in an unusual way</source>
        <translation>файл повреждён или устроен необычно</translation>
    </message>
    <message>
        <source>there is not enough room on the disk</source>
        <translation>на диске недостаточно места</translation>
    </message>
    <message>
        <source>the file would become too large</source>
        <translation>файл стал бы слишком большим</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>диск сообщает об ошибке</translation>
    </message>
    <message>
        <source>other entries of its tags would be lost</source>
        <translation>другие записи тегов были бы потеряны</translation>
    </message>
    <message>
        <source>the audio would not stay as it is</source>
        <translation>звук не остался бы прежним</translation>
    </message>
    <message>
        <source>another program has changed the file</source>
        <translation>другая программа изменила файл</translation>
    </message>
    <message>
        <source>the disk failed; the file will be restored at the next start</source>
        <translation>сбой диска; файл будет восстановлен при следующем запуске</translation>
    </message>
    <message>
        <source>the file could not be saved</source>
        <translation>не удалось сохранить файл</translation>
    </message>
    <message>
        <source>an earlier save of the file was cut off and is not undone yet</source>
        <translation>прежнее сохранение файла было прервано и ещё не отменено</translation>
    </message>
</context>
<context>
    <name>UnsavedLyricsGuard</name>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Сохранить изменения?</translation>
    </message>
    <message>
        <source>The changed artist or title of one song is not in its file yet.</source>
        <translation>Изменённые исполнитель или название одной песни ещё не сохранены в файл.</translation>
    </message>
    <message numerus="yes">
        <source>The changed artist or title of %n songs is not in their files yet.</source>
        <translation>
            <numerusform>Изменённые исполнитель или название %n песни ещё не сохранены в файл.</numerusform>
            <numerusform>Изменённые исполнители или названия %n песен ещё не сохранены в файлы.</numerusform>
            <numerusform>Изменённые исполнители или названия %n песен ещё не сохранены в файлы.</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics of one song are not in its file and stand in the list only.</source>
        <translation>Текст одной песни не записан в файл и есть только в списке.</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs are not in their files and stand in the list only.</source>
        <translation>
            <numerusform>Текст %n песни не записан в файл и есть только в списке.</numerusform>
            <numerusform>Тексты %n песен не записаны в файлы и есть только в списке.</numerusform>
            <numerusform>Тексты %n песен не записаны в файлы и есть только в списке.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” could not be saved: %2</source>
        <comment>%1 is the title of a song, %2 the reason</comment>
        <translation>Не удалось сохранить «%1»: %2</translation>
    </message>
    <message>
        <source>it is still being written</source>
        <translation>запись ещё не закончена</translation>
    </message>
    <message>
        <source>The deleted lyrics of one song are still in its file.</source>
        <translation>Удалённый текст одной песни всё ещё остаётся в файле.</translation>
    </message>
    <message numerus="yes">
        <source>The deleted lyrics of %n songs are still in their files.</source>
        <translation>
            <numerusform>Удалённый текст %n песни всё ещё остаётся в файле.</numerusform>
            <numerusform>Удалённые тексты %n песен всё ещё остаются в файлах.</numerusform>
            <numerusform>Удалённые тексты %n песен всё ещё остаются в файлах.</numerusform>
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
            <numerusform>... и ещё %n</numerusform>
            <numerusform>... и ещё %n</numerusform>
            <numerusform>... и ещё %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnsavedTexts</name>
    <message>
        <source>Artist: %1</source>
        <translation>Исполнитель: %1</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translation>Название: %1</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Download update</source>
        <comment>Action text</comment>
        <translation>Загрузить обновление</translation>
    </message>
    <message>
        <source>Cancel downloading</source>
        <comment>Action text</comment>
        <translation>Отменить загрузку</translation>
    </message>
    <message>
        <source>Exit and install update</source>
        <comment>Action text</comment>
        <translation>Выйти и установить обновление</translation>
    </message>
    <message>
        <source>The server redirects to something that is not a web page.</source>
        <translation>Сервер перенаправляет туда, где нет веб-страницы.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Сервер перенаправляет слишком много раз.</translation>
    </message>
    <message>
        <source>This build of the program knows no site to ask.</source>
        <translation>В этой сборке программы не указан сайт для проверки обновлений.</translation>
    </message>
    <message>
        <source>Can&apos;t check for update: %1</source>
        <translation>Не удалось проверить наличие обновлений: %1</translation>
    </message>
    <message>
        <source>Failed to parse version information data.</source>
        <comment>Updater error message</comment>
        <translation>Не удалось разобрать сведения о версии.</translation>
    </message>
    <message>
        <source>Can&apos;t get update: %1</source>
        <translation>Не удалось получить обновление: %1</translation>
    </message>
    <message>
        <source>The address of the setup file is not one that can be used.</source>
        <translation>Адрес установочного файла непригоден.</translation>
    </message>
    <message>
        <source>The setup file has another size than the server said.</source>
        <translation>Размер установочного файла отличается от указанного сервером.</translation>
    </message>
    <message>
        <source>The server sent something else than the setup file.</source>
        <translation>Сервер прислал не установочный файл, а что-то другое.</translation>
    </message>
    <message>
        <source>The setup file is larger than it should be.</source>
        <translation>Установочный файл больше, чем должен быть.</translation>
    </message>
    <message>
        <source>The server did not send the whole setup file.</source>
        <translation>Сервер прислал установочный файл не полностью.</translation>
    </message>
    <message>
        <source>Can&apos;t open file: %1</source>
        <translation>Не удалось открыть файл: %1</translation>
    </message>
    <message>
        <source>Can&apos;t install update</source>
        <translation>Не удалось установить обновление</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message numerus="yes">
        <source>%n years</source>
        <translation>
            <numerusform>%n года</numerusform>
            <numerusform>%n лет</numerusform>
            <numerusform>%n лет</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n months</source>
        <translation>
            <numerusform>%n месяца</numerusform>
            <numerusform>%n месяцев</numerusform>
            <numerusform>%n месяцев</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n дня</numerusform>
            <numerusform>%n дней</numerusform>
            <numerusform>%n дней</numerusform>
        </translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Пропустить эту версию</translation>
    </message>
    <message>
        <source>Remind later</source>
        <translation>Напомнить позже</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Установить обновление</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>Доступно обновление!</translation>
    </message>
    <message>
        <source>A new version of &lt;b&gt;%appName&lt;/b&gt; is available!</source>
        <translation>Доступна новая версия &lt;b&gt;%appName&lt;/b&gt;!</translation>
    </message>
    <message>
        <source>%appName &lt;b&gt;%newVersion&lt;/b&gt; is available - you have &lt;b&gt;%oldVersion&lt;/b&gt;. Would you like to download it now?</source>
        <translation>Доступна версия %appName &lt;b&gt;%newVersion&lt;/b&gt;, установлена &lt;b&gt;%oldVersion&lt;/b&gt;. Загрузить новую сейчас?</translation>
    </message>
    <message>
        <source>Your version was released more than &lt;b&gt;%releasePeriod&lt;/b&gt; ago.</source>
        <translation>Установленная версия вышла более &lt;b&gt;%releasePeriod&lt;/b&gt; назад.</translation>
    </message>
    <message>
        <source>Since then, &lt;b&gt;%numUpdates&lt;/b&gt; versions have been released.</source>
        <translation>С тех пор вышло версий: &lt;b&gt;%numUpdates&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Release notes:</source>
        <translation>Что нового:</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Что нового</translation>
    </message>
</context>
<context>
    <name>UpdateFolder</name>
    <message>
        <source>The folder %1 cannot be used.</source>
        <translation>Папку %1 использовать нельзя.</translation>
    </message>
</context>
<context>
    <name>UpdateInfoDialog</name>
    <message>
        <source>Update</source>
        <comment>noun, title of dialog about &apos;checking for updates&apos;</comment>
        <translation>Обновление</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>Проверка наличия обновлений...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>You have the latest version.</source>
        <translation>Установлена последняя версия.</translation>
    </message>
    <message>
        <source>Failed to update</source>
        <translation>Не удалось обновить программу</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Обновление</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>UsageExample</name>
    <message>
        <source>Example of a usage event</source>
        <translation>Пример отчёта об использовании</translation>
    </message>
    <message>
        <source>(random, made when you say yes)</source>
        <translation>(случайный, создаётся после согласия)</translation>
    </message>
    <message>
        <source>This is sent whenever a search for a song begins; the song is made up here. The start and the end of the program, an update, clicks on the maker&apos;s pages and a window that cannot be drawn are reported in the same way, without names of songs.</source>
        <translation>Это отправляется каждый раз, когда начинается поиск песни; песня здесь вымышленная. О запуске и завершении программы, обновлении, переходах на страницы разработчика и об окне, которое не удаётся нарисовать, сообщается так же, без названий песен.</translation>
    </message>
</context>
<context>
    <name>WritesWait</name>
    <message>
        <source>It goes on by itself when this is done.</source>
        <translation>После этого всё продолжится само.</translation>
    </message>
    <message>
        <source>Changes are still being written into the songs.</source>
        <translation>Изменения ещё записываются в песни.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Songs and lyrics</source>
        <translation>Песни и тексты</translation>
    </message>
    <message>
        <source>The window could not be built.</source>
        <translation>Не удалось создать окно.</translation>
    </message>
    <message>
        <source>The changes to one song were kept as a text file in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>Изменения в одной песне сохранены в текстовый файл в %1</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs were kept as text files in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>
            <numerusform>Изменения в %n песне сохранены в текстовый файл в %1</numerusform>
            <numerusform>Изменения в %n песнях сохранены в текстовые файлы в %1</numerusform>
            <numerusform>Изменения в %n песнях сохранены в текстовые файлы в %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The changes to one song could be kept nowhere: copy them from the details now.</source>
        <translation>Изменения в одной песне не удалось нигде сохранить: скопируйте их сейчас из панели справа.</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs could be kept nowhere: copy them from the details now.</source>
        <translation>
            <numerusform>Изменения в %n песне не удалось нигде сохранить: скопируйте их сейчас из панели справа.</numerusform>
            <numerusform>Изменения в %n песнях не удалось нигде сохранить: скопируйте их сейчас из панели справа.</numerusform>
            <numerusform>Изменения в %n песнях не удалось нигде сохранить: скопируйте их сейчас из панели справа.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not all changes could be written into the songs.</source>
        <translation>Не все изменения удалось записать в песни.</translation>
    </message>
</context>
</TS>
