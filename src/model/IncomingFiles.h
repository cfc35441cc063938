// SPDX-License-Identifier: MIT
#pragma once

#include "model/DelayedFileCheck.h"

#include <QList>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QUrl>
#include <QVector>

#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

// Files on their way into the list: those that nobody knows yet are looked at first, elsewhere, and all of them come
// out in blocks, from the event loop, so that the window goes on living while many become rows. A folder that does not
// answer holds up its own files only. Main thread only.
class IncomingFiles : public QObject
{
    Q_OBJECT

public:
    using Found = DelayedFileCheck::Found;
    // `isFirst`: no files were handed over before of the same urls.
    using Use = std::function<void(const Found &found, bool isFirst)>;

    // What is still to come out, or is kept for a disk that is away.
    struct Waiting
    {
        QUrl url;
        quint64 place; // in the kept list, or noPlace
    };
    static constexpr quint64 noPlace = std::numeric_limits<quint64>::max();

    explicit IncomingFiles(QObject *parent = nullptr);
    // Looks at urls in this way.
    explicit IncomingFiles(const DelayedFileCheck::Look &look, QObject *parent = nullptr);

    // Takes a list that was kept across runs, of urls and absolute paths, and waits with it for restore(). Entries that
    // are neither are left out.
    void keep(const QStringList &entries);
    // Begins to look at the kept list, elsewhere.
    void lookAtKept();
    // Lets the kept list come out; of what was found until now, the first block before this returns.
    void restore();
    // Whether files of the kept list may come out at any moment, and none has so far. Not longer than a second after
    // restore(), since a disk that does not answer may never do so.
    [[nodiscard]] bool isRestoring() const { return m_isRestoring; }
    // Looks at urls and hands over what they are, in parts, from the event loop. They are in the order in which they
    // were given, but for those that have to wait for a disk. None is handed over before the places of the kept list
    // are known; what comes while that is on its way is not the first, since the reads of the list go on with it.
    void look(const QList<QUrl> &urls, const Use &use);
    // Takes files that are known to be regular; the first block of them comes out before this returns. Later parts of
    // what was handed over in parts are not the first ones.
    void add(const QList<QUrl> &files, bool isFirst = true);
    // Forgets all, also what is away.
    void clear();

    // Each place is given once, for the row that the file becomes: noPlace for one that does not come from the kept
    // list, for one that has become a row before, and, once that list was looked at, for one that was missing.
    [[nodiscard]] quint64 takePlace(const QUrl &url);
    // What may become rows, now or in a later run: of the kept list, of what was added, and of what is looked at,
    // whatever it is.
    [[nodiscard]] QVector<Waiting> waiting() const;
    // Whether there are such files, or some that nobody has looked at yet.
    [[nodiscard]] bool isAnyWaiting() const;

signals:
    // In the order in which they were taken; those of the kept list as their disks answer. `isFirst` says that no block
    // came right before this one, and that its files are not a later part.
    void block(const QList<QUrl> &files, bool isFirst);
    void restoringChanged();

private:
    // The last check looks at most of the urls; those before it wait for disks.
    struct Job
    {
        std::vector<std::unique_ptr<DelayedFileCheck>> checks;
        Use use;
        bool isKept = false;
        bool hasReported = false;
    };

    void begin(std::unique_ptr<DelayedFileCheck> check, const Use &use, bool isKept);
    void takeFound();
    void fetchPlaces();
    void forgetMissing();
    void useKept(Found found, bool isFirst);
    [[nodiscard]] quint64 placeOf(const QUrl &url) const;
    [[nodiscard]] static Found takeFrom(Job &job);
    void passStalled(Job &job) const;
    [[nodiscard]] bool isKeptComing() const;
    void setRestoring(bool restoring);
    void emitBlock(bool isFirst);

    const DelayedFileCheck::Look m_look;
    std::unique_ptr<DelayedFileCheck> m_kept; // until restore()
    bool m_haveOthersCome = false;            // than those of the kept list; their reads go on with its own
    bool m_isRestoring = false;
    std::vector<Job> m_jobs;
    QTimer m_nextLook; // runs while there are jobs
    QList<QUrl> m_known;
    // Of the files of the kept list that have not become rows; nothing until that list is read.
    std::optional<DelayedFileCheck::Places> m_places = DelayedFileCheck::Places();
    QList<QUrl> m_away; // of the kept list; they do not come out in this run
    QTimer m_nextBlock; // runs while there are known files
};
