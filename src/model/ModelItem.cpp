// SPDX-License-Identifier: MIT
#include "model/ModelItem.h"

#include "tags/CoverImage.h"
#include "tags/MediaFileTags.h"

#include <QFileInfo>
#include <QRegularExpression>

ModelItem::ModelItem()
    : ModelItem(QUrl())
{
}

ModelItem::ModelItem(const QUrl &url, QObject *parent)
    : QObject(parent)
    , m_url(url)
{
    connect(this, &ModelItem::urlChanged, this, &ModelItem::changed);
    connect(this, &ModelItem::tagsLoadedChanged, this, &ModelItem::changed);
    connect(this, &ModelItem::titleTagChanged, this, &ModelItem::changed);
    connect(this, &ModelItem::artistTagChanged, this, &ModelItem::changed);
    connect(this, &ModelItem::lyricsTagChanged, this, &ModelItem::changed);
    connect(this, &ModelItem::processStateChanged, this, &ModelItem::changed);
    connect(this, &ModelItem::errorStringChanged, this, &ModelItem::changed);
}

ModelItem::~ModelItem() = default;

QString ModelItem::textOf(ProcessState state)
{
    switch (state) {
    case ProcessIdle:
        return QStringLiteral("idle");
    case ProcessNotSuitable:
        return QStringLiteral("not suitable");
    case ProcessWaiting:
        return QStringLiteral("queued to search...");
    case ProcessWorking:
        return QStringLiteral("searching...");
    case ProcessWritingTags:
        return QStringLiteral("writing tags");
    case ProcessFailed:
        return QStringLiteral("failed");
    case ProcessComplete:
        return QStringLiteral("complete");
    }
    return {};
}

QString ModelItem::localPath() const
{
    return m_url.isLocalFile() ? m_url.toLocalFile() : QString();
}

ModelItem::FileKind ModelItem::fileKind() const
{
    if (!m_fileKind) {
        const QFileInfo info(localPath()); // no file at all for an empty path
        m_fileKind = !info.exists() ? FileKind::Missing : info.isFile() ? FileKind::Regular : FileKind::Other;
    }
    return *m_fileKind;
}

void ModelItem::setFileKind(FileKind kind)
{
    if (m_fileKind == kind)
        return;
    m_fileKind = kind;
    emit changed();
}

bool ModelItem::valid() const
{
    return fileKind() == FileKind::Regular;
}

bool ModelItem::fileExists() const
{
    return fileKind() != FileKind::Missing;
}

QString ModelItem::filename() const
{
    return QFileInfo(localPath()).fileName();
}

QString ModelItem::path() const
{
    const QString file = localPath();
    return file.isEmpty() ? QString() : QFileInfo(file).path();
}

QString ModelItem::ext() const
{
    return QFileInfo(localPath()).suffix();
}

QString ModelItem::titleTag() const
{
    return m_tagsLoaded ? m_titleTag : QString(QLatin1String(""));
}

QString ModelItem::artistTag() const
{
    return m_tagsLoaded ? m_artistTag : QString(QLatin1String(""));
}

QString ModelItem::lyricsTag() const
{
    return m_tagsLoaded ? m_lyricsTag : QString(QLatin1String(""));
}

bool ModelItem::lyricsEmbedded() const
{
    return m_tagsLoaded && m_lyricsEmbedded && !m_lyricsTag.isEmpty();
}

bool ModelItem::bad() const
{
    return m_unreadable || !valid() || (m_tagsLoaded && m_duration <= 0);
}

bool ModelItem::editable() const
{
    return !m_unreadable && (m_processState == ProcessComplete || m_processState == ProcessNotSuitable);
}

