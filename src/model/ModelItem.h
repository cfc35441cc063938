// SPDX-License-Identifier: MIT
#pragma once

#include "tags/TagUpdate.h"

#include <QImage>
#include <QObject>
#include <QString>
#include <QUrl>

#include <optional>

class MediaFileTags;

// Artist and title to search lyrics with; either may be empty.
struct SearchNames
{
    QString artist;
    QString title;
};

// One audio file of the list: where it lies, what its tags say, which lyrics it has and how far its search has come.
//
// Owned by MainModel, which drives the state; the scene binds to the properties. Main thread only. The queries `valid`,
// `fileExists` and `bad` answer what was found when the file was added, read or written, since rows ask for them and a
// disk may not answer: see setFileKind().
class ModelItem : public QObject
{
    Q_OBJECT
    Q_PROPERTY(quint16 id READ id CONSTANT)
    Q_PROPERTY(QUrl url READ url WRITE setUrl NOTIFY urlChanged)
    Q_PROPERTY(bool valid READ valid)
    Q_PROPERTY(bool fileExists READ fileExists)
    Q_PROPERTY(QString filename READ filename)
    Q_PROPERTY(QString path READ path)
    Q_PROPERTY(QString ext READ ext)
    Q_PROPERTY(bool tagsLoaded READ tagsLoaded NOTIFY tagsLoadedChanged)
    Q_PROPERTY(QString titleTag READ titleTag WRITE setTitleTag NOTIFY titleTagChanged)
    Q_PROPERTY(QString artistTag READ artistTag WRITE setArtistTag NOTIFY artistTagChanged)
    Q_PROPERTY(QString lyricsTag READ lyricsTag WRITE setLyricsTag NOTIFY lyricsTagChanged)
    Q_PROPERTY(QString lyricsArtist READ lyricsArtist NOTIFY changed)
    Q_PROPERTY(QString lyricsTitle READ lyricsTitle NOTIFY changed)
    Q_PROPERTY(bool lyricsEmbedded READ lyricsEmbedded NOTIFY changed)
    Q_PROPERTY(int duration READ duration NOTIFY changed)
    Q_PROPERTY(bool bad READ bad NOTIFY changed)
    Q_PROPERTY(ProcessState processState READ processState WRITE setProcessState NOTIFY processStateChanged)
    Q_PROPERTY(QString errorString READ errorString NOTIFY errorStringChanged)
    Q_PROPERTY(bool unreadable READ unreadable NOTIFY changed)
    Q_PROPERTY(QString writeError READ writeError NOTIFY changed)
    Q_PROPERTY(bool edited READ edited NOTIFY changed)
    Q_PROPERTY(bool artistEdited READ artistEdited NOTIFY changed)
    Q_PROPERTY(bool titleEdited READ titleEdited NOTIFY changed)
    Q_PROPERTY(bool foundNothing READ foundNothing NOTIFY changed)
    Q_PROPERTY(QString processStateText READ processStateText NOTIFY processStateChanged)
    Q_PROPERTY(bool active READ active NOTIFY activeChanged)
    Q_PROPERTY(bool editable READ editable NOTIFY processStateChanged)
    Q_PROPERTY(bool hasCover READ hasCover NOTIFY tagsLoadedChanged)
    Q_PROPERTY(bool writingTags READ writingTags NOTIFY writingTagsChanged)

public:
    enum ProcessState {
        ProcessIdle,
        ProcessNotSuitable,
        ProcessWaiting,
        ProcessWorking,
        ProcessWritingTags,
        // Never set by the program: a search that failed ends as complete, with an error text. Kept on purpose, because
        // the scene tests for it.
        ProcessFailed,
        ProcessComplete
    };
    Q_ENUM(ProcessState)

    // What lies where the url points; a link counts as what it leads to.
    enum class FileKind { Missing, Regular, Other };

    ModelItem();
    explicit ModelItem(const QUrl &url, QObject *parent = nullptr);
    ~ModelItem() override;

    // Name of a state as the interface shows it; not translated. Empty for a value outside the enum.
    [[nodiscard]] static QString textOf(ProcessState state);

