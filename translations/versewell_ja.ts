<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Versewell について</translation>
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
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Made by %1</source>
        <comment>%1 is the maker&apos;s name</comment>
        <translation>開発: %1</translation>
    </message>
</context>
<context>
    <name>AccessManager</name>
    <message>
        <source>Not a web address: %1</source>
        <translation>Web アドレスではありません: %1</translation>
    </message>
    <message>
        <source>%1 asked for a pause and can be asked again in %2 s.</source>
        <comment>%1 is a host name</comment>
        <translation>%1 から待機を求められました。%2 秒後に再度アクセスできます。</translation>
    </message>
    <message>
        <source>The proxy wants a log-in of a kind that is not known here.</source>
        <translation>プロキシが未対応のログイン方式を要求しています。</translation>
    </message>
    <message>
        <source>The proxy asks for a log-in for some pages only, which is not supported.</source>
        <translation>プロキシが一部のページでのみログインを求めていますが、これには対応していません。</translation>
    </message>
</context>
<context>
    <name>AddDialogs</name>
    <message>
        <source>Select file(s) to add</source>
        <translation>追加するファイルを選択</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>オーディオファイル</translation>
    </message>
    <message>
        <source>Select folder to add</source>
        <translation>追加するフォルダーを選択</translation>
    </message>
</context>
<context>
    <name>AudioPreview</name>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>No preview: the Qt module QtMultimedia is missing (package qml-module-qtmultimedia).</source>
        <translation>試聴できません: Qt モジュール QtMultimedia がありません (パッケージ qml-module-qtmultimedia)。</translation>
    </message>
    <message>
        <source>This file cannot be played here.</source>
        <translation>このファイルはここでは再生できません。</translation>
    </message>
</context>
<context>
    <name>ConsentBar</name>
    <message>
        <source>May usage events be sent to the maker? Those about searches name artist and title.</source>
        <translation>使用状況データを開発元に送信しますか？検索に関するデータにはアーティストとタイトルが含まれます。</translation>
    </message>
    <message>
        <source>What is sent?</source>
        <translation>送信される内容</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>使用状況データの例を表示</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>Yes, send usage events</source>
        <translation>はい、使用状況データを送信します</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>No, send nothing</source>
        <translation>いいえ、何も送信しません</translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message numerus="yes">
        <source>Selected %n files</source>
        <translation>
            <numerusform>%n 個のファイルを選択中</numerusform>
        </translation>
    </message>
    <message>
        <source>No file is selected</source>
        <translation>ファイルが選択されていません</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Exit and install</source>
        <translation>終了してインストール</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>%1 のアップデート</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>ダウンロードの進行状況</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>アップデートをダウンロード中...</translation>
    </message>
    <message>
        <source>Ready to install...</source>
        <translation>インストールの準備完了...</translation>
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
        <translation>インストール中...</translation>
    </message>
</context>
<context>
    <name>EditableField</name>
    <message>
        <source>&lt;empty&gt;</source>
        <translation>&lt;未入力&gt;</translation>
    </message>
    <message>
        <source>Enter to apply</source>
        <translation>Enter で適用</translation>
    </message>
    <message>
        <source>not saved yet (Ctrl+S saves)</source>
        <translation>未保存 (Ctrl+S で保存)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>All files here have lyrics and are hidden</source>
        <translation>すべてのファイルに歌詞があるため非表示になっています</translation>
    </message>
    <message>
        <source>Drop music files or folders here</source>
        <translation>音楽ファイルやフォルダーをここにドロップ</translation>
    </message>
    <message>
        <source>Add files...</source>
        <translation>ファイルを追加...</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>フォルダーを追加...</translation>
    </message>
</context>
<context>
    <name>ExitWidget</name>
    <message>
        <source>Do you want to quit anyway?</source>
        <translation>それでも終了しますか？</translation>
    </message>
    <message numerus="yes">
        <source>Search for %n songs is currently in progress.</source>
        <translation>
            <numerusform>%n 曲の歌詞を検索中です。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileItemDelegate</name>
    <message>
        <source>%1, %2, %3</source>
        <comment>title, artist and how the song stands</comment>
        <translation>%1、%2、%3</translation>
    </message>
    <message>
        <source>No title</source>
        <translation>タイトルなし</translation>
    </message>
    <message>
        <source>No artist</source>
        <translation>アーティストなし</translation>
    </message>
    <message>
        <source>Show in the file manager</source>
        <translation>ファイルマネージャーで表示</translation>
    </message>
