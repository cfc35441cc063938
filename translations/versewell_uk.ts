<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Про програму</translation>
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
        <translation>Версія %1</translation>
    </message>
    <message>
        <source>Made by %1</source>
        <comment>%1 is the maker&apos;s name</comment>
        <translation>Розробник: %1</translation>
    </message>
</context>
<context>
    <name>AccessManager</name>
    <message>
        <source>Not a web address: %1</source>
        <translation>Це не вебадреса: %1</translation>
    </message>
    <message>
        <source>%1 asked for a pause and can be asked again in %2 s.</source>
        <comment>%1 is a host name</comment>
        <translation>%1 просить зробити паузу; наступний запит можливий через %2 с.</translation>
    </message>
    <message>
        <source>The proxy wants a log-in of a kind that is not known here.</source>
        <translation>Проксі-сервер вимагає непідтримуваного способу автентифікації.</translation>
    </message>
    <message>
        <source>The proxy asks for a log-in for some pages only, which is not supported.</source>
        <translation>Проксі-сервер вимагає вхід лише для деяких сторінок, це не підтримується.</translation>
    </message>
</context>
<context>
    <name>AddDialogs</name>
    <message>
        <source>Select file(s) to add</source>
        <translation>Вибір файлів для додавання</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Аудіофайли</translation>
    </message>
    <message>
        <source>Select folder to add</source>
        <translation>Вибір теки для додавання</translation>
    </message>
</context>
<context>
    <name>AudioPreview</name>
    <message>
        <source>Pause</source>
        <translation>Призупинити</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Відтворити</translation>
    </message>
    <message>
        <source>No preview: the Qt module QtMultimedia is missing (package qml-module-qtmultimedia).</source>
        <translation>Прослуховування недоступне: немає модуля QtMultimedia (пакунок qml-module-qtmultimedia).</translation>
    </message>
    <message>
        <source>This file cannot be played here.</source>
        <translation>Цей файл не можна відтворити тут.</translation>
    </message>
</context>
<context>
    <name>ConsentBar</name>
    <message>
        <source>May usage events be sent to the maker? Those about searches name artist and title.</source>
        <translation>Надсилати розробнику звіти про використання? У звітах про пошук вказано виконавця й назву.</translation>
    </message>
    <message>
        <source>What is sent?</source>
        <translation>Що надсилається?</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Показати приклад звіту про використання</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Так</translation>
    </message>
    <message>
        <source>Yes, send usage events</source>
        <translation>Так, надсилати звіти про використання</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ні</translation>
    </message>
    <message>
        <source>No, send nothing</source>
        <translation>Ні, нічого не надсилати</translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message numerus="yes">
        <source>Selected %n files</source>
        <translation>
            <numerusform>Вибрано %n файл</numerusform>
            <numerusform>Вибрано %n файли</numerusform>
            <numerusform>Вибрано %n файлів</numerusform>
        </translation>
    </message>
    <message>
        <source>No file is selected</source>
        <translation>Файл не вибрано</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Exit and install</source>
        <translation>Вийти та встановити</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>Оновлення %1</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Перебіг завантаження</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Завантаження оновлення...</translation>
    </message>
    <message>
        <source>Ready to install...</source>
        <translation>Готово до встановлення...</translation>
    </message>
    <message>
        <source>%1 MB of %2 MB</source>
        <translation>%1 МБ із %2 МБ</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>Installing...</source>
        <translation>Встановлення...</translation>
    </message>
</context>
<context>
    <name>EditableField</name>
    <message>
        <source>&lt;empty&gt;</source>
        <translation>&lt;порожньо&gt;</translation>
    </message>
    <message>
        <source>Enter to apply</source>
        <translation>Enter — застосувати</translation>
    </message>
    <message>
        <source>not saved yet (Ctrl+S saves)</source>
        <translation>ще не збережено (Ctrl+S зберігає)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>All files here have lyrics and are hidden</source>
        <translation>Усі файли мають текст і приховані</translation>
    </message>
    <message>
        <source>Drop music files or folders here</source>
        <translation>Сюди можна перетягнути музичні файли або теки</translation>
    </message>
    <message>
        <source>Add files...</source>
        <translation>Додати файли...</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>Додати теку...</translation>
    </message>
</context>
<context>
    <name>ExitWidget</name>
    <message>
        <source>Do you want to quit anyway?</source>
        <translation>Усе одно вийти?</translation>
    </message>
    <message numerus="yes">
        <source>Search for %n songs is currently in progress.</source>
        <translation>
            <numerusform>Триває пошук тексту для %n пісні.</numerusform>
            <numerusform>Триває пошук текстів для %n пісень.</numerusform>
            <numerusform>Триває пошук текстів для %n пісень.</numerusform>
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
        <translation>Без назви</translation>
    </message>
    <message>
        <source>No artist</source>
        <translation>Без виконавця</translation>
    </message>
    <message>
        <source>Show in the file manager</source>
        <translation>Показати у файловому менеджері</translation>
    </message>
