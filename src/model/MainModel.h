// SPDX-License-Identifier: MIT
#pragma once

#include "model/FailedWrites.h"
#include "model/HeldBackReads.h"
#include "model/IncomingFiles.h"
#include "model/ItemStore.h"
#include "model/LyricsExports.h"
#include "model/ReadQueue.h"
#include "model/RemovedItems.h"
#include "model/SearchFeed.h"
#include "model/SongWrites.h"
#include "tags/MediaFileTags.h"

#include <QAbstractListModel>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <memory>

class Settings;

// The list of audio files, and the conductor of the work on them: tags are read one file at a time, songs without
// lyrics are handed to the coordinator ten at a time, found lyrics are written into the files.
//
// Main thread only; reading and writing happen elsewhere and report back by queued signals. The extensions, the
// settings and the coordinator are handed in by setters and must outlive the model's use of them.
class MainModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(bool autoStart READ autoStart WRITE setAutoStart NOTIFY autoStartChanged)
    Q_PROPERTY(int searchCount READ searchCount NOTIFY searchCountChanged)
    Q_PROPERTY(int activeCount READ activeCount NOTIFY activeCountChanged)
    Q_PROPERTY(bool restoring READ isRestoring NOTIFY restoringChanged)

public:
    enum Role {
        itemRole = Qt::UserRole + 1, // the ModelItem
        urlRole = Qt::UserRole + 3,
        filenameRole,
        extRole,
        pathRole,
        existsRole,
        badFileRole,
        tagsLoadedRole,
        titleTagRole,
        artistTagRole,
        lyricsTagRole,
        durationRole,
        fileThumbnailRole, // address of the cover, "image://file-cover/<id>"; empty until the tags are loaded
        processStateRole,
        selectedRole // answered by the proxy model
    };
    Q_ENUM(Role)

    // Of a url that is to be added.
    enum FileKnowledge { MayBeAnything, IsRegularFile };

    explicit MainModel(QObject *parent = nullptr);
    ~MainModel() override;

    // Lower-case extensions without dots, in the order of the file dialog's filter.
    void setSupportedExtensions(const QStringList &extensions) { m_extensions = extensions; }
    // The program that reads tags (tags/MediaInfoExtractor.h). To be set before files are added.
    void setReaderProgram(const QString &path) { m_reads.setReaderProgram(path); }
    // For the end of the program: a read under way is given up.
    void stopReading() { m_reads.stop(); }
    void setSettings(const Settings *settings) { m_settings = settings; }
    // The program's own folder for saves (tags/TagUpdate.h). Without one, songs that can be saved in place only are
    // not.
    void setDataFolder(const QString &folder) { m_writes.setDataFolder(folder); }
    // Songs that are not to be read yet, since a save of them is being undone: full paths, links resolved. Those that
    // were among them before are read now.
    void setSongsInMending(const QStringList &paths);
    // Not owned. Without a coordinator nothing is searched for.
    void setSearch(LyricsSearch *search) { m_searches.setSearch(search); }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
    bool removeRows(int row, int count, const QModelIndex &parent = {}) override;

    // Removes rows that stand anywhere, in ranges, or as one reset when there are too many ranges. `rows` ascends.
    void removeScattered(const QVector<int> &rows);

    [[nodiscard]] bool autoStart() const { return m_autoStart; }
    // How many searches the coordinator holds.
    [[nodiscard]] int searchCount() const { return m_searches.searchCount(); }
    // How many items are queued for a search or being searched for.
    [[nodiscard]] int activeCount() const { return m_activeCount; }
    // Null when no item has this id.
    [[nodiscard]] ModelItem *item(quint16 id) const { return m_items.find(id); }
    // Null when no item has this url.
    [[nodiscard]] ModelItem *item(const QUrl &url) const { return m_items.find(url); }
    [[nodiscard]] ModelItem *itemAt(int row) const { return m_items.itemAt(row); }
    // -1 when no item has this id.
    [[nodiscard]] int rowOf(quint16 id) const { return m_items.rowOf(id); }
    // Whether its read was overtaken by a newer one: it stays unread until a search of it is forced.
    [[nodiscard]] bool isReadOvertaken(quint16 id) const { return m_reads.isOvertakenDuringRead(id); }
    // Whether a write of this song is under way, also when it was removed meanwhile.
    [[nodiscard]] bool isWriting(quint16 id) const { return m_writes.isWriting(id); }
    // Whether the song has lyrics that are in the list only: their last write has failed, or may still fail. Not so
    // when that write was to store other names alone.
    [[nodiscard]] bool hasUnsavedLyrics(quint16 id) const;
    // The other way round: the song has none, but those of its file are still there, since the write that was to delete
    // them has failed, or may still fail.
    [[nodiscard]] bool hasUnsavedDeletion(quint16 id) const;
    // The songs with such lyrics or such a deletion, or with edited names that are in no file; in row order.
    [[nodiscard]] QVector<quint16> unsavedIds() const;
    // What these songs have in the list only is forgotten: their texts are those of the files.
    void giveUpUnsaved(const QVector<quint16> &ids);
    // What is to be kept across runs: the urls of all rows, in row order, and of the files that may still become rows.
    // Among them are those of the kept list whose disk is away, each at its place in that list, until the list is
    // emptied.
    [[nodiscard]] QList<QUrl> urls() const;
    // The same as texts that keep() reads.
    [[nodiscard]] QStringList entries() const;
    // Whether some of these are no rows: they are on their way, or their disk is away.
    [[nodiscard]] bool isAnyWaiting() const { return m_incoming.isAnyWaiting(); }

    // Takes a list that was kept across runs, of urls and absolute paths; once. It counts as part of the list from now
    // on, but becomes rows only after restore(). Entries that are neither are left out.
    void keep(const QStringList &entries) { m_incoming.keep(entries); }
    // Begins to look at the files of the kept list, elsewhere: a disk that does not answer holds up nothing but its
    // own.
    void lookAtKept() { m_incoming.lookAtKept(); }
    // Lets them become rows, each when it was looked at; begins with that if need be.
    void restore() { m_incoming.restore(); }
    // Whether the first rows of the kept list are to be expected at any moment.
    [[nodiscard]] bool isRestoring() const { return m_incoming.isRestoring(); }

    // The supported extensions, each as "*.mp3", joined with the separator.
    Q_INVOKABLE QString supportedTypesMask(const QString &separator) const;
    // These two look at the disk elsewhere, and add when it has answered. Adds the regular files.
    Q_INVOKABLE void addUrls(const QList<QUrl> &urls);
    // Adds the supported files, asks for a scan of the folders, and tells how many others there are.
    Q_INVOKABLE void addUrlsFromDrop(const QList<QUrl> &urls);
    // Does nothing by itself: feeding the coordinator is the model's own business. Kept for the scene.
    Q_INVOKABLE void startSearching() const {}
    // A local file with one of the supported extensions, without regard to case; the disk is not asked.
    Q_INVOKABLE bool isSupported(const QUrl &url) const;
    Q_INVOKABLE void removeWithLyrics();
    // Also what is on its way into the list, and what is kept for a disk that is away.
    Q_INVOKABLE void removeAll();
    // A forced search. Whether the item is queued now; false when there is none or its names are not suitable.
    Q_INVOKABLE bool startSearch(quint16 id);
    // Shows the file of a row in the file manager, which lives on by itself (model/FileManager.h).
    Q_INVOKABLE void locate(int row) const;
    // Queues a write of the item's names and lyrics into its file; false when there is no such item or its tags are
    // not loaded, since the write would replace what nobody has seen.
    Q_INVOKABLE bool writeTags(quint16 id);
    // The same for whoever was asked about something else: lyrics that another program has stored meanwhile stay,
    // however often it is called, and a search of the song goes on.
    bool writeTagsUnlessForeign(quint16 id);

