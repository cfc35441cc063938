// SPDX-License-Identifier: MIT
#include "ui/UnsavedLyricsGuard.h"

#include "model/MainModel.h"
#include "ui/QuestionBox.h"
#include "ui/WritesWait.h"

#include <QSet>

#include <algorithm>

// A question names so many songs, and counts the others.
static constexpr int mostNamed = 3;

template<typename Condition>
static UnsavedLyricsGuard::Songs those(const UnsavedLyricsGuard::Songs &ids, Condition condition)
{
    UnsavedLyricsGuard::Songs found;
    std::copy_if(ids.begin(), ids.end(), std::back_inserter(found), condition);
    return found;
}

UnsavedLyricsGuard::UnsavedLyricsGuard(MainModel *model, QWidget *window)
    : m_model(model)
    , m_window(window)
{
}

void UnsavedLyricsGuard::beforeRemoving(std::function<Songs()> songs, std::function<void()> action)
{
    before({std::move(songs), true, [action = std::move(action)](const Songs &) {
                action();
            }});
}

void UnsavedLyricsGuard::beforeSearching(const Songs &ids, std::function<void()> action)
{
    const auto hasTypedLyrics = [this](quint16 id) {
        const ModelItem *song = m_model->item(id);
        return song && song->lyricsArtist().isNull() && m_model->hasUnsavedLyrics(id);
    };
    const Songs typed = those(ids, hasTypedLyrics);
    beforeRemoving([typed, hasTypedLyrics] { return those(typed, hasTypedLyrics); }, std::move(action));
}

void UnsavedLyricsGuard::beforeQuitting(std::function<void()> action)
{
    const auto songs = [this] {
        const Songs typed = m_typedNames.songs();
        Songs found = those(m_model->unsavedIds(), [this, &typed](quint16 id) {
            const ModelItem *song = m_model->item(id);
            return song->namesEdited() || song->unsaved() || typed.contains(id);
        });
        const auto byRow = [this](quint16 a, quint16 b) {
            return m_model->rowOf(a) < m_model->rowOf(b);
        };
        for (const quint16 id : typed) {
            if (m_model->item(id) && !found.contains(id))
                found.insert(std::lower_bound(found.begin(), found.end(), id, byRow), id);
        }
        return found;
    };
    before({songs, false, [this, action = std::move(action)](const Songs &givenUp) {
                m_givenUp = givenUp;
                action();
            }});
}

void UnsavedLyricsGuard::giveUp()
{
    if (m_givenUp.isEmpty())
        return;
    m_typedNames.take(m_givenUp); // else they would be taken for unsaved ones after the last question
    m_model->giveUpUnsaved(m_givenUp);
}

UnsavedLyricsGuard::Songs UnsavedLyricsGuard::notGivenUp(const Action &action)
{
    const QSet<quint16> givenUp(action.givenUp.begin(), action.givenUp.end());
    return those(action.songs(), [&givenUp](quint16 id) { return !givenUp.contains(id); });
}

// Songs that are being written are waited for, as that may store their texts. Those that are written only after that
// are of searches that ended meanwhile: at the end of the program they are no more unsaved than others that are
// searched for, but a song that is removed is waited for again.
void UnsavedLyricsGuard::before(const Action &action)
{
    const Songs writtenFirst = those(notGivenUp(action), [this](quint16 id) { return m_model->isWriting(id); });
    const auto waitedFor = [action, writtenFirst] {
        return action.removes ? notGivenUp(action) : writtenFirst;
    };
    afterWrites(waitedFor, [this, action, writtenFirst] {
        const Losses losses = lossesOf(those(notGivenUp(action), [this, &action, &writtenFirst](quint16 id) {
            const bool isWrittenSince = m_model->isWriting(id) && !writtenFirst.contains(id);
            return action.removes || !isWrittenSince || m_model->item(id)->unsaved();
        }));
        if (losses.songs.isEmpty())
            action.run(action.givenUp);
        else
            askBefore(action, losses);
    });
}

void UnsavedLyricsGuard::askBefore(const Action &action, const Losses &losses)
{
    ask(losses, [this, action, unsaved = losses.songs](int answer) {
        if (answer == QMessageBox::Save) {
            m_typedNames.take(unsaved);
            for (const quint16 id : unsaved)
                m_model->writeTagsUnlessForeign(id);
            before(action);
        } else if (answer == QMessageBox::Discard) {
            Action rest = action;
            rest.givenUp += unsaved;
            before(rest); // others may have been written behind the question
        }
    });
}