    [[nodiscard]] quint16 id() const { return m_id; }
    [[nodiscard]] QUrl url() const { return m_url; }
    // A local url that names a regular file (or a link to one).
    [[nodiscard]] bool valid() const;
    [[nodiscard]] bool fileExists() const;
    // File name with suffix; this, `path` and `ext` are empty when the url is empty or not local.
    [[nodiscard]] QString filename() const;
    // The directory that holds the file.
    [[nodiscard]] QString path() const;
    // The text behind the last dot.
    [[nodiscard]] QString ext() const;
    [[nodiscard]] bool tagsLoaded() const { return m_tagsLoaded; }
    // This, `artistTag` and `lyricsTag` are empty until the tags are loaded.
    [[nodiscard]] QString titleTag() const;
    [[nodiscard]] QString artistTag() const;
    [[nodiscard]] QString lyricsTag() const;
    // Names under which the lyrics were found; null when they were not found by a search.
    [[nodiscard]] QString lyricsArtist() const { return m_lyricsArtist; }
    [[nodiscard]] QString lyricsTitle() const { return m_lyricsTitle; }
    // Whether there are lyrics and they came from the file.
    [[nodiscard]] bool lyricsEmbedded() const;
    // Whole seconds; 0 when unknown.
    [[nodiscard]] int duration() const { return m_duration; }
    // Not a regular local file, or read and found to hold no playable time, or unreadable.
    [[nodiscard]] bool bad() const;
    // Its tags could not be read, and the error text says why: it must be left alone, since nothing is known of what a
    // write would replace. Not so for a file that is merely no audio.
    [[nodiscard]] bool unreadable() const { return m_unreadable; }
    [[nodiscard]] ProcessState processState() const { return m_processState; }
    // Why the last search, write or read failed; empty when it did not.
    [[nodiscard]] QString errorString() const { return m_errorString; }
    // Why its last write failed, whatever was searched for since; empty when it did not.
    [[nodiscard]] QString writeError() const { return m_writeError; }
    // Its names and lyrics are in the list only, since their last write failed. The lyrics may be empty.
    [[nodiscard]] bool unsaved() const { return !m_writeError.isEmpty(); }
    // The last search ended without lyrics; nothing has been found, written or read since.
    [[nodiscard]] bool foundNothing() const { return m_foundNothing; }
    [[nodiscard]] QString processStateText() const { return textOf(m_processState); }
    // The texts as they were read from the file, or last written to it: whatever differs from them was edited.
    [[nodiscard]] const tags::SongTexts &storedTexts() const { return m_storedTexts; }
    [[nodiscard]] tags::SongTexts texts() const { return {artistTag(), titleTag(), lyricsTag()}; }
    // Whether a text differs from the stored one; false while the tags are not loaded.
    [[nodiscard]] bool edited() const { return namesEdited() || lyricsEdited(); }
    [[nodiscard]] bool artistEdited() const { return m_tagsLoaded && m_artistTag != m_storedTexts.artist; }
    [[nodiscard]] bool titleEdited() const { return m_tagsLoaded && m_titleTag != m_storedTexts.title; }
    [[nodiscard]] bool namesEdited() const { return artistEdited() || titleEdited(); }
    [[nodiscard]] bool lyricsEdited() const { return m_tagsLoaded && m_lyricsTag != m_storedTexts.lyrics; }
    // Queued for a search or being searched for.
    [[nodiscard]] bool active() const { return isActive(m_processState); }
    [[nodiscard]] bool editable() const;
    [[nodiscard]] bool writingTags() const { return m_processState == ProcessWritingTags; }

    // The cover, at most 50 pixels on its longer side; null when there is none.
    [[nodiscard]] QImage thumbnail() const { return m_thumbnail; }
    [[nodiscard]] bool hasCover() const { return !m_thumbnail.isNull(); }
    // The trimmed names of the tags; what is missing there is taken from a file name of the form "Artist - Title".
    [[nodiscard]] SearchNames searchArtistTitle() const;

    void setId(quint16 id) { m_id = id; }
    void setTags(const MediaFileTags &tags);
    void setStoredTexts(const tags::SongTexts &texts);
    // Makes the texts those that are stored.
    void revert();
    // Instead of the tags, which then count as not loaded.
    void setUnreadable(const QString &reason);
    void setWriteError(const QString &reason);
    void setFoundNothing(bool nothing);
    // To be told by whoever has looked, elsewhere than on the main thread. An item that was told nothing looks by
    // itself at the first query, once for each url.
    void setFileKind(FileKind kind);
    // A larger image is scaled down to the size of a thumbnail.
    void setThumbnail(const QImage &image);

signals:
    // Follows every other signal but `activeChanged` and `writingTagsChanged`; tells of `writeError`,
    // `foundNothing` and the stored texts too.
    void changed();
    void urlChanged(const QUrl &url);
    void tagsLoadedChanged(bool loaded);
    void titleTagChanged(const QString &title);
    void artistTagChanged(const QString &artist);
    void lyricsTagChanged(const QString &lyrics);
    void processStateChanged(ModelItem::ProcessState state);
    void errorStringChanged(const QString &text);
    void activeChanged();
    void writingTagsChanged(bool writing);

public slots:
    // Takes the lyrics that a search found, and the names it found them under.
    void setFoundLyricsTag(const QString &artist, const QString &title, const QString &lyrics);
    // Takes lyrics that the user typed; they no longer belong to any found names.
    void setEditedLyricsTag(const QString &lyrics);
    void setUrl(const QUrl &url);
    // The three setters do nothing until the tags are loaded.
    void setTitleTag(const QString &title);
    void setArtistTag(const QString &artist);
    void setLyricsTag(const QString &lyrics);
    void setProcessState(ModelItem::ProcessState state);
    void setErrorString(const QString &text);

private:
    [[nodiscard]] static bool isActive(ProcessState state)
    {
        return state == ProcessWaiting || state == ProcessWorking;
    }
    // Path of the file; empty when the url is empty or not local.
    [[nodiscard]] QString localPath() const;
    [[nodiscard]] FileKind fileKind() const;

    quint16 m_id = 0;
    QUrl m_url;
    bool m_tagsLoaded = false;
    bool m_unreadable = false;
    QImage m_thumbnail;
    QString m_titleTag;
    QString m_artistTag;
    QString m_lyricsTag;
    tags::SongTexts m_storedTexts;
    QString m_lyricsArtist;
    QString m_lyricsTitle;
    int m_duration = 0;
    bool m_lyricsEmbedded = true;
    ProcessState m_processState = ProcessIdle;
    QString m_errorString;
    QString m_writeError;
    bool m_foundNothing = false;
    mutable std::optional<FileKind> m_fileKind; // empty until somebody tells or asks
};