public slots:
    // Appends the urls that name regular local files and are not listed yet. One call is one request for a read.
    //
    // Files that are known to be regular are not looked at again, and many of them are inserted in blocks, from the
    // event loop, so that the window goes on living; otherwise one call is one insertion, made before it returns.
    void add(const QList<QUrl> &urls, FileKnowledge knowledge = MayBeAnything);
    void setAutoStart(bool on);
    // Queues an export of the item's lyrics to the text file beside its audio file, in line with the writes of tags;
    // lyricsExported() tells whether it was written. False, with nothing touched, when there are none.
    bool generateLyricsFile(quint16 id);
    // Announces new data in the item's row.
    void itemChanged(const ModelItem *item);
    void fileInfoExtracted(const QString &file, const MediaFileTags &tags);
    void extractNextFileInfo();
    void lyricsSearchFinished(quint16 id, const QString &artist, const QString &title, const QString &lyrics,
                              const QString &errorString);

private slots:
    void tagsWritten(quint16 id);

signals:
    void autoStartChanged(bool on);
    void searchCountChanged(int count);
    void activeCountChanged();
    void restoringChanged();
    void scanFolders(const QList<QUrl> &folders);
    // By removeAll(): what was asked to be scanned is not wanted any more.
    void cleared();
    // A search was handed to the coordinator.
    void searchStarted(const QString &artist, const QString &title);
    // For so many songs of the list the last write failed for this one reason; again when the number has grown, so that
    // one message can show it.
    void writesFailed(const QString &reason, int count);
    // So many are left of the songs that writesFailed() told of: others were saved since, failed for another reason, or
    // left the list.
    void failedWritesLeft(const QString &reason, int count);
    // Once for each call of generateLyricsFile() that returned true.
    void lyricsExported(quint16 id, const QString &textFile, bool isWritten);
    // The export that comes with a write, where the settings ask for it, could not be written.
    void automaticExportFailed(const QString &textFile);
    // So many files could not be added, because no identifier was free.
    void filesLeftOut(int count);
    // So many of what was given to addUrlsFromDrop() is left out: files of other types, and what is not there.
    void filesUnsupported(int count);