void UnsavedLyricsGuard::afterWrites(const std::function<Songs()> &songs, std::function<void()> action)
{
    if (m_wait) {
        m_wait->raise();
    } else if (!WritesWait::isNeeded(*m_model, songs())) {
        action();
    } else {
        m_wait = new WritesWait(m_model, songs, m_window);
        QObject::connect(m_wait, &WritesWait::done, m_window, [this, action = std::move(action)] {
            m_wait.clear();
            action();
        });
    }
}

void UnsavedLyricsGuard::ask(const Losses &losses, std::function<void(int)> answered)
{
    if (m_question) {
        m_question->raise();
        m_question->activateWindow();
        return;
    }
    const Songs &ids = losses.songs;
    const bool haveSomeFailed = std::any_of(ids.begin(), ids.end(), [this](quint16 id) { return hasFailed(id); });
    const QString question =
        linesOf(ids).join(QLatin1Char('\n')) + QLatin1String("\n\n") + tr("Do you want to save the changes?");
    m_question = makeQuestionBox(textOf(losses), question,
                                 QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, m_window);
    m_question->setDefaultButton(haveSomeFailed ? QMessageBox::Cancel : QMessageBox::Save);
    QObject::connect(m_question, &QMessageBox::finished, m_window, [this, answered = std::move(answered)](int answer) {
        m_question.clear();
        answered(answer);
    });
    m_question->open();
}

// Its last write, or one that does not end.
bool UnsavedLyricsGuard::hasFailed(quint16 id) const
{
    return m_model->item(id)->unsaved() || m_model->isWriting(id);
}

UnsavedLyricsGuard::Losses UnsavedLyricsGuard::lossesOf(const Songs &ids) const
{
    const Songs typed = m_typedNames.songs();
    Losses losses;
    for (const quint16 id : ids) {
        const bool names = m_model->item(id)->namesEdited() || typed.contains(id);
        const bool lyrics = m_model->hasUnsavedLyrics(id);
        const bool deletion = m_model->hasUnsavedDeletion(id);
        losses.names += names ? 1 : 0;
        losses.lyrics += lyrics ? 1 : 0;
        losses.deletions += deletion ? 1 : 0;
        if (names || lyrics || deletion)
            losses.songs.append(id);
    }
    return losses;
}

QString UnsavedLyricsGuard::textOf(const Losses &losses)
{
    QStringList sentences;
    if (losses.names > 0)
        sentences.append(losses.names == 1 ? tr("The changed artist or title of one song is not in its file yet.")
                                           : tr("The changed artist or title of %n songs is not in their files yet.",
                                                nullptr, losses.names));
    if (losses.lyrics > 0)
        sentences.append(losses.lyrics == 1
                             ? tr("The lyrics of one song are not in its file and stand in the list only.")
                             : tr("The lyrics of %n songs are not in their files and stand in the list only.", nullptr,
                                  losses.lyrics));
    if (losses.deletions > 0)
        sentences.append(losses.deletions == 1 ? tr("The deleted lyrics of one song are still in its file.")
                                               : tr("The deleted lyrics of %n songs are still in their files.", nullptr,
                                                    losses.deletions));
    return sentences.join(QLatin1Char('\n'));
}

// Those that have failed come first, as there is more to say of them.
QStringList UnsavedLyricsGuard::linesOf(Songs ids) const
{
    std::stable_partition(ids.begin(), ids.end(), [this](quint16 id) { return hasFailed(id); });
    QStringList lines;
    for (const quint16 id : ids.mid(0, mostNamed)) {
        const ModelItem *song = m_model->item(id);
        const QString name = shownName(*song, m_window);
        if (hasFailed(id))
            lines.append(tr("“%1” could not be saved: %2", "%1 is the title of a song, %2 the reason")
                             .arg(name, song->unsaved() ? song->writeError() : tr("it is still being written")));
        else
            lines.append(tr("“%1”", "%1 is the title of a song").arg(name));
    }
    if (ids.size() > mostNamed)
        lines.append(tr("... and %n more", "other songs", ids.size() - mostNamed));
    return lines;
}
