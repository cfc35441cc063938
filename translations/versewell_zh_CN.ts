<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
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
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Made by %1</source>
        <comment>%1 is the maker&apos;s name</comment>
        <translation>由 %1 制作</translation>
    </message>
</context>
<context>
    <name>AccessManager</name>
    <message>
        <source>Not a web address: %1</source>
        <translation>不是网址：%1</translation>
    </message>
    <message>
        <source>%1 asked for a pause and can be asked again in %2 s.</source>
        <comment>%1 is a host name</comment>
        <translation>%1 要求暂停访问，%2 秒后可重试。</translation>
    </message>
    <message>
        <source>The proxy wants a log-in of a kind that is not known here.</source>
        <translation>代理服务器要求使用不受支持的登录方式。</translation>
    </message>
    <message>
        <source>The proxy asks for a log-in for some pages only, which is not supported.</source>
        <translation>代理服务器仅对部分页面要求登录，此情况不受支持。</translation>
    </message>
</context>
<context>
    <name>AddDialogs</name>
    <message>
        <source>Select file(s) to add</source>
        <translation>选择要添加的文件</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>音频文件</translation>
    </message>
    <message>
        <source>Select folder to add</source>
        <translation>选择要添加的文件夹</translation>
    </message>
</context>
<context>
    <name>AudioPreview</name>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>No preview: the Qt module QtMultimedia is missing (package qml-module-qtmultimedia).</source>
        <translation>无法试听：缺少 Qt 模块 QtMultimedia（软件包 qml-module-qtmultimedia）。</translation>
    </message>
    <message>
        <source>This file cannot be played here.</source>
        <translation>此文件无法在这里播放。</translation>
    </message>
</context>
<context>
    <name>ConsentBar</name>
    <message>
        <source>May usage events be sent to the maker? Those about searches name artist and title.</source>
        <translation>是否允许向开发者发送使用数据？与搜索有关的数据包含艺术家和标题。</translation>
    </message>
    <message>
        <source>What is sent?</source>
        <translation>会发送什么？</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>显示使用数据示例</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Yes, send usage events</source>
        <translation>是，发送使用数据</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>No, send nothing</source>
        <translation>否，不发送任何数据</translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message numerus="yes">
        <source>Selected %n files</source>
        <translation>
            <numerusform>已选择 %n 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>No file is selected</source>
        <translation>未选择文件</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Exit and install</source>
        <translation>退出并安装</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>正在更新 %1</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>下载进度</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>正在下载更新...</translation>
    </message>
    <message>
        <source>Ready to install...</source>
        <translation>准备安装...</translation>
    </message>
    <message>
        <source>%1 MB of %2 MB</source>
        <translation>%1 MB / %2 MB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Installing...</source>
        <translation>正在安装...</translation>
    </message>
</context>
<context>
    <name>EditableField</name>
    <message>
        <source>&lt;empty&gt;</source>
        <translation>&lt;空&gt;</translation>
    </message>
    <message>
        <source>Enter to apply</source>
        <translation>按 Enter 应用</translation>
    </message>
    <message>
        <source>not saved yet (Ctrl+S saves)</source>
        <translation>尚未保存（Ctrl+S 保存）</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>All files here have lyrics and are hidden</source>
        <translation>这里的文件都有歌词，已被隐藏</translation>
    </message>
    <message>
        <source>Drop music files or folders here</source>
        <translation>将音乐文件或文件夹拖放到这里</translation>
    </message>
    <message>
        <source>Add files...</source>
        <translation>添加文件...</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>添加文件夹...</translation>
    </message>
</context>
<context>
    <name>ExitWidget</name>
    <message>
        <source>Do you want to quit anyway?</source>
        <translation>仍要退出吗？</translation>
    </message>
    <message numerus="yes">
        <source>Search for %n songs is currently in progress.</source>
        <translation>
            <numerusform>正在搜索 %n 首歌曲的歌词。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileItemDelegate</name>
    <message>
        <source>%1, %2, %3</source>
        <comment>title, artist and how the song stands</comment>
        <translation>%1，%2，%3</translation>
    </message>
    <message>
        <source>No title</source>
        <translation>无标题</translation>
    </message>
    <message>
        <source>No artist</source>
        <translation>无艺术家</translation>
    </message>
    <message>
        <source>Show in the file manager</source>
        <translation>在文件管理器中显示</translation>
    </message>
