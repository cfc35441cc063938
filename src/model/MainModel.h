// SPDX-License-Identifier: MIT
#pragma once

#include "model/ItemStore.h"
#include "tags/MediaFileTags.h"
#include "tags/MediaInfoExtractor.h"

#include <QAbstractListModel>
#include <QHash>
#include <QStringList>
#include <QTimer>
#include <QVector>

#include <atomic>
#include <map>
#include <memory>

class LyricsSearch;
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
    void setReaderProgram(const QString &path) { m_tagReader.setReaderProgram(path); }
    // For the end of the program: a read under way is given up.
    void stopReading() { m_tagReader.stop(); }
    void setSettings(const Settings *settings) { m_settings = settings; }
    // The program's own folder for saves (tags/TagUpdate.h). Without one, songs that can be saved in place only are
    // not.
    void setDataFolder(const QString &folder) { m_dataFolder = folder; }
    // Not owned. Without a coordinator nothing is searched for.
    void setSearch(LyricsSearch *search);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
    bool removeRows(int row, int count, const QModelIndex &parent = {}) override;

    // Removes rows that stand anywhere, in ranges, or as one reset when there are too many ranges. `rows` ascends.
    void removeScattered(const QVector<int> &rows);

    [[nodiscard]] bool autoStart() const { return m_autoStart; }
    // How many searches the coordinator holds.
    [[nodiscard]] int searchCount() const;
    // How many items are queued for a search or being searched for.
    [[nodiscard]] int activeCount() const { return m_activeCount; }
    // Null when no item has this id.
    [[nodiscard]] ModelItem *item(quint16 id) const { return m_items.find(id); }
    [[nodiscard]] ModelItem *itemAt(int row) const { return m_items.itemAt(row); }
    // -1 when no item has this id.
    [[nodiscard]] int rowOf(quint16 id) const { return m_items.rowOf(id); }
    // Lyrics that are in the list only, since their last write failed or was refused.
    [[nodiscard]] int unsavedCount() const { return m_unsaved.size(); }
    // These, or such whose write is under way and may still fail.
    [[nodiscard]] bool hasUnsavedLyrics(quint16 id) const;
    // All songs of which this is true, in no order.
    [[nodiscard]] QVector<quint16> idsWithUnsavedLyrics() const;
    // The urls of all rows, in row order, and then of the files that are still to become rows: what is to be kept
    // across runs.
    [[nodiscard]] QList<QUrl> urls() const;

    // Adds a list that was kept across runs. Its files are looked at elsewhere and become rows when that is done, so
    // that a disk that does not answer holds up nothing but them and those behind them. To be called once.
    void restore(const QList<QUrl> &urls);

    // The supported extensions, each as "*.mp3", joined with the separator.
    Q_INVOKABLE QString supportedTypesMask(const QString &separator) const;
    Q_INVOKABLE void addUrls(const QList<QUrl> &urls) { add(urls); }
    // Adds the supported files and asks for a scan of the folders.
    Q_INVOKABLE void addUrlsFromDrop(const QList<QUrl> &urls);
    // Does nothing by itself: feeding the coordinator is the model's own business. Kept for the scene.
    Q_INVOKABLE void startSearching() const {}
    // A local file with one of the supported extensions, without regard to case; the disk is not asked.
    Q_INVOKABLE bool isSupported(const QUrl &url) const;
    Q_INVOKABLE void removeWithLyrics();
    Q_INVOKABLE void removeAll();
    // A forced search. Whether the item is queued now; false when there is none or its names are not suitable.
    Q_INVOKABLE bool startSearch(quint16 id);
    // Shows the file of a row in the file manager; returns when that has ended.
    Q_INVOKABLE void locate(int row) const;
    // Queues a write of the item's names and lyrics into its file; false when there is no such item or its tags are
    // not loaded, since the write would replace what nobody has seen.
    Q_INVOKABLE bool writeTags(quint16 id);