</context>
<context>
    <name>LimitedReply</name>
    <message>
        <source>The server refuses to answer (HTTP %1).</source>
        <translation>サーバーに応答を拒否されました (HTTP %1)。</translation>
    </message>
    <message>
        <source>The server has no such page (HTTP %1).</source>
        <translation>サーバーに該当するページがありません (HTTP %1)。</translation>
    </message>
    <message>
        <source>The server is asked too often (HTTP %1).</source>
        <translation>サーバーへのアクセスが多すぎます (HTTP %1)。</translation>
    </message>
    <message>
        <source>The server is out of order (HTTP %1).</source>
        <translation>サーバーで障害が発生しています (HTTP %1)。</translation>
    </message>
    <message>
        <source>The server cannot answer the request (HTTP %1).</source>
        <translation>サーバーが要求に応答できません (HTTP %1)。</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>要求はキャンセルされました。</translation>
    </message>
    <message>
        <source>The server has been silent for %1 seconds.</source>
        <translation>サーバーから %1 秒間応答がありません。</translation>
    </message>
    <message>
        <source>The server took longer than %1 seconds.</source>
        <translation>サーバーの応答が %1 秒以内に完了しませんでした。</translation>
    </message>
    <message>
        <source>The answer is packed in a way that is not known here.</source>
        <translation>応答が未対応の方式で圧縮されています。</translation>
    </message>
    <message>
        <source>The answer arrived damaged.</source>
        <translation>受信した応答が壊れています。</translation>
    </message>
    <message>
        <source>The connection broke before the whole answer had arrived.</source>
        <translation>応答をすべて受信する前に接続が切れました。</translation>
    </message>
    <message>
        <source>The answer is larger than %1.</source>
        <translation>応答が %1 を超えています。</translation>
    </message>
    <message>
        <source>The site&apos;s certificate is not trusted.</source>
        <translation>サイトの証明書は信頼されていません。</translation>
    </message>
    <message>
        <source>No secure connection to the site could be made.</source>
        <translation>サイトへの安全な接続を確立できませんでした。</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message numerus="yes">
        <source>Scanning folder(s) for music files (found %n)</source>
        <translation>
            <numerusform>フォルダー内の音楽ファイルをスキャン中 (%n 個見つかりました)</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message numerus="yes">
        <source>Hidden %n file(s) with lyrics</source>
        <translation>
            <numerusform>歌詞のある %n 個のファイルを非表示</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Show hidden files</source>
        <translation>非表示のファイルを表示</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>除去</translation>
    </message>
    <message>
        <source>Remove hidden files from the list</source>
        <translation>非表示のファイルをリストから除去</translation>
    </message>
</context>
<context>
    <name>LyricsEditGuard</name>
    <message>
        <source>The lyrics of “%1” have been changed.</source>
        <comment>%1 is the title of a song</comment>
        <translation>「%1」の歌詞が変更されています。</translation>
    </message>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>変更を保存しますか？</translation>
    </message>
</context>
<context>
    <name>LyricsItem</name>
    <message>
        <source>This lyrics for:</source>
        <translation>この歌詞の曲:</translation>
    </message>
    <message>
        <source>“%1” – “%2”</source>
        <comment>artist and title</comment>
        <translation>「%1」–「%2」</translation>
    </message>
    <message>
        <source>These lyrics are very long; their beginning is shown.</source>
        <translation>この歌詞は非常に長いため、冒頭のみ表示しています。</translation>
    </message>
</context>
<context>
    <name>LyricsProvider</name>
    <message>
        <source>%1 redirects to something that is not a web page.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 のリダイレクト先が Web ページではありません。</translation>
    </message>
    <message>
        <source>%1 redirects too often.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 のリダイレクトが多すぎます。</translation>
    </message>
    <message>
        <source>%1 gave a page that holds no lyrics.</source>
        <translation>%1 から返されたページに歌詞がありません。</translation>
    </message>