</context>
<context>
    <name>LimitedReply</name>
    <message>
        <source>The server refuses to answer (HTTP %1).</source>
        <translation>服务器拒绝响应（HTTP %1）。</translation>
    </message>
    <message>
        <source>The server has no such page (HTTP %1).</source>
        <translation>服务器上没有该页面（HTTP %1）。</translation>
    </message>
    <message>
        <source>The server is asked too often (HTTP %1).</source>
        <translation>对服务器的请求过于频繁（HTTP %1）。</translation>
    </message>
    <message>
        <source>The server is out of order (HTTP %1).</source>
        <translation>服务器出现故障（HTTP %1）。</translation>
    </message>
    <message>
        <source>The server cannot answer the request (HTTP %1).</source>
        <translation>服务器无法处理该请求（HTTP %1）。</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>请求已取消。</translation>
    </message>
    <message>
        <source>The server has been silent for %1 seconds.</source>
        <translation>服务器已有 %1 秒没有响应。</translation>
    </message>
    <message>
        <source>The server took longer than %1 seconds.</source>
        <translation>服务器的响应超过了 %1 秒。</translation>
    </message>
    <message>
        <source>The answer is packed in a way that is not known here.</source>
        <translation>响应使用了不受支持的压缩方式。</translation>
    </message>
    <message>
        <source>The answer arrived damaged.</source>
        <translation>收到的响应已损坏。</translation>
    </message>
    <message>
        <source>The connection broke before the whole answer had arrived.</source>
        <translation>连接在收到完整响应之前中断。</translation>
    </message>
    <message>
        <source>The answer is larger than %1.</source>
        <translation>响应超过了 %1。</translation>
    </message>
    <message>
        <source>The site&apos;s certificate is not trusted.</source>
        <translation>该网站的证书不受信任。</translation>
    </message>
    <message>
        <source>No secure connection to the site could be made.</source>
        <translation>无法与网站建立安全连接。</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message numerus="yes">
        <source>Scanning folder(s) for music files (found %n)</source>
        <translation>
            <numerusform>正在扫描文件夹中的音乐文件（已找到 %n 个）</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message numerus="yes">
        <source>Hidden %n file(s) with lyrics</source>
        <translation>
            <numerusform>已隐藏 %n 个有歌词的文件</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Show hidden files</source>
        <translation>显示已隐藏的文件</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Remove hidden files from the list</source>
        <translation>从列表中移除已隐藏的文件</translation>
    </message>
</context>
<context>
    <name>LyricsEditGuard</name>
    <message>
        <source>The lyrics of “%1” have been changed.</source>
        <comment>%1 is the title of a song</comment>
        <translation>《%1》的歌词已更改。</translation>
    </message>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>要保存更改吗？</translation>
    </message>
</context>
<context>
    <name>LyricsItem</name>
    <message>
        <source>This lyrics for:</source>
        <translation>歌词所属歌曲：</translation>
    </message>
    <message>
        <source>“%1” – “%2”</source>
        <comment>artist and title</comment>
        <translation>“%1” – 《%2》</translation>
    </message>
    <message>
        <source>These lyrics are very long; their beginning is shown.</source>
        <translation>歌词过长，仅显示开头部分。</translation>
    </message>
</context>
<context>
    <name>LyricsProvider</name>
    <message>
        <source>%1 redirects to something that is not a web page.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 重定向到的不是网页。</translation>
    </message>
    <message>
        <source>%1 redirects too often.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 的重定向次数过多。</translation>
    </message>
    <message>
        <source>%1 gave a page that holds no lyrics.</source>
        <translation>%1 返回的页面中没有歌词。</translation>
    </message>
</context>
<context>
    <name>LyricsSearch</name>
    <message>
        <source>The artist or title is too long to search for.</source>
        <translation>艺术家或标题过长，无法搜索。</translation>
    </message>
</context>
<context>
    <name>LyricsText</name>
    <message>
        <source>Lyrics</source>
        <translation>歌词</translation>
    </message>
