// SPDX-License-Identifier: MIT
#include "ui/UnsavedLyricsGuard.h"

#include "model/MainModel.h"
#include "ui/QuestionBox.h"
#include "ui/WritesWait.h"

#include <algorithm>

// A question names so many songs that could not be saved, and counts the others.
static constexpr int mostFailures = 3;

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

void UnsavedLyricsGuard::beforeRemoving(const Songs &ids, std::function<void()> action)
{
    if (!ids.isEmpty())
        m_takeTypedNames(ids);
    before([ids] { return ids; }, [action = std::move(action)](const Songs &) { action(); });
}

void UnsavedLyricsGuard::beforeQuitting(std::function<void()> action)
{
    m_takeTypedNames({});
    const auto candidates = [this] {
        return those(m_model->unsavedIds(), [this](quint16 id) {
            const ModelItem *song = m_model->item(id);
            return song->namesEdited() || song->unsaved();
        });
    };
    before(candidates, [this, action = std::move(action)](const Songs &givenUp) {
        m_givenUp = givenUp;
        action();
    });
}

void UnsavedLyricsGuard::giveUp()
{
    m_model->giveUpUnsaved(m_givenUp);
}

// Of the candidates, those that are being written are waited for, as that may store their texts; those that are written
// only after that are of searches that ended meanwhile, and no more unsaved than others that are searched for.
void UnsavedLyricsGuard::before(const std::function<Songs()> &candidates,
                                const std::function<void(const Songs &)> &action)
{
    const Songs waitedFor = those(candidates(), [this](quint16 id) { return m_model->isWriting(id); });
    afterWrites(waitedFor, [this, candidates, action, waitedFor] {
        const Songs unsaved = those(candidates(), [this, &waitedFor](quint16 id) {
            const ModelItem *song = m_model->item(id);
            const bool isWrittenSince = m_model->isWriting(id) && !waitedFor.contains(id);
            return song && (song->unsaved() || !isWrittenSince) &&
                   (song->namesEdited() || m_model->hasUnsavedLyrics(id));
        });
        if (unsaved.isEmpty()) {
            action({});
            return;
        }
        ask(unsaved, [this, candidates, action, unsaved](int answer) {
            if (answer == QMessageBox::Save) {
                for (const quint16 id : unsaved)
                    m_model->writeTagsUnlessForeign(id);
                before(candidates, action);
            } else if (answer == QMessageBox::Discard) {
                action(unsaved);
            }
        });
    });
}

void UnsavedLyricsGuard::afterWrites(const Songs &ids, std::function<void()> action)
{
    if (m_wait) {
        m_wait->raise();
    } else if (!WritesWait::isNeeded(*m_model, ids)) {
        action();
    } else {
        m_wait = new WritesWait(m_model, ids, m_window);
        QObject::connect(m_wait, &WritesWait::done, m_window, [this, action = std::move(action)] {
            m_wait.clear();
            action();
        });
    }
}

void UnsavedLyricsGuard::ask(const Songs &ids, std::function<void(int)> answered)
{
    if (m_question) {
        m_question->raise();
        m_question->activateWindow();
        return;
    }
    const QStringList failures = failuresOf(ids);
    QString question = tr("Do you want to save the changes?");
    if (!failures.isEmpty())
        question.prepend(failures.join(QLatin1Char('\n')) + QLatin1String("\n\n"));
    m_question = makeQuestionBox(lossOf(ids), question, QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                                 m_window);
    m_question->setDefaultButton(failures.isEmpty() ? QMessageBox::Save : QMessageBox::Cancel);
    QObject::connect(m_question, &QMessageBox::finished, m_window, [this, answered = std::move(answered)](int answer) {
        m_question.clear();
        answered(answer);
    });
    m_question->open();
}

QString UnsavedLyricsGuard::lossOf(const Songs &ids) const
{
    const int names = those(ids, [this](quint16 id) { return m_model->item(id)->namesEdited(); }).size();
    const int lyrics = those(ids, [this](quint16 id) { return m_model->hasUnsavedLyrics(id); }).size();
    QStringList sentences;
    if (names > 0)
        sentences.append(
            names == 1 ? tr("The changed artist or title of one song is not in its file yet.")
                       : tr("The changed artist or title of %n songs is not in their files yet.", nullptr, names));
    if (lyrics > 0)
        sentences.append(lyrics == 1 ? tr("The lyrics of one song are not in its file and stand in the list only.")
                                     : tr("The lyrics of %n songs are not in their files and stand in the list only.",
                                          nullptr, lyrics));
    return sentences.join(QLatin1Char('\n'));
}

QStringList UnsavedLyricsGuard::failuresOf(const Songs &ids) const
{
    const Songs failed =
        those(ids, [this](quint16 id) { return m_model->item(id)->unsaved() || m_model->isWriting(id); });
    QStringList lines;
    for (const quint16 id : failed.mid(0, mostFailures)) {
        const ModelItem *song = m_model->item(id);
        lines.append(tr("“%1” could not be saved: %2", "%1 is the title of a song, %2 the reason")
                         .arg(shownName(*song, m_window),
                              song->unsaved() ? song->writeError() : tr("it is still being written")));
    }
    if (failed.size() > mostFailures)
        lines.append(tr("... and %n more", "other songs that could not be saved", failed.size() - mostFailures));
    return lines;
}