</context>
<context>
    <name>LyricsSearch</name>
    <message>
        <source>The artist or title is too long to search for.</source>
        <translation>アーティストまたはタイトルが長すぎるため検索できません。</translation>
    </message>
</context>
<context>
    <name>LyricsText</name>
    <message>
        <source>Lyrics</source>
        <translation>歌詞</translation>
    </message>
</context>
<context>
    <name>LyricsToolbar</name>
    <message>
        <source>Edit lyrics (F2)</source>
        <translation>歌詞を編集 (F2)</translation>
    </message>
    <message>
        <source>Save lyrics (Ctrl+S)</source>
        <translation>歌詞を保存 (Ctrl+S)</translation>
    </message>
    <message>
        <source>Cancel editing (Esc)</source>
        <translation>編集をキャンセル (Esc)</translation>
    </message>
    <message>
        <source>Force to search lyrics (Ctrl+R)</source>
        <translation>歌詞を検索し直す (Ctrl+R)</translation>
    </message>
    <message>
        <source>Copy lyrics to clipboard</source>
        <translation>歌詞をクリップボードにコピー</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>%1 で歌詞を検索</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>文字を小さく</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>文字を大きく</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Add file</source>
        <translation>ファイルを追加</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>フォルダーを追加</translation>
    </message>
    <message>
        <source>Hide file(s) with lyrics</source>
        <translation>歌詞のあるファイルを非表示</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Remove with lyrics</source>
        <translation>歌詞のあるファイルを除去</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>リストをクリア</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>選択したファイルを除去</translation>
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
        <translation>終了</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Versewell について</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Web サイト</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>歌詞を TXT ファイルにエクスポート</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Check for updates...</source>
        <translation>アップデートを確認...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
</context>
<context>
    <name>MusixMatchProvider</name>
    <message>
        <source>%1 leads from one list of songs to the next.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 で曲の一覧ページへの移動が繰り返されています。</translation>
    </message>
    <message>
        <source>%1 gave a page that is too intricate to read.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 から返されたページは複雑すぎて読み取れません。</translation>
    </message>
</context>
<context>
    <name>PlaybackSlider</name>
    <message>
        <source>Position in the song</source>
        <translation>再生位置</translation>
    </message>