</context>
<context>
    <name>LyricsToolbar</name>
    <message>
        <source>Edit lyrics (F2)</source>
        <translation>编辑歌词 (F2)</translation>
    </message>
    <message>
        <source>Save lyrics (Ctrl+S)</source>
        <translation>保存歌词 (Ctrl+S)</translation>
    </message>
    <message>
        <source>Cancel editing (Esc)</source>
        <translation>取消编辑 (Esc)</translation>
    </message>
    <message>
        <source>Force to search lyrics (Ctrl+R)</source>
        <translation>重新搜索歌词 (Ctrl+R)</translation>
    </message>
    <message>
        <source>Copy lyrics to clipboard</source>
        <translation>复制歌词到剪贴板</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>用 %1 搜索歌词</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>缩小文字</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>放大文字</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Add file</source>
        <translation>添加文件</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Hide file(s) with lyrics</source>
        <translation>隐藏有歌词的文件</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Remove with lyrics</source>
        <translation>移除有歌词的文件</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>清空列表</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>移除所选文件</translation>
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
        <translation>退出</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>将歌词导出为 TXT 文件</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Check for updates...</source>
        <translation>检查更新...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>帮助(&amp;H)</translation>
    </message>
</context>
<context>
    <name>MusixMatchProvider</name>
    <message>
        <source>%1 leads from one list of songs to the next.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 反复从一个歌曲列表跳转到另一个。</translation>
    </message>
    <message>
        <source>%1 gave a page that is too intricate to read.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 返回的页面过于复杂，无法读取。</translation>
    </message>
</context>
<context>
    <name>PlaybackSlider</name>
    <message>
        <source>Position in the song</source>
        <translation>播放位置</translation>
    </message>