private:
    using LooseItems = std::vector<ItemStore::LooseItem>;

    void insertFiles(const QList<QUrl> &files, bool requestRead);
    [[nodiscard]] QList<QUrl> newUrls(const QList<QUrl> &urls) const;
    [[nodiscard]] std::vector<std::unique_ptr<ModelItem>> makeItems(const QList<QUrl> &files);
    [[nodiscard]] bool isIdInUse(quint16 id) const;
    void insertItems(std::vector<std::unique_ptr<ModelItem>> items);
    [[nodiscard]] int gapsFor(const LooseItems &items) const;
    void insertIntoGaps(LooseItems items);
    void takeIn(LooseItems items);
    void connectItem(ModelItem *item);
    [[nodiscard]] bool isListed(const ModelItem *item) const;
    void countActive(const ModelItem *item);
    void followSearch(const ModelItem *item);
    void dequeue(const std::vector<ItemStore::LooseItem> &removed);
    void forgetItems(std::vector<ItemStore::LooseItem> removed);
    void useTags(quint16 id, const MediaFileTags &tags);
    [[nodiscard]] bool areLyricsUnsaved(const ModelItem &item) const;
    [[nodiscard]] ModelItem *writableItem(quint16 id) const;
    void startWriting(ModelItem *item, SongWrites::Kind kind);
    [[nodiscard]] bool searchAnew(ModelItem *item, const QString &reason);
    void readNow(const QUrl &file);

    ItemStore m_items;
    RemovedItems m_removed;
    quint16 m_lastId = 0;
    IncomingFiles m_incoming;
    QStringList m_extensions;
    const Settings *m_settings = nullptr;
    bool m_autoStart = true;
    int m_activeCount = 0;
    ReadQueue m_reads{&m_items};
    SearchFeed m_searches{&m_items};
    SongWrites m_writes;
    QSet<quint16> m_renamed; // another program has changed their names while they were searched for
    FailedWrites m_failedWrites{&m_items};
    HeldBackReads m_heldBack{&m_writes};
    LyricsExports m_exports;
};