SearchNames ModelItem::searchArtistTitle() const
{
    SearchNames names;
    if (m_tagsLoaded)
        names = {m_artistTag.trimmed(), m_titleTag.trimmed()};
    if (!names.artist.isEmpty() && !names.title.isEmpty())
        return names;

    const QString file = localPath();
    if (file.isEmpty())
        return {};
    // The first group is greedy: "A - B - C" is the song "C" of "A - B".
    static const QRegularExpression artistAndTitle(QStringLiteral("\\A(.*) - (.*)\\z"),
                                                   QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = artistAndTitle.match(QFileInfo(file).completeBaseName());
    if (match.hasMatch()) {
        if (names.artist.isEmpty())
            names.artist = match.captured(1).trimmed();
        if (names.title.isEmpty())
            names.title = match.captured(2).trimmed();
    }
    return names;
}

void ModelItem::setTags(const MediaFileTags &tags)
{
    if (m_unreadable)
        setErrorString(QString()); // of the earlier try
    m_unreadable = false;
    m_artistTag = tags.value(QStringLiteral("artist"));
    m_titleTag = tags.value(QStringLiteral("title"));
    m_lyricsTag = tags.value(QStringLiteral("lyrics"));
    m_storedTexts = {m_artistTag, m_titleTag, m_lyricsTag};
    m_lyricsEmbedded = true;
    m_tagsLoaded = true;
    m_foundNothing = false;
    m_duration = tags.duration();
    if (m_duration > 0)
        m_fileKind = FileKind::Regular;
    setThumbnail(tags.thumbnail());
    emit titleTagChanged(m_titleTag);
    emit artistTagChanged(m_artistTag);
    emit lyricsTagChanged(m_lyricsTag);
    emit tagsLoadedChanged(true);
}

void ModelItem::setStoredTexts(const tags::SongTexts &texts)
{
    m_storedTexts = texts;
    emit changed();
}

void ModelItem::revert()
{
    setArtistTag(m_storedTexts.artist);
    setTitleTag(m_storedTexts.title);
    setLyricsTag(m_storedTexts.lyrics);
}

void ModelItem::setUnreadable(const QString &reason)
{
    m_unreadable = true;
    m_tagsLoaded = false;
    setErrorString(reason);
    setProcessState(ProcessNotSuitable);
}

void ModelItem::setThumbnail(const QImage &image)
{
    const QSize size = image.isNull() ? image.size() : thumbnailSize(image.size());
    m_thumbnail = size == image.size() ? image : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

void ModelItem::setFoundLyricsTag(const QString &artist, const QString &title, const QString &lyrics)
{
    m_lyricsArtist = artist;
    m_lyricsTitle = title;
    m_lyricsTag = lyrics;
    m_lyricsEmbedded = false;
    m_foundNothing = false;
    emit lyricsTagChanged(lyrics);
}

void ModelItem::setEditedLyricsTag(const QString &lyrics)
{
    setFoundLyricsTag(QString(), QString(), lyrics);
}

void ModelItem::setUrl(const QUrl &url)
{
    if (url == m_url)
        return;
    m_url = url;
    m_fileKind.reset();
    emit urlChanged(url);
}

void ModelItem::setTitleTag(const QString &title)
{
    if (!m_tagsLoaded || title == m_titleTag)
        return;
    m_titleTag = title;
    emit titleTagChanged(title);
}

void ModelItem::setArtistTag(const QString &artist)
{
    if (!m_tagsLoaded || artist == m_artistTag)
        return;
    m_artistTag = artist;
    emit artistTagChanged(artist);
}

void ModelItem::setLyricsTag(const QString &lyrics)
{
    if (!m_tagsLoaded || lyrics == m_lyricsTag)
        return;
    m_lyricsTag = lyrics;
    emit lyricsTagChanged(lyrics);
}

void ModelItem::setProcessState(ProcessState state)
{
    if (state == m_processState)
        return;
    const bool wasActive = active();
    const bool wasWriting = writingTags();
    m_processState = state;
    if (active() != wasActive)
        emit activeChanged();
    if (writingTags() != wasWriting)
        emit writingTagsChanged(writingTags());
    emit processStateChanged(state);
}

void ModelItem::setWriteError(const QString &reason)
{
    if (reason == m_writeError)
        return;
    m_writeError = reason;
    emit changed();
}

void ModelItem::setFoundNothing(bool nothing)
{
    if (nothing == m_foundNothing)
        return;
    m_foundNothing = nothing;
    emit changed();
}

void ModelItem::setErrorString(const QString &text)
{
    if (text == m_errorString)
        return;
    m_errorString = text;
    emit errorStringChanged(text);
}
