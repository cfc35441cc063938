// SPDX-License-Identifier: MIT
#include "tags/TagWriter.h"

#include "tags/WriterThread.h"

#include <algorithm>

namespace {

// Empty when there is nothing to complain of.
QString reasonText(tags::UpdateResult result)
{
    switch (result) {
    case tags::UpdateResult::Unchanged:
    case tags::UpdateResult::Saved:
        return {};
    case tags::UpdateResult::Missing:
        return TagWriter::tr("the file is no longer there");
    case tags::UpdateResult::NotRegular:
        return TagWriter::tr("this is not a regular file");
    case tags::UpdateResult::ReadOnly:
        return TagWriter::tr("the file is read-only");
    case tags::UpdateResult::Unreadable:
        return TagWriter::tr("the file cannot be opened");
    case tags::UpdateResult::NotAudio:
        return TagWriter::tr("no audio was found in the file");
    case tags::UpdateResult::NoLyricsPlace:
        return TagWriter::tr("files of this format cannot hold lyrics");
    case tags::UpdateResult::Unusual:
        return TagWriter::tr("the file is damaged, or built in an unusual way");
    case tags::UpdateResult::NoRoom:
        return TagWriter::tr("there is not enough room on the disk");
    case tags::UpdateResult::TooLarge:
        return TagWriter::tr("the file would become too large");
    case tags::UpdateResult::DiskError:
        return TagWriter::tr("the disk reports an error");
    case tags::UpdateResult::TagsNotKept:
        return TagWriter::tr("other entries of its tags would be lost");
    case tags::UpdateResult::AudioNotKept:
        return TagWriter::tr("the audio would not stay as it is");
    case tags::UpdateResult::ChangedMeanwhile:
    case tags::UpdateResult::RenamedMeanwhile:
        return TagWriter::tr("another program has changed the file");
    case tags::UpdateResult::AwaitsRestoring:
        return TagWriter::tr("an earlier save of the file was cut off and is not undone yet");
    case tags::UpdateResult::RestoredLater:
        return TagWriter::tr("the disk failed; the file will be restored at the next start");
    case tags::UpdateResult::SaveFailed:
        break;
    }
    return TagWriter::tr("the file could not be saved");
}

bool mayHoldLyrics(const tags::ShownTexts &shown)
{
    return !shown.texts.lyrics.isEmpty() ||
           std::any_of(shown.underWay.begin(), shown.underWay.end(),
                       [](const tags::SongTexts &texts) { return !texts.lyrics.isEmpty(); });
}

} // namespace

TagWriter::TagWriter(const QString &dataFolder)
    : m_dataFolder(dataFolder)
{
    qRegisterMetaType<tags::UpdateResult>("tags::UpdateResult");
    moveToThread(tags::WriterThread::instance().thread());
}

void TagWriter::queueWrite(const QUrl &fileToWrite, quint16 id, const QString &_artist, const QString &title,
                           const QString &lyrics, const std::optional<tags::ShownTexts> &shown)
{
    const auto writeNow = [this, fileToWrite, id, _artist, title, lyrics, shown,
                           ticket = tags::WriterThread::instance().takeTicket()] {
        if (shown && mayHoldLyrics(*shown))
            store(fileToWrite, id, {_artist, title, lyrics}, shown);
        else
            write(fileToWrite, id, _artist, title, lyrics, shown);
    };
    QMetaObject::invokeMethod(this, writeNow, Qt::QueuedConnection);
}

int TagWriter::pendingWrites()
{
    return tags::WriterThread::instance().pendingWrites();
}

bool TagWriter::waitForQueued(std::chrono::milliseconds withoutProgress)
{
    return tags::WriterThread::instance().waitForQueued(withoutProgress);
}

void TagWriter::write(const QUrl &fileToWrite, quint16 id, const QString &_artist, const QString &title,
                      const QString &lyrics, const std::optional<tags::ShownTexts> &shown)
{
    if (_artist.isEmpty() && title.isEmpty() && lyrics.isEmpty())
        emit written(id);
    else
        store(fileToWrite, id, {_artist, title, lyrics}, shown);
}

void TagWriter::store(const QUrl &file, quint16 id, const tags::SongTexts &texts,
                      const std::optional<tags::ShownTexts> &shown)
{
    const tags::UpdateResult result = tags::updateTags(file.toLocalFile(), texts, m_dataFolder, shown);
    emit updated(id, result);
    const QString reason = reasonText(result);
    if (!reason.isEmpty())
        emit failed(id, reason);
    emit written(id);
}