</context>
<context>
    <name>LimitedReply</name>
    <message>
        <source>The server refuses to answer (HTTP %1).</source>
        <translation>Сервер відмовляється відповідати (HTTP %1).</translation>
    </message>
    <message>
        <source>The server has no such page (HTTP %1).</source>
        <translation>На сервері немає такої сторінки (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is asked too often (HTTP %1).</source>
        <translation>Надто часті запити до сервера (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is out of order (HTTP %1).</source>
        <translation>Збій на сервері (HTTP %1).</translation>
    </message>
    <message>
        <source>The server cannot answer the request (HTTP %1).</source>
        <translation>Сервер не може відповісти на запит (HTTP %1).</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>Запит скасовано.</translation>
    </message>
    <message>
        <source>The server has been silent for %1 seconds.</source>
        <translation>Сервер не відповідає вже %1 с.</translation>
    </message>
    <message>
        <source>The server took longer than %1 seconds.</source>
        <translation>Сервер відповідав довше за %1 с.</translation>
    </message>
    <message>
        <source>The answer is packed in a way that is not known here.</source>
        <translation>Відповідь стиснуто непідтримуваним способом.</translation>
    </message>
    <message>
        <source>The answer arrived damaged.</source>
        <translation>Відповідь надійшла пошкодженою.</translation>
    </message>
    <message>
        <source>The connection broke before the whole answer had arrived.</source>
        <translation>З’єднання обірвалося раніше, ніж надійшла вся відповідь.</translation>
    </message>
    <message>
        <source>The answer is larger than %1.</source>
        <translation>Розмір відповіді перевищує %1.</translation>
    </message>
    <message>
        <source>The site&apos;s certificate is not trusted.</source>
        <translation>Сертифікату сайту не можна довіряти.</translation>
    </message>
    <message>
        <source>No secure connection to the site could be made.</source>
        <translation>Не вдалося встановити захищене з’єднання із сайтом.</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message numerus="yes">
        <source>Scanning folder(s) for music files (found %n)</source>
        <translation>
            <numerusform>Пошук музичних файлів у теках (знайдено: %n)</numerusform>
            <numerusform>Пошук музичних файлів у теках (знайдено: %n)</numerusform>
            <numerusform>Пошук музичних файлів у теках (знайдено: %n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message numerus="yes">
        <source>Hidden %n file(s) with lyrics</source>
        <translation>
            <numerusform>Приховано %n файл із текстом</numerusform>
            <numerusform>Приховано %n файли з текстом</numerusform>
            <numerusform>Приховано %n файлів із текстом</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Показати</translation>
    </message>
    <message>
        <source>Show hidden files</source>
        <translation>Показати приховані файли</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Прибрати</translation>
    </message>
    <message>
        <source>Remove hidden files from the list</source>
        <translation>Прибрати приховані файли зі списку</translation>
    </message>
</context>
<context>
    <name>LyricsEditGuard</name>
    <message>
        <source>The lyrics of “%1” have been changed.</source>
        <comment>%1 is the title of a song</comment>
        <translation>Текст пісні «%1» змінено.</translation>
    </message>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Зберегти зміни?</translation>
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
        <translation>Текст дуже довгий; показано лише його початок.</translation>
    </message>
</context>
<context>
    <name>LyricsProvider</name>
    <message>
        <source>%1 redirects to something that is not a web page.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>Сайт %1 переспрямовує туди, де немає вебсторінки.</translation>
    </message>
    <message>
        <source>%1 redirects too often.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>Сайт %1 переспрямовує надто багато разів.</translation>
    </message>
    <message>
        <source>%1 gave a page that holds no lyrics.</source>
        <translation>Сайт %1 видав сторінку без тексту пісні.</translation>
    </message>
</context>
<context>
    <name>LyricsSearch</name>
    <message>
        <source>The artist or title is too long to search for.</source>
        <translation>Виконавець або назва задовгі для пошуку.</translation>
    </message>
</context>
<context>
    <name>LyricsText</name>
    <message>
        <source>Lyrics</source>
        <translation>Текст пісні</translation>
    </message>
</context>
<context>
    <name>LyricsToolbar</name>
    <message>
        <source>Edit lyrics (F2)</source>
        <translation>Редагувати текст (F2)</translation>
    </message>
    <message>
        <source>Save lyrics (Ctrl+S)</source>
        <translation>Зберегти текст (Ctrl+S)</translation>
    </message>
    <message>
        <source>Cancel editing (Esc)</source>
        <translation>Скасувати редагування (Esc)</translation>
    </message>
    <message>
        <source>Force to search lyrics (Ctrl+R)</source>
        <translation>Примусовий пошук тексту (Ctrl+R)</translation>
    </message>
    <message>
        <source>Copy lyrics to clipboard</source>
        <translation>Копіювати текст до буфера обміну</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Шукати текст у %1</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Зменшити шрифт</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Збільшити шрифт</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Add file</source>
        <translation>Додати файл</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Додати теку</translation>
    </message>
    <message>
        <source>Hide file(s) with lyrics</source>
        <translation>Приховати файли з текстом</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Вибрати всі</translation>
    </message>
    <message>
        <source>Remove with lyrics</source>
        <translation>Прибрати файли з текстом</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Очистити список</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Прибрати вибрані</translation>
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
        <translation>Вийти</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Про програму</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Вебсайт</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Налаштування</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Експортувати текст до файлу TXT</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Інструменти</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметри</translation>
    </message>
    <message>
        <source>Check for updates...</source>
        <translation>Перевірити оновлення...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Зміни</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Перегляд</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Довідка</translation>
    </message>
</context>
<context>
    <name>MusixMatchProvider</name>
    <message>
        <source>%1 leads from one list of songs to the next.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>Сайт %1 відсилає від одного списку пісень до іншого.</translation>
    </message>
    <message>
        <source>%1 gave a page that is too intricate to read.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>Сайт %1 видав надто складну для розбору сторінку.</translation>
    </message>
</context>
<context>
    <name>PlaybackSlider</name>
    <message>
        <source>Position in the song</source>
        <translation>Позиція в пісні</translation>
    </message>
</context>
<context>
    <name>Proxy</name>
    <message>
        <source>The proxy does not take the connection.</source>
        <translation>Проксі-сервер не приймає з’єднання.</translation>
    </message>
    <message>
        <source>The proxy closed the connection.</source>
        <translation>Проксі-сервер закрив з’єднання.</translation>
    </message>
    <message>
        <source>The proxy was not found.</source>
        <translation>Проксі-сервер не знайдено.</translation>
    </message>
    <message>
        <source>The proxy did not answer in time.</source>
        <translation>Проксі-сервер не відповів вчасно.</translation>
    </message>
    <message>
        <source>The proxy refuses the user name or the password.</source>
        <translation>Проксі-сервер не приймає ім’я користувача або пароль.</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>Проксі-сервер не працює.</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Host not found</source>
        <translation>Вузол не знайдено</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>У з’єднанні відмовлено</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Час очікування з’єднання вичерпано</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>Час операції з сокетом вичерпано</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Мережа недоступна</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>Віддалений вузол закрив з’єднання</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>Вибрати в&amp;се</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>З&amp;більшити</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>З&amp;меншити</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Перейти до:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Вперед</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Батьківська тека</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Створити теку</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Список</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Докладний список</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Назва файлу:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Тип файлів:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Тека:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Відкрити</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Ви&amp;брати</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Теки</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Файл не знайдено.
Перевірте, чи правильно вказано назву файлу.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Теку не знайдено.
Перевірте, чи правильно вказано назву теки.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Диск</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Тека</translation>
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
        <translation>Нещодавні місця</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Показувати: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Пере&amp;йменувати</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Видалити</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Показувати при&amp;ховані файли</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Нова тека</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Нова тека</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Прибрати</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Видалити «%1»?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>«%1» захищено від запису.
Усе одно видалити?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Не вдалося видалити теку.</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Повернутися назад</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Перейти вперед</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Перейти до батьківської теки</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Створити нову теку</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Перемкнути на список</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Перемкнути на докладний список</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Бічна панель</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Список місць і закладок</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файли</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Назва</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Розмір</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Дата зміни</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Комп’ютер</translation>
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
        <translation>&amp;Гаразд</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Зберегти</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Скасувати</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>За&amp;крити</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Закрити без збереження</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Host %1 not found</source>
        <translation>Вузол %1 не знайдено</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>У з’єднанні відмовлено</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>З’єднання закрито</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Скасувати</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторити</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Ви&amp;різати</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копіювати</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Вставити</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Видалити</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Вибрати все</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Network unreachable</source>
        <translation>Мережа недоступна</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>Вузол недоступний</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Час очікування з’єднання вичерпано</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>У з’єднанні відмовлено</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation>Помилка під час передавання %1 — відповідь сервера: %2</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Зберегти</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Відкрити</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Так</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ні</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Відкинути</translation>
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
        <translation>Час життя пакета (TTL) вичерпано</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копіювати</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Копіювати &amp;адресу посилання</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Вибрати все</translation>
    </message>
</context>
<context>
    <name>ReadFailure</name>
    <message>
        <source>this is not a regular file</source>
        <translation>це не звичайний файл</translation>
    </message>
    <message>
        <source>the file is damaged: its tags have no end</source>
        <translation>файл пошкоджено: його теги не мають кінця</translation>
    </message>
    <message>
        <source>the file is damaged: its tags do not fit in memory</source>
        <translation>файл пошкоджено: його теги не вміщуються в пам’яті</translation>
    </message>
    <message>
        <source>the disk reported an error while the file was read</source>
        <translation>диск повідомив про помилку під час читання файлу</translation>
    </message>
    <message>
        <source>the file is damaged: reading its tags ended in a crash</source>
        <translation>файл пошкоджено: читання його тегів завершилося збоєм</translation>
    </message>
    <message>
        <source>reading the tags of the file took too long</source>
        <translation>читання тегів файлу тривало надто довго</translation>
    </message>
    <message>
        <source>reading the tags of the file gave nonsense</source>
        <translation>читання тегів файлу дало безглуздий результат</translation>
    </message>
    <message>
        <source>the helper program that reads tags could not be started</source>
        <translation>не вдалося запустити допоміжну програму для читання тегів</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>OpenGL settings</source>
        <translation>Налаштування OpenGL</translation>
    </message>
    <message>
        <source>Select the method of OpenGL usage:</source>
        <translation>Спосіб використання OpenGL:</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Автоматичне визначення</translation>
    </message>
    <message>
        <source>OpenGL ES 2.0</source>
        <translation>OpenGL ES 2.0</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Програмно</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Звичайний OpenGL</translation>
    </message>
    <message>
        <source>Clear all settings</source>
        <translation>Скинути всі налаштування</translation>
    </message>
    <message>
        <source>Clear settings</source>
        <translation>Скидання налаштувань</translation>
    </message>
    <message>
        <source>All settings will be removed and returned to default values. Are you sure?</source>
        <translation>Усі налаштування буде видалено й повернуто до типових значень. Продовжити?</translation>
    </message>
    <message>
        <source>All settings were cleared. The program starts anew after OK.</source>
        <translation>Усі налаштування скинуто. Після натискання «Гаразд» програма запуститься наново.</translation>
    </message>
    <message>
        <source>The settings cannot be cleared: their file cannot be written.</source>
        <translation>Не вдалося скинути налаштування: їхній файл недоступний для запису.</translation>
    </message>
</context>
<context>
    <name>SceneWidget</name>
    <message>
        <source>The Qt module %1 is missing (package %2).</source>
        <translation>Немає модуля Qt %1 (пакунок %2).</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Налаштування</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Загальні</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Мова:</translation>
    </message>
    <message>
        <source>Restart is required to apply changes</source>
        <translation>Зміни набудуть чинності після перезапуску</translation>
    </message>
    <message>
        <source>Font size for lyrics:</source>
        <translation>Розмір шрифту тексту:</translation>
    </message>
    <message>
        <source>Search in browser with:</source>
        <translation>Шукати в браузері через:</translation>
    </message>
    <message>
        <source>insert a blank line at the beginning of lyrics</source>
        <translation>Вставляти порожній рядок на початку тексту</translation>
    </message>
    <message>
        <source>save files list on quit</source>
        <translation>Зберігати список файлів під час виходу</translation>
    </message>
    <message>
        <source>export lyrics to a TXT file automatically</source>
        <translation>Автоматично експортувати текст до файлу TXT</translation>
    </message>
    <message>
        <source>look for new versions automatically</source>
        <translation>Автоматично перевіряти наявність нових версій</translation>
    </message>
    <message>
        <source>send usage events, with artists and titles</source>
        <translation>Надсилати звіти про використання з виконавцями й назвами</translation>
    </message>
    <message>
        <source>Example...</source>
        <translation>Приклад...</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Показати приклад звіту про використання</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Мережа</translation>
    </message>
    <message>
        <source>Proxy:</source>
        <translation>Проксі:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Адреса:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Порт:</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Автентифікація</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Ім’я користувача:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Сайти</translation>
    </message>
    <message>
        <source>Search order</source>
        <translation>Порядок пошуку</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Перемістити вище</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Перемістити нижче</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Увімкнути</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Автоматично</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Немає</translation>
    </message>
    <message>
        <source>Switched off by DO_NOT_TRACK</source>
        <translation>Вимкнено змінною DO_NOT_TRACK</translation>
    </message>
    <message>
        <source>No proxy is used.</source>
        <translation>Проксі-сервер не використовується.</translation>
    </message>
    <message>
        <source>No address: no proxy is used.</source>
        <translation>Немає адреси: проксі-сервер не використовується.</translation>
    </message>
    <message>
        <source>The proxy is being tested...</source>
        <translation>Перевірка проксі-сервера...</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>Проксі-сервер не працює.</translation>
    </message>
    <message>
        <source>No error within %1 seconds.</source>
        <translation>За %1 с помилок не виникло.</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Проксі-сервер працює.</translation>
    </message>
    <message>
        <source>Not tested yet.</source>
        <translation>Ще не перевірено.</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Вимкнути</translation>
    </message>
    <message>
        <source>Warning!!! You have disabled all sources.</source>
        <translation>Увага!!! Усі джерела вимкнено.</translation>
    </message>
</context>
<context>
    <name>SongDetails</name>
    <message>
        <source>Artist:</source>
        <translation>Виконавець:</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Виконавець</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Назва:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Назва</translation>
    </message>
</context>
<context>
    <name>SongList</name>
    <message>
        <source>Songs</source>
        <translation>Пісні</translation>
    </message>
</context>
<context>
    <name>SongMenu</name>
    <message>
        <source>Force to search lyrics</source>
        <translation>Примусовий пошук тексту</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Експортувати текст до файлу TXT</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Прибрати вибрані</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Прибрати всі</translation>
    </message>
    <message>
        <source>Copy file&apos;s path to clipboard</source>
        <translation>Копіювати шлях до файлу до буфера обміну</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Шукати текст у %1</translation>
    </message>
</context>
<context>
    <name>SongState</name>
    <message>
        <source>cannot be read</source>
        <translation>не читається</translation>
    </message>
    <message>
        <source>has lyrics</source>
        <translation>є текст</translation>
    </message>
    <message>
        <source>no lyrics</source>
        <translation>немає тексту</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>Цей файл не читається.</translation>
    </message>
    <message>
        <source>no names</source>
        <translation>немає даних</translation>
    </message>
    <message>
        <source>queued</source>
        <translation>у черзі</translation>
    </message>
    <message>
        <source>searching...</source>
        <translation>пошук...</translation>
    </message>
    <message>
        <source>saving...</source>
        <translation>збереження...</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>збій</translation>
    </message>
    <message>
        <source>no lyrics found</source>
        <translation>текст не знайдено</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>не збережено</translation>
    </message>
    <message>
        <source>search failed</source>
        <translation>помилка пошуку</translation>
    </message>
    <message>
        <source>in queue to search...</source>
        <translation>у черзі на пошук...</translation>
    </message>
    <message>
        <source>saving the lyrics...</source>
        <translation>збереження тексту...</translation>
    </message>
    <message>
        <source>A search needs an artist and a title.</source>
        <translation>Для пошуку потрібні виконавець і назва.</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>%1 is the reason</comment>
        <translation>Не збережено: %1</translation>
    </message>
</context>
<context>
    <name>SplitterHandle</name>
    <message>
        <source>Width of the list</source>
        <translation>Ширина списку</translation>
    </message>
</context>
<context>
    <name>StateLine</name>
    <message>
        <source>search for lyrics</source>
        <translation>знайти текст</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Progress of the searches</source>
        <translation>Перебіг пошуку</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n left...</source>
        <translation>
            <numerusform>Пошук... Залишилося: %n...</numerusform>
            <numerusform>Пошук... Залишилося: %n...</numerusform>
            <numerusform>Пошук... Залишилося: %n...</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings file is damaged. What could be read is used, but no copy could be made.</source>
        <translation>Файл налаштувань пошкоджено. Використовується те, що вдалося прочитати, але створити копію не вдалося.</translation>
    </message>
    <message>
        <source>The settings file was damaged. What could be read is kept; the damaged file is now %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Файл налаштувань був пошкоджений. Усе, що вдалося прочитати, збережено; пошкоджений файл тепер тут: %1</translation>
    </message>
    <message>
        <source>The settings cannot be read or stored; changes last for this run only.</source>
        <translation>Налаштування не вдається прочитати або зберегти; зміни діють лише до закриття програми.</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since their names are damaged or too long: %n</source>
        <translation>
            <numerusform>Файли, пропущені через пошкоджені або задовгі назви: %n</numerusform>
            <numerusform>Файли, пропущені через пошкоджені або задовгі назви: %n</numerusform>
            <numerusform>Файли, пропущені через пошкоджені або задовгі назви: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The list is full. Files left out: %n</source>
        <translation>
            <numerusform>Список заповнено. Пропущено файлів: %n</numerusform>
            <numerusform>Список заповнено. Пропущено файлів: %n</numerusform>
            <numerusform>Список заповнено. Пропущено файлів: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The last save was cut off. Songs that are again as they were before it: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Останнє збереження було перервано. Пісні, повернуті до попереднього стану: %1</translation>
    </message>
    <message>
        <source>Copies from before a save that was cut off: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Копії, зроблені до перерваного збереження: %1</translation>
    </message>
    <message>
        <source>A save was cut off, and these songs cannot be reached to undo it; it is tried again at each start: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Збереження було перервано, а пісні, у яких його треба скасувати, недоступні; спроба повторюється під час кожного запуску: %1</translation>
    </message>
    <message numerus="yes">
        <source>Songs that could not be written: %n (%1)</source>
        <comment>%1 is the reason</comment>
        <translation>
            <numerusform>Не вдалося записати пісень: %n (%1)</numerusform>
            <numerusform>Не вдалося записати пісень: %n (%1)</numerusform>
            <numerusform>Не вдалося записати пісень: %n (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics could not be written to %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Не вдалося записати текст до файлу %1</translation>
    </message>
    <message>
        <source>There are no lyrics to export</source>
        <translation>Немає текстів для експорту</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Whole copies of these songs: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Цілі копії цих пісень: %1</translation>
    </message>
    <message>
        <source>A save was cut off. Songs that are still being restored: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Збереження було перервано. Пісні, які ще відновлюються: %1</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs could not be exported</source>
        <translation>
            <numerusform>Не вдалося експортувати текст %n пісні</numerusform>
            <numerusform>Не вдалося експортувати тексти %n пісень</numerusform>
            <numerusform>Не вдалося експортувати тексти %n пісень</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Lyrics exported to %n text files</source>
        <translation>
            <numerusform>Текст експортовано до %n файлу TXT</numerusform>
            <numerusform>Тексти експортовано до %n файлів TXT</numerusform>
            <numerusform>Тексти експортовано до %n файлів TXT</numerusform>
        </translation>
    </message>
    <message>
        <source>Lyrics exported to one text file</source>
        <translation>Текст експортовано до одного файлу TXT</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since they are missing or of a kind that is not supported: %n</source>
        <translation>
            <numerusform>Файли, пропущені, бо їх немає або їхній тип не підтримується: %n</numerusform>
            <numerusform>Файли, пропущені, бо їх немає або їхній тип не підтримується: %n</numerusform>
            <numerusform>Файли, пропущені, бо їх немає або їхній тип не підтримується: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>the file is no longer there</source>
        <translation>файлу більше немає</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>це не звичайний файл</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>файл доступний лише для читання</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>не вдається відкрити файл</translation>
    </message>
    <message>
        <source>no audio was found in the file</source>
        <translation>у файлі не знайдено звуку</translation>
    </message>
    <message>
        <source>files of this format cannot hold lyrics</source>
        <translation>файли цього формату не можуть містити текст</translation>
    </message>
    <message>
        <source>the file is damaged, or built in an unusual way</source>
        <translation>файл пошкоджений або має незвичну будову</translation>
    </message>
    <message>
        <source>there is not enough room on the disk</source>
        <translation>на диску недостатньо місця</translation>
    </message>
    <message>
        <source>the file would become too large</source>
        <translation>файл став би завеликим</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>диск повідомляє про помилку</translation>
    </message>
    <message>
        <source>other entries of its tags would be lost</source>
        <translation>інші записи тегів було б втрачено</translation>
    </message>
    <message>
        <source>the audio would not stay as it is</source>
        <translation>звук не лишився б незмінним</translation>
    </message>
    <message>
        <source>another program has changed the file</source>
        <translation>інша програма змінила файл</translation>
    </message>
    <message>
        <source>the disk failed; the file will be restored at the next start</source>
        <translation>збій диска; файл буде відновлено під час наступного запуску</translation>
    </message>
    <message>
        <source>the file could not be saved</source>
        <translation>не вдалося зберегти файл</translation>
    </message>
    <message>
        <source>an earlier save of the file was cut off and is not undone yet</source>
        <translation>попереднє збереження файлу було перервано і ще не скасовано</translation>
    </message>
</context>
<context>
    <name>UnsavedLyricsGuard</name>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Зберегти зміни?</translation>
    </message>
    <message>
        <source>The changed artist or title of one song is not in its file yet.</source>
        <translation>Змінені виконавець або назва однієї пісні ще не збережено у файл.</translation>
    </message>
    <message numerus="yes">
        <source>The changed artist or title of %n songs is not in their files yet.</source>
        <translation>
            <numerusform>Змінені виконавець або назва %n пісні ще не збережено у файл.</numerusform>
            <numerusform>Змінені виконавці або назви %n пісень ще не збережено у файли.</numerusform>
            <numerusform>Змінені виконавці або назви %n пісень ще не збережено у файли.</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics of one song are not in its file and stand in the list only.</source>
        <translation>Текст однієї пісні не записано у файл, він є лише у списку.</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs are not in their files and stand in the list only.</source>
        <translation>
            <numerusform>Текст %n пісні не записано у файл, він є лише у списку.</numerusform>
            <numerusform>Тексти %n пісень не записано у файли, вони є лише у списку.</numerusform>
            <numerusform>Тексти %n пісень не записано у файли, вони є лише у списку.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” could not be saved: %2</source>
        <comment>%1 is the title of a song, %2 the reason</comment>
        <translation>Не вдалося зберегти «%1»: %2</translation>
    </message>
    <message>
        <source>it is still being written</source>
        <translation>запис іще не завершено</translation>
    </message>
    <message>
        <source>The deleted lyrics of one song are still in its file.</source>
        <translation>Видалений текст однієї пісні досі є у файлі.</translation>
    </message>
    <message numerus="yes">
        <source>The deleted lyrics of %n songs are still in their files.</source>
        <translation>
            <numerusform>Видалений текст %n пісні досі є у файлі.</numerusform>
            <numerusform>Видалені тексти %n пісень досі є у файлах.</numerusform>
            <numerusform>Видалені тексти %n пісень досі є у файлах.</numerusform>
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
            <numerusform>... і ще %n</numerusform>
            <numerusform>... і ще %n</numerusform>
            <numerusform>... і ще %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnsavedTexts</name>
    <message>
        <source>Artist: %1</source>
        <translation>Виконавець: %1</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translation>Назва: %1</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Download update</source>
        <comment>Action text</comment>
        <translation>Завантажити оновлення</translation>
    </message>
    <message>
        <source>Cancel downloading</source>
        <comment>Action text</comment>
        <translation>Скасувати завантаження</translation>
    </message>
    <message>
        <source>Exit and install update</source>
        <comment>Action text</comment>
        <translation>Вийти та встановити оновлення</translation>
    </message>
    <message>
        <source>The server redirects to something that is not a web page.</source>
        <translation>Сервер переспрямовує туди, де немає вебсторінки.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Сервер переспрямовує надто багато разів.</translation>
    </message>
    <message>
        <source>This build of the program knows no site to ask.</source>
        <translation>У цій збірці програми не вказано сайт для перевірки оновлень.</translation>
    </message>
    <message>
        <source>Can&apos;t check for update: %1</source>
        <translation>Не вдалося перевірити наявність оновлень: %1</translation>
    </message>
    <message>
        <source>Failed to parse version information data.</source>
        <comment>Updater error message</comment>
        <translation>Не вдалося розібрати відомості про версію.</translation>
    </message>
    <message>
        <source>Can&apos;t get update: %1</source>
        <translation>Не вдалося отримати оновлення: %1</translation>
    </message>
    <message>
        <source>The address of the setup file is not one that can be used.</source>
        <translation>Адреса інсталяційного файлу непридатна.</translation>
    </message>
    <message>
        <source>The setup file has another size than the server said.</source>
        <translation>Розмір інсталяційного файлу відрізняється від указаного сервером.</translation>
    </message>
    <message>
        <source>The server sent something else than the setup file.</source>
        <translation>Сервер надіслав не інсталяційний файл, а щось інше.</translation>
    </message>
    <message>
        <source>The setup file is larger than it should be.</source>
        <translation>Інсталяційний файл більший, ніж має бути.</translation>
    </message>
    <message>
        <source>The server did not send the whole setup file.</source>
        <translation>Сервер надіслав інсталяційний файл не повністю.</translation>
    </message>
    <message>
        <source>Can&apos;t open file: %1</source>
        <translation>Не вдалося відкрити файл: %1</translation>
    </message>
    <message>
        <source>Can&apos;t install update</source>
        <translation>Не вдалося встановити оновлення</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message numerus="yes">
        <source>%n years</source>
        <translation>
            <numerusform>%n рік</numerusform>
            <numerusform>%n роки</numerusform>
            <numerusform>%n років</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n months</source>
        <translation>
            <numerusform>%n місяць</numerusform>
            <numerusform>%n місяці</numerusform>
            <numerusform>%n місяців</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n дня</numerusform>
            <numerusform>%n днів</numerusform>
            <numerusform>%n днів</numerusform>
        </translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версія %1</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Пропустити цю версію</translation>
    </message>
    <message>
        <source>Remind later</source>
        <translation>Нагадати пізніше</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Встановити оновлення</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>Доступне оновлення!</translation>
    </message>
    <message>
        <source>A new version of &lt;b&gt;%appName&lt;/b&gt; is available!</source>
        <translation>Доступна нова версія &lt;b&gt;%appName&lt;/b&gt;!</translation>
    </message>
    <message>
        <source>%appName &lt;b&gt;%newVersion&lt;/b&gt; is available - you have &lt;b&gt;%oldVersion&lt;/b&gt;. Would you like to download it now?</source>
        <translation>Доступна версія %appName &lt;b&gt;%newVersion&lt;/b&gt;, установлено &lt;b&gt;%oldVersion&lt;/b&gt;. Завантажити нову зараз?</translation>
    </message>
    <message>
        <source>Your version was released more than &lt;b&gt;%releasePeriod&lt;/b&gt; ago.</source>
        <translation>Установлена версія вийшла понад &lt;b&gt;%releasePeriod&lt;/b&gt; тому.</translation>
    </message>
    <message>
        <source>Since then, &lt;b&gt;%numUpdates&lt;/b&gt; versions have been released.</source>
        <translation>Відтоді вийшло версій: &lt;b&gt;%numUpdates&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Release notes:</source>
        <translation>Що нового:</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Що нового</translation>
    </message>
</context>
<context>
    <name>UpdateFolder</name>
    <message>
        <source>The folder %1 cannot be used.</source>
        <translation>Теку %1 використати неможливо.</translation>
    </message>
</context>
<context>
    <name>UpdateInfoDialog</name>
    <message>
        <source>Update</source>
        <comment>noun, title of dialog about &apos;checking for updates&apos;</comment>
        <translation>Оновлення</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>Перевірка наявності оновлень...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>You have the latest version.</source>
        <translation>Установлено найновішу версію.</translation>
    </message>
    <message>
        <source>Failed to update</source>
        <translation>Не вдалося оновити програму</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Оновлення</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
</context>
<context>
    <name>UsageExample</name>
    <message>
        <source>Example of a usage event</source>
        <translation>Приклад звіту про використання</translation>
    </message>
    <message>
        <source>(random, made when you say yes)</source>
        <translation>(випадковий, створюється після згоди)</translation>
    </message>
    <message>
        <source>This is sent whenever a search for a song begins; the song is made up here. The start and the end of the program, an update, clicks on the maker&apos;s pages and a window that cannot be drawn are reported in the same way, without names of songs.</source>
        <translation>Це надсилається щоразу, коли починається пошук пісні; пісню тут вигадано. Про запуск і завершення програми, оновлення, переходи на сторінки розробника та про вікно, яке не вдається намалювати, повідомляється так само, без назв пісень.</translation>
    </message>
</context>
<context>
    <name>WritesWait</name>
    <message>
        <source>It goes on by itself when this is done.</source>
        <translation>Після цього все продовжиться саме.</translation>
    </message>
    <message>
        <source>Changes are still being written into the songs.</source>
        <translation>Зміни ще записуються в пісні.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Songs and lyrics</source>
        <translation>Пісні та тексти</translation>
    </message>
    <message>
        <source>The window could not be built.</source>
        <translation>Не вдалося створити вікно.</translation>
    </message>
    <message>
        <source>The changes to one song were kept as a text file in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>Зміни в одній пісні збережено в текстовий файл у %1</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs were kept as text files in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>
            <numerusform>Зміни в %n пісні збережено в текстовий файл у %1</numerusform>
            <numerusform>Зміни в %n піснях збережено в текстові файли в %1</numerusform>
            <numerusform>Зміни в %n піснях збережено в текстові файли в %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The changes to one song could be kept nowhere: copy them from the details now.</source>
        <translation>Зміни в одній пісні не вдалося ніде зберегти: скопіюйте їх зараз із панелі праворуч.</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs could be kept nowhere: copy them from the details now.</source>
        <translation>
            <numerusform>Зміни в %n пісні не вдалося ніде зберегти: скопіюйте їх зараз із панелі праворуч.</numerusform>
            <numerusform>Зміни в %n піснях не вдалося ніде зберегти: скопіюйте їх зараз із панелі праворуч.</numerusform>
            <numerusform>Зміни в %n піснях не вдалося ніде зберегти: скопіюйте їх зараз із панелі праворуч.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not all changes could be written into the songs.</source>
        <translation>Не всі зміни вдалося записати в пісні.</translation>
    </message>
</context>
</TS>
