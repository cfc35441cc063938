<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
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
        <translation>Sürüm %1</translation>
    </message>
    <message>
        <source>Made by %1</source>
        <comment>%1 is the maker&apos;s name</comment>
        <translation>Geliştiren: %1</translation>
    </message>
</context>
<context>
    <name>AccessManager</name>
    <message>
        <source>Not a web address: %1</source>
        <translation>Web adresi değil: %1</translation>
    </message>
    <message>
        <source>%1 asked for a pause and can be asked again in %2 s.</source>
        <comment>%1 is a host name</comment>
        <translation>%1 ara verilmesini istedi; %2 sn sonra yeniden denenebilir.</translation>
    </message>
    <message>
        <source>The proxy wants a log-in of a kind that is not known here.</source>
        <translation>Vekil sunucu, desteklenmeyen bir oturum açma yöntemi istiyor.</translation>
    </message>
    <message>
        <source>The proxy asks for a log-in for some pages only, which is not supported.</source>
        <translation>Vekil sunucu yalnızca bazı sayfalar için oturum açma istiyor; bu desteklenmiyor.</translation>
    </message>
</context>
<context>
    <name>AddDialogs</name>
    <message>
        <source>Select file(s) to add</source>
        <translation>Eklenecek dosyaları seçin</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Ses dosyaları</translation>
    </message>
    <message>
        <source>Select folder to add</source>
        <translation>Eklenecek klasörü seçin</translation>
    </message>
</context>
<context>
    <name>AudioPreview</name>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Çal</translation>
    </message>
    <message>
        <source>No preview: the Qt module QtMultimedia is missing (package qml-module-qtmultimedia).</source>
        <translation>Önizleme yok: QtMultimedia adlı Qt modülü eksik (qml-module-qtmultimedia paketi).</translation>
    </message>
    <message>
        <source>This file cannot be played here.</source>
        <translation>Bu dosya burada çalınamıyor.</translation>
    </message>
</context>
<context>
    <name>ConsentBar</name>
    <message>
        <source>May usage events be sent to the maker? Those about searches name artist and title.</source>
        <translation>Kullanım verileri geliştiriciye gönderilsin mi? Aramalarla ilgili verilerde sanatçı ve başlık da yer alır.</translation>
    </message>
    <message>
        <source>What is sent?</source>
        <translation>Neler gönderiliyor?</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Kullanım verisi örneğini göster</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>Yes, send usage events</source>
        <translation>Evet, kullanım verilerini gönder</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>No, send nothing</source>
        <translation>Hayır, hiçbir şey gönderme</translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message numerus="yes">
        <source>Selected %n files</source>
        <translation>
            <numerusform>%n dosya seçili</numerusform>
        </translation>
    </message>
    <message>
        <source>No file is selected</source>
        <translation>Seçili dosya yok</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Exit and install</source>
        <translation>Çık ve Kur</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>%1 Güncelleniyor</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>İndirmenin ilerlemesi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Güncelleme indiriliyor...</translation>
    </message>
    <message>
        <source>Ready to install...</source>
        <translation>Kurulmaya hazır...</translation>
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
        <translation>Kuruluyor...</translation>
    </message>
</context>
<context>
    <name>EditableField</name>
    <message>
        <source>&lt;empty&gt;</source>
        <translation>&lt;boş&gt;</translation>
    </message>
    <message>
        <source>Enter to apply</source>
        <translation>Uygulamak için Enter</translation>
    </message>
    <message>
        <source>not saved yet (Ctrl+S saves)</source>
        <translation>henüz kaydedilmedi (Ctrl+S kaydeder)</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>All files here have lyrics and are hidden</source>
        <translation>Buradaki tüm dosyaların sözleri var; dosyalar gizlendi</translation>
    </message>
    <message>
        <source>Drop music files or folders here</source>
        <translation>Müzik dosyalarını ya da klasörleri buraya bırakın</translation>
    </message>
    <message>
        <source>Add files...</source>
        <translation>Dosya Ekle...</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>Klasör Ekle...</translation>
    </message>
</context>
<context>
    <name>ExitWidget</name>
    <message>
        <source>Do you want to quit anyway?</source>
        <translation>Yine de çıkmak istiyor musunuz?</translation>
    </message>
    <message numerus="yes">
        <source>Search for %n songs is currently in progress.</source>
        <translation>
            <numerusform>%n şarkı için arama sürüyor.</numerusform>
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
        <translation>Başlık yok</translation>
    </message>
    <message>
        <source>No artist</source>
        <translation>Sanatçı yok</translation>
    </message>
    <message>
        <source>Show in the file manager</source>
        <translation>Dosya yöneticisinde göster</translation>
    </message>