public slots:
    // Appends the urls that name regular local files and are not listed yet. One call is one request for a read.
    //
    // Files that are known to be regular are not looked at again, and many of them are inserted in blocks, from the
    // event loop, so that the window goes on living; otherwise one call is one insertion, made before it returns.
    void add(const QList<QUrl> &urls, FileKnowledge knowledge = MayBeAnything);
    void setAutoStart(bool on);
    // Exports the item's lyrics to the text file beside its audio file. False, with nothing touched, when there are
    // none or the file cannot be written.
    bool generateLyricsFile(quint16 id);
    // Announces new data in the item's row.
    void itemChanged(const ModelItem *item);
    void fileInfoExtracted(const QString &file, const MediaFileTags &tags);
    void extractNextFileInfo();
    void lyricsSearchFinished(quint16 id, const QString &artist, const QString &title, const QString &lyrics,
                              const QString &errorString);
    void tagsWritten(quint16 id);

signals:
    void autoStartChanged(bool on);
    void searchCountChanged(int count);
    void activeCountChanged();
    void scanFolders(const QList<QUrl> &folders);
    // A search was handed to the coordinator.
    void searchStarted(const QString &artist, const QString &title);
    // For so many songs of the list the last write failed for this one reason; again when the number has grown, so that
    // one message can show it.
    void writesFailed(const QString &reason, int count);
    // So many files could not be added, because no identifier was free.
    void filesLeftOut(int count);

private:
    // Ids in row order: from sequence number to id.
    using WorkQueue = std::map<quint64, quint16>;
    static constexpr int noRead = -1;

    void insertKnownFiles();
    void filesChecked(int count, const QList<QUrl> &files);
    void insertFiles(const QList<QUrl> &files, bool requestRead);
    [[nodiscard]] QList<QUrl> newUrls(const QList<QUrl> &urls) const;
    [[nodiscard]] std::vector<std::unique_ptr<ModelItem>> makeItems(const QList<QUrl> &files);
    [[nodiscard]] bool isIdInUse(quint16 id) const;
    void insertItems(std::vector<std::unique_ptr<ModelItem>> items);
    void connectItem(ModelItem *item);
    void countActive(const ModelItem *item);
    void queueForSearch(const ModelItem *item);
    void forgetItems(std::vector<ItemStore::Taken> removed);
    [[nodiscard]] bool isOvertaken(quint16 id) const;
    void readAgain(quint16 id);
    void feedSearches();
    void useTags(ModelItem *item, const MediaFileTags &tags);
    void startWriting(ModelItem *item);
    [[nodiscard]] static bool canExport(const ModelItem &item);
    void tagsNotWritten(quint16 id, const QString &reason);
    void noteUnsaved(ModelItem *item, const QString &reason);
    void forgetUnsaved(quint16 id);

    ItemStore m_items;
    quint16 m_lastId = 0;
    QList<QUrl> m_unchecked;  // of the list that is being restored
    QList<QUrl> m_knownFiles; // wait to become rows
    QTimer m_insertTimer;     // runs while there are any
    std::shared_ptr<std::atomic<bool>> m_checkCancelled = std::make_shared<std::atomic<bool>>(false);
    QStringList m_extensions;
    const Settings *m_settings = nullptr;
    LyricsSearch *m_search = nullptr;
    bool m_autoStart = true;
    int m_activeCount = 0;
    MediaInfoExtractor m_tagReader;
    QVector<quint16> m_readsInFlight;
    int m_currentRead = noRead; // id of the newest request while it is unanswered
    WorkQueue m_unread;         // tags not loaded and no read in flight
    WorkQueue m_searchable;     // waiting, with tags loaded
    // Searched for while the user's own lyrics were written: what the search finds must not replace those.
    QSet<quint16> m_overruled;
    QHash<quint16, int> m_writes;           // id to number of writes under way
    QHash<quint16, QString> m_failedWrites; // id to reason, until their end is reported
    QHash<quint16, QString> m_unsaved;      // id to reason
    QHash<QString, int> m_unsavedByReason;
    QString m_dataFolder;
};