</context>
<context>
    <name>Proxy</name>
    <message>
        <source>The proxy does not take the connection.</source>
        <translation>代理服务器不接受连接。</translation>
    </message>
    <message>
        <source>The proxy closed the connection.</source>
        <translation>代理服务器关闭了连接。</translation>
    </message>
    <message>
        <source>The proxy was not found.</source>
        <translation>未找到代理服务器。</translation>
    </message>
    <message>
        <source>The proxy did not answer in time.</source>
        <translation>代理服务器未在规定时间内响应。</translation>
    </message>
    <message>
        <source>The proxy refuses the user name or the password.</source>
        <translation>代理服务器拒绝了用户名或密码。</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>代理服务器无法使用。</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Host not found</source>
        <translation>未找到主机</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>连接被拒绝</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>连接超时</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>套接字操作超时</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>网络不可达</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>远程主机关闭了连接</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>全选(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>增加(&amp;U)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>减少(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>位置：</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>上级文件夹</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>列表视图</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>详细视图</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>文件名(&amp;N)：</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>文件类型：</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>文件夹：</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>选择(&amp;C)</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
找不到文件。
请确认文件名是否正确。</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
找不到文件夹。
请确认文件夹名是否正确。</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 文件</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>最近访问的位置</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>显示: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>显示隐藏文件(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新建文件夹(&amp;N)</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>确定要删除“%1”吗？</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1”有写保护。
仍要删除吗？</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>无法删除文件夹。</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>转到上级文件夹</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>创建新文件夹</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>切换到列表视图</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>切换到详细视图</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>侧边栏</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>位置和书签列表</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>修改日期</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
    <message>
        <source>Type</source>
        <comment>All other platforms</comment>
        <translation>类型</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;L)</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>关闭而不保存</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Host %1 not found</source>
        <translation>未找到主机 %1</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>连接被拒绝</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>连接已关闭</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Network unreachable</source>
        <translation>网络不可达</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>主机不可达</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>连接超时</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>连接被拒绝</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation>传输 %1 时出错 – 服务器的响应：%2</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>丢弃</translation>
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
        <translation>TTL 已过期</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>复制链接地址(&amp;L)</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>ReadFailure</name>
    <message>
        <source>this is not a regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>the file is damaged: its tags have no end</source>
        <translation>文件已损坏：找不到标签的结尾</translation>
    </message>
    <message>
        <source>the file is damaged: its tags do not fit in memory</source>
        <translation>文件已损坏：内存容纳不下其标签</translation>
    </message>
    <message>
        <source>the disk reported an error while the file was read</source>
        <translation>读取文件时磁盘报告错误</translation>
    </message>
    <message>
        <source>the file is damaged: reading its tags ended in a crash</source>
        <translation>文件已损坏：读取标签时发生崩溃</translation>
    </message>
    <message>
        <source>reading the tags of the file took too long</source>
        <translation>读取文件标签耗时过长</translation>
    </message>
    <message>
        <source>reading the tags of the file gave nonsense</source>
        <translation>从文件标签读出的数据毫无意义</translation>
    </message>
    <message>
        <source>the helper program that reads tags could not be started</source>
        <translation>无法启动读取标签的辅助程序</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>OpenGL settings</source>
        <translation>OpenGL 设置</translation>
    </message>
    <message>
        <source>Select the method of OpenGL usage:</source>
        <translation>选择 OpenGL 的使用方式：</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>自动检测</translation>
    </message>
    <message>
        <source>OpenGL ES 2.0</source>
        <translation>OpenGL ES 2.0</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>软件</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>桌面</translation>
    </message>
    <message>
        <source>Clear all settings</source>
        <translation>清除所有设置</translation>
    </message>
    <message>
        <source>Clear settings</source>
        <translation>清除设置</translation>
    </message>
    <message>
        <source>All settings will be removed and returned to default values. Are you sure?</source>
        <translation>所有设置都将被清除并恢复为默认值。确定要继续吗？</translation>
    </message>
    <message>
        <source>All settings were cleared. The program starts anew after OK.</source>
        <translation>所有设置已清除。点击“确定”后程序将重新启动。</translation>
    </message>
    <message>
        <source>The settings cannot be cleared: their file cannot be written.</source>
        <translation>无法清除设置：设置文件不可写入。</translation>
    </message>
</context>
<context>
    <name>SceneWidget</name>
    <message>
        <source>The Qt module %1 is missing (package %2).</source>
        <translation>缺少 Qt 模块 %1（软件包 %2）。</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>语言：</translation>
    </message>
    <message>
        <source>Restart is required to apply changes</source>
        <translation>重新启动后更改才会生效</translation>
    </message>
    <message>
        <source>Font size for lyrics:</source>
        <translation>歌词字号：</translation>
    </message>
    <message>
        <source>Search in browser with:</source>
        <translation>浏览器搜索引擎：</translation>
    </message>
    <message>
        <source>insert a blank line at the beginning of lyrics</source>
        <translation>在歌词开头插入空行</translation>
    </message>
    <message>
        <source>save files list on quit</source>
        <translation>退出时保存文件列表</translation>
    </message>
    <message>
        <source>export lyrics to a TXT file automatically</source>
        <translation>自动将歌词导出为 TXT 文件</translation>
    </message>
    <message>
        <source>look for new versions automatically</source>
        <translation>自动检查新版本</translation>
    </message>
    <message>
        <source>send usage events, with artists and titles</source>
        <translation>发送使用数据，包含艺术家和标题</translation>
    </message>
    <message>
        <source>Example...</source>
        <translation>示例...</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>显示使用数据示例</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Proxy:</source>
        <translation>代理：</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>地址：</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>端口：</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>身份验证</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>用户名：</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>Search order</source>
        <translation>搜索顺序</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Switched off by DO_NOT_TRACK</source>
        <translation>已因 DO_NOT_TRACK 停用</translation>
    </message>
    <message>
        <source>No proxy is used.</source>
        <translation>未使用代理。</translation>
    </message>
    <message>
        <source>No address: no proxy is used.</source>
        <translation>没有地址：未使用代理。</translation>
    </message>
    <message>
        <source>The proxy is being tested...</source>
        <translation>正在测试代理服务器...</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>代理服务器无法使用。</translation>
    </message>
    <message>
        <source>No error within %1 seconds.</source>
        <translation>%1 秒内未出现错误。</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>代理服务器可用。</translation>
    </message>
    <message>
        <source>Not tested yet.</source>
        <translation>尚未测试。</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>Warning!!! You have disabled all sources.</source>
        <translation>警告！所有来源均已停用。</translation>
    </message>
</context>
<context>
    <name>SongDetails</name>
    <message>
        <source>Artist:</source>
        <translation>艺术家：</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>艺术家</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>标题：</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
</context>
<context>
    <name>SongList</name>
    <message>
        <source>Songs</source>
        <translation>歌曲</translation>
    </message>
</context>
<context>
    <name>SongMenu</name>
    <message>
        <source>Force to search lyrics</source>
        <translation>重新搜索歌词</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>将歌词导出为 TXT 文件</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>移除所选文件</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>移除全部</translation>
    </message>
    <message>
        <source>Copy file&apos;s path to clipboard</source>
        <translation>复制文件路径到剪贴板</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>用 %1 搜索歌词</translation>
    </message>
</context>
<context>
    <name>SongState</name>
    <message>
        <source>cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>has lyrics</source>
        <translation>有歌词</translation>
    </message>
    <message>
        <source>no lyrics</source>
        <translation>无歌词</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>无法读取此文件。</translation>
    </message>
    <message>
        <source>no names</source>
        <translation>缺少信息</translation>
    </message>
    <message>
        <source>queued</source>
        <translation>排队中</translation>
    </message>
    <message>
        <source>searching...</source>
        <translation>正在搜索...</translation>
    </message>
    <message>
        <source>saving...</source>
        <translation>正在保存...</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>no lyrics found</source>
        <translation>未找到歌词</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>search failed</source>
        <translation>搜索失败</translation>
    </message>
    <message>
        <source>in queue to search...</source>
        <translation>等待搜索...</translation>
    </message>
    <message>
        <source>saving the lyrics...</source>
        <translation>正在保存歌词...</translation>
    </message>
    <message>
        <source>A search needs an artist and a title.</source>
        <translation>搜索需要艺术家和标题。</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>%1 is the reason</comment>
        <translation>未保存：%1</translation>
    </message>
</context>
<context>
    <name>SplitterHandle</name>
    <message>
        <source>Width of the list</source>
        <translation>列表宽度</translation>
    </message>
</context>
<context>
    <name>StateLine</name>
    <message>
        <source>search for lyrics</source>
        <translation>搜索歌词</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Progress of the searches</source>
        <translation>搜索进度</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n left...</source>
        <translation>
            <numerusform>正在搜索... 剩余 %n 首...</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings file is damaged. What could be read is used, but no copy could be made.</source>
        <translation>设置文件已损坏。能读取的内容仍会使用，但无法创建副本。</translation>
    </message>
    <message>
        <source>The settings file was damaged. What could be read is kept; the damaged file is now %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>设置文件已损坏。能读取的内容已保留；损坏的文件现位于：%1</translation>
    </message>
    <message>
        <source>The settings cannot be read or stored; changes last for this run only.</source>
        <translation>无法读取或保存设置；更改仅在本次运行期间有效。</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since their names are damaged or too long: %n</source>
        <translation>
            <numerusform>因文件名损坏或过长而未添加的文件：%n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The list is full. Files left out: %n</source>
        <translation>
            <numerusform>列表已满。未添加的文件：%n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>The last save was cut off. Songs that are again as they were before it: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>上次保存被中断。已恢复到保存前状态的歌曲：%1</translation>
    </message>
    <message>
        <source>Copies from before a save that was cut off: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>被中断的保存操作之前的副本：%1</translation>
    </message>
    <message>
        <source>A save was cut off, and these songs cannot be reached to undo it; it is tried again at each start: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>一次保存被中断，但以下歌曲无法访问，因而不能撤销；每次启动时都会重试：%1</translation>
    </message>
    <message numerus="yes">
        <source>Songs that could not be written: %n (%1)</source>
        <comment>%1 is the reason</comment>
        <translation>
            <numerusform>无法写入的歌曲：%n 首（%1）</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics could not be written to %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>无法将歌词写入 %1</translation>
    </message>
    <message>
        <source>There are no lyrics to export</source>
        <translation>没有可导出的歌词</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Whole copies of these songs: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>这些歌曲的完整副本：%1</translation>
    </message>
    <message>
        <source>A save was cut off. Songs that are still being restored: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>一次保存被中断。仍在恢复的歌曲：%1</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs could not be exported</source>
        <translation>
            <numerusform>无法导出 %n 首歌曲的歌词</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Lyrics exported to %n text files</source>
        <translation>
            <numerusform>已将歌词导出到 %n 个文本文件</numerusform>
        </translation>
    </message>
    <message>
        <source>Lyrics exported to one text file</source>
        <translation>已将歌词导出到 1 个文本文件</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since they are missing or of a kind that is not supported: %n</source>
        <translation>
            <numerusform>因不存在或类型不受支持而未添加的文件：%n 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>the file is no longer there</source>
        <translation>文件已不存在</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>文件为只读</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>无法打开文件</translation>
    </message>
    <message>
        <source>no audio was found in the file</source>
        <translation>文件中未找到音频</translation>
    </message>
    <message>
        <source>files of this format cannot hold lyrics</source>
        <translation>此格式的文件无法保存歌词</translation>
    </message>
    <message>
        <source>the file is damaged, or built in an unusual way</source>
        <translation>文件已损坏，或结构异常</translation>
    </message>
    <message>
        <source>there is not enough room on the disk</source>
        <translation>磁盘空间不足</translation>
    </message>
    <message>
        <source>the file would become too large</source>
        <translation>文件会变得过大</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>磁盘报告错误</translation>
    </message>
    <message>
        <source>other entries of its tags would be lost</source>
        <translation>标签中的其他条目会丢失</translation>
    </message>
    <message>
        <source>the audio would not stay as it is</source>
        <translation>音频数据会被改变</translation>
    </message>
    <message>
        <source>another program has changed the file</source>
        <translation>文件已被其他程序更改</translation>
    </message>
    <message>
        <source>the disk failed; the file will be restored at the next start</source>
        <translation>磁盘出现故障；文件将在下次启动时恢复</translation>
    </message>
    <message>
        <source>the file could not be saved</source>
        <translation>无法保存文件</translation>
    </message>
    <message>
        <source>an earlier save of the file was cut off and is not undone yet</source>
        <translation>此文件先前的保存被中断，尚未撤销</translation>
    </message>
</context>
<context>
    <name>UnsavedLyricsGuard</name>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>要保存更改吗？</translation>
    </message>
    <message>
        <source>The changed artist or title of one song is not in its file yet.</source>
        <translation>有 1 首歌曲的艺术家或标题更改尚未存入文件。</translation>
    </message>
    <message numerus="yes">
        <source>The changed artist or title of %n songs is not in their files yet.</source>
        <translation>
            <numerusform>有 %n 首歌曲的艺术家或标题更改尚未存入文件。</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics of one song are not in its file and stand in the list only.</source>
        <translation>有 1 首歌曲的歌词尚未存入文件，仅保留在列表中。</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs are not in their files and stand in the list only.</source>
        <translation>
            <numerusform>有 %n 首歌曲的歌词尚未存入文件，仅保留在列表中。</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” could not be saved: %2</source>
        <comment>%1 is the title of a song, %2 the reason</comment>
        <translation>无法保存“%1”：%2</translation>
    </message>
    <message>
        <source>it is still being written</source>
        <translation>仍在写入</translation>
    </message>
    <message>
        <source>The deleted lyrics of one song are still in its file.</source>
        <translation>有 1 首歌曲的已删除歌词仍在文件中。</translation>
    </message>
    <message numerus="yes">
        <source>The deleted lyrics of %n songs are still in their files.</source>
        <translation>
            <numerusform>有 %n 首歌曲的已删除歌词仍在文件中。</numerusform>
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
            <numerusform>... 以及另外 %n 首</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnsavedTexts</name>
    <message>
        <source>Artist: %1</source>
        <translation>艺术家：%1</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translation>标题：%1</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Download update</source>
        <comment>Action text</comment>
        <translation>下载更新</translation>
    </message>
    <message>
        <source>Cancel downloading</source>
        <comment>Action text</comment>
        <translation>取消下载</translation>
    </message>
    <message>
        <source>Exit and install update</source>
        <comment>Action text</comment>
        <translation>退出并安装更新</translation>
    </message>
    <message>
        <source>The server redirects to something that is not a web page.</source>
        <translation>服务器重定向到的不是网页。</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>服务器的重定向次数过多。</translation>
    </message>
    <message>
        <source>This build of the program knows no site to ask.</source>
        <translation>此构建版本未设定可查询的网站。</translation>
    </message>
    <message>
        <source>Can&apos;t check for update: %1</source>
        <translation>无法检查更新：%1</translation>
    </message>
    <message>
        <source>Failed to parse version information data.</source>
        <comment>Updater error message</comment>
        <translation>无法解析版本信息数据。</translation>
    </message>
    <message>
        <source>Can&apos;t get update: %1</source>
        <translation>无法获取更新：%1</translation>
    </message>
    <message>
        <source>The address of the setup file is not one that can be used.</source>
        <translation>安装文件的地址无法使用。</translation>
    </message>
    <message>
        <source>The setup file has another size than the server said.</source>
        <translation>安装文件的大小与服务器提供的信息不符。</translation>
    </message>
    <message>
        <source>The server sent something else than the setup file.</source>
        <translation>服务器发送的不是安装文件。</translation>
    </message>
    <message>
        <source>The setup file is larger than it should be.</source>
        <translation>安装文件大于应有的大小。</translation>
    </message>
    <message>
        <source>The server did not send the whole setup file.</source>
        <translation>服务器未发送完整的安装文件。</translation>
    </message>
    <message>
        <source>Can&apos;t open file: %1</source>
        <translation>无法打开文件：%1</translation>
    </message>
    <message>
        <source>Can&apos;t install update</source>
        <translation>无法安装更新</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message numerus="yes">
        <source>%n years</source>
        <translation>
            <numerusform>%n 年</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n months</source>
        <translation>
            <numerusform>%n 个月</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n 天</numerusform>
        </translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>Remind later</source>
        <translation>稍后提醒</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>安装更新</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>有可用更新！</translation>
    </message>
    <message>
        <source>A new version of &lt;b&gt;%appName&lt;/b&gt; is available!</source>
        <translation>&lt;b&gt;%appName&lt;/b&gt; 有新版本！</translation>
    </message>
    <message>
        <source>%appName &lt;b&gt;%newVersion&lt;/b&gt; is available - you have &lt;b&gt;%oldVersion&lt;/b&gt;. Would you like to download it now?</source>
        <translation>%appName &lt;b&gt;%newVersion&lt;/b&gt; 现已发布，当前版本为 &lt;b&gt;%oldVersion&lt;/b&gt;。现在下载吗？</translation>
    </message>
    <message>
        <source>Your version was released more than &lt;b&gt;%releasePeriod&lt;/b&gt; ago.</source>
        <translation>当前版本发布至今已超过 &lt;b&gt;%releasePeriod&lt;/b&gt;。</translation>
    </message>
    <message>
        <source>Since then, &lt;b&gt;%numUpdates&lt;/b&gt; versions have been released.</source>
        <translation>此后已发布 &lt;b&gt;%numUpdates&lt;/b&gt; 个版本。</translation>
    </message>
    <message>
        <source>Release notes:</source>
        <translation>发行说明：</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>发行说明</translation>
    </message>
</context>
<context>
    <name>UpdateFolder</name>
    <message>
        <source>The folder %1 cannot be used.</source>
        <translation>无法使用文件夹 %1。</translation>
    </message>
</context>
<context>
    <name>UpdateInfoDialog</name>
    <message>
        <source>Update</source>
        <comment>noun, title of dialog about &apos;checking for updates&apos;</comment>
        <translation>更新</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>正在检查更新...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>You have the latest version.</source>
        <translation>当前已是最新版本。</translation>
    </message>
    <message>
        <source>Failed to update</source>
        <translation>更新失败</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>UsageExample</name>
    <message>
        <source>Example of a usage event</source>
        <translation>使用数据示例</translation>
    </message>
    <message>
        <source>(random, made when you say yes)</source>
        <translation>（随机值，同意后生成）</translation>
    </message>
    <message>
        <source>This is sent whenever a search for a song begins; the song is made up here. The start and the end of the program, an update, clicks on the maker&apos;s pages and a window that cannot be drawn are reported in the same way, without names of songs.</source>
        <translation>每次开始搜索歌曲时都会发送此内容；这里的歌曲是虚构的。程序的启动与退出、更新、对开发者网页的点击以及无法绘制窗口的情况，也会以同样的方式报告，但不包含歌曲名称。</translation>
    </message>
</context>
<context>
    <name>WritesWait</name>
    <message>
        <source>It goes on by itself when this is done.</source>
        <translation>完成后会自动继续。</translation>
    </message>
    <message>
        <source>Changes are still being written into the songs.</source>
        <translation>仍在将更改写入歌曲。</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Songs and lyrics</source>
        <translation>歌曲和歌词</translation>
    </message>
    <message>
        <source>The window could not be built.</source>
        <translation>无法创建窗口。</translation>
    </message>
    <message>
        <source>The changes to one song were kept as a text file in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>1 首歌曲的更改已作为文本文件保留在 %1</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs were kept as text files in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>
            <numerusform>%n 首歌曲的更改已作为文本文件保留在 %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The changes to one song could be kept nowhere: copy them from the details now.</source>
        <translation>1 首歌曲的更改无处保留：请立即从右侧面板中复制。</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs could be kept nowhere: copy them from the details now.</source>
        <translation>
            <numerusform>%n 首歌曲的更改无处保留：请立即从右侧面板中复制。</numerusform>
        </translation>
    </message>
    <message>
        <source>Not all changes could be written into the songs.</source>
        <translation>并非所有更改都能写入歌曲。</translation>
    </message>
</context>
</TS>