</context>
<context>
    <name>Proxy</name>
    <message>
        <source>The proxy does not take the connection.</source>
        <translation>プロキシが接続を受け付けません。</translation>
    </message>
    <message>
        <source>The proxy closed the connection.</source>
        <translation>プロキシが接続を閉じました。</translation>
    </message>
    <message>
        <source>The proxy was not found.</source>
        <translation>プロキシが見つかりません。</translation>
    </message>
    <message>
        <source>The proxy did not answer in time.</source>
        <translation>プロキシが時間内に応答しませんでした。</translation>
    </message>
    <message>
        <source>The proxy refuses the user name or the password.</source>
        <translation>プロキシがユーザー名またはパスワードを拒否しました。</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>プロキシが機能していません。</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Host not found</source>
        <translation>ホストが見つかりません</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>接続が拒否されました</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>接続がタイムアウトしました</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>ソケット操作がタイムアウトしました</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>ネットワークに到達できません</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>リモートホストが接続を閉じました</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>すべて選択(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>増やす(&amp;U)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>減らす(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>場所:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>親フォルダー</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新しいフォルダーを作成</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>リスト表示</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>詳細表示</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>ファイル名(&amp;N):</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>ファイルの種類:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>フォルダー:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>選択(&amp;C)</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
ファイルが見つかりません。
ファイル名が正しいか確認してください。</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
フォルダーが見つかりません。
フォルダー名が正しいか確認してください。</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 ファイル</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>最近使用した場所</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>表示: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>名前を変更(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>隠しファイルを表示(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新しいフォルダー(&amp;N)</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新しいフォルダー</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>取り除く</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>「%1」は書き込み禁止です。
それでも削除しますか？</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>フォルダーを削除できませんでした。</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>前に戻る</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>次に進む</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>親フォルダーに移動</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>新しいフォルダーを作る</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>リスト表示に切り替え</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>詳細表示に切り替え</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>サイドバー</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>場所とブックマークの一覧</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>更新日時</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Type</source>
        <comment>All other platforms</comment>
        <translation>種類</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>OK(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>保存せずに閉じる</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Host %1 not found</source>
        <translation>ホスト %1 が見つかりません</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>接続が拒否されました</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>接続が閉じられました</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Network unreachable</source>
        <translation>ネットワークに到達できません</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>ホストに到達できません</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>接続がタイムアウトしました</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>接続が拒否されました</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation>%1 の転送中にエラーが発生しました – サーバーの応答: %2</translation>
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
        <translation>保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
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
        <translation>TTL の期限が切れました</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>リンクのアドレスをコピー(&amp;L)</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>ReadFailure</name>
    <message>
        <source>this is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>the file is damaged: its tags have no end</source>
        <translation>ファイルが壊れています: タグの終わりがありません</translation>
    </message>
    <message>
        <source>the file is damaged: its tags do not fit in memory</source>
        <translation>ファイルが壊れています: タグがメモリーに収まりません</translation>
    </message>
    <message>
        <source>the disk reported an error while the file was read</source>
        <translation>ファイルの読み込み中にディスクエラーが発生しました</translation>
    </message>
    <message>
        <source>the file is damaged: reading its tags ended in a crash</source>
        <translation>ファイルが壊れています: タグの読み込み中にクラッシュしました</translation>
    </message>
    <message>
        <source>reading the tags of the file took too long</source>
        <translation>ファイルのタグの読み込みに時間がかかりすぎました</translation>
    </message>
    <message>
        <source>reading the tags of the file gave nonsense</source>
        <translation>ファイルのタグから意味をなさないデータが読み込まれました</translation>
    </message>
    <message>
        <source>the helper program that reads tags could not be started</source>
        <translation>タグを読み込む補助プログラムを起動できませんでした</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>OpenGL settings</source>
        <translation>OpenGL の設定</translation>
    </message>
    <message>
        <source>Select the method of OpenGL usage:</source>
        <translation>OpenGL の使用方法を選択:</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>自動検出</translation>
    </message>
    <message>
        <source>OpenGL ES 2.0</source>
        <translation>OpenGL ES 2.0</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>ソフトウェア</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>デスクトップ</translation>
    </message>
    <message>
        <source>Clear all settings</source>
        <translation>すべての設定を消去</translation>
    </message>
    <message>
        <source>Clear settings</source>
        <translation>設定の消去</translation>
    </message>
    <message>
        <source>All settings will be removed and returned to default values. Are you sure?</source>
        <translation>すべての設定が消去され、既定値に戻ります。よろしいですか？</translation>
    </message>
    <message>
        <source>All settings were cleared. The program starts anew after OK.</source>
        <translation>すべての設定を消去しました。OK を押すとプログラムが再起動します。</translation>
    </message>
    <message>
        <source>The settings cannot be cleared: their file cannot be written.</source>
        <translation>設定を消去できません: 設定ファイルに書き込めません。</translation>
    </message>
</context>
<context>
    <name>SceneWidget</name>
    <message>
        <source>The Qt module %1 is missing (package %2).</source>
        <translation>Qt モジュール %1 がありません (パッケージ %2)。</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>言語:</translation>
    </message>
    <message>
        <source>Restart is required to apply changes</source>
        <translation>変更を適用するには再起動が必要です</translation>
    </message>
    <message>
        <source>Font size for lyrics:</source>
        <translation>歌詞の文字サイズ:</translation>
    </message>
    <message>
        <source>Search in browser with:</source>
        <translation>ブラウザーで使う検索エンジン:</translation>
    </message>
    <message>
        <source>insert a blank line at the beginning of lyrics</source>
        <translation>歌詞の先頭に空行を挿入する</translation>
    </message>
    <message>
        <source>save files list on quit</source>
        <translation>終了時にファイルリストを保存する</translation>
    </message>
    <message>
        <source>export lyrics to a TXT file automatically</source>
        <translation>歌詞を自動的に TXT ファイルにエクスポートする</translation>
    </message>
    <message>
        <source>look for new versions automatically</source>
        <translation>新しいバージョンを自動的に確認する</translation>
    </message>
    <message>
        <source>send usage events, with artists and titles</source>
        <translation>使用状況データをアーティストとタイトルを含めて送信する</translation>
    </message>
    <message>
        <source>Example...</source>
        <translation>例...</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>使用状況データの例を表示</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Proxy:</source>
        <translation>プロキシ:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>アドレス:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>ポート:</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>認証</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>ユーザー名:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード:</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>サイト</translation>
    </message>
    <message>
        <source>Search order</source>
        <translation>検索順序</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効にする</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Switched off by DO_NOT_TRACK</source>
        <translation>DO_NOT_TRACK により無効</translation>
    </message>
    <message>
        <source>No proxy is used.</source>
        <translation>プロキシは使用されません。</translation>
    </message>
    <message>
        <source>No address: no proxy is used.</source>
        <translation>アドレスが未入力のため、プロキシは使用されません。</translation>
    </message>
    <message>
        <source>The proxy is being tested...</source>
        <translation>プロキシをテスト中...</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>プロキシが機能していません。</translation>
    </message>
    <message>
        <source>No error within %1 seconds.</source>
        <translation>%1 秒以内にエラーは発生しませんでした。</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>プロキシは正常に機能しています。</translation>
    </message>
    <message>
        <source>Not tested yet.</source>
        <translation>まだテストされていません。</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>無効にする</translation>
    </message>
    <message>
        <source>Warning!!! You have disabled all sources.</source>
        <translation>警告: すべての検索元が無効になっています。</translation>
    </message>
</context>
<context>
    <name>SongDetails</name>
    <message>
        <source>Artist:</source>
        <translation>アーティスト:</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>アーティスト</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>タイトル:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
</context>
<context>
    <name>SongList</name>
    <message>
        <source>Songs</source>
        <translation>曲</translation>
    </message>
</context>
<context>
    <name>SongMenu</name>
    <message>
        <source>Force to search lyrics</source>
        <translation>歌詞を検索し直す</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>歌詞を TXT ファイルにエクスポート</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>選択したファイルを除去</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>すべて除去</translation>
    </message>
    <message>
        <source>Copy file&apos;s path to clipboard</source>
        <translation>ファイルのパスをクリップボードにコピー</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>%1 で歌詞を検索</translation>
    </message>
</context>
<context>
    <name>SongState</name>
    <message>
        <source>cannot be read</source>
        <translation>読み込み不可</translation>
    </message>
    <message>
        <source>has lyrics</source>
        <translation>歌詞あり</translation>
    </message>
    <message>
        <source>no lyrics</source>
        <translation>歌詞なし</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>このファイルは読み込めません。</translation>
    </message>
    <message>
        <source>no names</source>
        <translation>曲情報なし</translation>
    </message>
    <message>
        <source>queued</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>searching...</source>
        <translation>検索中...</translation>
    </message>
    <message>
        <source>saving...</source>
        <translation>保存中...</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>no lyrics found</source>
        <translation>歌詞が見つかりません</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>search failed</source>
        <translation>検索失敗</translation>
    </message>
    <message>
        <source>in queue to search...</source>
        <translation>検索待ち...</translation>
    </message>
    <message>
        <source>saving the lyrics...</source>
        <translation>歌詞を保存中...</translation>
    </message>
    <message>
        <source>A search needs an artist and a title.</source>
        <translation>検索にはアーティストとタイトルが必要です。</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>%1 is the reason</comment>
        <translation>未保存: %1</translation>
    </message>
</context>
<context>
    <name>SplitterHandle</name>
    <message>
        <source>Width of the list</source>
        <translation>リストの幅</translation>
    </message>
</context>
<context>
    <name>StateLine</name>
    <message>
        <source>search for lyrics</source>
        <translation>歌詞を検索</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Progress of the searches</source>
        <translation>検索の進行状況</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n left...</source>
        <translation>
            <numerusform>検索中... 残り %n 曲...</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings file is damaged. What could be read is used, but no copy could be made.</source>
        <translation>設定ファイルが壊れています。読み込めた内容を使用しますが、コピーを作成できませんでした。</translation>
    </message>
    <message>
        <source>The settings file was damaged. What could be read is kept; the damaged file is now %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>設定ファイルが壊れていました。読み込めた内容は引き継がれました。壊れたファイルの保存先: %1</translation>
    </message>
    <message>
        <source>The settings cannot be read or stored; changes last for this run only.</source>
        <translation>設定の読み込みまたは保存ができません。変更はプログラムを終了するまで有効です。</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since their names are damaged or too long: %n</source>
        <translation>
            <numerusform>名前が壊れているか長すぎるため追加されなかったファイル: %n 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The list is full. Files left out: %n</source>
        <translation>
            <numerusform>リストがいっぱいです。追加されなかったファイル: %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>The last save was cut off. Songs that are again as they were before it: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>前回の保存が中断されました。保存前の状態に戻した曲: %1</translation>
    </message>
    <message>
        <source>Copies from before a save that was cut off: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>中断された保存の前のコピー: %1</translation>
    </message>
    <message>
        <source>A save was cut off, and these songs cannot be reached to undo it; it is tried again at each start: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>保存が中断されましたが、次の曲にアクセスできないため元に戻せません。起動のたびに再試行します: %1</translation>
    </message>
    <message numerus="yes">
        <source>Songs that could not be written: %n (%1)</source>
        <comment>%1 is the reason</comment>
        <translation>
            <numerusform>書き込めなかった曲: %n 曲 (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics could not be written to %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>歌詞を %1 に書き込めませんでした</translation>
    </message>
    <message>
        <source>There are no lyrics to export</source>
        <translation>エクスポートする歌詞がありません</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Whole copies of these songs: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>これらの曲の完全なコピー: %1</translation>
    </message>
    <message>
        <source>A save was cut off. Songs that are still being restored: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>保存が中断されました。復元中の曲: %1</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs could not be exported</source>
        <translation>
            <numerusform>%n 曲の歌詞をエクスポートできませんでした</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Lyrics exported to %n text files</source>
        <translation>
            <numerusform>歌詞を %n 個のテキストファイルにエクスポートしました</numerusform>
        </translation>
    </message>
    <message>
        <source>Lyrics exported to one text file</source>
        <translation>歌詞を 1 個のテキストファイルにエクスポートしました</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since they are missing or of a kind that is not supported: %n</source>
        <translation>
            <numerusform>見つからないか対応していない種類のため追加されなかったファイル: %n 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>the file is no longer there</source>
        <translation>ファイルがなくなっています</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>ファイルが読み取り専用です</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>ファイルを開けません</translation>
    </message>
    <message>
        <source>no audio was found in the file</source>
        <translation>ファイルに音声が見つかりません</translation>
    </message>
    <message>
        <source>files of this format cannot hold lyrics</source>
        <translation>この形式のファイルには歌詞を保存できません</translation>
    </message>
    <message>
        <source>the file is damaged, or built in an unusual way</source>
        <translation>ファイルが壊れているか、特殊な構造になっています</translation>
    </message>
    <message>
        <source>there is not enough room on the disk</source>
        <translation>ディスクの空き容量が足りません</translation>
    </message>
    <message>
        <source>the file would become too large</source>
        <translation>ファイルが大きくなりすぎます</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>ディスクエラーが発生しています</translation>
    </message>
    <message>
        <source>other entries of its tags would be lost</source>
        <translation>タグのほかの項目が失われます</translation>
    </message>
    <message>
        <source>the audio would not stay as it is</source>
        <translation>音声データが変わってしまいます</translation>
    </message>
    <message>
        <source>another program has changed the file</source>
        <translation>ほかのプログラムがファイルを変更しました</translation>
    </message>
    <message>
        <source>the disk failed; the file will be restored at the next start</source>
        <translation>ディスクの障害が発生しました。ファイルは次回起動時に復元されます</translation>
    </message>
    <message>
        <source>the file could not be saved</source>
        <translation>ファイルを保存できませんでした</translation>
    </message>
    <message>
        <source>an earlier save of the file was cut off and is not undone yet</source>
        <translation>このファイルの以前の保存が中断され、まだ元に戻されていません</translation>
    </message>
</context>
<context>
    <name>UnsavedLyricsGuard</name>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>変更を保存しますか？</translation>
    </message>
    <message>
        <source>The changed artist or title of one song is not in its file yet.</source>
        <translation>1 曲で変更したアーティストまたはタイトルは、まだファイルに保存されていません。</translation>
    </message>
    <message numerus="yes">
        <source>The changed artist or title of %n songs is not in their files yet.</source>
        <translation>
            <numerusform>%n 曲で変更したアーティストまたはタイトルは、まだファイルに保存されていません。</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics of one song are not in its file and stand in the list only.</source>
        <translation>1 曲の歌詞はファイルに保存されておらず、リストにしかありません。</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs are not in their files and stand in the list only.</source>
        <translation>
            <numerusform>%n 曲の歌詞はファイルに保存されておらず、リストにしかありません。</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” could not be saved: %2</source>
        <comment>%1 is the title of a song, %2 the reason</comment>
        <translation>「%1」を保存できませんでした: %2</translation>
    </message>
    <message>
        <source>it is still being written</source>
        <translation>まだ書き込み中です</translation>
    </message>
    <message>
        <source>The deleted lyrics of one song are still in its file.</source>
        <translation>1 曲の削除した歌詞は、まだファイルに残っています。</translation>
    </message>
    <message numerus="yes">
        <source>The deleted lyrics of %n songs are still in their files.</source>
        <translation>
            <numerusform>%n 曲の削除した歌詞は、まだファイルに残っています。</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>%1 is the title of a song</comment>
        <translation>「%1」</translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <comment>other songs</comment>
        <translation>
            <numerusform>... ほか %n 曲</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnsavedTexts</name>
    <message>
        <source>Artist: %1</source>
        <translation>アーティスト: %1</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translation>タイトル: %1</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Download update</source>
        <comment>Action text</comment>
        <translation>アップデートをダウンロード</translation>
    </message>
    <message>
        <source>Cancel downloading</source>
        <comment>Action text</comment>
        <translation>ダウンロードをキャンセル</translation>
    </message>
    <message>
        <source>Exit and install update</source>
        <comment>Action text</comment>
        <translation>終了してアップデートをインストール</translation>
    </message>
    <message>
        <source>The server redirects to something that is not a web page.</source>
        <translation>サーバーのリダイレクト先が Web ページではありません。</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>サーバーのリダイレクトが多すぎます。</translation>
    </message>
    <message>
        <source>This build of the program knows no site to ask.</source>
        <translation>このビルドには問い合わせ先のサイトが設定されていません。</translation>
    </message>
    <message>
        <source>Can&apos;t check for update: %1</source>
        <translation>アップデートを確認できません: %1</translation>
    </message>
    <message>
        <source>Failed to parse version information data.</source>
        <comment>Updater error message</comment>
        <translation>バージョン情報のデータを解析できませんでした。</translation>
    </message>
    <message>
        <source>Can&apos;t get update: %1</source>
        <translation>アップデートを取得できません: %1</translation>
    </message>
    <message>
        <source>The address of the setup file is not one that can be used.</source>
        <translation>セットアップファイルのアドレスは使用できません。</translation>
    </message>
    <message>
        <source>The setup file has another size than the server said.</source>
        <translation>セットアップファイルのサイズがサーバーの示した値と異なります。</translation>
    </message>
    <message>
        <source>The server sent something else than the setup file.</source>
        <translation>サーバーから送られたファイルはセットアップファイルではありません。</translation>
    </message>
    <message>
        <source>The setup file is larger than it should be.</source>
        <translation>セットアップファイルが本来のサイズより大きくなっています。</translation>
    </message>
    <message>
        <source>The server did not send the whole setup file.</source>
        <translation>サーバーからセットアップファイル全体が送られませんでした。</translation>
    </message>
    <message>
        <source>Can&apos;t open file: %1</source>
        <translation>ファイルを開けません: %1</translation>
    </message>
    <message>
        <source>Can&apos;t install update</source>
        <translation>アップデートをインストールできません</translation>
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
            <numerusform>%n か月</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n 日</numerusform>
        </translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>Remind later</source>
        <translation>後で通知</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>アップデートをインストール</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>アップデートがあります！</translation>
    </message>
    <message>
        <source>A new version of &lt;b&gt;%appName&lt;/b&gt; is available!</source>
        <translation>&lt;b&gt;%appName&lt;/b&gt; の新しいバージョンがあります！</translation>
    </message>
    <message>
        <source>%appName &lt;b&gt;%newVersion&lt;/b&gt; is available - you have &lt;b&gt;%oldVersion&lt;/b&gt;. Would you like to download it now?</source>
        <translation>%appName &lt;b&gt;%newVersion&lt;/b&gt; が公開されました (現在は &lt;b&gt;%oldVersion&lt;/b&gt;)。今すぐダウンロードしますか？</translation>
    </message>
    <message>
        <source>Your version was released more than &lt;b&gt;%releasePeriod&lt;/b&gt; ago.</source>
        <translation>お使いのバージョンは公開から &lt;b&gt;%releasePeriod&lt;/b&gt; 以上経過しています。</translation>
    </message>
    <message>
        <source>Since then, &lt;b&gt;%numUpdates&lt;/b&gt; versions have been released.</source>
        <translation>それ以降、&lt;b&gt;%numUpdates&lt;/b&gt; 個のバージョンが公開されています。</translation>
    </message>
    <message>
        <source>Release notes:</source>
        <translation>リリースノート:</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>リリースノート</translation>
    </message>
</context>
<context>
    <name>UpdateFolder</name>
    <message>
        <source>The folder %1 cannot be used.</source>
        <translation>フォルダー %1 は使用できません。</translation>
    </message>
</context>
<context>
    <name>UpdateInfoDialog</name>
    <message>
        <source>Update</source>
        <comment>noun, title of dialog about &apos;checking for updates&apos;</comment>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>アップデートを確認中...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>You have the latest version.</source>
        <translation>最新のバージョンを使用しています。</translation>
    </message>
    <message>
        <source>Failed to update</source>
        <translation>アップデートに失敗しました</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>UsageExample</name>
    <message>
        <source>Example of a usage event</source>
        <translation>使用状況データの例</translation>
    </message>
    <message>
        <source>(random, made when you say yes)</source>
        <translation>(ランダムな値、同意時に生成)</translation>
    </message>
    <message>
        <source>This is sent whenever a search for a song begins; the song is made up here. The start and the end of the program, an update, clicks on the maker&apos;s pages and a window that cannot be drawn are reported in the same way, without names of songs.</source>
        <translation>これは曲の検索が始まるたびに送信されます。ここに示した曲は架空のものです。プログラムの起動と終了、アップデート、開発元のページへのクリック、ウィンドウを描画できないことも、曲名を含めずに同じ形で報告されます。</translation>
    </message>
</context>
<context>
    <name>WritesWait</name>
    <message>
        <source>It goes on by itself when this is done.</source>
        <translation>終わると自動的に続行します。</translation>
    </message>
    <message>
        <source>Changes are still being written into the songs.</source>
        <translation>変更をまだ曲に書き込んでいます。</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Songs and lyrics</source>
        <translation>曲と歌詞</translation>
    </message>
    <message>
        <source>The window could not be built.</source>
        <translation>ウィンドウを作成できませんでした。</translation>
    </message>
    <message>
        <source>The changes to one song were kept as a text file in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>1 曲の変更をテキストファイルとして %1 に保管しました</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs were kept as text files in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>
            <numerusform>%n 曲の変更をテキストファイルとして %1 に保管しました</numerusform>
        </translation>
    </message>
    <message>
        <source>The changes to one song could be kept nowhere: copy them from the details now.</source>
        <translation>1 曲の変更をどこにも保管できませんでした。今すぐ右側のパネルからコピーしてください。</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs could be kept nowhere: copy them from the details now.</source>
        <translation>
            <numerusform>%n 曲の変更をどこにも保管できませんでした。今すぐ右側のパネルからコピーしてください。</numerusform>
        </translation>
    </message>
    <message>
        <source>Not all changes could be written into the songs.</source>
        <translation>一部の変更を曲に書き込めませんでした。</translation>
    </message>
</context>
</TS>