</context>
<context>
    <name>LimitedReply</name>
    <message>
        <source>The server refuses to answer (HTTP %1).</source>
        <translation>Sunucu yanıt vermeyi reddediyor (HTTP %1).</translation>
    </message>
    <message>
        <source>The server has no such page (HTTP %1).</source>
        <translation>Sunucuda böyle bir sayfa yok (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is asked too often (HTTP %1).</source>
        <translation>Sunucuya çok sık istek gönderiliyor (HTTP %1).</translation>
    </message>
    <message>
        <source>The server is out of order (HTTP %1).</source>
        <translation>Sunucu şu anda çalışmıyor (HTTP %1).</translation>
    </message>
    <message>
        <source>The server cannot answer the request (HTTP %1).</source>
        <translation>Sunucu isteği yanıtlayamıyor (HTTP %1).</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>İstek iptal edildi.</translation>
    </message>
    <message>
        <source>The server has been silent for %1 seconds.</source>
        <translation>Sunucudan %1 saniyedir yanıt gelmiyor.</translation>
    </message>
    <message>
        <source>The server took longer than %1 seconds.</source>
        <translation>Sunucunun yanıtı %1 saniyeden uzun sürdü.</translation>
    </message>
    <message>
        <source>The answer is packed in a way that is not known here.</source>
        <translation>Yanıt, desteklenmeyen bir yöntemle sıkıştırılmış.</translation>
    </message>
    <message>
        <source>The answer arrived damaged.</source>
        <translation>Gelen yanıt bozuk.</translation>
    </message>
    <message>
        <source>The connection broke before the whole answer had arrived.</source>
        <translation>Yanıtın tamamı gelmeden bağlantı koptu.</translation>
    </message>
    <message>
        <source>The answer is larger than %1.</source>
        <translation>Yanıt %1 sınırını aşıyor.</translation>
    </message>
    <message>
        <source>The site&apos;s certificate is not trusted.</source>
        <translation>Sitenin sertifikasına güvenilmiyor.</translation>
    </message>
    <message>
        <source>No secure connection to the site could be made.</source>
        <translation>Siteyle güvenli bir bağlantı kurulamadı.</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message numerus="yes">
        <source>Scanning folder(s) for music files (found %n)</source>
        <translation>
            <numerusform>Klasörlerde müzik dosyaları aranıyor (%n bulundu)</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message numerus="yes">
        <source>Hidden %n file(s) with lyrics</source>
        <translation>
            <numerusform>Sözleri olan %n dosya gizlendi</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Göster</translation>
    </message>
    <message>
        <source>Show hidden files</source>
        <translation>Gizlenen dosyaları göster</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Remove hidden files from the list</source>
        <translation>Gizlenen dosyaları listeden kaldır</translation>
    </message>
</context>
<context>
    <name>LyricsEditGuard</name>
    <message>
        <source>The lyrics of “%1” have been changed.</source>
        <comment>%1 is the title of a song</comment>
        <translation>“%1” şarkısının sözleri değiştirildi.</translation>
    </message>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Değişiklikleri kaydetmek istiyor musunuz?</translation>
    </message>
</context>
<context>
    <name>LyricsItem</name>
    <message>
        <source>This lyrics for:</source>
        <translation>Sözlerin ait olduğu şarkı:</translation>
    </message>
    <message>
        <source>“%1” – “%2”</source>
        <comment>artist and title</comment>
        <translation>“%1” – “%2”</translation>
    </message>
    <message>
        <source>These lyrics are very long; their beginning is shown.</source>
        <translation>Bu sözler çok uzun; yalnızca başı gösteriliyor.</translation>
    </message>
</context>
<context>
    <name>LyricsProvider</name>
    <message>
        <source>%1 redirects to something that is not a web page.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1, web sayfası olmayan bir yere yönlendiriyor.</translation>
    </message>
    <message>
        <source>%1 redirects too often.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 çok fazla yönlendirme yapıyor.</translation>
    </message>
    <message>
        <source>%1 gave a page that holds no lyrics.</source>
        <translation>%1, şarkı sözü içermeyen bir sayfa gönderdi.</translation>
    </message>
</context>
<context>
    <name>LyricsSearch</name>
    <message>
        <source>The artist or title is too long to search for.</source>
        <translation>Sanatçı ya da başlık, aranamayacak kadar uzun.</translation>
    </message>
</context>
<context>
    <name>LyricsText</name>
    <message>
        <source>Lyrics</source>
        <translation>Sözler</translation>
    </message>
</context>
<context>
    <name>LyricsToolbar</name>
    <message>
        <source>Edit lyrics (F2)</source>
        <translation>Sözleri düzenle (F2)</translation>
    </message>
    <message>
        <source>Save lyrics (Ctrl+S)</source>
        <translation>Sözleri kaydet (Ctrl+S)</translation>
    </message>
    <message>
        <source>Cancel editing (Esc)</source>
        <translation>Düzenlemeyi iptal et (Esc)</translation>
    </message>
    <message>
        <source>Force to search lyrics (Ctrl+R)</source>
        <translation>Sözleri yeniden ara (Ctrl+R)</translation>
    </message>
    <message>
        <source>Copy lyrics to clipboard</source>
        <translation>Sözleri panoya kopyala</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Sözleri %1 ile ara</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Yazıyı küçült</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Yazıyı büyüt</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Add file</source>
        <translation>Dosya Ekle</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Klasör Ekle</translation>
    </message>
    <message>
        <source>Hide file(s) with lyrics</source>
        <translation>Sözleri Olan Dosyaları Gizle</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tümünü Seç</translation>
    </message>
    <message>
        <source>Remove with lyrics</source>
        <translation>Sözleri Olanları Kaldır</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Listeyi Temizle</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Seçilenleri Kaldır</translation>
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
        <translation>Çık</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Web Sitesi</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Tercihler</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Sözleri TXT Dosyasına Aktar</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Araçlar</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>Check for updates...</source>
        <translation>Güncellemeleri Denetle...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Dosya</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>Dü&amp;zen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Görünüm</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>A menu; Alt with the letter behind &amp; opens it: another letter for each of the four.</extracomment>
        <translation>&amp;Yardım</translation>
    </message>
</context>
<context>
    <name>MusixMatchProvider</name>
    <message>
        <source>%1 leads from one list of songs to the next.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1 bir şarkı listesinden diğerine yönlendirip duruyor.</translation>
    </message>
    <message>
        <source>%1 gave a page that is too intricate to read.</source>
        <extracomment>%1 is the name of a lyrics site.</extracomment>
        <translation>%1, okunamayacak kadar karmaşık bir sayfa gönderdi.</translation>
    </message>
</context>
<context>
    <name>PlaybackSlider</name>
    <message>
        <source>Position in the song</source>
        <translation>Şarkıdaki konum</translation>
    </message>
</context>
<context>
    <name>Proxy</name>
    <message>
        <source>The proxy does not take the connection.</source>
        <translation>Vekil sunucu bağlantıyı kabul etmiyor.</translation>
    </message>
    <message>
        <source>The proxy closed the connection.</source>
        <translation>Vekil sunucu bağlantıyı kapattı.</translation>
    </message>
    <message>
        <source>The proxy was not found.</source>
        <translation>Vekil sunucu bulunamadı.</translation>
    </message>
    <message>
        <source>The proxy did not answer in time.</source>
        <translation>Vekil sunucu zamanında yanıt vermedi.</translation>
    </message>
    <message>
        <source>The proxy refuses the user name or the password.</source>
        <translation>Vekil sunucu kullanıcı adını ya da parolayı kabul etmiyor.</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>Vekil sunucu çalışmıyor.</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Host not found</source>
        <translation>Sunucu bulunamadı</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Bağlantı reddedildi</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Bağlantı zaman aşımına uğradı</translation>
    </message>
    <message>
        <source>Socket operation timed out</source>
        <translation>Soket işlemi zaman aşımına uğradı</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Ağa erişilemiyor</translation>
    </message>
    <message>
        <source>The remote host closed the connection</source>
        <translation>Uzak sunucu bağlantıyı kapattı</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Tümünü Seç</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Artır</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>A&amp;zalt</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Konum:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Üst Klasör</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Yeni Klasör Oluştur</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Liste Görünümü</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Ayrıntılı Görünüm</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Dosya a&amp;dı:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Dosya türü:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Klasör:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Aç</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Seç</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Klasörler</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Dosya bulunamadı.
Dosya adının doğru olduğunu denetleyin.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Klasör bulunamadı.
Klasör adının doğru olduğunu denetleyin.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Sürücü</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 Dosyası</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Son Kullanılan Yerler</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Göster: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Yeniden &amp;Adlandır</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Sil</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>&amp;Gizli dosyaları göster</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Yeni Klasör</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Yeni Klasör</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>“%1” silinsin mi?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1” yazmaya karşı korumalı.
Yine de silinsin mi?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Klasör silinemedi.</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Geri git</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>İleri git</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Üst klasöre git</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Yeni bir klasör oluştur</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Liste görünümüne geç</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Ayrıntı görünümüne geç</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Kenar çubuğu</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Yerler ve yer imleri listesi</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dosyalar</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Değiştirilme Tarihi</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Bilgisayar</translation>
    </message>
    <message>
        <source>Type</source>
        <comment>All other platforms</comment>
        <translation>Tür</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Tamam</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Kaydet</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>İ&amp;ptal</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Kap&amp;at</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Kaydetmeden Kapat</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Host %1 not found</source>
        <translation>%1 sunucusu bulunamadı</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Bağlantı reddedildi</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Bağlantı kapandı</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Geri Al</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Yinele</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Ke&amp;s</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopyala</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Ya&amp;pıştır</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tümünü Seç</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Network unreachable</source>
        <translation>Ağa erişilemiyor</translation>
    </message>
    <message>
        <source>Host unreachable</source>
        <translation>Sunucuya erişilemiyor</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Bağlantı zaman aşımına uğradı</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Bağlantı reddedildi</translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation>%1 aktarılırken hata oluştu – sunucunun yanıtı: %2</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Hayır</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>At</translation>
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
        <translation>Paketin yaşam süresi (TTL) doldu</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopyala</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Bağlantı Adresini Kopyala</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tümünü Seç</translation>
    </message>
</context>
<context>
    <name>ReadFailure</name>
    <message>
        <source>this is not a regular file</source>
        <translation>bu normal bir dosya değil</translation>
    </message>
    <message>
        <source>the file is damaged: its tags have no end</source>
        <translation>dosya hasarlı: etiketlerinin sonu yok</translation>
    </message>
    <message>
        <source>the file is damaged: its tags do not fit in memory</source>
        <translation>dosya hasarlı: etiketleri belleğe sığmıyor</translation>
    </message>
    <message>
        <source>the disk reported an error while the file was read</source>
        <translation>dosya okunurken disk hata bildirdi</translation>
    </message>
    <message>
        <source>the file is damaged: reading its tags ended in a crash</source>
        <translation>dosya hasarlı: etiketleri okunurken program çöktü</translation>
    </message>
    <message>
        <source>reading the tags of the file took too long</source>
        <translation>dosyanın etiketlerini okumak çok uzun sürdü</translation>
    </message>
    <message>
        <source>reading the tags of the file gave nonsense</source>
        <translation>dosyanın etiketlerinden anlamsız veriler okundu</translation>
    </message>
    <message>
        <source>the helper program that reads tags could not be started</source>
        <translation>etiketleri okuyan yardımcı program başlatılamadı</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>OpenGL settings</source>
        <translation>OpenGL Ayarları</translation>
    </message>
    <message>
        <source>Select the method of OpenGL usage:</source>
        <translation>OpenGL kullanım yöntemini seçin:</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Otomatik algıla</translation>
    </message>
    <message>
        <source>OpenGL ES 2.0</source>
        <translation>OpenGL ES 2.0</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Yazılım</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Masaüstü</translation>
    </message>
    <message>
        <source>Clear all settings</source>
        <translation>Tüm Ayarları Temizle</translation>
    </message>
    <message>
        <source>Clear settings</source>
        <translation>Ayarları Temizle</translation>
    </message>
    <message>
        <source>All settings will be removed and returned to default values. Are you sure?</source>
        <translation>Tüm ayarlar silinecek ve varsayılan değerlere dönülecek. Emin misiniz?</translation>
    </message>
    <message>
        <source>All settings were cleared. The program starts anew after OK.</source>
        <translation>Tüm ayarlar temizlendi. “Tamam” düğmesine basılınca program yeniden başlar.</translation>
    </message>
    <message>
        <source>The settings cannot be cleared: their file cannot be written.</source>
        <translation>Ayarlar temizlenemiyor: Ayar dosyasına yazılamıyor.</translation>
    </message>
</context>
<context>
    <name>SceneWidget</name>
    <message>
        <source>The Qt module %1 is missing (package %2).</source>
        <translation>%1 adlı Qt modülü eksik (%2 paketi).</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Tercihler</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Dil:</translation>
    </message>
    <message>
        <source>Restart is required to apply changes</source>
        <translation>Değişikliklerin uygulanması için yeniden başlatmak gerekir</translation>
    </message>
    <message>
        <source>Font size for lyrics:</source>
        <translation>Sözlerin yazı boyutu:</translation>
    </message>
    <message>
        <source>Search in browser with:</source>
        <translation>Tarayıcıda arama motoru:</translation>
    </message>
    <message>
        <source>insert a blank line at the beginning of lyrics</source>
        <translation>Sözlerin başına boş satır ekle</translation>
    </message>
    <message>
        <source>save files list on quit</source>
        <translation>Çıkarken dosya listesini kaydet</translation>
    </message>
    <message>
        <source>export lyrics to a TXT file automatically</source>
        <translation>Sözleri otomatik olarak TXT dosyasına aktar</translation>
    </message>
    <message>
        <source>look for new versions automatically</source>
        <translation>Yeni sürümleri otomatik olarak denetle</translation>
    </message>
    <message>
        <source>send usage events, with artists and titles</source>
        <translation>Kullanım verilerini sanatçı ve başlıklarla gönder</translation>
    </message>
    <message>
        <source>Example...</source>
        <translation>Örnek...</translation>
    </message>
    <message>
        <source>Show an example of a usage event</source>
        <translation>Kullanım verisi örneğini göster</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Ağ</translation>
    </message>
    <message>
        <source>Proxy:</source>
        <translation>Vekil sunucu:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adres:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Bağlantı noktası:</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Kimlik doğrulama</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Kullanıcı adı:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Parola:</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Siteler</translation>
    </message>
    <message>
        <source>Search order</source>
        <translation>Arama sırası</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Yukarı taşı</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Aşağı taşı</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Etkinleştir</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Otomatik</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>Switched off by DO_NOT_TRACK</source>
        <translation>DO_NOT_TRACK nedeniyle kapalı</translation>
    </message>
    <message>
        <source>No proxy is used.</source>
        <translation>Vekil sunucu kullanılmıyor.</translation>
    </message>
    <message>
        <source>No address: no proxy is used.</source>
        <translation>Adres yok: vekil sunucu kullanılmıyor.</translation>
    </message>
    <message>
        <source>The proxy is being tested...</source>
        <translation>Vekil sunucu sınanıyor...</translation>
    </message>
    <message>
        <source>The proxy does not work.</source>
        <translation>Vekil sunucu çalışmıyor.</translation>
    </message>
    <message>
        <source>No error within %1 seconds.</source>
        <translation>%1 saniye içinde hata oluşmadı.</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Vekil sunucu çalışıyor.</translation>
    </message>
    <message>
        <source>Not tested yet.</source>
        <translation>Henüz sınanmadı.</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Devre Dışı Bırak</translation>
    </message>
    <message>
        <source>Warning!!! You have disabled all sources.</source>
        <translation>Uyarı! Tüm kaynaklar devre dışı bırakıldı.</translation>
    </message>
</context>
<context>
    <name>SongDetails</name>
    <message>
        <source>Artist:</source>
        <translation>Sanatçı:</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Sanatçı</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Başlık:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Başlık</translation>
    </message>
</context>
<context>
    <name>SongList</name>
    <message>
        <source>Songs</source>
        <translation>Şarkılar</translation>
    </message>
</context>
<context>
    <name>SongMenu</name>
    <message>
        <source>Force to search lyrics</source>
        <translation>Sözleri Yeniden Ara</translation>
    </message>
    <message>
        <source>Export lyrics to TXT file</source>
        <translation>Sözleri TXT Dosyasına Aktar</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Seçilenleri Kaldır</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Tümünü Kaldır</translation>
    </message>
    <message>
        <source>Copy file&apos;s path to clipboard</source>
        <translation>Dosya Yolunu Panoya Kopyala</translation>
    </message>
    <message>
        <source>Search lyrics with %1</source>
        <comment>name of a search engine</comment>
        <translation>Sözleri %1 ile Ara</translation>
    </message>
</context>
<context>
    <name>SongState</name>
    <message>
        <source>cannot be read</source>
        <translation>okunamıyor</translation>
    </message>
    <message>
        <source>has lyrics</source>
        <translation>sözleri var</translation>
    </message>
    <message>
        <source>no lyrics</source>
        <translation>sözleri yok</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>Bu dosya okunamıyor.</translation>
    </message>
    <message>
        <source>no names</source>
        <translation>bilgi eksik</translation>
    </message>
    <message>
        <source>queued</source>
        <translation>sırada</translation>
    </message>
    <message>
        <source>searching...</source>
        <translation>aranıyor...</translation>
    </message>
    <message>
        <source>saving...</source>
        <translation>kaydediliyor...</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>başarısız</translation>
    </message>
    <message>
        <source>no lyrics found</source>
        <translation>söz bulunamadı</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>kaydedilmedi</translation>
    </message>
    <message>
        <source>search failed</source>
        <translation>arama başarısız</translation>
    </message>
    <message>
        <source>in queue to search...</source>
        <translation>arama sırasında bekliyor...</translation>
    </message>
    <message>
        <source>saving the lyrics...</source>
        <translation>sözler kaydediliyor...</translation>
    </message>
    <message>
        <source>A search needs an artist and a title.</source>
        <translation>Arama için sanatçı ve başlık gerekir.</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <comment>%1 is the reason</comment>
        <translation>Kaydedilmedi: %1</translation>
    </message>
</context>
<context>
    <name>SplitterHandle</name>
    <message>
        <source>Width of the list</source>
        <translation>Liste genişliği</translation>
    </message>
</context>
<context>
    <name>StateLine</name>
    <message>
        <source>search for lyrics</source>
        <translation>sözleri ara</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Progress of the searches</source>
        <translation>Aramaların ilerlemesi</translation>
    </message>
    <message numerus="yes">
        <source>Searching... %n left...</source>
        <translation>
            <numerusform>Aranıyor... %n kaldı...</numerusform>
        </translation>
    </message>
    <message>
        <source>The settings file is damaged. What could be read is used, but no copy could be made.</source>
        <translation>Ayar dosyası hasarlı. Okunabilen bölümü kullanılıyor, ancak kopyası oluşturulamadı.</translation>
    </message>
    <message>
        <source>The settings file was damaged. What could be read is kept; the damaged file is now %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Ayar dosyası hasarlıydı. Okunabilen bölümü korundu; hasarlı dosya artık şurada: %1</translation>
    </message>
    <message>
        <source>The settings cannot be read or stored; changes last for this run only.</source>
        <translation>Ayarlar okunamıyor ya da kaydedilemiyor; değişiklikler yalnızca program kapatılana dek geçerli.</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since their names are damaged or too long: %n</source>
        <translation>
            <numerusform>Adı bozuk ya da çok uzun olduğu için eklenmeyen dosya sayısı: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The list is full. Files left out: %n</source>
        <translation>
            <numerusform>Liste dolu. Eklenmeyen dosya sayısı: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The last save was cut off. Songs that are again as they were before it: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Son kaydetme işlemi yarıda kesildi. Önceki durumuna döndürülen şarkılar: %1</translation>
    </message>
    <message>
        <source>Copies from before a save that was cut off: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Yarıda kesilen bir kaydetme işleminden önceki kopyalar: %1</translation>
    </message>
    <message>
        <source>A save was cut off, and these songs cannot be reached to undo it; it is tried again at each start: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Bir kaydetme işlemi yarıda kesildi ve şu şarkılara erişilemediği için geri alınamıyor; her açılışta yeniden denenecek: %1</translation>
    </message>
    <message numerus="yes">
        <source>Songs that could not be written: %n (%1)</source>
        <comment>%1 is the reason</comment>
        <translation>
            <numerusform>Yazılamayan şarkı sayısı: %n (%1)</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics could not be written to %1</source>
        <comment>%1 is the path of a file</comment>
        <translation>Sözler %1 dosyasına yazılamadı</translation>
    </message>
    <message>
        <source>There are no lyrics to export</source>
        <translation>Dışa aktarılacak söz yok</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Whole copies of these songs: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Bu şarkıların sağlam kopyaları: %1</translation>
    </message>
    <message>
        <source>A save was cut off. Songs that are still being restored: %1</source>
        <comment>%1 is the paths of files</comment>
        <translation>Bir kaydetme yarıda kesildi. Hâlâ geri yüklenen şarkılar: %1</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs could not be exported</source>
        <translation>
            <numerusform>%n şarkının sözleri dışa aktarılamadı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Lyrics exported to %n text files</source>
        <translation>
            <numerusform>Sözler %n metin dosyasına aktarıldı</numerusform>
        </translation>
    </message>
    <message>
        <source>Lyrics exported to one text file</source>
        <translation>Sözler bir metin dosyasına aktarıldı</translation>
    </message>
    <message numerus="yes">
        <source>Files left out, since they are missing or of a kind that is not supported: %n</source>
        <translation>
            <numerusform>Bulunamadığı ya da türü desteklenmediği için eklenmeyen dosya sayısı: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagWriter</name>
    <message>
        <source>the file is no longer there</source>
        <translation>dosya artık yerinde değil</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>bu normal bir dosya değil</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>dosya salt okunur</translation>
    </message>
    <message>
        <source>the file cannot be opened</source>
        <translation>dosya açılamıyor</translation>
    </message>
    <message>
        <source>no audio was found in the file</source>
        <translation>dosyada ses bulunamadı</translation>
    </message>
    <message>
        <source>files of this format cannot hold lyrics</source>
        <translation>bu biçimdeki dosyalar şarkı sözü içeremez</translation>
    </message>
    <message>
        <source>the file is damaged, or built in an unusual way</source>
        <translation>dosya hasarlı ya da alışılmadık bir yapıda</translation>
    </message>
    <message>
        <source>there is not enough room on the disk</source>
        <translation>diskte yeterli yer yok</translation>
    </message>
    <message>
        <source>the file would become too large</source>
        <translation>dosya çok büyük olacaktı</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>disk hata bildiriyor</translation>
    </message>
    <message>
        <source>other entries of its tags would be lost</source>
        <translation>etiketlerindeki diğer bilgiler kaybolacaktı</translation>
    </message>
    <message>
        <source>the audio would not stay as it is</source>
        <translation>ses verisi değişecekti</translation>
    </message>
    <message>
        <source>another program has changed the file</source>
        <translation>başka bir program dosyayı değiştirdi</translation>
    </message>
    <message>
        <source>the disk failed; the file will be restored at the next start</source>
        <translation>disk hata verdi; dosya bir sonraki açılışta geri yüklenecek</translation>
    </message>
    <message>
        <source>the file could not be saved</source>
        <translation>dosya kaydedilemedi</translation>
    </message>
    <message>
        <source>an earlier save of the file was cut off and is not undone yet</source>
        <translation>dosyanın önceki bir kaydı yarıda kesildi ve henüz geri alınmadı</translation>
    </message>
</context>
<context>
    <name>UnsavedLyricsGuard</name>
    <message>
        <source>Do you want to save the changes?</source>
        <translation>Değişiklikleri kaydetmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>The changed artist or title of one song is not in its file yet.</source>
        <translation>Bir şarkının değiştirilen sanatçısı veya başlığı henüz dosyaya kaydedilmedi.</translation>
    </message>
    <message numerus="yes">
        <source>The changed artist or title of %n songs is not in their files yet.</source>
        <translation>
            <numerusform>%n şarkının değiştirilen sanatçısı veya başlığı henüz dosyaya kaydedilmedi.</numerusform>
        </translation>
    </message>
    <message>
        <source>The lyrics of one song are not in its file and stand in the list only.</source>
        <translation>Bir şarkının sözleri dosyaya kaydedilmedi, yalnızca listede duruyor.</translation>
    </message>
    <message numerus="yes">
        <source>The lyrics of %n songs are not in their files and stand in the list only.</source>
        <translation>
            <numerusform>%n şarkının sözleri dosyaya kaydedilmedi, yalnızca listede duruyor.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” could not be saved: %2</source>
        <comment>%1 is the title of a song, %2 the reason</comment>
        <translation>“%1” kaydedilemedi: %2</translation>
    </message>
    <message>
        <source>it is still being written</source>
        <translation>hâlâ yazılıyor</translation>
    </message>
    <message>
        <source>The deleted lyrics of one song are still in its file.</source>
        <translation>Bir şarkının silinen sözleri hâlâ dosyada.</translation>
    </message>
    <message numerus="yes">
        <source>The deleted lyrics of %n songs are still in their files.</source>
        <translation>
            <numerusform>%n şarkının silinen sözleri hâlâ dosyalarda.</numerusform>
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
            <numerusform>... ve %n tane daha</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnsavedTexts</name>
    <message>
        <source>Artist: %1</source>
        <translation>Sanatçı: %1</translation>
    </message>
    <message>
        <source>Title: %1</source>
        <translation>Başlık: %1</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Download update</source>
        <comment>Action text</comment>
        <translation>Güncellemeyi İndir</translation>
    </message>
    <message>
        <source>Cancel downloading</source>
        <comment>Action text</comment>
        <translation>İndirmeyi İptal Et</translation>
    </message>
    <message>
        <source>Exit and install update</source>
        <comment>Action text</comment>
        <translation>Çık ve Güncellemeyi Kur</translation>
    </message>
    <message>
        <source>The server redirects to something that is not a web page.</source>
        <translation>Sunucu, web sayfası olmayan bir yere yönlendiriyor.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Sunucu çok fazla yönlendirme yapıyor.</translation>
    </message>
    <message>
        <source>This build of the program knows no site to ask.</source>
        <translation>Programın bu derlemesinde güncelleme sitesi tanımlı değil.</translation>
    </message>
    <message>
        <source>Can&apos;t check for update: %1</source>
        <translation>Güncelleme denetlenemiyor: %1</translation>
    </message>
    <message>
        <source>Failed to parse version information data.</source>
        <comment>Updater error message</comment>
        <translation>Sürüm bilgileri çözümlenemedi.</translation>
    </message>
    <message>
        <source>Can&apos;t get update: %1</source>
        <translation>Güncelleme alınamıyor: %1</translation>
    </message>
    <message>
        <source>The address of the setup file is not one that can be used.</source>
        <translation>Kurulum dosyasının adresi kullanılabilir değil.</translation>
    </message>
    <message>
        <source>The setup file has another size than the server said.</source>
        <translation>Kurulum dosyasının boyutu sunucunun bildirdiğinden farklı.</translation>
    </message>
    <message>
        <source>The server sent something else than the setup file.</source>
        <translation>Sunucu kurulum dosyası yerine başka bir şey gönderdi.</translation>
    </message>
    <message>
        <source>The setup file is larger than it should be.</source>
        <translation>Kurulum dosyası olması gerekenden büyük.</translation>
    </message>
    <message>
        <source>The server did not send the whole setup file.</source>
        <translation>Sunucu kurulum dosyasının tamamını göndermedi.</translation>
    </message>
    <message>
        <source>Can&apos;t open file: %1</source>
        <translation>Dosya açılamıyor: %1</translation>
    </message>
    <message>
        <source>Can&apos;t install update</source>
        <translation>Güncelleme kurulamıyor</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message numerus="yes">
        <source>%n years</source>
        <translation>
            <numerusform>%n yıl</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n months</source>
        <translation>
            <numerusform>%n ay</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n gün</numerusform>
        </translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Sürüm %1</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Bu Sürümü Atla</translation>
    </message>
    <message>
        <source>Remind later</source>
        <translation>Sonra Anımsat</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Güncellemeyi Kur</translation>
    </message>
    <message>
        <source>Update available!</source>
        <translation>Güncelleme var!</translation>
    </message>
    <message>
        <source>A new version of &lt;b&gt;%appName&lt;/b&gt; is available!</source>
        <translation>Yeni bir &lt;b&gt;%appName&lt;/b&gt; sürümü var!</translation>
    </message>
    <message>
        <source>%appName &lt;b&gt;%newVersion&lt;/b&gt; is available - you have &lt;b&gt;%oldVersion&lt;/b&gt;. Would you like to download it now?</source>
        <translation>%appName &lt;b&gt;%newVersion&lt;/b&gt; sürümü çıktı; yüklü sürüm: &lt;b&gt;%oldVersion&lt;/b&gt;. Şimdi indirmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Your version was released more than &lt;b&gt;%releasePeriod&lt;/b&gt; ago.</source>
        <translation>Yüklü sürüm yayımlanalı &lt;b&gt;%releasePeriod&lt;/b&gt; geçti.</translation>
    </message>
    <message>
        <source>Since then, &lt;b&gt;%numUpdates&lt;/b&gt; versions have been released.</source>
        <translation>O günden bu yana &lt;b&gt;%numUpdates&lt;/b&gt; sürüm yayımlandı.</translation>
    </message>
    <message>
        <source>Release notes:</source>
        <translation>Sürüm notları:</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Sürüm notları</translation>
    </message>
</context>
<context>
    <name>UpdateFolder</name>
    <message>
        <source>The folder %1 cannot be used.</source>
        <translation>%1 klasörü kullanılamıyor.</translation>
    </message>
</context>
<context>
    <name>UpdateInfoDialog</name>
    <message>
        <source>Update</source>
        <comment>noun, title of dialog about &apos;checking for updates&apos;</comment>
        <translation>Güncelleme</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>Güncelleme denetleniyor...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>You have the latest version.</source>
        <translation>Yüklü sürüm en yeni sürüm.</translation>
    </message>
    <message>
        <source>Failed to update</source>
        <translation>Güncelleme başarısız</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Güncelleme</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>UsageExample</name>
    <message>
        <source>Example of a usage event</source>
        <translation>Kullanım Verisi Örneği</translation>
    </message>
    <message>
        <source>(random, made when you say yes)</source>
        <translation>(rastgele; onay verince oluşturulur)</translation>
    </message>
    <message>
        <source>This is sent whenever a search for a song begins; the song is made up here. The start and the end of the program, an update, clicks on the maker&apos;s pages and a window that cannot be drawn are reported in the same way, without names of songs.</source>
        <translation>Bu, bir şarkı araması her başladığında gönderilir; buradaki şarkı uydurmadır. Programın açılışı ve kapanışı, bir güncelleme, geliştiricinin sayfalarına yapılan tıklamalar ve çizilemeyen bir pencere de şarkı adları olmadan aynı biçimde bildirilir.</translation>
    </message>
</context>
<context>
    <name>WritesWait</name>
    <message>
        <source>It goes on by itself when this is done.</source>
        <translation>Bitince kendiliğinden devam eder.</translation>
    </message>
    <message>
        <source>Changes are still being written into the songs.</source>
        <translation>Değişiklikler hâlâ şarkılara yazılıyor.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Songs and lyrics</source>
        <translation>Şarkılar ve sözleri</translation>
    </message>
    <message>
        <source>The window could not be built.</source>
        <translation>Pencere oluşturulamadı.</translation>
    </message>
    <message>
        <source>The changes to one song were kept as a text file in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>Bir şarkıdaki değişiklikler metin dosyası olarak saklandı: %1</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs were kept as text files in %1</source>
        <comment>%1 is the path of a folder</comment>
        <translation>
            <numerusform>%n şarkıdaki değişiklikler metin dosyası olarak saklandı: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The changes to one song could be kept nowhere: copy them from the details now.</source>
        <translation>Bir şarkıdaki değişiklikler hiçbir yere saklanamadı: Şimdi sağdaki bölmeden kopyalayın.</translation>
    </message>
    <message numerus="yes">
        <source>The changes to %n songs could be kept nowhere: copy them from the details now.</source>
        <translation>
            <numerusform>%n şarkıdaki değişiklikler hiçbir yere saklanamadı: Şimdi sağdaki bölmeden kopyalayın.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not all changes could be written into the songs.</source>
        <translation>Bazı değişiklikler şarkılara yazılamadı.</translation>
    </message>
</context>
</TS>
