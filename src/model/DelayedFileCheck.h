// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

// Looks at urls in a thread of its own, one after another: a look at a disk that does not answer takes as long as it
// takes. What was found is fetched when its owner likes.
//
// When this object goes no more looks begin; the one under way is left to itself, also at the end of the program. All
// calls from one thread.
class DelayedFileCheck
{
public:
    enum class Kind { Nothing, File, Folder, Away };
    // Called in the thread; must touch nothing that may go before the program does.
    using Look = std::function<Kind(const QUrl &url)>;

    // Each in the order in which they were given.
    struct Found
    {
        QList<QUrl> files;   // regular local files, or links to them
        QList<QUrl> folders; // local ones, or links to them
        QList<QUrl> away;    // see isAway()
        int others = 0;      // how many are none of these

        [[nodiscard]] bool isEmpty() const
        {
            return files.isEmpty() && folders.isEmpty() && away.isEmpty() && others == 0;
        }
        Found &operator+=(const Found &more);
    };
    // From a url to its first place among the entries.
    using Places = QHash<QUrl, int>;

    explicit DelayedFileCheck(const QList<QUrl> &urls, const Look &look = kindOf);
    // Of texts, of which the thread makes urls: absolute paths and urls. Others are left out.
    explicit DelayedFileCheck(const QStringList &entries, const Look &look = kindOf);
    ~DelayedFileCheck();
    DelayedFileCheck(const DelayedFileCheck &) = delete;
    DelayedFileCheck &operator=(const DelayedFileCheck &) = delete;

    // Begins, once.
    void start();
    // What was found since the last call.
    [[nodiscard]] Found take();
    // Where the urls of the entries stand, once; nothing until they are read.
    [[nodiscard]] std::optional<Places> takePlaces();
    // The urls of which nothing was taken yet.
    [[nodiscard]] QList<QUrl> untaken() const;
    // Whether all urls were looked at and taken.
    [[nodiscard]] bool isAllTaken() const;
    // A single look has lasted for half a second.
    [[nodiscard]] bool isStalled() const;
    // Leaves to this check the url that is being looked at and those in the same folder, and returns the others, which
    // it will not look at.
    [[nodiscard]] QList<QUrl> giveUpOthers();

    [[nodiscard]] static Kind kindOf(const QUrl &url);
    // Whether the url names a regular local file, or a link to one.
    [[nodiscard]] static bool isFile(const QUrl &url);
    // Whether the url names a local folder, or a link to one.
    [[nodiscard]] static bool isFolder(const QUrl &url);
    // Whether a url that names no file may name one again, when its disk is mounted: the path leads to an empty folder,
    // to the places where disks are mounted, or along a link to nothing, or the disk cannot be asked. Anything else was
    // deleted or renamed, and does not come back.
    [[nodiscard]] static bool isAway(const QUrl &url);

private:
    struct Work;

    const Look m_look;
    const std::shared_ptr<Work> m_work;
    bool m_isStarted = false;
};
